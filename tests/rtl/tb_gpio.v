// GPIO: registers, pins, set and clear, edge and level interrupts.
module tb;
`include "bench.vh"
`include "ahb_master.vh"
    reg  [15:0] pins = 16'h0000;
    wire [15:0] out, outen;
    wire        irq;
    ahb_gpio dut (.HCLK(clk), .HRESETn(rstn), .HSEL(haddr[31:24] == 8'h40), .HADDR(haddr[23:0]), .HTRANS(htrans), .HSIZE(hsize),
                  .HWRITE(hwrite), .HWDATA(hwdata), .HREADY(hready), .HRDATA(hrdata), .HREADYOUT(hready), .HRESP(hresp),
                  .gpio_in(pins), .gpio_out(out), .gpio_outen(outen), .irq(irq));
    localparam [31:0] DATA = 32'h40000000, OUT = DATA + 4, OUTEN = DATA + 8, OUTSET = DATA + 12, OUTCLR = DATA + 16,
                      INTEN = DATA + 20, INTEDGE = DATA + 24, INTPOL = DATA + 28, PEND = DATA + 32;
    integer n;
    initial begin
        reset;
        check(out === 16'd0 && outen === 16'd0 && irq === 1'b0, "reset values of the pins");
        ahb_expect(OUT, 0, "reset OUT");
        ahb_expect(OUTEN, 0, "reset OUTEN");
        ahb_expect(INTEN, 0, "reset INTEN");
        ahb_expect(INTEDGE, 0, "reset INTEDGE");
        ahb_expect(INTPOL, 0, "reset INTPOL");
        ahb_write(OUT, 32'hFFFF1234);
        check(out === 16'h1234, "OUT drives the pins");
        ahb_expect(OUT, 32'h00001234, "OUT reads back, 16 bits");
        ahb_write(OUTEN, 32'h0000F00F);
        check(outen === 16'hF00F, "OUTEN drives the enables");
        ahb_expect(OUTEN, 32'h0000F00F, "OUTEN reads back");
        ahb_write(OUTSET, 32'h00008001);
        check(out === 16'h9235, "OUTSET");
        ahb_write(OUTCLR, 32'h00001030);
        check(out === 16'h8205, "OUTCLR");
        ahb_expect(OUTSET, 0, "OUTSET reads as 0");
        pins = 16'hBEEF;
        cycles(3);
        ahb_expect(DATA, 32'h0000BEEF, "DATA shows the pins");
        // A write to another slave changes nothing; back-to-back accesses do.
        ahb_write(32'h41000004, 32'hFFFF);
        check(out === 16'h8205, "not selected");
        haddr = OUT; htrans = 2'b10; hwrite = 1'b1;
        cycles(1);
        haddr = OUTEN; hwdata = 32'h00AA;
        cycles(1);
        haddr = OUT; hwrite = 1'b0; hwdata = 32'h0055;
        cycles(1);
        htrans = 2'b00;
        #1 check32(hrdata, 32'h00AA, "read right after two writes");
        check(outen === 16'h0055, "second pipelined write");
        // Level interrupts.
        pins = 16'h0000;
        cycles(3);
        ahb_write(INTPOL, 32'h0001);
        ahb_expect(PEND, 32'hFFFE, "low pins are pending, pin 0 waits for high");
        check(irq === 1'b0, "not enabled");
        ahb_write(INTEN, 32'h0001);
        check(irq === 1'b0, "pin 0 is low");
        pins = 16'h0001;
        cycles(3);
        check(irq === 1'b1, "pin 0 is high");
        ahb_write(PEND, 32'h0001);
        check(irq === 1'b1, "a level cannot be cleared");
        pins = 16'h0000;
        cycles(3);
        check(irq === 1'b0, "the level has gone");
        // Edge interrupts.
        ahb_write(INTEDGE, 32'hFFFF);
        ahb_write(INTPOL, 32'h00FF);
        ahb_write(INTEN, 32'hFFFF);
        ahb_write(PEND, 32'hFFFF);
        check(irq === 1'b0, "no edge yet");
        pins = 16'h0101;
        cycles(4);
        check(irq === 1'b1, "rising edge of pin 0");
        ahb_expect(PEND, 32'h0001, "pin 8 waits for a falling edge");
        pins = 16'h0000;
        cycles(4);
        ahb_expect(PEND, 32'h0101, "falling edge of pin 8, pin 0 kept");
        ahb_write(PEND, 32'h0001);
        ahb_expect(PEND, 32'h0100, "cleared one");
        check(irq === 1'b1, "the other remains");
        ahb_write(PEND, 32'h0100);
        check(irq === 1'b0, "cleared both");
        for (n = 0; n < 16; n = n + 1) begin
            pins[n] = 1'b1; cycles(4);
            pins[n] = 1'b0; cycles(4);
            ahb_expect(PEND, 32'd1 << n, "one edge of each pulse");
            ahb_write(PEND, 32'd1 << n);
        end
        // Parts: each pin's bit is reached by its byte alone.
        ahb_write(OUT, 32'h1234);
        ahb_transfer(OUT + 1, 1'b1, 3'd0, 32'h56565656);
        check(out === 16'h5634, "a byte of OUT");
        ahb_transfer(OUTSET, 1'b1, 3'd0, 32'h81818181);
        check(out === 16'h56B5, "OUTSET of the lower pins");
        ahb_transfer(OUTCLR + 1, 1'b1, 3'd0, 32'h12121212);
        check(out === 16'h44B5, "OUTCLR of the upper pins");
        ahb_transfer(OUTCLR + 2, 1'b1, 3'd1, 32'hFFFFFFFF);
        check(out === 16'h44B5, "no pins in the upper halfword");
        pins = 16'hFFFF; cycles(4);
        pins = 16'h0000; cycles(4);
        ahb_expect(PEND, 32'hFFFF, "an edge of every pin");
        ahb_transfer(PEND + 1, 1'b1, 3'd0, 32'h0F0F0F0F);
        ahb_expect(PEND, 32'hF0FF, "cleared in one byte");
        ahb_transfer(PEND + 2, 1'b1, 3'd1, 32'hFFFFFFFF);
        ahb_expect(PEND, 32'hF0FF, "nothing beside it");
        ahb_transfer(PEND, 1'b1, 3'd1, 32'hFFFFFFFF);
        ahb_expect(PEND, 0, "cleared as a halfword");
        // What looks like a register further up is none.
        ahb_write(OUT + 64, 32'hFFFF);
        ahb_write(OUT + 32'h800000, 32'hFFFF);
        check(out === 16'h44B5, "registers do not repeat");
        ahb_expect(OUT + 64, 0, "reads as 0");
        finish;
    end
endmodule
