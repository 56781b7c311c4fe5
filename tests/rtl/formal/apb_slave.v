// A slave of the APB keeps its rules under any master that keeps its own. Other inputs of the module take any values.
module proof (
    input wire        clk, rstn, psel, penable, pwrite,
    input wire [31:0] paddr, pwdata,
    input wire [3:0]  pstrb
);
`include "environment.vh"
    wire [31:0] prdata;
    wire        pready, pslverr;
    `MODULE dut (
        .PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr), .PWDATA(pwdata),
        .PSTRB(pstrb), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr)
    );
    apb_checker #(.MOST_WAITS(`MOST_WAITS), .ASSUME_MASTER(1)) rules (
        .PCLK(clk), .PRESETn(rstn), .PSEL(psel), .PENABLE(penable), .PWRITE(pwrite), .PADDR(paddr), .PWDATA(pwdata),
        .PSTRB(pstrb), .PPROT(3'd0), .PRDATA(prdata), .PREADY(pready), .PSLVERR(pslverr), .LATE(1'b0)
    );
endmodule
