// Reset controller: both domains, release on the clock, requests of every source, length of the pulse.
module tb;
`include "bench.vh"
    reg  hw = 1'b1, srst_n = 1'b1, sysreset = 1'b0, wdog = 1'b0;
    wire por_n, sys_n;
    reset_controller dut (.HCLK(clk), .hwRstn(hw), .srst_n(srst_n), .sysreset_req(sysreset), .wdog_req(wdog),
                          .por_n(por_n), .sys_n(sys_n));

    // Edges of sys_n, and how many clock cycles it was low.
    integer low = 0;
    always @(posedge clk) if (!sys_n) low = low + 1;

    task source(input integer which, input active);
        case (which)
            0: sysreset = active;
            1: wdog = active;
            default: srst_n = ~active;
        endcase
    endtask

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
        for (n = 0; n < 3; n = n + 1) begin
            low = 0;
            source(n, 1'b1);
            cycles(1);
            source(n, 1'b0);
            cycles(12);
            check(low >= 4 && low <= 6, "a request of one cycle makes a full pulse");
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
