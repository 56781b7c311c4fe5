// From gates, flip-flops and latches of one bit to the primitives. INIT is set where the design gives a value.

`define CLOCKED(PRIMITIVE, EDGE, PORTS) \
    parameter _TECHMAP_WIREINIT_Q_ = 1'bx; \
    wire _TECHMAP_REMOVEINIT_Q_ = 1'b1; \
    generate \
        if (_TECHMAP_WIREINIT_Q_ === 1'bx && EDGE) \
            PRIMITIVE _TECHMAP_REPLACE_ PORTS; \
        else if (_TECHMAP_WIREINIT_Q_ === 1'bx) \
            PRIMITIVE #(.NEG(1'b1)) _TECHMAP_REPLACE_ PORTS; \
        else if (EDGE) \
            PRIMITIVE #(.INIT(_TECHMAP_WIREINIT_Q_)) _TECHMAP_REPLACE_ PORTS; \
        else \
            PRIMITIVE #(.INIT(_TECHMAP_WIREINIT_Q_), .NEG(1'b1)) _TECHMAP_REPLACE_ PORTS; \
    endgenerate

module \$_DFF_P_ (C, D, Q);
    input C, D;
    output Q;
    `CLOCKED(TV_DFF, 1, (.Q(Q), .C(C), .D(D)))
endmodule

module \$_DFF_N_ (C, D, Q);
    input C, D;
    output Q;
    `CLOCKED(TV_DFF, 0, (.Q(Q), .C(C), .D(D)))
endmodule

module \$_DFFE_PP_ (C, E, D, Q);
    input C, E, D;
    output Q;
    `CLOCKED(TV_DFFE, 1, (.Q(Q), .C(C), .CE(E), .D(D)))
endmodule

module \$_DFFE_NP_ (C, E, D, Q);
    input C, E, D;
    output Q;
    `CLOCKED(TV_DFFE, 0, (.Q(Q), .C(C), .CE(E), .D(D)))
endmodule

module \$_SDFF_PP0_ (C, R, D, Q);
    input C, R, D;
    output Q;
    `CLOCKED(TV_DFFR, 1, (.Q(Q), .C(C), .R(R), .D(D)))
endmodule

module \$_SDFF_NP0_ (C, R, D, Q);
    input C, R, D;
    output Q;
    `CLOCKED(TV_DFFR, 0, (.Q(Q), .C(C), .R(R), .D(D)))
endmodule

module \$_SDFFE_PP0P_ (C, R, E, D, Q);
    input C, R, E, D;
    output Q;
    `CLOCKED(TV_DFFRE, 1, (.Q(Q), .C(C), .R(R), .CE(E), .D(D)))
endmodule

module \$_SDFFE_NP0P_ (C, R, E, D, Q);
    input C, R, E, D;
    output Q;
    `CLOCKED(TV_DFFRE, 0, (.Q(Q), .C(C), .R(R), .CE(E), .D(D)))
endmodule

module \$_SDFF_PP1_ (C, R, D, Q);
    input C, R, D;
    output Q;
    `CLOCKED(TV_DFFS, 1, (.Q(Q), .C(C), .S(R), .D(D)))
endmodule

module \$_SDFF_NP1_ (C, R, D, Q);
    input C, R, D;
    output Q;
    `CLOCKED(TV_DFFS, 0, (.Q(Q), .C(C), .S(R), .D(D)))
endmodule

module \$_SDFFE_PP1P_ (C, R, E, D, Q);
    input C, R, E, D;
    output Q;
    `CLOCKED(TV_DFFSE, 1, (.Q(Q), .C(C), .S(R), .CE(E), .D(D)))
endmodule

module \$_SDFFE_NP1P_ (C, R, E, D, Q);
    input C, R, E, D;
    output Q;
    `CLOCKED(TV_DFFSE, 0, (.Q(Q), .C(C), .S(R), .CE(E), .D(D)))
endmodule

module \$_DFF_PP0_ (C, R, D, Q);
    input C, R, D;
    output Q;
    `CLOCKED(TV_DFFC, 1, (.Q(Q), .C(C), .CLR(R), .D(D)))
endmodule

module \$_DFF_NP0_ (C, R, D, Q);
    input C, R, D;
    output Q;
    `CLOCKED(TV_DFFC, 0, (.Q(Q), .C(C), .CLR(R), .D(D)))
endmodule

module \$_DFFE_PP0P_ (C, R, E, D, Q);
    input C, R, E, D;
    output Q;
    `CLOCKED(TV_DFFCE, 1, (.Q(Q), .C(C), .CLR(R), .CE(E), .D(D)))
