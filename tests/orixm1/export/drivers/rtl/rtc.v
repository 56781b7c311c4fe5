// An external clock of eight cycles of the bus clock, which can stand still, and a system reset.
module tb;
`include "bench.vh"
`include "apb_bus.vh"
    reg  source = 1'b0, stopped = 1'b0;
    wire irq;
    always #40 if (!stopped) source = ~source;
    reg  power = 1'b0;
    always @(posedge rstn) power = 1'b1;
    apb_rtc dut (.PCLK(clk), .PRESETn(rstn), .PORESETn(power), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr),
                 .PWDATA(pwdata), .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr),
                 .rtc_clk(source), .irq(irq));
    time last = 0, second = 0;
    always @(posedge clk) if (rstn && dut.second) begin second = $time - last; last = $time; end

    task far_write(input [31:0] index, input [31:0] value);
        case (index)
            0: stopped = value[0];
            1: reset;
        endcase
    endtask
    task far_read(input [31:0] index);
        case (index)
            0: rd = irq;
            1: rd = second / 10;
        endcase
    endtask
`include "serve.vh"
endmodule
