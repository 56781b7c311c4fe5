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
    wire [31:0] EXTFLASH0HRDATA = {32{1'b0}}; // data read, of EXTFLASH
    wire        EXTFLASH0HREADYOUT = 1'b1; // the slave has finished, of EXTFLASH
    wire [1:0]  EXTFLASH0HRESP = {2{1'b0}}; // response; any value but 0 is an error, of EXTFLASH
    wire [1:0]  EXTFLASH0HTRANS; // kind of the transfer, of EXTFLASH
    wire [2:0]  EXTFLASH0HBURST; // kind of the burst, of EXTFLASH
    wire [3:0]  EXTFLASH0HPROT; // protection of the transfer, of EXTFLASH
    wire [2:0]  EXTFLASH0HSIZE; // size of the transfer, of EXTFLASH
    wire        EXTFLASH0HWRITE; // 1 writes, of EXTFLASH
    wire        EXTFLASH0HREADYMUX; // the transfer before has finished, of EXTFLASH
    wire [3:0]  EXTFLASH0HMASTER; // number of the master, of EXTFLASH
    wire        EXTFLASH0HMASTLOCK; // the transfer is locked, of EXTFLASH
    wire [31:0] EXTFLASH0HADDR; // address, of EXTFLASH
    wire [31:0] EXTFLASH0HWDATA; // data written, of EXTFLASH
    wire        EXTFLASH0HSEL; // the address is one of the port, of EXTFLASH
    wire        EXTFLASH0HCLK; // clock of the port, of EXTFLASH
    wire        EXTFLASH0HRESET; // reset of the port, of EXTFLASH, active low
    wire [31:0] EXTSRAM0HRDATA = {32{1'b0}}; // data read, of EXTSRAM
    wire        EXTSRAM0HREADYOUT = 1'b1; // the slave has finished, of EXTSRAM
    wire [1:0]  EXTSRAM0HRESP = {2{1'b0}}; // response; any value but 0 is an error, of EXTSRAM
    wire [1:0]  EXTSRAM0HTRANS; // kind of the transfer, of EXTSRAM
    wire [2:0]  EXTSRAM0HBURST; // kind of the burst, of EXTSRAM
    wire [3:0]  EXTSRAM0HPROT; // protection of the transfer, of EXTSRAM
    wire [2:0]  EXTSRAM0HSIZE; // size of the transfer, of EXTSRAM
    wire        EXTSRAM0HWRITE; // 1 writes, of EXTSRAM
    wire        EXTSRAM0HREADYMUX; // the transfer before has finished, of EXTSRAM
    wire [3:0]  EXTSRAM0HMASTER; // number of the master, of EXTSRAM
    wire        EXTSRAM0HMASTLOCK; // the transfer is locked, of EXTSRAM
    wire [31:0] EXTSRAM0HADDR; // address, of EXTSRAM
    wire [31:0] EXTSRAM0HWDATA; // data written, of EXTSRAM
    wire        EXTSRAM0HSEL; // the address is one of the port, of EXTSRAM
    wire        EXTSRAM0HCLK; // clock of the port, of EXTSRAM
    wire        EXTSRAM0HRESET; // reset of the port, of EXTSRAM, active low
    wire        UART0RXD = 1'b1; // serial data to receive
    wire        UART0TXD; // serial data sent

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
        .EXTFLASH0HRDATA(EXTFLASH0HRDATA),
        .EXTFLASH0HREADYOUT(EXTFLASH0HREADYOUT),
        .EXTFLASH0HRESP(EXTFLASH0HRESP),
        .EXTFLASH0HTRANS(EXTFLASH0HTRANS),
        .EXTFLASH0HBURST(EXTFLASH0HBURST),
        .EXTFLASH0HPROT(EXTFLASH0HPROT),
        .EXTFLASH0HSIZE(EXTFLASH0HSIZE),
        .EXTFLASH0HWRITE(EXTFLASH0HWRITE),
        .EXTFLASH0HREADYMUX(EXTFLASH0HREADYMUX),
        .EXTFLASH0HMASTER(EXTFLASH0HMASTER),
        .EXTFLASH0HMASTLOCK(EXTFLASH0HMASTLOCK),
        .EXTFLASH0HADDR(EXTFLASH0HADDR),
        .EXTFLASH0HWDATA(EXTFLASH0HWDATA),
        .EXTFLASH0HSEL(EXTFLASH0HSEL),
        .EXTFLASH0HCLK(EXTFLASH0HCLK),
        .EXTFLASH0HRESET(EXTFLASH0HRESET),
        .EXTSRAM0HRDATA(EXTSRAM0HRDATA),
        .EXTSRAM0HREADYOUT(EXTSRAM0HREADYOUT),
        .EXTSRAM0HRESP(EXTSRAM0HRESP),
        .EXTSRAM0HTRANS(EXTSRAM0HTRANS),
        .EXTSRAM0HBURST(EXTSRAM0HBURST),
        .EXTSRAM0HPROT(EXTSRAM0HPROT),
        .EXTSRAM0HSIZE(EXTSRAM0HSIZE),
        .EXTSRAM0HWRITE(EXTSRAM0HWRITE),
        .EXTSRAM0HREADYMUX(EXTSRAM0HREADYMUX),
        .EXTSRAM0HMASTER(EXTSRAM0HMASTER),
        .EXTSRAM0HMASTLOCK(EXTSRAM0HMASTLOCK),
        .EXTSRAM0HADDR(EXTSRAM0HADDR),
        .EXTSRAM0HWDATA(EXTSRAM0HWDATA),
        .EXTSRAM0HSEL(EXTSRAM0HSEL),
        .EXTSRAM0HCLK(EXTSRAM0HCLK),
        .EXTSRAM0HRESET(EXTSRAM0HRESET),
        .UART0RXD(UART0RXD),
        .UART0TXD(UART0TXD)
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
