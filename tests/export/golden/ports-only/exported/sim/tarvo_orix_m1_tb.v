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
    wire        HALTED; // the debugger has stopped the processor
    tri0        JTAG_7; // TMS or SWDIO
    tri0        JTAG_9; // TCK or SWCLK, clocks the debug port
    tri1        JTAG_3; // nTRST, resets the debug port, active low, to be pulled up
    tri0        JTAG_4; // driven low
    tri0        JTAG_5; // TDI
    tri0        JTAG_6; // driven low
    tri0        JTAG_8; // driven low
    tri0        JTAG_10; // driven low
    tri0        JTAG_11; // driven low
    tri0        JTAG_12; // driven low
    tri0        JTAG_13; // TDO
    tri0        JTAG_14; // driven low
    tri1        JTAG_15; // nSRST, resets everything but debug; left open, it can hold the subsystem in reset for ever, active low, to be pulled up
    tri0        JTAG_16; // driven low
    tri0        JTAG_17; // not connected
    tri0        JTAG_18; // driven low
    wire [31:0] AHB1HRDATA = {32{1'b0}}; // data read, of AHB1
    wire        AHB1HREADYOUT = 1'b1; // the slave has finished, of AHB1
    wire [1:0]  AHB1HRESP = {2{1'b0}}; // response; any value but 0 is an error, of AHB1
    wire [1:0]  AHB1HTRANS; // kind of the transfer, of AHB1
    wire [2:0]  AHB1HBURST; // kind of the burst, of AHB1
    wire [3:0]  AHB1HPROT; // protection of the transfer, of AHB1
    wire [2:0]  AHB1HSIZE; // size of the transfer, of AHB1
    wire        AHB1HWRITE; // 1 writes, of AHB1
    wire        AHB1HREADYMUX; // the transfer before has finished, of AHB1
    wire [3:0]  AHB1HMASTER; // number of the master, of AHB1
    wire        AHB1HMASTLOCK; // the transfer is locked, of AHB1
    wire [31:0] AHB1HADDR; // address, of AHB1
    wire [31:0] AHB1HWDATA; // data written, of AHB1
    wire        AHB1HSEL; // the address is one of the port, of AHB1
    wire        AHB1HCLK; // clock of the port, of AHB1
    wire        AHB1HRESET; // reset of the port, of AHB1, active low
    wire [31:0] APB16PADDR; // address, of APB16
    wire        APB16PENABLE; // second and further cycles of the transfer, of APB16
    wire        APB16PWRITE; // 1 writes, of APB16
    wire [3:0]  APB16PSTRB; // bytes that are written, of APB16
    wire [2:0]  APB16PPROT; // protection of the transfer, of APB16
    wire [31:0] APB16PWDATA; // data written, of APB16
    wire        APB16PSEL; // the address is one of the port, of APB16
    wire [31:0] APB16PRDATA = {32{1'b0}}; // data read, of APB16
    wire        APB16PREDADY = 1'b1; // the slave has finished, of APB16
    wire        APB16PSLVERR = 1'b0; // the transfer has failed, of APB16
    wire        APB16PCLK; // clock of the port, of APB16
    wire        APB16PRESET; // reset of the port, of APB16, active low

    Tarvo_ORIX_M1_Top u_dut (
        .HCLK(HCLK),
        .hwRstn(hwRstn),
        .LOCKUP(LOCKUP),
        .HALTED(HALTED),
        .JTAG_7(JTAG_7),
        .JTAG_9(JTAG_9),
        .JTAG_3(JTAG_3),
        .JTAG_4(JTAG_4),
        .JTAG_5(JTAG_5),
        .JTAG_6(JTAG_6),
        .JTAG_8(JTAG_8),
        .JTAG_10(JTAG_10),
        .JTAG_11(JTAG_11),
        .JTAG_12(JTAG_12),
        .JTAG_13(JTAG_13),
        .JTAG_14(JTAG_14),
        .JTAG_15(JTAG_15),
        .JTAG_16(JTAG_16),
        .JTAG_17(JTAG_17),
        .JTAG_18(JTAG_18),
        .AHB1HRDATA(AHB1HRDATA),
        .AHB1HREADYOUT(AHB1HREADYOUT),
        .AHB1HRESP(AHB1HRESP),
        .AHB1HTRANS(AHB1HTRANS),
        .AHB1HBURST(AHB1HBURST),
        .AHB1HPROT(AHB1HPROT),
        .AHB1HSIZE(AHB1HSIZE),
        .AHB1HWRITE(AHB1HWRITE),
        .AHB1HREADYMUX(AHB1HREADYMUX),
        .AHB1HMASTER(AHB1HMASTER),
        .AHB1HMASTLOCK(AHB1HMASTLOCK),
        .AHB1HADDR(AHB1HADDR),
        .AHB1HWDATA(AHB1HWDATA),
        .AHB1HSEL(AHB1HSEL),
        .AHB1HCLK(AHB1HCLK),
        .AHB1HRESET(AHB1HRESET),
        .APB16PADDR(APB16PADDR),
        .APB16PENABLE(APB16PENABLE),
        .APB16PWRITE(APB16PWRITE),
        .APB16PSTRB(APB16PSTRB),
        .APB16PPROT(APB16PPROT),
        .APB16PWDATA(APB16PWDATA),
        .APB16PSEL(APB16PSEL),
        .APB16PRDATA(APB16PRDATA),
        .APB16PREDADY(APB16PREDADY),
        .APB16PSLVERR(APB16PSLVERR),
        .APB16PCLK(APB16PCLK),
        .APB16PRESET(APB16PRESET)
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
