// SD card controller: bytes one by one from the source clock, card detection, INIT; then commands, blocks and every error
// with a card, the clock up to PCLK / 2, the buffer and the interrupts.  FULL: what is there of that, and what is not.
`ifndef FULL
`define FULL 15
`endif
module tb;
`include "bench.vh"
`include "apb_master.vh"
    localparam [3:0] FULL = `FULL;
    localparam [0:0] HAS_COMMANDS = FULL[2], HAS_BLOCKS = &FULL[2:1], HAS_MULTI = &FULL[2:0], HAS_SETTINGS = FULL[3];
    integer half = 67;
    reg  src = 1'b0, src_on = 1'b1, checkin = 1'b1, by_hand = 1'b1, hand = 1'b1;
    wire sd_clk, cs, dataout, card_init, checkout, irq;
    always #half if (src_on) src = ~src;
`include "card.vh"
`ifdef LOG_WORDS
    apb_sdcard #(.LOG_WORDS(`LOG_WORDS)) dut (
`elsif GATES
    apb_sdcard dut (
`else
    apb_sdcard #(.FULL(FULL)) dut (
`endif
                    .PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr),
                    .PWDATA(pwdata), .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr),
                    .sd_spiclk(src), .sd_clk(sd_clk), .sd_cs(cs), .sd_datain(by_hand ? hand : datain), .sd_dataout(dataout),
                    .sd_card_init(card_init), .sd_checkin(checkin), .sd_checkout(checkout), .irq(irq));
    localparam [11:0] DATA = 0, STATUS = 4, CTRL = 8, CLOCK = 'h0C, TIMEOUT = 'h10, BLOCKS = 'h14, ARGUMENT = 'h18,
                      COMMAND = 'h1C, RESPONSE = 'h20, VALUE = 'h24, PROGRESS = 'h28, EVENTS = 'h2C, ENABLE = 'h30,
                      ERRORS = 'h34, ACTION = 'h38, BUFFER = 'h3C, ID = 'hFFC;
    // Fields of COMMAND.
    localparam [31:0] R1B = 'h100, R2 = 'h200, R7 = 'h300, READS = 'h400, WRITES = 'h800, MULTI = 'h1000, WAITS = 'h2000,
                      WAKE = 'h8000;
    // Bits of EVENTS.
    localparam [31:0] DONE = 1, BLOCK = 2, INSERTED = 4, REMOVED = 8, READABLE = 16, WRITABLE = 32, FAILED = 64;
    // Bits of ERRORS.
    localparam [31:0] NOCARD = 'h1, REFUSED = 'h2, ABORTED = 'h4, NORESPONSE = 'h8, ILLEGAL = 'h10, CMDCRC = 'h20,
                      R1ERROR = 'h40, NOTOKEN = 'h80, ERRORTOKEN = 'h100, DATACRC = 'h200, REJECTED = 'h400,
                      NOTWRITTEN = 'h800, BADVERDICT = 'h1000, STAYSBUSY = 'h2000, NOCLOCK = 'h4000, UNDER = 'h8000,
                      OVER = 'h10000;
    localparam [31:0] ABORT = 1, STOP = 2, CLEAR = 4;

    // ---- bytes one by one
    reg [7:0] heard, reply;
    integer   taken = 0, period = 0;
    time      last = 0;
    always @(posedge sd_clk) begin
        heard = {heard[6:0], dataout};
        taken = taken + 1;
        period = $time - last;
        if (by_hand && taken > 1) check((period + 10) / 20 * 20 >= 240 && period <= 300, "period of SD_CLK");
        last = $time;
    end
    always @(negedge sd_clk) if (by_hand) begin
        reply = {reply[6:0], 1'b1};
        hand = #2 reply[7];
    end

    integer k, n, m;
    task single_bytes;
        begin
            apb_expect(STATUS, 0, "reset STATUS");
            apb_expect(CTRL, 0, "reset CTRL");
            check(cs === 1'b1 && sd_clk === 1'b0 && card_init === 1'b0 && checkout === 1'b0 && irq === 1'b0, "idle pins");
            // Card detection.
            apb_write(CTRL, 8);
            checkin = 1'b0; cycles(500); checkin = 1'b1; cycles(20); checkin = 1'b0; cycles(900);
            check(checkout === 1'b0, "a bouncing contact is no card");
            cycles(200);
            check(checkout === 1'b1 && irq === 1'b1, "card present");
            apb_expect(STATUS, 32'h18, "CARD and CHANGED");
            apb_write(STATUS, 32'h10);
            check(irq === 1'b0, "CHANGED cleared");
            apb_write(CTRL, 32'h7);
            check(cs === 1'b0 && card_init === 1'b1, "SELECT and INIT");
            // Bytes.
            for (k = 0; k < 5; k = k + 1) begin
                taken = 0;
                reply = 8'h6D ^ (8'h3B * k);
                hand = reply[7];
                apb_write(DATA, 8'hA6 ^ (8'h59 * k));
                apb_expect(STATUS, 32'h9, "BUSY");
                @(posedge irq); #1;
                check(taken == 8, "eight clock periods");
                check32(heard, (8'hA6 ^ (8'h59 * k)) & 8'hFF, "byte to the card");
                apb_expect(DATA, (8'h6D ^ (8'h3B * k)) & 8'hFF, "byte from the card");
                apb_expect(STATUS, 32'hA, "DONE");
                apb_write(STATUS, 32'h2);
                check(irq === 1'b0, "DONE cleared");
            end
            taken = 0;
            apb_write(DATA, 8'h00);
            apb_write(DATA, 8'hFF);
            @(posedge irq); #1;
            apb_expect(STATUS, 32'hE, "LOST");
            check32(heard, 8'h00, "the running byte goes on");
            apb_write(STATUS, 32'h6);
            // The card leaves.
            checkin = 1'b1;
            cycles(1100);
            check(checkout === 1'b0 && card_init === 1'b0, "no card, INIT cleared");
            apb_expect(CTRL, 32'h5, "the other bits stay");
            apb_expect(STATUS, 32'h10, "CHANGED");
            // Only the lowest byte is sent, and only its flags are cleared.
            apb_write8(DATA + 1, 8'h55); apb_write16(DATA + 2, 16'h5555);
            apb_write8(STATUS + 3, 8'hFF); apb_write16(STATUS + 2, 16'hFFFF);
            apb_expect(STATUS, 32'h10, "nothing sent, nothing cleared");
            taken = 0;
            apb_write8(DATA, 8'h3C);
            @(posedge irq); #1;
            check32(heard, 8'h3C, "a byte written as a byte");
            apb_write8(STATUS, 8'h12);
            apb_expect(STATUS, 0, "cleared by its byte");
            // A byte that gets no clock is ended by software; while it is there, what it hangs on stays.
            src_on = 1'b0;
            cycles(20);
            apb_write(DATA, 8'h00);
            apb_write(CLOCK, 32'h1FF);
            apb_write(COMMAND, 32'h0);
            cycles(5000);
            apb_expect(STATUS, 1, "a byte without a clock");
            apb_expect(CLOCK, 0, "CLOCK stays");
            apb_expect(ERRORS, HAS_COMMANDS ? REFUSED : 0, "REFUSED by a byte");
            apb_write(ACTION, ABORT);
            if (HAS_COMMANDS) begin
                apb_expect(STATUS, 0, "a byte is ended");
                apb_expect(ERRORS, REFUSED, "no command was aborted");
                apb_write(ERRORS, REFUSED);
            end else begin
                apb_expect(STATUS, 1, "nothing ends a byte");
                taken = 0;
                src_on = 1'b1;
                @(posedge irq); #1;
                apb_write(STATUS, 2);
            end
            src_on = 1'b1;
            taken = 0;
            apb_write(DATA, 8'h81);
            @(posedge irq); #1;
            check(taken == 8 && heard == 8'h81, "the next byte is whole");
            apb_write(STATUS, 2);
            apb_write(CTRL, 0);
            by_hand = 1'b0;
        end
    endtask

    // ---- commands
    task start(input [31:0] flags, input [31:0] with);
        begin
            apb_write(ARGUMENT, with);
            apb_write(COMMAND, flags);
        end
    endtask
    // Waits until a command has ended, for at most `limit` cycles.
    task await(input integer limit);
        begin
            apb_write(ENABLE, DONE);
            n = 0;
            while (irq !== 1'b1 && n < limit) begin cycles(1); n = n + 1; end
            check(irq === 1'b1, "the command ends");
            apb_write(ENABLE, 0);
            apb_write(EVENTS, DONE);
            check(cs === 1'b1 && sd_clk === 1'b0 && dataout === 1'b1, "the card is left");
        end
    endtask
    task command(input [31:0] flags, input [31:0] with);
        begin
            start(flags, with);
            await(200000);
        end
    endtask
    // What has gone wrong since, and nothing else.
    task failed_with(input [31:0] expected, input [8*48-1:0] what);
        begin
            apb_expect(ERRORS, expected, what);
            apb_read(EVENTS);
            check(rd[6] === (expected != 0), "FAILED");
            apb_write(ERRORS, 32'hFFFFFFFF);
            apb_expect(ERRORS, 0, "ERRORS cleared");
        end
    endtask
    task good(input [31:0] flags, input [31:0] with, input [8*48-1:0] what);
        begin
            command(flags, with);
            failed_with(0, what);
            check(last_command == flags[5:0] && argument == with, what);
        end
    endtask
    task bad(input [31:0] flags, input [31:0] with, input [31:0] expected, input [8*48-1:0] what);
        begin
            command(flags, with);
            failed_with(expected, what);
        end
    endtask
    function [31:0] stored_word(input integer place);   // of the card, from the beginning
        stored_word = {memory[place * 4 + 3], memory[place * 4 + 2], memory[place * 4 + 1], memory[place * 4]};
    endfunction
    task level(input [31:0] expected, input [8*48-1:0] what);
        begin
            apb_read(PROGRESS);
            check32(rd >> 16, expected, what);
        end
    endtask
    task moved(input [31:0] expected, input [8*48-1:0] what);
        begin
            apb_read(PROGRESS);
            check32(rd & 32'hFFFF, expected, what);
        end
    endtask
    task take_block(input integer number);
        for (k = 0; k < 128; k = k + 1) apb_expect(BUFFER, stored_word(number % 8 * 128 + k), "a word of a block");
    endtask
    function [31:0] pattern(input integer place, input integer seed);
        pattern = (place * 32'h9E3779B1) ^ (seed * 32'h85EBCA77);
    endfunction
    task give_words(input integer count, input integer seed);
        for (k = 0; k < count; k = k + 1) apb_write(BUFFER, pattern(k, seed));
    endtask
    task check_stored(input integer number, input integer seed);
        for (k = 0; k < 128; k = k + 1) check32(stored_word(number * 128 + k), pattern(k, seed), "a stored word");
    endtask
    task await_moved(input integer count);
        begin
            n = 0;
            moved_so_far = 0;
            while (moved_so_far < count && n < 20000) begin
                apb_read(PROGRESS);
                moved_so_far = rd[15:0];
                n = n + 1;
            end
            check(moved_so_far == count, "blocks move");
        end
    endtask
    integer moved_so_far;
    task insert;
        begin
            checkin = 1'b0;
            cycles(1100);
            wakeups = 0;
            apb_write(STATUS, 32'h10);
            apb_write(EVENTS, INSERTED | REMOVED);
        end
    endtask

    task detection;
        begin
            apb_write(EVENTS, 32'hF);
            bad('h0, 0, NOCARD, "no command without a card");
            check(commands == 0 && wakeups == 0, "and nothing on the line");
            apb_write(CLOCK, 32'h0003_0000);              // 4 * 1024 cycles
            apb_write(ENABLE, INSERTED);
            checkin = 1'b0; cycles(3000); checkin = 1'b1; cycles(3); checkin = 1'b0; cycles(4000);
            check(checkout === 1'b0 && irq === 1'b0, "a longer filter");
            cycles(150);
            check(checkout === 1'b1 && irq === 1'b1, "INSERTED");
            apb_read(EVENTS);
            check32(rd & 32'hF, INSERTED, "INSERTED alone");
            apb_write(EVENTS, INSERTED);
            check(irq === 1'b0, "INSERTED cleared");
            apb_write(ENABLE, REMOVED);
            checkin = 1'b1; cycles(4200);
            check(checkout === 1'b0 && irq === 1'b1, "REMOVED");
            apb_read(EVENTS);
            check32(rd & 32'hF, REMOVED, "REMOVED alone");
            apb_write(EVENTS, REMOVED);
            apb_write(ENABLE, 0);
            apb_write(CLOCK, 0);
            insert;
        end
    endtask

    task initialise;
        begin
            // Slow: eight cycles a period.
            apb_write(CLOCK, 32'h103);
            apb_write(CTRL, 1);
            wakeups = 0; taken = 0;
            command(WAKE, 0);
            check(wakeups == 80 && taken == 80 && (period == 80 || !HAS_SETTINGS), "80 periods without select");
            apb_expect(CTRL, 0, "SELECT is taken back");
            failed_with(0, "80 periods");
            good('h00, 0, "CMD0");
            apb_expect(RESPONSE, 32'h01, "R1 of CMD0");
            good('h08 | R7, 32'h1AA, "CMD8");
            apb_expect(VALUE, 32'h1AA, "R7");
            apb_expect(RESPONSE, 32'h01, "R1 of CMD8");
            for (k = 0; k < 3; k = k + 1) begin
                good('h37, 0, "CMD55");
                good('h29, 32'h40000000, "ACMD41");
            end
            apb_expect(RESPONSE, 32'h00, "R1 of a card that is ready");
            good('h3A | R7, 0, "CMD58");
            apb_expect(VALUE, 32'hC0FF8000, "R3");
            good('h3B, 1, "CMD59");
            check(crc_checked, "the card checks CRCs");
            check(period == 80 || !HAS_SETTINGS, "a slow period");
            apb_write(CLOCK, 32'h100);
            good('h0D | R2, 0, "CMD13");
            apb_read(VALUE);
            check32(rd & 32'hFF, 32'h5A, "R2");
            check(period == 20 || !HAS_SETTINGS, "PCLK / 2");
            // Responses may come with the first to the eighth byte.
            for (latency = 0; latency <= 8; latency = latency + 1) good('h3A | R7, 32'h12345678 * latency, "a late response");
            latency = 9;
            bad('h3A | R7, 0, NORESPONSE, "a response that comes too late");
            latency = 1;
            check(crc_errors == 0, "every CRC7 is right");
        end
    endtask

    integer began, cycles_of_blocks;
    task blocks_read;
        begin
            apb_write(EVENTS, BLOCK);
            for (pause = 0; pause < 2; pause = pause + 1) begin
                good('h11 | READS, 32'h300003 + pause, "CMD17");
                apb_read(EVENTS);
                check32(rd, BLOCK | READABLE | WRITABLE, "BLOCK and READABLE");
                apb_write(EVENTS, BLOCK);
                moved(HAS_MULTI, "one block");
                level(128, "128 words");
                take_block(3 + pause);
                level(0, "all taken");
            end
            pause = 3;
            // CSD, CID, SCR and others are shorter.
            apb_write8(BLOCKS + 2, 8'd4);
            good('h09 | READS, 0, "CMD9");
            for (k = 0; k < 4; k = k + 1) apb_expect(BUFFER, 32'h04030201 + k * 32'h04040404, "CSD");
            apb_write8(BLOCKS + 2, 8'd16);
            good('h06 | READS, 0, "CMD6");
            for (k = 0; k < 16; k = k + 1) apb_expect(BUFFER, 32'h04030201 + k * 32'h04040404, "status of CMD6");
            apb_write8(BLOCKS + 2, 8'd2);
            good('h33 | READS, 0, "ACMD51");
            for (k = 0; k < 2; k = k + 1) apb_expect(BUFFER, 32'h04030201 + k * 32'h04040404, "SCR");
            level(0, "nothing more");
        if (HAS_MULTI) begin
            // Several blocks; the clock waits when the buffer is full.
            pause = 1;
            busy_bytes = 3;
            apb_write(BLOCKS, 32'h0080_0005);
            stops = 0;
            start('h12 | READS | MULTI, 6);
            await_moved(2);
            cycles(40);
            apb_expect(STATUS, 32'h69, "it waits for the buffer");
            taken = 0;
            cycles(9000);
            check(taken == 0, "the clock stands still");
            level(256, "two blocks");
            take_block(6);
            await_moved(3);
            take_block(7); take_block(0);
            await_moved(5);
            take_block(1); take_block(2);
            await(1000);
            failed_with(0, "CMD18");
            check(stops == 1 && last_command == 12 && argument == 0, "ended by CMD12");
            check(crc_errors == 0, "also with a right CRC7");
            apb_expect(RESPONSE, 32'h00FE0000, "R1 and token");
            // The share of the line's rate: words are taken while others come.
            pause = 1;
            apb_write(BLOCKS, 32'h0080_0005);
            start('h12 | READS | MULTI, 0);
            for (m = 0; m < 5; m = m + 1) begin
                await_moved(m + 1);
                if (m == 1) began = $time;
                if (m == 4) cycles_of_blocks = ($time - began) / 30;
                take_block(m);
            end
            await(1000);
            failed_with(0, "five blocks");
            $display("reading: %0d cycles a block of 512 bytes at PCLK / 2, %0d.%0d %% of the line's rate", cycles_of_blocks,
                     819200 / (cycles_of_blocks), 8192000 / (cycles_of_blocks) % 10);
            check(cycles_of_blocks <= 8192 * 100 / 97, "97 % of the line's rate");
            // An end by software: after the running block, and while the buffer is full.
            apb_write(BLOCKS, 32'h0080_0000);
            start('h12 | READS | MULTI, 0);
            await_moved(1);
            cycles(2000);
            apb_write(ACTION, STOP);
            take_block(0);
            await(30000);
            moved(2, "the running block is the last");
            take_block(1);
            failed_with(0, "STOP");
            start('h12 | READS | MULTI, 0);
            await_moved(2);
            cycles(100);
            apb_write(ACTION, STOP);
            await(3000);
            failed_with(0, "STOP while the buffer is full");
            take_block(0); take_block(1);
            level(0, "and two blocks");
        end
        end
    endtask

    task blocks_written;
        begin
            apb_write(BLOCKS, 32'h0080_0001);
            apb_write(EVENTS, BLOCK);
            give_words(128, 1);
            good('h18 | WRITES, 2, "CMD24");
            check_stored(2, 1);
            moved(HAS_MULTI, "one block");
            level(0, "the buffer is empty");
            apb_read(EVENTS);
            check32(rd & 32'h3F, BLOCK | WRITABLE, "BLOCK and WRITABLE");
            apb_write(EVENTS, BLOCK);
            apb_expect(RESPONSE, 32'h00E50000, "what the card said");
            if (HAS_MULTI) begin
            // Words that come after the command.
            stops = 0;
            apb_write(BLOCKS, 32'h0080_0003);
            start('h19 | WRITES | MULTI, 6);
            cycles(4000);
            apb_expect(STATUS, 32'h69, "it waits for the buffer");
            give_words(127, 2);
            cycles(1000);
            apb_expect(STATUS, 32'h69, "for a whole block");
            moved(0, "nothing is written");
            apb_write(BUFFER, pattern(127, 2));
            give_words(128, 3);
            await_moved(1);
            give_words(128, 4);
            await(100000);
            failed_with(0, "CMD25");
            check_stored(6, 2); check_stored(7, 3); check_stored(0, 4);
            check(stops == 1 && last_command == 25, "ended by the token");
            moved(3, "three blocks");
            // The share of the line's rate.
            busy_bytes = 1;
            apb_write(BLOCKS, 32'h0080_0004);
            give_words(128, 10);
            start('h19 | WRITES | MULTI, 0);
            for (m = 0; m < 4; m = m + 1) begin
                if (m < 3) give_words(128, 11 + m);
                await_moved(m + 1);
                if (m == 0) began = $time;
                if (m == 3) cycles_of_blocks = ($time - began) / 30;
            end
            await(100000);
            failed_with(0, "four blocks");
            for (m = 0; m < 4; m = m + 1) check_stored(m, 10 + m);
            $display("writing: %0d cycles a block of 512 bytes at PCLK / 2, %0d.%0d %% of the line's rate", cycles_of_blocks,
                     819200 / (cycles_of_blocks), 8192000 / (cycles_of_blocks) % 10);
            check(cycles_of_blocks <= 8192 * 100 / 97, "97 % of the line's rate");
            busy_bytes = 4;
            // An end by software: of blocks that were announced.
            apb_write(BLOCKS, 32'h0080_0000);
            give_words(128, 20);
            start('h19 | WRITES | MULTI, 3);
            await_moved(1);
            cycles(500);
            stops = 0;
            apb_write(ACTION, STOP);
            await(3000);
            failed_with(0, "STOP");
            check_stored(3, 20);
            check(stops == 1, "the token at the end");
            end
            // Blocks that were erased keep the card busy; the next command waits if it is told to.
            busy_bytes = 300;
            good('h26 | R1B, 0, "CMD38 waits until the card is ready");
            check(busy == 0, "not busy");
            start('h26, 0);
            await(3000);
            check(busy > 200, "without R1b it does not wait");
            failed_with(0, "CMD38");
            good('h0D | R2 | WAITS, 0, "a command that waits");
            busy_bytes = 4;
            good('h0C | R1B, 0, "CMD12 by software, with its stuff byte");
            apb_expect(RESPONSE, 32'h00E50000, "R1 of CMD12");
            check(crc_errors == 0, "every CRC is right");
        end
    endtask

    task errors_told;
        begin
            apb_write(TIMEOUT, 32'h0005_0003);
            apb_write(BLOCKS, 32'h0080_0001);
            mute = 1'b1;
            bad('h0D | R2, 0, NORESPONSE, "no response");
            mute = 1'b0;
            bad('h3F, 0, ILLEGAL, "an illegal command");
            r1_errors = 8'h08; bad('h11 | READS, 0, CMDCRC, "a wrong CRC7");
            r1_errors = 8'h20; bad('h11 | READS, 0, R1ERROR, "a wrong address");
            r1_errors = 8'h40; bad('h18 | WRITES, 0, R1ERROR, "a wrong parameter");
            r1_errors = 8'h02; bad('h11 | READS, 0, R1ERROR, "an erase reset");
            r1_errors = 8'h52; bad('h12 | READS | MULTI, 0, R1ERROR, "erase errors");
            apb_expect(RESPONSE, 32'h00E50052, "R1 is kept");
            r1_errors = 8'h00;
            level(0, "no block came");
            // Reading.
            bad_token = 1'b1;
            for (k = 0; k < 5; k = k + 1) begin
                error_token = 8'h01 << k;
                start('h11 | READS, 0); await(20000);
                apb_read(RESPONSE);
                check32(rd[23:16], error_token, "the error token is kept");
                failed_with(ERRORTOKEN, "an error token");
            end
            if (HAS_MULTI) begin
            fault_at = 1; stops = 0; apb_write(BLOCKS, 32'h0080_0004);
            bad('h12 | READS | MULTI, 2, ERRORTOKEN, "an error token later");
            moved(1, "one good block"); level(128, "is in the buffer"); take_block(2);
            check(stops == 1, "and the transfer was ended");
            end
            bad_token = 1'b0;
            bad_crc = 1'b1;
            fault_at = 0;
            apb_write(BLOCKS, 32'h0080_0001);
            bad('h11 | READS, 1, DATACRC, "a wrong CRC16");
            moved(0, "no good block"); level(0, "which the bus does not see");
            if (HAS_MULTI) begin
            fault_at = 1; stops = 0; apb_write(BLOCKS, 32'h0080_0004);
            bad('h12 | READS | MULTI, 5, DATACRC, "a wrong CRC16 later");
            moved(1, "one good block before it"); level(128, "which stays"); take_block(5);
            check(stops == 1, "and the transfer was ended too");
            end
            bad_crc = 1'b0;
            no_token = 1'b1;
            fault_at = 0;
            apb_write(BLOCKS, 32'h0080_0001);
            began = $time;
            bad('h11 | READS, 0, NOTOKEN, "no token");
            check(($time - began) / 10 > 4096 && ($time - began) / 10 < 4096 + 1000, "after its time");
            if (HAS_MULTI) begin
            stops = 0; apb_write(BLOCKS, 32'h0080_0002);
            bad('h12 | READS | MULTI, 0, NOTOKEN, "no token of several blocks");
            check(stops == 1, "the card is stopped");
            end
            no_token = 1'b0;
            // A token that takes long, but not too long.
            pause = 240; apb_write(BLOCKS, 32'h0080_0001);
            good('h11 | READS, 3, "a late token"); take_block(3);
            pause = 3;
            // Writing.
            verdict = 8'hEB; give_words(128, 30);
            bad('h18 | WRITES, 4, REJECTED, "a block with a wrong CRC");
            verdict = 8'hED; give_words(128, 31);
            bad('h18 | WRITES, 4, NOTWRITTEN, "a write error");
            moved(0, "not written"); level(0, "the words are used up");
            apb_expect(RESPONSE, 32'h00ED0000, "what the card said");
            verdict = 8'hE7; give_words(128, 32);
            bad('h18 | WRITES, 4, BADVERDICT, "neither yes nor no");
            verdict = 8'hE5; deaf_to_blocks = 1'b1; give_words(128, 32);
            bad('h18 | WRITES, 4, BADVERDICT, "nothing is said to the block");
            deaf_to_blocks = 1'b0;
            if (HAS_MULTI) begin
            verdict = 8'hEB; fault_at = 1; stops = 0; apb_write(BLOCKS, 32'h0080_0003);
            give_words(128, 33); give_words(128, 34);
            bad('h19 | WRITES | MULTI, 1, REJECTED, "the second block with a wrong CRC");
            moved(1, "one block is written"); check_stored(1, 33);
            check(stops == 1, "and the transfer is ended");
            end
            verdict = 8'hE5; fault_at = 0; apb_write(BLOCKS, 32'h0080_0001);
            stays_busy = 1'b1; give_words(128, 35);
            began = $time;
            bad('h18 | WRITES, 4, STAYSBUSY, "busy for ever");
            check(($time - began) / 10 > 6144 + 8200 && ($time - began) / 10 < 6144 + 9500, "after its time, too");
            bad('h0D | R2 | WAITS, 0, STAYSBUSY, "still busy before a command");
            bad('h26 | R1B, 0, STAYSBUSY, "busy after R1b");
            stays_busy = 1'b0; busy = 0;
            // The source clock stands still.
            src_on = 1'b0;
            apb_write(CLOCK, 0);
            bad('h0D | R2, 0, NOCLOCK, "no clock");
            bad('h0D | R2 | WAITS, 0, NOCLOCK, "no clock while it waits");
            src_on = 1'b1;
            apb_write(TIMEOUT, 32'h0100_0100);
            good('h0D | R2, 0, "with the source clock");
            check(period > 200, "which is slower");
            // In the middle of a block.
            apb_write(TIMEOUT, 32'h0005_0003);
            start('h11 | READS, 0);
            cycles(9000);
            src_on = 1'b0;
            await(10000);
            failed_with(NOCLOCK, "no clock in a block");
            level(0, "half a block is none");
            src_on = 1'b1;
            apb_write(CLOCK, 32'h100);
            good('h11 | READS, 3, "the next one is whole"); take_block(3);
        end
    endtask

    task misuse;
        begin
            // The buffer.
            apb_expect(BUFFER, 0, "an empty buffer reads 0");
            failed_with(UNDER, "nothing to read");
            for (k = 0; k < 256; k = k + 1) apb_write(BUFFER, k);
            level(256, "full");
            apb_read(EVENTS);
            check32(rd[5:4], 2'b01, "READABLE, not WRITABLE");
            apb_write(BUFFER, 32'hFFFFFFFF);
            failed_with(OVER, "no room");
            apb_expect(BUFFER, 0, "the oldest word");
            apb_write8(BUFFER, 8'h77); apb_write16(BUFFER + 2, 16'h7777);
            failed_with(OVER, "parts of a word");
            apb_read(BUFFER + 1); apb_read(BUFFER + 2);
            apb_expect(BUFFER + 3, 1, "reads behind the lowest byte take nothing");
            failed_with(0, "and are no errors");
            for (k = 1; k < 256; k = k + 1) apb_expect(BUFFER, k, "words in their order");
            level(0, "empty");
            apb_write(BUFFER, 1);
            apb_write(ACTION, CLEAR);
            level(0, "cleared");
            // While a command runs.
            apb_write(BLOCKS, 32'h0080_0001);
            pause = 100;
            start('h11 | READS, 3);
            apb_write(COMMAND, 32'h0000);
            failed_with(REFUSED, "a second command");
            apb_write(ARGUMENT, 32'h5); apb_write8(BLOCKS, 8'h9); apb_write(CLOCK, 32'h0); apb_write(TIMEOUT, 0);
            apb_write8(COMMAND + 1, 8'hFF);
            failed_with(REFUSED, "settings of a running command");
            apb_write(BUFFER, 32'h12345678);
            failed_with(OVER, "a word while a block is read");
            apb_write(DATA, 8'h00);
            apb_expect(STATUS, 32'h2D, "a byte while a command runs is lost");
            apb_write(STATUS, 4);
            apb_write(ACTION, CLEAR);
            await(20000);
            failed_with(0, "and the command goes on");
            apb_expect(ARGUMENT, 3, "ARGUMENT stays"); apb_expect(BLOCKS, 32'h0080_0000 | HAS_MULTI, "BLOCKS stays");
            apb_expect(CLOCK, 32'h100, "CLOCK stays"); apb_expect(COMMAND, 32'h411, "COMMAND stays");
            apb_expect(TIMEOUT, 32'h0005_0003, "TIMEOUT stays");
            take_block(3);
            pause = 3;
            give_words(128, 40);
            start('h18 | WRITES, 3);
            apb_read(BUFFER);
            await(20000);
            failed_with(UNDER, "a read while a block is written");
            check_stored(3, 40);
            // A command begins with the lowest byte only.
            commands = 0;
            apb_write8(COMMAND + 1, 8'h02); apb_write16(COMMAND + 2, 16'hFFFF);
            cycles(1000);
            check(commands == 0, "no command");
            apb_write8(COMMAND, 8'h0D);
            await(5000);
            check(commands == 1 && last_command == 13, "a command by its byte");
            apb_expect(COMMAND, 32'h20D, "kept in its bytes");
            // An end by software, at rest and everywhere.
            apb_write(ACTION, ABORT | STOP | CLEAR);
            failed_with(0, "nothing to end");
            for (m = 0; m < (HAS_MULTI ? 12 : 7); m = m + 1) begin
                apb_write(BLOCKS, 32'h0080_0002);
                if (m[0]) give_words(128, 50);
                start(m[0] ? 'h19 | WRITES | MULTI : 'h12 | READS | MULTI, 4);
                cycles(m * 1127 + 7);
                apb_write(ACTION, ABORT | CLEAR);
                apb_read(STATUS);
                check32(rd & 32'h61, 0, "ended at once");
                await(2);
                failed_with(ABORTED, "ABORTED");
                level(0, "cleared");
                busy = 0; idle = 1'b0;
                good('h0D | R2, 0, "the next command");
            end
            // The card leaves in the middle.
            apb_write(CTRL, 2);
            start('h12 | READS | MULTI, 4);
            cycles(3000);
            checkin = 1'b1;
            await(3000);
            failed_with(NOCARD, "the card left");
            check(card_init === 1'b0 && checkout === 1'b0, "INIT cleared");
            apb_expect(STATUS, 32'h10, "CHANGED");
            apb_write(ACTION, CLEAR);
            bad('h0D | R2, 0, NOCARD, "and is not there");
            insert;
            busy = 0;
            good('h11 | READS, 1, "until it is back"); take_block(1);
        end
    endtask

    task interrupts;
        begin
            apb_write(EVENTS, 32'hF);
            apb_write(ENABLE, READABLE);
            check(irq === 1'b0, "not READABLE");
            apb_write(BLOCKS, 32'h0002_0001);
            apb_write(BUFFER, 1);
            check(irq === 1'b0, "a word is no block of two");
            apb_write(BUFFER, 2);
            check(irq === 1'b1, "READABLE");
            apb_write(ENABLE, WRITABLE);
            check(irq === 1'b1, "WRITABLE");
            apb_write(ENABLE, BLOCK);
            check(irq === 1'b0, "no BLOCK");
            apb_write(ACTION, CLEAR);
            apb_write(BLOCKS, 32'h0080_0001);
            start('h11 | READS, 0);
            n = 0;
            while (irq !== 1'b1 && n < 20000) begin cycles(1); n = n + 1; end
            apb_read(EVENTS);
            check32(rd & 3, BLOCK, "BLOCK before DONE");
            apb_write(EVENTS, BLOCK);
            apb_write(ENABLE, FAILED);
            n = 0;
            rd = 0;
            while (!rd[0] && n < 1000) begin apb_read(EVENTS); n = n + 1; end
            check(rd[0] && irq === 1'b0, "DONE, not FAILED");
            apb_write(EVENTS, DONE);
            take_block(0);
            apb_read(BUFFER);
            check(irq === 1'b1, "FAILED");
            apb_write8(ERRORS + 1, 8'h80);
            check(irq === 1'b0, "cleared by its byte");
            apb_write(ENABLE, 0);
        end
    endtask

    task late_sampling;
        begin
            // Beyond half a period only the later edge sees the right bit.
            output_delay = 14;
            apb_write(CLOCK, 32'h300);
            if (HAS_MULTI) begin
            apb_write(BLOCKS, 32'h0080_0003);
            start('h12 | READS | MULTI, 1);
            for (m = 1; m < 4; m = m + 1) begin
                await_moved(m);
                take_block(m);
            end
            await(3000);
            failed_with(0, "several blocks, sampled late");
            end
            apb_write(BLOCKS, 32'h0080_0001);
            give_words(128, 60);
            good('h18 | WRITES, 5, "a block written, sampled late");
            check_stored(5, 60);
            good('h3A | R7, 0, "R3, sampled late");
            apb_expect(VALUE, 32'hC0FF8000, "R3, sampled late");
            apb_write(CLOCK, 32'h30A);
            output_delay = 2;
            good('h0D | R2, 0, "late and slow");
            apb_write(CLOCK, 32'h100);
        end
    endtask

    // Bytes one by one at every rate, also sampled late.
    task bytes_one_by_one;
        begin
            apb_write(CTRL, 1);
            for (m = 0; m < (HAS_SETTINGS ? 6 : 1); m = m + 1) begin
                apb_write(CLOCK, 32'h100 | (m[0] ? 32'h200 : 32'h0) | m[2:1]);
                for (k = 0; k < 6; k = k + 1) begin
                    apb_write(DATA, k == 0 ? 8'h4D : k == 5 ? 8'h0D : 8'h00);
                    cycles(80 * (HAS_SETTINGS ? 1 : 2));
                end
                apb_write(DATA, 8'hFF); cycles(80 * (HAS_SETTINGS ? 1 : 2)); apb_expect(DATA, 8'hFF, "a byte before the response");
                apb_write(DATA, 8'hFF); cycles(80 * (HAS_SETTINGS ? 1 : 2)); apb_expect(DATA, 8'h00, "R1 by bytes");
                apb_write(DATA, 8'hFF); cycles(80 * (HAS_SETTINGS ? 1 : 2)); apb_expect(DATA, 8'h5A, "R2 by bytes");
            end
            apb_write(CTRL, 0);
            apb_write(STATUS, 2);
            apb_expect(ID, {~HAS_SETTINGS, ~HAS_COMMANDS, ~HAS_BLOCKS, ~HAS_MULTI, HAS_BLOCKS ? 28'h008_0209 : 28'h000_0209}, "ID");
        end
    endtask

    // What is asked of what is not there.
    task what_is_not_there;
        begin
            apb_write(EVENTS, 32'hFF); apb_write(STATUS, 32'h16); apb_write(ENABLE, 32'hFFFFFFFF);
            if (!HAS_SETTINGS) apb_write(TIMEOUT, 0);
            if (!HAS_COMMANDS) begin
                commands = 0; taken = 0;
                start('h11 | READS | WAKE, 0);
                start('h0D | R2, 0);
                cycles(2000);
                apb_expect(STATUS, 32'h08, "nothing begins");
                check(taken == 0 && commands == 0 && cs === 1'b1, "nothing on the line");
                checkin = 1'b1; cycles(1100); checkin = 1'b0; cycles(1100);
                apb_expect(STATUS, 32'h18, "CHANGED");
                check(irq === 1'b0, "which CTRL can ask for alone");
                apb_write(STATUS, 32'h10);
            end
            if (!HAS_BLOCKS) begin
                apb_write(BUFFER, 32'h12345678); apb_write8(BUFFER, 8'h12);
                apb_expect(BUFFER, 0, "no word");
                apb_expect(PROGRESS, 0, "nor a level");
                check(irq === 1'b0, "no event of the buffer");
            end
            apb_write(ENABLE, 0);
            if (HAS_COMMANDS && !HAS_BLOCKS) begin
                good('h11 | READS | MULTI, 3, "a block that nobody waits for");
                apb_expect(RESPONSE, 0, "R1 and no token");
                good('h0D | WRITES | R2, 3, "no block to write");
                apb_expect(COMMAND, 'h20D, "no blocks in COMMAND");
                apb_expect(EVENTS, 0, "no BLOCK, not READABLE, not WRITABLE");
            end
            if (HAS_BLOCKS && !HAS_MULTI) begin
                stops = 0;
                apb_write(BLOCKS, 32'h0080_0005);
                start('h11 | READS | MULTI, 6);
                cycles(2000);
                apb_write(ACTION, STOP);
                await(60000);
                failed_with(0, "a block and no more");
                check(last_command == 17 && stops == 0, "which nothing ends");
                apb_expect(COMMAND, 'h411, "no MULTI");
                level(128, "a block"); take_block(6);
                give_words(128, 70);
                good('h18 | WRITES | MULTI, 5, "a block written"); check_stored(5, 70);
                check(stops == 0 && crc_errors == 0, "with the token of a single one");
            end
        end
    endtask

    // Without blocks, what else can go wrong.
    task commands_alone;
        begin
            apb_write(TIMEOUT, 32'h0005_FFFF);
            apb_expect(TIMEOUT, 32'h0005_0000, "the time of tokens");
            mute = 1'b1; bad('h0D | R2, 0, NORESPONSE, "no response"); mute = 1'b0;
            bad('h3F, 0, ILLEGAL, "an illegal command");
            r1_errors = 8'h08; bad('h0D | R2, 0, CMDCRC, "a wrong CRC7");
            r1_errors = 8'h40; bad('h0D, 0, R1ERROR, "a wrong parameter");
            r1_errors = 8'h00;
            busy_bytes = 300;
            good('h26 | R1B, 0, "CMD38 waits until the card is ready");
            check(busy == 0, "not busy");
            start('h26, 0); await(3000); failed_with(0, "CMD38");
            check(busy > 200, "without R1b it does not wait");
            good('h0C | R1B | WAITS, 0, "CMD12 by software, with its stuff byte");
            busy_bytes = 4;
            stays_busy = 1'b1;
            bad('h26 | R1B, 0, STAYSBUSY, "busy after R1b");
            bad('h0D | R2 | WAITS, 0, STAYSBUSY, "still busy before a command");
            stays_busy = 1'b0; busy = 0;
            src_on = 1'b0;
            apb_write(CLOCK, 0);
            bad('h0D | R2, 0, NOCLOCK, "no clock");
            src_on = 1'b1;
            apb_write(CLOCK, 32'h100);
            start('h3A | R7, 0);
            apb_write(BLOCKS, 0);
            failed_with(0, "a register that is not there refuses nothing");
            apb_write(ARGUMENT, 5); apb_write(COMMAND, 'h3F);
            failed_with(REFUSED, "a running command");
            apb_write(ACTION, ABORT);
            await(2);
            failed_with(ABORTED, "ABORTED");
            good('h3A | R7, 0, "the next command");
            start('h3A | R7, 0);
            checkin = 1'b1;
            await(5000);
            apb_read(ERRORS);
            check(rd == 0 || rd == NOCARD, "with or without its end");
            cycles(1100);
            apb_write(ERRORS, NOCARD);
            bad('h0D | R2, 0, NOCARD, "the card is not there");
            insert;
            good('h0D | R2, 0, "until it is back");
            check(crc_errors == 0, "every CRC7 is right");
        end
    endtask

    // Of another size, which only LEVEL, room and ID show.
    task whole_buffer(input integer words);
        begin
            apb_expect(ID, words == 256 ? 32'h0008_0209 : words == 512 ? 32'h0009_0209 : 32'h000A_0209, "ID");
            for (k = 0; k < words; k = k + 1) apb_write(BUFFER, ~k);
            level(words, "full");
            failed_with(0, "until now");
            apb_write(BUFFER, 0);
            failed_with(OVER, "no room");
            for (k = 0; k < words; k = k + 1) apb_expect(BUFFER, ~k, "words in their order");
            apb_write(BLOCKS, 32'h0080_0000 | (words / 128 + 1));
            start('h12 | READS | MULTI, 5);
            await_moved(words / 128);
            cycles(1000);
            apb_expect(STATUS, 32'h69, "it waits for the buffer");
            level(words, "full of blocks");
            for (m = 0; m < words / 128; m = m + 1) take_block(5 + m);
            await(20000);
            take_block(5 + m);
            failed_with(0, "one block more than fit");
        end
    endtask

    task a_block_each_way;
        begin
            good('h11 | READS, 32'h300003, "CMD17"); take_block(3);
            apb_write(BLOCKS, 32'h0080_0001);
            give_words(128, 1);
            good('h18 | WRITES, 2, "CMD24"); check_stored(2, 1);
        end
    endtask

    task two_blocks_each_way;
        begin
            stops = 0;
            apb_write(BLOCKS, 32'h0080_0002);
            bad('h12 | READS | MULTI, 6, 0, "CMD18"); take_block(6); take_block(7); moved(2, "two blocks");
            give_words(128, 2); give_words(128, 3);
            good('h19 | WRITES | MULTI, 3, "CMD25"); check_stored(3, 2); check_stored(4, 3); moved(2, "two blocks");
            check(stops == 2 && crc_errors == 0, "both are ended");
        end
    endtask

    function [31:0] in_blocks(input [31:0] value);
        in_blocks = value & {{16{HAS_BLOCKS}}, {16{HAS_MULTI}}};
    endfunction
    // Without a card, so that nothing begins.
    task registers_by_their_parts;
        begin
            checkin = 1'b1;
            reset;
            apb_parts(CTRL, 32'hF, 0); apb_parts(CLOCK, HAS_SETTINGS ? 32'h03FF03FF : 0, 0);
            apb_parts(TIMEOUT, {{16{HAS_SETTINGS & HAS_COMMANDS}}, {16{HAS_SETTINGS & HAS_BLOCKS}}}, 0);
            apb_parts(ARGUMENT, {32{HAS_COMMANDS}}, 0);
            apb_parts(COMMAND, (HAS_COMMANDS ? 32'hA33F : 0) | (HAS_BLOCKS ? 32'h0C00 : 0) | (HAS_MULTI ? MULTI : 0), 0);
            apb_parts(ENABLE, (HAS_COMMANDS ? 32'h4D : 0) | (HAS_BLOCKS ? 32'h32 : 0), 0);
            // The words of a block are never none.
            apb_write8(BLOCKS, 8'h34); apb_write8(BLOCKS + 1, 8'h12);
            apb_expect(BLOCKS, in_blocks(32'h0080_1234), "bytes of the number of blocks");
            apb_write16(BLOCKS + 2, 16'hFF00);
            apb_expect(BLOCKS, in_blocks(32'h0001_1234), "at least a word");
            apb_write8(BLOCKS + 2, 8'hFE); apb_write8(BLOCKS + 3, 8'hFF);
            apb_expect(BLOCKS, in_blocks(32'h00FE_1234), "a byte of the words of a block");
            apb_parts(12'h040, 0, 0);
            apb_expect(STATUS, 0, "nothing began");
            if (HAS_COMMANDS) failed_with(NOCARD, "for want of a card");
            for (m = 'h10; m < 'h40 && !HAS_COMMANDS; m = m + 4) apb_expect(m, 0, "no register of commands");
        end
    endtask

    initial begin
        reset;
`ifdef LOG_WORDS
        by_hand = 1'b0;
        insert;
        apb_write(CLOCK, 32'h100);
        whole_buffer(1 << `LOG_WORDS);
        finish;
`endif
        single_bytes;
        if (HAS_COMMANDS && HAS_SETTINGS) detection;
        else begin half = 26; insert; end
        if (HAS_COMMANDS) initialise;
`ifdef SHORT
        a_block_each_way;
`else
        if (FULL != 15) what_is_not_there;
        if (HAS_BLOCKS && HAS_SETTINGS) begin
            blocks_read;
            blocks_written;
            errors_told;
            misuse;
            interrupts;
            late_sampling;
        end else if (HAS_BLOCKS) begin
            a_block_each_way;
            if (HAS_MULTI) two_blocks_each_way;
        end else if (HAS_COMMANDS && HAS_SETTINGS) commands_alone;
        bytes_one_by_one;
`endif
        registers_by_their_parts;
        finish;
    end
endmodule
