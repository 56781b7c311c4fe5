// Where a design is cut so that two of them can be compared by logic alone. Cells that both designs have by the
// same name are taken out, and what they drive counts as unknown but the same in both.

// One bit of state. Its D holds the whole of what happens in a step, so that clock, enable and resets are compared
// as well.
(* blackbox *)
module STATE (output Q, input D);
    parameter INIT = 1'bx;
endmodule

// What a tri-state driver does to its pin.
(* blackbox, keep *)
module PIN_DRIVER (input I, input OE);
endmodule

// A block RAM as TV_RAMB_SDP has it.
(* blackbox *)
module RAM (
    output [31:0] RDATA, input RC, input REN, input [13:0] RADDR,
    input WC, input [3:0] WEN, input [13:0] WADDR, input [31:0] WDATA
);
    parameter [16383:0] INIT = {16384{1'bx}};
    parameter [31:0] RD_INIT = {32{1'bx}};
    parameter RD_WIDTH = 32;
    parameter WR_WIDTH = 32;
    parameter [0:0] RD_NEG = 1'b0;
    parameter [0:0] WR_NEG = 1'b0;
endmodule

// Distributed RAM as TV_RAMD has it.
(* blackbox *)
module SMALL_RAM (output [3:0] RDATA, input [3:0] RADDR, input C, input WE, input [3:0] WADDR, input [3:0] WDATA);
    parameter [63:0] INIT = {64{1'bx}};
    parameter [0:0] NEG = 1'b0;
endmodule
