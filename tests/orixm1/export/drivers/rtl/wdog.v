// When the interrupt and the reset come after the count was begun; a debugger, and a system reset.
module tb;
`include "bench.vh"
`include "apb_bus.vh"
    wire nmi, reset_req;
    reg  halted = 1'b0;
    apb_watchdog dut (.PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr),
                      .PWDATA(pwdata), .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr),
                      .halted(halted), .nmi(nmi), .reset_req(reset_req));
    time    begun = 0, after_nmi = 0, after_reset = 0;
    integer resets = 0;
    always @(posedge dut.ctrl[0]) begun = $time;
    always @(posedge clk) if (dut.kick && dut.ctrl[0]) begun = $time;
    always @(posedge nmi) after_nmi = $time - begun;
    always @(posedge reset_req) begin after_reset = $time - begun; resets = resets + 1; end

    task far_write(input [31:0] index, input [31:0] value);
        case (index)
            0: halted = value[0];
            1: reset;
        endcase
    endtask
    task far_read(input [31:0] index);
        case (index)
            0: rd = nmi;
            1: rd = after_nmi / 10;
            2: rd = resets;
            3: rd = after_reset / 10;
        endcase
    endtask
`include "serve.vh"
endmodule
