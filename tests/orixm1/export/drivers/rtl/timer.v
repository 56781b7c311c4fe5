// A timer with its external input, and the length of its periods.
module tb;
`include "bench.vh"
`include "apb_bus.vh"
    reg  extin = 1'b0;
    wire irq;
    apb_timer dut (.PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr),
                   .PWDATA(pwdata), .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr),
                   .extin(extin), .irq(irq));
    time    last = 0, period = 0;
    integer wraps = 0, n;
    always @(posedge clk) if (rstn && dut.wrap) begin
        period = $time - last; last = $time;
        wraps = wraps + 1;
    end
    // The first period counts from the write that switches the counter on.
    always @(posedge dut.ctrl[0]) last = $time;

    task far_write(input [31:0] index, input [31:0] value);
        case (index)
            0: extin = value[0];
            1: for (n = 0; n < value; n = n + 1) begin
                extin = 1'b1; cycles(3); extin = 1'b0; cycles(3);
            end
        endcase
    endtask
    task far_read(input [31:0] index);
        case (index)
            0: rd = irq;
            1: rd = period / 10;
            2: rd = wraps;
            3: rd = page;
        endcase
    endtask
`include "serve.vh"
endmodule
