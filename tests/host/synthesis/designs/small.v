// A little of everything: block RAM, flip-flops with clear and preset, a tri-state pin, a black box.
(* blackbox *) module analog #(parameter WIDTH = 2, parameter MODE = "slow")
    (input clk, inout pad, output [WIDTH-1:0] level);
endmodule
module top (input clk, input rstn, input en, input [15:0] din, output reg [15:0] count,
            inout [3:0] io, inout pad, output [4:0] level, input [9:0] addr, output reg [15:0] dout,
            output [0:2] rising, input [11:8] offset);
    reg [15:0] mem [0:1023];
    always @(posedge clk)
        if (en) mem[addr] <= din;
    always @(posedge clk)
        if (!en) dout <= mem[addr];
    always @(posedge clk or negedge rstn)
        if (!rstn) count <= 16'd7; else if (en) count <= count + 16'd1;
    assign io = en ? din[3:0] : 4'bzzzz;
    assign rising = {io[2:1], ^offset};
    analog #(.WIDTH(5), .MODE("a \"b\" \\ c")) u_analog (.clk(clk), .pad(pad), .level(level));
endmodule
