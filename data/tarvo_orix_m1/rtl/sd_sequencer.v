// What is said to an SD card in SPI mode, byte by byte: a command with its response, the blocks behind it and their end.
// `state` names the byte that is on the line; the next one is chosen while it is.  From rest every byte is 0xFF, but for one
// of software's own.  FULL is that of apb_sdcard.
module sd_sequencer #(parameter FULL = 15) (
    input  wire        clk,
    input  wire        rstn,
    input  wire        tick,        // half a period of sclk
    input  wire        late,
    // What to do.  go and raw count while `idle`.
    input  wire        raw,         // sends the byte raw_data
    input  wire [7:0]  raw_data,
    input  wire        go,          // begins a command, or the clocks of `wake`
    input  wire        halt,        // ends everything at once
    input  wire        stop,        // no block behind the running one
    input  wire        wake,        // ten bytes and no command
    input  wire [5:0]  index,
    input  wire [31:0] argument,
    input  wire [1:0]  response,
    input  wire        reads,
    input  wire        writes,
    input  wire        multi,
    input  wire        waits,       // until the card is not busy
    input  wire [7:0]  words,       // of a block
    input  wire [15:0] blocks,
    input  wire [15:0] token_limit, // units of 1024 cycles, less one
    input  wire [15:0] busy_limit,
    // The buffer.
    input  wire        room,        // for a block
    input  wire        ready,       // a block is in it
    input  wire [31:0] word,        // its oldest
    output wire        pop,
    output wire        push,
    output wire [31:0] push_word,
    output wire        keep,        // what was pushed is a good block
    output wire        drop,        // what was pushed is a bad one
    // What came of it.
    output wire        idle,
    output wire        waiting,     // for the buffer
    output wire        finish,      // a command ends
    output wire        raw_done,
    output wire        moved_block,
    output wire [11:0] errors,
    output reg  [15:0] moved,
    output reg  [7:0]  r1,
    output reg  [7:0]  token,
    output reg  [31:0] value,
    output wire [7:0]  rx,
    output wire        moving,      // a byte is on its way

    output reg         hold,        // selects the card
    output wire        sclk,
    output wire        mosi,
    input  wire        miso
);
    localparam [0:0] HAS_COMMANDS = (FULL & 4) != 0, HAS_BLOCKS = (FULL & 6) == 6, HAS_MULTI = (FULL & 7) == 7;
    localparam [4:0] IDLE  = 5'd0, RAW = 5'd1;   // bit 4 is 0 in all states that there are without blocks
    localparam [4:0] WAKE  = 5'd2;
    localparam [4:0] LEAD  = 5'd3;    // selected, perhaps until the card is not busy
    localparam [4:0] GAP   = 5'd4;    // before a command
    localparam [4:0] CMD   = 5'd5;    // byte k of it
    localparam [4:0] STUFF = 5'd6;    // the byte behind CMD12 and behind the token of the end
    localparam [4:0] RESP  = 5'd7;
    localparam [4:0] EXTRA = 5'd8;    // of the response
    localparam [4:0] BUSY  = 5'd9;
    localparam [4:0] TOKEN = HAS_BLOCKS ? 5'd10 : 5'd26;   // waits for that of a block
    localparam [4:0] RDATA = HAS_BLOCKS ? 5'd11 : 5'd27;
    localparam [4:0] WWAIT = HAS_BLOCKS ? 5'd12 : 5'd28;   // for the buffer
    localparam [4:0] WGAP  = HAS_BLOCKS ? 5'd13 : 5'd29;   // before a token
    localparam [4:0] WTOK  = HAS_BLOCKS ? 5'd14 : 5'd30;
    localparam [4:0] WDATA = HAS_BLOCKS ? 5'd15 : 5'd31;
    localparam [4:0] WRESP = 5'd16;
    localparam [4:0] TAIL  = HAS_BLOCKS ? 5'd17 : 5'd10;   // selected for the last time
    localparam [4:0] LEAVE = HAS_BLOCKS ? 5'd18 : 5'd11;   // not selected, so that the card lets go of its line

    localparam [1:0] R1B = 2'd1, R2 = 2'd2;
    localparam [7:0] NOTHING = 8'hFF;

    reg [4:0]  state;
    reg [3:0]  k;
    reg [9:0]  left;        // bytes of the block and its CRC behind the one on the line
    reg        ending;      // the end of several blocks has begun
    reg        failed;      // the card did not take a block
    reg        stopped;
    reg        timed_out;
    reg        went_on;     // at the last step
    wire       active, step, sent, received, bit_in, done;

    assign idle    = state == IDLE;
    assign moving  = active;
    wire in_lead   = state == LEAD;
    wire in_resp   = state == RESP;
    wire in_busy   = state == BUSY;
    wire in_token  = state == TOKEN;
    wire in_rdata  = state == RDATA;
    wire in_wdata  = state == WDATA;
    wire in_wresp  = state == WRESP;
    wire in_wwait  = state == WWAIT;

    wire ones      = &rx;
    wire near_end  = left[9:2] == 8'd0;
    wire last_crc  = near_end & (left[1:0] == 2'd0);
    wire cut       = stopped & multi;
    wire [15:0] moved_next = moved + 16'd1;
    reg  last;              // block: known well before it is asked
    always @(posedge clk or negedge rstn)
        if (!rstn)
            last <= 1'b0;
        else
            last <= ~multi | stopped | (moved_next == blocks);

    // ---- CRCs: of what is sent when the card samples it, of what is received when it is there.
    reg  [6:0]  crc7;
    reg  [15:0] crc16;
    reg         feed7, feed16;
    wire        next7  = (state == GAP) | ((state == CMD) & ~k[2]);
    wire        next16 = ((state == WTOK) & ~ending) | (in_wdata & (~near_end | (&left[1:0])));
    wire        in7    = crc7[6] ^ mosi;
    wire        bit16  = in_rdata ? bit_in : mosi;
    wire        in16   = crc16[15] ^ bit16;
    always @(posedge clk or negedge rstn)
        if (!rstn) begin
            crc7   <= 7'd0;
            crc16  <= 16'd0;
            feed7  <= 1'b0;
            feed16 <= 1'b0;
        end else begin
            if (step) begin
                feed7  <= next7;
                feed16 <= next16;
            end
            if (idle | in_resp)
                crc7 <= 7'd0;
            else if (sent & feed7)
                crc7 <= {crc7[5:3], crc7[2] ^ in7, crc7[1:0], in7};
            if (in_token | (state == WGAP))
                crc16 <= 16'd0;
            else if ((sent & feed16) | (received & in_rdata))
                crc16 <= {crc16[14:12], crc16[11] ^ in16, crc16[10:5], crc16[4] ^ in16, crc16[3:0], in16};
        end
    wire bad_crc = crc16 != 16'd0;

    // ---- the byte behind the one on the line
    wire [1:0] place = in_wdata ? 2'd2 - left[1:0] : 2'd0;   // within the word
    reg  [7:0] next;
    always @*
        case (state)
            GAP:     next = {2'b01, ending ? 6'd12 : index};
            CMD:
                case (k[2:0])
                    3'd0:    next = argument[31:24] & {8{~ending}};
                    3'd1:    next = argument[23:16] & {8{~ending}};
                    3'd2:    next = argument[15:8] & {8{~ending}};
                    3'd3:    next = argument[7:0] & {8{~ending}};
                    3'd4:    next = {crc7, 1'b1};
                    default: next = NOTHING;
                endcase
            WGAP:    next = ending ? 8'hFD : multi ? 8'hFC : 8'hFE;
            WTOK, WDATA:
                if ((state == WTOK) ? ending : last_crc)
                    next = NOTHING;
                else if (in_wdata & near_end & (left[1:0] == 2'd2))
                    next = crc16[15:8];
                else if (in_wdata & near_end & (left[1:0] == 2'd1))
                    next = crc16[7:0];
                else
                    case (place)
                        2'd0:    next = word[7:0];
                        2'd1:    next = word[15:8];
                        2'd2:    next = word[23:16];
                        default: next = word[31:24];
                    endcase
            default: next = NOTHING;
        endcase
    wire [7:0] tx = active ? next : raw ? raw_data : NOTHING;

    reg run;
    always @*
        case (state)
            IDLE:    run = raw;
            RAW:     run = 1'b0;
            WAKE:    run = k != 4'd9;
            LEAD:    run = ~reads | room;
            TOKEN:   run = room | cut;
            RDATA:   run = ~last_crc | room | (HAS_MULTI ? last : 1'b1);
            WWAIT:   run = ready | cut;
            TAIL:    run = 1'b0;
            LEAVE:   run = ~active;
            default: run = 1'b1;
        endcase

    wire end_now;
    sd_shifter u_shifter (
        .clk(clk), .rstn(rstn), .tick(tick), .late(late), .halt(end_now), .run(run), .tx(tx),
        .active(active), .step(step), .sent(sent), .received(received), .bit_in(bit_in), .rx(rx), .done(done),
        .sclk(sclk), .mosi(mosi), .miso(miso)
    );

    // ---- time-outs
    reg  [9:0]  part;
    reg  [15:0] units;
    reg         heard;        // a byte of the card, in a state that waits for the right one
    wire [15:0] limit   = in_token ? token_limit : busy_limit;
    wire        again   = done & ~timed_out & ((in_lead & waits & ~ones) | (in_token & ones) | (in_busy & ~ones));
    wire        expire  = HAS_COMMANDS ? (&part) & (units == limit) & (state != RAW) & (~done | again) : 1'b0;
    wire        stuck   = expire & ~heard;
    wire        restart = idle | ~active | (done & ~again) | expire;
    always @(posedge clk or negedge rstn)
        if (!rstn) begin
            part  <= 10'd0;
            units <= 16'd0;
            heard <= 1'b0;
        end else begin
            part <= restart ? 10'd0 : part + 10'd1;
            if (restart)
                units <= 16'd0;
            else if (&part)
                units <= units + 16'd1;
            heard <= ~restart & (heard | done);
        end
    assign end_now = ~idle & (halt | stuck);

    // ---- what became of a byte
    wire answered   = done & in_resp & ~rx[7];
    wire unanswered = done & in_resp & rx[7] & k[3];
    wire verdict    = done & in_wresp & (~ones | k[3]);
    wire is_verdict = ~rx[4] & rx[0];
    wire accepted   = is_verdict & (rx[3:1] == 3'b010);
    wire no_crc     = is_verdict & (rx[3:1] == 3'b101);
    wire no_write   = is_verdict & (rx[3:1] == 3'b110);
    wire arrived    = done & in_token & ~timed_out & ~cut & ~ones;
    wire is_block   = rx == 8'hFE;
    wire whole      = done & in_rdata & last_crc;
    wire ended_busy = done & in_busy & (ones | timed_out);
    wire stored     = ended_busy & ~timed_out & writes & ~ending & ~failed;

    assign errors = {
        stuck,
        expire & heard & ~in_token,
        verdict & ~accepted & ~no_crc & ~no_write,
        verdict & no_write,
        verdict & no_crc,
        whole & bad_crc,
        arrived & ~is_block,
        expire & heard & in_token,
        answered & ~ending & ((|rx[6:4]) | rx[1]),
        answered & rx[3],
        answered & rx[2],
        unanswered
    };
    assign waiting     = ~active & ((in_lead & reads & ~room) | (in_token & ~room) | (in_wwait & ~ready));
    assign keep        = whole & ~bad_crc;
    assign drop        = whole & bad_crc | end_now;
    assign moved_block = keep | stored;
    assign push        = done & in_rdata & (left[1:0] == 2'd2);
    assign push_word   = {rx, value[7:0], value[15:8], value[23:16]};
    assign pop         = done & in_wdata & (left[1:0] == 2'd3);
    assign raw_done    = done & (state == RAW);
    assign finish      = end_now ? state != RAW : done & ((state == LEAVE) | ((state == WAKE) & (k == 4'd9)));

    // Behind a block that was read, or that will not come.
    wire [4:0] after_read  = multi ? GAP : TAIL;
    wire [4:0] next_write  = ready ? WGAP : WWAIT;
    always @(posedge clk or negedge rstn)
        if (!rstn) begin
            state     <= IDLE;
            k         <= 4'd0;
            left      <= 10'd0;
            ending    <= 1'b0;
            failed    <= 1'b0;
            stopped   <= 1'b0;
            timed_out <= 1'b0;
            went_on   <= 1'b0;
            hold      <= 1'b0;
            moved     <= 16'd0;
            r1        <= 8'd0;
            token     <= 8'd0;
            value     <= 32'd0;
        end else begin
            if (step)
                went_on <= run;
            if (expire & heard)
                timed_out <= 1'b1;
            else if (idle | (done & ~again))
                timed_out <= 1'b0;
            if (moved_block)
                moved <= moved_next;
            if (done & ((state == EXTRA) | in_rdata))
                value <= {value[23:0], rx};
            if (in_token | (state == WGAP))
                left <= {words, 2'b01};
            else if (done & (in_rdata | in_wdata))
                left <= left - 10'd1;
            if (arrived | verdict)
                token <= rx;
            stopped <= ~idle & (stopped | stop);

            if (idle) begin
                ending <= 1'b0;
                failed <= 1'b0;
                k      <= 4'd0;
                if (raw)
                    state <= RAW;
                else if (go) begin
                    state <= wake ? WAKE : LEAD;
                    hold  <= ~wake;
                    moved <= 16'd0;
                end
            end else if (end_now) begin
                state <= IDLE;
                hold  <= 1'b0;
            end else if (done) begin
                k <= k + 4'd1;
                case (HAS_BLOCKS ? state : HAS_COMMANDS ? {1'b0, state[3:0]} : {4'd0, state[0]})
                    RAW:   state <= IDLE;
                    WAKE:  if (k == 4'd9)
                               state <= IDLE;
                    LEAD:  if (timed_out)
                               state <= TAIL;
                           else if (~waits | ones)
                               state <= GAP;
                    GAP: begin
                        k     <= 4'd0;
                        state <= CMD;
                    end
                    CMD:   if (k == 4'd5) begin
                               k     <= 4'd0;
                               state <= (ending | (index == 6'd12)) ? STUFF : RESP;
                           end
                    STUFF: begin
                        k     <= 4'd0;
                        state <= (ending & writes) ? BUSY : RESP;
                    end
                    RESP:  if (answered) begin
                               k <= 4'd0;
                               if (ending)
                                   state <= BUSY;
                               else begin
                                   r1 <= rx;
                                   if (response[1])
                                       state <= EXTRA;
                                   else if (response == R1B)
                                       state <= BUSY;
                                   else if ((|rx[6:1]) | ~(reads | writes))
                                       state <= TAIL;
                                   else
                                       state <= reads ? TOKEN : next_write;
                               end
                           end else if (unanswered)
                               state <= TAIL;
                    EXTRA: if ((response == R2) | (k == 4'd3))
                               state <= TAIL;
                    BUSY:  if (ended_busy) begin
                               if (timed_out | ending | ~writes | (((HAS_MULTI ? last : 1'b1) | failed) & ~multi))
                                   state <= TAIL;
                               else if ((HAS_MULTI ? last : 1'b1) | failed) begin
                                   ending <= HAS_MULTI;
                                   state  <= WGAP;
                               end else
                                   state <= next_write;
                           end
                    TOKEN: if (timed_out | cut | (arrived & ~is_block)) begin
                               ending <= multi;
                               state  <= after_read;
                           end else if (arrived)
                               state <= RDATA;
                    RDATA: if (last_crc) begin
                               if (bad_crc | (HAS_MULTI ? last : 1'b1)) begin
                                   ending <= multi;
                                   state  <= after_read;
                               end else
                                   state <= TOKEN;
                           end
                    WWAIT: if (went_on) begin
                               ending <= cut;
                               state  <= WGAP;
                           end
                    WGAP:  state <= WTOK;
                    WTOK:  state <= ending ? STUFF : WDATA;
                    WDATA: if (last_crc) begin
                               k     <= 4'd0;
                               state <= WRESP;
                           end
                    WRESP: if (verdict) begin
                               failed <= ~accepted;
                               state  <= BUSY;
                           end
                    TAIL: begin
                        hold  <= 1'b0;
                        state <= LEAVE;
                    end
                    default: state <= IDLE;
                endcase
            end
        end
endmodule
