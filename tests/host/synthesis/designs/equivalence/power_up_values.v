module dut (input clk, input rst, input [31:0] a, input [31:0] b, output [31:0] y, inout [7:0] io);
    reg [7:0] plain = 8'h5a, enabled = 8'ha5;
    reg [3:0] cleared = 4'h6, preset = 4'h9;
    reg [7:0] count = 8'd200;
    always @(posedge clk) if (rst) plain <= plain; else plain <= a[7:0];
    always @(negedge clk) if (b[0] & ~rst) enabled <= a[15:8];
    always @(posedge clk or posedge b[1]) if (b[1]) cleared <= 0; else cleared <= a[3:0];
    always @(posedge clk or posedge b[2]) if (b[2]) preset <= 4'hf; else if (b[3]) preset <= a[3:0];
    always @(posedge clk) count <= count + 1;
    assign y = {plain, enabled, cleared, preset, count};
endmodule
