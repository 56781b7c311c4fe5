// A board for the simulation model of sensor-node.ipc: UART0 and UART1 are connected to each other, the upper eight GPIO
// pins show the lower ones, MISO hears MOSI. The processor's model plays a script of bus transfers.
`timescale 1ns / 1ps

module sensor_node_tb;
    reg clk = 1'b0;
    always #10 clk = ~clk;
    reg rtc_clk = 1'b0;
    always #160 rtc_clk = ~rtc_clk;
    reg power_good = 1'b0;
    initial #200 power_good = 1'b1;

    wire [15:0] gpio;
    assign gpio[15:8] = gpio[7:0];
    wire        from_uart0, from_uart1, mosi;
    tri1        scl, sda;
    tri1        ntrst, tms, tck, tdi, srst;
    wire [3:0]  strobes1, strobes2;
    wire [31:0] apb1_paddr, apb1_pwdata, ahb1_haddr;
    wire        apb1_psel, apb1_penable, apb1_pwrite;

    // A register on the first APB extension port.
    reg [31:0] remembered = 32'd0;
    always @(posedge clk)
        if (apb1_psel & apb1_penable & apb1_pwrite)
            remembered <= apb1_pwdata;

    Tarvo_ORIX_M1_Top dut (
        .HCLK(clk), .hwRstn(power_good), .EXTINT(4'd0),
        .JTAG_3(ntrst), .JTAG_5(tdi), .JTAG_7(tms), .JTAG_9(tck), .JTAG_15(srst),
        .GPIO(gpio), .UART0RXD(from_uart1), .UART0TXD(from_uart0), .UART1RXD(from_uart0), .UART1TXD(from_uart1),
        .TIMER0EXTIN(1'b0), .RTCSRCCLK(rtc_clk), .SCL(scl), .SDA(sda), .MOSI(mosi), .MISO(mosi),
        .AHB1HRDATA(32'hA0000001), .AHB1HREADYOUT(1'b1), .AHB1HRESP(2'b00), .AHB1HADDR(ahb1_haddr),
        .APB1PADDR(apb1_paddr), .APB1PSEL(apb1_psel), .APB1PENABLE(apb1_penable), .APB1PWRITE(apb1_pwrite),
        .APB1PWDATA(apb1_pwdata), .APB1PRDATA(remembered), .APB1PREDADY(1'b1), .APB1PSLVERR(1'b0),
        .APB2PRDATA(32'd0), .APB2PREDADY(1'b1), .APB2PSLVERR(1'b1)
    );
endmodule
