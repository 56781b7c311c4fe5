// Sums, differences and the comparisons made of them become chains of carry cells. Those of few bits stay for
// the tables, which need no more cells for them.

(* techmap_celltype = "$alu" *)
module _80_tarvo_alu (A, B, CI, BI, X, Y, CO);
    parameter A_SIGNED = 0;
    parameter B_SIGNED = 0;
    parameter A_WIDTH = 1;
    parameter B_WIDTH = 1;
    parameter Y_WIDTH = 1;
    parameter _TECHMAP_CONSTMSK_BI_ = 0;
    parameter _TECHMAP_CONSTVAL_BI_ = 0;
    input [A_WIDTH-1:0] A;
    input [B_WIDTH-1:0] B;
    input CI, BI;
    output [Y_WIDTH-1:0] X, Y, CO;

    wire _TECHMAP_FAIL_ = Y_WIDTH < 4 && A_WIDTH > 0 && B_WIDTH > 0;

    // A comparison with a small constant may leave an operand no bits at all: then it is 0.
    wire [Y_WIDTH-1:0] a, b;
    generate
        if (A_WIDTH > 0)
            \$pos #(.A_SIGNED(A_SIGNED), .A_WIDTH(A_WIDTH), .Y_WIDTH(Y_WIDTH)) extended_a (.A(A), .Y(a));
        else
            assign a = {Y_WIDTH{1'b0}};
        if (B_WIDTH > 0)
            \$pos #(.A_SIGNED(B_SIGNED), .A_WIDTH(B_WIDTH), .Y_WIDTH(Y_WIDTH)) extended_b (.A(B), .Y(b));
        else
            assign b = {Y_WIDTH{1'b0}};
    endgenerate

    // A difference that is always one needs no inverters.
    localparam INVERTS = _TECHMAP_CONSTMSK_BI_ && _TECHMAP_CONSTVAL_BI_;
    wire [Y_WIDTH-1:0] operand = INVERTS ? b : b ^ {Y_WIDTH{BI}};
    wire [Y_WIDTH:0] carry;
    assign carry[0] = CI;
    assign CO = carry[Y_WIDTH:1];
    assign X = a ^ b ^ {Y_WIDTH{BI}};

    genvar i;
    generate
        for (i = 0; i < Y_WIDTH; i = i + 1) begin : bits
            if (INVERTS)
                TV_CARRY #(.SUB(1'b1)) one (.S(Y[i]), .CO(carry[i + 1]), .A(a[i]), .B(operand[i]), .CI(carry[i]));
            else
                TV_CARRY one (.S(Y[i]), .CO(carry[i + 1]), .A(a[i]), .B(operand[i]), .CI(carry[i]));
        end
    endgenerate
endmodule
