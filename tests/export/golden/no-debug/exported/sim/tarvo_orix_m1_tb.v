// A first test bench of Tarvo_ORIX_M1_Top: clock, reset, pull-ups, every input at rest. The model of the processor plays the script of
// transfers +script=sim/tarvo_orix_m1_tb.play and prints what fails; without an end after 100000 cycles the bench stops.
// With COCOTB_SIM defined, clock and reset are left to Python (sim/test_tarvo_orix_m1.py).
`timescale 1ns / 1ps

// verilator lint_off UNUSEDSIGNAL
// verilator lint_off UNDRIVEN
module tarvo_orix_m1_tb;
    // Connect what your design has; these are the levels at rest.
    reg         HCLK; // clocks processor, buses and blocks
    reg         hwRstn; // resets everything, debug included, active low
    wire        LOCKUP; // the processor has stopped after a second fault
    wire        UART1RXD = 1'b1; // serial data to receive
    wire        UART1TXD; // serial data sent

    Tarvo_ORIX_M1_Top u_dut (
        .HCLK(HCLK),
        .hwRstn(hwRstn),
        .LOCKUP(LOCKUP),
        .UART1RXD(UART1RXD),
        .UART1TXD(UART1TXD)
    );
    wire done = u_dut.u_core.done;

`ifndef COCOTB_SIM
    initial HCLK = 1'b0;
    always #10 HCLK = ~HCLK;

    initial begin
        hwRstn = 1'b0;
        repeat (10) @(negedge HCLK);
        hwRstn = 1'b1;
    end

    integer cycle = 0;
    always @(negedge HCLK) begin
        cycle = cycle + 1;
        if (done === 1'b1) begin
            if (u_dut.u_core.checks == 0 || u_dut.u_core.failures != 0 || LOCKUP !== 1'b0)
                $fatal(1, "%m: the first accesses failed");
            $finish;
        end else if (cycle == 100000)
            $fatal(1, "%m: no end of the script after %0d cycles", cycle);
    end
`endif
endmodule
