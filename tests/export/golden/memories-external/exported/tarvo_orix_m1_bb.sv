// Tarvo_ORIX_M1_Top without its contents, in SystemVerilog: for synthesis and lint of a design that takes the netlist later.
// Compile this file or the subsystem itself, never both.
// verilator lint_off DECLFILENAME
// verilator lint_off UNUSEDSIGNAL
// verilator lint_off UNDRIVEN
(* blackbox *)
module Tarvo_ORIX_M1_Top (
    input  logic         HCLK, // clocks processor, buses and blocks
    input  logic         hwRstn, // resets everything, debug included, active low
    output logic         LOCKUP, // the processor has stopped after a second fault
    output logic         HALTED, // the debugger has stopped the processor
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
    input  logic [31:0]  EXTFLASH0HRDATA, // data read, of EXTFLASH
    input  logic         EXTFLASH0HREADYOUT, // the slave has finished, of EXTFLASH
    input  logic [1:0]   EXTFLASH0HRESP, // response; any value but 0 is an error, of EXTFLASH
    output logic [1:0]   EXTFLASH0HTRANS, // kind of the transfer, of EXTFLASH
    output logic [2:0]   EXTFLASH0HBURST, // kind of the burst, of EXTFLASH
    output logic [3:0]   EXTFLASH0HPROT, // protection of the transfer, of EXTFLASH
    output logic [2:0]   EXTFLASH0HSIZE, // size of the transfer, of EXTFLASH
    output logic         EXTFLASH0HWRITE, // 1 writes, of EXTFLASH
    output logic         EXTFLASH0HREADYMUX, // the transfer before has finished, of EXTFLASH
    output logic [3:0]   EXTFLASH0HMASTER, // number of the master, of EXTFLASH
    output logic         EXTFLASH0HMASTLOCK, // the transfer is locked, of EXTFLASH
    output logic [31:0]  EXTFLASH0HADDR, // address, of EXTFLASH
    output logic [31:0]  EXTFLASH0HWDATA, // data written, of EXTFLASH
    output logic         EXTFLASH0HSEL, // the address is one of the port, of EXTFLASH
    output logic         EXTFLASH0HCLK, // clock of the port, of EXTFLASH
    output logic         EXTFLASH0HRESET, // reset of the port, of EXTFLASH, active low
    input  logic [31:0]  EXTSRAM0HRDATA, // data read, of EXTSRAM
    input  logic         EXTSRAM0HREADYOUT, // the slave has finished, of EXTSRAM
    input  logic [1:0]   EXTSRAM0HRESP, // response; any value but 0 is an error, of EXTSRAM
    output logic [1:0]   EXTSRAM0HTRANS, // kind of the transfer, of EXTSRAM
    output logic [2:0]   EXTSRAM0HBURST, // kind of the burst, of EXTSRAM
    output logic [3:0]   EXTSRAM0HPROT, // protection of the transfer, of EXTSRAM
    output logic [2:0]   EXTSRAM0HSIZE, // size of the transfer, of EXTSRAM
    output logic         EXTSRAM0HWRITE, // 1 writes, of EXTSRAM
    output logic         EXTSRAM0HREADYMUX, // the transfer before has finished, of EXTSRAM
    output logic [3:0]   EXTSRAM0HMASTER, // number of the master, of EXTSRAM
    output logic         EXTSRAM0HMASTLOCK, // the transfer is locked, of EXTSRAM
    output logic [31:0]  EXTSRAM0HADDR, // address, of EXTSRAM
    output logic [31:0]  EXTSRAM0HWDATA, // data written, of EXTSRAM
    output logic         EXTSRAM0HSEL, // the address is one of the port, of EXTSRAM
    output logic         EXTSRAM0HCLK, // clock of the port, of EXTSRAM
    output logic         EXTSRAM0HRESET, // reset of the port, of EXTSRAM, active low
    input  logic         UART0RXD, // serial data to receive
    output logic         UART0TXD  // serial data sent
);
endmodule
