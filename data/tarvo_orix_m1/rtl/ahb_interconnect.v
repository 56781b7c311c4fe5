// AHB-Lite interconnect of one master and sixteen slaves: decoder, default slave, the multiplexer of the responses, and
// the end of what does not end.
// Slave n uses bit n of the one-bit vectors and bits 32n+31 to 32n of hrdata_s.  Slaves see the master's address and
// control signals directly, together with HREADY from here.
//   ENABLE   slaves that are there; the others answer like an unmapped address
//   BRIDGES  slaves that end an access by themselves when `late` is high
//
// A transfer that has waited for `timeout` cycles (0: no limit) and is not ready in the next one either gets the two-cycle
// error response.  `late` is high in that next cycle.  The slave is abandoned then, unless it is a bridge: it is not
// selected any more, and accesses to it get the error response at once, until its HREADYOUT is 1 again.  The same becomes
// of a slave that begins an error response and does not end it in the second cycle.  That all is FULL = 1; with 0 a slave
// may wait for ever, and ends its error responses by itself.
// In simulation a ready or error signal that is unknown or floats counts as 0, so that the bus goes on.
`include "static_macro_define.vh"

module ahb_interconnect #(
    parameter FULL = 1, parameter [15:0] ENABLE  = 16'hFFFF,
    parameter [15:0] BRIDGES = 16'h0000
) (
    input  wire         HCLK,
    input  wire         HRESETn,
    input  wire [17:0]  timeout,
    // master
    input  wire [7:0]   HADDR_REGION,   // HADDR[31:24]
    input  wire [1:0]   HTRANS,
    output wire [31:0]  HRDATA,
    output wire         HREADY,
    output wire         HRESP,
    output wire [1:0]   cause,          // of an error, while HREADY and HRESP are 1: see registers/sys.json
    // slaves
    output reg          late,
    output wire [15:0]  hsel_s,
    input  wire [511:0] hrdata_s,
    input  wire [15:0]  hreadyout_s,
    input  wire [15:0]  hresp_s,
    input  wire [15:0]  vacant_s,       // of a bridge, in the data phase: nobody is at the address
    input  wire [15:0]  expired_s       // of a bridge, with an error: because of `late`
);
    localparam [1:0] UNMAPPED  = 2'd0;
    localparam [1:0] SLAVE     = 2'd1;
    localparam [1:0] TIMEOUT   = 2'd2;
    localparam [1:0] ABANDONED = 2'd3;

    wire [15:0] decoded;
    wire        unmapped;
    wire        default_ready;
    wire        default_resp;
    reg  [15:0] abandoned;

    ahb_decoder #(.ENABLE(ENABLE)) u_decoder (
        .region(HADDR_REGION),
        .hsel(decoded),
        .hsel_default(unmapped)
    );
    wire [15:0] shut;
    assign hsel_s = decoded & ~shut;
    wire refused = |(decoded & shut);

    ahb_default_slave u_default_slave (
        .HCLK(HCLK),
        .HRESETn(HRESETn),
        .HSEL(unmapped | refused),
        .HTRANS(HTRANS),
        .HREADY(HREADY),
        .HREADYOUT(default_ready),
        .HRESP(default_resp)
    );

    // Slave that owns the data phase; none does while nothing is transferred, so that nothing waits then.
    reg [15:0] data_sel;
    reg        data_refused;
    always @(posedge HCLK or negedge HRESETn)
        if (!HRESETn) begin
            data_sel     <= 16'd0;
            data_refused <= 1'b0;
        end else if (HREADY) begin
            data_sel     <= HTRANS[`ORIX_HTRANS_ACTIVE] ? hsel_s : 16'd0;
            data_refused <= refused;
        end

    reg [31:0] rdata;
    integer n;
    always @* begin
        rdata = 32'd0;
        for (n = 0; n < 16; n = n + 1)
            rdata = rdata | (hrdata_s[32*n +: 32] & {32{data_sel[n]}});
    end

    reg slave_ready;
    reg slave_error;
    always @* begin
        if (|(hreadyout_s & data_sel))
            slave_ready = 1'b1;
        else
            slave_ready = 1'b0;
        if (|(hresp_s & data_sel))
            slave_error = 1'b1;
        else
            slave_error = 1'b0;
    end

    // The second cycle of an error response comes whatever the slave does.
    wire none = data_sel == 16'd0;
    wire over = FULL == 0 ? 1'b0 : late & ~slave_ready & ~slave_error;
    reg  second;
    reg  timed_out;   // the reason of it
    assign HRDATA = rdata;
    assign HREADY = (none ? default_ready : slave_ready) | second;
    assign HRESP  = (none ? default_resp : slave_error | over) | second;
    assign cause  = none ? (data_refused ? ABANDONED : UNMAPPED)
                         : timed_out | (|(expired_s & data_sel)) ? TIMEOUT : |(vacant_s & data_sel) ? UNMAPPED : SLAVE;

    reg [17:0] left;
    always @(posedge HCLK or negedge HRESETn)
        if (!HRESETn) begin
            left      <= 18'd0;
            late      <= 1'b0;
            second    <= 1'b0;
            timed_out <= 1'b0;
        end else begin
            left      <= FULL == 0 ? 18'd0 : HREADY ? timeout : left - {17'd0, |left};
            late      <= FULL == 0 ? 1'b0 : ~HREADY & (left == 18'd1);
            second    <= FULL == 0 ? 1'b0 : ~none & ~HREADY & HRESP;
            timed_out <= FULL == 0 ? 1'b0 : ~none & over;
        end

    // A slave whose access ends without it gets none in that cycle already.
    wire [15:0] left_behind = data_sel & ~BRIDGES & {16{second & ~slave_ready}};
    assign shut = abandoned | left_behind;
    integer k;
    always @(posedge HCLK or negedge HRESETn)
        if (!HRESETn)
            abandoned <= 16'd0;
        else
            for (k = 0; k < 16; k = k + 1)
                if (hreadyout_s[k])
                    abandoned[k] <= FULL != 0 ? 1'b0 : abandoned[k];
                else if (left_behind[k] | (data_sel[k] & ~BRIDGES[k] & over))
                    abandoned[k] <= FULL != 0 ? 1'b1 : abandoned[k];
endmodule
