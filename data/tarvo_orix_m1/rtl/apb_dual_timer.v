// Dual timer: two independent 32-bit down counters, each with a prescaler.  Counter 1 has the offsets 0x00 to 0x0C,
// counter 2 the offsets 0x20 to 0x2C.
// Registers: registers/dual_timer.json.
module apb_dual_timer (
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
    wire [31:0] rdata [0:1];
    wire [1:0]  irqs;
    wire        in_range = PADDR[11:6] == 6'd0;

    genvar n;
    generate
        for (n = 0; n < 2; n = n + 1) begin : g_counter
            wire mine  = in_range & (PADDR[5] == n[0]) & ~PADDR[4];
            wire store = PSEL & PENABLE & PWRITE & mine;

            reg        en, ie, oneshot, pend;
            reg [7:0]  prescale, part;
            reg [31:0] value, reload;
            wire count = en & (part == 8'd0);
            wire wrap  = count & (value == 32'd0);
            wire [7:0] written = PSTRB[1] ? PWDATA[15:8] : prescale;   // PRESCALE after a write to CTRL
            integer k;
            always @(posedge PCLK or negedge PRESETn)
                if (!PRESETn) begin
                    en       <= 1'b0;
                    ie       <= 1'b0;
                    oneshot  <= 1'b0;
                    pend     <= 1'b0;
                    prescale <= 8'd0;
                    part     <= 8'd0;
                    value    <= 32'd0;
                    reload   <= 32'd0;
                end else begin
                    if (en)
                        part <= count ? prescale : part - 8'd1;
                    if (wrap) begin
                        if (oneshot)
                            en <= 1'b0;
                        else
                            value <= reload;
                    end else if (count)
                        value <= value - 32'd1;
                    if (store)
                        case (PADDR[3:2])
                            2'd0: begin
                                if (PSTRB[0])
                                    {oneshot, ie, en} <= PWDATA[2:0];
                                prescale <= written;
                                part     <= written;
                            end
                            2'd1: for (k = 0; k < 4; k = k + 1) if (PSTRB[k]) value[8*k +: 8] <= PWDATA[8*k +: 8];
                            2'd2: for (k = 0; k < 4; k = k + 1) if (PSTRB[k]) reload[8*k +: 8] <= PWDATA[8*k +: 8];
                            2'd3: if (PSTRB[0] & PWDATA[0]) pend <= 1'b0;
                        endcase
                    if (wrap)
                        pend <= 1'b1;
                end

            reg [31:0] r;
            always @*
                case (PADDR[3:2])
                    2'd0: r = {16'd0, prescale, 5'd0, oneshot, ie, en};
                    2'd1: r = value;
                    2'd2: r = reload;
                    2'd3: r = {31'd0, pend};
                endcase
            assign rdata[n] = mine ? r : 32'd0;
            assign irqs[n]  = pend & ie;
        end
    endgenerate

    assign PRDATA  = rdata[0] | rdata[1];
    assign PREADY  = 1'b1;
    assign PSLVERR = 1'b0;
    assign irq     = |irqs;
endmodule
