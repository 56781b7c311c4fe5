// Tarvo_ORIX_M1_Top without its contents, in SystemVerilog: for synthesis and lint of a design that takes the netlist later.
// Compile this file or the subsystem itself, never both.
// verilator lint_off DECLFILENAME
// verilator lint_off UNUSEDSIGNAL
// verilator lint_off UNDRIVEN
(* blackbox *)
module Tarvo_ORIX_M1_Top (
    input  logic         HCLK, // clocks processor, buses and blocks
    input  logic         hwRstn, // resets everything, debug included, active low
    output logic         LOCKUP, // the processor has stopped after a second fault
    output logic         HALTED, // the debugger has stopped the processor
    inout  wire          JTAG_7, // TMS or SWDIO
    inout  wire          JTAG_9, // TCK or SWCLK, clocks the debug port
    inout  wire          JTAG_3, // nTRST, resets the debug port, active low, to be pulled up
    inout  wire          JTAG_4, // driven low
    inout  wire          JTAG_5, // TDI
    inout  wire          JTAG_6, // driven low
    inout  wire          JTAG_8, // driven low
    inout  wire          JTAG_10, // driven low
    inout  wire          JTAG_11, // driven low
    inout  wire          JTAG_12, // driven low
    inout  wire          JTAG_13, // TDO
    inout  wire          JTAG_14, // driven low
    inout  wire          JTAG_15, // nSRST, resets everything but debug; left open, it can hold the subsystem in reset for ever, active low, to be pulled up
    inout  wire          JTAG_16, // driven low
    inout  wire          JTAG_17, // not connected
    inout  wire          JTAG_18, // driven low
    input  logic [3:0]   EXTINT, // interrupts 12 (bit 0) to 15 (bit 3), requested while high
    inout  wire  [15:0]  GPIO, // pins
    input  logic         CAN_RX, // from the transceiver
    output logic         CAN_TX, // to the transceiver
    output logic         MDC, // management clock of the PHY
    inout  wire          MDIO, // management data of the PHY, to be pulled up
    output logic         RGMII_TXC, // transmit clock
    output logic         RGMII_TX_CTL, // transmit control
    output logic [3:0]   RGMII_TXD, // transmit data
    input  logic         RGMII_RXC, // receive clock of the PHY
    input  logic         RGMII_RX_CTL, // receive control
    input  logic [3:0]   RGMII_RXD, // receive data
    input  logic         GTX_CLK, // transmit clock of the MAC, 125 MHz
    inout  wire          FLASH_SPI_HOLDN, // hold of the flash, always released, active low
    inout  wire          FLASH_SPI_CSN, // chip select of the flash, active low
    inout  wire          FLASH_SPI_MISO, // data from the flash
    inout  wire          FLASH_SPI_MOSI, // data to the flash
    inout  wire          FLASH_SPI_WPN, // write protection of the flash, active low
    inout  wire          FLASH_SPI_CLK, // clock of the flash
    output logic         DDR_STOP_O, // asks to stop DDR_MEM_CLK_I while its phase changes
    input  logic         DDR_CLK_I, // reference clock of the DDR3 controller
    input  logic         DDR_MEM_CLK_I, // clock of the DDR3 interface
    input  logic         DDR_LOCK_I, // DDR_MEM_CLK_I is stable
    input  logic         DDR_RSTN_I, // resets the DDR3 controller, active low
    output logic         DDR_INIT_COMPLETE_O, // the DDR3 memory is ready
    output logic [15:0]  DDR_ADDR_O, // address of the memory
    output logic [2:0]   DDR_BA_O, // bank of the memory
    output logic         DDR_CS_N_O, // chip select of the memory, active low
    output logic         DDR_RAS_N_O, // row address strobe, active low
    output logic         DDR_CAS_N_O, // column address strobe, active low
    output logic         DDR_WE_N_O, // write enable, active low
    output logic         DDR_CLK_O, // clock of the memory
    output logic         DDR_CLK_N_O, // the same, inverted
    output logic         DDR_CKE_O, // clock enable
    output logic         DDR_ODT_O, // termination
    output logic         DDR_RESET_N_O, // resets the memory, active low
    output logic [1:0]   DDR_DQM_O, // masks of the data
    inout  wire  [15:0]  DDR_DQ_IO, // data of the memory
    inout  wire  [1:0]   DDR_DQS_IO, // strobes of the data
    inout  wire  [1:0]   DDR_DQS_N_IO, // the same, inverted
    input  logic [31:0]  AHB1HRDATA, // data read, of AHB1
    input  logic         AHB1HREADYOUT, // the slave has finished, of AHB1
    input  logic [1:0]   AHB1HRESP, // response; any value but 0 is an error, of AHB1
    output logic [1:0]   AHB1HTRANS, // kind of the transfer, of AHB1
    output logic [2:0]   AHB1HBURST, // kind of the burst, of AHB1
    output logic [3:0]   AHB1HPROT, // protection of the transfer, of AHB1
    output logic [2:0]   AHB1HSIZE, // size of the transfer, of AHB1
    output logic         AHB1HWRITE, // 1 writes, of AHB1
    output logic         AHB1HREADYMUX, // the transfer before has finished, of AHB1
    output logic [3:0]   AHB1HMASTER, // number of the master, of AHB1
    output logic         AHB1HMASTLOCK, // the transfer is locked, of AHB1
    output logic [31:0]  AHB1HADDR, // address, of AHB1
    output logic [31:0]  AHB1HWDATA, // data written, of AHB1
    output logic         AHB1HSEL, // the address is one of the port, of AHB1
    output logic         AHB1HCLK, // clock of the port, of AHB1
    output logic         AHB1HRESET, // reset of the port, of AHB1, active low
    input  logic [31:0]  AHB2HRDATA, // data read, of AHB2
    input  logic         AHB2HREADYOUT, // the slave has finished, of AHB2
    input  logic [1:0]   AHB2HRESP, // response; any value but 0 is an error, of AHB2
    output logic [1:0]   AHB2HTRANS, // kind of the transfer, of AHB2
    output logic [2:0]   AHB2HBURST, // kind of the burst, of AHB2
    output logic [3:0]   AHB2HPROT, // protection of the transfer, of AHB2
    output logic [2:0]   AHB2HSIZE, // size of the transfer, of AHB2
    output logic         AHB2HWRITE, // 1 writes, of AHB2
    output logic         AHB2HREADYMUX, // the transfer before has finished, of AHB2
    output logic [3:0]   AHB2HMASTER, // number of the master, of AHB2
    output logic         AHB2HMASTLOCK, // the transfer is locked, of AHB2
    output logic [31:0]  AHB2HADDR, // address, of AHB2
    output logic [31:0]  AHB2HWDATA, // data written, of AHB2
    output logic         AHB2HSEL, // the address is one of the port, of AHB2
    output logic         AHB2HCLK, // clock of the port, of AHB2
    output logic         AHB2HRESET, // reset of the port, of AHB2, active low
    input  logic [31:0]  AHB3HRDATA, // data read, of AHB3
    input  logic         AHB3HREADYOUT, // the slave has finished, of AHB3
    input  logic [1:0]   AHB3HRESP, // response; any value but 0 is an error, of AHB3
    output logic [1:0]   AHB3HTRANS, // kind of the transfer, of AHB3
    output logic [2:0]   AHB3HBURST, // kind of the burst, of AHB3
    output logic [3:0]   AHB3HPROT, // protection of the transfer, of AHB3
    output logic [2:0]   AHB3HSIZE, // size of the transfer, of AHB3
    output logic         AHB3HWRITE, // 1 writes, of AHB3
    output logic         AHB3HREADYMUX, // the transfer before has finished, of AHB3
    output logic [3:0]   AHB3HMASTER, // number of the master, of AHB3
    output logic         AHB3HMASTLOCK, // the transfer is locked, of AHB3
    output logic [31:0]  AHB3HADDR, // address, of AHB3
    output logic [31:0]  AHB3HWDATA, // data written, of AHB3
    output logic         AHB3HSEL, // the address is one of the port, of AHB3
    output logic         AHB3HCLK, // clock of the port, of AHB3
    output logic         AHB3HRESET, // reset of the port, of AHB3, active low
    input  logic [31:0]  AHB4HRDATA, // data read, of AHB4
    input  logic         AHB4HREADYOUT, // the slave has finished, of AHB4
    input  logic [1:0]   AHB4HRESP, // response; any value but 0 is an error, of AHB4
    output logic [1:0]   AHB4HTRANS, // kind of the transfer, of AHB4
    output logic [2:0]   AHB4HBURST, // kind of the burst, of AHB4
    output logic [3:0]   AHB4HPROT, // protection of the transfer, of AHB4
    output logic [2:0]   AHB4HSIZE, // size of the transfer, of AHB4
    output logic         AHB4HWRITE, // 1 writes, of AHB4
    output logic         AHB4HREADYMUX, // the transfer before has finished, of AHB4
    output logic [3:0]   AHB4HMASTER, // number of the master, of AHB4
    output logic         AHB4HMASTLOCK, // the transfer is locked, of AHB4
    output logic [31:0]  AHB4HADDR, // address, of AHB4
    output logic [31:0]  AHB4HWDATA, // data written, of AHB4
    output logic         AHB4HSEL, // the address is one of the port, of AHB4
    output logic         AHB4HCLK, // clock of the port, of AHB4
    output logic         AHB4HRESET, // reset of the port, of AHB4, active low
    input  logic [31:0]  AHB5HRDATA, // data read, of AHB5
    input  logic         AHB5HREADYOUT, // the slave has finished, of AHB5
    input  logic [1:0]   AHB5HRESP, // response; any value but 0 is an error, of AHB5
    output logic [1:0]   AHB5HTRANS, // kind of the transfer, of AHB5
    output logic [2:0]   AHB5HBURST, // kind of the burst, of AHB5
    output logic [3:0]   AHB5HPROT, // protection of the transfer, of AHB5
    output logic [2:0]   AHB5HSIZE, // size of the transfer, of AHB5
    output logic         AHB5HWRITE, // 1 writes, of AHB5
    output logic         AHB5HREADYMUX, // the transfer before has finished, of AHB5
    output logic [3:0]   AHB5HMASTER, // number of the master, of AHB5
    output logic         AHB5HMASTLOCK, // the transfer is locked, of AHB5
    output logic [31:0]  AHB5HADDR, // address, of AHB5
    output logic [31:0]  AHB5HWDATA, // data written, of AHB5
    output logic         AHB5HSEL, // the address is one of the port, of AHB5
    output logic         AHB5HCLK, // clock of the port, of AHB5
    output logic         AHB5HRESET, // reset of the port, of AHB5, active low
    input  logic [31:0]  AHB6HRDATA, // data read, of AHB6
    input  logic         AHB6HREADYOUT, // the slave has finished, of AHB6
    input  logic [1:0]   AHB6HRESP, // response; any value but 0 is an error, of AHB6
    output logic [1:0]   AHB6HTRANS, // kind of the transfer, of AHB6
    output logic [2:0]   AHB6HBURST, // kind of the burst, of AHB6
    output logic [3:0]   AHB6HPROT, // protection of the transfer, of AHB6
    output logic [2:0]   AHB6HSIZE, // size of the transfer, of AHB6
    output logic         AHB6HWRITE, // 1 writes, of AHB6
    output logic         AHB6HREADYMUX, // the transfer before has finished, of AHB6
    output logic [3:0]   AHB6HMASTER, // number of the master, of AHB6
    output logic         AHB6HMASTLOCK, // the transfer is locked, of AHB6
    output logic [31:0]  AHB6HADDR, // address, of AHB6
    output logic [31:0]  AHB6HWDATA, // data written, of AHB6
    output logic         AHB6HSEL, // the address is one of the port, of AHB6
    output logic         AHB6HCLK, // clock of the port, of AHB6
    output logic         AHB6HRESET, // reset of the port, of AHB6, active low
    input  logic         UART0RXD, // serial data to receive
    output logic         UART0TXD, // serial data sent
    input  logic         UART1RXD, // serial data to receive
    output logic         UART1TXD, // serial data sent
    input  logic         TIMER0EXTIN, // gate or events of the timer
    input  logic         TIMER1EXTIN, // gate or events of the timer
    input  logic         RTCSRCCLK, // source clock of the seconds, sampled with HCLK and slower than HCLK / 4
    inout  wire          SCL, // clock of the bus, to be pulled up
    inout  wire          SDA, // data of the bus, to be pulled up
    output logic         MOSI, // data to the slave
    input  logic         MISO, // data from the slave
    output logic         SCLK, // clock of the slave
    output logic         NSS, // slave select, active low
    output logic         SD_CLK, // clock of the card
    input  logic         SD_SPICLK, // source clock of SD_CLK, sampled with HCLK and slower than HCLK / 4
    output logic         SD_CS, // chip select of the card, active low
    input  logic         SD_DATAIN, // data from the card
    output logic         SD_DATAOUT, // data to the card
    output logic         SD_CARD_INIT, // software has initialised the card
    input  logic         SD_CHECKIN, // switch of the card's socket, low with a card, active low
    output logic         SD_CHECKOUT, // a card is present
    output logic [31:0]  APB1PADDR, // address, of APB1
    output logic         APB1PENABLE, // second and further cycles of the transfer, of APB1
    output logic         APB1PWRITE, // 1 writes, of APB1
    output logic [3:0]   APB1PSTRB, // bytes that are written, of APB1
    output logic [2:0]   APB1PPROT, // protection of the transfer, of APB1
    output logic [31:0]  APB1PWDATA, // data written, of APB1
    output logic         APB1PSEL, // the address is one of the port, of APB1
    input  logic [31:0]  APB1PRDATA, // data read, of APB1
    input  logic         APB1PREDADY, // the slave has finished, of APB1
    input  logic         APB1PSLVERR, // the transfer has failed, of APB1
    output logic         APB1PCLK, // clock of the port, of APB1
    output logic         APB1PRESET, // reset of the port, of APB1, active low
    output logic [31:0]  APB2PADDR, // address, of APB2
    output logic         APB2PENABLE, // second and further cycles of the transfer, of APB2
    output logic         APB2PWRITE, // 1 writes, of APB2
    output logic [3:0]   APB2PSTRB, // bytes that are written, of APB2
    output logic [2:0]   APB2PPROT, // protection of the transfer, of APB2
    output logic [31:0]  APB2PWDATA, // data written, of APB2
    output logic         APB2PSEL, // the address is one of the port, of APB2
    input  logic [31:0]  APB2PRDATA, // data read, of APB2
    input  logic         APB2PREDADY, // the slave has finished, of APB2
    input  logic         APB2PSLVERR, // the transfer has failed, of APB2
    output logic         APB2PCLK, // clock of the port, of APB2
    output logic         APB2PRESET, // reset of the port, of APB2, active low
    output logic [31:0]  APB3PADDR, // address, of APB3
    output logic         APB3PENABLE, // second and further cycles of the transfer, of APB3
    output logic         APB3PWRITE, // 1 writes, of APB3
    output logic [3:0]   APB3PSTRB, // bytes that are written, of APB3
    output logic [2:0]   APB3PPROT, // protection of the transfer, of APB3
    output logic [31:0]  APB3PWDATA, // data written, of APB3
    output logic         APB3PSEL, // the address is one of the port, of APB3
    input  logic [31:0]  APB3PRDATA, // data read, of APB3
    input  logic         APB3PREDADY, // the slave has finished, of APB3
    input  logic         APB3PSLVERR, // the transfer has failed, of APB3
    output logic         APB3PCLK, // clock of the port, of APB3
    output logic         APB3PRESET, // reset of the port, of APB3, active low
    output logic [31:0]  APB4PADDR, // address, of APB4
    output logic         APB4PENABLE, // second and further cycles of the transfer, of APB4
    output logic         APB4PWRITE, // 1 writes, of APB4
    output logic [3:0]   APB4PSTRB, // bytes that are written, of APB4
    output logic [2:0]   APB4PPROT, // protection of the transfer, of APB4
    output logic [31:0]  APB4PWDATA, // data written, of APB4
    output logic         APB4PSEL, // the address is one of the port, of APB4
    input  logic [31:0]  APB4PRDATA, // data read, of APB4
    input  logic         APB4PREDADY, // the slave has finished, of APB4
    input  logic         APB4PSLVERR, // the transfer has failed, of APB4
    output logic         APB4PCLK, // clock of the port, of APB4
    output logic         APB4PRESET, // reset of the port, of APB4, active low
    output logic [31:0]  APB5PADDR, // address, of APB5
    output logic         APB5PENABLE, // second and further cycles of the transfer, of APB5
    output logic         APB5PWRITE, // 1 writes, of APB5
    output logic [3:0]   APB5PSTRB, // bytes that are written, of APB5
    output logic [2:0]   APB5PPROT, // protection of the transfer, of APB5
    output logic [31:0]  APB5PWDATA, // data written, of APB5
    output logic         APB5PSEL, // the address is one of the port, of APB5
    input  logic [31:0]  APB5PRDATA, // data read, of APB5
    input  logic         APB5PREDADY, // the slave has finished, of APB5
    input  logic         APB5PSLVERR, // the transfer has failed, of APB5
    output logic         APB5PCLK, // clock of the port, of APB5
    output logic         APB5PRESET, // reset of the port, of APB5, active low
    output logic [31:0]  APB6PADDR, // address, of APB6
    output logic         APB6PENABLE, // second and further cycles of the transfer, of APB6
    output logic         APB6PWRITE, // 1 writes, of APB6
    output logic [3:0]   APB6PSTRB, // bytes that are written, of APB6
    output logic [2:0]   APB6PPROT, // protection of the transfer, of APB6
    output logic [31:0]  APB6PWDATA, // data written, of APB6
    output logic         APB6PSEL, // the address is one of the port, of APB6
    input  logic [31:0]  APB6PRDATA, // data read, of APB6
    input  logic         APB6PREDADY, // the slave has finished, of APB6
    input  logic         APB6PSLVERR, // the transfer has failed, of APB6
    output logic         APB6PCLK, // clock of the port, of APB6
    output logic         APB6PRESET, // reset of the port, of APB6, active low
    output logic [31:0]  APB7PADDR, // address, of APB7
    output logic         APB7PENABLE, // second and further cycles of the transfer, of APB7
    output logic         APB7PWRITE, // 1 writes, of APB7
    output logic [3:0]   APB7PSTRB, // bytes that are written, of APB7
    output logic [2:0]   APB7PPROT, // protection of the transfer, of APB7
    output logic [31:0]  APB7PWDATA, // data written, of APB7
    output logic         APB7PSEL, // the address is one of the port, of APB7
    input  logic [31:0]  APB7PRDATA, // data read, of APB7
    input  logic         APB7PREDADY, // the slave has finished, of APB7
    input  logic         APB7PSLVERR, // the transfer has failed, of APB7
    output logic         APB7PCLK, // clock of the port, of APB7
    output logic         APB7PRESET, // reset of the port, of APB7, active low
    output logic [31:0]  APB8PADDR, // address, of APB8
    output logic         APB8PENABLE, // second and further cycles of the transfer, of APB8
    output logic         APB8PWRITE, // 1 writes, of APB8
    output logic [3:0]   APB8PSTRB, // bytes that are written, of APB8
    output logic [2:0]   APB8PPROT, // protection of the transfer, of APB8
    output logic [31:0]  APB8PWDATA, // data written, of APB8
    output logic         APB8PSEL, // the address is one of the port, of APB8
    input  logic [31:0]  APB8PRDATA, // data read, of APB8
    input  logic         APB8PREDADY, // the slave has finished, of APB8
    input  logic         APB8PSLVERR, // the transfer has failed, of APB8
    output logic         APB8PCLK, // clock of the port, of APB8
    output logic         APB8PRESET, // reset of the port, of APB8, active low
    output logic [31:0]  APB9PADDR, // address, of APB9
    output logic         APB9PENABLE, // second and further cycles of the transfer, of APB9
    output logic         APB9PWRITE, // 1 writes, of APB9
    output logic [3:0]   APB9PSTRB, // bytes that are written, of APB9
    output logic [2:0]   APB9PPROT, // protection of the transfer, of APB9
    output logic [31:0]  APB9PWDATA, // data written, of APB9
    output logic         APB9PSEL, // the address is one of the port, of APB9
    input  logic [31:0]  APB9PRDATA, // data read, of APB9
    input  logic         APB9PREDADY, // the slave has finished, of APB9
    input  logic         APB9PSLVERR, // the transfer has failed, of APB9
    output logic         APB9PCLK, // clock of the port, of APB9
    output logic         APB9PRESET, // reset of the port, of APB9, active low
    output logic [31:0]  APB10PADDR, // address, of APB10
    output logic         APB10PENABLE, // second and further cycles of the transfer, of APB10
    output logic         APB10PWRITE, // 1 writes, of APB10
    output logic [3:0]   APB10PSTRB, // bytes that are written, of APB10
    output logic [2:0]   APB10PPROT, // protection of the transfer, of APB10
    output logic [31:0]  APB10PWDATA, // data written, of APB10
    output logic         APB10PSEL, // the address is one of the port, of APB10
    input  logic [31:0]  APB10PRDATA, // data read, of APB10
    input  logic         APB10PREDADY, // the slave has finished, of APB10
    input  logic         APB10PSLVERR, // the transfer has failed, of APB10
    output logic         APB10PCLK, // clock of the port, of APB10
    output logic         APB10PRESET, // reset of the port, of APB10, active low
    output logic [31:0]  APB11PADDR, // address, of APB11
    output logic         APB11PENABLE, // second and further cycles of the transfer, of APB11
    output logic         APB11PWRITE, // 1 writes, of APB11
    output logic [3:0]   APB11PSTRB, // bytes that are written, of APB11
    output logic [2:0]   APB11PPROT, // protection of the transfer, of APB11
    output logic [31:0]  APB11PWDATA, // data written, of APB11
    output logic         APB11PSEL, // the address is one of the port, of APB11
    input  logic [31:0]  APB11PRDATA, // data read, of APB11
    input  logic         APB11PREDADY, // the slave has finished, of APB11
    input  logic         APB11PSLVERR, // the transfer has failed, of APB11
    output logic         APB11PCLK, // clock of the port, of APB11
    output logic         APB11PRESET, // reset of the port, of APB11, active low
    output logic [31:0]  APB12PADDR, // address, of APB12
    output logic         APB12PENABLE, // second and further cycles of the transfer, of APB12
    output logic         APB12PWRITE, // 1 writes, of APB12
    output logic [3:0]   APB12PSTRB, // bytes that are written, of APB12
    output logic [2:0]   APB12PPROT, // protection of the transfer, of APB12
    output logic [31:0]  APB12PWDATA, // data written, of APB12
    output logic         APB12PSEL, // the address is one of the port, of APB12
    input  logic [31:0]  APB12PRDATA, // data read, of APB12
    input  logic         APB12PREDADY, // the slave has finished, of APB12
    input  logic         APB12PSLVERR, // the transfer has failed, of APB12
    output logic         APB12PCLK, // clock of the port, of APB12
    output logic         APB12PRESET, // reset of the port, of APB12, active low
    output logic [31:0]  APB13PADDR, // address, of APB13
    output logic         APB13PENABLE, // second and further cycles of the transfer, of APB13
    output logic         APB13PWRITE, // 1 writes, of APB13
    output logic [3:0]   APB13PSTRB, // bytes that are written, of APB13
    output logic [2:0]   APB13PPROT, // protection of the transfer, of APB13
    output logic [31:0]  APB13PWDATA, // data written, of APB13
    output logic         APB13PSEL, // the address is one of the port, of APB13
    input  logic [31:0]  APB13PRDATA, // data read, of APB13
    input  logic         APB13PREDADY, // the slave has finished, of APB13
    input  logic         APB13PSLVERR, // the transfer has failed, of APB13
    output logic         APB13PCLK, // clock of the port, of APB13
    output logic         APB13PRESET, // reset of the port, of APB13, active low
    output logic [31:0]  APB14PADDR, // address, of APB14
    output logic         APB14PENABLE, // second and further cycles of the transfer, of APB14
    output logic         APB14PWRITE, // 1 writes, of APB14
    output logic [3:0]   APB14PSTRB, // bytes that are written, of APB14
    output logic [2:0]   APB14PPROT, // protection of the transfer, of APB14
    output logic [31:0]  APB14PWDATA, // data written, of APB14
    output logic         APB14PSEL, // the address is one of the port, of APB14
    input  logic [31:0]  APB14PRDATA, // data read, of APB14
    input  logic         APB14PREDADY, // the slave has finished, of APB14
    input  logic         APB14PSLVERR, // the transfer has failed, of APB14
    output logic         APB14PCLK, // clock of the port, of APB14
    output logic         APB14PRESET, // reset of the port, of APB14, active low
    output logic [31:0]  APB15PADDR, // address, of APB15
    output logic         APB15PENABLE, // second and further cycles of the transfer, of APB15
    output logic         APB15PWRITE, // 1 writes, of APB15
    output logic [3:0]   APB15PSTRB, // bytes that are written, of APB15
    output logic [2:0]   APB15PPROT, // protection of the transfer, of APB15
    output logic [31:0]  APB15PWDATA, // data written, of APB15
    output logic         APB15PSEL, // the address is one of the port, of APB15
    input  logic [31:0]  APB15PRDATA, // data read, of APB15
    input  logic         APB15PREDADY, // the slave has finished, of APB15
    input  logic         APB15PSLVERR, // the transfer has failed, of APB15
    output logic         APB15PCLK, // clock of the port, of APB15
    output logic         APB15PRESET, // reset of the port, of APB15, active low
    output logic [31:0]  APB16PADDR, // address, of APB16
    output logic         APB16PENABLE, // second and further cycles of the transfer, of APB16
    output logic         APB16PWRITE, // 1 writes, of APB16
    output logic [3:0]   APB16PSTRB, // bytes that are written, of APB16
    output logic [2:0]   APB16PPROT, // protection of the transfer, of APB16
    output logic [31:0]  APB16PWDATA, // data written, of APB16
    output logic         APB16PSEL, // the address is one of the port, of APB16
    input  logic [31:0]  APB16PRDATA, // data read, of APB16
    input  logic         APB16PREDADY, // the slave has finished, of APB16
    input  logic         APB16PSLVERR, // the transfer has failed, of APB16
    output logic         APB16PCLK, // clock of the port, of APB16
    output logic         APB16PRESET  // reset of the port, of APB16, active low
);
endmodule
