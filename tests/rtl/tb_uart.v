// UART: an independent receiver at the transmitter's line and an independent transmitter at the receiver's, with all formats
// at random and rates up to 4 % off; FIFOs, thresholds, errors that travel with their character, break, time-out, loop-back,
// glitches, fractions of the divider, and the tolerance of the receiver by bit time and format.
module tb;
`include "bench.vh"
`include "apb_master.vh"
    reg  rxd = 1'b1;
    wire txd, irq;
`ifdef BASIC
    localparam LOG_DEPTH = 1, HAS_TIMEOUT = 0, IS_BASIC = 1;
    apb_uart #(.LOG_DEPTH(1), .TIMEOUT(0), .FULL(0)) dut (
`else
`ifdef UART_SMALL
    localparam LOG_DEPTH = 1, HAS_TIMEOUT = 0, IS_BASIC = 0;
    apb_uart #(.LOG_DEPTH(1), .TIMEOUT(0)) dut (
`else
    localparam LOG_DEPTH = 4, HAS_TIMEOUT = 1, IS_BASIC = 0;
    apb_uart dut (
`endif
`endif
        .PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr), .PWDATA(pwdata),
        .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr), .rxd(rxd), .txd(txd), .irq(irq));
    localparam DEPTH = 1 << LOG_DEPTH;
    localparam [31:0] RXBREAK = IS_BASIC ? 0 : 32'h80;
    localparam [11:0] DATA = 'h000, STATUS = 'h004, CTRL = 'h008, BAUD = 'h00C, FORMAT = 'h010, LEVEL = 'h014, THRESHOLD = 'h018,
                      TIMEOUT = 'h01C, COMMAND = 'h020, ID = 'hFFC;
    localparam [31:0] TXEN = 1, RXEN = 2, TXIE = 4, RXIE = 8, ERRIE = 16, TIMEOUTIE = 32, BREAKIE = 64, IDLEIE = 128,
                      BREAK = 256, LOOP = 512;

    // The line's format: what both models follow. Times are in tenths of a clock cycle.
    integer   bits = 8, parity = 0, stops = 1;   // parity: PARITY, ODD and STICK of FORMAT
    real      exact = 160.0;
    function integer whole(input real value);
        whole = $rtoi(value + 0.5);
    endfunction
    function [8:0] masked(input [8:0] value, input integer width);
        masked = value & ((9'd1 << width) - 9'd1);
    endfunction
    function parity_of(input [8:0] value);   // 1 even, 3 odd, 5 space, 7 mark
        parity_of = parity == 1 ? ^value : parity == 3 ? ~^value : parity == 7;
    endfunction
    function has_parity(input integer kind);
        has_parity = kind % 2 == 1;
    endfunction
    task set_format(input integer n, input integer kind, input integer stop, input keep);
        begin
            bits = n; parity = kind; stops = stop;
            apb_write(FORMAT, (n - 5) | (kind << 3) | ((stop - 1) << 6) | (keep << 7));
        end
    endtask
    task set_rate(input integer cycles_of_bit, input integer sixty_fourths);
        begin
            exact = 10.0 * cycles_of_bit + 10.0 * sixty_fourths / 64.0;
            apb_write(BAUD, cycles_of_bit | (sixty_fourths << 20));
        end
    endtask

    // The receiver's model: it looks at each bit near its begin, in its middle and near its end. {wrong, break, character}
    reg [10:0] got [0:255];
    integer    n_got = 0, n_bit, n_last;
    time       begun, stop_at, break_time;
    reg [8:0]  heard;
    reg        heard_bit, heard_wrong;
    task hear(input integer index);
        begin
            #(begun + whole(exact * index) + 12 - $time) heard_bit = txd;
            #(begun + whole(exact * (index + 0.5)) - $time) heard_wrong = heard_wrong | (txd !== heard_bit);
            #(begun + whole(exact * (index + 1)) - 12 - $time) heard_wrong = heard_wrong | (txd !== heard_bit);
        end
    endtask
    initial forever begin
        @(negedge txd);
        if (rstn) begin
            begun = $time; heard = 9'd0; heard_wrong = 1'b0;
            hear(0);
            heard_wrong = heard_wrong | heard_bit;
            for (n_bit = 0; n_bit < bits; n_bit = n_bit + 1) begin
                hear(n_bit + 1);
                heard[n_bit] = heard_bit;
            end
            n_last = bits + 1;
            if (has_parity(parity)) begin
                hear(n_last);
                heard_wrong = heard_wrong | (heard_bit != parity_of(heard));
                n_last = n_last + 1;
            end
            hear(n_last);
            if (heard_bit) begin
                got[n_got] = {heard_wrong, 1'b0, heard};
                if (stops == 2) begin
                    hear(n_last + 1);
                    got[n_got] = {heard_wrong | ~heard_bit, 1'b0, heard};
                end
            end else begin
                got[n_got] = {heard != 9'd0, 1'b1, 9'd0};
                @(posedge txd) break_time = $time - begun;
            end
            n_got = n_got + 1;
        end
    end

    // The transmitter's model. Flaws: 1 wrong parity, 2 no stop bit, 3 break, 4 spikes of `spike` tenths in each bit.
    integer spike = 0;
    task send_frame(input [8:0] value, input real bit_time, input integer flaw);
        integer i, total;
        time    start;
        reg [12:0] frame;
        begin
            frame = {13{1'b1}};
            frame[0] = 1'b0;
            for (i = 0; i < bits; i = i + 1) frame[1 + i] = value[i];
            total = bits + 1;
            if (has_parity(parity)) begin
                frame[total] = parity_of(masked(value, bits)) ^ (flaw == 1);
                total = total + 1;
            end
            frame[total] = flaw != 2;
            total = total + 1;
            if (flaw == 3) frame = 13'd0;
            start = $time;
            for (i = 0; i < total; i = i + 1) begin
                rxd = frame[i];
                if (flaw == 4) begin
                    // In the middle of the bit, or beside it.
                    #(start + whole(bit_time * (i + 0.44 + 0.06 * (i % 3))) - $time) rxd = ~frame[i];
                    #(spike) rxd = frame[i];
                end
                #(start + whole(bit_time * (i + 1)) - $time);
            end
            rxd = 1'b1;
            if (flaw == 2 || flaw == 3 || flaw == 4) #(whole(bit_time));
        end
    endtask
    // What DATA says of it, if everything is kept.
    function [31:0] told(input [8:0] value, input integer flaw);
        told = flaw == 3 ? 32'hC00 : {22'd0, flaw == 2, flaw == 1, masked(value, bits)} & (flaw == 2 ? 32'h5FF : 32'h3FF);
    endfunction
    task send(input [8:0] value, input real bit_time, input integer flaw);
        begin
            send_frame(value, bit_time, flaw);
            #(whole(bit_time * 0.2)) cycles(4);
        end
    endtask

    // How far the rate of the transmitter may be off, in 0.05 %: characters that follow each other without a gap,
    // at up to ten places of the clock cycle.
    reg took;
    task try_rate(input integer sign, input integer steps);
        integer phase, i;
        real    bit_time;
        begin
            took = 1'b1;
            bit_time = exact / (1.0 + sign * steps * 0.0005);
            for (phase = 0; phase < 10 && took; phase = phase + (exact < 200.0 ? 1 : 5)) begin
                apb_write(COMMAND, 1);
                apb_write(STATUS, 'hF8);
                cycles(2); #(phase + 1);
                // Without a stop bit between them that is longer than the others.
                send_frame(9'h155, bit_time, 0);
                send_frame(9'h1FF, bit_time, 0);
                send_frame(9'h000, bit_time, 0);
                cycles(5 + whole(exact / 10.0));
                for (i = 0; i < 3; i = i + 1) begin
                    apb_read(DATA);
                    took = took && rd === masked(i == 0 ? 9'h155 : i == 1 ? 9'h1FF : 9'h000, bits);
                end
                apb_read(STATUS);
                took = took && (rd & 'hF8) == 0;
                #(100) cycles(40);
            end
        end
    endtask
    integer measured [0:1];
    task tolerance(input integer cycles_of_bit, input integer sixty_fourths, input integer n, input integer kind,
                   input integer from);   // steps that are not tried below the figure that is promised
        integer sign, k, steps, promised;
        real    d, length;
        begin
            set_rate(cycles_of_bit, sixty_fourths);
            set_format(n, kind, 1, 1);
            d = exact / 10.0;
            length = n + 2 + (kind % 2);
            for (k = 0; k < 2; k = k + 1) begin
                sign = k == 0 ? -1 : 1;
                promised = $rtoi((0.5 - 1.0 / d) / (length - 0.5) * 2000.0 - 0.5);
                steps = promised - from;
                try_rate(sign, steps);
                check(took, "the tolerance that is promised, and less");
                while (took && steps < 180) begin
                    measured[k] = steps;
                    steps = steps + 2;
                    try_rate(sign, steps);
                end
                check(measured[k] >= promised, "the tolerance that is promised");
                check(steps < 180, "the measurement has an end");
                check(measured[k] >= 80 || (length > 11.5 && d < 26.0), "4 percent");
            end
            $display("%0d bits, parity %0d, %0.2f cycles: %0.2f %% slower, %0.2f %% faster", n, kind, d, measured[0] * 0.05,
                     measured[1] * 0.05);
        end
    endtask

    task wait_sent;
        begin
            apb_read(STATUS);
            while (rd[2]) apb_read(STATUS);
        end
    endtask

    // Characters that were sent and their flaws, for what is received in between.
    reg [8:0] sent [0:15];
    integer   flaws [0:15];
    integer   n, k, count, flaw, seed = 7, wanted, cyc, frac, kind, keep;
    real      off;
    time      started;
    reg [31:0] word;
    reg       lost;
    initial begin
        reset;
        apb_expect(STATUS, 0, "reset STATUS");
        apb_expect(CTRL, 0, "reset CTRL");
        apb_expect(BAUD, 16, "reset BAUDDIV");
        apb_expect(FORMAT, IS_BASIC ? 0 : 3, "reset FORMAT");
        apb_expect(LEVEL, 32'h10000, "reset LEVEL");
        apb_expect(THRESHOLD, 0, "reset THRESHOLD");
        apb_expect(TIMEOUT, 0, "reset TIMEOUT");
        apb_expect(DATA, 0, "nothing to read");
        apb_expect(ID, (IS_BASIC ? 32'hE0000202 : 32'h01800202) | (HAS_TIMEOUT << 28) | (LOG_DEPTH << 16), "ID");
        check(txd === 1'b1 && irq === 1'b0, "idle line");
        apb_write(BAUD, 3);
        apb_expect(BAUD, 16, "smallest divider");
        apb_write(BAUD, 32'h03FFFFFF);
        apb_expect(BAUD, IS_BASIC ? 32'h000FFFFF : 32'h03FFFFFF, "largest divider");

        // A program of the block of old: without the new registers.
        set_rate(21, 0);
        apb_write(DATA, 8'h55);
        apb_expect(STATUS, 32'h4, "disabled: the byte waits");
        cycles(100);
        check(txd === 1'b1, "disabled: nothing is sent");
        apb_write(CTRL, TXEN);
        cycles(2);
        apb_expect(STATUS, 32'h4, "the line is busy");
        apb_write(DATA, 8'hA3);
        started = $time;
        while (n_got < 2) cycles(1);
        cycles(21);
        apb_expect(STATUS, 32'h0, "all sent");
        check(got[0] === 11'h055 && got[1] === 11'h0A3, "both bytes");
        check(($time - started) / 10 < 2 * 10 * 21 + 40, "bytes follow without a gap");
        apb_write(CTRL, TXEN | TXIE);
        check(irq === 1'b1, "interrupt while there is room");
        apb_write(CTRL, TXIE);
        for (n = 0; n < DEPTH; n = n + 1) begin
            check(irq === 1'b1, "room for a byte");
            apb_expect(STATUS, n == 0 ? 32'h0 : 32'h4, "not full");
            apb_write(DATA, 8'h30 + n);
        end
        check(irq === 1'b0, "no interrupt while it is full");
        apb_expect(STATUS, 32'h5, "TXFULL");
        apb_expect(LEVEL, 32'h10000 | (DEPTH << 8), "the FIFO's level");
        apb_write(DATA, 8'hFF);
        apb_expect(STATUS, 32'h25, "written while full: TXOVER");
        apb_write(CTRL, ERRIE);
        check(irq === 1'b1, "interrupt of TXOVER");
        apb_write(STATUS, 32'h20);
        apb_expect(STATUS, 32'h05, "TXOVER cleared");
        check(irq === 1'b0, "no more error");
        n_got = 0;
        apb_write(CTRL, TXEN | IDLEIE);
        check(irq === 1'b0, "something is to be sent");
        while (n_got < DEPTH) cycles(1);
        cycles(25);
        check(irq === 1'b1, "interrupt when everything is sent");
        for (n = 0; n < DEPTH; n = n + 1) check(got[n] === 11'h030 + n, "bytes of the FIFO in order");
        check(n_got === DEPTH, "the byte that was too much is not sent");
        apb_write(CTRL, 0);
        send(8'h12, 210, 0);
        apb_expect(STATUS, 0, "disabled: nothing is received");
        apb_write(CTRL, RXEN | RXIE);
        check(irq === 1'b0, "no byte, no interrupt");
        for (n = 0; n < 8; n = n + 1) begin
            word = (8'h9C ^ (8'h25 * n[7:0])) & 8'hFF;
            send(word, 210 + ((n % 3) - 1) * 8, 0);
            check(irq === 1'b1, "interrupt of a byte");
            apb_expect(STATUS, 32'h2, "RXFULL");
            apb_expect(DATA, word, "received byte, also 4 % off the rate");
            apb_expect(STATUS, 32'h0, "reading empties");
            check(irq === 1'b0, "no interrupt without a byte");
        end
        for (n = 0; n <= DEPTH; n = n + 1) send(8'h40 + n, 210, 0);
        apb_expect(STATUS, 32'hA, "RXOVER");
        apb_write(CTRL, RXEN | ERRIE);
        check(irq === 1'b1, "interrupt of an error");
        apb_expect(DATA, 8'h40, "the first bytes are kept");
        send(8'h7D, 210, 0);
        for (n = 1; n < DEPTH; n = n + 1) apb_expect(DATA, 8'h40 + n, "in order");
        apb_expect(DATA, 32'h107D, "the one behind the lost ones says so");
        apb_write(STATUS, 32'h8);
        apb_expect(STATUS, 32'h0, "RXOVER cleared");
        check(irq === 1'b0, "no more error");
        apb_write(CTRL, RXEN | BREAKIE);
        send(8'h7E, 210, 2);
        check(irq === 1'b0, "no interrupt of a break");
        apb_write(CTRL, RXEN | ERRIE);
        apb_expect(STATUS, 32'h10, "FRAME, and the byte is dropped");
        check(irq === 1'b1, "interrupt of a framing error");
        apb_write(STATUS, 32'h10);
        check(irq === 1'b0, "which is over");
        send(0, 210, 3);
        apb_expect(STATUS, RXBREAK | 32'h10, "a break is a framing error");
        apb_write(STATUS, 32'h10);
        check(irq === 1'b0, "a program that does not know of breaks is not asked again");
        apb_write(STATUS, 32'h80);
        rxd = 1'b0; cycles(5); rxd = 1'b1;
        cycles(300);
        apb_expect(STATUS, 32'h0, "a glitch is not a start bit");
        send(8'hC3, 210, 0);
        apb_expect(DATA, 8'hC3, "received after it");
        rxd = 1'b0; cycles(21 * 30);
        apb_expect(LEVEL, 0, "a line that stays low");
        rxd = 1'b1; cycles(42);
        apb_expect(STATUS, RXBREAK | 32'h10, "is one break");
        apb_write(STATUS, 32'h90);
        cycles(300);
        apb_expect(STATUS, 32'h0, "and nothing behind it");
        rxd = 1'b0; cycles(50);
        apb_expect(STATUS, 32'h200, "RXBUSY");
        apb_write(CTRL, 0);
        rxd = 1'b1; cycles(300);
        apb_expect(STATUS, 32'h0, "switched off within a byte");

`ifdef BASIC
        apb_parts(FORMAT, 0, 0); apb_parts(TIMEOUT, 0, 0); apb_parts(CTRL, 32'hBF, 0);
        apb_write(CTRL, TXEN | RXEN | BREAK | LOOP | BREAKIE);
        send(8'h5B, 210, 0);
        apb_expect(DATA, 8'h5B, "no loop-back");
        check(txd === 1'b1, "no break");
        apb_expect(STATUS, 0, "nothing to send");
`else
        // Parts: DATA is sent and taken by its lowest byte alone.
        apb_write8(DATA + 1, 8'h55); apb_write8(DATA + 3, 8'h55); apb_write16(DATA + 2, 16'h5555);
        apb_expect(STATUS, 32'h0, "nothing to send");
        set_format(9, 0, 1, 1);
        n_got = 0;
        apb_write8(DATA, 8'hFF);
        apb_write16(DATA, 16'h0111);
        apb_expect(LEVEL, 32'h10200, "two characters");
        apb_write(CTRL, TXEN);
        wait_sent;
        check(got[0] === 11'h0FF && got[1] === 11'h111, "a byte has no bit 8, a halfword has");
        set_format(8, 0, 1, 0);
        apb_write(CTRL, 0);
        for (n = 0; n <= DEPTH; n = n + 1) apb_write8(DATA, 8'h77);
        apb_write8(STATUS + 1, 8'hFF); apb_write16(STATUS + 2, 16'hFFFF);
        apb_expect(STATUS, 32'h25, "nothing cleared beside the byte");
        apb_write8(STATUS, 8'h20);
        apb_expect(STATUS, 32'h5, "cleared by its byte");
        apb_write8(COMMAND + 1, 8'hFF);
        apb_expect(STATUS, 32'h5, "no command beside the byte");
        apb_write8(COMMAND, 8'h01);
        apb_expect(STATUS, 32'h5, "the other FIFO");
        apb_write8(COMMAND, 8'h02);
        apb_expect(STATUS, 32'h0, "TXCLEAR");
        apb_write8(CTRL, RXEN);
        send(8'h42, 210, 0);
        apb_read(DATA + 1); apb_read(DATA + 2); apb_read(DATA + 3);
        apb_expect(LEVEL, 32'h10001, "reads of the other bytes take nothing");
        apb_expect(DATA, 8'h42, "the byte");
        apb_expect(STATUS, 32'h0, "taken");
        send(8'h43, 210, 0);
        send(8'h44, 210, 0);
        apb_write(COMMAND, 1);
        apb_expect(STATUS, 32'h0, "RXCLEAR");
        apb_expect(DATA, 0, "nothing left");
        apb_write(BAUD, 32'h00000107);
        apb_write8(BAUD + 1, 8'h00);
        apb_expect(BAUD, 16, "the minimum");
        apb_write8(BAUD + 2, 8'h31);
        apb_expect(BAUD, 32'h310007, "counts only while the whole is smaller");
        apb_write8(BAUD + 3, 8'hFF);
        apb_expect(BAUD, 32'h3310007, "the upper part of the fraction");
        apb_write16(CTRL, 16'h0200);
        apb_write8(CTRL, 8'h00);
        apb_expect(CTRL, LOOP, "CTRL by bytes");
        apb_write(CTRL, 0);

        // Thresholds.
        set_rate(16, 0);
        apb_write(THRESHOLD, 1);
        apb_write(CTRL, RXEN | RXIE);
        send(8'h31, 160, 0);
        check(irq === 1'b0, "one does not reach the threshold");
        send(8'h32, 160, 0);
        check(irq === 1'b1, "two do");
        apb_read(DATA);
        check(irq === 1'b0, "one again");
        apb_write8(THRESHOLD + 1, DEPTH - 1);
        apb_write(CTRL, TXIE);
        check(irq === 1'b1, "the transmit FIFO is empty");
        apb_write(DATA, 8'h66);
        check(irq === 1'b0, "it is not");
        apb_write8(THRESHOLD + 1, DEPTH - 2);
        check(irq === 1'b1, "all places but one");
        apb_write(DATA, 8'h67);
        check(irq === 1'b0, "all places but two");
        apb_expect(THRESHOLD, (DEPTH - 2) << 8 | 1, "THRESHOLD by bytes");
        apb_write(COMMAND, 3);
        apb_write(THRESHOLD, 0);

        // Break.
        n_got = 0;
        apb_write(CTRL, TXEN);
        apb_write(DATA, 8'h81);
        apb_write(DATA, 8'h18);
        apb_write(CTRL, TXEN | BREAK);
        apb_write(CTRL, TXEN);
        wait_sent;
        cycles(16);
        check(n_got === 3 && got[0] === 11'h081 && got[1] === 11'h200 && got[2] === 11'h018, "behind the first character");
        check(break_time === 13 * 160, "thirteen bit times");
        apb_write(CTRL, BREAK);
        apb_expect(STATUS, 32'h4, "a break that is due");
        cycles(40);
        check(txd === 1'b1, "not while the transmitter is off");
        apb_write(CTRL, TXEN | BREAK);
        cycles(350);
        apb_write(CTRL, TXEN | BREAK);
        cycles(350);
        check(txd === 1'b0, "as long as it is asked for");
        started = $time;
        apb_write(CTRL, TXEN);
        wait_sent;
        check($time - started >= 160, "a stop bit behind it");
        cycles(20);
        check(n_got === 4 && got[3] === 11'h200 && break_time >= 7000, "a long break");

        // Loop-back: nothing to be seen outside, and nothing to be heard from there.
        set_rate(16, 32);
        apb_write(CTRL, LOOP);
        apb_write(CTRL, TXEN | RXEN | LOOP | BREAKIE);
        n_got = 0;
        fork
            send(8'h99, 165, 0);
            begin
                for (n = 0; n < 2; n = n + 1) apb_write(DATA, 8'hE1 + n);
                wait_sent;
            end
        join
        cycles(8);
        apb_expect(DATA, 8'hE1, "heard from itself");
        apb_expect(DATA, 8'hE2, "heard from itself");
        check(n_got === 0, "nothing on the line");
        check(irq === 1'b0, "no break");
        apb_write(CTRL, TXEN | RXEN | LOOP | BREAKIE | BREAK);
        apb_write(CTRL, TXEN | RXEN | LOOP | BREAKIE);
        wait_sent;
        cycles(8);
        apb_expect(STATUS, 32'h90, "a break through the loop");
        check(irq === 1'b1, "interrupt of a break");
        apb_write(STATUS, 32'h90);
        check(irq === 1'b0, "which is over");
        apb_write(CTRL, 0);

        // Receive time-out.
        set_rate(20, 0);
        apb_write(TIMEOUT, 10);
        apb_expect(TIMEOUT, HAS_TIMEOUT ? 10 : 0, "TIMEOUT");
        if (HAS_TIMEOUT) begin
            apb_write(THRESHOLD, 15);
            apb_write(CTRL, RXEN | RXIE | TIMEOUTIE);
            cycles(600);
            apb_expect(STATUS, 32'h0, "nothing waits, no time-out");
            for (n = 0; n < 3; n = n + 1) begin
                send(8'h70 + n, 200, 0);
                cycles(150);
                check(irq === 1'b0, "characters come in time");
            end
            for (n = 0; n < 100 && !irq; n = n + 1) cycles(1);
            check(n > 5 && n < 60, "ten bit times behind the last one");
            apb_expect(STATUS, 32'h102, "TIMEOUT");
            apb_expect(DATA, 8'h70, "the first one");
            check(irq === 1'b0, "reading begins anew");
            for (n = 0; n < 300 && !irq; n = n + 1) cycles(1);
            check(n >= 179 && n <= 221, "ten bit times");
            send(8'h73, 200, 0);
            check(irq === 1'b0, "as does a character");
            apb_write(TIMEOUT, 2);
            cycles(45);
            check(irq === 1'b1, "another time");
            apb_write(COMMAND, 1);
            check(irq === 1'b0, "nothing waits any more");
            send(8'h74, 200, 0);
            cycles(45);
            check(irq === 1'b1, "a last time");
            apb_write(TIMEOUT, 0);
            apb_expect(STATUS, 32'h2, "switched off");
            apb_write(COMMAND, 1);
            apb_write(THRESHOLD, 0);
        end
        apb_write(CTRL, 0);

        // Random formats, bit times and rates; both directions at once. Characters with errors are kept or dropped.
        for (count = 0; count < `ROUNDS(60, 2); count = count + 1) begin
            cyc  = 16 + $urandom(seed) % (count % 12 == 0 ? 100 : 20);
            frac = count % 3 == 0 ? 0 : $urandom(seed) % 64;
            keep = count % 4 > 1;
            kind = count % 2 == 0 ? 1 + 2 * ($urandom(seed) % 4) : 2 * ($urandom(seed) % 4);
            set_rate(cyc, frac);
            set_format(5 + $urandom(seed) % 5, kind, 1 + $urandom(seed) % 2, keep);
            off = (cyc < 26 && bits + (kind % 2) == 10) ? 0.035 : 0.04;
            off = 1.0 + ($urandom(seed) % 3 - 1.0) * off;
            n_got = 0;
            apb_write(CTRL, TXEN | RXEN);
            wanted = 0; lost = 1'b0;
            fork
                for (n = 0; n < DEPTH; n = n + 1) begin
                    sent[n]  = $urandom(seed);
                    flaws[n] = $urandom(seed) % 8;
                    if (flaws[n] > 4 || (flaws[n] == 1 && kind % 2 == 0)) flaws[n] = 0;
                    spike = 1 + $urandom(seed) % (cyc / 16 * 10);
                    send_frame(sent[n], exact / off, flaws[n]);
                    if (n % 3 == 0) #($urandom(seed) % 400);
                end
                begin
                    for (k = 0; k < DEPTH; k = k + 1) apb_write(DATA, 32'h1FF & ((count + 3) * (k + 1) * 55));
                    wait_sent;
                end
            join
            cycles(cyc + 8);
            check(n_got === DEPTH, "number of characters sent");
            for (k = 0; k < DEPTH; k = k + 1)
                check(got[k] === {2'b00, masked(32'h1FF & ((count + 3) * (k + 1) * 55), bits)}, "character sent");
            word = 0;
            for (k = 0; k < DEPTH; k = k + 1) begin
                flaw = flaws[k];
                // A character without a stop bit that has no ones is a break.
                if (flaw == 2 && masked(sent[k], bits) == 0 && !(kind % 2 && parity_of(masked(sent[k], bits)))) flaw = 3;
                if (flaw == 1) word = word | 32'h40;
                if (flaw == 2) word = word | 32'h10;
                if (flaw == 3) word = word | 32'h90;
                if (keep || flaw == 0 || flaw == 4) begin
                    apb_expect(DATA, told(sent[k], flaw), "received character");
                    wanted = wanted + 1;
                end
            end
            apb_expect(STATUS, word, "errors of the characters");
            apb_write(CTRL, ERRIE);
            check(irq === ((word & 32'h58) != 0), "interrupt of errors");
            apb_write(STATUS, 32'hF8);
            apb_expect(LEVEL, 32'h10000, "nothing else");
        end

        // Errors travel with their characters over a lost one.
        set_rate(16, 0);
        set_format(7, 3, 2, 1);
        apb_write(CTRL, RXEN);
        for (n = 0; n < DEPTH + 3; n = n + 1) send(n, 160, n % 4);
        for (n = 0; n < DEPTH; n = n + 1) apb_expect(DATA, told(n, n % 4), "with its error");
        apb_expect(DATA, 0, "none left");
        send(7'h55, 160, 1);
        apb_expect(DATA, 32'h1255, "wrong parity behind lost ones");
        send(7'h2A, 160, 0);
        apb_expect(DATA, 32'h2A, "and the next one is good");
        apb_write(STATUS, 32'hF8);
        set_format(8, 7, 1, 1);
        send(8'h00, 160, 2);
        apb_expect(DATA, 32'h400, "a parity bit that is 1 is no break");
        apb_expect(STATUS, 32'h10, "but a missing stop bit");

        // In the cycle in which a character goes there is room for another one.
        apb_write(STATUS, 32'hF8);
        apb_write(CTRL, 0);
        set_format(5, 0, 1, 1);
`ifndef SHORT
        took = 1'b0;
        for (n = 0; n < 32 && !took; n = n + 1) begin
            apb_write(COMMAND, 2);
            apb_write(CTRL, TXEN);
            for (k = 0; k <= DEPTH; k = k + 1) apb_write(DATA, k);
            apb_expect(STATUS, 32'h5, "one on its way, the FIFO is full");
            cycles(95 - 2 * (DEPTH + 2) + n);
            psel = 1'b1; pwrite = 1'b1; paddr = DATA; pwdata = 32'd9; pstrb = 4'b1111;
            cycles(1);
            penable = 1'b1;
            cycles(1);
            psel = 1'b0; penable = 1'b0; pwrite = 1'b0; pstrb = 4'd0;
            // It was taken, and the FIFO is full again: too early it is lost, too late there was room.
            apb_read(STATUS);
            took = rd === 32'h5;
            if (!took) begin
                cycles(40);
                apb_expect(LEVEL, 32'h10000 | (DEPTH - 1) << 8, "what TXOVER tells of is lost");
            end
            apb_write(STATUS, 32'h20);
            apb_write(CTRL, 0);
            apb_write(COMMAND, 2);
            wait_sent;
        end
        check(took, "written in the cycle in which one leaves");
`endif
        apb_write(CTRL, RXEN);
        apb_write(STATUS, 32'hF8);

        // Bits of FORMAT that count for nothing.
        bits = 9; parity = 0; stops = 1;
        apb_write(FORMAT, 32'h97);
        send(9'h1A5, 160, 0);
        apb_expect(DATA, 32'h1A5, "NINE before BITS, no parity without PARITY");

        // The FIFO has to hold three characters.
        if (DEPTH > 2) begin
`ifndef SHORT
            tolerance(16, 0, 8, 0, 2);
            tolerance(16, 0, 8, 1, 2);
            tolerance(16, 0, 9, 3, 2);
            tolerance(16, 23, 9, 5, 2);
            tolerance(17, 0, 8, 0, 2);
            tolerance(19, 41, 7, 7, 2);
            tolerance(26, 0, 9, 1, 2);
            tolerance(48, 0, 8, 0, 0);
            tolerance(48, 33, 9, 1, 0);
`endif
        end

        // Every byte of the registers that keep what is written. BREAK is among it, so that the line comes last.
        reset;
        apb_parts(FORMAT, 32'hFF, 0);
        apb_parts(THRESHOLD, (DEPTH - 1) * 32'h101, 0);
        apb_parts(TIMEOUT, HAS_TIMEOUT ? 32'hFF : 0, 0);
        apb_parts(CTRL, 32'h3FF, 0);
`endif
        finish;
    end
endmodule
