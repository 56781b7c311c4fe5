// Watchdog: 32-bit down counter.  Reaching 0 the first time raises the non-maskable interrupt and starts the count
// again; reaching 0 with the interrupt still pending requests a system reset, if that is allowed.  A kick above the window
// is too early: it requests the reset at once, or raises the interrupt where no reset is allowed.
// Registers: registers/watchdog.json.
//   WINDOW  1: window; 0: kicks are never too early, and the register reads all ones
module apb_watchdog #(
    parameter WINDOW = 1
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

    input  wire        halted,     // the debugger holds the processor; synchronous to PCLK
    output wire        nmi,
    output reg         reset_req
);
    localparam [7:0]  BLOCK = 8'd6, REVISION = 8'd2, WIDTH = 8'd32;
    localparam [0:0]  HAS_WINDOW = WINDOW != 0;
    localparam [31:0] KICK_KEY   = 32'h4B49434B;
    localparam [31:0] UNLOCK_KEY = 32'h554E4C4B;
    localparam [31:0] SEAL_KEY   = 32'h5345414C;

    wire store = PSEL & PENABLE & PWRITE;
    wire [11:0] offset = {PADDR[11:2], 2'b00};
    // The keys are whole words: a write that reaches fewer bytes is another value.
    wire whole = &PSTRB;

    reg [31:0] load;
    reg [31:0] count;
    reg [2:0]  ctrl;               // 0 EN, 1 RSTEN, 2 DBGRUN
    reg        locked;
    reg        sealed;             // locked until the next reset
    reg        pend;
    reg        was_early;
    reg        restart;            // LOAD was written
    wire closed;                   // a kick would be too early
    wire kick   = store & (offset == 12'h00C) & whole & (PWDATA == KICK_KEY);
    wire early  = kick & ctrl[0] & closed & ~pend;
    wire counts = ctrl[0] & ~(halted & ~ctrl[2]);
    wire expire = counts & (count == 32'd0) & ~restart;
    integer n;
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            load      <= 32'hFFFFFFFF;
            count     <= 32'hFFFFFFFF;
            ctrl      <= 3'd0;
            locked    <= 1'b0;
            sealed    <= 1'b0;
            pend      <= 1'b0;
            was_early <= 1'b0;
            restart   <= 1'b0;
            reset_req <= 1'b0;
        end else begin
            if (kick | expire | restart)
                count <= load;
            else if (counts)
                count <= count - 32'd1;
            if (expire)
                pend <= 1'b1;
            reset_req <= expire & pend & ctrl[1] & ~kick;
            if (kick) begin
                pend      <= early;
                was_early <= early;
            end
            if (early & ctrl[1])
                reset_req <= 1'b1;
            restart <= store & ~locked & (offset == 12'h000) & |PSTRB;
            if (store & ~locked & (offset == 12'h000))
                for (n = 0; n < 4; n = n + 1) if (PSTRB[n]) load[8*n +: 8] <= PWDATA[8*n +: 8];
            if (store & ~locked & (offset == 12'h008) & PSTRB[0])
                ctrl <= PWDATA[2:0];
            if (store & (offset == 12'h014)) begin
                locked <= sealed | ~whole | (PWDATA != UNLOCK_KEY);
                sealed <= sealed | (whole & (PWDATA == SEAL_KEY));
            end
        end

    wire [31:0] window;
    generate
        if (WINDOW != 0) begin : g_window
            reg [31:0] open;
            reg        above;
            integer    k;
            always @(posedge PCLK or negedge PRESETn)
                if (!PRESETn) begin
                    open  <= 32'hFFFFFFFF;
                    above <= 1'b0;
                end else begin
                    above <= count > open;
                    if (store & ~locked & (offset == 12'h018))
                        for (k = 0; k < 4; k = k + 1) if (PSTRB[k]) open[8*k +: 8] <= PWDATA[8*k +: 8];
                end
            assign window = open;
            assign closed = above;
        end else begin : g_no_window
            assign window = 32'hFFFFFFFF;
            assign closed = 1'b0;
        end
    endgenerate

    always @*
        case (offset)
            12'h000: PRDATA = load;
            12'h004: PRDATA = count;
            12'h008: PRDATA = {29'd0, ctrl};
            12'h010: PRDATA = {30'd0, was_early, pend};
            12'h014: PRDATA = {30'd0, sealed, locked};
            12'h018: PRDATA = window;
            12'hFFC: PRDATA = {7'd0, HAS_WINDOW, WIDTH, REVISION, BLOCK};
            default: PRDATA = 32'd0;
        endcase

    assign PREADY  = 1'b1;
    assign PSLVERR = 1'b0;
    assign nmi     = pend;
endmodule
