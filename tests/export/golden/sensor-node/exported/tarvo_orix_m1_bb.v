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
    input  wire  [3:0]   EXTINT, // interrupts 12 (bit 0) to 15 (bit 3), requested while high
    inout  wire  [15:0]  GPIO, // pins
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
    input  wire          UART0RXD, // serial data to receive
    output wire          UART0TXD, // serial data sent
    input  wire          UART1RXD, // serial data to receive
    output wire          UART1TXD, // serial data sent
    input  wire          TIMER0EXTIN, // gate or events of the timer
    input  wire          RTCSRCCLK, // source clock of the seconds, sampled with HCLK and slower than HCLK / 4
    inout  wire          SCL, // clock of the bus, to be pulled up
    inout  wire          SDA, // data of the bus, to be pulled up
    output wire          MOSI, // data to the slave
    input  wire          MISO, // data from the slave
    output wire          SCLK, // clock of the slave
    output wire          NSS, // slave select, active low
    output wire  [31:0]  APB1PADDR, // address, of APB1
    output wire          APB1PENABLE, // second and further cycles of the transfer, of APB1
    output wire          APB1PWRITE, // 1 writes, of APB1
    output wire  [3:0]   APB1PSTRB, // bytes that are written, of APB1
    output wire  [2:0]   APB1PPROT, // protection of the transfer, of APB1
    output wire  [31:0]  APB1PWDATA, // data written, of APB1
    output wire          APB1PSEL, // the address is one of the port, of APB1
    input  wire  [31:0]  APB1PRDATA, // data read, of APB1
    input  wire          APB1PREDADY, // the slave has finished, of APB1
    input  wire          APB1PSLVERR, // the transfer has failed, of APB1
    output wire          APB1PCLK, // clock of the port, of APB1
    output wire          APB1PRESET, // reset of the port, of APB1, active low
    output wire  [31:0]  APB2PADDR, // address, of APB2
    output wire          APB2PENABLE, // second and further cycles of the transfer, of APB2
    output wire          APB2PWRITE, // 1 writes, of APB2
    output wire  [3:0]   APB2PSTRB, // bytes that are written, of APB2
    output wire  [2:0]   APB2PPROT, // protection of the transfer, of APB2
    output wire  [31:0]  APB2PWDATA, // data written, of APB2
    output wire          APB2PSEL, // the address is one of the port, of APB2
    input  wire  [31:0]  APB2PRDATA, // data read, of APB2
    input  wire          APB2PREDADY, // the slave has finished, of APB2
    input  wire          APB2PSLVERR, // the transfer has failed, of APB2
    output wire          APB2PCLK, // clock of the port, of APB2
    output wire          APB2PRESET  // reset of the port, of APB2, active low
);
endmodule
