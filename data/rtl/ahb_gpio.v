// GPIO: 16 pins on the AHB, no wait states.  Registers are accessed as words; bits 31 to 16 read as 0.
// Registers: registers/gpio.json.
// The interrupt is the OR of INTPEND & INTEN.
module ahb_gpio (
    input  wire        HCLK,
    input  wire        HRESETn,
    input  wire        HSEL,
    input  wire [5:0]  HADDR,
    input  wire [1:0]  HTRANS,
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
    reg [3:0] index;
    always @(posedge HCLK or negedge HRESETn)
        if (!HRESETn) begin
            active <= 1'b0;
            write  <= 1'b0;
            index  <= 4'd0;
        end else if (HREADY) begin
            active <= HSEL & HTRANS[1];
            write  <= HWRITE;
            index  <= HADDR[5:2];
        end
    wire store = active & write;

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
    wire [15:0] w       = HWDATA[15:0];

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
                    4'd1: gpio_out   <= w;
                    4'd2: gpio_outen <= w;
                    4'd3: gpio_out   <= gpio_out | w;
                    4'd4: gpio_out   <= gpio_out & ~w;
                    4'd5: inten      <= w;
                    4'd6: intedge    <= w;
                    4'd7: intpol     <= w;
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

    assign HRDATA    = {16'd0, r};
    assign HREADYOUT = 1'b1;
    assign HRESP     = 1'b0;
    assign irq       = |(pending & inten);
endmodule
