// SPI master against a slave model that works on the pins alone: the four modes, both bit orders, all lengths of words,
// rates up to half the clock, the select's times, FIFOs, thresholds, flags, loop-back, late answers.  With BASIC there are bytes one
// by one, and nothing else.
`ifdef BASIC
`define LOG_DEPTH 0
`define LOG_WIDTH 3
`define LACKS 32'hF0000000
`define DUT apb_spi #(.LOG_DEPTH(0), .LOG_WIDTH(3), .FULL(0)) dut
`else
`define LACKS 32'h0
`ifndef LOG_DEPTH
`define LOG_DEPTH 4
`define LOG_WIDTH 5
`define DUT apb_spi dut
`else
`define DUT apb_spi #(.LOG_DEPTH(`LOG_DEPTH), .LOG_WIDTH(`LOG_WIDTH)) dut
`endif
`endif
module tb;
`include "bench.vh"
`include "apb_master.vh"
    localparam integer DEPTH = 1 << `LOG_DEPTH, WIDTH = 1 << `LOG_WIDTH;
    wire sclk, mosi, nss, irq;
    reg  miso = 1'bz;
    `DUT (.PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr),
          .PWDATA(pwdata), .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr),
          .sclk(sclk), .mosi(mosi), .miso(miso), .nss(nss), .irq(irq));
    localparam [11:0] DATA = 0, STATUS = 4, CTRL = 8, DIV = 12, SELECT = 16, FORMAT = 20, TIMING = 24, LEVEL = 28,
                      THRESHOLD = 32, INTEN = 36, CLEAR = 40, ID = 12'hFFC;
    localparam [31:0] BUSY = 1, DONE = 2, LOST = 4, OVERRUN = 8, UNDERRUN = 16, REFUSED = 32;
    localparam [31:0] IE = 8, FIFO = 16, LOOP = 32, DROP = 64;
    localparam [31:0] TXLOW = 32'h10000, RXREADY = 32'h20000;

    // Slave: it answers with words of its own and keeps what it hears, both from the highest bit of a word down or the
    // other way round.
    reg         cpol = 1'b0, cpha = 1'b0, lsb = 1'b0;
    integer     bits = 8, answers_after = 2;
    reg  [31:0] reply [0:63], heard [0:63];
    integer     taken = 0;                      // bits so far
    time        fell = 0, rose = 0, first_edge = 0, last_edge = 0, widest = 0, narrowest = 0;
    integer     selections = 0, edges = 0, released_early = 0, quiet_edges = 0;
    wire leading = sclk !== cpol;
    function integer place_of(input integer k);
        place_of = lsb ? k % bits : bits - 1 - k % bits;
    endfunction
    task answer;
        miso <= #(answers_after) reply[(taken / bits) & 63][place_of(taken)];
    endtask
    always @(negedge nss) begin
        fell = $time; selections = selections + 1; edges = 0; widest = 0; narrowest = 1000000;
        if (!cpha) answer;
    end
    always @(posedge nss) if (rstn) begin
        rose = $time;
        if (taken % bits != 0) released_early = released_early + 1;
        miso = 1'bz;
    end
    always @(sclk) if (!nss) begin
        if (edges == 0) first_edge = $time;
        else begin
            if ($time - last_edge > widest) widest = $time - last_edge;
            if ($time - last_edge < narrowest) narrowest = $time - last_edge;
        end
        last_edge = $time;
        edges = edges + 1;
        if (leading != cpha) begin              // sampling edge
            heard[(taken / bits) & 63][place_of(taken)] = mosi;
            taken = taken + 1;
            // What is left of the answer may not stand any longer than a late device would let it.
        end else
            answer;                             // shifting edge
    end else if (rstn) quiet_edges = quiet_edges + 1;

    function [31:0] low_bits(input [31:0] value, input integer count);
        low_bits = count == 32 ? value : value & ((32'd1 << count) - 1);
    endfunction
    function [7:0] mirror(input [7:0] v);
        mirror = {v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7]};
    endfunction

    integer seed = 32'h5EED1, k, mode, round;
    function [31:0] pick(input integer from, input integer to);
        pick = from + ({$random(seed)} % (to - from + 1));
    endfunction
    task slave_from(input [31:0] ctrl, input integer count);
        begin
            cpol = ctrl[0]; cpha = ctrl[1]; lsb = ctrl[2]; bits = count; taken = 0;
            for (k = 0; k < 64; k = k + 1) begin reply[k] = $random(seed); heard[k] = 32'd0; end
        end
    endtask
    task until_rest;
        begin
            apb_read(STATUS);
            while (rd & BUSY) apb_read(STATUS);
        end
    endtask
    // Waits for the interrupt, but not for ever.
    task until_irq;
        begin
            k = 0;
            while (!irq && k < 20000) begin cycles(1); k = k + 1; end
            check(irq === 1'b1, "an interrupt in time");
        end
    endtask

    // The old way: a byte at a time.
    reg [7:0] value;
    time      first;
    task bytes_one_by_one;
        begin
            for (mode = 0; mode < 8; mode = mode + `ROUNDS(1, 3)) begin
                apb_write(CTRL, 8 + mode);
                apb_expect(CTRL, 8 + mode, "CTRL reads back");
                slave_from(mode, 8);
                cycles(2);
                check(sclk === cpol, "clock level between bytes");
                for (round = 0; round < 4; round = round + 1) begin
                    value = 8'hB1 ^ (8'h37 * round);
                    slave_from(mode, 8);
                    reply[0] = 8'h4E ^ (8'h53 * round);
                    apb_write(DIV, round);
                    apb_write(SELECT, 1);
                    check(nss === 1'b0, "selected");
                    apb_write(DATA, value);
                    apb_expect(STATUS, BUSY, "busy");
                    until_irq;
                    apb_expect(STATUS, DONE, "done");
                    check(edges == 16 && taken == 8, "eight clock periods");
                    check32(heard[0], value, "byte on MOSI");
                    apb_expect(DATA, reply[0] & 32'hFF, "byte from MISO");
                    apb_expect(DATA, reply[0] & 32'hFF, "it can be read again");
                    check(sclk === cpol, "the clock is back at rest");
                    apb_write(STATUS, DONE);
                    check(irq === 1'b0, "interrupt cleared");
                    apb_write(SELECT, 0);
                    check(nss === 1'b1, "deselected");
                end
            end
            // The lowest bit first is on the wire what its mirror is.
            apb_write(CTRL, 4);
            slave_from(0, 8);
            apb_write(SELECT, 1);
            apb_write(DATA, 8'h13);
            until_rest;
            check32(heard[0], mirror(8'h13), "lowest bit first");
            apb_write(SELECT, 0);
            // Speed and writing while busy.
            apb_write(CTRL, IE);
            apb_write(STATUS, DONE);
            slave_from(0, 8);
            apb_write(DIV, 9);
            apb_write(SELECT, 1);
            apb_write(DATA, 8'h00);
            @(posedge sclk) first = $time;
            apb_write(DATA, 8'hFF);
            @(posedge sclk) check32(($time - first) / 10, 20, "a period is 2 * (DIV + 1)");
            until_irq;
            check32(heard[0], 8'h00, "the running byte is not disturbed");
            check(taken == 8, "the other one is not sent");
            apb_expect(STATUS, DONE | LOST, "LOST");
            apb_write(STATUS, LOST);
            apb_expect(STATUS, DONE, "LOST cleared");
            // Only the lowest byte is sent, and only its flags are cleared.
            apb_write(STATUS, DONE | LOST);
            apb_write8(DATA + 1, 8'h55); apb_write16(DATA + 2, 16'h5555);
            apb_expect(STATUS, 0, "nothing is sent");
            slave_from(0, 8);
            apb_write8(DATA, 8'h3C);
            until_irq;
            check32(heard[0], 8'h3C, "a byte written as a byte");
            apb_write8(STATUS + 1, 8'hFF); apb_write16(STATUS + 2, 16'hFFFF);
            apb_expect(STATUS, DONE, "nothing cleared beside the byte");
            apb_write16(STATUS, DONE);
            apb_expect(STATUS, 0, "cleared by its halfword");
            apb_write(SELECT, 0);
            apb_write(CTRL, 0);
        end
    endtask

    // Words of any form through the FIFOs, as many as fit, the select by hand or on its own.
    integer     words, half, kind, setup_time, hold_time, idle_time, w;
    reg  [31:0] sent [0:63];
    reg  [31:0] form;
    time        last_rise;
    integer     short_idles = 0, late_first = 0, late_end = 0, early_ends = 0, ends = 0;
    reg         watching = 1'b0;
    always @(negedge nss) if (watching && rose > last_rise && ($time - rose) / 10 < idle_time + 2) short_idles = short_idles + 1;
    always @(posedge nss) if (watching) begin
        if ((first_edge - fell) / 10 != setup_time + 1 + half) late_first = late_first + 1;
        if (($time - last_edge) / 10 != half + hold_time + 1) late_end = late_end + 1;
    end
    always @(posedge irq) begin
        ends = ends + 1;
        if (taken != words * bits) early_ends = early_ends + 1;
    end
    task words_of_any_form;
        begin
            form = pick(0, 7) | FIFO | IE;
            half = pick(0, 3) == 3 ? pick(3, 6) : pick(0, 2) + 1;
            kind = pick(0, 2);
            words = pick(1, DEPTH);
            setup_time = pick(0, 9); hold_time = pick(0, 9); idle_time = pick(0, 9);
            apb_write(CTRL, form);
            slave_from(form, round < 2 * WIDTH - 8 ? 4 + round % (WIDTH - 3) : pick(4, WIDTH));
            apb_write(FORMAT, bits - 1);
            apb_write(DIV, half - 1);
            apb_write(TIMING, {8'd0, idle_time[7:0], hold_time[7:0], setup_time[7:0]});
            apb_write(SELECT, kind == 0 ? 1 : kind == 1 ? 2 : 6);
            selections = kind == 0 ? 1 : 0;
            last_rise = $time; rose = 0;
            watching = kind != 0;
            ends = 0; early_ends = 0;
            for (w = 0; w < words; w = w + 1) begin
                sent[w] = $random(seed);
                apb_write(DATA, sent[w]);
            end
            until_rest;
            check32(rd, DONE, "words are sent");
            check(ends > 0 && irq, "the end interrupts");
            check(kind == 0 || (ends == 1 && early_ends == 0), "no end between words");
            apb_write(STATUS, DONE);
            if (kind == 0)
                apb_write(SELECT, 0);
            watching = 1'b0;
            check(nss === 1'b1, "not selected any more");
            check32(taken, words * bits, "bits on the line");
            check32(selections, kind == 1 ? words : 1, "selections");
            if (kind != 1 || words == 1) begin
                check32(edges, 2 * words * bits, "edges of a selection");
                check32(widest / 10, half, "no gap between words");
            end
            check32(narrowest / 10, half, "half a period");
            apb_expect(LEVEL, (words << 8) | TXLOW | RXREADY, "levels");
            for (w = 0; w < words; w = w + 1) begin
                check32(heard[w], low_bits(sent[w], bits), "word on MOSI");
                apb_expect(DATA, low_bits(reply[w], bits), "word from MISO");
            end
            apb_expect(STATUS, 0, "nothing was missing");
        end
    endtask

    task levels_and_flags;
        begin
            apb_write(CTRL, FIFO);
            apb_write(SELECT, 6);
            apb_write(TIMING, 0);
            apb_write(FORMAT, 7);
            apb_write(DIV, 20);
            slave_from(0, 8);
            apb_write(THRESHOLD, 32'h0201);
            apb_expect(THRESHOLD, 32'h0201, "thresholds");
            apb_expect(LEVEL, TXLOW, "levels at rest");
            apb_write(INTEN, 1);
            check(irq === 1'b1, "words are wanted");
            for (w = 0; w < DEPTH; w = w + 1) apb_write(DATA, 8'h40 + w);
            check(irq === 1'b0, "words enough");
            apb_expect(LEVEL, DEPTH, "full");
            apb_expect(STATUS, BUSY, "nothing is lost");
            apb_write(DATA, 8'hEE);
            apb_expect(STATUS, BUSY | LOST, "no room");
            apb_write(INTEN, 4);
            check(irq === 1'b1, "interrupt of errors");
            apb_write(STATUS, LOST);
            check(irq === 1'b0, "error cleared");
            // While they are on their way, their form stays as it is.
            apb_write(CTRL, FIFO | 7);
            apb_expect(STATUS, BUSY | REFUSED, "another mode is refused");
            check(irq === 1'b1, "interrupt of a refused change");
            apb_expect(CTRL, FIFO, "the old mode");
            apb_write(STATUS, REFUSED);
            apb_write(CTRL, FIFO | LOOP);
            apb_expect(STATUS, BUSY | REFUSED, "loop-back is refused");
            apb_write(STATUS, REFUSED);
            apb_write8(FORMAT, 8'd5);
            apb_expect(STATUS, BUSY | REFUSED, "another length is refused");
            apb_write(STATUS, REFUSED);
            apb_write8(FORMAT + 1, 8'd1);
            apb_expect(STATUS, BUSY | REFUSED, "another delay is refused");
            apb_expect(FORMAT, 7, "the old form");
            apb_write(STATUS, REFUSED);
            apb_write(CTRL, FIFO | IE);
            apb_write(FORMAT, 7);
            apb_expect(STATUS, BUSY, "the same again is not refused");
            apb_expect(CTRL, FIFO | IE, "what does not change words is taken");
            apb_write(CTRL, FIFO);
            apb_write(INTEN, 2);
            check(irq === 1'b0, "no words yet");
            until_irq;
            apb_read(LEVEL);
            check((rd & 32'hFF00) == 32'h0200 && (rd & RXREADY) != 0, "two words are there");
            check(taken == 16, "when two words have come");
            apb_expect(DATA, reply[0] & 32'hFF, "the first one");
            check(irq === 1'b0, "one is fewer than two");
            apb_write(INTEN, 1);
            until_irq;
            apb_read(LEVEL);
            check32(rd & 32'h000100FF, TXLOW | 1, "the last word is on its way");
            apb_write(INTEN, 0);
            apb_write(DATA, 8'h77); apb_write(DATA, 8'h78);
            until_rest;
            check32(rd, DONE | OVERRUN, "one word has no room");
            check32(taken, (DEPTH + 2) * 8, "all were sent");
            check32(heard[DEPTH], 8'h77, "the last but one");
            check32(heard[DEPTH + 1], 8'h78, "the last one");
            apb_write(INTEN, 4);
            check(irq === 1'b1, "interrupt of an overrun");
            apb_write(STATUS, DONE);
            apb_expect(STATUS, OVERRUN, "each flag on its own");
            apb_write(STATUS, OVERRUN);
            apb_expect(LEVEL, (DEPTH << 8) | TXLOW | RXREADY, "full of received words");
            // A read takes a word where it begins with the lowest byte.
            apb_read(DATA + 1); apb_read(DATA + 2); apb_read(DATA + 3);
            for (w = 1; w <= DEPTH; w = w + 1) apb_expect(DATA, reply[w] & 32'hFF, "words in their order");
            check(irq === 1'b0, "nothing was missing");
            apb_expect(DATA, 0, "no further word");
            apb_expect(STATUS, UNDERRUN, "it was missing");
            check(irq === 1'b1, "interrupt of an underrun");
            apb_write(STATUS, UNDERRUN);
            apb_expect(STATUS, 0, "all flags cleared");
            apb_write(INTEN, 0);
            // Lengths beyond those that there are.
            apb_write(FORMAT, 1);
            apb_expect(FORMAT, 3, "the shortest word");
            apb_write(FORMAT, 63);
            apb_expect(FORMAT, 63, "too long a word");
            slave_from(0, WIDTH);
            apb_write(DATA, 32'h89ABCDEF);
            until_rest;
            check32(taken, WIDTH, "the longest word");
            apb_write(FORMAT, WIDTH);
            apb_write(DATA, 32'h89ABCDEF);
            until_rest;
            check32(taken, 2 * WIDTH, "the longest word by a bit");
            apb_read(DATA);
            check32(rd, low_bits(reply[0], WIDTH), "the longest word from MISO");
            apb_expect(DATA, low_bits(reply[1], WIDTH), "the other one");
            apb_write(STATUS, DONE);
            // A word that is written in parts has zeros elsewhere; the upper part alone sends none.
            slave_from(0, WIDTH);
            apb_write(FORMAT, WIDTH - 1);
            apb_write(DIV, 0);
            apb_write16(DATA + 2, 16'hFFFF); apb_write8(DATA + 1, 8'hFF);
            apb_expect(STATUS, 0, "nothing is sent");
            apb_write16(DATA, 16'hA55A); apb_write8(DATA, 8'h96);
            until_rest;
            check32(taken, 2 * WIDTH, "two words");
            check32(heard[0], low_bits(32'hA55A, WIDTH), "a halfword");
            check32(heard[1], 32'h96, "a byte");
            apb_write(CLEAR, 2);
            apb_expect(LEVEL, TXLOW, "received words thrown away");
            // What is not wanted.
            apb_write(STATUS, DONE);
            apb_write(CTRL, FIFO | DROP);
            for (w = 0; w < DEPTH + 3; w = w + 1) begin apb_write(DATA, w); cycles(40); end
            until_rest;
            check32(rd, DONE, "no overrun of words that are dropped");
            apb_expect(LEVEL, TXLOW, "none is kept");
            apb_write(STATUS, DONE);
            apb_write(CTRL, FIFO);
            // Without FIFOs again, what was sent last is kept.
            apb_write(CTRL, 0);
            slave_from(0, WIDTH);
            apb_write(DATA, 1);
            until_rest;
            apb_expect(DATA, low_bits(reply[0], WIDTH), "the word of a word");
            apb_write(DATA, 2);
            until_rest;
            apb_expect(DATA, low_bits(reply[1], WIDTH), "the word of the next one");
            apb_write(STATUS, DONE);
        end
    endtask

    task ends_at_once;
        begin
            apb_write(CTRL, FIFO);
            apb_write(DIV, 16'hFFFF);
            apb_write(SELECT, 6);
            slave_from(0, 8);
            apb_write(FORMAT, 7);
            apb_write(DATA, 1); apb_write(DATA, 2);
            cycles(50);
            check(nss === 1'b0, "selected");
            apb_write8(CLEAR + 1, 8'hFF); apb_write(CLEAR, 2);
            apb_expect(STATUS, BUSY, "still on its way");
            apb_write(CLEAR, 1);
            apb_expect(STATUS, 0, "ended without DONE");
            check(nss === 1'b1 && sclk === 1'b0, "the line is at rest");
            apb_expect(LEVEL, TXLOW, "nothing is left");
            // In the middle of a word, with the clock away from its rest, and late samples to come.
            apb_write(DIV, 1);
            apb_write(FORMAT, 32'h307);
            apb_write(DATA, 8'h5A);
            while (sclk !== 1'b1) cycles(1);
            apb_write(CLEAR, 1);
            cycles(1);
            check(nss === 1'b1 && sclk === 1'b0, "at rest at once");
            cycles(6);
            apb_expect(STATUS, 0, "nothing has come");
            apb_write(FORMAT, 7);
            slave_from(0, 8);
            apb_write(DATA, 8'hC3);
            until_rest;
            check32(heard[0], 8'hC3, "the next word");
            apb_expect(DATA, reply[0] & 32'hFF, "what came with it");
            apb_expect(LEVEL, TXLOW, "nothing else came");
            apb_write(STATUS, DONE);
        end
    endtask

    // Devices that answer later than half a period.
    task late_answers;
        for (round = 0; round < `ROUNDS(16, 2); round = round + 1) begin
            form = FIFO | (round & 7);
            apb_write(CTRL, form);
            apb_write(SELECT, 6);
            apb_write(DIV, 0);
            slave_from(form, 4 + round % (WIDTH - 3));
            answers_after = round < 8 ? 13 : 24;
            apb_write(FORMAT, (bits - 1) | (round < 8 ? 32'h100 : 32'h200));
            apb_write(TIMING, 0);
            apb_write(DATA, round); apb_write(DATA, ~round);
            until_rest;
            apb_expect(DATA, low_bits(reply[0], bits), "a late answer");
            apb_expect(DATA, low_bits(reply[1], bits), "another late answer");
            apb_write(DIV, 2);
            answers_after = 45;
            slave_from(form, bits);
            apb_write(FORMAT, (bits - 1) | 32'h300);
            apb_write(DATA, round); apb_write(DATA, ~round);
            until_rest;
            apb_expect(DATA, low_bits(reply[0], bits), "a very late answer");
            apb_expect(DATA, low_bits(reply[1], bits), "another very late answer");
            apb_expect(STATUS, DONE, "no more words");
            apb_write(STATUS, DONE);
            answers_after = 2;
        end
    endtask

    // Samples that come after the last edge: the end waits for them, and so does a word that follows at any time.
    integer later;
    task late_ends;
        for (later = 0; later < 30; later = later + `ROUNDS(1, 6)) begin
            form = FIFO | IE | 2;
            apb_write(CTRL, form);
            apb_write(DIV, 0);
            apb_write(SELECT, 1);
            apb_write(FORMAT, 32'h307);
            slave_from(form, 8);
            answers_after = 34;
            apb_write(DATA, 8'h35);
            cycles(later);
            apb_write(DATA, 8'hCA);
            paddr = LEVEL;
            cycles(4);
            while (taken < 16) cycles(1);
            while (!irq) cycles(1);
            check32(prdata, 32'h200 | TXLOW | RXREADY, "both words are there at the end");
            apb_expect(DATA, reply[0] & 32'hFF, "the first late word");
            apb_expect(DATA, reply[1] & 32'hFF, "the second late word");
            check32({heard[0][7:0], heard[1][7:0]}, 32'h35CA, "both were heard");
            apb_write(SELECT, 0);
            apb_write(STATUS, DONE);
            answers_after = 2;
            // Ended at any time, nothing comes any more.
            apb_write(FORMAT, 7);
            apb_write(SELECT, 2);
            apb_write(CTRL, FIFO);
            slave_from(0, 8);
            apb_write(DATA, 8'h11);
            cycles(later);
            apb_write(CLEAR, 1);
            paddr = LEVEL;
            #1 value = prdata[15:8];
            cycles(10);
            check32(prdata[15:8], value, "nothing comes after the end");
            apb_write(CLEAR, 2);
            apb_write(STATUS, DONE);
            // Read at any time while a word comes that has no room: it is either kept or told of.
            for (w = 0; w < DEPTH; w = w + 1) begin apb_write(DATA, w); cycles(24); end
            until_rest;
            apb_write(STATUS, DONE);
            apb_write(DATA, 8'h99);
            cycles(later);
            apb_read(DATA);
            until_rest;
            value = rd[3];
            apb_expect(LEVEL, ((DEPTH - value) << 8) | TXLOW | RXREADY, "kept, or told to be lost");
            apb_write(CLEAR, 2);
            apb_write(STATUS, DONE | OVERRUN);
        end
    endtask

    task back_to_itself;
        for (round = 0; round < 8; round = round + `ROUNDS(1, 3)) begin
            form = FIFO | LOOP | round;
            apb_write(SELECT, round[0] ? 1 : 6);
            apb_write(CTRL, form);
            bits = 4 + (round * 5) % (WIDTH - 3);
            apb_write(FORMAT, (bits - 1) | (round[1:0] << 8));
            apb_write(DIV, round[2]);
            selections = 0;
            for (w = 0; w < DEPTH; w = w + 1) begin
                sent[w] = $random(seed);
                apb_write(DATA, sent[w]);
            end
            until_rest;
            for (w = 0; w < DEPTH; w = w + 1) apb_expect(DATA, low_bits(sent[w], bits), "a word comes back");
            check(nss === 1'b1 && selections == 0, "nobody else hears it");
            apb_write(STATUS, DONE);
            apb_write(SELECT, 0);
            apb_write(CTRL, 0);
        end
    endtask

    // What words look like has bits of its own: no word is shorter than four bits.
    task registers_by_their_parts;
        begin
            reset;
            apb_parts(CTRL, 32'h7F, 0); apb_parts(DIV, 32'hFFFF, 0); apb_parts(SELECT, 32'h7, 0);
            apb_parts(TIMING, 32'hFFFFFF, 0); apb_parts(THRESHOLD, 32'h3F3F, 0); apb_parts(INTEN, 32'h7, 0);
            apb_parts(ID, 0, (`LOG_WIDTH << 24) | (`LOG_DEPTH << 16) | 32'h208);
            apb_write8(FORMAT + 1, 8'hFE);
            apb_expect(FORMAT, 32'h207, "a byte of FORMAT");
            apb_write8(FORMAT, 8'h00);
            apb_expect(FORMAT, 32'h203, "at least four bits");
            apb_write16(FORMAT + 2, 16'hFFFF); apb_write16(FORMAT, 16'h011E);
            apb_expect(FORMAT, 32'h11E, "a halfword of FORMAT");
            apb_expect(STATUS, 0, "nothing was sent");
        end
    endtask

`ifdef BASIC
    task nothing_else;
        begin
            apb_parts(CTRL, 32'hF, 0); apb_parts(DIV, 32'hFFFF, 0); apb_parts(SELECT, 32'h1, 0); apb_parts(FORMAT, 0, 0);
            apb_parts(TIMING, 0, 0); apb_parts(LEVEL, 0, 0); apb_parts(THRESHOLD, 0, 0); apb_parts(INTEN, 0, 0);
            apb_write(CTRL, IE | FIFO | LOOP | DROP);
            apb_write(SELECT, 7);
            apb_write(DIV, 20);
            slave_from(0, 8);
            reply[0] = 8'h96;
            apb_write(DATA, 8'h5A);
            apb_write(CTRL, IE | 3);
            apb_expect(STATUS, BUSY | REFUSED, "another mode is refused");
            until_irq;
            check32(heard[0], 8'h5A, "a byte in the old mode");
            check(nss === 1'b0, "selected by hand");
            apb_expect(DATA, 8'h96, "from MISO");
            apb_expect(DATA, 8'h96, "it can be read again");
            apb_write(STATUS, DONE | REFUSED);
            apb_write(DATA, 8'h11);
            cycles(30);
            apb_write(CLEAR, 1);
            cycles(2);
            apb_expect(STATUS, 0, "ended at once");
            check(sclk === 1'b0, "the clock is at rest");
            slave_from(0, 8);
            apb_write(DATA, 8'hC3);
            until_irq;
            check32(heard[0], 8'hC3, "the next byte");
        end
    endtask
`endif
    initial begin
        reset;
        apb_expect(DATA, 0, "reset DATA");
        apb_expect(STATUS, 0, "reset STATUS");
        apb_expect(CTRL, 0, "reset CTRL");
        apb_expect(DIV, 3, "reset DIV");
        apb_expect(SELECT, 0, "reset SELECT");
        apb_expect(FORMAT, `LACKS ? 0 : 7, "reset FORMAT");
        apb_expect(TIMING, 0, "reset TIMING");
        apb_expect(LEVEL, `LACKS ? 0 : TXLOW, "reset LEVEL");
        apb_expect(THRESHOLD, `LACKS ? 0 : 32'h100, "reset THRESHOLD");
        apb_expect(INTEN, 0, "reset INTEN");
        apb_expect(ID, `LACKS | (`LOG_WIDTH << 24) | (`LOG_DEPTH << 16) | 32'h208, "ID");
        check(nss === 1'b1 && sclk === 1'b0 && irq === 1'b0, "idle pins");
        bytes_one_by_one;
`ifdef BASIC
        nothing_else;
`else
        for (round = 0; round < `ROUNDS(64, 2); round = round + 1) words_of_any_form;
        check(short_idles == 0, "time between selections");
        check(late_first == 0, "time before the first edge");
        check(late_end == 0, "time behind the last edge");
        levels_and_flags;
        ends_at_once;
        late_answers;
        late_ends;
        back_to_itself;
        registers_by_their_parts;
`endif
        finish;
    end
endmodule
