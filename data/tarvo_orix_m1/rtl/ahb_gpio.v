// GPIO: 16 pins on the AHB, no wait states.  Bits 31 to 16 of most registers read as 0.
// Registers: registers/gpio.json.
// The interrupt is the OR of INTPEND & INTEN.
//   FILTER  1: pins have a filter, which costs no time where it is switched off; 0: they have none
//   FULL    sum of what is there: 1 interrupts at both edges (INTBOTH), 2 OUTTGL and OUTMASK; ID has ones for the others in bits 30, 31
`include "static_macro_define.vh"
module ahb_gpio #(
    parameter FILTER = 1, FULL = 3
) (
    input  wire        HCLK,
    input  wire        HRESETn,
    input  wire        HSEL,
    input  wire [23:0] HADDR,
    input  wire [1:0]  HTRANS,
    input  wire [2:0]  HSIZE,
    input  wire        HWRITE,
    input  wire [31:0] HWDATA,
    input  wire        HREADY,
    output wire [31:0] HRDATA,
    output wire        HREADYOUT,
    output wire        HRESP,
    input  wire [15:0] gpio_in,
    output reg  [15:0] gpio_out,
    output reg  [15:0] gpio_outen,
    output wire        irq
);
    localparam [1:0] HAS = FULL;
    localparam [31:0] ID = {~HAS, 30'h00100201} + (FILTER << 24);

    reg       active;
    reg       write;
    reg       listed;   // the address is that of a register
    reg       is_id;
    reg [3:0] index;
    reg [3:0] lanes;    // bytes that a write reaches
    always @(posedge HCLK or negedge HRESETn)
        if (!HRESETn) begin
            active <= 1'b0;
            write  <= 1'b0;
            listed <= 1'b0;
            is_id  <= 1'b0;
            index  <= 4'd0;
            lanes  <= 4'd0;
        end else if (HREADY) begin
            active <= HSEL & HTRANS[1];
            write  <= HWRITE;
            listed <= HADDR[23:6] == 18'd0;
            is_id  <= HADDR[23:2] == 22'h3FF;
            index  <= HADDR[5:2];
            case (HSIZE)
                `ORIX_HSIZE_BYTE: lanes <= 4'b0001 << HADDR[1:0];
                `ORIX_HSIZE_HALF: lanes <= HADDR[1] ? 4'b1100 : 4'b0011;
                default:          lanes <= 4'b1111;
            endcase
        end
    wire store = active & write & listed;

    wire [15:0] pin;        // what the pins are, also those that are driven
    wire [15:0] level;      // the same behind the filters
    reg  [15:0] previous;
    cdc_synchronizer #(.WIDTH(16)) u_sync_gpio_in (.clk(HCLK), .rstn(HRESETn), .d(gpio_in), .q(pin));
    always @(posedge HCLK or negedge HRESETn)
        if (!HRESETn)
            previous <= 16'd0;
        else
            previous <= level;

    reg [15:0] inten, intedge, intpol, intboth, edges;
    wire [15:0] moved   = (level ^ previous) & (intboth | ~(level ^ intpol));
    wire [15:0] pending = (intedge & edges) | (~intedge & ~(level ^ intpol));
    wire [15:0] w       = HWDATA[15:0] & {{8{lanes[1]}}, {8{lanes[0]}}};
    integer n;

    always @(posedge HCLK or negedge HRESETn)
        if (!HRESETn) begin
            gpio_out   <= 16'd0;
            gpio_outen <= 16'd0;
            inten      <= 16'd0;
            intedge    <= 16'd0;
            intpol     <= 16'd0;
            intboth    <= 16'd0;
            edges      <= 16'd0;
        end else begin
            edges <= (edges & ~((store && index == 4'd8) ? w : 16'd0)) | (moved & intedge);
            if (store)
                case (index)
                    4'd1: for (n = 0; n < 2; n = n + 1) if (lanes[n]) gpio_out[8*n +: 8] <= w[8*n +: 8];
                    4'd2: for (n = 0; n < 2; n = n + 1) if (lanes[n]) gpio_outen[8*n +: 8] <= w[8*n +: 8];
                    4'd3: gpio_out   <= gpio_out | w;
                    4'd4: gpio_out   <= gpio_out & ~w;
                    4'd5: for (n = 0; n < 2; n = n + 1) if (lanes[n]) inten[8*n +: 8] <= w[8*n +: 8];
                    4'd6: for (n = 0; n < 2; n = n + 1) if (lanes[n]) intedge[8*n +: 8] <= w[8*n +: 8];
                    4'd7: for (n = 0; n < 2; n = n + 1) if (lanes[n]) intpol[8*n +: 8] <= w[8*n +: 8];
                    4'd9: gpio_out   <= HAS[1] ? gpio_out ^ w : gpio_out;
                    4'd10: for (n = 0; n < 2; n = n + 1) if (lanes[n]) intboth[8*n +: 8] <= HAS[0] ? w[8*n +: 8] : 8'd0;
                    4'd13: if (&lanes) gpio_out <= HAS[1] ? (gpio_out & ~HWDATA[31:16]) | (HWDATA[15:0] & HWDATA[31:16]) : gpio_out;
                    default: ;
                endcase
        end

    // A filter takes over what three samples in a row agree on.
    wire [15:0] filtered;   // pins whose filter is on
    wire [19:0] interval;   // cycles between samples - 1
    generate
        if (FILTER != 0) begin : g_filter
            reg [15:0] enable, newer, older, steady;
            reg [19:0] length, count;
            wire       tick = count == 20'd0;
            integer    k;
            always @(posedge HCLK or negedge HRESETn)
                if (!HRESETn) begin
                    enable <= 16'd0;
                    length <= 20'd0;
                    count  <= 20'd0;
                    newer <= 16'd0;
                    older <= 16'd0;
                    steady <= 16'd0;
                end else begin
                    count <= tick ? length : count - 20'd1;
                    if (tick) begin
                        newer <= pin;
                        older <= newer;
                        for (k = 0; k < 16; k = k + 1)
                            if (pin[k] == newer[k] && newer[k] == older[k])
                                steady[k] <= pin[k];
                    end
                    if (store && index == 4'd11)
                        for (k = 0; k < 2; k = k + 1) if (lanes[k]) enable[8*k +: 8] <= w[8*k +: 8];
                    if (store && index == 4'd12) begin
                        count <= 20'd0;     // the old interval may be a long one
                        for (k = 0; k < 2; k = k + 1) if (lanes[k]) length[8*k +: 8] <= w[8*k +: 8];
                        if (lanes[2]) length[19:16] <= HWDATA[19:16];
                    end
                end
            assign level    = (pin & ~enable) | (steady & enable);
            assign filtered = enable;
            assign interval = length;
        end else begin : g_no_filter
            assign level    = pin;
            assign filtered = 16'd0;
            assign interval = 20'd0;
        end
    endgenerate

    reg [19:0] r;
    always @*
        case (index)
            4'd0:    r = {4'd0, level};
            4'd1:    r = {4'd0, gpio_out};
            4'd2:    r = {4'd0, gpio_outen};
            4'd5:    r = {4'd0, inten};
            4'd6:    r = {4'd0, intedge};
            4'd7:    r = {4'd0, intpol};
            4'd8:    r = {4'd0, pending};
            4'd10:   r = {4'd0, intboth};
            4'd11:   r = {4'd0, filtered};
            4'd12:   r = interval;
            4'd14:   r = {4'd0, pin};
            default: r = 20'd0;
        endcase

    assign HRDATA    = {12'd0, r & {20{listed}}} | (ID & {32{is_id}});
    assign HREADYOUT = 1'b1;
    assign HRESP     = 1'b0;
    assign irq       = |(pending & inten);
endmodule
