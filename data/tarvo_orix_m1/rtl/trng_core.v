// True random number generator with an APB slave port: declaration only, a black box of the netlist, since its noise
// source is made of cells of the device.
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
endmodule
