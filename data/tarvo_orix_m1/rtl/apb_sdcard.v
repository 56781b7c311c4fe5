// SD card controller in SPI mode: commands with their responses, blocks through a buffer, and bytes one by one.  sd_clk is made
// from PCLK, or from the source clock sd_spiclk, which is sampled with PCLK and must be slower than PCLK / 4: each of its
// rising edges is half a period of sd_clk then.  Registers: registers/sdcard.json.
// A card is present when sd_checkin has been low for a while; sd_checkout shows it to the fabric.  INIT, which sd_card_init
// shows, is cleared when the card leaves.
// Bus and card share a buffer of one block RAM.  It has two pointers to be read and written at, and a third one behind which
// words are no good block yet: the bus sees a block that is read when its CRC was right, and never sees another.
//   LOG_WORDS  words of the buffer = 2 ** LOG_WORDS, 8 to 15; a block has at most 255
//   FULL       sum of what is there: 1 several blocks (with 2), 2 blocks (with 4), 4 commands, 8 CLOCK and TIMEOUT; ID has ones for the rest
module apb_sdcard #(
    parameter LOG_WORDS = 8, FULL = 15
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

    input  wire        sd_spiclk,
    output wire        sd_clk,
    output wire        sd_cs,
    input  wire        sd_datain,
    output wire        sd_dataout,
    output wire        sd_card_init,
    input  wire        sd_checkin,
    output wire        sd_checkout,
    output wire        irq
);
    localparam [3:0] DATA = 4'd0, STATUS = 4'd1, CTRL = 4'd2, CLOCK = 4'd3, TIMEOUT = 4'd4, BLOCKS = 4'd5, ARGUMENT = 4'd6,
                     COMMAND = 4'd7, RESPONSE = 4'd8, VALUE = 4'd9, PROGRESS = 4'd10, EVENTS = 4'd11, ENABLE = 4'd12,
                     ERRORS = 4'd13, ACTION = 4'd14, BUFFER = 4'd15;
    localparam [0:0] HAS_COMMANDS = (FULL & 4) != 0, HAS_BLOCKS = (FULL & 6) == 6, HAS_MULTI = (FULL & 7) == 7, HAS_SETTINGS = (FULL & 8) != 0;
    wire       here   = PADDR[11:6] == 6'd0;
    wire [3:0] number = PADDR[5:2];
    wire       access = PSEL & PENABLE;
    wire       write  = access & PWRITE & here;
    wire       low    = write & PSTRB[0];

    // ---- the clock of the card
    wire       source;
    reg        source_was;
    reg [7:0]  divided;
    reg [7:0]  div;
    reg        from_pclk;
    reg        late;
    wire       idle;
    cdc_synchronizer u_sync_spiclk (.clk(PCLK), .rstn(PRESETn), .d(sd_spiclk), .q(source));
    wire       tick = from_pclk ? divided == div : source & ~source_was;
    wire       moving;
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            source_was <= 1'b0;
            divided    <= 8'd0;
        end else begin
            source_was <= source;
            divided    <= (tick | ~moving) ? 8'd0 : divided + 8'd1;
        end

    // ---- the card's socket
    wire       empty_now;
    cdc_synchronizer #(.RESET(1'b1)) u_sync_checkin (.clk(PCLK), .rstn(PRESETn), .d(sd_checkin), .q(empty_now));
    reg        card;
    reg [9:0]  stable;
    reg [9:0]  rounds;
    reg [9:0]  filter;
    wire       settle = (empty_now == card) & (&stable) & (HAS_SETTINGS ? rounds >= filter : 1'b1);   // low for a card that is not known yet
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            card   <= 1'b0;
            stable <= 10'd0;
            rounds <= 10'd0;
        end else if (empty_now != card) begin
            stable <= 10'd0;
            rounds <= 10'd0;
        end else begin
            stable <= stable + 10'd1;
            if (settle) begin
                card   <= ~card;
                rounds <= 10'd0;
            end else if (&stable)
                rounds <= rounds + 10'd1;
        end

    // ---- registers
    reg [3:0]  ctrl;
    reg        complete;
    reg        lost;
    reg        changed;
    reg [15:0] token_limit;
    reg [15:0] busy_limit;
    reg [15:0] blocks;
    reg [7:0]  words;
    reg [31:0] argument;
    reg [5:0]  index;
    reg [1:0]  response;
    reg [1:0]  direction;
    reg        multi;
    reg        waits;
    reg        wake;
    reg        active;        // a command runs
    reg [3:0]  happened;
    reg [6:0]  enabled;
    reg [16:0] errors;

    wire [11:0] card_errors;
    wire        raw_done, finish, moved_block, waiting;
    wire [15:0] moved;
    wire [7:0]  r1, token, rx;
    wire [31:0] value;

    wire write_data = low & (number == DATA);
    wire raw        = write_data & idle;
    // What a running byte or command depends on does not change.
    wire guarded    = (HAS_SETTINGS ? number == CLOCK : 1'b0) | (HAS_SETTINGS && HAS_COMMANDS ? number == TIMEOUT : 1'b0) | (HAS_BLOCKS ? number == BLOCKS : 1'b0) | (HAS_COMMANDS ? number == ARGUMENT : 1'b0) | (HAS_COMMANDS ? number == COMMAND : 1'b0);
    wire set        = write & guarded & idle;
    wire refused    = write & guarded & ~idle;
    wire start      = HAS_COMMANDS ? set & (number == COMMAND) & PSTRB[0] : 1'b0;
    wire go         = start & card;
    wire new_wake   = PSTRB[1] ? PWDATA[15] : wake;
    wire abort      = HAS_COMMANDS ? low & (number == ACTION) & PWDATA[0] : 1'b0;
    wire stop       = HAS_MULTI ? low & (number == ACTION) & PWDATA[1] : 1'b0;
    wire clear      = low & (number == ACTION) & PWDATA[2] & (~active | abort);
    wire leaves     = settle & card;
    wire gone       = active & ~card;

    // ---- buffer
    reg  [31:0]        mem [0:(1 << LOG_WORDS)-1];
    reg  [31:0]        oldest;
    reg  [LOG_WORDS:0] write_at;
    reg  [LOG_WORDS:0] good_to;
    reg  [LOG_WORDS:0] read_at;
    wire               card_pop, card_push, keep, drop;
    wire [31:0]        card_word;
    wire [LOG_WORDS:0] level = good_to - read_at;
    wire [LOG_WORDS:0] used  = write_at - read_at;
    wire               is_empty = level == {(LOG_WORDS + 1){1'b0}};
    wire               reads    = direction == 2'd1;
    wire               writes   = direction == 2'd2;
    wire [LOG_WORDS:0] block    = {{(LOG_WORDS - 7){1'b0}}, words};
    wire [LOG_WORDS+1:0] with_it = {1'b0, used} + {1'b0, block};
    wire               room     = ~with_it[LOG_WORDS+1] & ~(with_it[LOG_WORDS] & (|with_it[LOG_WORDS-1:0]));
    wire               ready    = level >= block;
    wire               get      = HAS_BLOCKS ? access & ~PWRITE & here & (number == BUFFER) & (PADDR[1:0] == 2'd0) : 1'b0;
    wire               put      = HAS_BLOCKS ? write & (number == BUFFER) & (|PSTRB) : 1'b0;
    wire               do_get   = get & ~is_empty & ~(active & writes);
    wire               do_put   = put & (&PSTRB) & ~used[LOG_WORDS] & ~(active & reads);
    wire               push     = card_push | do_put;
    always @(posedge PCLK) begin
        if (push)
            mem[write_at[LOG_WORDS-1:0]] <= card_push ? card_word : PWDATA;
        oldest <= mem[read_at[LOG_WORDS-1:0]];
    end
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            write_at <= {(LOG_WORDS + 1){1'b0}};
            good_to  <= {(LOG_WORDS + 1){1'b0}};
            read_at  <= {(LOG_WORDS + 1){1'b0}};
        end else if (clear) begin
            write_at <= {(LOG_WORDS + 1){1'b0}};
            good_to  <= {(LOG_WORDS + 1){1'b0}};
            read_at  <= {(LOG_WORDS + 1){1'b0}};
        end else begin
            if (push)
                write_at <= write_at + 1'b1;
            else if (drop)
                write_at <= good_to;
            if (do_put)
                good_to <= good_to + 1'b1;
            else if (keep)
                good_to <= write_at;
            if (do_get | card_pop)
                read_at <= read_at + 1'b1;
        end
    localparam [16:0] NEVER = !HAS_COMMANDS ? 17'h1FFFF : !HAS_BLOCKS ? 17'h19F80 : 17'd0;   // bits of ERRORS, and of EVENTS
    localparam [3:0]  QUIET = !HAS_COMMANDS ? 4'hF : !HAS_BLOCKS ? 4'h2 : 4'd0;
    wire [16:0] raised = {
        put & ~do_put,
        get & ~do_get,
        card_errors,
        abort & active,
        HAS_COMMANDS ? refused : 1'b0,
        (start & ~card) | gone
    };
    wire [6:0]  state_now = {|errors, HAS_BLOCKS ? {room, ready} : 2'd0, happened};
    wire [3:0]  begins    = HAS_COMMANDS ? {leaves, settle & ~card, moved_block, finish | (start & ~card)} : 4'd0;
    wire [16:0] cleared   = {PWDATA[16] & PSTRB[2], PWDATA[15:8] & {8{PSTRB[1]}}, PWDATA[7:0] & {8{PSTRB[0]}}};
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            ctrl        <= 4'd0;
            complete    <= 1'b0;
            lost        <= 1'b0;
            changed     <= 1'b0;
            div         <= 8'd0;
            from_pclk   <= 1'b0;
            late        <= 1'b0;
            filter      <= 10'd0;
            token_limit <= 16'hFFFF;
            busy_limit  <= 16'hFFFF;
            blocks      <= 16'd1;
            words       <= 8'd128;
            argument    <= 32'd0;
            index       <= 6'd0;
            response    <= 2'd0;
            direction   <= 2'd0;
            multi       <= 1'b0;
            waits       <= 1'b0;
            wake        <= 1'b0;
            active      <= 1'b0;
            happened    <= 4'd0;
            enabled     <= 7'd0;
            errors      <= 17'd0;
        end else begin
            if (low & (number == STATUS)) begin
                complete <= complete & ~PWDATA[1];
                lost     <= lost & ~PWDATA[2];
                changed  <= changed & ~PWDATA[4];
            end
            if (low & (number == CTRL))
                ctrl <= PWDATA[3:0];
            if (write_data & ~idle)
                lost <= 1'b1;
            if (raw)
                complete <= 1'b0;
            if (raw_done)
                complete <= 1'b1;
            if (settle) begin
                changed <= 1'b1;
                if (card)
                    ctrl[1] <= 1'b0;
            end

            if (set & (number == CLOCK)) begin
                if (PSTRB[0]) div <= HAS_SETTINGS ? PWDATA[7:0] : 8'd0;
                if (PSTRB[1]) {late, from_pclk} <= HAS_SETTINGS ? PWDATA[9:8] : 2'd0;
                if (PSTRB[2]) filter[7:0] <= HAS_SETTINGS ? PWDATA[23:16] : 8'd0;
                if (PSTRB[3]) filter[9:8] <= HAS_SETTINGS ? PWDATA[25:24] : 2'd0;
            end
            if (set & (number == TIMEOUT)) begin
                if (PSTRB[0]) token_limit[7:0] <= HAS_SETTINGS ? PWDATA[7:0] : 8'hFF;
                if (PSTRB[1]) token_limit[15:8] <= HAS_SETTINGS ? PWDATA[15:8] : 8'hFF;
                if (PSTRB[2]) busy_limit[7:0] <= HAS_SETTINGS ? PWDATA[23:16] : 8'hFF;
                if (PSTRB[3]) busy_limit[15:8] <= HAS_SETTINGS ? PWDATA[31:24] : 8'hFF;
            end
            if (set & (number == BLOCKS)) begin
                if (PSTRB[0]) blocks[7:0] <= HAS_MULTI ? PWDATA[7:0] : 8'd1;
                if (PSTRB[1]) blocks[15:8] <= HAS_MULTI ? PWDATA[15:8] : 8'd0;
                if (PSTRB[2]) words <= HAS_BLOCKS ? {PWDATA[23:17], PWDATA[16] | (PWDATA[23:17] == 7'd0)} : 8'd128;
            end
            if (set & (number == ARGUMENT)) begin
                if (PSTRB[0]) argument[7:0] <= HAS_COMMANDS ? PWDATA[7:0] : 8'd0;
                if (PSTRB[1]) argument[15:8] <= HAS_COMMANDS ? PWDATA[15:8] : 8'd0;
                if (PSTRB[2]) argument[23:16] <= HAS_COMMANDS ? PWDATA[23:16] : 8'd0;
                if (PSTRB[3]) argument[31:24] <= HAS_COMMANDS ? PWDATA[31:24] : 8'd0;
            end
            if (set & (number == COMMAND)) begin
                if (PSTRB[0]) index <= HAS_COMMANDS ? PWDATA[5:0] : 6'd0;
                if (PSTRB[1]) begin
                    response  <= HAS_COMMANDS ? PWDATA[9:8] : 2'd0;
                    direction <= HAS_BLOCKS ? PWDATA[11:10] : 2'd0;
                    {wake, waits, multi} <= {HAS_COMMANDS ? {PWDATA[15], PWDATA[13]} : 2'd0, HAS_MULTI ? PWDATA[12] : 1'b0};
                end
            end
            if (low & (number == ENABLE))
                enabled <= !HAS_COMMANDS ? 7'd0 : {PWDATA[6], HAS_BLOCKS ? PWDATA[5:4] : 2'd0, PWDATA[3:2], HAS_BLOCKS ? PWDATA[1] : 1'b0, PWDATA[0]};

            if (go)
                active <= 1'b1;
            else if (finish)
                active <= 1'b0;
            if (go & new_wake)
                ctrl[0] <= 1'b0;
            happened <= (happened & ~((low & (number == EVENTS)) ? (HAS_BLOCKS ? PWDATA[3:0] : PWDATA[3:0] | QUIET) : QUIET)) | begins;
            errors   <= (errors & ~((write & (number == ERRORS)) ? (HAS_BLOCKS ? cleared : cleared | NEVER) : NEVER)) | raised;
        end

    wire hold;
`define SD_SEQUENCER_PINS \
        .clk(PCLK), .rstn(PRESETn), .tick(tick), .late(late), .raw(raw), .raw_data(PWDATA[7:0]), .go(go), \
        .halt(abort | gone), .stop(stop), .wake(new_wake), .index(index), .argument(argument), \
        .response(response), .reads(reads), .writes(writes), .multi(multi), .waits(waits), .words(words), .blocks(blocks), \
        .token_limit(token_limit), .busy_limit(busy_limit), .room(room), .ready(ready), .word(oldest), .pop(card_pop), \
        .push(card_push), .push_word(card_word), .keep(keep), .drop(drop), .idle(idle), .waiting(waiting), \
        .finish(finish), .raw_done(raw_done), .moved_block(moved_block), .errors(card_errors), .moved(moved), .r1(r1), \
        .token(token), .value(value), .rx(rx), .moving(moving), .hold(hold), .sclk(sd_clk), .mosi(sd_dataout), \
        .miso(sd_datain)
    generate if (FULL == 15) begin : u_sequencer sd_sequencer u (`SD_SEQUENCER_PINS); end   // all of it: no parameter is passed
    else begin : u_sequencer sd_sequencer #(.FULL(FULL)) u (`SD_SEQUENCER_PINS); end endgenerate
    always @* begin
        PRDATA = 32'd0;
        if (here)
            case (number)
                DATA:     PRDATA = {24'd0, rx};
                STATUS:   PRDATA = {25'd0, waiting, active, changed, card, lost, complete, ~idle};
                CTRL:     PRDATA = {28'd0, ctrl};
                CLOCK:    PRDATA = {6'd0, filter, 6'd0, late, from_pclk, div};
                TIMEOUT:  PRDATA = {HAS_SETTINGS && HAS_COMMANDS ? busy_limit : 16'd0, HAS_SETTINGS && HAS_BLOCKS ? token_limit : 16'd0};
                BLOCKS:   PRDATA = {8'd0, HAS_BLOCKS ? words : 8'd0, HAS_MULTI ? blocks : 16'd0};
                ARGUMENT: PRDATA = argument;
                COMMAND:  PRDATA = {16'd0, wake, 1'b0, waits, multi, direction, response, 2'd0, index};
                RESPONSE: PRDATA = {8'd0, token, 8'd0, r1};
                VALUE:    PRDATA = value;
                PROGRESS: PRDATA = {{(15 - LOG_WORDS){1'b0}}, HAS_BLOCKS ? level : {(LOG_WORDS + 1){1'b0}}, HAS_MULTI ? moved : 16'd0};
                EVENTS:   PRDATA = {25'd0, state_now};
                ENABLE:   PRDATA = {25'd0, enabled};
                ERRORS:   PRDATA = {15'd0, errors};
                BUFFER:   PRDATA = HAS_BLOCKS ? oldest & {32{~is_empty}} : 32'd0;
                default:  PRDATA = 32'd0;
            endcase
        else if (&PADDR[11:2])
            PRDATA = {~HAS_SETTINGS, ~HAS_COMMANDS, ~HAS_BLOCKS, ~HAS_MULTI, 8'd0, HAS_BLOCKS ? LOG_WORDS[3:0] : 4'd0, 16'h0209};
    end

    assign PREADY       = 1'b1;
    assign PSLVERR      = 1'b0;
    assign sd_cs        = ~(ctrl[0] | hold);
    assign sd_card_init = ctrl[1];
    assign sd_checkout  = card;
    assign irq          = (complete & ctrl[2]) | (changed & ctrl[3]) | (|(state_now & enabled));
endmodule
`undef SD_SEQUENCER_PINS
