// GPIO: registers, pins, set, clear, toggle and mask, edge and level interrupts, filters.  With BASIC the last of these, both edges,
// toggles and masks are not there.
`ifdef BASIC
`define FILTER 0
`define LACKS 32'hC0000000
`define DUT ahb_gpio #(.FILTER(0), .FULL(0)) dut
`else
`define LACKS 32'h0
`ifdef FILTER
`define DUT ahb_gpio #(.FILTER(`FILTER)) dut
`else
`define FILTER 1
`define DUT ahb_gpio dut
`endif
`endif
module tb;
`include "bench.vh"
`include "ahb_master.vh"
    reg  [15:0] pins = 16'h0000;
    wire [15:0] out, outen;
    wire        irq;
    reg         others_ready = 1'b1;    // another slave's wait states
    wire        own_ready;
    assign hready = own_ready & others_ready;
    `DUT (.HCLK(clk), .HRESETn(rstn), .HSEL(haddr[31:24] == 8'h40), .HADDR(haddr[23:0]), .HTRANS(htrans), .HSIZE(hsize),
                  .HWRITE(hwrite), .HWDATA(hwdata), .HREADY(hready), .HRDATA(hrdata), .HREADYOUT(own_ready), .HRESP(hresp),
                  .gpio_in(pins), .gpio_out(out), .gpio_outen(outen), .irq(irq));
    localparam [31:0] DATA = 32'h40000000, OUT = DATA + 4, OUTEN = DATA + 8, OUTSET = DATA + 12, OUTCLR = DATA + 16,
                      INTEN = DATA + 20, INTEDGE = DATA + 24, INTPOL = DATA + 28, PEND = DATA + 32,
                      OUTTGL = DATA + 36, INTBOTH = DATA + 40, FILTER = DATA + 44, FILTERLEN = DATA + 48, OUTMASK = DATA + 52,
                      PIN = DATA + 56, ID = DATA + 32'hFFC;
    integer n, length, width, passed, took, shift;
    time    began;

    task toggles_and_masks;
        begin
            ahb_write(OUT, 32'h44B5);
            ahb_write(OUTTGL, 32'hFFFF8001);
            check(out === 16'hC4B4, "OUTTGL");
            ahb_transfer(OUTTGL, 1'b1, 3'd0, 32'h0F0F0F0F);
            check(out === 16'hC4BB, "OUTTGL of the lower pins");
            ahb_transfer(OUTTGL + 1, 1'b1, 3'd0, 32'hF0F0F0F0);
            check(out === 16'h34BB, "OUTTGL of the upper pins");
            ahb_transfer(OUTTGL + 2, 1'b1, 3'd1, 32'hFFFFFFFF);
            check(out === 16'h34BB, "no pins in the upper halfword");
            ahb_expect(OUTTGL, 0, "OUTTGL reads as 0");
            ahb_write(OUTMASK, 32'h0FF0_A5A5);
            check(out === 16'h35AB, "OUTMASK changes what its mask names");
            ahb_write(OUTMASK, 32'h0000_FFFF);
            check(out === 16'h35AB, "an empty mask");
            ahb_transfer(OUTMASK, 1'b1, 3'd1, 32'hFFFFFFFF);
            ahb_transfer(OUTMASK + 2, 1'b1, 3'd1, 32'hFFFFFFFF);
            for (n = 0; n < 4; n = n + 1) ahb_transfer(OUTMASK + n, 1'b1, 3'd0, 32'hFFFFFFFF);
            check(out === 16'h35AB, "OUTMASK in parts does nothing");
            ahb_expect(OUTMASK, 0, "OUTMASK reads as 0");
            for (n = 0; n < 16; n = n + 1) begin
                ahb_write(OUTMASK, 32'h10000 << n);
                check(out[n] === 1'b0, "a pin cleared");
                ahb_write(OUTMASK, 32'h10001 << n);
                check(out[n] === 1'b1, "a pin set");
            end
            check(out === 16'hFFFF, "each on its own");
            // While another slave has wait states a write stands on the bus, and is done once, behind them.
            haddr = 32'h41000000; htrans = 2'b10; hwrite = 1'b0; hsize = 3'd2;
            cycles(1);
            others_ready = 1'b0; haddr = OUTTGL; hwrite = 1'b1; hwdata = 32'hFFFF;
            cycles(3);
            check(out === 16'hFFFF, "not before the bus is ready");
            others_ready = 1'b1;
            cycles(1);
            htrans = 2'b00; hwrite = 1'b0; hwdata = 32'h0001;
            cycles(2);
            check(out === 16'hFFFE, "done once");
        end
    endtask

    // What a pin is counts, not what it was given.
    task pins_while_they_drive;
        begin
            ahb_write(OUT, 32'h00FF);
            ahb_write(OUTEN, 32'hFFFF);
            pins = 16'h0F0F;            // half of them are held from outside
            cycles(3);
            ahb_expect(DATA, 32'h0F0F, "DATA is what the pins are");
            ahb_expect(PIN, 32'h0F0F, "PIN too");
            ahb_expect(OUT, 32'h00FF, "OUT is what they were given");
            ahb_write(OUTEN, 0);
            // At once: two cycles of the synchronizer.
            pins = 16'h0000;
            cycles(4);
            pins = 16'hA55A;
            cycles(1);
            haddr = DATA; htrans = 2'b10; hwrite = 1'b0; hsize = 3'd2;
            cycles(1);
            htrans = 2'b00;
            #1 check32(hrdata, 32'hA55A, "a level takes two cycles");
            cycles(1);
        end
    endtask

    task both_edges;
        begin
            pins = 16'h0000;
            cycles(4);
            ahb_write(INTEN, 32'hFFFF);
            ahb_write(INTEDGE, 32'hFFFF);
            ahb_write(INTPOL, 32'h00FF);
            ahb_write(INTBOTH, 32'h3C3C);
            ahb_expect(INTBOTH, 32'h3C3C, "INTBOTH reads back");
            ahb_write(PEND, 32'hFFFF);
            pins = 16'hFFFF;
            cycles(4);
            ahb_expect(PEND, 32'h3CFF, "rising edges");
            check(irq === 1'b1, "interrupt of an edge");
            ahb_write(PEND, 32'hFFFF);
            check(irq === 1'b0, "edges cleared");
            pins = 16'h0000;
            cycles(4);
            ahb_expect(PEND, 32'hFF3C, "falling edges");
            ahb_write(PEND, 32'hFFFF);
            for (n = 0; n < 16; n = n + 1) begin
                pins[n] = 1'b1; cycles(4);
                ahb_expect(PEND, (32'd1 << n) & 32'h3CFF, "a rising edge alone");
                ahb_write(PEND, 32'hFFFF);
                pins[n] = 1'b0; cycles(4);
                ahb_expect(PEND, (32'd1 << n) & 32'hFF3C, "a falling edge alone");
                ahb_write(PEND, 32'hFFFF);
            end
            // Levels know nothing of edges, and leave none behind.
            ahb_write(INTEDGE, 0);
            pins = 16'hFFFF; cycles(4);
            pins = 16'h0000; cycles(4);
            ahb_write(INTEDGE, 32'hFFFF);
            ahb_expect(PEND, 0, "no edges from before");
            ahb_write(INTEDGE, 0);
            ahb_expect(PEND, 32'hFF00, "low pins by level");
            ahb_transfer(INTBOTH + 1, 1'b1, 3'd0, 32'h55555555);
            ahb_expect(INTBOTH, 32'h553C, "a byte of INTBOTH");
            ahb_write(INTBOTH, 0);
            ahb_write(INTEN, 0);
            ahb_write(INTPOL, 0);
        end
    endtask

    // A pulse at pin 3, which is filtered, and at pin 12, which is not; the edges that are seen of both.
    task pulse(input integer cycles_wide, input integer at);
        begin
            ahb_write(PEND, 32'hFFFF);
            cycles(at);
            pins = 16'h1008;
            cycles(cycles_wide);
            pins = 16'h0000;
            cycles(4 * (length + 1) + 8);
            ahb_transfer(PEND, 1'b0, 3'd2, 32'd0);
            check(rd[12] === 1'b1, "nothing is lost without a filter");
            check((rd & ~32'h1008) == 0, "other pins stay");
            passed = rd[3];
        end
    endtask
    task filters;
        begin
            ahb_write(INTPOL, 32'hFFFF);
            ahb_write(INTEDGE, 32'hFFFF);
            ahb_write(FILTER, 32'h0008);
            ahb_expect(FILTER, `FILTER ? 32'h0008 : 32'h0, "FILTER reads back");
            for (length = 0; length < `ROUNDS(6, 3); length = length + 1) begin
                ahb_write(FILTERLEN, length);
                cycles(20);
                for (shift = 0; shift <= length; shift = shift + 1) begin
                    for (width = 1; width <= 3 * (length + 1) + 2; width = width + 1) begin
                        pulse(width, shift);
                        if (`FILTER == 0) check(passed == 1, "no filter");
                        else if (width <= 2 * (length + 1)) check(passed == 0, "too short a pulse");
                        else if (width >= 3 * (length + 1)) check(passed == 1, "a pulse that is long enough");
                    end
                end
            end
            // DATA is filtered, PIN is not; the time that it takes.
            length = 9;
            ahb_write(FILTERLEN, length);
            cycles(20);
            pins = 16'hFFFF;
            began = $time;
            cycles(4);
            ahb_expect(DATA, `FILTER ? 32'hFFF7 : 32'hFFFF, "DATA waits for the filter");
            ahb_expect(PIN, 32'hFFFF, "PIN does not");
            took = 0;
            while (rd[3] !== 1'b1 || took == 0) begin
                ahb_transfer(DATA, 1'b0, 3'd2, 32'd0);
                took = ($time - began) / 10;
            end
            check(`FILTER == 0 || (took > 2 * 10 && took <= 3 * 10 + 8), "two to three intervals");
            ahb_expect(DATA, 32'hFFFF, "the filter has taken it over");
            // Switched off it is as if it were not there.
            ahb_write(FILTER, 0);
            ahb_write(PEND, 32'hFFFF);
            pins = 16'h0000;
            cycles(4);
            ahb_expect(DATA, 0, "at once again");
            ahb_write(PEND, 32'hFFFF);
            pins = 16'h0008;
            cycles(1);
            pins = 16'h0000;
            cycles(4);
            ahb_expect(PEND, 32'h0008, "a pulse of one cycle");
            // A long interval does not hold up a shorter one.
            ahb_write(FILTERLEN, 32'hFFFFFFFF);
            ahb_expect(FILTERLEN, `FILTER ? 32'h000FFFFF : 32'h0, "the longest interval");
            ahb_transfer(FILTERLEN + 2, 1'b1, 3'd0, 32'h0A0A0A0A);
            ahb_expect(FILTERLEN, `FILTER ? 32'h000AFFFF : 32'h0, "a byte of the interval");
            ahb_transfer(FILTERLEN, 1'b1, 3'd1, 32'h12341234);
            ahb_expect(FILTERLEN, `FILTER ? 32'h000A1234 : 32'h0, "a halfword of the interval");
            ahb_transfer(FILTERLEN + 3, 1'b1, 3'd0, 32'hFFFFFFFF);
            ahb_expect(FILTERLEN, `FILTER ? 32'h000A1234 : 32'h0, "nothing above it");
            cycles(50);
            ahb_write(FILTERLEN, 0);
            ahb_write(FILTER, 32'hFFFF);
            pins = 16'h5A5A;
            cycles(8);
            ahb_expect(DATA, 32'h5A5A, "a filter of a few cycles");
            ahb_transfer(FILTER + 1, 1'b1, 3'd0, 32'h00000000);
            ahb_expect(FILTER, `FILTER ? 32'h00FF : 32'h0, "a byte of FILTER");
            ahb_write(FILTER, 0);
            ahb_write(INTEDGE, 0);
            ahb_write(INTPOL, 0);
            pins = 16'h0000;
        end
    endtask

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
        ahb_expect(ID, `LACKS | (`FILTER << 24) | 32'h00100201, "ID");
        ahb_write(ID, 32'hFFFFFFFF);
        ahb_expect(ID, `LACKS | (`FILTER << 24) | 32'h00100201, "ID stays");
        ahb_expect(ID - 32'h3C0, 0, "ID does not repeat");
        ahb_parts(OUT, 32'h0000FFFF, 0); ahb_parts(OUTEN, 32'h0000FFFF, 0); ahb_parts(INTEN, 32'h0000FFFF, 0);
        ahb_parts(INTEDGE, 32'h0000FFFF, 0); ahb_parts(INTPOL, 32'h0000FFFF, 0); ahb_parts(INTBOTH, `LACKS == 0 ? 32'h0000FFFF : 32'h0, 0);
        ahb_parts(FILTER, `FILTER ? 32'h0000FFFF : 32'h0, 0); ahb_parts(FILTERLEN, `FILTER ? 32'h000FFFFF : 32'h0, 0);
        ahb_parts(ID, 0, `LACKS | (`FILTER << 24) | 32'h00100201);
        reset;
        pins_while_they_drive;
        if (`LACKS == 0) begin
            toggles_and_masks;
            both_edges;
        end else begin
            ahb_write(OUT, 32'h44B5); ahb_write(OUTTGL, 32'hFFFF); ahb_write(OUTMASK, 32'hFFFF0000);
            check(out === 16'h44B5, "neither toggles nor masks");
            pins = 16'h0000;
            ahb_write(INTEN, 0); ahb_write(INTEDGE, 0); ahb_write(INTPOL, 0);
            cycles(4);
        end
        filters;
        finish;
    end
endmodule
