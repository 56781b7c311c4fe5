// Comparisons of every kind with constants at and beside the ends of the range, in both orders, narrow and wide. What they answer is
// kept in flip-flops, a line of comparisons a cycle.
module dut (input clk, input rst, input [31:0] a, input [31:0] b, output reg [31:0] y, inout [7:0] io);
    // Small values come often.
    wire [31:0] v = b[4] ? a : b[5] ? {32{a[31]}} ^ {30'd0, a[1:0]} : {a[31], 31'd0} - {31'd0, b[6]} + {30'd0, a[1:0]};
    wire [3:0] u4 = v[3:0];
    wire signed [3:0] s4 = {v[31], v[2:0]};
    wire [15:0] u16 = v[15:0];
    wire signed [15:0] s16 = {v[31], v[14:0]};
    reg [2:0] line;
    always @(posedge clk)
        if (rst)
            line <= 3'd0;
        else
            line <= b[10:8];

    always @(posedge clk)
        if (rst)
            y <= 32'd0;
        else case (line)
            3'd0: y <= {u4 < 4'd0, 4'd0 < u4, u4 <= 4'd0, 4'd0 <= u4,
                         u4 > 4'd0, 4'd0 > u4, u4 >= 4'd0, 4'd0 >= u4,
                         u4 < 4'd1, 4'd1 < u4, u4 <= 4'd1, 4'd1 <= u4,
                         u4 > 4'd1, 4'd1 > u4, u4 >= 4'd1, 4'd1 >= u4,
                         u4 < 4'd2, 4'd2 < u4, u4 <= 4'd2, 4'd2 <= u4,
                         u4 > 4'd2, 4'd2 > u4, u4 >= 4'd2, 4'd2 >= u4,
                         u4 < 4'd15, 4'd15 < u4, u4 <= 4'd15, 4'd15 <= u4,
                         u4 > 4'd15, 4'd15 > u4, u4 >= 4'd15, 4'd15 >= u4};
            3'd1: y <= {u4 < 4'd14, 4'd14 < u4, u4 <= 4'd14, 4'd14 <= u4,
                         u4 > 4'd14, 4'd14 > u4, u4 >= 4'd14, 4'd14 >= u4};
            3'd2: y <= {s4 < 4'sd0, 4'sd0 < s4, s4 <= 4'sd0, 4'sd0 <= s4,
                         s4 > 4'sd0, 4'sd0 > s4, s4 >= 4'sd0, 4'sd0 >= s4,
                         s4 < 4'sd1, 4'sd1 < s4, s4 <= 4'sd1, 4'sd1 <= s4,
                         s4 > 4'sd1, 4'sd1 > s4, s4 >= 4'sd1, 4'sd1 >= s4,
                         s4 < 4'sd2, 4'sd2 < s4, s4 <= 4'sd2, 4'sd2 <= s4,
                         s4 > 4'sd2, 4'sd2 > s4, s4 >= 4'sd2, 4'sd2 >= s4,
                         s4 < 4'sd7, 4'sd7 < s4, s4 <= 4'sd7, 4'sd7 <= s4,
                         s4 > 4'sd7, 4'sd7 > s4, s4 >= 4'sd7, 4'sd7 >= s4};
            3'd3: y <= {s4 < 4'sd6, 4'sd6 < s4, s4 <= 4'sd6, 4'sd6 <= s4,
                         s4 > 4'sd6, 4'sd6 > s4, s4 >= 4'sd6, 4'sd6 >= s4,
                         s4 < -4'sd1, -4'sd1 < s4, s4 <= -4'sd1, -4'sd1 <= s4,
                         s4 > -4'sd1, -4'sd1 > s4, s4 >= -4'sd1, -4'sd1 >= s4,
                         s4 < -4'sd2, -4'sd2 < s4, s4 <= -4'sd2, -4'sd2 <= s4,
                         s4 > -4'sd2, -4'sd2 > s4, s4 >= -4'sd2, -4'sd2 >= s4,
                         s4 < -4'sd7, -4'sd7 < s4, s4 <= -4'sd7, -4'sd7 <= s4,
                         s4 > -4'sd7, -4'sd7 > s4, s4 >= -4'sd7, -4'sd7 >= s4};
            3'd4: y <= {u16 < 16'd0, 16'd0 < u16, u16 <= 16'd0, 16'd0 <= u16,
                          u16 > 16'd0, 16'd0 > u16, u16 >= 16'd0, 16'd0 >= u16,
                          u16 < 16'd1, 16'd1 < u16, u16 <= 16'd1, 16'd1 <= u16,
                          u16 > 16'd1, 16'd1 > u16, u16 >= 16'd1, 16'd1 >= u16,
                          u16 < 16'd2, 16'd2 < u16, u16 <= 16'd2, 16'd2 <= u16,
                          u16 > 16'd2, 16'd2 > u16, u16 >= 16'd2, 16'd2 >= u16,
                          u16 < 16'd65535, 16'd65535 < u16, u16 <= 16'd65535, 16'd65535 <= u16,
                          u16 > 16'd65535, 16'd65535 > u16, u16 >= 16'd65535, 16'd65535 >= u16};
            3'd5: y <= {u16 < 16'd65534, 16'd65534 < u16, u16 <= 16'd65534, 16'd65534 <= u16,
                          u16 > 16'd65534, 16'd65534 > u16, u16 >= 16'd65534, 16'd65534 >= u16};
            3'd6: y <= {s16 < 16'sd0, 16'sd0 < s16, s16 <= 16'sd0, 16'sd0 <= s16,
                          s16 > 16'sd0, 16'sd0 > s16, s16 >= 16'sd0, 16'sd0 >= s16,
                          s16 < 16'sd1, 16'sd1 < s16, s16 <= 16'sd1, 16'sd1 <= s16,
                          s16 > 16'sd1, 16'sd1 > s16, s16 >= 16'sd1, 16'sd1 >= s16,
                          s16 < 16'sd2, 16'sd2 < s16, s16 <= 16'sd2, 16'sd2 <= s16,
                          s16 > 16'sd2, 16'sd2 > s16, s16 >= 16'sd2, 16'sd2 >= s16,
                          s16 < 16'sd32767, 16'sd32767 < s16, s16 <= 16'sd32767, 16'sd32767 <= s16,
                          s16 > 16'sd32767, 16'sd32767 > s16, s16 >= 16'sd32767, 16'sd32767 >= s16};
            3'd7: y <= {s16 < 16'sd32766, 16'sd32766 < s16, s16 <= 16'sd32766, 16'sd32766 <= s16,
                          s16 > 16'sd32766, 16'sd32766 > s16, s16 >= 16'sd32766, 16'sd32766 >= s16,
                          s16 < -16'sd1, -16'sd1 < s16, s16 <= -16'sd1, -16'sd1 <= s16,
                          s16 > -16'sd1, -16'sd1 > s16, s16 >= -16'sd1, -16'sd1 >= s16,
                          s16 < -16'sd2, -16'sd2 < s16, s16 <= -16'sd2, -16'sd2 <= s16,
                          s16 > -16'sd2, -16'sd2 > s16, s16 >= -16'sd2, -16'sd2 >= s16,
                          s16 < -16'sd32767, -16'sd32767 < s16, s16 <= -16'sd32767, -16'sd32767 <= s16,
                          s16 > -16'sd32767, -16'sd32767 > s16, s16 >= -16'sd32767, -16'sd32767 >= s16};
        endcase
    assign io = 8'bz;
endmodule
