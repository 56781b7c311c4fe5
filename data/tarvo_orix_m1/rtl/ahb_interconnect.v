// AHB-Lite interconnect of one master and sixteen slaves: decoder, default slave and the multiplexer of the responses.
// Slave n uses bit n of the one-bit vectors and bits 32n+31 to 32n of hrdata_s.  Slaves see the master's address and
// control signals directly, together with HREADY from here.
module ahb_interconnect #(
    parameter [15:0] ENABLE = 16'hFFFF
) (
    input  wire         HCLK,
    input  wire         HRESETn,
    // master
    input  wire [7:0]   HADDR_REGION,   // HADDR[31:24]
    input  wire [1:0]   HTRANS,
    output wire [31:0]  HRDATA,
    output wire         HREADY,
    output wire         HRESP,
    // slaves
    output wire [15:0]  hsel_s,
    input  wire [511:0] hrdata_s,
    input  wire [15:0]  hreadyout_s,
    input  wire [15:0]  hresp_s
);
    wire hsel_default;
    wire default_ready;
    wire default_resp;

    ahb_decoder #(.ENABLE(ENABLE)) u_decoder (
        .region(HADDR_REGION),
        .hsel(hsel_s),
        .hsel_default(hsel_default)
    );

    ahb_default_slave u_default_slave (
        .HCLK(HCLK),
        .HRESETn(HRESETn),
        .HSEL(hsel_default),
        .HTRANS(HTRANS),
        .HREADY(HREADY),
        .HREADYOUT(default_ready),
        .HRESP(default_resp)
    );

    // Slave that owns the data phase.
    reg [15:0] data_sel;
    always @(posedge HCLK or negedge HRESETn)
        if (!HRESETn)
            data_sel <= 16'd0;
        else if (HREADY)
            data_sel <= hsel_s;

    reg [31:0] rdata;
    integer n;
    always @* begin
        rdata = 32'd0;
        for (n = 0; n < 16; n = n + 1)
            rdata = rdata | (hrdata_s[32*n +: 32] & {32{data_sel[n]}});
    end

    wire none = data_sel == 16'd0;
    assign HRDATA = rdata;
    assign HREADY = none ? default_ready : |(hreadyout_s & data_sel);
    assign HRESP  = none ? default_resp : |(hresp_s & data_sel);
endmodule
