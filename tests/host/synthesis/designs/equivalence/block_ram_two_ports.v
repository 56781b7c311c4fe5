module dut (input clk, input rst, input [31:0] a, input [31:0] b, output [31:0] y, inout [7:0] io);
    // Two ports that read or write, with different clock edges, and word sizes that differ from the block's.
    reg [15:0] mem [0:1023];
    reg [7:0] bytes [0:2047];
    reg [3:0] nibbles [0:4095];
    reg [15:0] p, q;
    reg [7:0] r, s;
    reg [3:0] t, u;
    wire [9:0] here = {a[4:3], 5'd0, a[2:0]};
    wire [9:0] there = {b[4:3], 5'd0, b[2:0]};
    integer i;
    initial begin
        for (i = 0; i < 32; i = i + 1) mem[((i >> 3) << 8) + (i & 7)] = i * 1237;
        for (i = 0; i < 64; i = i + 1) bytes[((i >> 4) << 9) + (i & 15)] = i * 91 + (i >> 4);
        for (i = 0; i < 128; i = i + 1) nibbles[((i >> 5) << 10) + (i & 31)] = i * 7 + (i >> 5);
    end
    always @(posedge clk) if (a[8]) begin if (a[9]) mem[here] <= a[31:16]; else p <= mem[here]; end
    always @(negedge clk) if (b[8]) begin if (b[9]) mem[there] <= b[31:16]; else q <= mem[there]; end
    always @(posedge clk) if (a[10]) begin if (a[11]) bytes[{here, a[12]}] <= a[31:24]; else r <= bytes[{here, a[12]}]; end
    always @(negedge clk) if (b[10]) begin if (b[11]) bytes[{there, b[12]}] <= b[31:24]; else s <= bytes[{there, b[12]}]; end
    always @(posedge clk) if (a[13]) begin if (a[14]) nibbles[{here, a[16:15]}] <= a[31:28]; else t <= nibbles[{here, a[16:15]}]; end
    always @(negedge clk) if (b[13]) begin if (b[14]) nibbles[{there, b[16:15]}] <= b[31:28]; else u <= nibbles[{there, b[16:15]}]; end
    assign y = {p ^ {8'd0, r}, q ^ {8'd0, s}} ^ {t, 24'd0, u};
endmodule
