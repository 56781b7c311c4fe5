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
    input  logic [31:0]  AHB1HRDATA, // data read, of AHB1
    input  logic         AHB1HREADYOUT, // the slave has finished, of AHB1
    input  logic [1:0]   AHB1HRESP, // response; any value but 0 is an error, of AHB1
    output logic [1:0]   AHB1HTRANS, // kind of the transfer, of AHB1
    output logic [2:0]   AHB1HBURST, // kind of the burst, of AHB1
    output logic [3:0]   AHB1HPROT, // protection of the transfer, of AHB1
    output logic [2:0]   AHB1HSIZE, // size of the transfer, of AHB1
    output logic         AHB1HWRITE, // 1 writes, of AHB1
    output logic         AHB1HREADYMUX, // the transfer before has finished, of AHB1
    output logic [3:0]   AHB1HMASTER, // number of the master, of AHB1
    output logic         AHB1HMASTLOCK, // the transfer is locked, of AHB1
    output logic [31:0]  AHB1HADDR, // address, of AHB1
    output logic [31:0]  AHB1HWDATA, // data written, of AHB1
    output logic         AHB1HSEL, // the address is one of the port, of AHB1
    output logic         AHB1HCLK, // clock of the port, of AHB1
    output logic         AHB1HRESET, // reset of the port, of AHB1, active low
    output logic [31:0]  APB16PADDR, // address, of APB16
    output logic         APB16PENABLE, // second and further cycles of the transfer, of APB16
    output logic         APB16PWRITE, // 1 writes, of APB16
    output logic [3:0]   APB16PSTRB, // bytes that are written, of APB16
    output logic [2:0]   APB16PPROT, // protection of the transfer, of APB16
    output logic [31:0]  APB16PWDATA, // data written, of APB16
    output logic         APB16PSEL, // the address is one of the port, of APB16
    input  logic [31:0]  APB16PRDATA, // data read, of APB16
    input  logic         APB16PREDADY, // the slave has finished, of APB16
    input  logic         APB16PSLVERR, // the transfer has failed, of APB16
    output logic         APB16PCLK, // clock of the port, of APB16
    output logic         APB16PRESET  // reset of the port, of APB16, active low
);
endmodule
