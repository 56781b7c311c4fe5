module dut (input clk, input rst, input [31:0] a, input [31:0] b, output [31:0] y, inout [7:0] io);
    reg [7:0] cleared, enabled;
    reg [3:0] either, enabledEither, loaded;
    wire set = b[2] & ~rst; // an end of rst must be an event of set
    always @(posedge clk or posedge rst) if (rst) cleared <= 8'h3c; else cleared <= a[7:0];
    always @(posedge clk or posedge rst) if (rst) enabled <= 8'hc3; else if (b[1]) enabled <= a[15:8];
    always @(posedge clk or posedge rst or posedge set)
        if (rst) either <= 0; else if (set) either <= 4'hf; else either <= a[3:0];
    always @(posedge clk or posedge rst or posedge set)
        if (rst) enabledEither <= 0; else if (set) enabledEither <= 4'hf; else if (b[5]) enabledEither <= a[3:0];
    assign y = {cleared, enabled, either, enabledEither, 8'd0};
endmodule
