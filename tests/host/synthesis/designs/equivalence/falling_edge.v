module dut (input clk, input rst, input [31:0] a, input [31:0] b, output [31:0] y, inout [7:0] io);
    reg [3:0] plain, enabled, reset, resetEnabled, set, cleared, clearedEnabled, preset;
    always @(negedge clk) plain <= a[3:0];
    always @(negedge clk) if (b[0]) enabled <= a[7:4];
    always @(negedge clk) if (rst) reset <= 0; else reset <= a[11:8];
    always @(negedge clk) if (rst) resetEnabled <= 0; else if (b[1]) resetEnabled <= a[11:8];
    always @(negedge clk) if (rst) set <= 4'hf; else if (b[2]) set <= a[15:12];
    always @(negedge clk or negedge rst) if (!rst) cleared <= 0; else cleared <= a[3:0];
    always @(negedge clk or posedge rst) if (rst) clearedEnabled <= 0; else if (b[3]) clearedEnabled <= a[7:4];
    always @(negedge clk or posedge rst) if (rst) preset <= 4'ha; else preset <= a[3:0];
    assign y = {plain, enabled, reset, resetEnabled, set, cleared, clearedEnabled, preset};
endmodule
