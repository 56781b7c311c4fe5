// Timer: 24-bit down counter with a prescaler, that reloads or stops after 0, a compare value, and capture on an edge of
// the external input.
// Registers: registers/timer.json.
// The external input is synchronised to PCLK.
//   COMPARE  1: compare value; 0: its register and its bits read 0
//   CAPTURE  1: capture; 0: its register and its bits read 0
//   FULL     sum of what is there: 1 prescaler, 2 one-shot; the others read 0, and ID has ones for them in the bits 30 and 31
module apb_timer #(
    parameter COMPARE = 1,
    parameter CAPTURE = 1, FULL = 3
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
    input  wire        extin,
    output wire        irq
);
    localparam [7:0] BLOCK = 8'd3, REVISION = 8'd2, WIDTH = 8'd24;
    localparam [0:0] HAS_COMPARE = COMPARE != 0, HAS_CAPTURE = CAPTURE != 0;
    localparam [1:0] HAS = FULL; localparam [0:0] HAS_PRESCALE = HAS[0], HAS_ONESHOT = HAS[1];
    localparam [9:0] CTRL_BITS = {{2{HAS_CAPTURE}}, HAS_CAPTURE, {2{HAS_COMPARE}}, HAS_ONESHOT, 4'hF};
    wire store = PSEL & PENABLE & PWRITE;
    wire [11:0] offset = {PADDR[11:2], 2'b00};

    wire ext_level;
    reg  ext_before;
    cdc_synchronizer #(.WIDTH(1)) u_sync_extin (.clk(PCLK), .rstn(PRESETn), .d(extin), .q(ext_level));
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn)
            ext_before <= 1'b0;
        else
            ext_before <= ext_level;
    wire ext_rise = ext_level & ~ext_before;
    wire ext_fall = ~ext_level & ext_before;

    // 0 EN, 1 IE, 2 EXTGATE, 3 EXTCLK, 4 ONESHOT, 5 CMPEN, 6 CMPIE, 7 CAPIE, 9:8 CAPEDGE
    reg [9:0]  ctrl;
    reg [23:0] value;
    reg [23:0] reload;
    reg [15:0] prescale;
    reg [15:0] part;
    reg [3:0]  pend;            // 0 WRAP, 1 MATCH, 2 CAPTURE, 3 OVERRUN
    wire step = ctrl[0] & (ctrl[3] ? ext_rise : (~ctrl[2] | ext_level));
    wire count  = step & (part == 16'd0);
    wire zero   = value == 24'd0;
    wire wrap   = count & zero;
    wire stops  = wrap & ctrl[4];
    wire set_value = store & (offset == 12'h004);
    wire start  = store & (offset == 12'h000) & PSTRB[0] & PWDATA[0] & (~ctrl[0] | stops);
    // A counter that is switched on at 0 begins a period: nothing has passed yet.
    wire begins = zero & (start | (count & ~ctrl[4]));
    wire match, captured;
    integer n;
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            ctrl     <= 10'd0;
            value    <= 24'd0;
            reload   <= 24'd0;
            prescale <= 16'd0;
            part     <= 16'd0;
            pend     <= 4'd0;
        end else begin
            if (step)
                part <= HAS_PRESCALE ? (count ? prescale : part - 16'd1) : 16'd0;
            if (stops)
                ctrl[0] <= 1'b0;
            if (begins)
                value <= reload;
            else if (count & ~wrap)
                value <= value - 24'd1;
            if (store)
                case (offset)
                    12'h000: begin
                        if (PSTRB[0]) ctrl[7:0] <= PWDATA[7:0] & CTRL_BITS[7:0];
                        if (PSTRB[1]) ctrl[9:8] <= PWDATA[9:8] & CTRL_BITS[9:8];
                    end
                    12'h004: for (n = 0; n < 3; n = n + 1) if (PSTRB[n]) value[8*n +: 8] <= PWDATA[8*n +: 8];
                    12'h008: for (n = 0; n < 3; n = n + 1) if (PSTRB[n]) reload[8*n +: 8] <= PWDATA[8*n +: 8];
                    12'h00C: if (PSTRB[0]) pend <= pend & ~PWDATA[3:0];
                    12'h010: for (n = 0; n < 2; n = n + 1) if (PSTRB[n]) prescale[8*n +: 8] <= HAS_PRESCALE ? PWDATA[8*n +: 8] : 8'd0;
                    default: ;
                endcase
            if (start)
                part <= prescale;
            if (wrap)
                pend[0] <= 1'b1;
            if (match)
                pend[1] <= HAS_COMPARE;
            if (captured) begin
                pend[2] <= HAS_CAPTURE;
                if (pend[2])
                    pend[3] <= HAS_CAPTURE;
            end
        end

    wire [23:0] compare, capture;
    generate
        if (COMPARE != 0) begin : g_compare
            reg [23:0] at;
            reg        counted;   // VALUE is what counting has made of it
            integer    k;
            always @(posedge PCLK or negedge PRESETn)
                if (!PRESETn) begin
                    at      <= 24'd0;
                    counted <= 1'b0;
                end else begin
                    counted <= count & ~stops & ~set_value;
                    if (store & (offset == 12'h014))
                        for (k = 0; k < 3; k = k + 1) if (PSTRB[k]) at[8*k +: 8] <= PWDATA[8*k +: 8];
                end
            assign compare = at;
            assign match   = ctrl[5] & counted & (value == at);
        end else begin : g_no_compare
            assign compare = 24'd0;
            assign match   = 1'b0;
        end
        if (CAPTURE != 0) begin : g_capture
            reg [23:0] seen;
            always @(posedge PCLK or negedge PRESETn)
                if (!PRESETn)
                    seen <= 24'd0;
                else if (captured)
                    seen <= value;
            assign capture  = seen;
            assign captured = ctrl[0] & ((ctrl[8] & ext_rise) | (ctrl[9] & ext_fall));
        end else begin : g_no_capture
            assign capture  = 24'd0;
            assign captured = 1'b0;
        end
    endgenerate

    always @*
        case (offset)
            12'h000: PRDATA = {22'd0, ctrl};
            12'h004: PRDATA = {8'd0, value};
            12'h008: PRDATA = {8'd0, reload};
            12'h00C: PRDATA = {28'd0, pend};
            12'h010: PRDATA = {16'd0, prescale};
            12'h014: PRDATA = {8'd0, compare};
            12'h018: PRDATA = {8'd0, capture};
            12'hFFC: PRDATA = {~HAS, 4'd0, HAS_CAPTURE, HAS_COMPARE, WIDTH, REVISION, BLOCK};
            default: PRDATA = 32'd0;
        endcase

    assign PREADY  = 1'b1;
    assign PSLVERR = 1'b0;
    assign irq     = (pend[0] & ctrl[1]) | (pend[1] & ctrl[6]) | (pend[2] & ctrl[7]);
endmodule
