// Dual timer: independence of the counters, prescaler, one-shot, periodic, interrupts.
module tb;
`include "bench.vh"
`include "apb_master.vh"
    wire irq;
    apb_dual_timer dut (.PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr),
                        .PWDATA(pwdata), .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr), .irq(irq));
    localparam [11:0] CTRL = 0, VALUE = 4, RELOAD = 8, PEND = 12;
    integer n;
    reg [11:0] base, other;
    time first;
    initial begin
        for (n = 0; n < 2; n = n + 1) begin
            reset;
            base = n * 32; other = 32 - n * 32;
            apb_expect(base + CTRL, 0, "reset CTRL");
            apb_expect(base + VALUE, 0, "reset VALUE");
            apb_expect(base + RELOAD, 0, "reset RELOAD");
            apb_expect(base + PEND, 0, "reset PEND");
            apb_write(base + VALUE, 32'hFFFFFFFF);
            apb_expect(base + VALUE, 32'hFFFFFFFF, "32 bits");
            apb_expect(base + 12'h10, 0, "nothing between the counters");
            apb_write(other + VALUE, 32'h1234);
            // Periodic, prescaler 4: period (RELOAD + 1) * 4.
            apb_write(base + RELOAD, 9);
            apb_write(base + VALUE, 3);
            apb_write(base + CTRL, 32'h303);
            apb_expect(base + CTRL, 32'h303, "CTRL reads back");
            @(posedge irq); first = $time; #1;
            apb_write(base + PEND, 1);
            check(irq === 1'b0, "cleared");
            @(posedge irq);
            check32(($time - first) / 10, 40, "period with prescaler");
            #1;
            apb_expect(other + PEND, 0, "the other counter stands");
            apb_expect(other + VALUE, 32'h1234, "and keeps its value");
            // One-shot.
            apb_write(base + CTRL, 0);
            apb_write(base + PEND, 1);
            apb_write(base + VALUE, 20);
            apb_write(base + CTRL, 7);
            cycles(15);
            check(irq === 1'b0, "not yet");
            cycles(10);
            check(irq === 1'b1, "one-shot is over");
            apb_expect(base + CTRL, 6, "EN is cleared");
            apb_expect(base + VALUE, 0, "stays at 0");
            apb_write(base + PEND, 1);
            cycles(50);
            check(irq === 1'b0, "only once");
        end
        apb_expect(12'h040, 0, "nothing after the counters");
        // Parts.
        apb_write(CTRL, 32'h303);
        apb_write(RELOAD, 1);
        apb_write(VALUE, 1);
        @(posedge irq); #1;
        apb_write8(PEND + 1, 8'h01); apb_write16(PEND + 2, 16'h0001);
        check(irq === 1'b1, "nothing cleared beside the byte");
        apb_write8(CTRL + 1, 8'h40);
        apb_expect(CTRL, 32'h4003, "a byte of CTRL");
        apb_write8(PEND, 8'h01);
        check(irq === 1'b0, "cleared by its byte");
        apb_write8(CTRL, 8'h00);
        apb_expect(CTRL, 32'h4000, "stopped, PRESCALE kept");
        finish;
    end
endmodule
