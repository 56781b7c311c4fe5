// A slave of the AHB keeps its rules under any master and any interconnect that keep theirs. Other inputs of the module take any
// values.
module proof (
    input wire        clk, rstn, hsel, hwrite, hready, hresp,
    input wire [31:0] haddr, hwdata,
    input wire [1:0]  htrans,
    input wire [2:0]  hburst, hsize,
    input wire [3:0]  hprot
);
`include "environment.vh"
    wire [31:0] hrdata;
    wire        hreadyout, hrespout;
    `MODULE dut (
`ifdef HAS_HADDR
        .HADDR(haddr),
`endif
`ifdef HAS_HSIZE
        .HSIZE(hsize),
`endif
`ifdef HAS_HPROT
        .HPROT(hprot),
`endif
`ifdef HAS_HWRITE
        .HWRITE(hwrite), .HWDATA(hwdata), .HRDATA(hrdata),
`endif
        .HCLK(clk), .HRESETn(rstn), .HSEL(hsel), .HTRANS(htrans), .HREADY(hready), .HREADYOUT(hreadyout), .HRESP(hrespout)
    );
    ahb_lite_checker #(.MOST_WAITS(`MOST_WAITS), .ASSUME_MASTER(1), .ASSUME_BUS(1)) rules (
        .HCLK(clk), .HRESETn(rstn), .HADDR(haddr), .HTRANS(htrans), .HBURST(hburst), .HSIZE(hsize), .HPROT(hprot),
        .HWRITE(hwrite), .HWDATA(hwdata), .HSEL(hsel), .HREADY(hready), .HRESP(hresp),
        .HRDATA(hrdata), .HREADYOUT(hreadyout), .HRESPOUT(hrespout)
    );
endmodule
