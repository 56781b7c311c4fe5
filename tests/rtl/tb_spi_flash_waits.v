// SPI-Flash: how long the bus waits. The formulas of the register text against what the worst cases take, at several dividers, and
// against random accesses in random settings, which follow each other without a cycle between them or after some. What comes in
// does not matter: there is no flash. Those of a write are proven, too (formal/spi_flash_waits.v); those of a read are only measured
// here: the proof that the block keeps the rules of its bus allows it any number of wait states.
module tb;
`include "bench.vh"
`include "ahb_master.vh"
    wire fclk, csn;
    wire [3:0] out, outen;
    wire hsel = haddr[31:25] == 7'b0110100;
    ahb_spi_flash dut (.HCLK(clk), .HRESETn(rstn), .HSEL(hsel), .HADDR(haddr[24:0]), .HTRANS(htrans), .HSIZE(hsize),
                       .HWRITE(hwrite), .HWDATA(hwdata), .HREADY(hready), .HRDATA(hrdata), .HREADYOUT(hready),
                       .HRESP(hresp), .flash_clk(fclk), .flash_csn(csn), .flash_out(out), .flash_outen(outen), .flash_in(4'b1010));

    localparam [31:0] BASE = 32'h68000000, DATA = 32'h69000000, SELECT = DATA + 4, DIV = DATA + 8, PROTECT = DATA + 12,
                      CTRL = DATA + 16, READ = DATA + 20, LENGTH = DATA + 36, COMMAND = DATA + 48, RECOVER = DATA + 56;
    localparam [31:0] SINGLE = 32'h00000003, BARE = 32'hA004ABEB, QUAD_IO = 32'hA004A8EB, DUAL_IO = 32'hA00094BB, LONGEST = 32'hFF3FC003,
                      LONG = 32'h00004000;
    localparam [31:0] PREFETCH = 1, CONTINUOUS = 2, QUAD = 4;

    // ---- the register text, with the settings that hold when an access begins
    function integer over(input integer clocks_of_one, input [1:0] lanes);
        over = lanes == 2'd3 ? 0 : clocks_of_one >> lanes;
    endfunction
    integer h, g, c, e;
    integer of_read, of_write, of_end, of_byte, of_recovery;
    task formulas;
        begin
            h = dut.div + 1;
            g = dut.gap + 1;
            c = over(8, dut.format[9:8]) + over(dut.format[14] ? 32 : 24, dut.format[11:10]) +
                (dut.format[15] ? over(8, dut.format[11:10]) : 0) + dut.format[21:16] + over(32, dut.format[13:12]);
            e = (dut.format[14] ? 10 : 8) * (dut.format[11] ? 1 : 2);
            of_read     = 2 * h * (c + g) + dut.delay + 12 + (dut.format[9:8] == 2'd3);
            of_write    = h * (2 * g + 1) + 5;
            of_end      = 2 * h * (e + g) + 4;
            of_byte     = 16 * h + dut.delay + 3;
            of_recovery = dut.with_reset ? 2 * h * (70 + 6 * g) + 64 * dut.reset_time + 22 : 2 * h * (54 + 4 * g) + 13;
        end
    endtask

    // ---- accesses, each with its bound
    localparam READS = 0, RECOVERS_TO_READ = 1, WRITES = 2, ENDS = 3, SENDS = 4, ENDS_AND_SENDS = 5, RECOVERS = 6,
               REGISTERS = 7, KINDS = 8;
    integer kind, bound, n, round, phase, format_of;
    integer slack [0:15];             // how far the longest wait of a kind stays below its formula
    reg     going = 0;                // a data phase
    reg [31:0] next, value;
    task forget;
        for (n = 0; n < 16; n = n + 1) slack[n] = 1000000;
    endtask
    task ended;
        begin
            #1;
            while (!hready) begin
                waits = waits + 1;
                cycles(1);
                #1;
            end
            if (going) begin
                check(waits <= bound, "no longer than the register text says");
                if (waits > bound) $display("kind %0d: %0d, not %0d", kind, waits, bound);
                if (bound - waits < slack[kind]) slack[kind] = bound - waits;
            end
        end
    endtask
    task access(input [31:0] address, input write, input [31:0] data);
        begin
            haddr = address; htrans = 2'b10; hsize = 3'd2; hwrite = write;
            ended;
            cycles(1);
            htrans = 2'b00; hwdata = data;
            formulas;
            waits = 0;
            going = 1;
            if (!address[24]) begin
                kind = dut.pending ? RECOVERS_TO_READ : READS;
                bound = of_read + (dut.pending ? of_recovery : 0);
            end else if (!write) begin
                kind = REGISTERS;
                bound = 0;
            end else begin
                kind = dut.continuous & dut.format[15] & (dut.format[11] ^ dut.format[10]) & (dut.continues | dut.reading)
                     ? (address == DATA ? ENDS_AND_SENDS : ENDS) : (address == DATA ? SENDS : WRITES);
                bound = of_write + (kind == ENDS || kind == ENDS_AND_SENDS ? of_end : 0) + (address == DATA ? of_byte : 0);
                if (dut.pending && (address == SELECT || address == COMMAND)) begin
                    kind = RECOVERS;
                    bound = bound + of_recovery;
                end
            end
        end
    endtask
    task pass(input integer count);   // at least 1
        begin
            htrans = 2'b00;
            ended;
            going = 0;
            cycles(count);
        end
    endtask
    task settings(input [31:0] format, input [31:0] control);
        begin
            access(CTRL, 1, control);
            access(READ, 1, format);
        end
    endtask

    // The worst case of a kind reaches its formula, but for what a divider and a phase leave between them.
    task reaches(input integer which, input integer most, input [8*48-1:0] what);
        begin
            pass(1);
            check(slack[which] >= 0 && slack[which] <= most, what);
            if (slack[which] > most) $display("half a period of %0d cycles: %0d below", h, slack[which]);
            forget;
        end
    endtask
    // Behind a read that goes on, at every place of a clock of the flash.
    task behind_a_read(input [31:0] address, input write);
        for (phase = 0; phase < 2 * h + 2; phase = phase + 1) begin
            access(BASE, 0, 0);
            pass(1 + phase);
            access(address, write, 0);
        end
    endtask

    initial begin
        // ---- as after a reset
        forget;
        reset;
        access(BASE, 0, 0);
        check(of_read == 272 && of_recovery == 2374 && bound == 2646, "the figures of a reset");
        reaches(RECOVERS_TO_READ, 2 * h * g + 8, "the first read");
        access(BASE + 4, 0, 0);
        access(BASE + 8, 0, 0);
        reaches(READS, 8, "a read behind another one");
        access(RECOVER, 1, 32'h1);
        access(BASE, 0, 0);
        check(bound == 272 + 4 * 58 + 13, "the figures without a reset of the flash");
        reaches(RECOVERS_TO_READ, 2 * h * g + 8, "the first read without a reset of the flash");

        // ---- the worst cases
        for (round = 0; round < 5; round = round + 1) begin
            reset;
            // Dividers 0, 1, 2 and 5; the last time the chip select stays high for longer.
            access(DIV, 1, round == 3 ? 5 : round == 4 ? 1 : round);
            settings(QUAD_IO, (round == 4 ? 32'h500 : 0) | PREFETCH | QUAD | (round == 0 ? 32'h10 : round == 3 ? 32'h30 : 0));
            access(BASE, 0, 0);
            reaches(RECOVERS_TO_READ, 2 * h * g + 8, "the first read");
            behind_a_read(BASE + 32'h1000, 0);
            reaches(READS, 1, "a read somewhere else, while words are read ahead");
            settings(BARE, (dut.gap << 8) | (dut.delay << 4) | PREFETCH | QUAD);
            access(BASE, 0, 0);
            pass(1);
            forget;
            behind_a_read(BASE + 32'h1000, 0);
            reaches(READS, 1, "the same without an opcode");
            behind_a_read(PROTECT, 1);
            reaches(WRITES, 1, "a write while words are read ahead");
            behind_a_read(DATA, 1);
            reaches(SENDS, dut.delay + 1, "a byte while words are read ahead");
            for (format_of = 0; format_of < 4; format_of = format_of + 1) begin
                settings((format_of & 1 ? LONG : 0) | (format_of & 2 ? DUAL_IO : QUAD_IO),
                         (dut.gap << 8) | (dut.delay << 4) | PREFETCH | CONTINUOUS | QUAD);
                pass(1);
                forget;
                behind_a_read(PROTECT, 1);
                reaches(ENDS, 1, "the end of continuous reads");
                if (format_of == 0) begin
                    behind_a_read(DATA, 1);
                    reaches(ENDS_AND_SENDS, dut.delay + 1, "a byte behind continuous reads");
                end
            end
            settings(SINGLE, dut.gap << 8);
            access(SELECT, 1, 1);
            access(RECOVER, 1, 32'h203);
            access(SELECT, 1, 0);
            access(SELECT, 1, 1);
            reaches(RECOVERS, h, "a selection that recovers, right behind the end of another one");
            access(RECOVER, 1, 32'h1);
            access(SELECT, 1, 0);
            access(SELECT, 1, 1);
            reaches(RECOVERS, h, "the same without a reset of the flash");
        end

        // ---- random accesses
        forget;
        reset;
        for (round = 0; round < 45; round = round + 1) begin
            access(SELECT, 1, 0);
            pass(1);
            while (dut.running) cycles(1);
            access(DIV, 1, $random & $random & 3);
            format_of = $unsigned($random) % 6;
            value = $random;
            settings(format_of == 0 ? SINGLE : format_of == 5 ? LONGEST : ($random & LONG) | (format_of < 3 ? QUAD_IO : DUAL_IO),
                     (value & 32'h00010707) | (value & (dut.div == 0 ? 32'h10 : 32'h30)));
            if ($random & 1) access(RECOVER, 1, $random & 32'h103);
            next = 0;
            for (n = 0; n < 25; n = n + 1) begin
                if ($random & 1) pass(1 + $unsigned($random) % (1 << ($unsigned($random) % 8)));
                case ($unsigned($random) % 12)
                    0: access(PROTECT, 1, 1);
                    1: begin
                        access(SELECT, 1, 1);
                        if ($random & 1) access(DATA, 1, 0);
                        if ($random & 1) access(SELECT, 1, 0);
                    end
                    2: access(DATA, 1, $random);
                    3: access(RECOVER, 1, $random & 32'h103);
                    4: begin
                        access(LENGTH, 1, $random & 3);
                        access(COMMAND, 1, $random & 1 ? 32'h3C00 : 32'h0C00);
                        if ($random & 1) access(SELECT, 1, 0);
                    end
                    5: access(CTRL, 0, 0);
                    6: begin next = next + 4 * ($random & 3); access(BASE + next, 0, 0); end
                    7: begin next = $random & 32'hFFFFC; access(BASE + next, 0, 0); end
                    8: access(BASE, 1, 0);
                    default: begin next = next + 4; access(BASE + next, 0, 0); end
                endcase
            end
        end
        pass(1);
        for (n = 0; n < KINDS; n = n + 1)
            check(slack[n] >= 0 && slack[n] <= 8, "every kind of access");
        $display("%0d cycles", $time / 10);
        finish;
    end
endmodule
