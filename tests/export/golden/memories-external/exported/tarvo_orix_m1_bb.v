// Tarvo_ORIX_M1_Top without its contents, in Verilog: for synthesis and lint of a design that takes the netlist later.
// Compile this file or the subsystem itself, never both.
// verilator lint_off DECLFILENAME
// verilator lint_off UNUSEDSIGNAL
// verilator lint_off UNDRIVEN
(* blackbox *)
module Tarvo_ORIX_M1_Top (
    input  wire          HCLK, // clocks processor, buses and blocks
    input  wire          hwRstn, // resets everything, debug included, active low
    output wire          LOCKUP, // the processor has stopped after a second fault
    output wire          HALTED, // the debugger has stopped the processor
    inout  wire          JTAG_7, // TMS or SWDIO
    inout  wire          JTAG_9, // TCK or SWCLK, clocks the debug port
    inout  wire          JTAG_3, // nTRST, resets the debug port, active low, to be pulled up
    inout  wire          JTAG_4, // driven low
    inout  wire          JTAG_5, // TDI
    inout  wire          JTAG_6, // driven low
    inout  wire          JTAG_8, // driven low
    inout  wire          JTAG_10, // driven low
    inout  wire          JTAG_11, // driven low
    inout  wire          JTAG_12, // driven low
    inout  wire          JTAG_13, // TDO
    inout  wire          JTAG_14, // driven low
    inout  wire          JTAG_15, // nSRST, resets everything but debug; left open, it can hold the subsystem in reset for ever, active low, to be pulled up
    inout  wire          JTAG_16, // driven low
    inout  wire          JTAG_17, // not connected
    inout  wire          JTAG_18, // driven low
    input  wire  [31:0]  EXTFLASH0HRDATA, // data read, of EXTFLASH
    input  wire          EXTFLASH0HREADYOUT, // the slave has finished, of EXTFLASH
    input  wire  [1:0]   EXTFLASH0HRESP, // response; any value but 0 is an error, of EXTFLASH
    output wire  [1:0]   EXTFLASH0HTRANS, // kind of the transfer, of EXTFLASH
    output wire  [2:0]   EXTFLASH0HBURST, // kind of the burst, of EXTFLASH
    output wire  [3:0]   EXTFLASH0HPROT, // protection of the transfer, of EXTFLASH
    output wire  [2:0]   EXTFLASH0HSIZE, // size of the transfer, of EXTFLASH
    output wire          EXTFLASH0HWRITE, // 1 writes, of EXTFLASH
    output wire          EXTFLASH0HREADYMUX, // the transfer before has finished, of EXTFLASH
    output wire  [3:0]   EXTFLASH0HMASTER, // number of the master, of EXTFLASH
    output wire          EXTFLASH0HMASTLOCK, // the transfer is locked, of EXTFLASH
    output wire  [31:0]  EXTFLASH0HADDR, // address, of EXTFLASH
    output wire  [31:0]  EXTFLASH0HWDATA, // data written, of EXTFLASH
    output wire          EXTFLASH0HSEL, // the address is one of the port, of EXTFLASH
    output wire          EXTFLASH0HCLK, // clock of the port, of EXTFLASH
    output wire          EXTFLASH0HRESET, // reset of the port, of EXTFLASH, active low
    input  wire  [31:0]  EXTSRAM0HRDATA, // data read, of EXTSRAM
    input  wire          EXTSRAM0HREADYOUT, // the slave has finished, of EXTSRAM
    input  wire  [1:0]   EXTSRAM0HRESP, // response; any value but 0 is an error, of EXTSRAM
    output wire  [1:0]   EXTSRAM0HTRANS, // kind of the transfer, of EXTSRAM
    output wire  [2:0]   EXTSRAM0HBURST, // kind of the burst, of EXTSRAM
    output wire  [3:0]   EXTSRAM0HPROT, // protection of the transfer, of EXTSRAM
    output wire  [2:0]   EXTSRAM0HSIZE, // size of the transfer, of EXTSRAM
    output wire          EXTSRAM0HWRITE, // 1 writes, of EXTSRAM
    output wire          EXTSRAM0HREADYMUX, // the transfer before has finished, of EXTSRAM
    output wire  [3:0]   EXTSRAM0HMASTER, // number of the master, of EXTSRAM
    output wire          EXTSRAM0HMASTLOCK, // the transfer is locked, of EXTSRAM
    output wire  [31:0]  EXTSRAM0HADDR, // address, of EXTSRAM
    output wire  [31:0]  EXTSRAM0HWDATA, // data written, of EXTSRAM
    output wire          EXTSRAM0HSEL, // the address is one of the port, of EXTSRAM
    output wire          EXTSRAM0HCLK, // clock of the port, of EXTSRAM
    output wire          EXTSRAM0HRESET, // reset of the port, of EXTSRAM, active low
    input  wire          UART0RXD, // serial data to receive
    output wire          UART0TXD  // serial data sent
);
endmodule
