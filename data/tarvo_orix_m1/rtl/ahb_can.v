// CAN block: the controller with the buffer depth that the configuration chose (CFIFO_DEPTH of parameter.vh).
module ahb_can (
    input  wire        HCLK,
    input  wire        HRESETn,
    input  wire        HSEL,
    input  wire [31:0] HADDR,
    input  wire [1:0]  HTRANS,
    input  wire [2:0]  HSIZE,
    input  wire [2:0]  HBURST,
    input  wire        HWRITE,
    input  wire [31:0] HWDATA,
    input  wire        HREADY,
    output wire [31:0] HRDATA,
    output wire        HREADYOUT,
    output wire        HRESP,
    output wire        irq,
    input  wire        can_rx,
    output wire        can_tx
);
`include "parameter.vh"

    can_core #(.CFIFO_DEPTH(CFIFO_DEPTH)) u_can (
        .HCLK(HCLK), .HRESETn(HRESETn), .HSEL(HSEL), .HADDR(HADDR), .HTRANS(HTRANS), .HSIZE(HSIZE), .HBURST(HBURST),
        .HWRITE(HWRITE), .HWDATA(HWDATA), .HREADY(HREADY), .HRDATA(HRDATA), .HREADYOUT(HREADYOUT), .HRESP(HRESP),
        .irq(irq), .can_rx(can_rx), .can_tx(can_tx)
    );
endmodule
