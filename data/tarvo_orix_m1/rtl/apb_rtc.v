// Real-time clock: counts seconds of an external clock, which is sampled with PCLK and must be slower than PCLK / 4.
// Registers: registers/rtc.json.
module apb_rtc (
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

    input  wire        rtc_clk,
    output wire        irq
);
    wire store = PSEL & PENABLE & PWRITE;
    wire [11:0] offset = {PADDR[11:2], 2'b00};

    reg [2:0] src;
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn)
            src <= 3'd0;
        else
            src <= {src[1:0], rtc_clk};

    reg [31:0] seconds;
    reg [31:0] alarm;
    reg [2:0]  ctrl;
    reg [1:0]  pend;
    reg [23:0] prescale;
    reg [23:0] part;
    wire tick   = ctrl[0] & src[1] & ~src[2];
    wire second = tick & (part >= prescale);
    wire [31:0] next = seconds + 32'd1;
    integer n;
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            seconds  <= 32'd0;
            alarm    <= 32'd0;
            ctrl     <= 3'd0;
            pend     <= 2'd0;
            prescale <= 24'd32767;
            part     <= 24'd0;
        end else begin
            if (tick)
                part <= second ? 24'd0 : part + 24'd1;
            if (second)
                seconds <= next;
            if (store)
                case (offset)
                    12'h000: begin
                        for (n = 0; n < 4; n = n + 1) if (PSTRB[n]) seconds[8*n +: 8] <= PWDATA[8*n +: 8];
                        part <= 24'd0;
                    end
                    12'h004: for (n = 0; n < 4; n = n + 1) if (PSTRB[n]) alarm[8*n +: 8] <= PWDATA[8*n +: 8];
                    12'h008: if (PSTRB[0]) ctrl <= PWDATA[2:0];
                    12'h00C: if (PSTRB[0]) pend <= pend & ~PWDATA[1:0];
                    12'h010: for (n = 0; n < 3; n = n + 1) if (PSTRB[n]) prescale[8*n +: 8] <= PWDATA[8*n +: 8];
                    default: ;
                endcase
            if (second) begin
                pend[1] <= 1'b1;
                if (next == alarm)
                    pend[0] <= 1'b1;
            end
        end

    always @*
        case (offset)
            12'h000: PRDATA = seconds;
            12'h004: PRDATA = alarm;
            12'h008: PRDATA = {29'd0, ctrl};
            12'h00C: PRDATA = {30'd0, pend};
            12'h010: PRDATA = {8'd0, prescale};
            default: PRDATA = 32'd0;
        endcase

    assign PREADY  = 1'b1;
    assign PSLVERR = 1'b0;
    assign irq     = (pend[0] & ctrl[1]) | (pend[1] & ctrl[2]);
endmodule
