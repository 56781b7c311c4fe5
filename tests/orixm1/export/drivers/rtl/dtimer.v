// The length of the periods of both counters.
module tb;
`include "bench.vh"
`include "apb_bus.vh"
    wire irq;
    apb_dual_timer dut (.PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr),
                        .PWDATA(pwdata), .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr),
                        .irq(irq));
    time    last1 = 0, period1 = 0, last2 = 0, period2 = 0;
    integer wraps1 = 0, wraps2 = 0;
    always @(posedge clk) if (rstn && dut.g_counter[0].wrap) begin
        period1 = $time - last1; last1 = $time;
        wraps1 = wraps1 + 1;
    end
    always @(posedge clk) if (rstn && dut.g_counter[1].wrap) begin
        period2 = $time - last2; last2 = $time;
        wraps2 = wraps2 + 1;
    end
    always @(posedge dut.g_counter[0].en) last1 = $time;
    always @(posedge dut.g_counter[1].en) last2 = $time;

    task far_write(input [31:0] index, input [31:0] value);
        check(1'b0, "nothing to write");
    endtask
    task far_read(input [31:0] index);
        case (index)
            0: rd = irq;
            1: rd = period1 / 10;
            2: rd = wraps1;
            3: rd = period2 / 10;
            4: rd = wraps2;
        endcase
    endtask
`include "serve.vh"
endmodule
