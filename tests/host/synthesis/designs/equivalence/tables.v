module dut (input clk, input rst, input [31:0] a, input [31:0] b, output [31:0] y, inout [7:0] io);
    // Functions of one to four inputs that no order of the inputs leaves alone.
    assign y[0] = ~a[0];
    assign y[1] = a[0] & ~a[1];
    assign y[2] = a[0] ? a[1] : a[2];
    assign y[3] = (a[0] & ~a[1]) | (a[2] & a[1] & ~a[3]);
    assign y[4] = {a[3], a[2], a[1], a[0]} > 4'd10;
    assign y[5] = {a[2], a[1], a[0]} < 3'd3;
    assign y[31:6] = (a[25:0] & b[25:0]) ^ (a[31:6] | ~b[31:6]);
endmodule
