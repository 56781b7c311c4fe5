// UART: 5 to 9 data bits, parity, one or two stop bits, break; a FIFO in each direction, where what was wrong with a
// received character stays with it; divider with a fraction; receiver by majority.
// Registers: registers/uart.json.
//   LOG_DEPTH  characters in each FIFO = 2 ** LOG_DEPTH, 1 to 7
//   TIMEOUT    1: the receive time-out is there; 0: its register reads 0
//   FULL       sum of what is there: 1 FORMAT (else 8N1), 2 breaks, 4 loop-back, 8 fraction; ID has ones for absent 1, 2, 4 in bits 29 to 31
module apb_uart #(
    parameter LOG_DEPTH = 4,
    parameter TIMEOUT   = 1, FULL = 15
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
    input  wire        rxd,    // any clock
    output reg         txd,
    output wire        irq     // level
);
    localparam [0:0] HAS_FORMAT = (FULL & 1) != 0, HAS_BREAK = (FULL & 2) != 0, HAS_LOOP = (FULL & 4) != 0, HAS_FRACTION = (FULL & 8) != 0;
    localparam FRACTION_BITS = 6;
    localparam [31:0] ID = {~HAS_LOOP, ~HAS_BREAK, ~HAS_FORMAT, TIMEOUT != 0, 28'h202} | (HAS_FRACTION ? FRACTION_BITS << 22 : 0) | (LOG_DEPTH << 16);
    wire store = PSEL & PENABLE & PWRITE;
    wire fetch = PSEL & PENABLE & ~PWRITE;
    wire [11:0] offset = {PADDR[11:2], 2'b00};
    wire at_data      = offset == 12'h000;
    wire at_status    = offset == 12'h004;
    wire at_ctrl      = offset == 12'h008;
    wire at_baud      = offset == 12'h00C;
    wire at_format    = offset == 12'h010;
    wire at_threshold = offset == 12'h018;
    wire at_timeout   = offset == 12'h01C;
    wire at_command   = offset == 12'h020;
    // A character is sent and taken only by an access that reaches the lowest byte of DATA.
    wire push  = store & at_data & PSTRB[0];
    wire pop   = fetch & at_data & (PADDR[1:0] == 2'd0);
    wire clear = store & at_status & PSTRB[0];
    wire command  = store & at_command & PSTRB[0];
    wire rx_clear = command & PWDATA[0];
    wire tx_clear = command & PWDATA[1];

    reg [9:0]  ctrl;
    reg [19:0] divider;      // as written
    reg [FRACTION_BITS-1:0] fraction;
    reg [7:0]  format;
    reg [LOG_DEPTH-1:0] rx_threshold, tx_threshold;
    wire tx_on      = ctrl[0];
    wire rx_on      = ctrl[1];
    wire hold_break = ctrl[8];
    wire loop       = ctrl[9];
    wire [2:0] extra_bits = format[2] ? 3'd4 : format[2:0]; // data bits beyond five
    wire has_parity = format[3];
    wire is_odd     = format[4];
    wire is_stuck   = format[5];
    wire two_stops  = format[6];
    wire keeps      = format[7];
    wire        too_small = divider[19:4] == 16'd0;
    wire [19:0] bauddiv   = {divider[19:5], divider[4] | too_small, divider[3:0] & {4{~too_small}}};
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            ctrl         <= 10'd0;
            divider      <= 20'd16;
            fraction     <= {FRACTION_BITS{1'b0}};
            format       <= 8'h03;
            rx_threshold <= {LOG_DEPTH{1'b0}};
            tx_threshold <= {LOG_DEPTH{1'b0}};
        end else if (store) begin
            if (at_ctrl) begin
                if (PSTRB[0]) ctrl[7:0] <= {PWDATA[7], HAS_BREAK ? PWDATA[6] : 1'b0, PWDATA[5:0]};
                if (PSTRB[1]) ctrl[9:8] <= {HAS_LOOP ? PWDATA[9] : 1'b0, HAS_BREAK ? PWDATA[8] : 1'b0};
            end
            if (at_baud) begin
                if (PSTRB[0]) divider[7:0] <= PWDATA[7:0];
                if (PSTRB[1]) divider[15:8] <= PWDATA[15:8];
                if (PSTRB[2]) {fraction[3:0], divider[19:16]} <= {HAS_FRACTION ? PWDATA[23:20] : fraction[3:0], PWDATA[19:16]};
                if (PSTRB[3]) fraction[5:4] <= HAS_FRACTION ? PWDATA[25:24] : fraction[5:4];
            end
            if (at_format & PSTRB[0])
                format <= HAS_FORMAT ? PWDATA[7:0] : format;
            if (at_threshold) begin
                if (PSTRB[0]) rx_threshold <= PWDATA[LOG_DEPTH-1:0];
                if (PSTRB[1]) tx_threshold <= PWDATA[8 +: LOG_DEPTH];
            end
        end

    // Transmitter. Bits begin where the sum of the exact bit times has passed a clock edge.
    wire [8:0]  tx_data;
    wire        tx_empty, tx_full;
    wire [LOG_DEPTH:0] tx_level;
    reg         break_due;   // asked for, not begun
    reg         tx_break;    // being sent
    reg [8:0]   tx_shift;
    reg         tx_parity;
    reg [3:0]   tx_bits;     // bits left, the running one included
    reg [19:0]  tx_count;
    reg [FRACTION_BITS-1:0] tx_sum;
    reg         tx_longer;   // the running bit takes a cycle more
    reg         tx_line;
    wire tx_idle = tx_bits == 4'd0;
    wire tx_next = (tx_count[19:1] == 19'd0) & (tx_count[0] != tx_longer);
    wire tx_free = tx_on & (tx_idle | (tx_next & (tx_bits == 4'd1)));
    wire tx_load = tx_free & ~break_due & ~tx_empty;
    wire tx_begins = tx_free & (break_due | ~tx_empty);
    wire [3:0] after_start = 4'd6 + {1'b0, extra_bits} + {3'd0, has_parity};   // to the first stop bit
    wire [3:0] tail        = 4'd2 + {3'd0, has_parity} + {3'd0, two_stops};    // tx_bits of the last data bit
    wire [FRACTION_BITS:0] tx_sum_next = {1'b0, tx_sum} + {1'b0, fraction};
    sync_fifo #(.WIDTH(9), .LOG_DEPTH(LOG_DEPTH)) u_tx_fifo (
        .clk(PCLK), .rstn(PRESETn), .clear(tx_clear), .push(push), .wdata({PWDATA[8] & PSTRB[1], PWDATA[7:0]}),
        .pop(tx_load), .rdata(tx_data), .empty(tx_empty), .full(tx_full), .level(tx_level));
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            break_due <= 1'b0;
            tx_break  <= 1'b0;
            tx_shift  <= 9'd0;
            tx_parity <= 1'b0;
            tx_bits   <= 4'd0;
            tx_count  <= 20'd0;
            tx_sum    <= {FRACTION_BITS{1'b0}};
            tx_longer <= 1'b0;
            tx_line   <= 1'b1;
            txd       <= 1'b1;
        end else begin
            txd <= tx_line | loop;
            if (store & at_ctrl & PSTRB[1] & PWDATA[8] & ~hold_break)
                break_due <= HAS_BREAK;
            else if (tx_free)
                break_due <= 1'b0;
            if (tx_begins | (~tx_idle & tx_next)) begin
                tx_count            <= bauddiv;
                {tx_longer, tx_sum} <= tx_sum_next;
            end else
                tx_count <= tx_count - 20'd1;
            if (tx_begins) begin
                tx_break  <= HAS_BREAK ? break_due : tx_break;
                tx_shift  <= {HAS_FORMAT ? tx_data[8] : 1'b0, tx_data[7:0]};
                tx_parity <= is_odd;
                tx_bits   <= break_due ? 4'd14 : after_start + 4'd1 + {3'd0, two_stops};
                tx_line   <= 1'b0;
            end else if (!tx_idle & tx_next) begin
                if (tx_break) begin
                    if (tx_bits != 4'd2 | ~hold_break)
                        tx_bits <= tx_bits - 4'd1;
                    tx_line <= (tx_bits[3:1] == 3'd0) | ((tx_bits == 4'd2) & ~hold_break);
                end else begin
                    tx_bits <= tx_bits - 4'd1;
                    if (tx_bits > tail) begin
                        tx_line   <= tx_shift[0];
                        tx_shift  <= {1'b0, tx_shift[8:1]};
                        tx_parity <= tx_parity ^ (tx_shift[0] & ~is_stuck);
                    end else
                        tx_line <= ~(has_parity & (tx_bits == tail)) | tx_parity;
                end
            end
        end

    // Receiver. From the falling edge of the start bit on, 16 ticks a bit; the seventh, eighth and ninth sample it.
    // The line is seen a cycle later than its edge, so that the sample in the middle comes as near to it as clock edges allow.
    wire        rx_pin;
    reg         rx_late;
    reg         rx_active, rx_first;    // within a character; in its start bit
    reg [3:0]   rx_left;     // bits that follow
    reg [15:0]  rx_count;
    reg [FRACTION_BITS+3:0] rx_sum;
    reg         rx_longer;
    reg [3:0]   rx_phase;
    reg [1:0]   rx_seen;     // the last samples
    reg [8:0]   rx_shift;
    reg         rx_parity, rx_ones;
    reg         rx_over, rx_frame, tx_over, rx_wrong, rx_break, rx_lost;
    cdc_synchronizer #(.WIDTH(1), .RESET(1'b1)) u_sync_rxd (.clk(PCLK), .rstn(PRESETn), .d(rxd), .q(rx_pin));
    wire rx         = loop ? tx_line : rx_pin;
    wire rx_tick    = (rx_count[15:1] == 15'd0) & (rx_count[0] != rx_longer);
    wire rx_stop    = rx_left == 4'd0;
    // The stop bit is over as soon as it is clear: the next character may come early.
    wire rx_decide  = rx_active & rx_tick &
                      ((rx_phase == 4'd8) | ((rx_phase == 4'd7) & rx_stop & (rx_seen[0] == rx_late)));
    wire rx_bit     = (rx_seen[1] & rx_seen[0]) | (rx_seen[1] & rx_late) | (rx_seen[0] & rx_late);
    wire rx_done    = rx_decide & rx_stop;
    wire rx_begins  = rx_on & (~rx_active | rx_done) & rx_late & ~rx;
    wire [8:0] rx_top = 9'h010 << extra_bits;   // where bits come in
    wire rx_at_parity = has_parity & (rx_left == 4'd1);
    wire [FRACTION_BITS+4:0] rx_sum_next = {1'b0, rx_sum | {{4{rx_begins}}, {FRACTION_BITS{HAS_FRACTION ? rx_begins : 1'b0}}}} + {1'b0, bauddiv[3:0], fraction};
    wire is_frame   = ~rx_bit;
    wire is_break   = HAS_BREAK ? is_frame & ~rx_ones : 1'b0;
    wire is_wrong   = ~is_frame & has_parity & rx_parity;
    wire rx_store   = rx_done & (keeps | ~(is_frame | is_wrong));
    wire [11:0] rx_data;     // {lost before, frame, parity or break with frame, character}
    wire        rx_empty, rx_full;
    wire [LOG_DEPTH:0] rx_level;
    sync_fifo #(.WIDTH(12), .LOG_DEPTH(LOG_DEPTH)) u_rx_fifo (
        .clk(PCLK), .rstn(PRESETn), .clear(rx_clear), .push(rx_store),
        .wdata({rx_lost, is_frame, is_break | is_wrong, rx_shift}),
        .pop(pop), .rdata(rx_data), .empty(rx_empty), .full(rx_full), .level(rx_level));
    integer i;
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            rx_late   <= 1'b1;
            rx_active <= 1'b0;
            rx_first  <= 1'b0;
            rx_left   <= 4'd0;
            rx_count  <= 16'd0;
            rx_sum    <= {(FRACTION_BITS+4){1'b0}};
            rx_longer <= 1'b0;
            rx_phase  <= 4'd0;
            rx_seen   <= 2'b11;
            rx_shift  <= 9'd0;
            rx_parity <= 1'b0;
            rx_ones   <= 1'b0;
        end else begin
            rx_late <= rx;
            if (rx_begins | rx_tick) begin
                rx_count            <= bauddiv[19:4];
                {rx_longer, rx_sum} <= rx_sum_next;
                rx_phase            <= rx_begins ? 4'd0 : rx_phase + 4'd1;
            end else
                rx_count <= rx_count - 16'd1;
            if (rx_tick)
                rx_seen <= {rx_seen[0], rx_late};
            if (rx_begins) begin
                rx_active <= 1'b1;
                rx_first  <= 1'b1;
                rx_left   <= after_start;
                rx_shift  <= 9'd0;
                rx_parity <= is_odd;
                rx_ones   <= 1'b0;
            end else if (!rx_on | rx_done | (rx_decide & rx_first & rx_bit)) // a start bit that is gone was a glitch
                rx_active <= 1'b0;
            else if (rx_decide) begin
                rx_first <= 1'b0;
                rx_left  <= rx_left - 4'd1;
                if (!rx_first) begin
                    rx_ones   <= HAS_BREAK ? rx_ones | rx_bit : rx_ones;
                    rx_parity <= rx_parity ^ (rx_bit & (rx_at_parity | ~is_stuck));
                    if (!rx_at_parity)
                        for (i = 0; i < 9; i = i + 1)
                            if (rx_top[i])
                                rx_shift[i] <= rx_bit;
                            else if (i < 8)
                                rx_shift[i] <= rx_shift[i + 1];
                end
            end
        end

    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            rx_over  <= 1'b0;
            rx_frame <= 1'b0;
            tx_over  <= 1'b0;
            rx_wrong <= 1'b0;
            rx_break <= 1'b0;
            rx_lost  <= 1'b0;
        end else begin
            rx_over  <= (rx_over & ~(clear & PWDATA[3])) | (rx_store & rx_full & ~pop);
            rx_frame <= (rx_frame & ~(clear & PWDATA[4])) | (rx_done & is_frame);
            tx_over  <= (tx_over & ~(clear & PWDATA[5])) | (push & tx_full & ~tx_load);
            rx_wrong <= (rx_wrong & ~(clear & PWDATA[6])) | (rx_done & is_wrong);
            rx_break <= !HAS_BREAK ? 1'b0 : (rx_break & ~(clear & PWDATA[7])) | (rx_done & is_break);
            if (rx_store)
                rx_lost <= rx_full & ~pop;
        end

    // Receive time-out: bit times in which nothing comes and nothing is taken while something waits.
    wire [7:0] timeout;
    wire       timed_out;
    generate if (TIMEOUT != 0) begin : g_timeout
        reg [7:0] limit, left;
        always @(posedge PCLK or negedge PRESETn)
            if (!PRESETn) begin
                limit <= 8'd0;
                left  <= 8'd0;
            end else begin
                if (store & at_timeout & PSTRB[0])
                    limit <= PWDATA[7:0];
                if (rx_active | rx_empty | pop | (store & at_timeout & PSTRB[0]))
                    left <= store & at_timeout & PSTRB[0] ? PWDATA[7:0] : limit;
                else if (rx_tick & (rx_phase == 4'd15) & (left != 8'd0))
                    left <= left - 8'd1;
            end
        assign timeout   = limit;
        assign timed_out = (left == 8'd0) & (limit != 8'd0) & ~rx_empty;
    end else begin : g_no_timeout
        assign timeout   = 8'd0;
        assign timed_out = 1'b0;
    end endgenerate

    wire tx_busy = ~tx_empty | ~tx_idle | break_due;
    wire [9:0] status = {rx_active, timed_out, rx_break, rx_wrong, tx_over, rx_frame, rx_over, tx_busy, ~rx_empty, tx_full};
    always @* begin
        PRDATA = 32'd0;
        case (offset)
            12'h000: PRDATA[12:0] = {rx_data[11], rx_data[10] & rx_data[9], rx_data[10], rx_data[9] & ~rx_data[10], rx_data[8:0]};
            12'h004: PRDATA[9:0] = status;
            12'h008: PRDATA[9:0] = ctrl;
            12'h00C: PRDATA[25:0] = {fraction, bauddiv};
            12'h010: PRDATA[7:0] = HAS_FORMAT ? format : 8'd0;
            12'h014: begin
                PRDATA[LOG_DEPTH:0]       = rx_level;
                PRDATA[8 +: LOG_DEPTH + 1] = tx_level;
                PRDATA[16]                = rx;
            end
            12'h018: begin
                PRDATA[LOG_DEPTH-1:0]   = rx_threshold;
                PRDATA[8 +: LOG_DEPTH] = tx_threshold;
            end
            12'h01C: PRDATA[7:0] = timeout;
            12'hFFC: PRDATA = ID;
            default: PRDATA = 32'd0;
        endcase
    end

    wire [LOG_DEPTH:0] tx_room_short = tx_level + {1'b0, tx_threshold};
    wire rx_reached = rx_level > {1'b0, rx_threshold};
    wire tx_reached = ~tx_room_short[LOG_DEPTH];    // the sum is at most twice the depth less one
    assign PREADY  = 1'b1;
    assign PSLVERR = 1'b0;
    assign irq     = (ctrl[2] & tx_reached) | (ctrl[3] & rx_reached) | (ctrl[4] & (|status[6:3])) | (ctrl[5] & timed_out) |
                     (ctrl[6] & rx_break) | (ctrl[7] & ~tx_busy);
endmodule
