// Multiplexers that choose "not driven" for some of their bits become tri-state drivers bit by bit. All others
// stay as they are.

module \$mux (A, B, S, Y);
    parameter WIDTH = 0;
    parameter [WIDTH-1:0] _TECHMAP_CONSTMSK_A_ = 0;
    parameter [WIDTH-1:0] _TECHMAP_CONSTVAL_A_ = 0;
    parameter [WIDTH-1:0] _TECHMAP_CONSTMSK_B_ = 0;
    parameter [WIDTH-1:0] _TECHMAP_CONSTVAL_B_ = 0;
    input [WIDTH-1:0] A, B;
    input S;
    output [WIDTH-1:0] Y;

    function [WIDTH-1:0] open;
        input [WIDTH-1:0] mask, value;
        integer n;
        for (n = 0; n < WIDTH; n = n + 1)
            open[n] = mask[n] && value[n] === 1'bz;
    endfunction

    localparam [WIDTH-1:0] A_OPEN = open(_TECHMAP_CONSTMSK_A_, _TECHMAP_CONSTVAL_A_);
    localparam [WIDTH-1:0] B_OPEN = open(_TECHMAP_CONSTMSK_B_, _TECHMAP_CONSTVAL_B_);
    wire _TECHMAP_FAIL_ = !(|A_OPEN | |B_OPEN);

    genvar i;
    generate
        for (i = 0; i < WIDTH; i = i + 1) begin : bits
            if (A_OPEN[i] && B_OPEN[i])
                // A driver that is always off: reading the net must not give the constant.
                \$tribuf #(.WIDTH(1)) t (.A(1'b0), .EN(1'b0), .Y(Y[i]));
            else if (A_OPEN[i])
                \$tribuf #(.WIDTH(1)) t (.A(B[i]), .EN(S), .Y(Y[i]));
            else if (B_OPEN[i])
                \$tribuf #(.WIDTH(1)) t (.A(A[i]), .EN(!S), .Y(Y[i]));
            else
                \$mux #(.WIDTH(1)) m (.A(A[i]), .B(B[i]), .S(S), .Y(Y[i]));
        end
    endgenerate
endmodule

// B holds S_WIDTH words, of which the one whose bit of S is set is chosen, and A when none is.
module \$pmux (A, B, S, Y);
    parameter WIDTH = 0;
    parameter S_WIDTH = 0;
    parameter [WIDTH-1:0] _TECHMAP_CONSTMSK_A_ = 0;
    parameter [WIDTH-1:0] _TECHMAP_CONSTVAL_A_ = 0;
    parameter [WIDTH*S_WIDTH-1:0] _TECHMAP_CONSTMSK_B_ = 0;
    parameter [WIDTH*S_WIDTH-1:0] _TECHMAP_CONSTVAL_B_ = 0;
    input [WIDTH-1:0] A;
    input [WIDTH*S_WIDTH-1:0] B;
    input [S_WIDTH-1:0] S;
    output [WIDTH-1:0] Y;

    function [WIDTH*S_WIDTH-1:0] open;
        input [WIDTH*S_WIDTH-1:0] mask, value;
        integer n;
        for (n = 0; n < WIDTH * S_WIDTH; n = n + 1)
            open[n] = mask[n] && value[n] === 1'bz;
    endfunction

    function column;
        input [WIDTH*S_WIDTH-1:0] bits;
        input integer first;
        integer n;
        begin
            column = 1'b0;
            for (n = 0; n < S_WIDTH; n = n + 1)
                column = column | bits[WIDTH * n + first];
        end
    endfunction

    localparam [WIDTH-1:0] A_OPEN = open(_TECHMAP_CONSTMSK_A_, _TECHMAP_CONSTVAL_A_);
    localparam [WIDTH*S_WIDTH-1:0] B_OPEN = open(_TECHMAP_CONSTMSK_B_, _TECHMAP_CONSTVAL_B_);
    wire _TECHMAP_FAIL_ = !(|A_OPEN | |B_OPEN);

    genvar i, j;
    generate
        for (i = 0; i < WIDTH; i = i + 1) begin : bits
            wire [S_WIDTH-1:0] value, opens;
            for (j = 0; j < S_WIDTH; j = j + 1) begin : choice
                assign opens[j] = B_OPEN[WIDTH * j + i] ? S[j] : 1'b0;
                assign value[j] = B_OPEN[WIDTH * j + i] ? 1'b0 : B[WIDTH * j + i];
            end
            wire chosen;
            \$pmux #(.WIDTH(1), .S_WIDTH(S_WIDTH)) m (.A(A_OPEN[i] ? 1'b0 : A[i]), .B(value), .S(S), .Y(chosen));
            if (A_OPEN[i])
                \$tribuf #(.WIDTH(1)) t (.A(chosen), .EN(|S & ~|opens), .Y(Y[i]));
            else if (column(B_OPEN, i))
                \$tribuf #(.WIDTH(1)) t (.A(chosen), .EN(~|opens), .Y(Y[i]));
            else
                assign Y[i] = chosen;
        end
    endgenerate
endmodule
