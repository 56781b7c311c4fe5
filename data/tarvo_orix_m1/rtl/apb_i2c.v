// I2C master and target: commands one by one or from a FIFO, clock stretching and synchronization, arbitration in every
// bit, time-out, abort, recovery of the bus, spike filter.  Registers: registers/i2c.json.
// A line is pulled low with its enable output at 1 and its value output at 0; it is released with the enable at 0.
//   LOG_DEPTH  words of each FIFO = 2 ** LOG_DEPTH, up to 6; 0: the master has none, those of the target have two words
//   TARGET     1: with the target
//   FULL       sum of what is there: 1 time-out, 2 filter, 4 other masters (without them arbitration is lost in bytes that are
//              sent only), 8 abort and recovery; ID has ones for the others in bits 28 to 31
module apb_i2c #(
    parameter LOG_DEPTH = 4,
    parameter TARGET    = 1, FULL = 15
) (
    input  wire        PCLK,
    input  wire        PRESETn,
    input  wire        PSEL,
    input  wire        PENABLE,
    input  wire        PWRITE,
    input  wire [11:0] PADDR,
    input  wire [31:0] PWDATA,
    input  wire [3:0]  PSTRB,
    output reg  [31:0] PRDATA,
    output wire        PREADY,
    output wire        PSLVERR,
    input  wire        scl_in,
    output wire        scl_out,
    output wire        scl_outen,
    input  wire        sda_in,
    output wire        sda_out,
    output wire        sda_outen,
    output wire        irq
);
    localparam [3:0] IDLE  = 4'd0;   // SCL is held low between the commands of a transfer
    localparam [3:0] WAIT  = 4'd1;   // until the bus is free
    localparam [3:0] LOW1  = 4'd2;   // SCL low; SDA changes at the end
    localparam [3:0] LOW2  = 4'd3;
    localparam [3:0] RISE  = 4'd4;   // SCL is released; others may hold it
    localparam [3:0] HIGH1 = 4'd5;
    localparam [3:0] HIGH2 = 4'd6;
    localparam [3:0] HOLD1 = 4'd7;   // behind the edge of SDA of a start or stop
    localparam [3:0] HOLD2 = 4'd8;
    localparam [1:0] START = 2'd0;   // what goes over the bus in LOW1 to HOLD2
    localparam [1:0] DATA  = 2'd1;   // one of eight data bits or the acknowledge bit
    localparam [1:0] STOP  = 2'd2;

    localparam [3:0] HAS = FULL; localparam [0:0] HAS_TIMEOUT = HAS[0], HAS_FILTER = HAS[1], HAS_OTHERS = HAS[2], HAS_WAY_OUT = HAS[3], FIFO = LOG_DEPTH > 0;
    localparam T_DEPTH  = FIFO ? LOG_DEPTH : 1;
    localparam [0:0] ID_TARGET = TARGET != 0;

    wire store = PSEL & PENABLE & PWRITE;
    wire [11:0] offset = {PADDR[11:2], 2'b00};
    wire take  = PSEL & PENABLE & ~PWRITE & (PADDR[1:0] == 2'b00);

    // ---- settings
    reg [15:0] prescale;
    reg [2:0]  ctrl;
    reg [7:0]  txdata;
    reg [15:0] timeout;
    reg [3:0]  filter;
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            prescale <= 16'd99;
            ctrl     <= 3'd0;
            txdata   <= 8'd0;
            timeout  <= 16'd0;
            filter   <= 4'd0;
        end else if (store)
            case (offset)
                12'h000: begin
                    if (PSTRB[0]) prescale[7:0]  <= PWDATA[7:0];
                    if (PSTRB[1]) prescale[15:8] <= PWDATA[15:8];
                end
                12'h004: if (PSTRB[0]) ctrl   <= {HAS_OTHERS ? PWDATA[2] : 1'b0, PWDATA[1:0]};
                12'h008: if (PSTRB[0]) txdata <= PWDATA[7:0];
                12'h018: begin
                    if (PSTRB[0]) timeout[7:0]  <= HAS_TIMEOUT ? PWDATA[7:0] : timeout[7:0];
                    if (PSTRB[1]) timeout[15:8] <= HAS_TIMEOUT ? PWDATA[15:8] : timeout[15:8];
                end
                12'h01C: if (PSTRB[0]) filter <= HAS_FILTER ? PWDATA[3:0] : filter;
                default: ;
            endcase
    wire enabled = ctrl[0];
    wire refuse  = ctrl[2];

    // ---- lines: a level counts when it was there for more than FILTER cycles
    wire scl_sync, sda_sync;
    cdc_synchronizer #(.RESET(1'b1)) u_sync_scl (.clk(PCLK), .rstn(PRESETn), .d(scl_in), .q(scl_sync));
    cdc_synchronizer #(.RESET(1'b1)) u_sync_sda (.clk(PCLK), .rstn(PRESETn), .d(sda_in), .q(sda_sync));
    reg       scl_was, sda_was;      // the levels of the cycle before
    reg [3:0] scl_for, sda_for;      // cycles for which the pin has had the other level
    wire scl = !HAS_FILTER ? scl_sync : scl_for == filter ? scl_sync : scl_was;
    wire sda = !HAS_FILTER ? sda_sync : sda_for == filter ? sda_sync : sda_was;
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            scl_was <= 1'b1;
            sda_was <= 1'b1;
            scl_for <= 4'd0;
            sda_for <= 4'd0;
        end else begin
            scl_was <= scl;
            sda_was <= sda;
            scl_for <= !HAS_FILTER ? 4'd0 : (scl_sync == scl) ? 4'd0 : scl_for + 4'd1;
            sda_for <= !HAS_FILTER ? 4'd0 : (sda_sync == sda) ? 4'd0 : sda_for + 4'd1;
        end
    wire start_seen = scl & scl_was & ~sda & sda_was;
    wire stop_seen  = scl & scl_was & sda & ~sda_was;

    // ---- master
    reg [7:0]  rxdata;
    reg        nacked, open, complete, arblost;
    reg        refused, stuck, expired, aborted;
    reg        taken;        // somebody has the bus
    reg        stopped;      // a stop was seen since
    reg [3:0]  state;
    reg [1:0]  kind;
    reg [15:0] count;
    reg [6:0]  quiet;        // quarters for which no line has moved while SCL is high
    reg [4:0]  settle;       // cycles until what was done to a line is seen
    reg [3:0]  bits;
    reg [8:0]  shift_out;    // bits to send, the acknowledge bit last; 1 releases the line
    reg [7:0]  shift_in;
    reg        reading;
    reg        recovering;
    reg        has_byte;
    reg        has_stop;
    reg        first;        // the byte is the one behind a start
    reg        from_device;  // the first byte of this transfer asked for reading
    reg        scl_low;      // 1 pulls the line
    reg        sda_low;

    wire       q_ready, q_start, q_read, q_nack, q_stop;   // the oldest command of the FIFO
    wire [7:0] q_byte;
    wire       q_waits;      // it may run as soon as this master has nothing else to do
    wire       q_last;       // no command stands behind the one that runs
    wire       queued;       // the byte is one of a command of the FIFO
    wire       again;        // a command of the FIFO goes on with a further byte
    wire       again_ready;
    wire       again_nack;
    wire       more;         // and has to after this byte
    wire       nack_error;

    wire busy    = (state != IDLE) | q_waits | again;
    wire command = store & (offset == 12'h010) & PSTRB[0];
    wire abort   = HAS_WAY_OUT ? command & PWDATA[6] : 1'b0;
    wire accept  = HAS_WAY_OUT ? command & ~busy & enabled & ~PWDATA[6] : command & ~busy & enabled;
    wire halted  = arblost | stuck | expired | aborted | refused | nack_error;

    // The command that begins.
    wire begins   = (state == IDLE) & (accept ? (HAS_WAY_OUT ? |PWDATA[3:0] | PWDATA[5] : |PWDATA[3:0]) : (q_ready & ~again));
    wire n_queue  = ~accept;
    wire n_heal   = HAS_WAY_OUT ? accept & PWDATA[5] : 1'b0;
    wire n_start  = (accept ? PWDATA[0] : q_start) & ~n_heal;
    wire n_read   = (accept ? PWDATA[2] : q_read) | n_heal;
    wire n_byte   = n_read | ~accept | PWDATA[1];
    wire n_stop   = (accept ? PWDATA[3] : q_stop) | n_heal;
    wire n_nack   = accept ? PWDATA[4] | n_heal : q_nack;
    wire n_refuse = !HAS_OTHERS ? ~open & ~n_start & n_queue : ~open & (n_start ? taken & refuse : n_queue | (taken & n_byte & ~n_read));

    reg        late;         // the time-out is over
    wire       tick    = count == 16'd0;
    wire       settled = settle == 5'd0;
    // Another master that ends the high time ends it for all.
    wire       is_high  = (state == HIGH1) | (state == HIGH2);
    wire       cut      = HAS_OTHERS ? is_high & ~scl : 1'b0;
    wire       end_high = cut | ((state == HIGH2) & tick);
    wire       level    = cut ? sda_was : sda;
    // Another master shows itself: it pulls SDA where this one has released it, or begins or ends a transfer within a bit.
    wire       mine     = !HAS_OTHERS ? ~reading & (bits != 4'd0) : reading ? (bits == 4'd0) & from_device & open : bits != 4'd0;
    wire       fought   = !HAS_OTHERS ? (kind == DATA) & mine & shift_out[8] & ~level & end_high : (kind == DATA) & ~recovering
                        & ((mine & shift_out[8] & ~level & (end_high | (state == HIGH2)))
                           | (is_high & open & (start_seen | stop_seen)));
    wire       beaten   = !HAS_OTHERS ? 1'b0 : ((kind == START) & (cut | ((state == RISE) & scl & ~sda))) | ((kind == STOP) & cut);
    wire       unstopped = !HAS_OTHERS ? 1'b0 : (state == HOLD2) & (kind == STOP) & tick & settled & ~stopped & ~stop_seen;
    wire       blocked  = !HAS_OTHERS ? 1'b0 : (state == WAIT) & quiet[6] & ~sda;
    wire       lost     = fought | beaten | unstopped | blocked;
    wire       byte_end = (kind == DATA) & end_high & (bits == 4'd0);
    wire       failed   = byte_end & ~reading & queued & level;

    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            rxdata      <= 8'd0;
            nacked      <= 1'b0;
            open        <= 1'b0;
            complete    <= 1'b0;
            arblost     <= 1'b0;
            refused     <= 1'b0;
            stuck       <= 1'b0;
            expired     <= 1'b0;
            aborted     <= 1'b0;
            taken       <= 1'b0;
            stopped     <= 1'b0;
            state       <= IDLE;
            kind        <= START;
            count       <= 16'd0;
            quiet       <= 7'd0;
            settle      <= 5'd0;
            bits        <= 4'd0;
            shift_out   <= 9'd0;
            shift_in    <= 8'd0;
            reading     <= 1'b0;
            recovering  <= 1'b0;
            has_byte    <= 1'b0;
            has_stop    <= 1'b0;
            first       <= 1'b0;
            from_device <= 1'b0;
            scl_low     <= 1'b0;
            sda_low     <= 1'b0;
        end else begin
            if (store & PSTRB[0]) begin
                if (offset == 12'h014) begin
                    complete <= complete & ~PWDATA[3];
                    arblost  <= arblost & ~PWDATA[4];
                end
                if (offset == 12'h020) begin
                    refused <= refused & ~PWDATA[1];
                    stuck   <= stuck & ~PWDATA[2];
                    expired <= expired & ~PWDATA[3];
                    aborted <= aborted & ~PWDATA[4];
                end
            end

            count  <= tick ? prescale : count - 16'd1;
            if (!settled)
                settle <= HAS_FILTER ? settle - 5'd1 : {3'd0, settle[1:0] - 2'd1};
            if (stop_seen)
                stopped <= HAS_OTHERS ? 1'b1 : stopped;

            case (state)
                IDLE, WAIT: begin
                    if (!HAS_OTHERS ? 1'b0 : !scl || scl != scl_was || sda != sda_was) begin
                        quiet <= HAS_OTHERS ? 7'd0 : quiet;
                        count <= prescale;
                    end else if (tick && !quiet[6])
                        quiet <= HAS_OTHERS ? quiet + 7'd1 : quiet;
                    if (!scl || !sda) begin
                        taken   <= HAS_OTHERS ? 1'b1 : taken;
                        stopped <= HAS_OTHERS ? 1'b0 : stopped;
                    end else if (quiet[6] || (stopped && quiet[1]))
                        taken <= HAS_OTHERS ? 1'b0 : taken;
                    if (state == WAIT && !taken && scl && sda) begin
                        sda_low <= 1'b1;
                        taken   <= HAS_OTHERS ? 1'b1 : taken;
                        quiet   <= HAS_OTHERS ? 7'd0 : quiet;
                        count   <= prescale;
                        state   <= HOLD1;
                    end
                end
                LOW1: if (tick) begin
                    sda_low <= (kind == DATA) ? ~shift_out[8] : (kind == STOP);
                    state   <= LOW2;
                end
                LOW2: if (tick) begin
                    count <= 16'd0;
                    if (settled) begin
                        scl_low <= 1'b0;
                        state   <= RISE;
                    end
                end
                RISE: begin
                    count <= prescale;
                    if (scl)
                        state <= HIGH1;
                end
                HIGH1, HIGH2: begin
                    if (tick)
                        state <= HIGH2;
                    if (HAS_OTHERS ? end_high || (kind == START && start_seen) : end_high) begin
                        count   <= prescale;
                        settle  <= {1'b0, filter} + 5'd3;
                        stopped <= HAS_OTHERS ? 1'b0 : stopped;
                        case (kind)
                            START: begin
                                sda_low <= 1'b1;
                                state   <= HOLD1;
                            end
                            STOP: begin
                                sda_low <= 1'b0;
                                state   <= HOLD1;
                            end
                            default: begin
                                scl_low   <= 1'b1;
                                shift_out <= {shift_out[7:0], 1'b1};
                                bits      <= bits - 4'd1;
                                state     <= LOW1;
                                if (bits != 4'd0)
                                    shift_in <= {shift_in[6:0], level};
                                else begin
                                    first <= HAS_OTHERS ? 1'b0 : first;
                                    if (first && !reading)
                                        from_device <= HAS_OTHERS ? shift_in[0] : from_device;
                                    if (!reading)
                                        nacked <= level;
                                    else if (!recovering)
                                        rxdata <= shift_in;
                                    kind <= STOP;
                                    if (more || !(has_stop || failed))
                                        state <= IDLE;
                                    if (!more && !has_stop && !failed && (!queued || q_last))
                                        complete <= 1'b1;
                                end
                            end
                        endcase
                    end
                end
                HOLD1: begin
                    if (tick)
                        state <= HOLD2;
                end
                default: if (tick) begin
                    if (kind == STOP) begin
                        count <= 16'd0;
                        if (settled) begin
                            open     <= 1'b0;
                            taken    <= HAS_OTHERS ? ~scl | ~sda : taken;
                            quiet    <= HAS_OTHERS ? 7'd0 : quiet;
                            count    <= prescale;
                            complete <= ~queued | q_last;
                            state    <= IDLE;
                        end
                    end
                end
            endcase
            // A start has been made, or another master goes on with the clock already.
            if (HAS_OTHERS ? kind == START && ((state == HOLD2 && tick) || ((state == HOLD1 || state == HOLD2) && !scl)) : kind == START && state == HOLD2 && tick) begin
                scl_low <= 1'b1;
                open    <= 1'b1;
                first   <= HAS_OTHERS ? 1'b1 : first;
                count   <= prescale;
                settle  <= {1'b0, filter} + 5'd3;
                kind    <= has_byte ? DATA : STOP;
                state   <= (has_byte | has_stop) ? LOW1 : IDLE;
                if (!has_byte && !has_stop)
                    complete <= 1'b1;
            end

            if (begins) begin
                complete   <= n_refuse;
                refused    <= refused | n_refuse;
                arblost    <= arblost | n_refuse;
                reading    <= n_read;
                recovering <= HAS_WAY_OUT ? n_heal : recovering;
                has_byte   <= n_byte;
                has_stop   <= n_stop;
                bits       <= 4'd8;
                shift_out  <= n_read ? {8'hFF, n_nack & (accept | (q_byte == 8'd0))} : {accept ? txdata : q_byte, 1'b1};
                kind       <= n_start ? START : n_byte ? DATA : STOP;
                count      <= prescale;
                if (!n_refuse)
                    state <= (n_start & ~open) ? WAIT : LOW1;
                // Outside of a transfer SDA may not move while SCL is high.
                if (!open && !n_refuse && !n_start && (n_heal || !n_read)) begin
                    scl_low <= 1'b1;
                    settle  <= {1'b0, filter} + 5'd3;
                end
            end else if (again_ready) begin
                bits      <= 4'd8;
                shift_out <= {8'hFF, again_nack};
                kind      <= DATA;
                count     <= prescale;
                state     <= LOW1;
            end

            if (lost | late | abort) begin
                state    <= IDLE;
                open     <= 1'b0;
                complete <= 1'b1;
                scl_low  <= 1'b0;
                sda_low  <= 1'b0;
                stopped  <= HAS_OTHERS ? 1'b0 : stopped;
                quiet    <= HAS_OTHERS ? 7'd0 : quiet;
                if (abort)
                    aborted <= HAS_WAY_OUT ? 1'b1 : aborted;
                else if (late)
                    expired <= HAS_TIMEOUT;
                else begin
                    arblost <= 1'b1;
                    if (unstopped | blocked)
                        stuck <= HAS_OTHERS ? 1'b1 : stuck;
                end
            end
        end

    // ---- FIFO of commands and of received bytes
    wire        fifo_store = store & (offset == 12'h028) & PSTRB[0];
    wire        fifo_take  = take & (offset == 12'h028);
    wire [31:0] fifo_rdata, threshold_rdata;
    wire [15:0] levels;
    wire        overflow;
    wire [1:0]  fifo_pending;
    wire [6:0]  rx_threshold;
    wire        clear_error = store & (offset == 12'h020) & PSTRB[0];
    generate
        if (FIFO) begin : g_fifo
            reg        from_queue, goes_on, nack_last, no_ack, full;
            reg [7:0]  left;
            reg [LOG_DEPTH-1:0] tx_threshold, above;
            wire       tx_empty, tx_full, rx_empty, rx_full;
            wire [LOG_DEPTH:0] tx_level, rx_level;
            wire [7:0] rx_byte;
            wire       pop = begins & ~accept;
            sync_fifo #(.WIDTH(12), .LOG_DEPTH(LOG_DEPTH)) u_commands (
                .clk(PCLK), .rstn(PRESETn), .clear(halted | abort), .push(fifo_store),
                .wdata({PWDATA[19:16] & {4{PSTRB[2]}}, PWDATA[7:0]}), .pop(pop),
                .rdata({q_stop, q_nack, q_read, q_start, q_byte}), .empty(tx_empty), .full(tx_full), .level(tx_level));
            sync_fifo #(.WIDTH(8), .LOG_DEPTH(LOG_DEPTH)) u_received (
                .clk(PCLK), .rstn(PRESETn), .clear(1'b0), .push(byte_end & reading & from_queue & ~lost),
                .wdata(shift_in), .pop(fifo_take), .rdata(rx_byte), .empty(rx_empty), .full(rx_full), .level(rx_level));
            assign q_waits     = enabled & ~tx_empty & ~halted;
            assign q_ready     = q_waits & ~(q_read & rx_full);
            assign q_last      = tx_empty;
            assign queued      = from_queue;
            assign again       = goes_on;
            assign again_ready = goes_on & (state == IDLE) & ~rx_full;
            assign again_nack  = nack_last & (left == 8'd0);
            assign more        = from_queue & reading & (left != 8'd0);
            assign nack_error  = no_ack;
            always @(posedge PCLK or negedge PRESETn)
                if (!PRESETn) begin
                    from_queue   <= 1'b0;
                    goes_on      <= 1'b0;
                    nack_last    <= 1'b0;
                    no_ack       <= 1'b0;
                    full         <= 1'b0;
                    left         <= 8'd0;
                    tx_threshold <= {LOG_DEPTH{1'b0}};
                    above        <= {LOG_DEPTH{1'b0}};
                end else begin
                    if (store && offset == 12'h030) begin
                        if (PSTRB[0]) tx_threshold <= PWDATA[LOG_DEPTH-1:0];
                        if (PSTRB[1]) above        <= PWDATA[8+LOG_DEPTH-1:8];
                    end
                    no_ack <= (no_ack & ~(clear_error & PWDATA[0])) | (failed & ~lost);
                    full   <= (full & ~(clear_error & PWDATA[5])) | (fifo_store & tx_full & ~pop);
                    if (begins) begin
                        from_queue <= ~accept;
                        nack_last  <= q_nack;
                        left       <= (~accept & q_read) ? q_byte : 8'd0;
                    end else if (byte_end && more)
                        left <= left - 8'd1;
                    if (lost | late | abort)
                        goes_on <= 1'b0;
                    else if (byte_end)
                        goes_on <= more;
                    else if (again_ready)
                        goes_on <= 1'b0;
                end
            assign overflow        = full;
            assign fifo_rdata      = {16'd0, ~rx_empty, 7'd0, rx_byte};
            assign fifo_pending    = {rx_level > {1'b0, above}, tx_level <= {1'b0, tx_threshold}};
            assign levels          = {{(7-LOG_DEPTH){1'b0}}, rx_level, {(7-LOG_DEPTH){1'b0}}, tx_level};
            assign threshold_rdata = {16'd0, {(8-LOG_DEPTH){1'b0}}, above, {(8-LOG_DEPTH){1'b0}}, tx_threshold};
            assign rx_threshold    = {{(7-LOG_DEPTH){1'b0}}, above};
        end else begin : g_no_fifo
            assign {q_waits, q_ready, q_start, q_read, q_nack, q_stop, q_byte} = 14'd0;
            assign {q_last, queued, again, again_ready, again_nack, more, nack_error} = 7'd0;
            assign {overflow, fifo_pending, rx_threshold} = 10'd0;
            assign {fifo_rdata, threshold_rdata, levels} = 80'd0;
        end
    endgenerate

    // ---- time-out: SCL held low by somebody else, or a start that waits
    wire        t_busy;
    reg  [23:0] passed;
    wire        passing = (state == WAIT) | (~scl & ~scl_low & ((state != IDLE) | t_busy));
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            passed <= 24'd0;
            late   <= 1'b0;
        end else begin
            passed <= !HAS_TIMEOUT ? 24'd0 : (passing & ~late & ~(store & (offset == 12'h018))) ? passed + 24'd1 : 24'd0;
            late   <= !HAS_TIMEOUT ? 1'b0 : passing & ~late & (state != IDLE) & (timeout != 16'd0) & (passed[23:8] == timeout);
        end
    wire t_late = !HAS_TIMEOUT ? 1'b0 : passing & t_busy & (timeout != 16'd0) & (passed[23:8] == timeout);

    // ---- target
    wire        t_scl_low, t_sda_low;
    wire [31:0] t_ctrl_rdata, t_addr_rdata, t_data_rdata, t_status_rdata;
    wire [15:0] t_levels;
    wire [4:0]  t_pending;
    generate
        if (TARGET != 0) begin : g_target
            localparam [2:0] OFF   = 3'd0;   // not addressed, or done with
            localparam [2:0] HEAD  = 3'd1;   // the byte behind a start
            localparam [2:0] HEAD2 = 3'd2;   // the lower byte of an address of ten bits
            localparam [2:0] GETS  = 3'd3;
            localparam [2:0] SENDS = 3'd4;
            reg [5:0] t_ctrl;
            reg [9:0] address, mask;
            reg [2:0] mode;
            reg [3:0] t_bits;
            reg [7:0] shift;
            reg [9:0] met;              // the address that was called
            reg       chosen, by_all, known, fresh;
            reg       holds;            // SCL is held until there is a byte, or room for one
            reg       holds_scl;        // while `holds`, and `delay` behind it: of its own, so that the pin has no glitch
            reg [4:0] delay;            // and on, until SDA has been at its level long enough
            reg       pulls;
            reg       was_chosen, was_ended, was_late;
            wire      on      = t_ctrl[0];
            wire      stretch = ~t_ctrl[3];
            wire      rise    = scl & ~scl_was;
            wire      fall    = ~scl & scl_was;

            wire      hit_low = ((shift ^ address[7:0]) & ~mask[7:0]) == 8'd0;
            wire      prefix  = shift[7:3] == 5'b11110;
            wire      all     = shift == 8'd0;
            wire      hit7    = ~t_ctrl[2] & ~prefix & (shift[7:1] != 7'd0) & (((shift[7:1] ^ address[6:0]) & ~mask[6:0]) == 7'd0);
            wire      hit10   = t_ctrl[2] & prefix & (((shift[2:1] ^ address[9:8]) & ~mask[9:8]) == 2'd0)
                              & (~shift[0] | known);
            wire      hit     = hit7 | hit10 | (all & t_ctrl[1]);

            wire       rx_empty, rx_full, tx_empty, tx_full;
            wire [T_DEPTH:0] rx_level, tx_level;
            wire [9:0] rx_word;
            wire [7:0] tx_byte;
            // What a clock edge asks for, or has asked for since.
            wire       gets   = (mode == GETS) & (t_bits == 4'd8) & (fall | holds);
            wire       sends  = (mode == SENDS) & (t_bits == 4'd9) & (fall ? ~shift[0] : holds);
            wire       refuses = gets & (t_ctrl[5] | (rx_full & ~stretch));
            wire       push   = gets & ~refuses & ~rx_full;
            wire       pop    = sends & ~tx_empty;
            wire       data_store = store & (offset == 12'h044) & PSTRB[0];
            wire       data_take  = take & (offset == 12'h044);
            wire       drop   = command & PWDATA[7];
            sync_fifo #(.WIDTH(10), .LOG_DEPTH(T_DEPTH)) u_got (
                .clk(PCLK), .rstn(PRESETn), .clear(~on), .push(push), .wdata({by_all, fresh, shift}), .pop(data_take),
                .rdata(rx_word), .empty(rx_empty), .full(rx_full), .level(rx_level));
            sync_fifo #(.WIDTH(8), .LOG_DEPTH(T_DEPTH)) u_to_send (
                .clk(PCLK), .rstn(PRESETn), .clear(~on | drop), .push(data_store), .wdata(PWDATA[7:0]), .pop(pop),
                .rdata(tx_byte), .empty(tx_empty), .full(tx_full), .level(tx_level));

            always @(posedge PCLK or negedge PRESETn)
                if (!PRESETn) begin
                    t_ctrl     <= 6'd0;
                    address    <= 10'd0;
                    mask       <= 10'd0;
                    mode       <= OFF;
                    t_bits     <= 4'd0;
                    shift      <= 8'd0;
                    met        <= 10'd0;
                    chosen     <= 1'b0;
                    by_all     <= 1'b0;
                    known      <= 1'b0;
                    fresh      <= 1'b0;
                    holds      <= 1'b0;
                    holds_scl  <= 1'b0;
                    delay      <= 5'd0;
                    pulls      <= 1'b0;
                    was_chosen <= 1'b0;
                    was_ended  <= 1'b0;
                    was_late   <= 1'b0;
                end else begin
                    if (store) begin
                        if (offset == 12'h03C && PSTRB[0]) t_ctrl <= {PWDATA[5], 1'b0, PWDATA[3:0]};
                        if (offset == 12'h040) begin
                            if (PSTRB[0]) address[7:0] <= PWDATA[7:0];
                            if (PSTRB[1]) address[9:8] <= PWDATA[9:8];
                            if (PSTRB[2]) mask[7:0]    <= PWDATA[23:16];
                            if (PSTRB[3]) mask[9:8]    <= PWDATA[25:24];
                        end
                        if (offset == 12'h038 && PSTRB[0]) begin
                            was_chosen <= was_chosen & ~PWDATA[4];
                            was_ended  <= was_ended & ~PWDATA[5];
                            was_late   <= was_late & ~PWDATA[6];
                        end
                    end
                    if (delay != 5'd0)
                        delay <= delay - 5'd1;
                    if (delay == 5'd1 & ~holds)
                        holds_scl <= 1'b0;
                    if (rise && mode != OFF) begin
                        t_bits <= t_bits + 4'd1;
                        // Beside the acknowledge bit of a byte that is sent, which is kept for the edge behind it.
                        if (mode == SENDS ? t_bits == 4'd8 : t_bits != 4'd8)
                            shift <= {shift[6:0], sda};
                    end
                    if (fall && t_bits == 4'd8)
                        case (mode)
                            HEAD: begin
                                pulls <= hit;
                                mode  <= ~hit ? OFF : (hit10 & ~shift[0]) ? HEAD2 : shift[0] ? SENDS : GETS;
                                if (!hit10)
                                    known <= 1'b0;
                                by_all <= all;
                                fresh  <= hit;
                                if (hit && !(hit10 && !shift[0])) begin
                                    chosen     <= 1'b1;
                                    was_chosen <= 1'b1;
                                end
                                if (hit && !(hit10 && shift[0]))
                                    met <= hit10 ? {shift[2:1], 8'd0} : {3'd0, shift[7:1]};
                            end
                            HEAD2: begin
                                pulls <= hit_low;
                                known <= hit_low;
                                mode  <= hit_low ? GETS : OFF;
                                met[7:0] <= shift;
                                if (hit_low) begin
                                    chosen     <= 1'b1;
                                    was_chosen <= 1'b1;
                                end
                            end
                            SENDS: pulls <= 1'b0;
                            default: ;
                        endcase
                    else if (fall && t_bits == 4'd9) begin
                        pulls <= 1'b0;
                        if (mode != SENDS)
                            t_bits <= 4'd0;
                        else if (shift[0])
                            mode <= OFF;
                    end else if (fall && mode == SENDS) begin
                        pulls <= ~shift[7];
                        shift <= {shift[6:0], 1'b0};
                    end
                    if (push | refuses) begin
                        pulls  <= ~refuses;
                        fresh  <= 1'b0;
                        holds  <= 1'b0;
                        if (refuses)
                            mode <= OFF;
                        if (holds)
                            delay <= 5'd31;
                    end else if (gets) begin
                        holds     <= 1'b1;
                        holds_scl <= 1'b1;
                    end
                    if (sends) begin
                        if (tx_empty & stretch) begin
                            holds     <= 1'b1;
                            holds_scl <= 1'b1;
                        end else begin
                            // A byte that is not there is sent as ones.
                            pulls  <= ~tx_empty & ~tx_byte[7];
                            shift  <= tx_empty ? 8'hFF : {tx_byte[6:0], 1'b0};
                            t_bits <= 4'd0;
                            fresh  <= 1'b0;
                            holds  <= 1'b0;
                            if (holds)
                                delay <= 5'd31;
                        end
                    end
                    if (start_seen | stop_seen | t_late | ~on) begin
                        mode   <= (start_seen & on & ~t_late) ? HEAD : OFF;
                        t_bits <= 4'd0;
                        pulls  <= 1'b0;
                        holds  <= 1'b0;
                        holds_scl <= 1'b0;
                        delay  <= 5'd0;
                        chosen <= 1'b0;
                        if (chosen & (start_seen | stop_seen))
                            was_ended <= 1'b1;
                        if (t_late)
                            was_late <= 1'b1;
                        if (!start_seen)
                            known <= 1'b0;
                    end
                end
            assign t_scl_low      = holds_scl;
            assign t_sda_low      = pulls;
            assign t_busy         = chosen & (mode != OFF);
            assign t_pending      = {was_late, was_ended, was_chosen, holds & (mode == SENDS), {1'b0, rx_threshold} < {{(7-T_DEPTH){1'b0}}, rx_level}};
            assign t_ctrl_rdata   = {26'd0, t_ctrl};
            assign t_addr_rdata   = {6'd0, mask, 6'd0, address};
            assign t_data_rdata   = {16'd0, ~rx_empty, 5'd0, rx_word};
            assign t_status_rdata = {6'd0, met, 12'd0, tx_full, holds, mode == SENDS, chosen};
            assign t_levels       = {{(7-T_DEPTH){1'b0}}, rx_level, {(7-T_DEPTH){1'b0}}, tx_level};
        end else begin : g_no_target
            assign {t_scl_low, t_sda_low, t_busy} = 3'd0;
            assign t_pending = 5'd0;
            assign t_levels  = 16'd0;
            assign {t_ctrl_rdata, t_addr_rdata, t_data_rdata, t_status_rdata} = 128'd0;
        end
    endgenerate

    // ---- interrupts
    reg  [6:0] wanted;
    wire [6:0] pending = {t_pending, fifo_pending};
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn)
            wanted <= 7'd0;
        else if (store && offset == 12'h034 && PSTRB[0])
            wanted <= FIFO || TARGET != 0 ? PWDATA[6:0] : wanted;

    always @*
        case (offset)
            12'h000: PRDATA = {16'd0, prescale};
            12'h004: PRDATA = {29'd0, ctrl};
            12'h008: PRDATA = {24'd0, txdata};
            12'h00C: PRDATA = {24'd0, rxdata};
            12'h014: PRDATA = {27'd0, arblost, complete, open, nacked, busy};
            12'h018: PRDATA = {16'd0, timeout};
            12'h01C: PRDATA = {28'd0, filter};
            12'h020: PRDATA = {26'd0, overflow, aborted, expired, stuck, refused, nack_error};
            12'h024: PRDATA = {29'd0, taken, sda, scl};
            12'h028: PRDATA = fifo_rdata;
            12'h02C: PRDATA = {t_levels, levels};
            12'h030: PRDATA = threshold_rdata;
            12'h034: PRDATA = {25'd0, wanted};
            12'h038: PRDATA = {25'd0, pending};
            12'h03C: PRDATA = t_ctrl_rdata;
            12'h040: PRDATA = t_addr_rdata;
            12'h044: PRDATA = t_data_rdata;
            12'h048: PRDATA = t_status_rdata;
            12'hFFC: PRDATA = {~HAS, 7'd0, ID_TARGET, LOG_DEPTH[3:0], 8'd2, 8'd7};
            default: PRDATA = 32'd0;
        endcase

    assign PREADY    = 1'b1;
    assign PSLVERR   = 1'b0;
    assign scl_out   = 1'b0;
    assign sda_out   = 1'b0;
    assign scl_outen = scl_low | t_scl_low;
    assign sda_outen = sda_low | t_sda_low;
    assign irq       = (complete & ctrl[1]) | (|(pending & wanted));
endmodule