endmodule

module \$_DFFE_NP0P_ (C, R, E, D, Q);
    input C, R, E, D;
    output Q;
    `CLOCKED(TV_DFFCE, 0, (.Q(Q), .C(C), .CLR(R), .CE(E), .D(D)))
endmodule

module \$_DFF_PP1_ (C, R, D, Q);
    input C, R, D;
    output Q;
    `CLOCKED(TV_DFFP, 1, (.Q(Q), .C(C), .PRE(R), .D(D)))
endmodule

module \$_DFF_NP1_ (C, R, D, Q);
    input C, R, D;
    output Q;
    `CLOCKED(TV_DFFP, 0, (.Q(Q), .C(C), .PRE(R), .D(D)))
endmodule

module \$_DFFE_PP1P_ (C, R, E, D, Q);
    input C, R, E, D;
    output Q;
    `CLOCKED(TV_DFFPE, 1, (.Q(Q), .C(C), .PRE(R), .CE(E), .D(D)))
endmodule

module \$_DFFE_NP1P_ (C, R, E, D, Q);
    input C, R, E, D;
    output Q;
    `CLOCKED(TV_DFFPE, 0, (.Q(Q), .C(C), .PRE(R), .CE(E), .D(D)))
endmodule

module \$_DFFSR_PPP_ (C, R, S, D, Q);
    input C, R, S, D;
    output Q;
    `CLOCKED(TV_DFFCP, 1, (.Q(Q), .C(C), .CLR(R), .PRE(S), .D(D)))
endmodule

module \$_DFFSR_NPP_ (C, R, S, D, Q);
    input C, R, S, D;
    output Q;
    `CLOCKED(TV_DFFCP, 0, (.Q(Q), .C(C), .CLR(R), .PRE(S), .D(D)))
endmodule

module \$_DFFSRE_PPPP_ (C, R, S, E, D, Q);
    input C, R, S, E, D;
    output Q;
    `CLOCKED(TV_DFFCPE, 1, (.Q(Q), .C(C), .CLR(R), .PRE(S), .CE(E), .D(D)))
endmodule

module \$_DFFSRE_NPPP_ (C, R, S, E, D, Q);
    input C, R, S, E, D;
    output Q;
    `CLOCKED(TV_DFFCPE, 0, (.Q(Q), .C(C), .CLR(R), .PRE(S), .CE(E), .D(D)))
endmodule

module \$_DLATCH_P_ (E, D, Q);
    input E, D;
    output Q;
    parameter _TECHMAP_WIREINIT_Q_ = 1'bx;
    wire _TECHMAP_REMOVEINIT_Q_ = 1'b1;
    generate
        if (_TECHMAP_WIREINIT_Q_ === 1'bx)
            TV_DL _TECHMAP_REPLACE_ (.Q(Q), .G(E), .D(D));
        else
            TV_DL #(.INIT(_TECHMAP_WIREINIT_Q_)) _TECHMAP_REPLACE_ (.Q(Q), .G(E), .D(D));
    endgenerate
endmodule

module \$_TBUF_ (A, E, Y);
    input A, E;
    output Y;
    TV_TBUF _TECHMAP_REPLACE_ (.O(Y), .I(A), .OE(E));
endmodule

module \$lut (A, Y);
    parameter WIDTH = 0;
    parameter LUT = 0;
    input [WIDTH-1:0] A;
    output Y;
    generate
        if (WIDTH == 1)
            TV_LUT1 #(.INIT(LUT[1:0])) _TECHMAP_REPLACE_ (.O(Y), .I0(A[0]));
        else if (WIDTH == 2)
            TV_LUT2 #(.INIT(LUT[3:0])) _TECHMAP_REPLACE_ (.O(Y), .I0(A[0]), .I1(A[1]));
        else if (WIDTH == 3)
            TV_LUT3 #(.INIT(LUT[7:0])) _TECHMAP_REPLACE_ (.O(Y), .I0(A[0]), .I1(A[1]), .I2(A[2]));
        else if (WIDTH == 4)
            TV_LUT4 #(.INIT(LUT[15:0])) _TECHMAP_REPLACE_ (.O(Y), .I0(A[0]), .I1(A[1]), .I2(A[2]), .I3(A[3]));
        else
            wire _TECHMAP_FAIL_ = 1'b1;
    endgenerate
endmodule
