module dut (input clk, input rst, input [31:0] a, input [31:0] b, output [31:0] y, inout [7:0] io);
    // Pins are driven only while the outside does not.
    wire [7:0] free = ~a[31:24];
    assign io[0] = free[0] ? b[0] : 1'bz;
    assign io[1] = ~free[1] ? 1'bz : b[1];
    reg pin;
    always @*
        case (b[5:4])
            0: pin = b[2];
            1: pin = 1'bz;
            2: pin = ~b[2];
            default: pin = 1'bz;
        endcase
    assign io[2] = free[2] ? pin : 1'bz;
    assign io[4:3] = free[4] & free[3] ? {b[6], 1'bz} : 2'bzz;
    sub u_sub (.drive(free[5]), .value(b[7]), .pin(io[5]));
    assign io[6] = free[6] ? 1'b0 : 1'bz;
    assign io[7] = 1'bz; // only read
    wire [1:0] seen;
    reader u_reader (.pin(io[7]), .driven(a[31]), .seen(seen));
    reg [1:0] wide;
    always @*
        case (b[9:8])
            0: wide = {1'bz, b[10]};
            1: wide = {b[11], b[12]};
            2: wide = {b[13] & b[14], 1'b1};
            default: wide = {1'bz, 1'b0};
        endcase
    assign y = {20'd0, seen, wide, io};
endmodule

module sub (input drive, input value, inout pin);
    assign pin = drive ? value : 1'bz;
endmodule

module reader (inout pin, input driven, output [1:0] seen);
    assign pin = 1'bz;
    assign seen = {pin & driven, ~pin & driven};
endmodule
