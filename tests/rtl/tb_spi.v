// SPI master against a slave model that works on the pins alone: the four modes, both bit orders, speed, overruns.
module tb;
`include "bench.vh"
`include "apb_master.vh"
    wire sclk, mosi, nss, irq;
    reg  miso = 1'bz;
    apb_spi dut (.PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr),
                 .PWDATA(pwdata), .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr),
                 .sclk(sclk), .mosi(mosi), .miso(miso), .nss(nss), .irq(irq));
    localparam [11:0] DATA = 0, STATUS = 4, CTRL = 8, DIV = 12, SELECT = 16;

    // Slave: most significant bit of the wire first.
    reg        cpol = 1'b0, cpha = 1'b0;
    reg  [7:0] reply, heard;
    integer    sent = 0, taken = 0, edges = 0;
    wire leading  = sclk !== cpol;
    always @(negedge nss) begin
        sent = 0; taken = 0; edges = 0;
        if (!cpha) begin miso = reply[7]; sent = 1; end
    end
    always @(posedge nss) miso = 1'bz;
    always @(sclk) if (!nss) begin
        edges = edges + 1;
        if (leading != cpha) begin           // sampling edge
            heard = {heard[6:0], mosi};
            taken = taken + 1;
        end else begin                       // shifting edge
            if (sent < 8) miso = #2 reply[7 - sent];
            sent = sent + 1;
        end
    end

    function [7:0] mirror(input [7:0] v);
        mirror = {v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7]};
    endfunction

    integer mode, k;
    time first;
    reg [7:0] value;
    initial begin
        reset;
        apb_expect(DATA, 0, "reset DATA");
        apb_expect(STATUS, 0, "reset STATUS");
        apb_expect(CTRL, 0, "reset CTRL");
        apb_expect(DIV, 3, "reset DIV");
        apb_expect(SELECT, 0, "reset SELECT");
        check(nss === 1'b1 && sclk === 1'b0 && irq === 1'b0, "idle pins");
        for (mode = 0; mode < 8; mode = mode + 1) begin
            apb_write(CTRL, 8 + mode);
            apb_expect(CTRL, 8 + mode, "CTRL reads back");
            cpol = mode[0]; cpha = mode[1];
            cycles(2);
            check(sclk === cpol, "clock level between bytes");
            for (k = 0; k < 4; k = k + 1) begin
                value = 8'hB1 ^ (8'h37 * k);
                reply = 8'h4E ^ (8'h53 * k);
                apb_write(DIV, k);
                apb_write(SELECT, 1);
                check(nss === 1'b0, "selected");
                apb_write(DATA, value);
                apb_expect(STATUS, 1, "busy");
                @(posedge irq); #1;
                apb_expect(STATUS, 2, "done");
                check(edges == 16 && taken == 8, "eight clock periods");
                check32(heard, mode[2] ? mirror(value) : value, "byte on MOSI");
                apb_expect(DATA, mode[2] ? mirror(reply) : reply, "byte from MISO");
                check(sclk === cpol, "the clock is back at rest");
                apb_write(STATUS, 2);
                check(irq === 1'b0, "interrupt cleared");
                apb_write(SELECT, 0);
                check(nss === 1'b1, "deselected");
            end
        end
        // Speed and writing while busy.
        apb_write(CTRL, 8);
        cpol = 1'b0; cpha = 1'b0; reply = 8'hFF;
        apb_write(DIV, 9);
        apb_write(SELECT, 1);
        apb_write(DATA, 8'h00);
        @(posedge sclk) first = $time;
        apb_write(DATA, 8'hFF);
        @(posedge sclk) check32(($time - first) / 10, 20, "a period is 2 * (DIV + 1)");
        @(posedge irq); #1;
        check32(heard, 8'h00, "the running byte is not disturbed");
        apb_expect(STATUS, 6, "LOST");
        apb_write(STATUS, 4);
        apb_expect(STATUS, 2, "LOST cleared");
        // Only the lowest byte is sent, and only its flags are cleared.
        apb_write(STATUS, 6);
        apb_write8(DATA + 1, 8'h55); apb_write16(DATA + 2, 16'h5555);
        apb_expect(STATUS, 0, "nothing is sent");
        apb_write8(DATA, 8'h3C);
        @(posedge irq); #1;
        check32(heard, 8'h3C, "a byte written as a byte");
        apb_write8(STATUS + 1, 8'hFF); apb_write16(STATUS + 2, 16'hFFFF);
        apb_expect(STATUS, 2, "nothing cleared beside the byte");
        apb_write16(STATUS, 2);
        apb_expect(STATUS, 0, "cleared by its halfword");
        finish;
    end
endmodule
