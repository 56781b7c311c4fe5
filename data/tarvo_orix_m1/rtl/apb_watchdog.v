// Watchdog: 32-bit down counter.  Reaching 0 the first time raises the non-maskable interrupt and starts the count
// again; reaching 0 with the interrupt still pending requests a system reset, if that is allowed.
// Registers: registers/watchdog.json.
module apb_watchdog (
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

    output wire        nmi,
    output reg         reset_req
);
    localparam [31:0] KICK_KEY   = 32'h4B49434B;
    localparam [31:0] UNLOCK_KEY = 32'h554E4C4B;

    wire store = PSEL & PENABLE & PWRITE;
    wire [11:0] offset = {PADDR[11:2], 2'b00};
    // The keys are whole words: a write that reaches fewer bytes is another value.
    wire [31:0] mask   = {{8{PSTRB[3]}}, {8{PSTRB[2]}}, {8{PSTRB[1]}}, {8{PSTRB[0]}}};
    wire [31:0] key    = PWDATA & mask;

    reg [31:0] load;
    reg [31:0] count;
    reg [1:0]  ctrl;
    reg        locked;
    reg        pend;
    wire kick   = store & (offset == 12'h00C) & (key == KICK_KEY);
    wire [31:0] period = (load & ~mask) | key;   // LOAD after a write to it
    wire expire = ctrl[0] & (count == 32'd0);
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            load      <= 32'hFFFFFFFF;
            count     <= 32'hFFFFFFFF;
            ctrl      <= 2'd0;
            locked    <= 1'b0;
            pend      <= 1'b0;
            reset_req <= 1'b0;
        end else begin
            if (ctrl[0])
                count <= expire ? load : count - 32'd1;
            if (expire)
                pend <= 1'b1;
            reset_req <= expire & pend & ctrl[1] & ~kick;
            if (kick) begin
                count <= load;
                pend  <= 1'b0;
            end
            if (store & ~locked & (offset == 12'h000)) begin
                load  <= period;
                count <= period;
            end
            if (store & ~locked & (offset == 12'h008) & PSTRB[0])
                ctrl <= PWDATA[1:0];
            if (store & (offset == 12'h014))
                locked <= key != UNLOCK_KEY;
        end

    always @*
        case (offset)
            12'h000: PRDATA = load;
            12'h004: PRDATA = count;
            12'h008: PRDATA = {30'd0, ctrl};
            12'h010: PRDATA = {31'd0, pend};
            12'h014: PRDATA = {31'd0, locked};
            default: PRDATA = 32'd0;
        endcase

    assign PREADY  = 1'b1;
    assign PSLVERR = 1'b0;
    assign nmi     = pend;
endmodule
