// The bridge: a slave of the AHB and the master of an APB whose slave makes up to three wait states. Every transfer ends: with as
// many wait states as the slave's, the setup cycle and the first cycle of an error response.
module proof (
    input wire        clk, rstn, hsel, hwrite, hready, hresp, pready, pslverr,
    input wire [31:0] haddr, hwdata, prdata,
    input wire [1:0]  htrans,
    input wire [2:0]  hburst, hsize,
    input wire [3:0]  hprot
);
`include "environment.vh"
    wire [31:0] hrdata, pwdata;
    wire        hreadyout, hrespout, psel, penable, pwrite;
    wire [23:0] paddr;
    wire [3:0]  pstrb;
    wire [2:0]  pprot;
    ahb_to_apb dut (
        .HCLK(clk), .HRESETn(rstn), .HSEL(hsel), .HADDR(haddr[23:0]), .HTRANS(htrans), .HSIZE(hsize), .HPROT(hprot),
        .HWRITE(hwrite), .HWDATA(hwdata), .HREADY(hready), .HRDATA(hrdata), .HREADYOUT(hreadyout), .HRESP(hrespout),
        .PADDR(paddr), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PSTRB(pstrb), .PPROT(pprot), .PWDATA(pwdata),
        .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr)
    );
    ahb_lite_checker #(.MOST_WAITS(5), .ASSUME_MASTER(1), .ASSUME_BUS(1)) ahb (
        .HCLK(clk), .HRESETn(rstn), .HADDR(haddr), .HTRANS(htrans), .HBURST(hburst), .HSIZE(hsize), .HPROT(hprot),
        .HWRITE(hwrite), .HWDATA(hwdata), .HSEL(hsel), .HREADY(hready), .HRESP(hresp),
        .HRDATA(hrdata), .HREADYOUT(hreadyout), .HRESPOUT(hrespout)
    );
    apb_checker #(.MOST_WAITS(3), .ASSUME_SLAVE(1)) apb (
        .PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR({8'd0, paddr}), .PWDATA(pwdata),
        .PSTRB(pstrb), .PPROT(pprot), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr)
    );
endmodule
