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
    wire        CAN_RX = 1'b1; // from the transceiver
    wire        CAN_TX; // to the transceiver
    wire        MDC; // management clock of the PHY
    tri1        MDIO; // management data of the PHY, to be pulled up
    wire        RGMII_TXC; // transmit clock
    wire        RGMII_TX_CTL; // transmit control
    wire [3:0]  RGMII_TXD; // transmit data
    wire        RGMII_RXC = 1'b0; // receive clock of the PHY
    wire        RGMII_RX_CTL = 1'b0; // receive control
    wire [3:0]  RGMII_RXD = {4{1'b0}}; // receive data
    wire        GTX_CLK = 1'b0; // transmit clock of the MAC, 125 MHz
    tri0        FLASH_SPI_HOLDN; // hold of the flash, always released, active low
    tri0        FLASH_SPI_CSN; // chip select of the flash, active low
    tri0        FLASH_SPI_MISO; // data from the flash
    tri0        FLASH_SPI_MOSI; // data to the flash
    tri0        FLASH_SPI_WPN; // write protection of the flash, active low
    tri0        FLASH_SPI_CLK; // clock of the flash
    wire        DDR_STOP_O; // asks to stop DDR_MEM_CLK_I while its phase changes
    wire        DDR_CLK_I = 1'b0; // reference clock of the DDR3 controller
    wire        DDR_MEM_CLK_I = 1'b0; // clock of the DDR3 interface
    wire        DDR_LOCK_I = 1'b0; // DDR_MEM_CLK_I is stable
    wire        DDR_RSTN_I = hwRstn; // resets the DDR3 controller, active low
    wire        DDR_INIT_COMPLETE_O; // the DDR3 memory is ready
    wire [15:0] DDR_ADDR_O; // address of the memory
    wire [2:0]  DDR_BA_O; // bank of the memory
    wire        DDR_CS_N_O; // chip select of the memory, active low
    wire        DDR_RAS_N_O; // row address strobe, active low
    wire        DDR_CAS_N_O; // column address strobe, active low
    wire        DDR_WE_N_O; // write enable, active low
    wire        DDR_CLK_O; // clock of the memory
    wire        DDR_CLK_N_O; // the same, inverted
    wire        DDR_CKE_O; // clock enable
    wire        DDR_ODT_O; // termination
    wire        DDR_RESET_N_O; // resets the memory, active low
    wire [1:0]  DDR_DQM_O; // masks of the data
    tri0 [15:0] DDR_DQ_IO; // data of the memory
    tri0 [1:0]  DDR_DQS_IO; // strobes of the data
    tri0 [1:0]  DDR_DQS_N_IO; // the same, inverted
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
    wire [31:0] AHB2HRDATA = {32{1'b0}}; // data read, of AHB2
    wire        AHB2HREADYOUT = 1'b1; // the slave has finished, of AHB2
    wire [1:0]  AHB2HRESP = {2{1'b0}}; // response; any value but 0 is an error, of AHB2
    wire [1:0]  AHB2HTRANS; // kind of the transfer, of AHB2
    wire [2:0]  AHB2HBURST; // kind of the burst, of AHB2
    wire [3:0]  AHB2HPROT; // protection of the transfer, of AHB2
    wire [2:0]  AHB2HSIZE; // size of the transfer, of AHB2
    wire        AHB2HWRITE; // 1 writes, of AHB2
    wire        AHB2HREADYMUX; // the transfer before has finished, of AHB2
    wire [3:0]  AHB2HMASTER; // number of the master, of AHB2
    wire        AHB2HMASTLOCK; // the transfer is locked, of AHB2
    wire [31:0] AHB2HADDR; // address, of AHB2
    wire [31:0] AHB2HWDATA; // data written, of AHB2
    wire        AHB2HSEL; // the address is one of the port, of AHB2
    wire        AHB2HCLK; // clock of the port, of AHB2
    wire        AHB2HRESET; // reset of the port, of AHB2, active low
    wire [31:0] AHB3HRDATA = {32{1'b0}}; // data read, of AHB3
    wire        AHB3HREADYOUT = 1'b1; // the slave has finished, of AHB3
    wire [1:0]  AHB3HRESP = {2{1'b0}}; // response; any value but 0 is an error, of AHB3
    wire [1:0]  AHB3HTRANS; // kind of the transfer, of AHB3
    wire [2:0]  AHB3HBURST; // kind of the burst, of AHB3
    wire [3:0]  AHB3HPROT; // protection of the transfer, of AHB3
    wire [2:0]  AHB3HSIZE; // size of the transfer, of AHB3
    wire        AHB3HWRITE; // 1 writes, of AHB3
    wire        AHB3HREADYMUX; // the transfer before has finished, of AHB3
    wire [3:0]  AHB3HMASTER; // number of the master, of AHB3
    wire        AHB3HMASTLOCK; // the transfer is locked, of AHB3
    wire [31:0] AHB3HADDR; // address, of AHB3
    wire [31:0] AHB3HWDATA; // data written, of AHB3
    wire        AHB3HSEL; // the address is one of the port, of AHB3
    wire        AHB3HCLK; // clock of the port, of AHB3
    wire        AHB3HRESET; // reset of the port, of AHB3, active low
    wire [31:0] AHB4HRDATA = {32{1'b0}}; // data read, of AHB4
    wire        AHB4HREADYOUT = 1'b1; // the slave has finished, of AHB4
    wire [1:0]  AHB4HRESP = {2{1'b0}}; // response; any value but 0 is an error, of AHB4
    wire [1:0]  AHB4HTRANS; // kind of the transfer, of AHB4
    wire [2:0]  AHB4HBURST; // kind of the burst, of AHB4
    wire [3:0]  AHB4HPROT; // protection of the transfer, of AHB4
    wire [2:0]  AHB4HSIZE; // size of the transfer, of AHB4
    wire        AHB4HWRITE; // 1 writes, of AHB4
    wire        AHB4HREADYMUX; // the transfer before has finished, of AHB4
    wire [3:0]  AHB4HMASTER; // number of the master, of AHB4
    wire        AHB4HMASTLOCK; // the transfer is locked, of AHB4
    wire [31:0] AHB4HADDR; // address, of AHB4
    wire [31:0] AHB4HWDATA; // data written, of AHB4
    wire        AHB4HSEL; // the address is one of the port, of AHB4
    wire        AHB4HCLK; // clock of the port, of AHB4
    wire        AHB4HRESET; // reset of the port, of AHB4, active low
    wire [31:0] AHB5HRDATA = {32{1'b0}}; // data read, of AHB5
    wire        AHB5HREADYOUT = 1'b1; // the slave has finished, of AHB5
    wire [1:0]  AHB5HRESP = {2{1'b0}}; // response; any value but 0 is an error, of AHB5
    wire [1:0]  AHB5HTRANS; // kind of the transfer, of AHB5
    wire [2:0]  AHB5HBURST; // kind of the burst, of AHB5
    wire [3:0]  AHB5HPROT; // protection of the transfer, of AHB5
    wire [2:0]  AHB5HSIZE; // size of the transfer, of AHB5
    wire        AHB5HWRITE; // 1 writes, of AHB5
    wire        AHB5HREADYMUX; // the transfer before has finished, of AHB5
    wire [3:0]  AHB5HMASTER; // number of the master, of AHB5
    wire        AHB5HMASTLOCK; // the transfer is locked, of AHB5
    wire [31:0] AHB5HADDR; // address, of AHB5
    wire [31:0] AHB5HWDATA; // data written, of AHB5
    wire        AHB5HSEL; // the address is one of the port, of AHB5
    wire        AHB5HCLK; // clock of the port, of AHB5
    wire        AHB5HRESET; // reset of the port, of AHB5, active low
    wire [31:0] AHB6HRDATA = {32{1'b0}}; // data read, of AHB6
    wire        AHB6HREADYOUT = 1'b1; // the slave has finished, of AHB6
    wire [1:0]  AHB6HRESP = {2{1'b0}}; // response; any value but 0 is an error, of AHB6
    wire [1:0]  AHB6HTRANS; // kind of the transfer, of AHB6
    wire [2:0]  AHB6HBURST; // kind of the burst, of AHB6
    wire [3:0]  AHB6HPROT; // protection of the transfer, of AHB6
    wire [2:0]  AHB6HSIZE; // size of the transfer, of AHB6
    wire        AHB6HWRITE; // 1 writes, of AHB6
    wire        AHB6HREADYMUX; // the transfer before has finished, of AHB6
    wire [3:0]  AHB6HMASTER; // number of the master, of AHB6
    wire        AHB6HMASTLOCK; // the transfer is locked, of AHB6
    wire [31:0] AHB6HADDR; // address, of AHB6
    wire [31:0] AHB6HWDATA; // data written, of AHB6
    wire        AHB6HSEL; // the address is one of the port, of AHB6
    wire        AHB6HCLK; // clock of the port, of AHB6
    wire        AHB6HRESET; // reset of the port, of AHB6, active low
    wire        UART0RXD = 1'b1; // serial data to receive
    wire        UART0TXD; // serial data sent
    wire        UART1RXD = 1'b1; // serial data to receive
    wire        UART1TXD; // serial data sent
    wire        TIMER0EXTIN = 1'b0; // gate or events of the timer
    wire        TIMER1EXTIN = 1'b0; // gate or events of the timer
    wire        RTCSRCCLK = 1'b0; // source clock of the seconds, sampled with HCLK and slower than HCLK / 4
    tri1        SCL; // clock of the bus, to be pulled up
    tri1        SDA; // data of the bus, to be pulled up
    wire        MOSI; // data to the slave
    wire        MISO = 1'b0; // data from the slave
    wire        SCLK; // clock of the slave
    wire        NSS; // slave select, active low
    wire        SD_CLK; // clock of the card
    wire        SD_SPICLK = 1'b0; // source clock of SD_CLK, sampled with HCLK and slower than HCLK / 4
    wire        SD_CS; // chip select of the card, active low
    wire        SD_DATAIN = 1'b1; // data from the card
    wire        SD_DATAOUT; // data to the card
    wire        SD_CARD_INIT; // software has initialised the card
    wire        SD_CHECKIN = 1'b1; // switch of the card's socket, low with a card, active low
    wire        SD_CHECKOUT; // a card is present
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
    wire [31:0] APB3PADDR; // address, of APB3
    wire        APB3PENABLE; // second and further cycles of the transfer, of APB3
    wire        APB3PWRITE; // 1 writes, of APB3
    wire [3:0]  APB3PSTRB; // bytes that are written, of APB3
    wire [2:0]  APB3PPROT; // protection of the transfer, of APB3
    wire [31:0] APB3PWDATA; // data written, of APB3
    wire        APB3PSEL; // the address is one of the port, of APB3
    wire [31:0] APB3PRDATA = {32{1'b0}}; // data read, of APB3
    wire        APB3PREDADY = 1'b1; // the slave has finished, of APB3
    wire        APB3PSLVERR = 1'b0; // the transfer has failed, of APB3
    wire        APB3PCLK; // clock of the port, of APB3
    wire        APB3PRESET; // reset of the port, of APB3, active low
    wire [31:0] APB4PADDR; // address, of APB4
    wire        APB4PENABLE; // second and further cycles of the transfer, of APB4
    wire        APB4PWRITE; // 1 writes, of APB4
    wire [3:0]  APB4PSTRB; // bytes that are written, of APB4
    wire [2:0]  APB4PPROT; // protection of the transfer, of APB4
    wire [31:0] APB4PWDATA; // data written, of APB4
    wire        APB4PSEL; // the address is one of the port, of APB4
    wire [31:0] APB4PRDATA = {32{1'b0}}; // data read, of APB4
    wire        APB4PREDADY = 1'b1; // the slave has finished, of APB4
    wire        APB4PSLVERR = 1'b0; // the transfer has failed, of APB4
    wire        APB4PCLK; // clock of the port, of APB4
    wire        APB4PRESET; // reset of the port, of APB4, active low
    wire [31:0] APB5PADDR; // address, of APB5
    wire        APB5PENABLE; // second and further cycles of the transfer, of APB5
    wire        APB5PWRITE; // 1 writes, of APB5
    wire [3:0]  APB5PSTRB; // bytes that are written, of APB5
    wire [2:0]  APB5PPROT; // protection of the transfer, of APB5
    wire [31:0] APB5PWDATA; // data written, of APB5
    wire        APB5PSEL; // the address is one of the port, of APB5
    wire [31:0] APB5PRDATA = {32{1'b0}}; // data read, of APB5
    wire        APB5PREDADY = 1'b1; // the slave has finished, of APB5
    wire        APB5PSLVERR = 1'b0; // the transfer has failed, of APB5
    wire        APB5PCLK; // clock of the port, of APB5
    wire        APB5PRESET; // reset of the port, of APB5, active low
    wire [31:0] APB6PADDR; // address, of APB6
    wire        APB6PENABLE; // second and further cycles of the transfer, of APB6
    wire        APB6PWRITE; // 1 writes, of APB6
    wire [3:0]  APB6PSTRB; // bytes that are written, of APB6
    wire [2:0]  APB6PPROT; // protection of the transfer, of APB6
    wire [31:0] APB6PWDATA; // data written, of APB6
    wire        APB6PSEL; // the address is one of the port, of APB6
    wire [31:0] APB6PRDATA = {32{1'b0}}; // data read, of APB6
    wire        APB6PREDADY = 1'b1; // the slave has finished, of APB6
    wire        APB6PSLVERR = 1'b0; // the transfer has failed, of APB6
    wire        APB6PCLK; // clock of the port, of APB6
    wire        APB6PRESET; // reset of the port, of APB6, active low
    wire [31:0] APB7PADDR; // address, of APB7
    wire        APB7PENABLE; // second and further cycles of the transfer, of APB7
    wire        APB7PWRITE; // 1 writes, of APB7
    wire [3:0]  APB7PSTRB; // bytes that are written, of APB7
    wire [2:0]  APB7PPROT; // protection of the transfer, of APB7
    wire [31:0] APB7PWDATA; // data written, of APB7
    wire        APB7PSEL; // the address is one of the port, of APB7
    wire [31:0] APB7PRDATA = {32{1'b0}}; // data read, of APB7
    wire        APB7PREDADY = 1'b1; // the slave has finished, of APB7
    wire        APB7PSLVERR = 1'b0; // the transfer has failed, of APB7
    wire        APB7PCLK; // clock of the port, of APB7
    wire        APB7PRESET; // reset of the port, of APB7, active low
    wire [31:0] APB8PADDR; // address, of APB8
    wire        APB8PENABLE; // second and further cycles of the transfer, of APB8
    wire        APB8PWRITE; // 1 writes, of APB8
    wire [3:0]  APB8PSTRB; // bytes that are written, of APB8
    wire [2:0]  APB8PPROT; // protection of the transfer, of APB8
    wire [31:0] APB8PWDATA; // data written, of APB8
    wire        APB8PSEL; // the address is one of the port, of APB8
    wire [31:0] APB8PRDATA = {32{1'b0}}; // data read, of APB8
    wire        APB8PREDADY = 1'b1; // the slave has finished, of APB8
    wire        APB8PSLVERR = 1'b0; // the transfer has failed, of APB8
    wire        APB8PCLK; // clock of the port, of APB8
    wire        APB8PRESET; // reset of the port, of APB8, active low
    wire [31:0] APB9PADDR; // address, of APB9
    wire        APB9PENABLE; // second and further cycles of the transfer, of APB9
    wire        APB9PWRITE; // 1 writes, of APB9
    wire [3:0]  APB9PSTRB; // bytes that are written, of APB9
    wire [2:0]  APB9PPROT; // protection of the transfer, of APB9
    wire [31:0] APB9PWDATA; // data written, of APB9
    wire        APB9PSEL; // the address is one of the port, of APB9
    wire [31:0] APB9PRDATA = {32{1'b0}}; // data read, of APB9
    wire        APB9PREDADY = 1'b1; // the slave has finished, of APB9
    wire        APB9PSLVERR = 1'b0; // the transfer has failed, of APB9
    wire        APB9PCLK; // clock of the port, of APB9
    wire        APB9PRESET; // reset of the port, of APB9, active low
    wire [31:0] APB10PADDR; // address, of APB10
    wire        APB10PENABLE; // second and further cycles of the transfer, of APB10
    wire        APB10PWRITE; // 1 writes, of APB10
    wire [3:0]  APB10PSTRB; // bytes that are written, of APB10
    wire [2:0]  APB10PPROT; // protection of the transfer, of APB10
    wire [31:0] APB10PWDATA; // data written, of APB10
    wire        APB10PSEL; // the address is one of the port, of APB10
    wire [31:0] APB10PRDATA = {32{1'b0}}; // data read, of APB10
    wire        APB10PREDADY = 1'b1; // the slave has finished, of APB10
    wire        APB10PSLVERR = 1'b0; // the transfer has failed, of APB10
    wire        APB10PCLK; // clock of the port, of APB10
    wire        APB10PRESET; // reset of the port, of APB10, active low
    wire [31:0] APB11PADDR; // address, of APB11
    wire        APB11PENABLE; // second and further cycles of the transfer, of APB11
    wire        APB11PWRITE; // 1 writes, of APB11
    wire [3:0]  APB11PSTRB; // bytes that are written, of APB11
    wire [2:0]  APB11PPROT; // protection of the transfer, of APB11
    wire [31:0] APB11PWDATA; // data written, of APB11
    wire        APB11PSEL; // the address is one of the port, of APB11
    wire [31:0] APB11PRDATA = {32{1'b0}}; // data read, of APB11
    wire        APB11PREDADY = 1'b1; // the slave has finished, of APB11
    wire        APB11PSLVERR = 1'b0; // the transfer has failed, of APB11
    wire        APB11PCLK; // clock of the port, of APB11
    wire        APB11PRESET; // reset of the port, of APB11, active low
    wire [31:0] APB12PADDR; // address, of APB12
    wire        APB12PENABLE; // second and further cycles of the transfer, of APB12
    wire        APB12PWRITE; // 1 writes, of APB12
    wire [3:0]  APB12PSTRB; // bytes that are written, of APB12
    wire [2:0]  APB12PPROT; // protection of the transfer, of APB12
    wire [31:0] APB12PWDATA; // data written, of APB12
    wire        APB12PSEL; // the address is one of the port, of APB12
    wire [31:0] APB12PRDATA = {32{1'b0}}; // data read, of APB12
    wire        APB12PREDADY = 1'b1; // the slave has finished, of APB12
    wire        APB12PSLVERR = 1'b0; // the transfer has failed, of APB12
    wire        APB12PCLK; // clock of the port, of APB12
    wire        APB12PRESET; // reset of the port, of APB12, active low
    wire [31:0] APB13PADDR; // address, of APB13
    wire        APB13PENABLE; // second and further cycles of the transfer, of APB13
    wire        APB13PWRITE; // 1 writes, of APB13
    wire [3:0]  APB13PSTRB; // bytes that are written, of APB13
    wire [2:0]  APB13PPROT; // protection of the transfer, of APB13
    wire [31:0] APB13PWDATA; // data written, of APB13
    wire        APB13PSEL; // the address is one of the port, of APB13
    wire [31:0] APB13PRDATA = {32{1'b0}}; // data read, of APB13
    wire        APB13PREDADY = 1'b1; // the slave has finished, of APB13
    wire        APB13PSLVERR = 1'b0; // the transfer has failed, of APB13
    wire        APB13PCLK; // clock of the port, of APB13
    wire        APB13PRESET; // reset of the port, of APB13, active low
    wire [31:0] APB14PADDR; // address, of APB14
    wire        APB14PENABLE; // second and further cycles of the transfer, of APB14
    wire        APB14PWRITE; // 1 writes, of APB14
    wire [3:0]  APB14PSTRB; // bytes that are written, of APB14
    wire [2:0]  APB14PPROT; // protection of the transfer, of APB14
    wire [31:0] APB14PWDATA; // data written, of APB14
    wire        APB14PSEL; // the address is one of the port, of APB14
    wire [31:0] APB14PRDATA = {32{1'b0}}; // data read, of APB14
    wire        APB14PREDADY = 1'b1; // the slave has finished, of APB14
    wire        APB14PSLVERR = 1'b0; // the transfer has failed, of APB14
    wire        APB14PCLK; // clock of the port, of APB14
    wire        APB14PRESET; // reset of the port, of APB14, active low
    wire [31:0] APB15PADDR; // address, of APB15
    wire        APB15PENABLE; // second and further cycles of the transfer, of APB15
    wire        APB15PWRITE; // 1 writes, of APB15
    wire [3:0]  APB15PSTRB; // bytes that are written, of APB15
    wire [2:0]  APB15PPROT; // protection of the transfer, of APB15
    wire [31:0] APB15PWDATA; // data written, of APB15
    wire        APB15PSEL; // the address is one of the port, of APB15
    wire [31:0] APB15PRDATA = {32{1'b0}}; // data read, of APB15
    wire        APB15PREDADY = 1'b1; // the slave has finished, of APB15
    wire        APB15PSLVERR = 1'b0; // the transfer has failed, of APB15
    wire        APB15PCLK; // clock of the port, of APB15
    wire        APB15PRESET; // reset of the port, of APB15, active low
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
        .EXTINT(EXTINT),
        .GPIO(GPIO),
        .CAN_RX(CAN_RX),
        .CAN_TX(CAN_TX),
        .MDC(MDC),
        .MDIO(MDIO),
        .RGMII_TXC(RGMII_TXC),
        .RGMII_TX_CTL(RGMII_TX_CTL),
        .RGMII_TXD(RGMII_TXD),
        .RGMII_RXC(RGMII_RXC),
        .RGMII_RX_CTL(RGMII_RX_CTL),
        .RGMII_RXD(RGMII_RXD),
        .GTX_CLK(GTX_CLK),
        .FLASH_SPI_HOLDN(FLASH_SPI_HOLDN),
        .FLASH_SPI_CSN(FLASH_SPI_CSN),
        .FLASH_SPI_MISO(FLASH_SPI_MISO),
        .FLASH_SPI_MOSI(FLASH_SPI_MOSI),
        .FLASH_SPI_WPN(FLASH_SPI_WPN),
        .FLASH_SPI_CLK(FLASH_SPI_CLK),
        .DDR_STOP_O(DDR_STOP_O),
        .DDR_CLK_I(DDR_CLK_I),
        .DDR_MEM_CLK_I(DDR_MEM_CLK_I),
        .DDR_LOCK_I(DDR_LOCK_I),
        .DDR_RSTN_I(DDR_RSTN_I),
        .DDR_INIT_COMPLETE_O(DDR_INIT_COMPLETE_O),
        .DDR_ADDR_O(DDR_ADDR_O),
        .DDR_BA_O(DDR_BA_O),
        .DDR_CS_N_O(DDR_CS_N_O),
        .DDR_RAS_N_O(DDR_RAS_N_O),
        .DDR_CAS_N_O(DDR_CAS_N_O),
        .DDR_WE_N_O(DDR_WE_N_O),
        .DDR_CLK_O(DDR_CLK_O),
        .DDR_CLK_N_O(DDR_CLK_N_O),
        .DDR_CKE_O(DDR_CKE_O),
        .DDR_ODT_O(DDR_ODT_O),
        .DDR_RESET_N_O(DDR_RESET_N_O),
        .DDR_DQM_O(DDR_DQM_O),
        .DDR_DQ_IO(DDR_DQ_IO),
        .DDR_DQS_IO(DDR_DQS_IO),
        .DDR_DQS_N_IO(DDR_DQS_N_IO),
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
        .AHB2HRDATA(AHB2HRDATA),
        .AHB2HREADYOUT(AHB2HREADYOUT),
        .AHB2HRESP(AHB2HRESP),
        .AHB2HTRANS(AHB2HTRANS),
        .AHB2HBURST(AHB2HBURST),
        .AHB2HPROT(AHB2HPROT),
        .AHB2HSIZE(AHB2HSIZE),
        .AHB2HWRITE(AHB2HWRITE),
        .AHB2HREADYMUX(AHB2HREADYMUX),
        .AHB2HMASTER(AHB2HMASTER),
        .AHB2HMASTLOCK(AHB2HMASTLOCK),
        .AHB2HADDR(AHB2HADDR),
        .AHB2HWDATA(AHB2HWDATA),
        .AHB2HSEL(AHB2HSEL),
        .AHB2HCLK(AHB2HCLK),
        .AHB2HRESET(AHB2HRESET),
        .AHB3HRDATA(AHB3HRDATA),
        .AHB3HREADYOUT(AHB3HREADYOUT),
        .AHB3HRESP(AHB3HRESP),
        .AHB3HTRANS(AHB3HTRANS),
        .AHB3HBURST(AHB3HBURST),
        .AHB3HPROT(AHB3HPROT),
        .AHB3HSIZE(AHB3HSIZE),
        .AHB3HWRITE(AHB3HWRITE),
        .AHB3HREADYMUX(AHB3HREADYMUX),
        .AHB3HMASTER(AHB3HMASTER),
        .AHB3HMASTLOCK(AHB3HMASTLOCK),
        .AHB3HADDR(AHB3HADDR),
        .AHB3HWDATA(AHB3HWDATA),
        .AHB3HSEL(AHB3HSEL),
        .AHB3HCLK(AHB3HCLK),
        .AHB3HRESET(AHB3HRESET),
        .AHB4HRDATA(AHB4HRDATA),
        .AHB4HREADYOUT(AHB4HREADYOUT),
        .AHB4HRESP(AHB4HRESP),
        .AHB4HTRANS(AHB4HTRANS),
        .AHB4HBURST(AHB4HBURST),
        .AHB4HPROT(AHB4HPROT),
        .AHB4HSIZE(AHB4HSIZE),
        .AHB4HWRITE(AHB4HWRITE),
        .AHB4HREADYMUX(AHB4HREADYMUX),
        .AHB4HMASTER(AHB4HMASTER),
        .AHB4HMASTLOCK(AHB4HMASTLOCK),
        .AHB4HADDR(AHB4HADDR),
        .AHB4HWDATA(AHB4HWDATA),
        .AHB4HSEL(AHB4HSEL),
        .AHB4HCLK(AHB4HCLK),
        .AHB4HRESET(AHB4HRESET),
        .AHB5HRDATA(AHB5HRDATA),
        .AHB5HREADYOUT(AHB5HREADYOUT),
        .AHB5HRESP(AHB5HRESP),
        .AHB5HTRANS(AHB5HTRANS),
        .AHB5HBURST(AHB5HBURST),
        .AHB5HPROT(AHB5HPROT),
        .AHB5HSIZE(AHB5HSIZE),
        .AHB5HWRITE(AHB5HWRITE),
        .AHB5HREADYMUX(AHB5HREADYMUX),
        .AHB5HMASTER(AHB5HMASTER),
        .AHB5HMASTLOCK(AHB5HMASTLOCK),
        .AHB5HADDR(AHB5HADDR),
        .AHB5HWDATA(AHB5HWDATA),
        .AHB5HSEL(AHB5HSEL),
        .AHB5HCLK(AHB5HCLK),
        .AHB5HRESET(AHB5HRESET),
        .AHB6HRDATA(AHB6HRDATA),
        .AHB6HREADYOUT(AHB6HREADYOUT),
        .AHB6HRESP(AHB6HRESP),
        .AHB6HTRANS(AHB6HTRANS),
        .AHB6HBURST(AHB6HBURST),
        .AHB6HPROT(AHB6HPROT),
        .AHB6HSIZE(AHB6HSIZE),
        .AHB6HWRITE(AHB6HWRITE),
        .AHB6HREADYMUX(AHB6HREADYMUX),
        .AHB6HMASTER(AHB6HMASTER),
        .AHB6HMASTLOCK(AHB6HMASTLOCK),
        .AHB6HADDR(AHB6HADDR),
        .AHB6HWDATA(AHB6HWDATA),
        .AHB6HSEL(AHB6HSEL),
        .AHB6HCLK(AHB6HCLK),
        .AHB6HRESET(AHB6HRESET),
        .UART0RXD(UART0RXD),
        .UART0TXD(UART0TXD),
        .UART1RXD(UART1RXD),
        .UART1TXD(UART1TXD),
        .TIMER0EXTIN(TIMER0EXTIN),
        .TIMER1EXTIN(TIMER1EXTIN),
        .RTCSRCCLK(RTCSRCCLK),
        .SCL(SCL),
        .SDA(SDA),
        .MOSI(MOSI),
        .MISO(MISO),
        .SCLK(SCLK),
        .NSS(NSS),
        .SD_CLK(SD_CLK),
        .SD_SPICLK(SD_SPICLK),
        .SD_CS(SD_CS),
        .SD_DATAIN(SD_DATAIN),
        .SD_DATAOUT(SD_DATAOUT),
        .SD_CARD_INIT(SD_CARD_INIT),
        .SD_CHECKIN(SD_CHECKIN),
        .SD_CHECKOUT(SD_CHECKOUT),
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
        .APB2PRESET(APB2PRESET),
        .APB3PADDR(APB3PADDR),
        .APB3PENABLE(APB3PENABLE),
        .APB3PWRITE(APB3PWRITE),
        .APB3PSTRB(APB3PSTRB),
        .APB3PPROT(APB3PPROT),
        .APB3PWDATA(APB3PWDATA),
        .APB3PSEL(APB3PSEL),
        .APB3PRDATA(APB3PRDATA),
        .APB3PREDADY(APB3PREDADY),
        .APB3PSLVERR(APB3PSLVERR),
        .APB3PCLK(APB3PCLK),
        .APB3PRESET(APB3PRESET),
        .APB4PADDR(APB4PADDR),
        .APB4PENABLE(APB4PENABLE),
        .APB4PWRITE(APB4PWRITE),
        .APB4PSTRB(APB4PSTRB),
        .APB4PPROT(APB4PPROT),
        .APB4PWDATA(APB4PWDATA),
        .APB4PSEL(APB4PSEL),
        .APB4PRDATA(APB4PRDATA),
        .APB4PREDADY(APB4PREDADY),
        .APB4PSLVERR(APB4PSLVERR),
        .APB4PCLK(APB4PCLK),
        .APB4PRESET(APB4PRESET),
        .APB5PADDR(APB5PADDR),
        .APB5PENABLE(APB5PENABLE),
        .APB5PWRITE(APB5PWRITE),
        .APB5PSTRB(APB5PSTRB),
        .APB5PPROT(APB5PPROT),
        .APB5PWDATA(APB5PWDATA),
        .APB5PSEL(APB5PSEL),
        .APB5PRDATA(APB5PRDATA),
        .APB5PREDADY(APB5PREDADY),
        .APB5PSLVERR(APB5PSLVERR),
        .APB5PCLK(APB5PCLK),
        .APB5PRESET(APB5PRESET),
        .APB6PADDR(APB6PADDR),
        .APB6PENABLE(APB6PENABLE),
        .APB6PWRITE(APB6PWRITE),
        .APB6PSTRB(APB6PSTRB),
        .APB6PPROT(APB6PPROT),
        .APB6PWDATA(APB6PWDATA),
        .APB6PSEL(APB6PSEL),
        .APB6PRDATA(APB6PRDATA),
        .APB6PREDADY(APB6PREDADY),
        .APB6PSLVERR(APB6PSLVERR),
        .APB6PCLK(APB6PCLK),
        .APB6PRESET(APB6PRESET),
        .APB7PADDR(APB7PADDR),
        .APB7PENABLE(APB7PENABLE),
        .APB7PWRITE(APB7PWRITE),
        .APB7PSTRB(APB7PSTRB),
        .APB7PPROT(APB7PPROT),
        .APB7PWDATA(APB7PWDATA),
        .APB7PSEL(APB7PSEL),
        .APB7PRDATA(APB7PRDATA),
        .APB7PREDADY(APB7PREDADY),
        .APB7PSLVERR(APB7PSLVERR),
        .APB7PCLK(APB7PCLK),
        .APB7PRESET(APB7PRESET),
        .APB8PADDR(APB8PADDR),
        .APB8PENABLE(APB8PENABLE),
        .APB8PWRITE(APB8PWRITE),
        .APB8PSTRB(APB8PSTRB),
        .APB8PPROT(APB8PPROT),
        .APB8PWDATA(APB8PWDATA),
        .APB8PSEL(APB8PSEL),
        .APB8PRDATA(APB8PRDATA),
        .APB8PREDADY(APB8PREDADY),
        .APB8PSLVERR(APB8PSLVERR),
        .APB8PCLK(APB8PCLK),
        .APB8PRESET(APB8PRESET),
        .APB9PADDR(APB9PADDR),
        .APB9PENABLE(APB9PENABLE),
        .APB9PWRITE(APB9PWRITE),
        .APB9PSTRB(APB9PSTRB),
        .APB9PPROT(APB9PPROT),
        .APB9PWDATA(APB9PWDATA),
        .APB9PSEL(APB9PSEL),
        .APB9PRDATA(APB9PRDATA),
        .APB9PREDADY(APB9PREDADY),
        .APB9PSLVERR(APB9PSLVERR),
        .APB9PCLK(APB9PCLK),
        .APB9PRESET(APB9PRESET),
        .APB10PADDR(APB10PADDR),
        .APB10PENABLE(APB10PENABLE),
        .APB10PWRITE(APB10PWRITE),
        .APB10PSTRB(APB10PSTRB),
        .APB10PPROT(APB10PPROT),
        .APB10PWDATA(APB10PWDATA),
        .APB10PSEL(APB10PSEL),
        .APB10PRDATA(APB10PRDATA),
        .APB10PREDADY(APB10PREDADY),
        .APB10PSLVERR(APB10PSLVERR),
        .APB10PCLK(APB10PCLK),
        .APB10PRESET(APB10PRESET),
        .APB11PADDR(APB11PADDR),
        .APB11PENABLE(APB11PENABLE),
        .APB11PWRITE(APB11PWRITE),
        .APB11PSTRB(APB11PSTRB),
        .APB11PPROT(APB11PPROT),
        .APB11PWDATA(APB11PWDATA),
        .APB11PSEL(APB11PSEL),
        .APB11PRDATA(APB11PRDATA),
        .APB11PREDADY(APB11PREDADY),
        .APB11PSLVERR(APB11PSLVERR),
        .APB11PCLK(APB11PCLK),
        .APB11PRESET(APB11PRESET),
        .APB12PADDR(APB12PADDR),
        .APB12PENABLE(APB12PENABLE),
        .APB12PWRITE(APB12PWRITE),
        .APB12PSTRB(APB12PSTRB),
        .APB12PPROT(APB12PPROT),
        .APB12PWDATA(APB12PWDATA),
        .APB12PSEL(APB12PSEL),
        .APB12PRDATA(APB12PRDATA),
        .APB12PREDADY(APB12PREDADY),
        .APB12PSLVERR(APB12PSLVERR),
        .APB12PCLK(APB12PCLK),
        .APB12PRESET(APB12PRESET),
        .APB13PADDR(APB13PADDR),
        .APB13PENABLE(APB13PENABLE),
        .APB13PWRITE(APB13PWRITE),
        .APB13PSTRB(APB13PSTRB),
        .APB13PPROT(APB13PPROT),
        .APB13PWDATA(APB13PWDATA),
        .APB13PSEL(APB13PSEL),
        .APB13PRDATA(APB13PRDATA),
        .APB13PREDADY(APB13PREDADY),
        .APB13PSLVERR(APB13PSLVERR),
        .APB13PCLK(APB13PCLK),
        .APB13PRESET(APB13PRESET),
        .APB14PADDR(APB14PADDR),
        .APB14PENABLE(APB14PENABLE),
        .APB14PWRITE(APB14PWRITE),
        .APB14PSTRB(APB14PSTRB),
        .APB14PPROT(APB14PPROT),
        .APB14PWDATA(APB14PWDATA),
        .APB14PSEL(APB14PSEL),
        .APB14PRDATA(APB14PRDATA),
        .APB14PREDADY(APB14PREDADY),
        .APB14PSLVERR(APB14PSLVERR),
        .APB14PCLK(APB14PCLK),
        .APB14PRESET(APB14PRESET),
        .APB15PADDR(APB15PADDR),
        .APB15PENABLE(APB15PENABLE),
        .APB15PWRITE(APB15PWRITE),
        .APB15PSTRB(APB15PSTRB),
        .APB15PPROT(APB15PPROT),
        .APB15PWDATA(APB15PWDATA),
        .APB15PSEL(APB15PSEL),
        .APB15PRDATA(APB15PRDATA),
        .APB15PREDADY(APB15PREDADY),
        .APB15PSLVERR(APB15PSLVERR),
        .APB15PCLK(APB15PCLK),
        .APB15PRESET(APB15PRESET),
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
