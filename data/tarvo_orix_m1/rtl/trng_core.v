// True random number generator with an APB slave port: a stand-in, since the block is licensed
// separately and its noise source is made of cells of the device.  It is a black box of the netlist; in a simulation it
// answers that it is not there.
`include "define.vh"

(* blackbox *)
module trng_core (
    input  wire        PCLK,
    input  wire        PRESETn,
    input  wire        PSEL,
    input  wire        PENABLE,
    input  wire        PWRITE,
    input  wire [11:0] PADDR,
    input  wire [31:0] PWDATA,
    output wire [31:0] PRDATA,
    output wire        PREADY,
    output wire        PSLVERR,
    output wire        irq
);
    wire   absent_known = ~PWRITE & (PADDR[11:2] == 10'd0);
    assign PRDATA  = absent_known ? `ORIX_ABSENT : 32'd0;
    assign PREADY  = 1'b1;
    assign PSLVERR = ~absent_known;
    assign irq     = 1'b0;
endmodule
