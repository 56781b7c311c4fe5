// Common part of every testbench, included inside its module: clock, reset, checks and the end of the run, which is the first failure
// where ENDS_AT_A_FAILURE says so.
    // How often something is done: in the whole testbench, and in the short form of it.
`ifdef SHORT
`define ROUNDS(whole, short) (short)
`else
`define ROUNDS(whole, short) (whole)
`endif
`ifdef ENDS_AT_A_FAILURE
`define FAILED $finish;
`else
`define FAILED
`endif
    reg clk = 1'b0;
    reg rstn = 1'b0;
    integer checks = 0;
    integer errors = 0;
    always #5 clk = ~clk;

    task check(input condition, input [8*48-1:0] what);
        begin
            checks = checks + 1;
            if (condition !== 1'b1) begin
                errors = errors + 1;
                $display("%0t: failed: %0s", $time, what);
                `FAILED
            end
        end
    endtask

    task check32(input [31:0] actual, input [31:0] expected, input [8*48-1:0] what);
        begin
            checks = checks + 1;
            if (actual !== expected) begin
                errors = errors + 1;
                $display("%0t: failed: %0s: %h, expected %h", $time, what, actual, expected);
                `FAILED
            end
        end
    endtask

    // Signals change shortly after the clock edge, as flip-flops do.
    task cycles(input integer n);
        begin
            repeat (n) @(posedge clk);
            #1;
        end
    endtask

    task reset;
        begin
            rstn = 1'b0;
            cycles(3);
            rstn = 1'b1;
            cycles(1);
        end
    endtask

    task finish;
        begin
            if (errors == 0 && checks > 0)
                $display("PASS");
            else
                $display("FAIL: %0d of %0d checks", errors, checks);
            $finish;
        end
    endtask

    initial begin
        #20000000;
        $display("FAIL: timeout");
        $finish;
    end
