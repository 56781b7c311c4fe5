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
    inout  wire  [15:0]  GPIO, // pins
    inout  wire          FLASH_SPI_HOLDN, // hold of the flash, always released, active low
    inout  wire          FLASH_SPI_CSN, // chip select of the flash, active low
    inout  wire          FLASH_SPI_MISO, // data from the flash
    inout  wire          FLASH_SPI_MOSI, // data to the flash
    inout  wire          FLASH_SPI_WPN, // write protection of the flash, active low
    inout  wire          FLASH_SPI_CLK, // clock of the flash
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
    output wire          SD_CHECKOUT  // a card is present
);
endmodule
