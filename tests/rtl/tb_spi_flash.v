// SPI-Flash: the window in every mode, commands, registers, errors and resets against a flash that works on the pins alone.
// FULL: without commands, with what FULL has and nothing else.
`ifdef FULL
`define PARAMETERS (.COMMANDS(0), .FULL(`FULL))
`define BARE
`else
`define FULL 15
`define WHOLE
`endif

`include "flash_model.v"

module tb;
`include "bench.vh"
`include "ahb_master.vh"
    wire fclk, csn;
    wire [3:0] out, outen;
    tri1 [3:0] io;
    assign io = {outen[3] ? out[3] : 1'bz, outen[2] ? out[2] : 1'bz, outen[1] ? out[1] : 1'bz, outen[0] ? out[0] : 1'bz};
    wire hsel = haddr[31:25] == 7'b0110100;
`ifdef PARAMETERS
    ahb_spi_flash #`PARAMETERS
`else
    ahb_spi_flash
`endif
                  dut (.HCLK(clk), .HRESETn(rstn), .HSEL(hsel), .HADDR(haddr[24:0]), .HTRANS(htrans), .HSIZE(hsize),
                       .HWRITE(hwrite), .HWDATA(hwdata), .HREADY(hready), .HRDATA(hrdata), .HREADYOUT(hready),
                       .HRESP(hresp), .flash_clk(fclk), .flash_csn(csn), .flash_out(out), .flash_outen(outen), .flash_in(io));
    flash_model chip (.csn(csn), .sclk(fclk), .io(io));

    function [31:0] word(input [31:0] a);
        word = {chip.content(a + 3), chip.content(a + 2), chip.content(a + 1), chip.content(a)};
    endfunction

    localparam [31:0] BASE = 32'h68000000, DATA = 32'h69000000, SELECT = DATA + 4, DIV = DATA + 8, PROTECT = DATA + 12,
                      CTRL = DATA + 16, READ = DATA + 20, UPPER = DATA + 24, ADDRESS = DATA + 32, LENGTH = DATA + 36,
                      POLL = DATA + 40, STATUS = DATA + 44, COMMAND = DATA + 48, FIFO = DATA + 52, RECOVER = DATA + 56,
                      ID = DATA + 32'hFFC;
    // Formats: lanes of opcode, address and data 0 to 2 or 3 for none, from bit 8 on.
    localparam [31:0] SINGLE = 32'h00000003, FAST = 32'h0008000B, DUAL_OUT = 32'h0008103B, QUAD_OUT = 32'h0008206B,
                      DUAL_IO = 32'hFF0094BB, QUAD_IO = 32'hFF04A8EB, LONG = 32'h00004000;
    localparam [31:0] PREFETCH = 1, CONTINUOUS = 2, QUAD = 4;
    localparam [31:0] ALONE = 32'h00003C00, SENDS = 32'h00400C00, ANSWERS = 32'h00000C00, PLACED = 32'h00003000;

    localparam [3:0] HAS = `FULL;   // other forms, four bytes of address, continuous and leading back, prefetch
    integer n, m, took, clocks, first, opcodes, stall;
    reg [31:0] a, got;

    task expect_word(input [31:0] at, input [31:0] real_at, input [8*48-1:0] what);
        begin
            ahb_expect(BASE + at, word(real_at), what);
        end
    endtask
    task settings(input [31:0] format, input [31:0] control);
        begin
            ahb_write(CTRL, control);
            ahb_write(READ, format);
        end
    endtask
    task finished;
        begin
            n = 0;
            ahb_transfer(STATUS, 1'b0, 3'd2, 0);
            while (rd[0] && n < 30000) begin
                ahb_transfer(STATUS, 1'b0, 3'd2, 0);
                n = n + 1;
            end
            check(!rd[0], "a command ends");
        end
    endtask
    task run(input [31:0] format);
        begin
            ahb_write(COMMAND, format);
            finished;
        end
    endtask
    // Sequential words, a jump forward and one back.
    task stream(input [31:0] format, input [31:0] control, input [31:0] from, input integer most, input [8*12-1:0] name);
        begin
            settings(format, control);
            expect_word(from, from, "first word");
            expect_word(from + 4, from + 4, "second word");
            clocks = chip.clocks; took = $time;
            for (m = 2; m < 18; m = m + 1)
                expect_word(from + 4 * m, from + 4 * m, "following word");
            clocks = chip.clocks - clocks; took = ($time - took) / 10;
            if (control[0])
                $display("%0s: %0d flash clocks and %0d cycles a word", name, clocks / 16, took / 16);
            check(!control[0] || clocks <= 16 * most + 8, "clocks of a running read");
            check(control[0] || csn === 1'b1, "deselected after a read");
            expect_word(from + 32'h2000, from + 32'h2000, "jump forward");
            expect_word(from, from, "jump back");
            expect_word(from + 4, from + 4, "and on");
            check(chip.wrong == 0, "nothing wrong on the pins");
        end
    endtask
    // The first word after a reset, which happens `when` clocks of the flash after the last read began.
    task reset_within(input [31:0] format, input [31:0] control, input integer when, input longer);
        begin
            settings(format, control);
            if (longer) begin run(8'hB7 | ALONE); end
            ahb_transfer(BASE + 32'h300, 1'b0, 3'd2, 0);
            haddr = BASE + 32'h800; htrans = 2'b10; hwrite = 0;
            cycles(1);
            htrans = 0;
            repeat (when) @(posedge fclk);
            #3;
            rstn = 0;
            cycles(3);
            rstn = 1;
            cycles(2);
            check(csn === 1'b1 && fclk === 1'b0, "pins rest after a reset");
            n = chip.resets;
            expect_word(32'h1234, 32'h1234, "first word after a reset");
            check(chip.resets == n + 1 && !chip.going && !chip.long, "the flash is in its first state");
            check(chip.wrong == 0, "nothing wrong on the pins after a reset");
            ahb_expect(RECOVER, 32'h00002002, "done once");
            opcodes = chip.opcodes;
            expect_word(32'h1238, 32'h1238, "second word after a reset");
            check(chip.opcodes == opcodes + 1, "and no more than a read");
        end
    endtask

`ifndef WHOLE
    // Alone on the bus: an opcode by hand.
    task by_hand(input [7:0] opcode);
        begin
            ahb_write(SELECT, 1);
            ahb_write(DATA, opcode);
            ahb_write(SELECT, 0);
        end
    endtask
    task what_is_there;
        begin
            ahb_expect(ID, {~HAS[3], ~HAS[2], ~HAS[1], ~HAS[0], 6'd0, HAS[3] ? 6'd3 : 6'd0, 16'h020A}, "ID tells what is not there");
            for (m = 0; m < 6; m = m + 1) begin
                ahb_write(ADDRESS + 4 * m, 32'hFFFFFFFF);
                ahb_expect(ADDRESS + 4 * m, 0, "no registers of commands");
            end
            check(csn === 1'b1, "nothing begins");
            chip.high = 8'h02;
            for (stall = 0; stall < 4; stall = stall + 1) begin
                ahb_write(DIV, stall == 0 ? 3 : stall == 1 ? 1 : 0);
                a = (HAS[0] && stall == 3 ? 32'h10 : 0) | HAS[3];
                stream(SINGLE, a, 32'h100, 32, "1-1-1");
                if (HAS[0]) begin
                    stream(FAST, a, 32'h200, 32, "1-1-1 fast");
                    stream(DUAL_OUT, a, 32'h300, 16, "1-1-2");
                    stream(DUAL_IO, a, 32'h400, 16, "1-2-2");
                    stream(QUAD_OUT, a | QUAD, 32'h500, 8, "1-1-4");
                    stream(QUAD_IO, a | QUAD, 32'h600, 8, "1-4-4");
                end
            end
            settings(QUAD_IO & 32'h00FFFFFF | 32'hA0000000, CONTINUOUS | QUAD | (HAS[0] ? 32'h0 : 32'h0730));
            opcodes = chip.opcodes; n = chip.reads; clocks = chip.clocks;
            if (HAS[0] && HAS[2]) begin
                for (m = 0; m < 4; m = m + 1) expect_word(32'h900 * m, 32'h900 * m, "continuous read");
                check(chip.opcodes == opcodes + 1 && chip.reads == n + 4 && chip.going, "one opcode for all reads");
                ahb_write(CTRL, 0);
                check(!chip.going, "ended before something else");
            end else if (!HAS[0]) begin
                for (m = 0; m < 4; m = m + 1) expect_word(32'h900 * m, 32'h900 * m, "no other form");
                check(chip.opcodes == opcodes + 4 && chip.reads == n + 4 && chip.clocks == clocks + 256, "64 clocks each");
            end
            // Four bytes of address.
            settings(SINGLE, 0);
            if (HAS[1]) begin
                by_hand(8'hB7);
                ahb_write(UPPER, 8'h5A);
                settings(SINGLE | LONG, 0);
                expect_word(32'h123454, 32'h5A123454, "word far up");
                if (HAS[0]) begin
                    settings(QUAD_IO | LONG, QUAD);
                    expect_word(32'h123458, 32'h5A123458, "word far up over four lanes");
                end
                by_hand(8'hE9);
                settings(SINGLE, 0);
            end else begin
                ahb_write(UPPER, 8'h5A);
                ahb_write(READ, SINGLE | LONG);
            end
            expect_word(32'h123454, 32'h123454, "three bytes of address");
            check(chip.wrong == 0, "nothing wrong on the pins");
            // A word behind a reset in the middle of one.
            for (stall = 1; stall < 64; stall = stall + 9) begin
                haddr = BASE + 32'h800; htrans = 2'b10; hwrite = 0;
                cycles(1);
                htrans = 0;
                repeat (stall) @(posedge fclk);
                #3;
                rstn = 0;
                cycles(3);
                rstn = 1;
                cycles(2);
                check(csn === 1'b1 && fclk === 1'b0, "pins rest after a reset");
                n = chip.resets;
                expect_word(32'h1234, 32'h1234, "first word after a reset");
                check(chip.resets == n + HAS[2], "the flash is led back");
                expect_word(32'h1238, 32'h1238, "second word after a reset");
                check(chip.resets == n + HAS[2], "once");
            end
            // Prefetch.
            ahb_write(CTRL, PREFETCH | 32'h00020000);
            opcodes = chip.opcodes;
            for (m = 0; m < 12; m = m + 1) expect_word(32'h40 + 4 * m, 32'h40 + 4 * m, "words in their order");
            check(chip.opcodes == opcodes + (HAS[3] ? 1 : 12), "opcodes of twelve words");
            check(csn === ~HAS[3], "selected while words may follow");
            cycles(1500);
            check(csn === 1'b1, "deselected when nobody reads on");
            // Write protection and bytes by hand go on.
            ahb_write(CTRL, 0);
            by_hand(8'h06);
            check(chip.writable, "a command by hand");
            ahb_write(RECOVER, 3);
            n = chip.resets;
            expect_word(32'h20, 32'h20, "a word at the end");
            check(chip.resets == n + HAS[2], "led back where that is there");
        end
    endtask
`endif
    localparam SLOWEST = `ROUNDS(255, 7);
    initial begin
        reset;
        check(csn === 1'b1 && fclk === 1'b0 && io[2] === 1'b0 && io[3] === 1'b1, "idle pins");
        check(outen === 4'b1101, "lane 1 is the flash's");
        ahb_expect(SELECT, 0, "reset SELECT");
        ahb_expect(DIV, 1, "reset DIV");
        ahb_expect(PROTECT, 1, "reset PROTECT");
        ahb_expect(DATA, 0, "reset DATA");
        ahb_expect(CTRL, 0, "reset CTRL");
        ahb_expect(READ, HAS[0] ? 3 : 0, "reset READ");
        ahb_expect(RECOVER, HAS[2] ? 32'h2003 : 0, "reset RECOVER");
`ifndef BARE
        ahb_expect(ID, 32'h0103020A, "reset ID");
`endif
        // The first read resets the flash.
        expect_word(0, 0, "first word");
        check(chip.resets == HAS[2], "the flash is reset");
        check(HAS[2] ? waits > 2630 && waits <= 2646 : waits < 280 && chip.clocks == 64, "bound of the first read");
        chip.reads = 0; chip.opcodes = 0;
        for (n = 0; n < 12; n = n + 1) begin
            a = (32'h13579C * n) & 32'hFFFFFC;
            if (n == 11) a = 32'hFFFFFC;
            if (n == 4) ahb_write(DIV, 0);
            if (n == 8) ahb_write(DIV, 3);
            clocks = chip.clocks;
            expect_word(a, a, "word of the window");
            check(csn === 1'b1, "deselected after a read");
            check(chip.clocks - clocks == 64, "command, address and four bytes");
            if (n == 2) $display("single reads: %0d cycles a word", waits + 1);
            if (n == 6) $display("single reads, fastest clock: %0d cycles a word", waits + 1);
        end
        check(chip.reads == 12 && chip.opcodes == 12, "one read command per word");
        expect_word(32'h100, 32'h100, "word");
        expect_word(32'h100, 32'h100, "word again");
        check(chip.reads == 14, "each read asks the flash");
        ahb_transfer(BASE + 32'h102, 1'b0, 3'd0, 32'd0);
        check32(rd, word(32'h100), "a byte access reads its word");
        // Errors.
        ahb_write(BASE, 32'd0);
        check(failed, "the window cannot be written");
        check(chip.reads == 15 && csn === 1'b1, "and nothing is sent");
        // Bytes by hand.
        ahb_write(SELECT, 1);
        check(csn === 1'b0, "selected by hand");
        ahb_transfer(BASE, 1'b0, 3'd2, 32'd0);
        check(failed, "no window while selected");
        opcodes = chip.opcodes;
        ahb_write(DATA, 8'h9F);
        check(waits > 8, "waits for the byte");
        for (n = 1; n <= 3; n = n + 1) begin
            ahb_write(DATA, 8'h00);
            ahb_expect(DATA, 8'hD0 + n, "byte of the identification");
        end
        check(chip.opcodes == opcodes + 1, "one other command");
        ahb_write(SELECT, 0);
        check(csn === 1'b1, "deselected");
        ahb_write(PROTECT, 0);
        check(io[2] === 1'b1, "write protection off");
        ahb_write(PROTECT, 1);
        check(io[2] === 1'b0, "write protection on");
        // A window read right behind a SELECT write must already be refused, and work right behind the release.
        haddr = SELECT; htrans = 2'b10; hwrite = 1'b1; hsize = 3'd2;
        cycles(1);
        haddr = BASE; hwrite = 1'b0; hwdata = 32'd1;
        cycles(1);
        htrans = 2'b00;
        while (!hresp) cycles(1);
        check(hready === 1'b0 && hresp === 1'b1, "refused, first cycle");
        cycles(1);
        check(hready === 1'b1 && hresp === 1'b1, "refused, second cycle");
        haddr = SELECT; htrans = 2'b10; hwrite = 1'b1;
        cycles(1);
        haddr = BASE + 32'h40; hwrite = 1'b0; hwdata = 32'd0;
        cycles(1);
        htrans = 2'b00;
        #1;
        while (!hready) cycles(1);
        check(hresp === 1'b0, "accepted");
        check32(hrdata, word(32'h40), "word right behind the release");
        cycles(1);
        expect_word(32'h44, 32'h44, "and the next one");
        // Parts: the lowest byte is the register.
        ahb_write(SELECT, 1);
        clocks = chip.clocks;
        ahb_transfer(DATA + 1, 1'b1, 3'd0, 32'h9F9F9F9F);
        check(waits == 0, "nothing is sent by another byte");
        ahb_transfer(DATA + 2, 1'b1, 3'd1, 32'h9F9F9F9F);
        check(waits == 0 && chip.clocks == clocks, "nor by the other halfword");
        ahb_transfer(DATA, 1'b1, 3'd0, 32'h9F9F9F9F);
        check(waits > 8 && chip.clocks == clocks + 8, "a byte written as a byte");
        ahb_transfer(SELECT + 3, 1'b1, 3'd0, 32'd0);
        check(csn === 1'b0, "still selected");
        ahb_transfer(SELECT, 1'b1, 3'd1, 32'd0);
        check(csn === 1'b1, "deselected by a halfword");
        if (HAS[0]) begin
            ahb_transfer(READ + 3, 1'b1, 3'd0, 32'hA5A5A5A5);
            ahb_expect(READ, 32'hA5000003, "the mode byte alone");
            ahb_transfer(READ + 2, 1'b1, 3'd1, 32'h00000000);
            ahb_expect(READ, 32'h00000003, "a halfword alone");
        end
        // What looks like a register further up is none.
        clocks = chip.clocks;
        ahb_write(SELECT + 64, 1);
        ahb_write(SELECT + 32'h800000, 1);
        check(csn === 1'b1, "registers do not repeat");
        ahb_write(DATA + 32'h1000, 8'h9F);
        check(waits == 0 && chip.clocks == clocks, "nothing is sent there");
        ahb_expect(DIV + 64, 0, "reads as 0");

`ifndef WHOLE
        what_is_there;
`else
        // ---- modes of the window
        ahb_transfer(BASE, 1'b0, 3'd2, 0);
        settings(QUAD_IO, PREFETCH);
        clocks = chip.clocks;
        ahb_transfer(BASE, 1'b0, 3'd2, 0);
        check(failed && waits == 2, "four lanes that are not switched on");
        settings(SINGLE | 32'h00003000, PREFETCH | QUAD);
        ahb_transfer(BASE, 1'b0, 3'd2, 0);
        check(failed, "a read without data");
        settings(SINGLE | 32'h00000C00, PREFETCH | QUAD);
        ahb_transfer(BASE, 1'b0, 3'd2, 0);
        check(failed, "a read without an address");
        check(chip.clocks == clocks && outen === 4'b1101, "nothing is sent by what is refused");
        chip.high = 8'h02;
        for (stall = `ROUNDS(0, 3); stall < 4; stall = stall + 1) begin
            // Divider 3, 1, 0 and 0 with a later sample.
            ahb_write(DIV, stall == 0 ? 3 : stall == 1 ? 1 : 0);
            a = stall == 3 ? 32'h10 : stall == 0 ? 32'h30 : 0;
            $display("half a period of %0d cycles:", stall == 0 ? 4 : stall == 1 ? 2 : 1);
            stream(SINGLE, PREFETCH | a, 32'h100, 32, "1-1-1");
            stream(FAST, PREFETCH | a, 32'h200, 32, "1-1-1 fast");
            stream(DUAL_OUT, PREFETCH | a, 32'h300, 16, "1-1-2");
            stream(DUAL_IO, PREFETCH | a, 32'h400, 16, "1-2-2");
            stream(QUAD_OUT, PREFETCH | QUAD | a, 32'h500, 8, "1-1-4");
            stream(QUAD_IO, PREFETCH | QUAD | a, 32'h600, 8, "1-4-4");
            check(stall < 2 || took <= 16 * 18, "a word in sixteen cycles");
            stream(SINGLE, a, 32'h700, 64, "");
            stream(QUAD_IO, QUAD | a, 32'h800, 20, "");
        end
        // Continuous reads: no opcode, until something else is to be sent.
        for (stall = 0; stall < 2; stall = stall + 1) begin
            settings((stall == 0 ? QUAD_IO : DUAL_IO) & 32'h00FFFFFF | 32'hA0000000, PREFETCH | CONTINUOUS | QUAD);
            opcodes = chip.opcodes; n = chip.reads;
            for (m = 0; m < 8; m = m + 1)
                expect_word(32'h900 * m, 32'h900 * m, "continuous read");
            check(chip.opcodes == opcodes + 1 && chip.reads == n + 8, "one opcode for all reads");
            check(chip.going, "the flash waits for an address");
            took = $time;
            expect_word(32'h5550, 32'h5550, "jump of a continuous read");
            $display("jump of a continuous read over %0d lanes: %0d cycles", stall == 0 ? 4 : 2, ($time - took) / 10);
            ahb_write(SELECT, 1);
            check(!chip.going, "ended before something else");
            ahb_write(DATA, 8'h9F);
            ahb_write(DATA, 8'h00);
            ahb_expect(DATA, 8'hD1, "identification behind a continuous read");
            ahb_write(SELECT, 0);
            check(chip.wrong == 0, "nothing wrong on the pins of continuous reads");
        end
        // Prefetch: it stops when there is no more room, and the chip select rises after a while.
        settings(QUAD_IO, PREFETCH | QUAD);
        expect_word(32'h1000, 32'h1000, "first word");
        cycles(600);
        clocks = chip.clocks;
        cycles(600);
        check(chip.clocks == clocks && csn === 1'b0 && fclk === 1'b0, "prefetch stops by itself");
        expect_word(32'h1004, 32'h1004, "a word that is there");
        check(waits <= 4, "comes at once");
        // All parts of a word are one.
        clocks = chip.clocks + 8 * 8;
        for (m = 0; m < 4; m = m + 1) begin
            ahb_transfer(BASE + 32'h1004 + m, 1'b0, 3'd0, 0);
            check32(rd, word(32'h1004), "byte by byte");
            check(waits <= 2, "from the same word");
        end
        check(chip.clocks <= clocks, "no second read");
        ahb_write(CTRL, PREFETCH | QUAD | 32'h00020000);
        expect_word(32'h1800, 32'h1800, "first word");
        cycles(600);
        check(csn === 1'b1, "deselected when nobody reads on");
        opcodes = chip.opcodes;
        expect_word(32'h1804, 32'h1804, "a word that is still there");
        check(chip.opcodes == opcodes, "needs no command");
        for (m = 2; m < 40; m = m + 1)
            expect_word(32'h1800 + 4 * m, 32'h1800 + 4 * m, "and on");
        check(chip.opcodes == opcodes + 1, "one more command");
        // The window ends, the flash goes on.
        expect_word(32'hFFFFF8, 32'hFFFFF8, "last but one");
        expect_word(32'hFFFFFC, 32'hFFFFFC, "last word");
        expect_word(32'h000000, 32'h000000, "first word again");
        // A write of a register forgets what was read ahead.
        ahb_write(PROTECT, 1);
        opcodes = chip.opcodes;
        expect_word(32'h000004, 32'h000004, "asked for again");
        check(chip.opcodes == opcodes + 1, "by a command");
        cycles(300);
        ahb_write(PROTECT, 1);
        check(csn === 1'b1 && outen === 4'b1101, "lanes at rest");
        // The time between two selections.
        settings(SINGLE, 32'h00000500);
        expect_word(32'h100, 32'h100, "word");
        chip.high_time = 1000000;
        expect_word(32'h200, 32'h200, "word");
        check(chip.high_time >= 120, "six periods of a high chip select");
        settings(SINGLE, 0);
        ahb_write(DIV, 0);

`ifndef BARE
        // ---- commands
        ahb_write(LENGTH, 3);
        run(8'h9F | ANSWERS);
        ahb_expect(STATUS, 32'h00000100, "one word has come");
        ahb_expect(FIFO, 32'h00D3D2D1, "identification");
        ahb_expect(STATUS, 0, "no more");
        ahb_expect(LENGTH, 0, "all bytes");
        ahb_expect(FIFO, 0, "nothing to be read");
        ahb_expect(STATUS, 8, "which is told");
        ahb_write(STATUS, 8);
        ahb_expect(STATUS, 0, "and cleared");
        // Status registers, and the pin that protects the first one.
        run(8'h06 | ALONE);
        check(chip.writable, "write enable");
        ahb_write(FIFO, 8'h84); ahb_write(LENGTH, 1);
        run(8'h01 | SENDS);
        check(chip.low === 8'h84, "status written");
        chip.high = 0;
        run(8'h06 | ALONE);
        ahb_write(FIFO, 8'h00); ahb_write(LENGTH, 1);
        run(8'h01 | SENDS);
        check(chip.low === 8'h84, "WPN protects it");
        ahb_write(PROTECT, 0);
        ahb_write(FIFO, 8'h00); ahb_write(LENGTH, 1);
        run(8'h01 | SENDS);
        check(chip.low === 8'h00, "and no longer");
        run(8'h06 | ALONE);
        ahb_write(FIFO, 8'h02); ahb_write(LENGTH, 1);
        run(8'h31 | SENDS);
        check(chip.high === 8'h02, "four lanes switched on");
        ahb_write(PROTECT, 1);
        // Erase, and wait for it.
        chip.work = 50;
        run(8'h06 | ALONE);
        ahb_write(ADDRESS, 32'h00003000);
        run(8'h20 | PLACED);
        check(chip.erases == 1 && chip.busy == 50, "erase");
        ahb_write(POLL, 32'h00000001);
        clocks = chip.clocks;
        ahb_write(COMMAND, 8'h05 | ANSWERS | 32'h00800000);
        ahb_transfer(BASE, 1'b0, 3'd2, 0);
        check(failed, "no window while a command runs");
        ahb_write(DIV, 9);
        ahb_transfer(STATUS, 1'b0, 3'd2, 0);
        check32(rd, 3, "registers are refused meanwhile");
        cycles(30);
        check(chip.busy > 20 && chip.busy < 50, "it works");
        chip.busy = 0;
        finished;
        ahb_expect(DIV, 0, "and unchanged");
        ahb_expect(DATA, 0, "the status that ended it");
        ahb_write(STATUS, 2);
        ahb_expect(STATUS, 0, "flags cleared");
        expect_word(32'h3000, 32'h3000, "erased word");
        check32(rd, 32'hFFFFFFFF, "all ones");
        // Program on one lane: some bytes first, the others as there is room.
        chip.work = 0;
        run(8'h06 | ALONE);
        ahb_write(ADDRESS, 32'h00003004);
        ahb_write(LENGTH, 70);
        ahb_write(FIFO, 32'h03020100);
        ahb_write(COMMAND, 8'h02 | 32'h00400000);
        for (m = 1; m < 18; m = m + 1) begin
            ahb_transfer(STATUS, 1'b0, 3'd2, 0);
            while (rd[12:8] >= 2) ahb_transfer(STATUS, 1'b0, 3'd2, 0);
            if (m == 9) begin
                cycles(1000);
                ahb_expect(STATUS, 1, "waits for data");
                check(csn === 1'b0 && fclk === 1'b0, "with its clock low");
            end
            ahb_write(FIFO, 32'h03020100 + 32'h04040404 * m);
        end
        finished;
        check(chip.programs == 1, "page programmed");
        for (m = 0; m < 70; m = m + 1)
            check(chip.memory[32'h3004 + m] === m[7:0], "programmed byte");
        check(chip.memory[32'h3003] === 8'hFF && chip.memory[32'h3004 + 70] === 8'hFF, "and nothing beside them");
        // On four lanes.
        ahb_write(CTRL, QUAD);
        run(8'h06 | ALONE);
        ahb_write(ADDRESS, 32'h00003100);
        ahb_write(LENGTH, 6);
        ahb_write(FIFO, 32'h44332211);
        ahb_write(FIFO, 32'h99996655);
        run(8'h32 | 32'h00402000);
        expect_word(32'h3100, 32'h3100, "programmed over four lanes");
        check32(rd, 32'h44332211, "its bytes");
        ahb_transfer(BASE + 32'h3104, 1'b0, 3'd2, 0);
        check32(rd, 32'hFFFF6655, "and no more");
        // A read of more than the FIFO holds waits until there is room.
        ahb_write(ADDRESS, 32'h00000020);
        ahb_write(LENGTH, 41);
        ahb_write(COMMAND, QUAD_IO);
        cycles(1500);
        ahb_transfer(STATUS, 1'b0, 3'd2, 0);
        check(rd[0] && rd[12:8] >= 7, "waits for room");
        for (m = 0; m < 11; m = m + 1) begin
            cycles(20);
            ahb_expect(FIFO, m < 10 ? word(32'h20 + 4 * m) : {24'd0, chip.content(32'h48)}, "word of a command");
        end
        finished;
        ahb_expect(STATUS, 0, "nothing is left");
        // A FIFO that is full says so.
        for (m = 0; m < 9; m = m + 1)
            ahb_write(FIFO, m);
        ahb_expect(STATUS, 32'h00000804, "eight words, and one too many");
        ahb_transfer(FIFO + 1, 1'b0, 3'd0, 0);
        ahb_transfer(FIFO + 2, 1'b1, 3'd1, 32'h12345678);
        ahb_expect(STATUS, 32'h00000804, "neither pushed nor popped beside the lowest byte");
        ahb_expect(FIFO, 0, "in order");
        ahb_transfer(FIFO, 1'b1, 3'd0, 32'hABABABAB);
        for (m = 1; m < 8; m = m + 1)
            ahb_expect(FIFO, m, "in order");
        ahb_expect(FIFO, 32'h000000AB, "a byte alone");
        ahb_write(STATUS, 4);
        ahb_expect(STATUS, 0, "flag cleared");
        // What a command cannot do.
        ahb_write(CTRL, 0);
        clocks = chip.clocks;
        ahb_write(COMMAND, QUAD_IO);
        ahb_expect(STATUS, 2, "four lanes that are not switched on");
        check(chip.clocks == clocks, "nothing is sent");
        ahb_write(STATUS, 2);
        // A command is ended: one that would wait for ever, and one whose data never come.
        ahb_write(POLL, 32'h0000FFFF);
        ahb_write(COMMAND, 8'h05 | ANSWERS | 32'h00800000);
        cycles(500);
        ahb_expect(STATUS, 1, "still waits");
        ahb_write(STATUS, 16);
        cycles(20);
        ahb_expect(STATUS, 0, "ended");
        ahb_write(LENGTH, 100);
        ahb_write(COMMAND, SINGLE);
        cycles(1000);
        ahb_write(STATUS, 16);
        cycles(20);
        ahb_transfer(STATUS, 1'b0, 3'd2, 0);
        check(rd[0] === 1'b0 && rd[12:8] >= 7, "what was received is there");
        ahb_expect(FIFO, word(32'h20), "word of a command that was ended");
        check(csn === 1'b1, "deselected at the end");
        ahb_write(LENGTH, 40);
        ahb_write(COMMAND, 8'h02 | 32'h00400000);
        cycles(500);
        ahb_write(FIFO, 1);
        ahb_write(STATUS, 16);
        cycles(20);
        ahb_expect(STATUS, 0, "without data");
        check(chip.programs == 2, "and nothing is programmed");
        expect_word(32'h3000, 32'h3000, "the window is back");
        // A command takes over from the hand.
        ahb_write(SELECT, 1);
        ahb_write(LENGTH, 3);
        run(8'h9F | ANSWERS);
        ahb_expect(SELECT, 0, "no longer held");
        ahb_expect(FIFO, 32'h00D3D2D1, "identification behind a selection");
        // A command is ended before it begins, in the time behind a selection by hand.
        ahb_transfer(DIV, 1'b0, 3'd2, 0); got = rd;
        ahb_write(DIV, 10);
        ahb_write(CTRL, 32'h700);
        ahb_write(SELECT, 1);
        clocks = chip.clocks;
        ahb_write(COMMAND, 8'h9F | ANSWERS);
        ahb_write(STATUS, 16);
        for (m = 0; m < 300; m = m + 1) begin cycles(1); check(csn === 1'b1, "not selected for it"); end
        ahb_expect(STATUS, 0, "ended before it began");
        check(chip.clocks == clocks, "without a clock");
        ahb_write(DIV, got);
        ahb_write(CTRL, 0);
        // Four bytes of address, and what lies above the window.
        run(8'hB7 | ALONE);
        check(chip.long, "addresses of four bytes");
        ahb_write(UPPER, 8'h5A);
        settings(SINGLE | LONG, PREFETCH);
        expect_word(32'h123454, 32'h5A123454, "word far up");
        settings(QUAD_IO | LONG, PREFETCH | QUAD);
        expect_word(32'h123458, 32'h5A123458, "word far up over four lanes");
        expect_word(32'h12345C, 32'h5A12345C, "and the next one");
        settings(QUAD_IO & 32'h00FFFFFF | LONG | 32'hA0000000, PREFETCH | QUAD | CONTINUOUS);
        for (m = 0; m < 4; m = m + 1)
            expect_word(32'h1000 * m, 32'h5A000000 + 32'h1000 * m, "continuous far up");
        ahb_write(UPPER, 8'hA5);
        expect_word(32'h30, 32'hA5000030, "another upper byte");
        run(8'hE9 | ALONE);
        check(!chip.long && chip.wrong == 0, "back to three bytes");
        ahb_write(UPPER, 0);

        // ---- resets in the middle of what the flash does
        for (stall = 1; stall < 30; stall = stall + `ROUNDS(7, 29)) begin
            reset_within(QUAD_IO & 32'h00FFFFFF | 32'hA0000000, PREFETCH | QUAD | CONTINUOUS, stall, 1'b0);
            reset_within(DUAL_IO & 32'h00FFFFFF | 32'hA0000000, PREFETCH | CONTINUOUS, stall, 1'b0);
            reset_within(QUAD_OUT, PREFETCH | QUAD, stall, 1'b0);
        end
        for (stall = 2; stall < 24; stall = stall + `ROUNDS(17, 22)) begin
            reset_within(QUAD_IO & 32'h00FFFFFF | LONG | 32'hA0000000, PREFETCH | QUAD | CONTINUOUS, stall, 1'b1);
            reset_within(DUAL_IO & 32'h00FFFFFF | LONG | 32'hA0000000, PREFETCH | CONTINUOUS, stall, 1'b1);
        end
        // Not wanted, wanted without the reset, and wanted by a program.
        reset;
        ahb_write(RECOVER, 0);
        m = chip.resets; clocks = chip.clocks;
        expect_word(32'h50, 32'h50, "without leading it back");
        check(chip.resets == m && chip.clocks == clocks + 64, "nothing but the read");
        chip.going = 1; chip.command = 8'hEB; chip.address_lanes = 4; chip.dummies = 4;
        ahb_write(RECOVER, 1);
        expect_word(32'h54, 32'h54, "continuous reads ended");
        check(chip.resets == m && !chip.going, "without a reset");
        ahb_write(RECOVER, 32'h0103);
        ahb_write(SELECT, 1);
        check(chip.resets == m + 1 && csn === 1'b0, "with one, before a selection");
        ahb_write(SELECT, 0);
        ahb_write(RECOVER, 32'h0003);
        run(8'h06 | ALONE);
        check(chip.resets == m + 2 && chip.writable, "and before a command");
        // The longest waits, with a slow clock.
        ahb_write(DIV, SLOWEST);
        settings(32'hFF3FC003, PREFETCH | 32'h00000700);
        ahb_write(RECOVER, 32'hFF03);
        ahb_transfer(BASE, 1'b0, 3'd2, 0);
        n = 2 * (SLOWEST + 1) * 151 + 12;
        m = 2 * (SLOWEST + 1) * 118 + 16341;
        check(waits > n + m - 17 * (SLOWEST + 1) - 16 && waits <= n + m, "longest wait with a reset of the flash");
        cycles(700);
        check(csn === 1'b0, "reads ahead");
        ahb_transfer(BASE + 32'h1000, 1'b0, 3'd2, 0);
        check(waits > n - (SLOWEST + 1) - 8 && waits <= n, "longest wait without one");
`else
        ahb_expect(ID, 32'h0003020A, "ID without commands");
        for (m = 0; m < 6; m = m + 1) begin
            ahb_write(ADDRESS + 4 * m, 32'hFFFFFFFF);
            ahb_expect(ADDRESS + 4 * m, 0, "no registers of commands");
        end
        check(csn === 1'b1, "nothing begins");
`endif
`endif
        // Registers by their parts.
        reset;
        ahb_parts(DIV, 32'h000000FF, 0); ahb_parts(PROTECT, 32'h00000001, 0);
        ahb_parts(CTRL, {8'd0, {8{HAS[3]}}, 5'd0, {3{HAS[0]}}, 2'd0, {2{HAS[0]}}, 1'b0, HAS[0], HAS[0] & HAS[2], HAS[3]}, 0);
        ahb_parts(READ, (HAS[0] ? 32'hFF3FBFFF : 32'h0) | (HAS[1] ? LONG : 32'h0), 0);
        ahb_parts(UPPER, HAS[1] ? 32'h000000FF : 32'h0, 0);
        ahb_parts(RECOVER, HAS[2] ? 32'h0000FF03 : 32'h0, 0);
`ifndef BARE
        ahb_parts(ADDRESS, 32'hFFFFFFFF, 0); ahb_parts(LENGTH, 32'h000001FF, 0); ahb_parts(POLL, 32'h0000FFFF, 0);
`endif
        check(chip.wrong == 0, "nothing wrong on the pins at all");
        finish;
    end
endmodule
