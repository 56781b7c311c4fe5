module dut (input clk, input rst, input [31:0] a, input [31:0] b, output [31:0] y, inout [7:0] io);
    // As deep and as wide as makes blocks of every word size; addresses keep to a few words so that they meet.
    wire [13:0] where = {a[3:2], 10'd0, a[1:0]};
    wire [13:0] from = {b[3:2], 10'd0, b[1:0]};
    wire [31:0] q [0:5];
    ram #(.WIDTH(1), .ADDRESS(14)) w1 (clk, b[8], where, a[31:31], from, q[0][0:0]);
    ram #(.WIDTH(2), .ADDRESS(13)) w2 (clk, b[9], {where[13:12], where[10:0]}, a[31:30], {from[13:12], from[10:0]}, q[1][1:0]);
    ram #(.WIDTH(4), .ADDRESS(12)) w4 (clk, b[10], {where[13:12], where[9:0]}, a[31:28], {from[13:12], from[9:0]}, q[2][3:0]);
    ram #(.WIDTH(8), .ADDRESS(11)) w8 (clk, b[11], {where[13:12], where[8:0]}, a[31:24], {from[13:12], from[8:0]}, q[3][7:0]);
    ram #(.WIDTH(16), .ADDRESS(10)) w16 (clk, b[12], {where[13:12], where[7:0]}, a[31:16], {from[13:12], from[7:0]}, q[4][15:0]);
    ram #(.WIDTH(32), .ADDRESS(9)) w32 (clk, b[13], {where[13:12], where[6:0]}, a, {from[13:12], from[6:0]}, q[5]);
    assign y = {q[0][0], q[1][1:0], q[2][3:0], q[3][7:0], q[4][15:0], 1'b0} ^ q[5];
endmodule

module ram #(parameter WIDTH = 8, parameter ADDRESS = 8)
    (input clk, input we, input [ADDRESS-1:0] where, input [WIDTH-1:0] d, input [ADDRESS-1:0] from,
     output reg [WIDTH-1:0] q);
    (* ram_style = "block" *)
    reg [WIDTH-1:0] mem [0:(1<<ADDRESS)-1];
    integer i;
    initial for (i = 0; i < 16; i = i + 1) mem[((i >> 2) << (ADDRESS - 2)) + (i & 3)] = i * 37 + (i >> 3);
    always @(posedge clk) if (we) mem[where] <= d;
    always @(posedge clk) q <= mem[from];
endmodule
