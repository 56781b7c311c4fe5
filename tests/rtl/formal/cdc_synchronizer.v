// What goes in comes out two clock edges later, and the reset value for as long as there is a reset.
module proof (
    input wire       clk, rstn,
    input wire [1:0] d
);
`include "environment.vh"
    wire [1:0] q;
    cdc_synchronizer #(.WIDTH(2), .RESET(2'b10)) dut (.clk(clk), .rstn(rstn), .d(d), .q(q));
    reg [3:0] passed;
    always @(posedge clk or negedge rstn)
        if (!rstn)
            passed <= 4'b1010;
        else
            passed <= {passed[1:0], d};
    always @* assert (q == passed[3:2]);
endmodule
