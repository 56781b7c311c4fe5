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
    input  logic         UART1RXD, // serial data to receive
    output logic         UART1TXD  // serial data sent
);
endmodule
