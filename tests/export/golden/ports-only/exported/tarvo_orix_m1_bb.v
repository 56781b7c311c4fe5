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
    input  wire  [31:0]  AHB1HRDATA, // data read, of AHB1
    input  wire          AHB1HREADYOUT, // the slave has finished, of AHB1
    input  wire  [1:0]   AHB1HRESP, // response; any value but 0 is an error, of AHB1
    output wire  [1:0]   AHB1HTRANS, // kind of the transfer, of AHB1
    output wire  [2:0]   AHB1HBURST, // kind of the burst, of AHB1
    output wire  [3:0]   AHB1HPROT, // protection of the transfer, of AHB1
    output wire  [2:0]   AHB1HSIZE, // size of the transfer, of AHB1
    output wire          AHB1HWRITE, // 1 writes, of AHB1
    output wire          AHB1HREADYMUX, // the transfer before has finished, of AHB1
    output wire  [3:0]   AHB1HMASTER, // number of the master, of AHB1
    output wire          AHB1HMASTLOCK, // the transfer is locked, of AHB1
    output wire  [31:0]  AHB1HADDR, // address, of AHB1
    output wire  [31:0]  AHB1HWDATA, // data written, of AHB1
    output wire          AHB1HSEL, // the address is one of the port, of AHB1
    output wire          AHB1HCLK, // clock of the port, of AHB1
    output wire          AHB1HRESET, // reset of the port, of AHB1, active low
    output wire  [31:0]  APB16PADDR, // address, of APB16
    output wire          APB16PENABLE, // second and further cycles of the transfer, of APB16
    output wire          APB16PWRITE, // 1 writes, of APB16
    output wire  [3:0]   APB16PSTRB, // bytes that are written, of APB16
    output wire  [2:0]   APB16PPROT, // protection of the transfer, of APB16
    output wire  [31:0]  APB16PWDATA, // data written, of APB16
    output wire          APB16PSEL, // the address is one of the port, of APB16
    input  wire  [31:0]  APB16PRDATA, // data read, of APB16
    input  wire          APB16PREDADY, // the slave has finished, of APB16
    input  wire          APB16PSLVERR, // the transfer has failed, of APB16
    output wire          APB16PCLK, // clock of the port, of APB16
    output wire          APB16PRESET  // reset of the port, of APB16, active low
);
endmodule
