// Synchronizer: each level arrives at the second clock edge, and a reset brings its value.
module tb;
`include "bench.vh"
    reg  [2:0] d = 3'b000;
    wire [2:0] q;
    cdc_synchronizer #(.WIDTH(3), .RESET(3'b101)) dut (.clk(clk), .rstn(rstn), .d(d), .q(q));
    reg [2:0] earlier;
    integer   n;
    initial begin
        cycles(2);
        check(q === 3'b101, "value of the reset");
        rstn = 1'b1;
        cycles(1);
        check(q === 3'b101, "one edge later");
        cycles(1);
        check(q === 3'b000, "two edges later");
        earlier = 3'b000;
        for (n = 0; n < 200; n = n + 1) begin
            d = $random;
            cycles(1);
            check(q === earlier, "two edges behind");
            earlier = d;
        end
        rstn = 1'b0;
        #1 check(q === 3'b101, "a reset needs no clock");
        finish;
    end
endmodule
