module dut (input clk, input rst, input [31:0] a, input [31:0] b, output [31:0] y, inout [7:0] io);
    reg [7:0] plain, enabled, reset, both;
    always @(posedge clk) plain <= a[7:0];
    always @(posedge clk) if (b[0]) enabled <= a[15:8];
    always @(posedge clk) if (rst) reset <= 8'h3c; else reset <= a[7:0];
    always @(posedge clk) if (rst) both <= 8'hc3; else if (b[1]) both <= a[15:8];
    assign y = {plain, enabled, reset, both};
endmodule
