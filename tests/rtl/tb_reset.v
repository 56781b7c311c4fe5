// Reset controller: both domains, release on the clock, requests of every source and their names, length of the pulse.
module tb;
`include "bench.vh"
    reg  hw = 1'b1, srst_n = 1'b1, sysreset = 1'b0, wdog = 1'b0, lockup = 1'b0;
    wire [3:0] cause;
    wire por_n, sys_n;
    reset_controller dut (.HCLK(clk), .hwRstn(hw), .srst_n(srst_n), .sysreset_req(sysreset), .wdog_req(wdog), .lockup_req(lockup), .cause(cause),
                          .por_n(por_n), .sys_n(sys_n));

    // Edges of sys_n, and how many clock cycles it was low.
    integer low = 0;
    always @(posedge clk) if (!sys_n) low = low + 1;

    task source(input integer which, input active);
        case (which)
            0: sysreset = active;
            1: wdog = active;
            2: lockup = active;
            default: srst_n = ~active;
        endcase
    endtask

    // Every cause that was told while sys_n was high or low.
    reg [3:0] causes = 4'd0;
    always @(posedge clk) if (por_n) causes = causes | cause;
    function [3:0] name_of(input integer which);
        case (which)
            0: name_of = 4'b0010;
            1: name_of = 4'b0001;
            2: name_of = 4'b0100;
            default: name_of = 4'b1000;
        endcase
    endfunction

    integer n;
    initial begin
        #2 hw = 1'b0;
        #1;
        check(por_n === 1'b0 && sys_n === 1'b0, "asserted without a clock edge");
        cycles(4);
        check(por_n === 1'b0 && sys_n === 1'b0, "held");
        #3 hw = 1'b1;
        #1 check(por_n === 1'b0, "not released before the clock");
        cycles(2);
        check(por_n === 1'b1, "power-on reset released");
        check(sys_n === 1'b0, "system reset follows later");
        cycles(6);
        check(sys_n === 1'b1, "system reset released");
        check(causes === 4'd0, "no request made it");
        for (n = 0; n < 4; n = n + 1) begin
            low = 0;
            causes = 4'd0;
            source(n, 1'b1);
            cycles(1);
            source(n, 1'b0);
            cycles(12);
            check(low >= 4 && low <= 6, "a request of one cycle makes a full pulse");
            check(causes === name_of(n), "and tells what it was");
            check(sys_n === 1'b1 && por_n === 1'b1, "released again");
            source(n, 1'b1);
            cycles(20);
            check(sys_n === 1'b0, "held as long as the request");
            check(por_n === 1'b1, "debug logic stays out of reset");
            source(n, 1'b0);
            cycles(12);
            check(sys_n === 1'b1, "released after it");
        end
        hw = 1'b0;
        #1 check(por_n === 1'b0 && sys_n === 1'b0, "hardware reset at any time");
        finish;
    end
endmodule
