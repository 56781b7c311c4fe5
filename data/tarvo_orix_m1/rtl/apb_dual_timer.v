// Dual timer: two independent 32-bit down counters, each with a prescaler and a compare value.  Counter 1 has the offsets
// 0x00 to 0x10, counter 2 the offsets 0x20 to 0x30.
// Registers: registers/dual_timer.json.
//   COMPARE  1: compare values; 0: their registers and bits read 0
module apb_dual_timer #(
    parameter COMPARE = 1
) (
    input  wire        PCLK,
    input  wire        PRESETn,
    input  wire        PSEL,
    input  wire        PENABLE,
    input  wire        PWRITE,
    input  wire [11:0] PADDR,
    input  wire [31:0] PWDATA,
    input  wire [3:0]  PSTRB,
    output wire [31:0] PRDATA,
    output wire        PREADY,
    output wire        PSLVERR,

    output wire        irq
);
    localparam [7:0] BLOCK = 8'd4, REVISION = 8'd2, WIDTH = 8'd32;
    localparam [0:0] HAS_COMPARE = COMPARE != 0;

    wire [31:0] rdata [0:1];
    wire [1:0]  irqs;
    wire        in_range = PADDR[11:6] == 6'd0;

    genvar n;
    generate
        for (n = 0; n < 2; n = n + 1) begin : g_counter
            wire mine  = in_range & (PADDR[5] == n[0]);
            wire store = PSEL & PENABLE & PWRITE & mine;

            reg        en, ie, oneshot, cmpen, cmpie, pend, matched;
            reg [7:0]  prescale, part;
            reg [31:0] value, reload;
            wire count = en & (part == 8'd0);
            wire zero  = value == 32'd0;
            wire wrap  = count & zero;
            wire stops = wrap & oneshot;
            // A counter that is switched on at 0 begins a period: nothing has passed yet.
            wire start  = store & (PADDR[4:2] == 3'd0) & PSTRB[0] & PWDATA[0] & (~en | stops);
            wire begins = zero & (start | (count & ~oneshot));
            wire match;
            wire [7:0] written = PSTRB[1] ? PWDATA[15:8] : prescale;   // PRESCALE after a write to CTRL
            integer k;
            always @(posedge PCLK or negedge PRESETn)
                if (!PRESETn) begin
                    en       <= 1'b0;
                    ie       <= 1'b0;
                    oneshot  <= 1'b0;
                    cmpen    <= 1'b0;
                    cmpie    <= 1'b0;
                    pend     <= 1'b0;
                    matched  <= 1'b0;
                    prescale <= 8'd0;
                    part     <= 8'd0;
                    value    <= 32'd0;
                    reload   <= 32'd0;
                end else begin
                    if (en)
                        part <= count ? prescale : part - 8'd1;
                    if (stops)
                        en <= 1'b0;
                    if (begins)
                        value <= reload;
                    else if (count & ~wrap)
                        value <= value - 32'd1;
                    if (store)
                        case (PADDR[4:2])
                            3'd0: begin
                                if (PSTRB[0]) begin
                                    {oneshot, ie, en} <= PWDATA[2:0];
                                    {cmpie, cmpen}    <= PWDATA[4:3] & {2{HAS_COMPARE}};
                                end
                                prescale <= written;
                                part     <= written;
                            end
                            3'd1: for (k = 0; k < 4; k = k + 1) if (PSTRB[k]) value[8*k +: 8] <= PWDATA[8*k +: 8];
                            3'd2: for (k = 0; k < 4; k = k + 1) if (PSTRB[k]) reload[8*k +: 8] <= PWDATA[8*k +: 8];
                            3'd3: if (PSTRB[0]) begin
                                if (PWDATA[0]) pend <= 1'b0;
                                if (PWDATA[1]) matched <= 1'b0;
                            end
                            default: ;
                        endcase
                    if (wrap)
                        pend <= 1'b1;
                    if (match)
                        matched <= 1'b1;
                end

            wire [31:0] compare;
            if (COMPARE != 0) begin : g_compare
                reg [31:0] at;
                reg        counted;   // VALUE is what counting has made of it
                integer    i;
                always @(posedge PCLK or negedge PRESETn)
                    if (!PRESETn) begin
                        at      <= 32'd0;
                        counted <= 1'b0;
                    end else begin
                        counted <= count & ~stops & ~(store & (PADDR[4:2] == 3'd1));
                        if (store & (PADDR[4:2] == 3'd4))
                            for (i = 0; i < 4; i = i + 1) if (PSTRB[i]) at[8*i +: 8] <= PWDATA[8*i +: 8];
                    end
                assign compare = at;
                assign match   = cmpen & counted & (value == at);
            end else begin : g_no_compare
                assign compare = 32'd0;
                assign match   = 1'b0;
            end

            reg [31:0] r;
            always @*
                case (PADDR[4:2])
                    3'd0: r = {16'd0, prescale, 3'd0, cmpie, cmpen, oneshot, ie, en};
                    3'd1: r = value;
                    3'd2: r = reload;
                    3'd3: r = {30'd0, matched, pend};
                    3'd4: r = compare;
                    default: r = 32'd0;
                endcase
            assign rdata[n] = mine ? r : 32'd0;
            assign irqs[n]  = (pend & ie) | (matched & cmpie);
        end
    endgenerate

    wire [31:0] id = PADDR[11:2] == 10'h3FF ? {7'd0, HAS_COMPARE, WIDTH, REVISION, BLOCK} : 32'd0;
    assign PRDATA  = rdata[0] | rdata[1] | id;
    assign PREADY  = 1'b1;
    assign PSLVERR = 1'b0;
    assign irq     = |irqs;
endmodule
