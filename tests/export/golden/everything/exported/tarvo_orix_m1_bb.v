// Tarvo_ORIX_M1_Top without its contents, in Verilog: for synthesis and lint of a design that takes the netlist later.
// Compile this file or the subsystem itself, never both.
// verilator lint_off DECLFILENAME
// verilator lint_off UNUSEDSIGNAL
// verilator lint_off UNDRIVEN
(* blackbox *)
module Tarvo_ORIX_M1_Top (
    input  wire          HCLK, // clocks processor, buses and blocks
    input  wire          hwRstn, // resets everything, debug included, active low
    output wire          LOCKUP, // the processor has stopped after a second fault
    output wire          HALTED, // the debugger has stopped the processor
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
    input  wire  [3:0]   EXTINT, // interrupts 12 (bit 0) to 15 (bit 3), requested while high
    inout  wire  [15:0]  GPIO, // pins
    input  wire          CAN_RX, // from the transceiver
    output wire          CAN_TX, // to the transceiver
    output wire          MDC, // management clock of the PHY
    inout  wire          MDIO, // management data of the PHY, to be pulled up
    output wire          RGMII_TXC, // transmit clock
    output wire          RGMII_TX_CTL, // transmit control
    output wire  [3:0]   RGMII_TXD, // transmit data
    input  wire          RGMII_RXC, // receive clock of the PHY
    input  wire          RGMII_RX_CTL, // receive control
    input  wire  [3:0]   RGMII_RXD, // receive data
    input  wire          GTX_CLK, // transmit clock of the MAC, 125 MHz
    inout  wire          FLASH_SPI_HOLDN, // hold of the flash, always released, active low
    inout  wire          FLASH_SPI_CSN, // chip select of the flash, active low
    inout  wire          FLASH_SPI_MISO, // data from the flash
    inout  wire          FLASH_SPI_MOSI, // data to the flash
    inout  wire          FLASH_SPI_WPN, // write protection of the flash, active low
    inout  wire          FLASH_SPI_CLK, // clock of the flash
    output wire          DDR_STOP_O, // asks to stop DDR_MEM_CLK_I while its phase changes
    input  wire          DDR_CLK_I, // reference clock of the DDR3 controller
    input  wire          DDR_MEM_CLK_I, // clock of the DDR3 interface
    input  wire          DDR_LOCK_I, // DDR_MEM_CLK_I is stable
    input  wire          DDR_RSTN_I, // resets the DDR3 controller, active low
    output wire          DDR_INIT_COMPLETE_O, // the DDR3 memory is ready
    output wire  [15:0]  DDR_ADDR_O, // address of the memory
    output wire  [2:0]   DDR_BA_O, // bank of the memory
    output wire          DDR_CS_N_O, // chip select of the memory, active low
    output wire          DDR_RAS_N_O, // row address strobe, active low
    output wire          DDR_CAS_N_O, // column address strobe, active low
    output wire          DDR_WE_N_O, // write enable, active low
    output wire          DDR_CLK_O, // clock of the memory
    output wire          DDR_CLK_N_O, // the same, inverted
    output wire          DDR_CKE_O, // clock enable
    output wire          DDR_ODT_O, // termination
    output wire          DDR_RESET_N_O, // resets the memory, active low
    output wire  [1:0]   DDR_DQM_O, // masks of the data
    inout  wire  [15:0]  DDR_DQ_IO, // data of the memory
    inout  wire  [1:0]   DDR_DQS_IO, // strobes of the data
    inout  wire  [1:0]   DDR_DQS_N_IO, // the same, inverted
    input  wire  [31:0]  AHB1HRDATA, // data read, of AHB1
    input  wire          AHB1HREADYOUT, // the slave has finished, of AHB1
    input  wire  [1:0]   AHB1HRESP, // response; any value but 0 is an error, of AHB1
    output wire  [1:0]   AHB1HTRANS, // kind of the transfer, of AHB1
    output wire  [2:0]   AHB1HBURST, // kind of the burst, of AHB1
    output wire  [3:0]   AHB1HPROT, // protection of the transfer, of AHB1
    output wire  [2:0]   AHB1HSIZE, // size of the transfer, of AHB1
    output wire          AHB1HWRITE, // 1 writes, of AHB1
    output wire          AHB1HREADYMUX, // the transfer before has finished, of AHB1
    output wire  [3:0]   AHB1HMASTER, // number of the master, of AHB1
    output wire          AHB1HMASTLOCK, // the transfer is locked, of AHB1
    output wire  [31:0]  AHB1HADDR, // address, of AHB1
    output wire  [31:0]  AHB1HWDATA, // data written, of AHB1
    output wire          AHB1HSEL, // the address is one of the port, of AHB1
    output wire          AHB1HCLK, // clock of the port, of AHB1
    output wire          AHB1HRESET, // reset of the port, of AHB1, active low
    input  wire  [31:0]  AHB2HRDATA, // data read, of AHB2
    input  wire          AHB2HREADYOUT, // the slave has finished, of AHB2
    input  wire  [1:0]   AHB2HRESP, // response; any value but 0 is an error, of AHB2
    output wire  [1:0]   AHB2HTRANS, // kind of the transfer, of AHB2
    output wire  [2:0]   AHB2HBURST, // kind of the burst, of AHB2
    output wire  [3:0]   AHB2HPROT, // protection of the transfer, of AHB2
    output wire  [2:0]   AHB2HSIZE, // size of the transfer, of AHB2
    output wire          AHB2HWRITE, // 1 writes, of AHB2
    output wire          AHB2HREADYMUX, // the transfer before has finished, of AHB2
    output wire  [3:0]   AHB2HMASTER, // number of the master, of AHB2
    output wire          AHB2HMASTLOCK, // the transfer is locked, of AHB2
    output wire  [31:0]  AHB2HADDR, // address, of AHB2
    output wire  [31:0]  AHB2HWDATA, // data written, of AHB2
    output wire          AHB2HSEL, // the address is one of the port, of AHB2
    output wire          AHB2HCLK, // clock of the port, of AHB2
    output wire          AHB2HRESET, // reset of the port, of AHB2, active low
    input  wire  [31:0]  AHB3HRDATA, // data read, of AHB3
    input  wire          AHB3HREADYOUT, // the slave has finished, of AHB3
    input  wire  [1:0]   AHB3HRESP, // response; any value but 0 is an error, of AHB3
    output wire  [1:0]   AHB3HTRANS, // kind of the transfer, of AHB3
    output wire  [2:0]   AHB3HBURST, // kind of the burst, of AHB3
    output wire  [3:0]   AHB3HPROT, // protection of the transfer, of AHB3
    output wire  [2:0]   AHB3HSIZE, // size of the transfer, of AHB3
    output wire          AHB3HWRITE, // 1 writes, of AHB3
    output wire          AHB3HREADYMUX, // the transfer before has finished, of AHB3
    output wire  [3:0]   AHB3HMASTER, // number of the master, of AHB3
    output wire          AHB3HMASTLOCK, // the transfer is locked, of AHB3
    output wire  [31:0]  AHB3HADDR, // address, of AHB3
    output wire  [31:0]  AHB3HWDATA, // data written, of AHB3
    output wire          AHB3HSEL, // the address is one of the port, of AHB3
    output wire          AHB3HCLK, // clock of the port, of AHB3
    output wire          AHB3HRESET, // reset of the port, of AHB3, active low
    input  wire  [31:0]  AHB4HRDATA, // data read, of AHB4
    input  wire          AHB4HREADYOUT, // the slave has finished, of AHB4
    input  wire  [1:0]   AHB4HRESP, // response; any value but 0 is an error, of AHB4
    output wire  [1:0]   AHB4HTRANS, // kind of the transfer, of AHB4
    output wire  [2:0]   AHB4HBURST, // kind of the burst, of AHB4
    output wire  [3:0]   AHB4HPROT, // protection of the transfer, of AHB4
    output wire  [2:0]   AHB4HSIZE, // size of the transfer, of AHB4
    output wire          AHB4HWRITE, // 1 writes, of AHB4
    output wire          AHB4HREADYMUX, // the transfer before has finished, of AHB4
    output wire  [3:0]   AHB4HMASTER, // number of the master, of AHB4
    output wire          AHB4HMASTLOCK, // the transfer is locked, of AHB4
    output wire  [31:0]  AHB4HADDR, // address, of AHB4
    output wire  [31:0]  AHB4HWDATA, // data written, of AHB4
    output wire          AHB4HSEL, // the address is one of the port, of AHB4
    output wire          AHB4HCLK, // clock of the port, of AHB4
    output wire          AHB4HRESET, // reset of the port, of AHB4, active low
    input  wire  [31:0]  AHB5HRDATA, // data read, of AHB5
    input  wire          AHB5HREADYOUT, // the slave has finished, of AHB5
    input  wire  [1:0]   AHB5HRESP, // response; any value but 0 is an error, of AHB5
    output wire  [1:0]   AHB5HTRANS, // kind of the transfer, of AHB5
    output wire  [2:0]   AHB5HBURST, // kind of the burst, of AHB5
    output wire  [3:0]   AHB5HPROT, // protection of the transfer, of AHB5
    output wire  [2:0]   AHB5HSIZE, // size of the transfer, of AHB5
    output wire          AHB5HWRITE, // 1 writes, of AHB5
    output wire          AHB5HREADYMUX, // the transfer before has finished, of AHB5
    output wire  [3:0]   AHB5HMASTER, // number of the master, of AHB5
    output wire          AHB5HMASTLOCK, // the transfer is locked, of AHB5
    output wire  [31:0]  AHB5HADDR, // address, of AHB5
    output wire  [31:0]  AHB5HWDATA, // data written, of AHB5
    output wire          AHB5HSEL, // the address is one of the port, of AHB5
    output wire          AHB5HCLK, // clock of the port, of AHB5
    output wire          AHB5HRESET, // reset of the port, of AHB5, active low
    input  wire  [31:0]  AHB6HRDATA, // data read, of AHB6
    input  wire          AHB6HREADYOUT, // the slave has finished, of AHB6
    input  wire  [1:0]   AHB6HRESP, // response; any value but 0 is an error, of AHB6
    output wire  [1:0]   AHB6HTRANS, // kind of the transfer, of AHB6
    output wire  [2:0]   AHB6HBURST, // kind of the burst, of AHB6
    output wire  [3:0]   AHB6HPROT, // protection of the transfer, of AHB6
    output wire  [2:0]   AHB6HSIZE, // size of the transfer, of AHB6
    output wire          AHB6HWRITE, // 1 writes, of AHB6
    output wire          AHB6HREADYMUX, // the transfer before has finished, of AHB6
    output wire  [3:0]   AHB6HMASTER, // number of the master, of AHB6
    output wire          AHB6HMASTLOCK, // the transfer is locked, of AHB6
    output wire  [31:0]  AHB6HADDR, // address, of AHB6
    output wire  [31:0]  AHB6HWDATA, // data written, of AHB6
    output wire          AHB6HSEL, // the address is one of the port, of AHB6
    output wire          AHB6HCLK, // clock of the port, of AHB6
    output wire          AHB6HRESET, // reset of the port, of AHB6, active low
    input  wire          UART0RXD, // serial data to receive
    output wire          UART0TXD, // serial data sent
    input  wire          UART1RXD, // serial data to receive
    output wire          UART1TXD, // serial data sent
    input  wire          TIMER0EXTIN, // gate or events of the timer
    input  wire          TIMER1EXTIN, // gate or events of the timer
    input  wire          RTCSRCCLK, // source clock of the seconds, sampled with HCLK and slower than HCLK / 4
    inout  wire          SCL, // clock of the bus, to be pulled up
    inout  wire          SDA, // data of the bus, to be pulled up
    output wire          MOSI, // data to the slave
    input  wire          MISO, // data from the slave
    output wire          SCLK, // clock of the slave
    output wire          NSS, // slave select, active low
    output wire          SD_CLK, // clock of the card
    input  wire          SD_SPICLK, // source clock of SD_CLK, sampled with HCLK and slower than HCLK / 4
    output wire          SD_CS, // chip select of the card, active low
    input  wire          SD_DATAIN, // data from the card
    output wire          SD_DATAOUT, // data to the card
    output wire          SD_CARD_INIT, // software has initialised the card
    input  wire          SD_CHECKIN, // switch of the card's socket, low with a card, active low
    output wire          SD_CHECKOUT, // a card is present
    output wire  [31:0]  APB1PADDR, // address, of APB1
    output wire          APB1PENABLE, // second and further cycles of the transfer, of APB1
    output wire          APB1PWRITE, // 1 writes, of APB1
    output wire  [3:0]   APB1PSTRB, // bytes that are written, of APB1
    output wire  [2:0]   APB1PPROT, // protection of the transfer, of APB1
    output wire  [31:0]  APB1PWDATA, // data written, of APB1
    output wire          APB1PSEL, // the address is one of the port, of APB1
    input  wire  [31:0]  APB1PRDATA, // data read, of APB1
    input  wire          APB1PREDADY, // the slave has finished, of APB1
    input  wire          APB1PSLVERR, // the transfer has failed, of APB1
    output wire          APB1PCLK, // clock of the port, of APB1
    output wire          APB1PRESET, // reset of the port, of APB1, active low
    output wire  [31:0]  APB2PADDR, // address, of APB2
    output wire          APB2PENABLE, // second and further cycles of the transfer, of APB2
    output wire          APB2PWRITE, // 1 writes, of APB2
    output wire  [3:0]   APB2PSTRB, // bytes that are written, of APB2
    output wire  [2:0]   APB2PPROT, // protection of the transfer, of APB2
    output wire  [31:0]  APB2PWDATA, // data written, of APB2
    output wire          APB2PSEL, // the address is one of the port, of APB2
    input  wire  [31:0]  APB2PRDATA, // data read, of APB2
    input  wire          APB2PREDADY, // the slave has finished, of APB2
    input  wire          APB2PSLVERR, // the transfer has failed, of APB2
    output wire          APB2PCLK, // clock of the port, of APB2
    output wire          APB2PRESET, // reset of the port, of APB2, active low
    output wire  [31:0]  APB3PADDR, // address, of APB3
    output wire          APB3PENABLE, // second and further cycles of the transfer, of APB3
    output wire          APB3PWRITE, // 1 writes, of APB3
    output wire  [3:0]   APB3PSTRB, // bytes that are written, of APB3
    output wire  [2:0]   APB3PPROT, // protection of the transfer, of APB3
    output wire  [31:0]  APB3PWDATA, // data written, of APB3
    output wire          APB3PSEL, // the address is one of the port, of APB3
    input  wire  [31:0]  APB3PRDATA, // data read, of APB3
    input  wire          APB3PREDADY, // the slave has finished, of APB3
    input  wire          APB3PSLVERR, // the transfer has failed, of APB3
    output wire          APB3PCLK, // clock of the port, of APB3
    output wire          APB3PRESET, // reset of the port, of APB3, active low
    output wire  [31:0]  APB4PADDR, // address, of APB4
    output wire          APB4PENABLE, // second and further cycles of the transfer, of APB4
    output wire          APB4PWRITE, // 1 writes, of APB4
    output wire  [3:0]   APB4PSTRB, // bytes that are written, of APB4
    output wire  [2:0]   APB4PPROT, // protection of the transfer, of APB4
    output wire  [31:0]  APB4PWDATA, // data written, of APB4
    output wire          APB4PSEL, // the address is one of the port, of APB4
    input  wire  [31:0]  APB4PRDATA, // data read, of APB4
    input  wire          APB4PREDADY, // the slave has finished, of APB4
    input  wire          APB4PSLVERR, // the transfer has failed, of APB4
    output wire          APB4PCLK, // clock of the port, of APB4
    output wire          APB4PRESET, // reset of the port, of APB4, active low
    output wire  [31:0]  APB5PADDR, // address, of APB5
    output wire          APB5PENABLE, // second and further cycles of the transfer, of APB5
    output wire          APB5PWRITE, // 1 writes, of APB5
    output wire  [3:0]   APB5PSTRB, // bytes that are written, of APB5
    output wire  [2:0]   APB5PPROT, // protection of the transfer, of APB5
    output wire  [31:0]  APB5PWDATA, // data written, of APB5
    output wire          APB5PSEL, // the address is one of the port, of APB5
    input  wire  [31:0]  APB5PRDATA, // data read, of APB5
    input  wire          APB5PREDADY, // the slave has finished, of APB5
    input  wire          APB5PSLVERR, // the transfer has failed, of APB5
    output wire          APB5PCLK, // clock of the port, of APB5
    output wire          APB5PRESET, // reset of the port, of APB5, active low
    output wire  [31:0]  APB6PADDR, // address, of APB6
    output wire          APB6PENABLE, // second and further cycles of the transfer, of APB6
    output wire          APB6PWRITE, // 1 writes, of APB6
    output wire  [3:0]   APB6PSTRB, // bytes that are written, of APB6
    output wire  [2:0]   APB6PPROT, // protection of the transfer, of APB6
    output wire  [31:0]  APB6PWDATA, // data written, of APB6
    output wire          APB6PSEL, // the address is one of the port, of APB6
    input  wire  [31:0]  APB6PRDATA, // data read, of APB6
    input  wire          APB6PREDADY, // the slave has finished, of APB6
    input  wire          APB6PSLVERR, // the transfer has failed, of APB6
    output wire          APB6PCLK, // clock of the port, of APB6
    output wire          APB6PRESET, // reset of the port, of APB6, active low
    output wire  [31:0]  APB7PADDR, // address, of APB7
    output wire          APB7PENABLE, // second and further cycles of the transfer, of APB7
    output wire          APB7PWRITE, // 1 writes, of APB7
    output wire  [3:0]   APB7PSTRB, // bytes that are written, of APB7
    output wire  [2:0]   APB7PPROT, // protection of the transfer, of APB7
    output wire  [31:0]  APB7PWDATA, // data written, of APB7
    output wire          APB7PSEL, // the address is one of the port, of APB7
    input  wire  [31:0]  APB7PRDATA, // data read, of APB7
    input  wire          APB7PREDADY, // the slave has finished, of APB7
    input  wire          APB7PSLVERR, // the transfer has failed, of APB7
    output wire          APB7PCLK, // clock of the port, of APB7
    output wire          APB7PRESET, // reset of the port, of APB7, active low
    output wire  [31:0]  APB8PADDR, // address, of APB8
    output wire          APB8PENABLE, // second and further cycles of the transfer, of APB8
    output wire          APB8PWRITE, // 1 writes, of APB8
    output wire  [3:0]   APB8PSTRB, // bytes that are written, of APB8
    output wire  [2:0]   APB8PPROT, // protection of the transfer, of APB8
    output wire  [31:0]  APB8PWDATA, // data written, of APB8
    output wire          APB8PSEL, // the address is one of the port, of APB8
    input  wire  [31:0]  APB8PRDATA, // data read, of APB8
    input  wire          APB8PREDADY, // the slave has finished, of APB8
    input  wire          APB8PSLVERR, // the transfer has failed, of APB8
    output wire          APB8PCLK, // clock of the port, of APB8
    output wire          APB8PRESET, // reset of the port, of APB8, active low
    output wire  [31:0]  APB9PADDR, // address, of APB9
    output wire          APB9PENABLE, // second and further cycles of the transfer, of APB9
    output wire          APB9PWRITE, // 1 writes, of APB9
    output wire  [3:0]   APB9PSTRB, // bytes that are written, of APB9
    output wire  [2:0]   APB9PPROT, // protection of the transfer, of APB9
    output wire  [31:0]  APB9PWDATA, // data written, of APB9
    output wire          APB9PSEL, // the address is one of the port, of APB9
    input  wire  [31:0]  APB9PRDATA, // data read, of APB9
    input  wire          APB9PREDADY, // the slave has finished, of APB9
    input  wire          APB9PSLVERR, // the transfer has failed, of APB9
    output wire          APB9PCLK, // clock of the port, of APB9
    output wire          APB9PRESET, // reset of the port, of APB9, active low
    output wire  [31:0]  APB10PADDR, // address, of APB10
    output wire          APB10PENABLE, // second and further cycles of the transfer, of APB10
    output wire          APB10PWRITE, // 1 writes, of APB10
    output wire  [3:0]   APB10PSTRB, // bytes that are written, of APB10
    output wire  [2:0]   APB10PPROT, // protection of the transfer, of APB10
    output wire  [31:0]  APB10PWDATA, // data written, of APB10
    output wire          APB10PSEL, // the address is one of the port, of APB10
    input  wire  [31:0]  APB10PRDATA, // data read, of APB10
    input  wire          APB10PREDADY, // the slave has finished, of APB10
    input  wire          APB10PSLVERR, // the transfer has failed, of APB10
    output wire          APB10PCLK, // clock of the port, of APB10
    output wire          APB10PRESET, // reset of the port, of APB10, active low
    output wire  [31:0]  APB11PADDR, // address, of APB11
    output wire          APB11PENABLE, // second and further cycles of the transfer, of APB11
    output wire          APB11PWRITE, // 1 writes, of APB11
    output wire  [3:0]   APB11PSTRB, // bytes that are written, of APB11
    output wire  [2:0]   APB11PPROT, // protection of the transfer, of APB11
    output wire  [31:0]  APB11PWDATA, // data written, of APB11
    output wire          APB11PSEL, // the address is one of the port, of APB11
    input  wire  [31:0]  APB11PRDATA, // data read, of APB11
    input  wire          APB11PREDADY, // the slave has finished, of APB11
    input  wire          APB11PSLVERR, // the transfer has failed, of APB11
    output wire          APB11PCLK, // clock of the port, of APB11
    output wire          APB11PRESET, // reset of the port, of APB11, active low
    output wire  [31:0]  APB12PADDR, // address, of APB12
    output wire          APB12PENABLE, // second and further cycles of the transfer, of APB12
    output wire          APB12PWRITE, // 1 writes, of APB12
    output wire  [3:0]   APB12PSTRB, // bytes that are written, of APB12
    output wire  [2:0]   APB12PPROT, // protection of the transfer, of APB12
    output wire  [31:0]  APB12PWDATA, // data written, of APB12
    output wire          APB12PSEL, // the address is one of the port, of APB12
    input  wire  [31:0]  APB12PRDATA, // data read, of APB12
    input  wire          APB12PREDADY, // the slave has finished, of APB12
    input  wire          APB12PSLVERR, // the transfer has failed, of APB12
    output wire          APB12PCLK, // clock of the port, of APB12
    output wire          APB12PRESET, // reset of the port, of APB12, active low
    output wire  [31:0]  APB13PADDR, // address, of APB13
    output wire          APB13PENABLE, // second and further cycles of the transfer, of APB13
    output wire          APB13PWRITE, // 1 writes, of APB13
    output wire  [3:0]   APB13PSTRB, // bytes that are written, of APB13
    output wire  [2:0]   APB13PPROT, // protection of the transfer, of APB13
    output wire  [31:0]  APB13PWDATA, // data written, of APB13
    output wire          APB13PSEL, // the address is one of the port, of APB13
    input  wire  [31:0]  APB13PRDATA, // data read, of APB13
    input  wire          APB13PREDADY, // the slave has finished, of APB13
    input  wire          APB13PSLVERR, // the transfer has failed, of APB13
    output wire          APB13PCLK, // clock of the port, of APB13
    output wire          APB13PRESET, // reset of the port, of APB13, active low
    output wire  [31:0]  APB14PADDR, // address, of APB14
    output wire          APB14PENABLE, // second and further cycles of the transfer, of APB14
    output wire          APB14PWRITE, // 1 writes, of APB14
    output wire  [3:0]   APB14PSTRB, // bytes that are written, of APB14
    output wire  [2:0]   APB14PPROT, // protection of the transfer, of APB14
    output wire  [31:0]  APB14PWDATA, // data written, of APB14
    output wire          APB14PSEL, // the address is one of the port, of APB14
    input  wire  [31:0]  APB14PRDATA, // data read, of APB14
    input  wire          APB14PREDADY, // the slave has finished, of APB14
    input  wire          APB14PSLVERR, // the transfer has failed, of APB14
    output wire          APB14PCLK, // clock of the port, of APB14
    output wire          APB14PRESET, // reset of the port, of APB14, active low
    output wire  [31:0]  APB15PADDR, // address, of APB15
    output wire          APB15PENABLE, // second and further cycles of the transfer, of APB15
    output wire          APB15PWRITE, // 1 writes, of APB15
    output wire  [3:0]   APB15PSTRB, // bytes that are written, of APB15
    output wire  [2:0]   APB15PPROT, // protection of the transfer, of APB15
    output wire  [31:0]  APB15PWDATA, // data written, of APB15
    output wire          APB15PSEL, // the address is one of the port, of APB15
    input  wire  [31:0]  APB15PRDATA, // data read, of APB15
    input  wire          APB15PREDADY, // the slave has finished, of APB15
    input  wire          APB15PSLVERR, // the transfer has failed, of APB15
    output wire          APB15PCLK, // clock of the port, of APB15
    output wire          APB15PRESET, // reset of the port, of APB15, active low
    output wire  [31:0]  APB16PADDR, // address, of APB16
    output wire          APB16PENABLE, // second and further cycles of the transfer, of APB16
    output wire          APB16PWRITE, // 1 writes, of APB16
    output wire  [3:0]   APB16PSTRB, // bytes that are written, of APB16
    output wire  [2:0]   APB16PPROT, // protection of the transfer, of APB16
    output wire  [31:0]  APB16PWDATA, // data written, of APB16
    output wire          APB16PSEL, // the address is one of the port, of APB16
    input  wire  [31:0]  APB16PRDATA, // data read, of APB16
    input  wire          APB16PREDADY, // the slave has finished, of APB16
    input  wire          APB16PSLVERR, // the transfer has failed, of APB16
    output wire          APB16PCLK, // clock of the port, of APB16
    output wire          APB16PRESET  // reset of the port, of APB16, active low
);
endmodule
