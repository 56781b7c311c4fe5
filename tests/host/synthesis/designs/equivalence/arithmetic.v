// Sums, differences, counters, comparisons and products, wide enough for carry chains.
module dut (input clk, input rst, input [31:0] a, input [31:0] b, output reg [31:0] y, inout [7:0] io);
    wire [15:0] p = a[15:0], q = a[31:16];
    wire signed [15:0] sp = p, sq = q;

    reg [15:0] up, down;
    reg [7:0] loaded;
    always @(posedge clk)
        if (rst) begin
            up <= 16'd0;
            down <= 16'hffff;
            loaded <= 8'd0;
        end else begin
            up <= up + 16'd1;
            down <= down - 16'd3;
            loaded <= b[31] ? a[7:0] : loaded + b[7:0] + b[30];
        end

    always @(*)
        case (b[3:0])
            4'd0: y = p + q;
            4'd1: y = p - q;
            4'd2: y = p + q + b[31];
            4'd3: y = b[30] ? p + q : p - q;
            4'd4: y = sp + sq;
            4'd5: y = -sp;
            4'd6: y = {p < q, p <= q, p > q, p >= q, p == q, p != q};
            4'd7: y = {sp < sq, sp <= sq, sp > sq, sp >= sq};
            4'd8: y = {p < 16'd1000, p > 16'hfff0, sp < -16'sd100, p[7:0] == q[7:0]};
            4'd9: y = p[7:0] * q[7:0];
            4'd10: y = p + q + b[31:16] + up;
            4'd11: y = {up, down};
            4'd12: y = loaded;
            4'd13: y = a + b;
            4'd14: y = a - b;
            default: y = {p[2:0] + q[2:0], p[3:0] + q[3:0], p[4:0] - q[4:0]};
        endcase
    assign io = 8'bz;
endmodule
