// I2C master and target on lines with pull-ups, beside models of a target, of a second master and of lines that are held:
// first what a program of single commands does, then arbitration, waiting, time-out, abort, recovery, spikes, timing,
// synchronization, the FIFO and the target.  I2C_SMALL: without FIFO and target.  BASIC: without what is
// behind the first part.
module tb;
`include "bench.vh"
`include "apb_master.vh"
    wire scl_out, scl_outen, sda_out, sda_outen, irq;
    tri1 scl, sda;
    reg  glitch_scl = 1'b0, glitch_sda = 1'b0;    // spikes that only the block sees
    reg  slave_sda = 1'b1, slave_scl = 1'b1, other_sda = 1'b1, other_scl = 1'b1, sync_scl = 1'b1;
    assign scl = scl_outen ? scl_out : 1'bz;
    assign sda = sda_outen ? sda_out : 1'bz;
    assign scl = (slave_scl & other_scl & sync_scl) ? 1'bz : 1'b0;
    assign sda = (slave_sda & other_sda) ? 1'bz : 1'b0;
    apb_i2c
`ifdef BASIC
`define I2C_SMALL
        #(.LOG_DEPTH(0), .TARGET(0), .FULL(0))
`else
`ifdef I2C_SMALL
        #(.LOG_DEPTH(0), .TARGET(0))
