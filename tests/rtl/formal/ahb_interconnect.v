// The interconnect with decoder and default slave: each slave sees the bus of one master, the master sees a slave. A slave makes
// three wait states at most, and so does the whole.
module proof (
    input wire         clk, rstn, hwrite,
    input wire [31:0]  haddr, hwdata,
    input wire [1:0]   htrans,
    input wire [2:0]   hburst, hsize,
    input wire [3:0]   hprot,
    input wire [511:0] hrdata_s,
    input wire [15:0]  hreadyout_s, hresp_s
);
`include "environment.vh"
    wire [31:0] hrdata;
    wire        hready, hresp;
    wire [15:0] hsel_s;
    ahb_interconnect dut (
        .HCLK(clk), .HRESETn(rstn), .HADDR_REGION(haddr[31:24]), .HTRANS(htrans),
        .HRDATA(hrdata), .HREADY(hready), .HRESP(hresp),
        .hsel_s(hsel_s), .hrdata_s(hrdata_s), .hreadyout_s(hreadyout_s), .hresp_s(hresp_s)
    );
    ahb_lite_checker #(.MOST_WAITS(3), .ASSUME_MASTER(1)) master (
        .HCLK(clk), .HRESETn(rstn), .HADDR(haddr), .HTRANS(htrans), .HBURST(hburst), .HSIZE(hsize), .HPROT(hprot),
        .HWRITE(hwrite), .HWDATA(hwdata), .HSEL(1'b1), .HREADY(hready), .HRESP(hresp),
        .HRDATA(hrdata), .HREADYOUT(hready), .HRESPOUT(hresp)
    );
    reg [15:0] owner;      // of the data phase
    always @(posedge clk or negedge rstn)
        if (!rstn)
            owner <= 16'd0;
        else if (hready)
            owner <= hsel_s & {16{htrans[1]}};
    genvar n;
    generate for (n = 0; n < 16; n = n + 1) begin : slave
        ahb_lite_checker #(.MOST_WAITS(3), .ASSUME_MASTER(2), .ASSUME_SLAVE(1)) rules (
            .HCLK(clk), .HRESETn(rstn), .HADDR(haddr), .HTRANS(htrans), .HBURST(hburst), .HSIZE(hsize), .HPROT(hprot),
            .HWRITE(hwrite), .HWDATA(hwdata), .HSEL(hsel_s[n]), .HREADY(hready), .HRESP(hresp),
            .HRDATA(hrdata_s[32*n +: 32]), .HREADYOUT(hreadyout_s[n]), .HRESPOUT(hresp_s[n])
        );
        always @*
            if (rstn && owner[n])
                assert (hrdata == hrdata_s[32*n +: 32]);
    end endgenerate
    always @* assert ((hsel_s & (hsel_s - 16'd1)) == 16'd0);
endmodule
