// Real-time clock: counts seconds of an external clock, which is sampled with PCLK and must be slower than PCLK / 4.
// Time, calibration, alarm and flags are cleared by PORESETn only and go on through every other reset.
// Registers: registers/rtc.json.
//   CALIBRATION  1: calibration; 0: its register reads 0
//   REPEAT       1: mask and step of the alarm; 0: their registers read all ones and 0
//   FULL         sum of what is there: 1 ticks, 2 SUBSECOND, 4 LATE; the others read 0, and ID has ones in bits 29 to 31
module apb_rtc #(
    parameter CALIBRATION = 1,
    parameter REPEAT      = 1, FULL = 7
) (
    input  wire        PCLK,
    input  wire        PRESETn,     // of what a program switches on for itself: interrupts, ticks, reading
    input  wire        PORESETn,    // of all else; while it is low, PRESETn is
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
    localparam [7:0] BLOCK = 8'd5, REVISION = 8'd2;
    localparam [6:0] CALIBRATION_PERIOD = CALIBRATION != 0 ? 7'd20 : 7'd0;   // as a power of two, in source clock cycles
    localparam [2:0] HAS = FULL;
    localparam [0:0] HAS_REPEAT = REPEAT != 0, HAS_TICKS = HAS[0], HAS_SUBSECOND = HAS[1], HAS_LATE = HAS[2];
    wire store = PSEL & PENABLE & PWRITE;
    wire fetch = PSEL & PENABLE & ~PWRITE;
    wire [11:0] offset = {PADDR[11:2], 2'b00};
    wire set_seconds   = store & (offset == 12'h000) & |PSTRB;
    wire set_alarm     = store & (offset == 12'h004) & |PSTRB;

    // Cycles of the source clock, and of the corrected clock that the time counts.
    wire src;
    reg  src_before;
    cdc_synchronizer #(.WIDTH(1)) u_sync_rtc_clk (.clk(PCLK), .rstn(PORESETn), .d(rtc_clk), .q(src));
    always @(posedge PCLK or negedge PORESETn)
        if (!PORESETn)
            src_before <= 1'b0;
        else
            src_before <= src;

    reg  [1:0]  ctrl;            // 0 EN, 1 LATE
    reg  [2:0]  enable;          // as PEND
    wire cycle = ctrl[0] & src & ~src_before;
    wire tick;
    wire [11:0] calib;
    generate
        if (CALIBRATION != 0) begin : g_calibration
            reg  [11:0] rate;
            reg  [19:0] sum;
            reg         extra;
            wire [20:0] next_sum = {1'b0, sum} + {{9{rate[11]}}, rate};
            always @(posedge PCLK or negedge PORESETn)
                if (!PORESETn) begin
                    rate  <= 12'd0;
                    sum   <= 20'd0;
                    extra <= 1'b0;
                end else begin
                    if (cycle)
                        sum <= next_sum[19:0];
                    extra <= cycle & next_sum[20] & ~rate[11];
                    if (store & (offset == 12'h018)) begin
                        if (PSTRB[0]) rate[7:0]  <= PWDATA[7:0];
                        if (PSTRB[1]) rate[11:8] <= PWDATA[11:8];
                    end
                end
            assign calib = rate;
            assign tick  = (cycle & ~(next_sum[20] & rate[11])) | extra;
        end else begin : g_no_calibration
            assign calib = 12'd0;
            assign tick  = cycle;
        end
    endgenerate

    // Time.
    reg [31:0] seconds;
    reg [23:0] prescale;
    reg [23:0] part;
    reg [23:0] subsecond;        // PART when SECONDS was read last, or what the next write of SECONDS begins with
    reg        staged;
    reg        was_set;
    wire second = tick & (part >= prescale) & ~set_seconds;
    wire [31:0] next = seconds + 32'd1;

    // Alarm.
    reg  [31:0] alarm;
    reg         armed;
    reg         reached;         // the time was not before ALARM a cycle ago,
    reg         moved;           // when one of both was another
    wire [31:0] mask;
    wire [31:0] step;
    wire late  = ctrl[1] & armed & reached & ~moved;
    wire alarm_now = (second & (((next ^ alarm) & mask) == 32'd0)) | late;
    wire again = HAS_REPEAT & |step;
    wire [31:0] ahead = seconds - alarm;

    reg [2:0]  pend;             // 0 ALARM, 1 SECOND, 2 TICK
    reg [15:0] period;           // of the ticks
    reg [15:0] rest;
    reg        restart;          // the period was written
    wire ticks = tick & (period != 16'd0) & ~|rest[15:1] & ~restart;
    integer n;
    always @(posedge PCLK or negedge PORESETn)
        if (!PORESETn) begin
            seconds  <= 32'd0;
            alarm    <= 32'd0;
            armed    <= 1'b0;
            reached  <= 1'b0;
            moved    <= 1'b0;
            ctrl     <= 2'd0;
            pend     <= 3'd0;
            prescale <= 24'd32767;
            part     <= 24'd0;
            was_set  <= 1'b0;
        end else begin
            if (tick)
                part <= second ? 24'd0 : part + 24'd1;
            if (second)
                seconds <= next;
            if (alarm_now)
                armed <= again;
            if (alarm_now & again)
                alarm <= alarm + step;
            reached <= HAS_LATE ? ~ahead[31] : 1'b0;
            moved   <= HAS_LATE ? set_seconds | set_alarm | alarm_now : 1'b0;
            if (set_seconds) begin
                part    <= HAS_SUBSECOND ? (staged ? subsecond : 24'd0) : 24'd0;
                was_set <= 1'b1;
            end
            if (set_alarm)
                armed <= 1'b1;
            if (store)
                case (offset)
                    12'h000: for (n = 0; n < 4; n = n + 1) if (PSTRB[n]) seconds[8*n +: 8] <= PWDATA[8*n +: 8];
                    12'h004: for (n = 0; n < 4; n = n + 1) if (PSTRB[n]) alarm[8*n +: 8] <= PWDATA[8*n +: 8];
                    12'h008: if (PSTRB[0]) ctrl <= {HAS_LATE ? PWDATA[4] : 1'b0, PWDATA[0]};
                    12'h00C: if (PSTRB[0]) pend <= pend & ~PWDATA[2:0];
                    12'h010: for (n = 0; n < 3; n = n + 1) if (PSTRB[n]) prescale[8*n +: 8] <= PWDATA[8*n +: 8];
                    default: ;
                endcase
            if (second)
                pend[1] <= 1'b1;
            if (alarm_now)
                pend[0] <= 1'b1;
            if (ticks)
                pend[2] <= HAS_TICKS;
        end

    generate
        if (REPEAT != 0) begin : g_repeat
            reg [31:0] must;
            reg [19:0] by;
            integer    k;
            always @(posedge PCLK or negedge PORESETn)
                if (!PORESETn) begin
                    must <= 32'hFFFFFFFF;
                    by   <= 20'd0;
                end else if (store) begin
                    if (offset == 12'h01C)
                        for (k = 0; k < 4; k = k + 1) if (PSTRB[k]) must[8*k +: 8] <= PWDATA[8*k +: 8];
                    if (offset == 12'h020) begin
                        for (k = 0; k < 2; k = k + 1) if (PSTRB[k]) by[8*k +: 8] <= PWDATA[8*k +: 8];
                        if (PSTRB[2]) by[19:16] <= PWDATA[19:16];
                    end
                end
            assign mask = must;
            assign step = {12'd0, by};
        end else begin : g_no_repeat
            assign mask = 32'hFFFFFFFF;
            assign step = 32'd0;
        end
    endgenerate

    // What a program switches on for itself.
    integer m;
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            enable    <= 3'd0;
            period    <= 16'd0;
            rest      <= 16'd0;
            restart   <= 1'b0;
            subsecond <= 24'd0;
            staged    <= 1'b0;
        end else begin
            restart <= HAS_TICKS ? store & (offset == 12'h024) : 1'b0;
            if (ticks | restart)
                rest <= period;
            else if (tick)
                rest <= HAS_TICKS ? rest - 16'd1 : 16'd0;
            if (fetch & (offset == 12'h000)) begin
                subsecond <= HAS_SUBSECOND ? part : subsecond;
                staged    <= 1'b0;
            end
            if (set_seconds)
                staged <= 1'b0;
            if (store)
                case (offset)
                    12'h008: if (PSTRB[0]) enable <= HAS_TICKS ? PWDATA[3:1] : {1'b0, PWDATA[2:1]};
                    12'h014: begin
                        staged <= HAS_SUBSECOND;
                        for (m = 0; m < 3; m = m + 1) if (PSTRB[m]) subsecond[8*m +: 8] <= HAS_SUBSECOND ? PWDATA[8*m +: 8] : subsecond[8*m +: 8];
                    end
                    12'h024: for (m = 0; m < 2; m = m + 1) if (PSTRB[m]) period[8*m +: 8] <= HAS_TICKS ? PWDATA[8*m +: 8] : period[8*m +: 8];
                    default: ;
                endcase
        end

    always @*
        case (offset)
            12'h000: PRDATA = seconds;
            12'h004: PRDATA = alarm;
            12'h008: PRDATA = {27'd0, ctrl[1], enable, ctrl[0]};
            12'h00C: PRDATA = {29'd0, pend};
            12'h010: PRDATA = {8'd0, prescale};
            12'h014: PRDATA = {8'd0, subsecond};
            12'h018: PRDATA = {20'd0, calib};
            12'h01C: PRDATA = mask;
            12'h020: PRDATA = step;
            12'h024: PRDATA = {16'd0, period};
            12'h028: PRDATA = {30'd0, armed, was_set};
            12'hFFC: PRDATA = {~HAS, 5'd0, HAS_REPEAT, CALIBRATION_PERIOD, REVISION, BLOCK};
            default: PRDATA = 32'd0;
        endcase

    assign PREADY  = 1'b1;
    assign PSLVERR = 1'b0;
    assign irq     = |(pend & enable);
endmodule
