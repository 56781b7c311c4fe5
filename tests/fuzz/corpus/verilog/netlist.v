/* a netlist */
`timescale 1 ns / 1 ps
(* top = 1 *)
module top(clk, \a[0] , y);
  input clk; wire clk;
  output [3:0] y;
  wire [3:0] n = 4'h3;
  assign y = n;
  TV_LUT2 #(.INIT(4'h6)) \u$1 (.I0(clk), .I1(1'b1), .O(n[0]));
  sub s [1:0] (.a(n)), t (.a("text \" ; endmodule"));
endmodule
(* blackbox *)
module sub #(parameter W = 1) (input a);
endmodule
