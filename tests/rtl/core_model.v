// Stands in for the processor core in the testbench of the top: the same ports, driven from tasks of tb_top.
module CortexM1Core #(
    parameter       NUM_IRQ     = 0,
    parameter       OS          = 9,
    parameter       SMALL_MUL   = 9,
    parameter       BE8         = 9,
    parameter       DEBUG       = 9,
    parameter       JTAG        = 9,
    parameter       SW          = 9,
    parameter       SMALL_DEBUG = 9,
    parameter       ITCM_LA_EN  = 9,
    parameter       ITCM_UA_EN  = 9,
    parameter [3:0] ITCMSIZE    = 4'b1111,
    parameter [3:0] DTCMSIZE    = 4'b1111
) (
    input  wire        HCLK,
    input  wire        PORRESETn,
    input  wire        SYSRESETn,
    output reg         SYSRESETREQ,
    output reg         LOCKUP,
    output reg         HALTED,
    input  wire        NMI,
    input  wire [31:0] IRQ,
    output reg  [31:0] HADDR,
    output reg  [1:0]  HTRANS,
    output reg  [2:0]  HBURST,
    output reg  [3:0]  HPROT,
    output reg  [2:0]  HSIZE,
    output reg         HWRITE,
    output reg         HMASTLOCK,
    output reg  [31:0] HWDATA,
    input  wire [31:0] HRDATA,
    input  wire        HREADY,
    input  wire        HRESP,
    output reg         ITCMEN,
    output reg  [3:0]  ITCMWE,
    output reg  [17:0] ITCMADDR,
    output reg  [31:0] ITCMWDATA,
    input  wire [31:0] ITCMRDATA,
    output reg         DTCMEN,
    output reg  [3:0]  DTCMWE,
    output reg  [17:0] DTCMADDR,
    output reg  [31:0] DTCMWDATA,
    input  wire [31:0] DTCMRDATA,
    output reg         DBGITCMEN,
    output reg  [3:0]  DBGITCMWE,
    output reg  [17:0] DBGITCMADDR,
    output reg  [31:0] DBGITCMWDATA,
    input  wire        DBGITCMREADY,
    output reg         DBGDTCMEN,
    output reg  [3:0]  DBGDTCMWE,
    output reg  [17:0] DBGDTCMADDR,
    output reg  [31:0] DBGDTCMWDATA,
    input  wire        DBGDTCMREADY,
    input  wire        nTRST,
    input  wire        SWCLKTCK,
    input  wire        SWDITMS,
    output reg         SWDO,
    output reg         SWDOEN,
    input  wire        TDI,
    output reg         TDO,
    output reg         TDOEN
);
    initial begin
        {SYSRESETREQ, LOCKUP, HALTED, HTRANS, HBURST, HSIZE, HWRITE, HMASTLOCK} = 0;
        HPROT = 4'b0011;
        {HADDR, HWDATA} = 0;
        {ITCMEN, ITCMWE, ITCMADDR, ITCMWDATA, DTCMEN, DTCMWE, DTCMADDR, DTCMWDATA} = 0;
        {DBGITCMEN, DBGITCMWE, DBGITCMADDR, DBGITCMWDATA, DBGDTCMEN, DBGDTCMWE, DBGDTCMADDR, DBGDTCMWDATA} = 0;
        {SWDO, SWDOEN, TDO, TDOEN} = 0;
    end
endmodule
