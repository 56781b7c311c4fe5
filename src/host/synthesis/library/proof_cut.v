// From flip-flops, tri-state drivers and RAMs to the cells of proof_boundary.v.
//
// A flip-flop becomes state that moves in steps: in a step in which its clock is high it takes the new value, with the
// clock low it stays, and for a falling edge the other way round. An asynchronous reset overrides what is seen of it.
// This is less than time, but the same for both designs: a step with any mixture of clocks is compared.

`define STEP(TICK, SEEN) \
    parameter _TECHMAP_WIREINIT_Q_ = 1'bx; \
    wire _TECHMAP_REMOVEINIT_Q_ = 1'b1; \
    wire q; \
    STATE #(.INIT(_TECHMAP_WIREINIT_Q_)) _TECHMAP_REPLACE_ (.Q(q), .D(TICK ? D : Q)); \
    assign Q = SEEN;

module \$_DFF_P_ (input C, D, output Q);
    `STEP(C, q)
endmodule

module \$_DFF_N_ (input C, D, output Q);
    `STEP(!C, q)
endmodule

module \$_DFF_PP0_ (input C, R, D, output Q);
    `STEP(C, q & !R)
endmodule

module \$_DFF_PP1_ (input C, R, D, output Q);
    `STEP(C, q | R)
endmodule

module \$_DFF_NP0_ (input C, R, D, output Q);
    `STEP(!C, q & !R)
endmodule

module \$_DFF_NP1_ (input C, R, D, output Q);
    `STEP(!C, q | R)
endmodule

module TV_TBUF (output O, input I, OE);
    PIN_DRIVER _TECHMAP_REPLACE_ (.I(I & OE), .OE(OE));
endmodule

// Data that is not written does not matter.
module TV_RAMB_SDP (output [31:0] RDATA, input RC, REN, input [13:0] RADDR, input WC, input [3:0] WEN,
                    input [13:0] WADDR, input [31:0] WDATA);
    parameter [16383:0] INIT = {16384{1'bx}};
    parameter [31:0] RD_INIT = {32{1'bx}};
    parameter RD_WIDTH = 32;
    parameter WR_WIDTH = 32;
    parameter [0:0] RD_NEG = 1'b0;
    parameter [0:0] WR_NEG = 1'b0;

    wire [31:0] written = WR_WIDTH < 8 ? {32{WEN[0]}} : {{8{WEN[3]}}, {8{WEN[2]}}, {8{WEN[1]}}, {8{WEN[0]}}};
    RAM #(.INIT(INIT), .RD_INIT(RD_INIT), .RD_WIDTH(RD_WIDTH), .WR_WIDTH(WR_WIDTH), .RD_NEG(RD_NEG), .WR_NEG(WR_NEG))
        _TECHMAP_REPLACE_ (.RDATA(RDATA), .RC(RC), .REN(REN), .RADDR(RADDR), .WC(WC), .WEN(WEN), .WADDR(WADDR),
                           .WDATA(WDATA & written));
endmodule

module TV_RAMD (output [3:0] RDATA, input [3:0] RADDR, input C, WE, input [3:0] WADDR, WDATA);
    parameter [63:0] INIT = {64{1'bx}};
    parameter [0:0] NEG = 1'b0;

    SMALL_RAM #(.INIT(INIT), .NEG(NEG))
        _TECHMAP_REPLACE_ (.RDATA(RDATA), .RADDR(RADDR), .C(C), .WE(WE), .WADDR(WADDR & {4{WE}}), .WDATA(WDATA & {4{WE}}));
endmodule
