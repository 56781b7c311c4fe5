module dut (input clk, input rst, input [31:0] a, input [31:0] b, output [31:0] y, inout [7:0] io);
    reg [7:0] open, cleared, shut;
    reg held = 1'b1;
    always @* if (b[0]) open = a[7:0];
    always @* if (rst) cleared = 0; else if (b[1]) cleared = a[15:8];
    always @* if (!b[2]) shut = a[23:16];
    always @* if (b[3] & b[4] & b[5] & b[6]) held = a[0];
    assign y = {open, cleared, shut, 7'd0, held};
endmodule
