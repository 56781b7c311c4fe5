// SPI master with one slave select: words of 4 to 32 bits, FIFOs both ways, manual or automatic select.
// Registers: registers/spi.json.
//   LOG_DEPTH  words of each FIFO = 2 ** LOG_DEPTH: 1 to 5; 0: no FIFOs, one word after the other
//   LOG_WIDTH  longest word = 2 ** LOG_WIDTH bits: 3, 4 or 5; 3 without FORMAT
//   FULL       sum of what is there: 1 automatic select and its times, 2 words of other lengths than 8 bits (FORMAT),
//              4 late samples, 8 loop-back; ID has ones for what is not, in the bits 28 to 31
module apb_spi #(
    parameter LOG_DEPTH = 4,
    parameter LOG_WIDTH = 5,
    parameter FULL      = 15
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

    output wire        sclk,
    output wire        mosi,
    input  wire        miso,       // sampled at edges of sclk, which is made here: no synchronizer
    output wire        nss,
    output wire        irq
);
    localparam [3:0] HAS = FULL;
    localparam [0:0] HAS_FIFO = LOG_DEPTH != 0, HAS_SELECT = HAS[0], HAS_FORMAT = HAS[1], HAS_DELAY = HAS[2], HAS_LOOP = HAS[3];
    localparam LOG_BITS = HAS_FORMAT ? LOG_WIDTH : 3, WIDTH = 1 << LOG_BITS;
    localparam [31:0] ID = {~HAS, 28'h0000208} + (LOG_DEPTH << 16) + (LOG_BITS << 24);

    wire access = PSEL & PENABLE;
    wire store  = access & PWRITE;
    wire [11:0] offset = {PADDR[11:2], 2'b00};
    reg [6:0]           ctrl;
    reg [15:0]          div;
    reg [2:0]           select;
    reg [5:0]           top_bit;
    reg [1:0]           delay;
    reg [23:0]          timing;
    reg [5:0]           tx_threshold, rx_threshold;
    reg [2:0]           inten;
    reg                 complete, lost, overrun, underrun, refused, was_busy;
    wire                fifo = ctrl[4], drop = ctrl[6];
    wire                tx_empty, tx_full, tx_take, rx_empty, rx_full, rx_done, active, selected;
    wire [LOG_DEPTH:0]  tx_level, rx_level;
    wire [WIDTH-1:0]    tx_word, rx_word, rx_oldest;
    wire running    = active | ~tx_empty;
    wire busy       = running | was_busy;      // until `complete` tells of it
    wire write_data = store & (offset == 12'h000) & PSTRB[0];
    wire read_data  = access & ~PWRITE & (PADDR == 12'h000) & fifo;
    wire push       = write_data & (fifo ? ~tx_full : ~busy);
    wire clear      = store & (offset == 12'h028) & PSTRB[0];
    wire stop       = clear & PWDATA[0];
    wire arrived    = rx_done & ~drop;

    // What words look like stays as it is while they are on their way.
    wire write_ctrl   = store & (offset == 12'h008) & PSTRB[0];
    wire write_format = store & (offset == 12'h014);
    wire [5:0] top_written = !HAS_FORMAT ? 6'd7 : {PWDATA[5:2], PWDATA[1:0] | {2{PWDATA[5:2] == 4'd0}}};
    wire [LOG_BITS-1:0] top_used = top_bit[LOG_BITS-1:0] | {LOG_BITS{|top_bit[5:LOG_BITS]}};
    wire would_change = (write_ctrl & ({HAS_LOOP ? PWDATA[5] : 1'b0, PWDATA[2:0]} != {ctrl[5], ctrl[2:0]}))
                        | (write_format & PSTRB[0] & (top_written != top_bit))
                        | (write_format & PSTRB[1] & ((HAS_DELAY ? PWDATA[9:8] : 2'd0) != delay));

    wire [7:0] tx_words = {{(7 - LOG_DEPTH){1'b0}}, tx_level};
    wire [7:0] rx_words = {{(7 - LOG_DEPTH){1'b0}}, rx_level};
    wire tx_low   = tx_words[5:0] <= tx_threshold;
    wire rx_ready = rx_words[5:0] >= rx_threshold;
    integer n;

    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            ctrl         <= 7'd0;
            div          <= 16'd3;
            select       <= 3'd0;
            top_bit      <= 6'd7;
            delay        <= 2'd0;
            timing       <= 24'd0;
            tx_threshold <= 6'd0;
            rx_threshold <= 6'd1;
            inten        <= 3'd0;
            complete     <= 1'b0;
            lost         <= 1'b0;
            overrun      <= 1'b0;
            underrun     <= 1'b0;
            refused      <= 1'b0;
            was_busy     <= 1'b0;
        end else begin
            was_busy <= running & ~stop;
            if (store)
                case (offset)
                    12'h004: if (PSTRB[0]) begin
                        complete <= complete & ~PWDATA[1];
                        lost     <= lost & ~PWDATA[2];
                        overrun  <= overrun & ~PWDATA[3];
                        underrun <= underrun & ~PWDATA[4];
                        refused  <= refused & ~PWDATA[5];
                    end
                    12'h008: if (PSTRB[0]) begin
                        {ctrl[6], ctrl[4:3]} <= HAS_FIFO ? {PWDATA[6], PWDATA[4:3]} : {2'd0, PWDATA[3]};
                        if (!busy)
                            {ctrl[5], ctrl[2:0]} <= {HAS_LOOP ? PWDATA[5] : 1'b0, PWDATA[2:0]};
                    end
                    12'h00C: for (n = 0; n < 2; n = n + 1) if (PSTRB[n]) div[8*n +: 8] <= PWDATA[8*n +: 8];
                    12'h010: if (PSTRB[0]) select <= HAS_SELECT ? PWDATA[2:0] : {2'd0, PWDATA[0]};
                    12'h014: if (!busy) begin
                        if (PSTRB[0]) top_bit <= top_written;
                        if (PSTRB[1]) delay <= HAS_DELAY ? PWDATA[9:8] : 2'd0;
                    end
                    12'h018: for (n = 0; n < 3; n = n + 1) if (PSTRB[n]) timing[8*n +: 8] <= HAS_SELECT ? PWDATA[8*n +: 8] : 8'd0;
                    12'h020: begin
                        if (PSTRB[0]) tx_threshold <= HAS_FIFO ? PWDATA[5:0] : 6'd0;
                        if (PSTRB[1]) rx_threshold <= HAS_FIFO ? PWDATA[13:8] : 6'd1;
                    end
                    12'h024: if (PSTRB[0]) inten <= HAS_FIFO ? PWDATA[2:0] : 3'd0;
                    default: ;
                endcase
            if (write_data & ~push)
                lost <= 1'b1;
            if (push)
                complete <= 1'b0;
            else if (was_busy & ~running)
                complete <= 1'b1;
            if (arrived & rx_full & ~read_data)
                overrun <= HAS_FIFO;
            if (read_data & rx_empty)
                underrun <= HAS_FIFO;
            if (busy & would_change)
                refused <= 1'b1;
        end

    wire [31:0] written = PWDATA & {{8{PSTRB[3]}}, {8{PSTRB[2]}}, {8{PSTRB[1]}}, {8{PSTRB[0]}}};
    sync_fifo #(.WIDTH(WIDTH), .LOG_DEPTH(LOG_DEPTH)) u_tx_fifo (
        .clk(PCLK), .rstn(PRESETn), .clear(stop), .push(push), .wdata(WIDTH != 8 ? written[WIDTH-1:0] : PWDATA[WIDTH-1:0]), .pop(tx_take),
        .rdata(tx_word), .empty(tx_empty), .full(tx_full), .level(tx_level)
    );
    // Without FIFOs it has the word that came last, for reading it again and again; with them it begins empty.
    wire clear_rx = (clear & PWDATA[1]) | (push & ~fifo) | (write_ctrl & PWDATA[4] & ~fifo);
    sync_fifo #(.WIDTH(WIDTH), .LOG_DEPTH(LOG_DEPTH)) u_rx_fifo (
        .clk(PCLK), .rstn(PRESETn), .clear(clear_rx), .push(arrived), .wdata(rx_word),
        .pop(read_data), .rdata(rx_oldest), .empty(rx_empty), .full(rx_full), .level(rx_level)
    );
    spi_word_shifter #(.LOG_WIDTH(HAS[2:0] != 3'd0 ? LOG_BITS : 0)) u_shifter (
        .clk(PCLK), .rstn(PRESETn), .stop(stop),
        .cpol(ctrl[0]), .cpha(ctrl[1]), .lsb_first(ctrl[2]), .loop(ctrl[5]), .top_bit(top_used), .delay(delay), .half(div),
        .auto_select(select[1]), .burst(select[2]), .setup(timing[7:0]), .hold(timing[15:8]), .idle(timing[23:16]),
        .tx_word(tx_word), .tx_waiting(~tx_empty), .tx_take(tx_take), .rx_word(rx_word), .rx_done(rx_done),
        .active(active), .sclk(sclk), .mosi(mosi), .miso(miso), .selected(selected)
    );

    always @* begin
        PRDATA = 32'd0;
        case (offset)
            12'h000: PRDATA[WIDTH-1:0] = HAS_FIFO ? rx_oldest : rx_word;
            12'h004: PRDATA[5:0] = {refused, underrun, overrun, lost, complete, busy};
            12'h008: PRDATA[6:0] = ctrl;
            12'h00C: PRDATA[15:0] = div;
            12'h010: PRDATA[2:0] = select;
            12'h014: PRDATA[9:0] = {delay, 2'd0, HAS_FORMAT ? top_bit : 6'd0};
            12'h018: PRDATA[23:0] = timing;
            12'h01C: PRDATA[17:0] = HAS_FIFO ? {rx_ready, tx_low, rx_words, tx_words} : 18'd0;
            12'h020: PRDATA[13:0] = HAS_FIFO ? {rx_threshold, 2'd0, tx_threshold} : 14'd0;
            12'h024: PRDATA[2:0] = inten;
            12'hFFC: PRDATA = ID;
            default: ;
        endcase
    end

    assign PREADY  = 1'b1;
    assign PSLVERR = 1'b0;
    assign nss     = ~((select[0] | selected) & ~ctrl[5]);
    assign irq     = (complete & ctrl[3])
                     | (|(inten & {lost | overrun | underrun | refused, rx_ready, tx_low}));
endmodule
