module dut (input clk, input rst, input [31:0] a, input [31:0] b, output [31:0] y, inout [7:0] io);
    reg [7:0] mem [0:31];
    reg [3:0] preset [0:15];
    integer i;
    initial begin
        for (i = 0; i < 32; i = i + 1) mem[i] = 8'h11 * i;
        for (i = 0; i < 16; i = i + 1) preset[i] = 4'hf - i;
    end
    always @(posedge clk) if (b[0]) mem[a[4:0]] <= a[15:8];
    always @(negedge clk) if (b[1]) preset[a[3:0]] <= b[7:4];
    assign y = {mem[a[9:5]], mem[b[12:8]], 12'd0, preset[b[19:16]]};
endmodule
