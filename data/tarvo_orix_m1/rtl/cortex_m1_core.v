// Processor core: declaration only.  The Cortex-M1 is licensed separately from this subsystem, so the netlist keeps it
// as a black box and the licensed implementation is linked in its place.
//
//   NUM_IRQ      number of interrupt inputs in use: 1, 8, 16 or 32
//   OS           1: operating system extension (system timer, supervisor call)
//   SMALL_MUL    1: small, slow multiplier
//   BE8          1: big-endian data
//   DEBUG        1: debug logic; JTAG and SW choose its ports, SMALL_DEBUG the reduced set of breakpoints
//   ITCM_LA_EN   1: the ITCM stands at its lower alias, 0x00000000, after reset
//   ITCM_UA_EN   1: the ITCM stands at its upper alias, 0x10000000, after reset
//   ITCMSIZE     size code of the ITCM: 0 none, 1 is 1 KB, every step doubles it
//   DTCMSIZE     size code of the DTCM, in the same way
//
// The core serves ITCM and DTCM addresses over their own interfaces, which never wait, and everything else over AHB-Lite.
(* blackbox *)
module CortexM1Core #(
    parameter       NUM_IRQ     = 32,
    parameter       OS          = 1,
    parameter       SMALL_MUL   = 0,
    parameter       BE8         = 0,
    parameter       DEBUG       = 0,
    parameter       JTAG        = 0,
    parameter       SW          = 0,
    parameter       SMALL_DEBUG = 0,
    parameter       ITCM_LA_EN  = 1,
    parameter       ITCM_UA_EN  = 0,
    parameter [3:0] ITCMSIZE    = 4'b0110,
    parameter [3:0] DTCMSIZE    = 4'b0110
) (
    input  wire        HCLK,
    input  wire        PORRESETn,     // resets everything, debug included
    input  wire        SYSRESETn,     // resets everything but debug
    output wire        SYSRESETREQ,
    output wire        LOCKUP,
    output wire        HALTED,
    input  wire        NMI,
    input  wire [31:0] IRQ,

    // AHB-Lite master
    output wire [31:0] HADDR,
    output wire [1:0]  HTRANS,
    output wire [2:0]  HBURST,
    output wire [3:0]  HPROT,
    output wire [2:0]  HSIZE,
    output wire        HWRITE,
    output wire        HMASTLOCK,
    output wire [31:0] HWDATA,
    input  wire [31:0] HRDATA,
    input  wire        HREADY,
    input  wire        HRESP,

    // tightly coupled memories: word addresses, read data after the clock edge
    output wire        ITCMEN,
    output wire [3:0]  ITCMWE,
    output wire [17:0] ITCMADDR,
    output wire [31:0] ITCMWDATA,
    input  wire [31:0] ITCMRDATA,
    output wire        DTCMEN,
    output wire [3:0]  DTCMWE,
    output wire [17:0] DTCMADDR,
    output wire [31:0] DTCMWDATA,
    input  wire [31:0] DTCMRDATA,

    // the debugger's access to them: held until ready; the read data comes back on ITCMRDATA and DTCMRDATA
    output wire        DBGITCMEN,
    output wire [3:0]  DBGITCMWE,
    output wire [17:0] DBGITCMADDR,
    output wire [31:0] DBGITCMWDATA,
    input  wire        DBGITCMREADY,
    output wire        DBGDTCMEN,
    output wire [3:0]  DBGDTCMWE,
    output wire [17:0] DBGDTCMADDR,
    output wire [31:0] DBGDTCMWDATA,
    input  wire        DBGDTCMREADY,

    // debug port
    input  wire        nTRST,
    input  wire        SWCLKTCK,
    input  wire        SWDITMS,
    output wire        SWDO,
    output wire        SWDOEN,
    input  wire        TDI,
    output wire        TDO,
    output wire        TDOEN
);
endmodule