`endif
`endif
            dut (.PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr),
                 .PWDATA(pwdata), .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr),
                 .scl_in(scl ^ glitch_scl), .scl_out(scl_out), .scl_outen(scl_outen),
                 .sda_in(sda ^ glitch_sda), .sda_out(sda_out), .sda_outen(sda_outen), .irq(irq));
    localparam [11:0] PRESCALE = 0, CTRL = 4, TX = 8, RX = 12, COMMAND = 16, STATUS = 20, TIMEOUT = 24, FILTER = 28, ERROR = 32, BUS = 36,
                      FIFO = 40, LEVEL = 44, THRESHOLD = 48, INTEN = 52, PEND = 56, TCTRL = 60, TADDR = 64, TDATA = 68,
                      TSTATUS = 72, ID = 12'hFFC;
    localparam START = 1, WRITE = 2, READ = 4, STOP = 8, NACK = 16, RECOVER = 32, ABORT = 64, TDROP = 128;
    localparam F_START = 32'h10000, F_READ = 32'h20000, F_NACK = 32'h40000, F_STOP = 32'h80000;   // of FIFO
    localparam E_NACK = 1, E_REFUSED = 2, E_STUCK = 4, E_TIMEOUT = 8, E_ABORTED = 16, E_OVERFLOW = 32;

    // Slave at address 0x2D: keeps written bytes, answers reads with 0xC0, 0xC1, ...
    integer   starts = 0, stops = 0, nbit = 0, nbytes = 0, stretch = 0;
    reg       running = 1'b0, mine = 1'b0, reading = 1'b0, first = 1'b0, master_ack;
    reg [7:0] shift, reply = 8'hC0;
    reg [7:0] stored [0:255];
    integer   refuse = 1000;         // of the bytes that it is written, that many are acknowledged
    always @(negedge sda) if (scl === 1'b1) begin starts = starts + 1; running = 1'b1; first = 1'b1; nbit = 0; end
    always @(posedge sda) if (scl === 1'b1) begin stops = stops + 1; running = 1'b0; mine = 1'b0; slave_sda = 1'b1; end
    always @(posedge scl) if (running) begin
        if (nbit < 8) shift = {shift[6:0], sda};
        else master_ack = ~sda;
        nbit = nbit + 1;
    end
    always @(negedge scl) if (running) begin
        if (nbit == 8) begin
            if (first) begin mine = shift[7:1] == 7'h2D; reading = shift[0]; end
            else if (mine && !reading) begin stored[nbytes] = shift; nbytes = nbytes + 1; end
            slave_sda = #12 ~(mine && (first || (!reading && nbytes <= refuse)));     // acknowledge
            if (stretch > 0) begin slave_scl = 1'b0; #(stretch) slave_scl = 1'b1; end
        end else if (nbit == 9) begin
            nbit = 0;
            if (!first && reading) begin reply = reply + 8'd1; if (!master_ack) mine = 1'b0; end
            first = 1'b0;
            slave_sda = #12 (mine && reading) ? reply[7] : 1'b1;
        end else if (mine && reading && !first)
            slave_sda = #12 reply[7 - nbit];
    end
    // Data may change only while the clock is low, but for start and stop.
    time scl_rise = 0, period = 0;
    always @(posedge scl) begin period = $time - scl_rise; scl_rise = $time; end

    task command(input [31:0] c, input [31:0] status, input [8*48-1:0] what);
        begin
            apb_write(COMMAND, c);
            apb_read(STATUS);
            check(rd[0] === 1'b1, "busy after a command");
            @(posedge irq); #1;
            apb_expect(STATUS, status, what);
            apb_write(STATUS, 8);
        end
    endtask

    initial begin
        reset;
        starts = 0; stops = 0;    // the lines settled at the start
        apb_expect(PRESCALE, 99, "reset PRESCALE");
        apb_expect(CTRL, 0, "reset CTRL");
        apb_expect(STATUS, 0, "reset STATUS");
        check(scl === 1'b1 && sda === 1'b1 && irq === 1'b0, "released lines");
        apb_write(COMMAND, START);
        cycles(5);
        apb_expect(STATUS, 0, "disabled: no command");
        apb_write(PRESCALE, 9);
        apb_write(CTRL, 3);
        // Write two bytes.
        apb_write(TX, 8'h5A);
        command(START | WRITE, 32'hC, "address acknowledged");
        check(starts == 1, "one start");
        apb_write(TX, 8'h31);
        command(WRITE, 32'hC, "first byte acknowledged");
        check(period >= 400 && period <= 450, "period of SCL");
        apb_write(TX, 8'hE7);
        command(WRITE | STOP, 32'h8, "second byte acknowledged, stop");
        check(stops == 1 && nbytes == 2, "one stop, two bytes");
        check(stored[0] === 8'h31 && stored[1] === 8'hE7, "bytes of the slave");
        check(scl === 1'b1 && sda === 1'b1, "lines released");
        // Read two bytes after a repeated start.
        apb_write(TX, 8'h5A);
        command(START | WRITE, 32'hC, "address, write");
        apb_write(TX, 8'h5B);
        command(START | WRITE, 32'hC, "repeated start, address, read");
        check(starts == 3 && stops == 1, "no stop between");
        command(READ, 32'hC, "first byte");
        apb_expect(RX, 8'hC0, "first byte of the slave");
        check(master_ack === 1'b1, "acknowledged");
        command(READ | NACK | STOP, 32'h8, "last byte");
        apb_expect(RX, 8'hC1, "second byte of the slave");
        check(master_ack === 1'b0 && stops == 2, "not acknowledged, stop");
        // Nobody there.
        apb_write(TX, 8'h70);
        command(START | WRITE, 32'hE, "no acknowledge");
        command(STOP, 32'hA, "stop alone");
        check(stops == 3, "third stop");
        // Clock stretching.
        stretch = 3000;
        apb_write(TX, 8'h5A);
        command(START | WRITE, 32'hC, "address, stretched");
        check(period >= 3000, "the clock was held");
        apb_write(TX, 8'h99);
        command(WRITE | STOP, 32'h8, "byte, stretched");
        check(stored[2] === 8'h99, "byte arrived");
        stretch = 0;
        // Another master pulls the data line during a 1.
        apb_write(TX, 8'hFF);
        apb_write(COMMAND, START | WRITE);
        cycles(100);
        other_sda = 1'b0;
        @(posedge irq); #1;
        apb_expect(STATUS, 32'h18, "arbitration lost");
        check(sda_outen === 1'b0 && scl_outen === 1'b0, "lines released at once");
        other_sda = 1'b1;
        apb_write(STATUS, 32'h18);
        apb_expect(STATUS, 0, "flags cleared");
        // Only the lowest byte of COMMAND starts something.
        apb_write8(COMMAND + 1, START | WRITE); apb_write16(COMMAND + 2, START | WRITE);
        apb_expect(STATUS, 0, "no command");
        apb_write(TX, 8'h70);
        apb_write8(COMMAND, START | WRITE | STOP);
        @(posedge irq); #1;
        apb_expect(STATUS, 32'hA, "a command of one byte");
        apb_write8(STATUS + 1, 8'hFF); apb_write16(STATUS + 2, 16'hFFFF);
        apb_expect(STATUS, 32'hA, "nothing cleared beside the byte");
        apb_write8(STATUS, 8'h08);
        apb_expect(STATUS, 32'h2, "cleared by its byte");
`ifdef BASIC
        nothing_else;
`else
        program_of_now;
`endif
        finish;
    end

`ifdef BASIC
    task nothing_else;
        begin
            apb_write(STATUS, 32'h18);
            apb_parts(CTRL, 32'h3, 0); apb_parts(TIMEOUT, 0, 0); apb_parts(FILTER, 0, 0); apb_parts(THRESHOLD, 0, 0);
            apb_parts(INTEN, 0, 0); apb_parts(TCTRL, 0, 0); apb_parts(TADDR, 0, 0);
            apb_expect(ID, 32'hF0000207, "ID");
            apb_expect(FIFO, 0, "no FIFO"); apb_expect(LEVEL, 0, "no levels"); apb_expect(PEND, 0, "nothing pending");
            apb_write(PRESCALE, 9); apb_write(CTRL, 3);
            apb_write(COMMAND, RECOVER);
            cycles(20);
            apb_expect(STATUS, 32'h2, "no recovery");
            released("no recovery on the lines");
            apb_write(TX, 8'h5A);
            apb_write(COMMAND, START | WRITE | STOP);
            cycles(60);
            apb_write(COMMAND, ABORT);
            @(posedge irq); #1;
            apb_expect(STATUS, 32'h8, "no abort: acknowledged, stop");
            apb_expect(ERROR, 0, "no error");
        end
    endtask
`endif
    task wait_irq(input integer limit, input [8*48-1:0] what);
        integer left;
        begin
            left = limit;
            while (!irq && left > 0) begin cycles(1); left = left - 1; end
            check(irq === 1'b1, what);
        end
    endtask
    // The end of a command, its flags, and all flags taken back.
    task ended(input [31:0] status, input [31:0] error, input [8*48-1:0] what);
        begin
            wait_irq(60000, what);
            apb_expect(STATUS, status, what);
            apb_expect(ERROR, error, what);
            apb_write(STATUS, 32'h18);
            apb_write(ERROR, 32'h3F);
        end
    endtask
    task released(input [8*48-1:0] what);
        check(scl_outen === 1'b0 && sda_outen === 1'b0, what);
    endtask
    // The bus is free again, after which nothing is left of what was.
    task settle;
        begin
            apb_read(BUS);
            while (rd !== 32'h3) apb_read(BUS);
        end
    endtask

    // ---- a second master, step by step; o_quarter is a quarter of its period
    integer o_quarter = 100;
    reg     o_ack;
    reg [7:0] o_data;
    // SCL is let go; it has been high for so many quarters at the end.
    task o_high(input integer quarters);
        begin
            other_scl = 1'b1; #1;
            if (scl === 1'b1) #(quarters * o_quarter - 1);
            else begin @(posedge scl); #(quarters * o_quarter + 1); end
        end
    endtask
    task o_start;
        begin
            other_sda = 1'b1; #(o_quarter) o_high(2);
            other_sda = 1'b0; #(2 * o_quarter) other_scl = 1'b0; #(o_quarter);
        end
    endtask
    task o_bit(input value, output level);
        begin
            other_sda = value; #(o_quarter) o_high(1);
            level = sda; #(o_quarter) other_scl = 1'b0; #(o_quarter);
        end
    endtask
    task o_put(input [7:0] value);
        integer k;
        reg level;
        begin
            for (k = 7; k >= 0; k = k - 1) o_bit(value[k], level);
            o_bit(1'b1, level);
            o_ack = ~level;
        end
    endtask
    task o_get(input ack);
        integer k;
        reg level;
        begin
            for (k = 7; k >= 0; k = k - 1) begin o_bit(1'b1, level); o_data[k] = level; end
            o_bit(~ack, level);
        end
    endtask
    task o_stop;
        begin
            other_sda = 1'b0; #(o_quarter) o_high(2);
            other_sda = 1'b1; #(2 * o_quarter);
        end
    endtask

    // ---- a master that has begun with this one: its bits from the first one behind the start on, and its clock
    reg        rival_on = 1'b0, rival_runs = 1'b0;
    reg [39:0] rival;
    integer    rival_n = 0, rises = 0;
    always @(negedge sda) if (rival_on && scl === 1'b1 && !rival_runs) begin rival_runs = 1'b1; rival_n = 0; rises = 0; end
    always @(posedge scl) rises = rises + 1;
    always @(negedge scl) if (rival_runs) begin other_sda = #3 rival[39 - rival_n]; rival_n = rival_n + 1; end
    task rival_begins(input integer bit_of_zero);
        begin
            rival = ~40'd0;
            rival[39 - bit_of_zero] = 1'b0;
            rival_on = 1'b1; rival_runs = 1'b0;
        end
    endtask
    // It has won, and ends its transfer.
    task rival_ends;
        reg level;
        integer n;
        begin
            rival_on = 1'b0; rival_runs = 1'b0;
            other_scl = 1'b0; #200;
            // To behind an answer, or a whole byte without one.
            for (n = 0; n < 9 || other_sda !== sda; n = n + 1) begin
                o_bit(1'b1, level);
                if (!level) n = 9;
            end
            o_stop;
        end
    endtask

    // ---- the times on the lines
    time    at_rise, at_fall, at_sda, at_stop;
    reg     was_start = 1'b0, is_idle = 1'b1, measures = 1'b0;
    integer low_min, high_min, hdsta, susta, susto, buffer, sudat, valid, rate;
    integer counted;
    time    at_last;
    always @(posedge scl) begin
        if (measures && $time - at_fall < low_min) low_min = $time - at_fall;
        if (measures && $time - at_sda < sudat) sudat = $time - at_sda;
        if (measures && !is_idle && $time - at_last < rate) rate = $time - at_last;
        at_rise = $time; at_last = $time;
    end
    always @(negedge scl) begin
        if (measures && was_start && $time - at_sda < hdsta) hdsta = $time - at_sda;
        if (measures && !was_start && $time - at_rise < high_min) high_min = $time - at_rise;
        was_start = 1'b0;
        at_fall = $time; counted = counted + 1;
    end
    always @(sda) begin
        if (scl === 1'b1 && sda === 1'b0) begin
            was_start = 1'b1;
            if (measures && is_idle && $time - at_stop < buffer) buffer = $time - at_stop;
            if (measures && !is_idle && $time - at_rise < susta) susta = $time - at_rise;
            is_idle = 1'b0;
        end else if (scl === 1'b1) begin
            if (measures && $time - at_rise < susto) susto = $time - at_rise;
            at_stop = $time; is_idle = 1'b1;
        end else if (measures && nbit != 0 && $time - at_fall > valid) valid = $time - at_fall;
        at_sda = $time;
    end
    task measure;
        begin
            {low_min, high_min, hdsta, susta, susto, buffer, sudat, rate} = {8{32'h7FFFFFFF}};
            valid = 0; counted = 0; measures = 1'b1;
        end
    endtask
    // Nanoseconds of a measured time at a clock period in picoseconds.
    function integer ns(input integer units, input integer ps);
        ns = units == 32'h7FFFFFFF ? -1 : (units / 10) * (ps / 100) / 10;
    endfunction

    task write_byte(input [7:0] value, input [31:0] c);
        begin apb_write(TX, value); apb_write(COMMAND, c | WRITE); end
    endtask

    integer k, m;
    reg [31:0] kept;
    // ---- arbitration, in every kind of bit
    task arbitration;
        begin
            for (k = 0; k < 8; k = k + 1) begin
                rival_begins(k);
                write_byte(8'hFF, START);
                wait_irq(5000, "lost in the address");
                released("both lines are released");
                check(rises == k + 1, "lost in this bit of the address");
                ended(32'h18, 0, "address: arbitration lost");
                rival_ends; settle;
            end
            for (k = 9; k < 17; k = k + 1) begin
                rival_begins(k);
                rival[39:31] = {8'h5A, 1'b1};
                write_byte(8'h5A, START);
                ended(32'hC, 0, "the same address: nobody lost");
                write_byte(8'hFF, 0);
                wait_irq(5000, "lost in the data");
                released("both lines are released");
                check(rises == k + 1, "lost in this bit of the data");
                ended(32'h18, 0, "data: arbitration lost");
                rival_ends; settle;
            end
            // Both read the same byte; the other one wants a further one.
            rival_begins(17);
            rival[39:31] = {8'h5B, 1'b1};
            write_byte(8'h5B, START);
            ended(32'hC, 0, "reading: the same address");
            apb_write(COMMAND, READ | NACK | STOP);
            ended(32'h18, 0, "lost in the acknowledge bit");
            released("lines after the acknowledge bit");
            check(rises == 18, "not before the acknowledge bit");
            rival_ends; settle;
            // An acknowledge bit that both give does not decide, nor does one that a target gives.
            rival_begins(17);
            rival[39:31] = {8'h5B, 1'b1};
            write_byte(8'h5B, START);
            ended(32'hC, 0, "reading again");
            apb_write(COMMAND, READ);
            ended(32'hC, 0, "both acknowledge");
            rival_on = 1'b0; rival_runs = 1'b0; other_sda = 1'b1;
            apb_write(COMMAND, READ | NACK | STOP);
            ended(32'h8, 0, "alone to the end");
            // A repeated start while the other one sends a 0, and while it sends a 1.
            for (k = 0; k < 2; k = k + 1) begin
                write_byte(8'h5A, START);
                ended(32'hC, 0, "address before the repeated start");
                if (k == 0) other_sda = 1'b0;
                write_byte(8'h5A, START);
                if (k == 1) begin @(posedge scl); #30 other_scl = 1'b0; end
                wait_irq(2000, "lost in the repeated start");
                released("lines after the repeated start");
                ended(32'h18, 0, "repeated start: arbitration lost");
                rival_ends; settle;
            end
            // Both make it, the other one somewhat earlier.
            write_byte(8'h5A, START);
            ended(32'hC, 0, "address before both repeated starts");
            write_byte(8'h5A, START);
            @(posedge scl); #50 other_sda = 1'b0; #130 other_scl = 1'b0;
            #20 other_sda = 1'b1; #80 other_scl = 1'b1;
            ended(32'hC, 0, "goes on behind the common start");
            apb_write(COMMAND, STOP); ended(32'h8, 0, "its stop");
            // The other one makes its repeated start, or a stop, within a bit that is 1.
            for (k = 0; k < 2; k = k + 1) begin
                write_byte(8'h5A, START);
                ended(32'hC, 0, "address before the other's start");
                write_byte(8'hFF, 0);
                if (k == 0) begin @(posedge scl); #100 other_sda = 1'b0; end
                else begin @(negedge scl); #5 other_sda = 1'b0; @(posedge scl); #60 other_sda = 1'b1; end
                wait_irq(2000, "lost to a start or stop");
                ended(32'h18, 0, "start or stop within a bit");
                rival_ends; settle;
            end
            // A stop while the other one goes on with a 0: the clock goes on before SDA is let go, or SDA stays low.
            for (k = 0; k < 2; k = k + 1) begin
                write_byte(8'h5A, START);
                ended(32'hC, 0, "address before the stop");
                apb_write(COMMAND, STOP);
                @(posedge scl); other_sda = 1'b0; #60;
                if (k == 0) other_scl = 1'b0;
                ended(32'h18, k == 0 ? 0 : E_STUCK, "a stop that is none");
                released("lines after the stop");
                rival_ends; settle;
            end
        end
    endtask

    // ---- a bus that another master has
    task waiting;
        begin
            o_start; o_put(8'h60);
            apb_expect(BUS, 32'h6, "taken");
            starts = 0;
            write_byte(8'h5A, START);
            for (k = 0; k < 3; k = k + 1) begin o_put(8'h00); check(irq === 1'b0 && scl_outen === 1'b0, "waits"); end
            apb_expect(STATUS, 32'h1, "waits and is busy");
            o_start; o_put(8'h61);               // its repeated start
            measure;
            o_stop;
            ended(32'hC, 0, "begins behind the stop");
            check(starts == 2, "two starts");
            check(buffer >= 200, "free time behind the stop of another");
            measures = 1'b0;
            apb_write(COMMAND, STOP); ended(32'h8, 0, "its own stop");
            // Refused.
            apb_write(CTRL, 7);
            o_start; o_put(8'h60);
            write_byte(8'h5A, START);
            ended(32'h18, E_REFUSED, "refused");
            released("nothing was done");
            o_stop; settle;
            write_byte(8'h5A, START | STOP);
            ended(32'h8, 0, "not refused on a free bus");
            apb_write(CTRL, 3);
            // Writing without a start into the transfer of another.
            o_start; o_put(8'h60);
            write_byte(8'h5A, 0);
            ended(32'h18, E_REFUSED, "no byte into the transfer of another");
            o_stop; settle;
            // A master that leaves in the middle: lines that stay high are free after 64 quarters.
            o_start; o_put(8'h60);
            other_sda = 1'b1; #100 other_scl = 1'b1;
            write_byte(8'h5A, START | STOP);
            cycles(600); check(scl_outen === 1'b0 && sda_outen === 1'b0, "not yet");
            ended(32'h8, 0, "lines that were left");
            // One that is in the middle when this one comes out of reset.
            o_start; o_put(8'h60);
            reset;
            apb_write(PRESCALE, 9); apb_write(CTRL, 3);
            write_byte(8'h5A, START | STOP);
            o_put(8'h60); check(irq === 1'b0, "waits after a reset");
            o_stop;
            ended(32'h8, 0, "after a reset, and a stop");
        end
    endtask

    // ---- lines that are held, abort, recovery
    task held;
        begin
            // SCL for ever, in a byte, without a limit: only abort helps.
            write_byte(8'h5A, START);
            cycles(200); other_scl = 1'b0;
            cycles(20000); check(irq === 1'b0, "no limit");
            apb_expect(STATUS, 32'h5, "SCL is held");
            apb_write(COMMAND, ABORT);
            cycles(1); released("abort releases");
            ended(32'h8, E_ABORTED, "aborted");
            write_byte(8'h5A, START | STOP);
            cycles(1000); check(irq === 1'b0, "waits for SCL");
            apb_write(COMMAND, ABORT);
            ended(32'h8, E_ABORTED, "waiting aborted");
            // With a limit: 4 units are 1024 cycles.
            apb_write(TIMEOUT, 4);
            write_byte(8'h5A, START | STOP);
            cycles(1000); check(irq === 1'b0, "before the limit of waiting");
            cycles(60);
            ended(32'h8, E_TIMEOUT, "the limit of waiting");
            other_scl = 1'b1; settle;
            write_byte(8'h5A, START);
            cycles(200); other_scl = 1'b0;
            cycles(1000); check(irq === 1'b0, "before the limit");
            cycles(80); check(irq === 1'b1, "at the limit");
            released("lines after the limit");
            ended(32'h8, E_TIMEOUT, "the limit in a byte");
            other_scl = 1'b1; settle;
            // Stretching below the limit is none of it, again and again.
            stretch = 9000;
            write_byte(8'h5A, START); ended(32'hC, 0, "stretched below the limit");
            write_byte(8'h11, STOP); ended(32'h8, 0, "and once more");
            stretch = 12000;
            write_byte(8'h5A, START); ended(32'h8, E_TIMEOUT, "stretched beyond the limit");
            stretch = 0; #20000;
            apb_write(COMMAND, RECOVER); ended(32'h8, 0, "the device is freed");
            // A quarter of more than the limit is no waiting.
            apb_write(TIMEOUT, 1);
            apb_write(PRESCALE, 999);
            write_byte(8'h5A, START | STOP); ended(32'h8, 0, "a slow clock of its own");
            apb_write(PRESCALE, 9);
            apb_write(TIMEOUT, 0);
            // SDA for ever: a start fails, and a recovery.
            other_sda = 1'b0; cycles(10);
            write_byte(8'h5A, START);
            ended(32'h18, E_STUCK, "SDA is held");
            measure;
            apb_write(COMMAND, RECOVER);
            ended(32'h18, E_STUCK, "recovery fails");
            check(counted == 10, "nine clocks and a stop");
            other_sda = 1'b1; settle;
            // A device that waits for some clocks.
            for (k = 1; k <= 9; k = k + 1) begin
                other_sda = 1'b0; cycles(10);
                measure; stops = 0;
                apb_write(COMMAND, RECOVER);
                repeat (k) @(negedge scl);
                #12 other_sda = 1'b1;
                ended(32'h8, 0, "recovered");
                check(counted == 10 && stops == 1, "nine clocks, one stop");
                check(scl === 1'b1 && sda === 1'b1, "a free bus");
                measures = 1'b0;
            end
            // Also in the middle of a read, and nothing of it is taken for a byte.
            write_byte(8'h5B, START); ended(32'hC, 0, "address, read");
            apb_write(COMMAND, READ); ended(32'hC, 0, "a byte, read");
            apb_read(RX); kept = rd;
            other_sda = 1'b0;
            measure;
            apb_write(COMMAND, RECOVER);
            repeat (9) @(negedge scl);
            #12 other_sda = 1'b1;
            ended(32'h8, 0, "recovered within a read");
            measures = 1'b0;
            apb_expect(RX, kept, "the byte before");
            // Abort in each phase of a transfer leaves a block that works.
            for (k = 1; k < 500; k = k + 7) begin
                write_byte(8'h5A, START | STOP);
                cycles(k);
                apb_write(COMMAND, ABORT | START | WRITE | STOP);
                cycles(1); released("aborted");
                apb_write(COMMAND, RECOVER);         // the device may wait in the middle of a byte
                ended(32'h8 | (32'h0), E_ABORTED, "aborted and freed");
            end
            write_byte(8'h5A, START | STOP); ended(32'h8, 0, "after aborts");
            apb_write(COMMAND, ABORT);
            ended(32'h8, E_ABORTED, "abort of nothing");
        end
    endtask

    // ---- spikes of up to FILTER cycles on both lines are not seen; longer ones are
    task spikes;
        begin
            apb_write(FILTER, 5);
            for (k = 0; k < 2; k = k + 1) begin
                starts = 0; stops = 0;
                write_byte(8'h5A, START); ended(32'hC, 0, "address, filtered");
                nbytes = 0;
                fork
                    begin write_byte(8'hA5, STOP); ended(32'h8, 0, "byte with spikes"); end
                    for (m = 0; m < 8; m = m + 1) begin
                        @(posedge scl); #115;
                        if (k == 0) glitch_scl = 1'b1; else glitch_sda = 1'b1;
                        #50 glitch_scl = 1'b0; glitch_sda = 1'b0;
                    end
                join
                check(nbytes == 1 && stored[0] === 8'hA5, "the byte arrives");
            end
            apb_expect(BUS, 32'h3, "free");
            glitch_sda = 1'b1; #50 glitch_sda = 1'b0; cycles(12);
            apb_expect(BUS, 32'h3, "a spike on a free bus");
            glitch_sda = 1'b1; #60 glitch_sda = 1'b0; cycles(12);
            apb_expect(BUS, 32'h7, "no spike any more");
            settle;
            apb_write(FILTER, 0);
            glitch_scl = 1'b1; #10 glitch_scl = 1'b0; cycles(5);
            apb_expect(BUS, 32'h7, "not filtered");
            settle;
        end
    endtask

    // ---- two clocks on one line: low as long as the slower one, high as long as the faster one
    reg  sync_on = 1'b0;
    always @(posedge scl) if (sync_on) begin sync_scl <= #120 1'b0; sync_scl <= #570 1'b1; end
    task synchronized;
        begin
            write_byte(8'h5A, START); ended(32'hC, 0, "address before the other clock");
            nbytes = 0; sync_on = 1'b1;
            write_byte(8'h3C, 0);
            @(posedge scl) #1 measure;
            ended(32'hC, 0, "a byte on two clocks");
            check(high_min >= 120 && high_min <= 130, "high as the faster one");
            check(low_min >= 450 && low_min <= 460, "low as the slower one");
            sync_on = 1'b0; measures = 1'b0; #1000;
            apb_write(COMMAND, STOP); ended(32'h8, 0, "stop behind the other clock");
            check(nbytes == 1 && stored[0] === 8'h3C, "the byte on two clocks");
        end
    endtask

    // ---- the register text's divider at typical clocks keeps the minimums of the three modes
    task timing(input integer ps, input integer mode, input integer prescale);
        begin
            apb_write(PRESCALE, prescale);
            apb_write(FILTER, (50000 + ps - 1) / ps);
            write_byte(8'h5A, START); ended(32'hC, 0, "timing: address");
            measure;
            write_byte(8'h35, 0); ended(32'hC, 0, "timing: data");
            write_byte(8'h5B, START); ended(32'hC, 0, "timing: repeated start");
            apb_write(COMMAND, READ | NACK | STOP); ended(32'h8, 0, "timing: read");
            write_byte(8'h5A, START | STOP);
            ended(32'h8, 0, "timing: the next transfer");
            measures = 1'b0;
            check(ns(low_min, ps) >= (mode == 0 ? 4700 : mode == 1 ? 1300 : 500), "tLOW");
            check(ns(high_min, ps) >= (mode == 0 ? 4000 : mode == 1 ? 600 : 260), "tHIGH");
            check(ns(hdsta, ps) >= (mode == 0 ? 4000 : mode == 1 ? 600 : 260), "tHD;STA");
            check(ns(susta, ps) >= (mode == 0 ? 4700 : mode == 1 ? 600 : 260), "tSU;STA");
            check(ns(susto, ps) >= (mode == 0 ? 4000 : mode == 1 ? 600 : 260), "tSU;STO");
            check(ns(buffer, ps) >= (mode == 0 ? 4700 : mode == 1 ? 1300 : 500), "tBUF");
            check(ns(sudat, ps) >= (mode == 0 ? 250 : mode == 1 ? 100 : 50), "tSU;DAT");
            check(ns(valid, ps) <= (mode == 0 ? 3450 : mode == 1 ? 900 : 450), "tVD;DAT");
            check(ns(rate, ps) >= (mode == 0 ? 10000 : mode == 1 ? 2500 : 1000), "fSCL");
            check(ns(rate, ps) <= (mode == 0 ? 11500 : mode == 1 ? 3750 : 2000), "not slower than it must");
        end
    endtask
    task timings;
        begin
            timing(125000, 0, 19);  timing(125000, 1, 5);  timing(125000, 2, 1);
            timing(62500, 0, 39);   timing(62500, 1, 10);  timing(62500, 2, 3);
            timing(40000, 0, 62);   timing(40000, 1, 16);  timing(40000, 2, 6);
            timing(20000, 0, 124);  timing(20000, 1, 32);  timing(20000, 2, 12);
            timing(10000, 0, 249);  timing(10000, 1, 64);  timing(10000, 2, 24);
            // The shortest divider works at every filter.
            for (k = 0; k < 16; k = k + 5) begin
                apb_write(PRESCALE, 0); apb_write(FILTER, k); settle;
                nbytes = 0;
                write_byte(8'h5A, START); ended(32'hC, 0, "shortest: address");
                write_byte(8'h96, STOP); ended(32'h8, 0, "shortest: byte");
                check(nbytes == 1 && stored[0] === 8'h96, "shortest: arrives");
            end
            apb_write(PRESCALE, 9); apb_write(FILTER, 0);
        end
    endtask

`ifndef I2C_SMALL
    // ---- whole transfers from the FIFO
    integer irqs;
    task queue;
        begin
            settle;
            apb_expect(ID, 32'h00140207, "ID");
            apb_expect(PEND, 32'h1, "nothing is queued");
            // A write of fifteen bytes, one interrupt at its end.
            nbytes = 0; stops = 0; starts = 0;
            apb_write(CTRL, 0);
            apb_write(FIFO, F_START | 8'h5A);
            for (k = 1; k < 15; k = k + 1) apb_write8(FIFO, k * 8'd17);      // a byte is one without flags
            apb_write(FIFO, F_STOP | 8'hFF);
            apb_expect(LEVEL, 32'h10, "sixteen commands");
            apb_expect(ERROR, 0, "all had room");
            apb_write(FIFO, 8'h77);
            apb_expect(ERROR, E_OVERFLOW, "one too many");
            apb_write(ERROR, E_OVERFLOW);
            cycles(200); apb_expect(STATUS, 0, "disabled");
            apb_write(CTRL, 3);
            apb_expect(STATUS, 32'h1, "begins");
            apb_write(COMMAND, STOP);                                        // ignored
            ended(32'h8, 0, "the whole transfer");
            check(nbytes == 15 && starts == 1 && stops == 1, "fifteen bytes in one transfer");
            for (k = 1; k < 16; k = k + 1) check(stored[k - 1] === k * 17, "a byte of the FIFO");
            apb_expect(PEND, 32'h1, "empty");
`ifndef SHORT
            // What does not reach the lowest byte is no command; flags need their byte.
            apb_write8(FIFO + 2, 8'hFF); apb_write16(FIFO + 2, 16'hFFFF); apb_write8(FIFO + 1, 8'hFF);
            apb_expect(LEVEL, 0, "no command");
            // A read of 40 bytes: three commands, taken when more than eleven are there.
            reply = 8'h10;
            apb_write(CTRL, 1); apb_write(THRESHOLD, 32'h0B00); apb_write(INTEN, 32'h2);
            apb_write(FIFO, F_START | 8'h5A); apb_write(FIFO, F_START | 8'h5B);
            apb_write(FIFO, F_READ | F_NACK | F_STOP | 39);
            stops = 0; irqs = 0; m = 0;
            while (m < 36) begin
                wait_irq(20000, "bytes to take");
                irqs = irqs + 1;
                if (irqs == 2) cycles(6000);                                 // full: SCL is held
                apb_read(LEVEL); check(rd[15:8] >= 12 && rd[15:8] <= 16, "level");
                if (irqs == 2) begin check(rd[15:8] == 16, "held at sixteen"); check(scl === 1'b0, "SCL is held"); end
                apb_read(FIFO + 1); apb_read(FIFO + 2);                      // takes nothing
                for (k = 0; k < 12; k = k + 1) begin apb_expect(FIFO, 32'h8000 | (8'h10 + m), "byte"); m = m + 1; end
            end
            apb_write(INTEN, 0); apb_write(CTRL, 3);
            ended(32'h8, 0, "the end of 40 bytes");
            for (k = 0; k < 4; k = k + 1) begin apb_expect(FIFO, 32'h8000 | (8'h10 + m), "last bytes"); m = m + 1; end
            apb_expect(FIFO, 0, "no byte is left");
            check(irqs == 3 && stops == 1 && master_ack === 1'b0, "three interrupts for 40 bytes");
            // A command that waits for room is one: nothing else begins.
            stops = 0;
            apb_write(FIFO, F_START | 8'h5B); apb_write(FIFO, F_READ | 15); apb_write(FIFO, F_READ | F_NACK | F_STOP);
            cycles(12000);
            apb_expect(LEVEL, 32'h1001, "waits for room"); apb_expect(STATUS, 32'h5, "and is busy");
            apb_write(COMMAND, STOP); cycles(500); check(stops == 0, "no stop between");
            apb_read(FIFO); check(rd[15] === 1'b1, "a byte makes room");
            ended(32'h8, 0, "the byte behind it");
            for (k = 0; k < 16; k = k + 1) apb_read(FIFO);
            apb_expect(LEVEL, 0, "all taken");
            // Refill by threshold.
            nbytes = 0; m = 0; irqs = 0; stops = 0;
            apb_write(CTRL, 1); apb_write(THRESHOLD, 4); apb_write(INTEN, 1);
            apb_write(FIFO, F_START | 8'h5A);
            while (m < 60) begin
                wait_irq(20000, "room"); irqs = irqs + 1;
                for (k = 0; k < 12; k = k + 1) begin apb_write(FIFO, m | (m == 59 ? F_STOP : 0)); m = m + 1; end
                check(irq === 1'b0, "above the threshold");
            end
            apb_write(INTEN, 0); apb_write(CTRL, 3);
            ended(32'h8, 0, "60 bytes");
            check(nbytes == 60 && stops == 1 && irqs == 5, "five interrupts for 60 bytes");
            for (k = 0; k < 60; k = k + 1) check(stored[k] === k, "a byte of 60");
            apb_write(THRESHOLD, 0);
            // Nobody acknowledges: a stop, the rest is thrown away, and what is written until the flag is taken back.
            stops = 0; nbytes = 0;
            apb_write(FIFO, F_START | 8'h70);
            for (k = 0; k < 6; k = k + 1) apb_write(FIFO, k);
            wait_irq(5000, "nobody");
            apb_expect(STATUS, 32'hA, "nobody acknowledges"); apb_expect(ERROR, E_NACK, "its error");
            check(stops == 1 && scl === 1'b1 && sda === 1'b1, "with a stop");
            apb_write(FIFO, F_START | 8'h5A); apb_write(FIFO, F_STOP);
            cycles(500); apb_expect(LEVEL, 0, "taken none"); apb_expect(STATUS, 32'hA, "nothing began");
            ended(32'hA, E_NACK, "taken back");
            // A byte in the middle.
            refuse = 3; stops = 0;
            apb_write(FIFO, F_START | 8'h5A);
            for (k = 0; k < 6; k = k + 1) apb_write(FIFO, k | (k == 5 ? F_STOP : 0));
            ended(32'hA, E_NACK, "a byte is refused");
            check(nbytes == 4 && stops == 1, "nothing behind it");
            refuse = 1000; nbytes = 0;
            // Arbitration, abort and time-out empty the FIFO as well.
            rival_begins(2);
            for (k = 0; k < 4; k = k + 1) apb_write(FIFO, 8'hFF | (k == 0 ? F_START : 0));
            ended(32'h1A, 0, "queue: arbitration lost");
            apb_expect(LEVEL, 0, "empty after the loss");
            rival_ends; settle;
            for (k = 0; k < 4; k = k + 1) apb_write(FIFO, 8'h5A | (k == 0 ? F_START : 0));
            cycles(700);
            apb_write(COMMAND, ABORT);
            cycles(2); released("queue: aborted");
            ended(32'h8, E_ABORTED, "queue: aborted");
            apb_expect(LEVEL, 0, "empty after the abort");
            settle; slave_sda = 1'b1; running = 1'b0;
            // A command without a start before it.
            apb_write(FIFO, 8'h5A);
            ended(32'h18, E_REFUSED, "no start");
            // Two transfers in one queue; the FIFO runs dry between.
            nbytes = 0; starts = 0; stops = 0;
            apb_write(FIFO, F_START | 8'h5A); apb_write(FIFO, 8'h01 | F_STOP);
            apb_write(FIFO, F_START | 8'h5A); apb_write(FIFO, 8'h02);
            ended(32'hC, 0, "open at the end");
            check(scl === 1'b0, "SCL is held");
            apb_write(FIFO, 8'h03 | F_STOP);
            ended(32'h8, 0, "goes on");
            check(nbytes == 3 && starts == 2 && stops == 2, "two transfers");
            // Queued behind each other they keep the free time.
            measure;
            for (k = 0; k < 2; k = k + 1) apb_write(FIFO, F_START | F_STOP | 8'h5A);
            ended(32'h8, 0, "back to back");
            check(buffer >= 200 && buffer < 1000, "free time between");
            measures = 1'b0;
`endif
        end
    endtask

    // ---- the target, used by the second master
    task target;
        begin
            apb_write(CTRL, 0);
            o_start; o_put(8'h86); check(!o_ack, "switched off"); o_stop;
            apb_write(TADDR, 32'h0000_0043); apb_write(TCTRL, 1);
            apb_write(INTEN, 32'h10);
            o_start;
            o_put(8'h86); check(o_ack, "its address");
            check(irq === 1'b1, "interrupt: addressed");
            apb_expect(PEND, 32'h11, "addressed"); apb_write(PEND, 32'h10);
            apb_expect(TSTATUS, 32'h0043_0001, "selected");
            o_put(8'h12); check(o_ack, "first byte"); o_put(8'h34); check(o_ack, "second byte");
            apb_expect(LEVEL, 32'h0200_0000, "two bytes");
            apb_expect(PEND, 32'h5, "bytes are there");
            o_stop;
            apb_expect(PEND, 32'h25, "ended"); apb_write(PEND, 32'h20);
            apb_expect(TSTATUS, 32'h0043_0000, "not selected");
            apb_read(TDATA + 1);
            apb_expect(TDATA, 32'h8112, "first byte"); apb_expect(TDATA, 32'h8034, "second byte");
            apb_expect(TDATA, 0, "no further one");
            for (k = 0; k < 128; k = k + `ROUNDS(1, 64))
                if (k != 7'h43 && k != 7'h2D) begin
                    o_start; o_put({k[6:0], k[0]}); check(!o_ack, "another address"); o_stop;
                end
            apb_expect(PEND, 32'h1, "nothing of others");
            // Reading: bytes that stand ready, then one that is waited for.
            apb_write(TDATA, 8'hC3); apb_write8(TDATA, 8'h5A); apb_write8(TDATA + 1, 8'hEE);
            apb_expect(LEVEL, 32'h0002_0000, "two to send");
            o_start; o_put(8'h87); check(o_ack, "address, read");
            apb_expect(TSTATUS, 32'h0043_0003, "sends");
            o_get(1'b1); check(o_data === 8'hC3, "first byte sent");
            o_get(1'b1); check(o_data === 8'h5A, "second byte sent");
            apb_write(INTEN, 32'h8);
            fork
                begin o_get(1'b0); check(o_data === 8'h99, "the byte that was waited for"); o_stop; end
                begin @(posedge scl); check($time - at_sda >= 250, "set-up time of a bit that was waited for"); end
                begin
                    wait_irq(2000, "a byte is wanted");
                    cycles(500); check(scl === 1'b0, "stretches");
                    apb_expect(TSTATUS, 32'h0043_0007, "holds");
                    apb_write(TDATA, 8'h99); cycles(1); check(irq === 1'b0, "not wanted any more");
                end
            join
            apb_write(PEND, 32'h70);
            // What is left is kept, until it is thrown away.
            apb_write(TDATA, 8'h01); apb_write(TDATA, 8'h02);
            o_start; o_put(8'h87); o_get(1'b0); o_stop;
            apb_expect(LEVEL, 32'h0001_0000, "one is left");
            apb_write(COMMAND, TDROP);
            apb_expect(LEVEL, 0, "thrown away");
            for (k = 0; k < 17; k = k + 1) apb_write(TDATA, k);
            apb_read(TSTATUS); check(rd[3] === 1'b1, "full");
            o_start; o_put(8'h87);
            for (k = 0; k < 16; k = k + 1) begin o_get(k < 15); check(o_data === k, "a byte of sixteen"); end
            o_stop;
`ifndef SHORT
            // More than there is room for: stretched until they are taken.
            fork
                begin
                    o_start; o_put(8'h86);
                    for (k = 0; k < 18; k = k + 1) begin o_put(8'h40 + k); check(o_ack, "acknowledged in the end"); end
                    o_stop;
                end
                begin
                    apb_read(TSTATUS);
                    while (!rd[2]) apb_read(TSTATUS);
                    cycles(300); check(scl === 1'b0 && sda_outen === 1'b0, "holds without an answer");
                    for (m = 0; m < 17; m = m + 1) begin
                        apb_read(TDATA); check(rd[7:0] === 8'h40 + m && rd[8] === (m == 0), "byte of eighteen");
                        cycles(2000);
                    end
                end
            join
            apb_expect(TDATA, 32'h8051, "the last one");
            // Neither waits.
            apb_write(TCTRL, 9);
            o_start; o_put(8'h86);
            for (k = 0; k < 17; k = k + 1) begin o_put(k); check(o_ack === (k < 16), "no room, no acknowledge"); end
            o_stop;
            o_start; o_put(8'h87); o_get(1'b0); check(o_data === 8'hFF, "ones for nothing"); o_stop;
            for (k = 0; k < 16; k = k + 1) apb_read(TDATA);
            apb_write(TCTRL, 33);
            o_start; o_put(8'h86); check(o_ack, "address"); o_put(8'h01); check(!o_ack, "refused byte"); o_stop;
            apb_expect(TDATA, 0, "not kept");
            // General call.
            apb_write(TCTRL, 3);
            o_start; o_put(8'h00); check(o_ack, "general call"); o_put(8'h06); o_put(8'h07); o_stop;
            apb_expect(TSTATUS, 32'h0, "of address 0");
            apb_expect(TDATA, 32'h8306, "by the general call"); apb_expect(TDATA, 32'h8207, "and on");
            o_start; o_put(8'h01); check(!o_ack, "address 0 for reading is none"); o_stop;
            // A mask, and the address that was called; a repeated start from one to the other.
            apb_write(TADDR, 32'h0003_0040); apb_write(TCTRL, 1);
            o_start; o_put(8'h84); check(o_ack, "within the mask"); o_put(8'h55); check(o_ack, "byte");
            apb_expect(TSTATUS, 32'h0042_0001, "the address called");
            apb_write(PEND, 32'h70); apb_write(TDATA, 8'h66);
            o_start; o_put(8'h83); check(o_ack, "the other one");
            apb_expect(PEND, 32'h35, "ended and addressed again");
            apb_expect(TSTATUS, 32'h0041_0003, "the other address");
            o_get(1'b0); check(o_data === 8'h66, "byte behind the repeated start");
            o_start; o_put(8'h88); check(!o_ack, "outside of the mask"); o_stop;
            apb_expect(TDATA, 32'h8155, "the byte before");
            apb_write(TADDR, 32'h007F_0000);
            o_start; o_put(8'h00); check(!o_ack, "no general call by a mask"); o_stop;
            o_start; o_put(8'hF2); check(!o_ack, "no prefix by a mask"); o_stop;
            // Ten bits: two bytes, and for reading only the first one behind a repeated start.
            apb_write(TADDR, 32'h0000_02A5); apb_write(TCTRL, 5);
            o_start; o_put(8'hF4); check(o_ack, "upper bits"); o_put(8'hA5); check(o_ack, "lower bits");
            apb_expect(TSTATUS, 32'h02A5_0001, "ten bits");
            o_put(8'h77); check(o_ack, "byte");
            apb_write(TDATA, 8'h88);
            o_start; o_put(8'hF5); check(o_ack, "reading, ten bits");
            o_get(1'b0); check(o_data === 8'h88, "byte, ten bits"); o_stop;
            apb_expect(TDATA, 32'h8177, "byte written, ten bits");
            o_start; o_put(8'hF5); check(!o_ack, "reading needs the whole address"); o_stop;
            o_start; o_put(8'hF4); o_put(8'hA4); check(!o_ack, "other lower bits");
            o_start; o_put(8'hF5); check(!o_ack, "not chosen before"); o_stop;
            o_start; o_put(8'hF2); check(!o_ack, "other upper bits"); o_stop;
            o_start; o_put(8'h4A); check(!o_ack, "not of seven bits"); o_stop;
            // A limit of the target's own stretching.
            apb_write(TADDR, 32'h0000_0043); apb_write(TCTRL, 1); apb_write(TIMEOUT, 4); apb_write(PEND, 32'h70);
            o_start; o_put(8'h87);
            while (scl_outen !== 1'b1) cycles(1);
            cycles(1000);
            check(scl_outen === 1'b1, "still holds"); cycles(40); released("gives up");
            apb_expect(PEND, 32'h51, "has given up"); apb_expect(ERROR, 0, "no error of the master");
            o_stop; apb_write(PEND, 32'h70); apb_write(TIMEOUT, 0);
            // Switched off while it holds.
            o_start; o_put(8'h87); #1000; check(scl_outen === 1'b1, "holds");
            apb_write(TCTRL, 0); cycles(1); released("switched off");
            o_stop; apb_write(TCTRL, 1); apb_write(PEND, 32'h70);
            // A master that loses to one which calls its own target.
            apb_write(INTEN, 8); apb_write(CTRL, 3); settle;
            o_quarter = 100;
            fork
                begin o_start; o_put(8'h86); check(o_ack, "the winner's address"); o_put(8'h2F); o_stop; end
                begin @(negedge sda); write_byte(8'h87, START | STOP); end
            join
            apb_expect(TDATA, 32'h812F, "the winner's byte");
            wait_irq(5000, "its own turn comes");                            // reads from itself: held, since it has no byte
            apb_write(INTEN, 0); apb_write(PEND, 32'h70); apb_write(TDATA, 8'hFF);
            ended(32'h8, 0, "its own address");
            settle;
            rival_begins(7);
            rival[39:22] = {8'h86, 1'b1, 8'h3D, 1'b1};
            write_byte(8'h87, START);
            ended(32'h18, 0, "lost in the last bit of the address");
            rival_runs = 1'b0;
            other_scl = 1'b0; rival_on = 1'b0; other_sda = 1'b1; #(o_quarter);
            o_bit(1'b1, o_ack);
            check(o_ack === 1'b0, "the loser's target acknowledges");
            o_put(8'h3D); check(o_ack, "and takes the byte"); o_stop;
            apb_expect(TDATA, 32'h813D, "the byte of the winner");
            // Its own target, with a whole transfer from the FIFO.
            settle;
            apb_write(FIFO, F_START | 8'h86); apb_write(FIFO, 8'hE1); apb_write(FIFO, 8'hE2);
            apb_write(TDATA, 8'hD1); apb_write(TDATA, 8'hD2);
            apb_write(FIFO, F_START | 8'h87); apb_write(FIFO, F_READ | F_NACK | F_STOP | 1);
            ended(32'h8, 0, "to itself");
            apb_expect(TDATA, 32'h81E1, "to itself 1"); apb_expect(TDATA, 32'h80E2, "to itself 2");
            apb_expect(FIFO, 32'h80D1, "from itself 1"); apb_expect(FIFO, 32'h80D2, "from itself 2");
            apb_write(TCTRL, 0);
`endif
        end
    endtask
`else
    task queue;
        begin
            apb_expect(ID, 32'h00000207, "ID");
            for (k = FIFO; k <= TSTATUS; k = k + 4)
                if (k != INTEN) begin apb_write(k, ~0); apb_expect(k, 0, "not there"); end
        end
    endtask
    task target;
        begin end
    endtask
`endif

    task program_of_now;
        begin
            apb_write(STATUS, 32'h18);
            write_byte(8'h5A, START | STOP); ended(32'h8, 0, "acknowledged");
`ifndef SHORT
            arbitration;
            waiting;
            held;
            timings;
`endif
            spikes;
            synchronized;
            queue;
            target;
            registers_by_their_parts;
        end
    endtask

    task registers_by_their_parts;
        begin
            reset;
            apb_parts(PRESCALE, 32'hFFFF, 0); apb_parts(CTRL, 32'h7, 0); apb_parts(TX, 32'hFF, 0);
            apb_parts(TIMEOUT, 32'hFFFF, 0); apb_parts(FILTER, 32'hF, 0);
`ifndef I2C_SMALL
            apb_parts(THRESHOLD, 32'h0F0F, 0); apb_parts(INTEN, 32'h7F, 0); apb_parts(TCTRL, 32'h2F, 0);
            apb_parts(TADDR, 32'h03FF03FF, 0);
`endif
            apb_parts(12'h04C, 0, 0);
            released("no command among it");
        end
    endtask
endmodule
