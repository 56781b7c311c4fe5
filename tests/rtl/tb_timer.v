// Timer: period, reload, interrupt, external gate, external clock, 24 bits.
module tb;
`include "bench.vh"
`include "apb_master.vh"
    reg  extin = 1'b0;
    wire irq;
    apb_timer dut (.PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr),
                   .PWDATA(pwdata), .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr), .extin(extin), .irq(irq));
    localparam [11:0] CTRL = 0, VALUE = 4, RELOAD = 8, PEND = 12;
    time first;
    integer n;
    initial begin
        reset;
        apb_expect(CTRL, 0, "reset CTRL");
        apb_expect(VALUE, 0, "reset VALUE");
        apb_expect(RELOAD, 0, "reset RELOAD");
        apb_expect(PEND, 0, "reset PEND");
        apb_write(VALUE, 32'hFFFFFFFF);
        apb_expect(VALUE, 32'h00FFFFFF, "24 bits");
        apb_write(RELOAD, 32'hFFABCDEF);
        apb_expect(RELOAD, 32'h00ABCDEF, "24 bits of RELOAD");
        cycles(20);
        apb_expect(VALUE, 32'h00FFFFFF, "does not count while disabled");
        // Period.
        apb_write(RELOAD, 49);
        apb_write(VALUE, 10);
        apb_write(CTRL, 3);
        cycles(5);
        check(irq === 1'b0, "not yet");
        @(posedge irq); first = $time;
        apb_write(PEND, 1);
        check(irq === 1'b0, "interrupt cleared");
        @(posedge irq);
        check32(($time - first) / 10, 50, "period is RELOAD + 1");
        first = $time;
        #1;
        apb_write(PEND, 0);
        check(irq === 1'b1, "writing 0 clears nothing");
        apb_write(CTRL, 1);
        check(irq === 1'b0, "interrupt disabled");
        apb_expect(PEND, 1, "still pending");
        apb_write(PEND, 1);
        // External gate.
        apb_write(CTRL, 5);
        cycles(4);
        apb_read(VALUE); n = rd;
        cycles(30);
        apb_expect(VALUE, n, "stands while the gate is low");
        apb_write(VALUE, 40);
        extin = 1'b1; cycles(10); extin = 1'b0; cycles(5);
        apb_expect(VALUE, 30, "counts the cycles of the gate");
        // External clock.
        apb_write(CTRL, 9);
        apb_write(VALUE, 3);
        for (n = 0; n < 3; n = n + 1) begin extin = 1'b1; cycles(7); extin = 1'b0; cycles(4); end
        apb_expect(VALUE, 0, "counts rising edges");
        apb_expect(PEND, 0, "0 is not yet past 0");
        extin = 1'b1; cycles(5);
        apb_expect(VALUE, 49, "reloads");
        apb_expect(PEND, 1, "pending");
        // Parts.
        apb_write8(PEND + 1, 8'h01); apb_write16(PEND + 2, 16'h0001);
        apb_expect(PEND, 1, "nothing cleared beside the byte");
        apb_write8(PEND, 8'h01);
        apb_expect(PEND, 0, "cleared by its byte");
        extin = 1'b0;
        apb_write(VALUE, 32'h000110);
        apb_write(CTRL, 1);
        apb_write8(VALUE + 2, 8'h7E);
        apb_read(VALUE);
        check(rd > 32'h7E0100 && rd < 32'h7E0110, "the other bytes go on counting");
        finish;
    end
endmodule
