// Drives the design "dut" with the same pseudo-random values in every run and prints what it answers. The pins "io"
// are driven from outside where a[31:24] says so. The file "stimulus" gets the values, so that other simulators can be driven with them.
module testbench;
    parameter cycles = 3000;
    reg clk = 0;
    reg rst = 1;
    reg [31:0] a = 0, b = 0;
    wire [31:0] y;
    wire [7:0] io;
    reg [7:0] outside = 0;
    integer cycle, seed = 20260, stimulus;

    dut u_dut (.clk(clk), .rst(rst), .a(a), .b(b), .y(y), .io(io));

    genvar i;
    generate
        for (i = 0; i < 8; i = i + 1) begin : pins
            assign io[i] = a[24 + i] ? outside[i] : 1'bz;
        end
    endgenerate

    // Controls (b), data (a) and reset change one after the other, as no real circuit may need them to change at once.
    task change;
        begin
            b = $random(seed);
            show;
            a = $random(seed);
            outside = $random(seed);
            show;
        end
    endtask

    task show;
        begin
            $fdisplay(stimulus, "%b%b%b%b%b", clk, rst, a, b, outside);
            #1 $display("%b %b", y, io);
        end
    endtask

    initial begin
        stimulus = $fopen("stimulus");
        for (cycle = 0; cycle < cycles; cycle = cycle + 1) begin
            if (cycle == 4) rst = 0;
            if (cycle > cycles / 2) rst = ($random(seed) & 15) == 0;
            show;
            change;
            clk = 1;
            show;
            change;
            if (cycle > cycles / 2) rst = ($random(seed) & 15) == 0;
            show;
            clk = 0;
            show;
        end
        $finish;
    end
endmodule
