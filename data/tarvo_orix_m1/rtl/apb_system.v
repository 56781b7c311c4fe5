// System control: causes of resets, the last error of the bus, the limit of wait states, what is configured.
// Registers: registers/sys.json.
//   TIMEOUT  BUSTIMEOUT after a reset
//   BLOCKS   register BLOCKS: a bit for each block that the configuration has
//   CONFIG   register CONFIG: interrupts and sizes of memories of the configuration
//   PORTS    register PORTS: a bit for each APB extension port
//   FULL     1: limit of wait states; 0: the interconnect has none, BUSTIMEOUT reads 0, and ID has a one in bit 31
// What tells of the past lives in the power-on domain, so that a program can read it after the reset that it led to.
// The pin hwRstn makes every power-on reset.  The first one since the device was configured is told from the others by a
// flip-flop that no reset reaches and whose initial value is 0.
module apb_system #(
    parameter FULL = 1, parameter [17:0] TIMEOUT = 18'h3FFFF,
    parameter [31:0] BLOCKS  = 32'd0,
    parameter [31:0] CONFIG  = 32'd0,
    parameter [15:0] PORTS   = 16'd0
) (
    input  wire        PCLK,
    input  wire        PRESETn,
    input  wire        PORESETn,
    input  wire        PSEL,
    input  wire        PENABLE,
    input  wire        PWRITE,
    input  wire [11:0] PADDR,
    input  wire [31:0] PWDATA,
    input  wire [3:0]  PSTRB,
    output reg  [31:0] PRDATA,
    output wire        PREADY,
    output wire        PSLVERR,

    // the bus that is watched: signals of its master
    input  wire [31:0] HADDR,
    input  wire [1:0]  HTRANS,
    input  wire [1:0]  HSIZE,          // HSIZE[1:0]
    input  wire        HPROT,          // HPROT[0]: data, not an instruction
    input  wire        HWRITE,
    input  wire        HREADY,
    input  wire        HRESP,
    input  wire [1:0]  error_cause,    // while HREADY and HRESP are 1
    output wire [17:0] bus_timeout,

    input  wire [3:0]  reset_cause,    // requests of a system reset: watchdog, processor, lock-up, debug connector
    input  wire        lockup,
    output wire        lockup_reset_req,
    output wire        irq
);
    localparam [31:0] ID = {FULL == 0, 15'd0, 8'd2, 8'd11};

    wire        store  = PSEL & PENABLE & PWRITE;
    wire [11:0] offset = {PADDR[11:2], 2'b00};
    wire [31:0] mask   = {{8{PSTRB[3]}}, {8{PSTRB[2]}}, {8{PSTRB[1]}}, {8{PSTRB[0]}}};
    wire [31:0] data   = PWDATA & mask;
    wire        store_cause = store & (offset == 12'h000);
    wire        store_info  = store & (offset == 12'h010);

    // Causes of resets, power-on and pin first.
    reg       powered = 1'b0;
    reg       begun;
    reg [5:0] causes;
    always @(posedge PCLK)
        if (begun)
            powered <= 1'b1;
    always @(posedge PCLK or negedge PORESETn)
        if (!PORESETn) begin
            begun  <= 1'b0;
            causes <= 6'd0;
        end else begin
            begun  <= 1'b1;
            causes <= (causes & ~(data[5:0] & {6{store_cause}})) | {reset_cause, ~begun & powered, ~begun & ~powered};
        end

    reg [31:0] scratch;
    always @(posedge PCLK or negedge PORESETn)
        if (!PORESETn)
            scratch <= 32'd0;
        else if (store & (offset == 12'h014))
            scratch <= (scratch & ~mask) | data;

    reg [1:0]  ctrl;
    reg [17:0] timeout;
    always @(posedge PCLK or negedge PRESETn)
        if (!PRESETn) begin
            ctrl    <= 2'd0;
            timeout <= FULL != 0 ? TIMEOUT : 18'd0;
        end else begin
            if (store & (offset == 12'h004) & PSTRB[0])
                ctrl <= PWDATA[1:0];
            if (store & (offset == 12'h008))
                timeout <= FULL != 0 ? (timeout & ~mask[17:0]) | data[17:0] : timeout;
        end

    // The transfer of the data phase, and the last one that failed.
    wire        failed = HREADY & HRESP;
    reg  [31:0] addr;
    reg  [3:0]  control;    // instruction, size, write
    reg  [31:0] error_addr;
    reg  [5:0]  error_info;
    reg         valid;
    reg         more;
    always @(posedge PCLK or negedge PORESETn)
        if (!PORESETn) begin
            addr       <= 32'd0;
            control    <= 4'd0;
            error_addr <= 32'd0;
            error_info <= 6'd0;
            valid      <= 1'b0;
            more       <= 1'b0;
        end else begin
            if (HREADY & HTRANS[1]) begin
                addr    <= HADDR;
                control <= {~HPROT, HSIZE, HWRITE};
            end
            if (failed) begin
                error_addr <= addr;
                error_info <= {control, error_cause};
            end
            valid <= failed | (valid & ~(store_info & data[0]));
            more  <= (failed & valid) | (more & ~(store_info & data[1]));
        end

    always @*
        case (offset)
            12'h000: PRDATA = {26'd0, causes};
            12'h004: PRDATA = {30'd0, ctrl};
            12'h008: PRDATA = {14'd0, timeout};
            12'h00C: PRDATA = error_addr;
            12'h010: PRDATA = {22'd0, error_info, 2'd0, more, valid};
            12'h014: PRDATA = scratch;
            12'h018: PRDATA = BLOCKS;
            12'h01C: PRDATA = CONFIG;
            12'h020: PRDATA = {16'd0, PORTS};
            12'hFFC: PRDATA = ID;
            default: PRDATA = 32'd0;
        endcase

    assign PREADY  = 1'b1;
    assign PSLVERR = 1'b0;
    assign bus_timeout      = timeout;
    assign lockup_reset_req = lockup & ctrl[0];
    assign irq              = valid & ctrl[1];
endmodule
