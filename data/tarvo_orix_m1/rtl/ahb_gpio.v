// GPIO: 16 pins on the AHB, no wait states.  Bits 31 to 16 of the registers read as 0.
// Registers: registers/gpio.json.
// The interrupt is the OR of INTPEND & INTEN.
`include "static_macro_define.vh"

module ahb_gpio (
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
    reg       active;
    reg       write;
    reg       listed;   // the address is that of a register
    reg [3:0] index;
    reg [1:0] lanes;    // bytes that a write reaches
    always @(posedge HCLK or negedge HRESETn)
        if (!HRESETn) begin
            active <= 1'b0;
            write  <= 1'b0;
            listed <= 1'b0;
            index  <= 4'd0;
            lanes  <= 2'd0;
        end else if (HREADY) begin
            active <= HSEL & HTRANS[1];
            write  <= HWRITE;
            listed <= HADDR[23:6] == 18'd0;
            index  <= HADDR[5:2];
            lanes  <= HADDR[1] ? 2'b00 : (HSIZE != `ORIX_HSIZE_BYTE) ? 2'b11 : HADDR[0] ? 2'b10 : 2'b01;
        end
    wire store = active & write & listed;

    reg [15:0] meta, level, previous;
    always @(posedge HCLK or negedge HRESETn)
        if (!HRESETn) begin
            meta     <= 16'd0;
            level    <= 16'd0;
            previous <= 16'd0;
        end else begin
            meta     <= gpio_in;
            level    <= meta;
            previous <= level;
        end

    reg [15:0] inten, intedge, intpol, edges;
    wire [15:0] moved   = (level ^ previous) & ~(level ^ intpol);
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
                    default: ;
                endcase
        end

    reg [15:0] r;
    always @*
        case (index)
            4'd0:    r = level;
            4'd1:    r = gpio_out;
            4'd2:    r = gpio_outen;
            4'd5:    r = inten;
            4'd6:    r = intedge;
            4'd7:    r = intpol;
            4'd8:    r = pending;
            default: r = 16'd0;
        endcase

    assign HRDATA    = {16'd0, r & {16{listed}}};
    assign HREADYOUT = 1'b1;
    assign HRESP     = 1'b0;
    assign irq       = |(pending & inten);
endmodule
