// CAN 2.0 and CAN FD controller with an AHB-Lite slave port: a stand-in, since the block is licensed
// separately.  It is a black box of the netlist; in a simulation it answers that it is not there, and its pins are quiet.
//   CFIFO_DEPTH  words of the message buffer
`include "define.vh"

(* blackbox *)
module can_core #(
    parameter CFIFO_DEPTH = 256
) (
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
    `ORIX_AHB_ABSENT

    assign irq    = 1'b0;
    assign can_tx = 1'b1;   // recessive
endmodule
