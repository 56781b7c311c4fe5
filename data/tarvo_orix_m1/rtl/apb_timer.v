// Timer: 24-bit down counter that reloads after 0.
// Registers: registers/timer.json.
// The external input is synchronised to PCLK.
module apb_timer (
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

    input  wire        extin,
    output wire        irq
);
    wire store = PSEL & PENABLE & PWRITE;
    wire [11:0] offset = {PADDR[11:2], 2'b00};

    reg [2:0] ext;
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn)
            ext <= 3'd0;
        else
            ext <= {ext[1:0], extin};
    wire ext_level = ext[1];
    wire ext_rise  = ext[1] & ~ext[2];

    reg [3:0]  ctrl;
    reg [23:0] value;
    reg [23:0] reload;
    reg        pend;
    wire count = ctrl[0] & (ctrl[3] ? ext_rise : (~ctrl[2] | ext_level));
    wire wrap  = count & (value == 24'd0);
    integer n;
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            ctrl   <= 4'd0;
            value  <= 24'd0;
            reload <= 24'd0;
            pend   <= 1'b0;
        end else begin
            if (count)
                value <= wrap ? reload : value - 24'd1;
            if (store)
                case (offset)
                    12'h000: if (PSTRB[0]) ctrl <= PWDATA[3:0];
                    12'h004: for (n = 0; n < 3; n = n + 1) if (PSTRB[n]) value[8*n +: 8] <= PWDATA[8*n +: 8];
                    12'h008: for (n = 0; n < 3; n = n + 1) if (PSTRB[n]) reload[8*n +: 8] <= PWDATA[8*n +: 8];
                    12'h00C: if (PSTRB[0] & PWDATA[0]) pend <= 1'b0;
                    default: ;
                endcase
            if (wrap)
                pend <= 1'b1;
        end

    always @*
        case (offset)
            12'h000: PRDATA = {28'd0, ctrl};
            12'h004: PRDATA = {8'd0, value};
            12'h008: PRDATA = {8'd0, reload};
            12'h00C: PRDATA = {31'd0, pend};
            default: PRDATA = 32'd0;
        endcase

    assign PREADY  = 1'b1;
    assign PSLVERR = 1'b0;
    assign irq     = pend & ctrl[1];
endmodule
