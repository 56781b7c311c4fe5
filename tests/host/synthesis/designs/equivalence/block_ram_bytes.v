module dut (input clk, input rst, input [31:0] a, input [31:0] b, output [31:0] y, inout [7:0] io);
    // One port with byte enables: a write leaves the read data alone.
    reg [31:0] mem [0:4095];
    reg [31:0] q;
    wire [11:0] where = {a[5:4], 6'd0, a[3:0]};
    wire [3:0] we = b[11:8] & {4{b[0]}};
    integer i;
    initial for (i = 0; i < 64; i = i + 1) mem[((i >> 4) << 10) + (i & 15)] = {4{i[7:0]}} ^ (i << 7);
    genvar n;
    generate
        for (n = 0; n < 4; n = n + 1) begin : lanes
            always @(posedge clk) if (b[1] & we[n]) mem[where][8*n +: 8] <= a[8*n +: 8];
        end
    endgenerate
    always @(posedge clk) if (b[1] & ~|we) q <= mem[where];
    assign y = q;
endmodule
