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
    wire [3:0]  EXTINT = {4{1'b0}}; // interrupts 12 (bit 0) to 15 (bit 3), requested while high
    tri0 [15:0] GPIO; // pins
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
    wire        UART0RXD = 1'b1; // serial data to receive
    wire        UART0TXD; // serial data sent
    wire        UART1RXD = 1'b1; // serial data to receive
    wire        UART1TXD; // serial data sent
    wire        TIMER0EXTIN = 1'b0; // gate or events of the timer
    wire        RTCSRCCLK = 1'b0; // source clock of the seconds, sampled with HCLK and slower than HCLK / 4
    tri1        SCL; // clock of the bus, to be pulled up
    tri1        SDA; // data of the bus, to be pulled up
    wire        MOSI; // data to the slave
    wire        MISO = 1'b0; // data from the slave
    wire        SCLK; // clock of the slave
    wire        NSS; // slave select, active low
    wire [31:0] APB1PADDR; // address, of APB1
    wire        APB1PENABLE; // second and further cycles of the transfer, of APB1
    wire        APB1PWRITE; // 1 writes, of APB1
    wire [3:0]  APB1PSTRB; // bytes that are written, of APB1
    wire [2:0]  APB1PPROT; // protection of the transfer, of APB1
    wire [31:0] APB1PWDATA; // data written, of APB1
    wire        APB1PSEL; // the address is one of the port, of APB1
    wire [31:0] APB1PRDATA = {32{1'b0}}; // data read, of APB1
    wire        APB1PREDADY = 1'b1; // the slave has finished, of APB1
    wire        APB1PSLVERR = 1'b0; // the transfer has failed, of APB1
    wire        APB1PCLK; // clock of the port, of APB1
    wire        APB1PRESET; // reset of the port, of APB1, active low
    wire [31:0] APB2PADDR; // address, of APB2
    wire        APB2PENABLE; // second and further cycles of the transfer, of APB2
    wire        APB2PWRITE; // 1 writes, of APB2
    wire [3:0]  APB2PSTRB; // bytes that are written, of APB2
    wire [2:0]  APB2PPROT; // protection of the transfer, of APB2
    wire [31:0] APB2PWDATA; // data written, of APB2
    wire        APB2PSEL; // the address is one of the port, of APB2
    wire [31:0] APB2PRDATA = {32{1'b0}}; // data read, of APB2
    wire        APB2PREDADY = 1'b1; // the slave has finished, of APB2
    wire        APB2PSLVERR = 1'b0; // the transfer has failed, of APB2
    wire        APB2PCLK; // clock of the port, of APB2
    wire        APB2PRESET; // reset of the port, of APB2, active low

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
        .EXTINT(EXTINT),
        .GPIO(GPIO),
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
        .UART0RXD(UART0RXD),
        .UART0TXD(UART0TXD),
        .UART1RXD(UART1RXD),
        .UART1TXD(UART1TXD),
        .TIMER0EXTIN(TIMER0EXTIN),
        .RTCSRCCLK(RTCSRCCLK),
        .SCL(SCL),
        .SDA(SDA),
        .MOSI(MOSI),
        .MISO(MISO),
        .SCLK(SCLK),
        .NSS(NSS),
        .APB1PADDR(APB1PADDR),
        .APB1PENABLE(APB1PENABLE),
        .APB1PWRITE(APB1PWRITE),
        .APB1PSTRB(APB1PSTRB),
        .APB1PPROT(APB1PPROT),
        .APB1PWDATA(APB1PWDATA),
        .APB1PSEL(APB1PSEL),
        .APB1PRDATA(APB1PRDATA),
        .APB1PREDADY(APB1PREDADY),
        .APB1PSLVERR(APB1PSLVERR),
        .APB1PCLK(APB1PCLK),
        .APB1PRESET(APB1PRESET),
        .APB2PADDR(APB2PADDR),
        .APB2PENABLE(APB2PENABLE),
        .APB2PWRITE(APB2PWRITE),
        .APB2PSTRB(APB2PSTRB),
        .APB2PPROT(APB2PPROT),
        .APB2PWDATA(APB2PWDATA),
        .APB2PSEL(APB2PSEL),
        .APB2PRDATA(APB2PRDATA),
        .APB2PREDADY(APB2PREDADY),
        .APB2PSLVERR(APB2PSLVERR),
        .APB2PCLK(APB2PCLK),
        .APB2PRESET(APB2PRESET)
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
