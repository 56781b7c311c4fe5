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
    input  wire          UART1RXD, // serial data to receive
    output wire          UART1TXD  // serial data sent
);
endmodule
