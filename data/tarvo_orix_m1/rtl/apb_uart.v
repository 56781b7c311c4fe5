// UART: 8 data bits, no parity, one stop bit; one byte of buffer in each direction beside the shift registers.
// Registers: registers/uart.json.
module apb_uart (
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

    input  wire        rxd,
    output reg         txd,
    output wire        irq
);
    wire store = PSEL & PENABLE & PWRITE;
    wire fetch = PSEL & PENABLE & ~PWRITE;
    wire [11:0] offset = {PADDR[11:2], 2'b00};
    wire at_data   = offset == 12'h000;
    wire at_status = offset == 12'h004;
    wire at_ctrl   = offset == 12'h008;
    wire at_baud   = offset == 12'h00C;
    // A byte is sent and taken only by an access that reaches the lowest byte of DATA.
    wire push      = store & at_data & PSTRB[0];
    wire pop       = fetch & at_data & (PADDR[1:0] == 2'd0);

    reg [4:0]  ctrl;
    reg [19:0] divider;      // as written
    wire        too_small = divider[19:4] == 16'd0;
    wire [19:0] bauddiv   = {divider[19:5], divider[4] | too_small, divider[3:0] & {4{~too_small}}};
    integer n;
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            ctrl    <= 5'd0;
            divider <= 20'd16;
        end else if (store) begin
            if (at_ctrl & PSTRB[0])
                ctrl <= PWDATA[4:0];
            if (at_baud) begin
                for (n = 0; n < 2; n = n + 1)
                    if (PSTRB[n])
                        divider[8*n +: 8] <= PWDATA[8*n +: 8];
                if (PSTRB[2])
                    divider[19:16] <= PWDATA[19:16];
            end
        end

    // Transmitter: start bit, 8 data bits, stop bit.
    reg        tx_full;
    reg [7:0]  tx_buffer;
    reg [8:0]  tx_shift;
    reg [3:0]  tx_bits;     // bits left, the running one included
    reg [19:0] tx_count;
    wire tx_idle = tx_bits == 4'd0;
    wire tx_next = tx_count == 20'd0;
    wire tx_load = tx_full & ctrl[0] & (tx_idle | (tx_next & (tx_bits == 4'd1)));
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            tx_full   <= 1'b0;
            tx_buffer <= 8'd0;
            tx_shift  <= 9'h1FF;
            tx_bits   <= 4'd0;
            tx_count  <= 20'd0;
            txd       <= 1'b1;
        end else begin
            if (push & ~tx_full) begin
                tx_full   <= 1'b1;
                tx_buffer <= PWDATA[7:0];
            end
            if (tx_load) begin
                tx_full  <= 1'b0;
                tx_shift <= {1'b1, tx_buffer};
                tx_bits  <= 4'd10;
                tx_count <= bauddiv - 20'd1;
                txd      <= 1'b0;
            end else if (!tx_idle) begin
                if (tx_next) begin
                    tx_bits  <= tx_bits - 4'd1;
                    tx_count <= bauddiv - 20'd1;
                    txd      <= tx_shift[0];
                    tx_shift <= {1'b1, tx_shift[8:1]};
                end else
                    tx_count <= tx_count - 20'd1;
            end
        end

    // Receiver: samples in the middle of each bit.
    reg [2:0]  rx_sync;
    reg        rx_active;
    reg [3:0]  rx_bits;     // samples left
    reg [19:0] rx_count;
    reg [7:0]  rx_shift;
    reg        rx_full;
    reg [7:0]  rx_buffer;
    reg        rx_over, rx_frame, tx_over;
    wire rx        = rx_sync[1];
    wire rx_sample = rx_active & (rx_count == 20'd0);
    wire rx_done   = rx_sample & (rx_bits == 4'd0);
    wire clear     = store & at_status & PSTRB[0];
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            rx_sync   <= 3'b111;
            rx_active <= 1'b0;
            rx_bits   <= 4'd0;
            rx_count  <= 20'd0;
            rx_shift  <= 8'd0;
            rx_full   <= 1'b0;
            rx_buffer <= 8'd0;
            rx_over   <= 1'b0;
            rx_frame  <= 1'b0;
            tx_over   <= 1'b0;
        end else begin
            rx_sync <= {rx_sync[1:0], rxd};
            if (clear) begin
                rx_over  <= rx_over & ~PWDATA[3];
                rx_frame <= rx_frame & ~PWDATA[4];
                tx_over  <= tx_over & ~PWDATA[5];
            end
            if (push & tx_full)
                tx_over <= 1'b1;
            if (pop)
                rx_full <= 1'b0;
            if (!ctrl[1])
                rx_active <= 1'b0;
            else if (!rx_active) begin
                if (rx_sync[2] & ~rx) begin
                    rx_active <= 1'b1;
                    rx_bits   <= 4'd9;
                    rx_count  <= {1'b0, bauddiv[19:1]};
                end
            end else if (!rx_sample)
                rx_count <= rx_count - 20'd1;
            else begin
                rx_count <= bauddiv - 20'd1;
                rx_bits  <= rx_bits - 4'd1;
                if (rx_bits == 4'd9)
                    rx_active <= ~rx;           // a start bit that is gone was a glitch
                else if (rx_done) begin
                    rx_active <= 1'b0;
                    if (!rx)
                        rx_frame <= 1'b1;
                    else if (rx_full & ~pop)
                        rx_over <= 1'b1;        // the new byte is lost
                    else begin
                        rx_full   <= 1'b1;
                        rx_buffer <= rx_shift;
                    end
                end else
                    rx_shift <= {rx, rx_shift[7:1]};
            end
        end

    wire [5:0] status = {tx_over, rx_frame, rx_over, tx_full | ~tx_idle, rx_full, tx_full};
    always @*
        case (offset)
            12'h000: PRDATA = {24'd0, rx_buffer};
            12'h004: PRDATA = {26'd0, status};
            12'h008: PRDATA = {27'd0, ctrl};
            12'h00C: PRDATA = {12'd0, bauddiv};
            default: PRDATA = 32'd0;
        endcase

    assign PREADY  = 1'b1;
    assign PSLVERR = 1'b0;
    assign irq     = (ctrl[2] & ~tx_full) | (ctrl[3] & rx_full) | (ctrl[4] & (|status[5:3]));
endmodule
