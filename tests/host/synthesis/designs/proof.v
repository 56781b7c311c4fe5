// What a proof cuts a design at, and logic between: block RAM with contents, flip-flops with clear and with a first
// value, tri-state pins, a black box, carry chains, tables.
(* blackbox *) module analog #(parameter SPEED = 2) (input clk, input [3:0] set, output [2:0] level);
endmodule
module top (input clk, input rstn, input en, input [3:0] a, input [3:0] b, input [8:0] addr, input [31:0] din,
            output reg [31:0] dout, output reg [3:0] count, output [3:0] difference, output match, output live,
            inout [1:0] io, output [2:0] level);
    reg [31:0] mem [0:511];
    integer i;
    initial begin
        for (i = 0; i < 512; i = i + 1) mem[i] = 32'd0;
        mem[0] = 32'h0000c0de;
    end
    always @(posedge clk)
        if (en) mem[addr] <= din;
    always @(posedge clk)
        if (!en) dout <= mem[addr];
    always @(posedge clk or negedge rstn)
        if (!rstn) count <= 4'd0; else if (en) count <= count + 4'd1;
    reg started = 1'b1;
    always @(posedge clk) started <= started & ~match;
    assign live = started;
    assign difference = a - b;
    assign match = &a;
    assign io = en ? a[1:0] : 2'bzz;
    analog #(.SPEED(3)) u_analog (.clk(clk), .set({io, a[0] ^ b[0], b[1]}), .level(level));
endmodule
