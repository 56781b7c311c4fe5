// Names that other languages know otherwise, outputs that are read, constants, open ports, ranges of any direction.
module part (input [7:0] in, input en, output [7:0] out, output spare, output [3:0] half);
    assign out = en ? ~in : in;
    assign spare = ^in;
    assign half = in[3:0] + 4'd1;
endmodule

module dut (input clk, input rst, input [31:0] a, input [31:0] b, output [31:0] y, inout [7:0] io);
    reg [7:0] signal, Signal;
    reg [0:7] rising;
    reg [11:4] begin_, std_logic, ieee, dut, TV_LUT4, \a.b[3] , \end , \back\slash , n1, u1;
    wire [7:0] out__, \and , Y, y_buf;
    wire [3:0] part_half;

    always @(posedge clk)
        if (rst) begin
            {signal, Signal, rising, begin_, std_logic, ieee, dut} <= 56'd0;
            {TV_LUT4, \a.b[3] , \end , \back\slash , n1, u1} <= 48'd0;
        end else begin
            signal <= a[7:0];
            Signal <= signal ^ b[7:0];
            rising <= Signal + 8'd1;
            begin_ <= {rising[0:3], rising[4:7]} ^ a[15:8];
            std_logic <= begin_ & b[15:8];
            ieee <= std_logic | a[23:16];
            dut <= ieee - 8'd1;
            TV_LUT4 <= dut ^ {4'd0, io[3:0] & a[27:24]};
            \a.b[3] <= TV_LUT4 + out__;
            \end <= \a.b[3] ^ {y[3:0], y[31:28]};
            \back\slash <= \end ;
            n1 <= \back\slash + n1;
            u1 <= n1 ^ u1;
        end

    part \u.part[0] (.in(signal), .en(b[0]), .out(out__), .half(part_half));
    part component (.in(u1), .en(1'b1), .out(\and ), .spare());
    assign Y = ieee ^ part_half;
    assign y_buf = dut;
    assign y = {n1[11:8], 4'b0101, Y, y_buf, u1};
    assign io[7:6] = b[1] && !a[30] && !a[31] ? signal[3:2] : 2'bz;
    assign io[5:4] = b[2] && !a[29] && !a[28] ? signal[1:0] : 2'bz;
    assign io[3:0] = 4'bz;
endmodule
