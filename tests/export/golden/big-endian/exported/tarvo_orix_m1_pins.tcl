# Where the ports of Tarvo_ORIX_M1_Top leave the device (TV2KR-LV18QN88PC8/I7). Each line waits behind a "#": put the pin of the
# package in place of PIN and take the "#" away; a port that your design uses inside of the device stays as it is.
#
# Before this file is read, define what your tool does with a line:
#   proc tarvo_orix_m1_pin {port pin direction pull} { … }
# port is "GPIO[3]" for a line of a vector, direction "input", "output" or "inout", pull "up" or "none".
if {[info commands tarvo_orix_m1_pin] eq ""} {
    proc tarvo_orix_m1_pin {port pin direction pull} {
        error "define \"tarvo_orix_m1_pin\" before this file is read: it has a pin for $port"
    }
}

# Cortex-M1
# HCLK: clocks processor, buses and blocks
# tarvo_orix_m1_pin {HCLK}                PIN input none
# hwRstn: resets everything, debug included, active low
# tarvo_orix_m1_pin {hwRstn}              PIN input none
# LOCKUP: the processor has stopped after a second fault
# tarvo_orix_m1_pin {LOCKUP}              PIN output none
# HALTED: the debugger has stopped the processor
# tarvo_orix_m1_pin {HALTED}              PIN output none
# JTAG_7: TMS or SWDIO
# tarvo_orix_m1_pin {JTAG_7}              PIN inout none
# JTAG_9: TCK or SWCLK, clocks the debug port
# tarvo_orix_m1_pin {JTAG_9}              PIN inout none
# JTAG_3: nTRST, resets the debug port, active low, to be pulled up
# tarvo_orix_m1_pin {JTAG_3}              PIN inout up
# JTAG_4: driven low
# tarvo_orix_m1_pin {JTAG_4}              PIN inout none
# JTAG_5: TDI
# tarvo_orix_m1_pin {JTAG_5}              PIN inout none
# JTAG_6: driven low
# tarvo_orix_m1_pin {JTAG_6}              PIN inout none
# JTAG_8: driven low
# tarvo_orix_m1_pin {JTAG_8}              PIN inout none
# JTAG_10: driven low
# tarvo_orix_m1_pin {JTAG_10}             PIN inout none
# JTAG_11: driven low
# tarvo_orix_m1_pin {JTAG_11}             PIN inout none
# JTAG_12: driven low
# tarvo_orix_m1_pin {JTAG_12}             PIN inout none
# JTAG_13: TDO
# tarvo_orix_m1_pin {JTAG_13}             PIN inout none
# JTAG_14: driven low
# tarvo_orix_m1_pin {JTAG_14}             PIN inout none
# JTAG_15: nSRST, resets everything but debug; left open, it can hold the subsystem in reset for ever, active low, to be pulled up
# tarvo_orix_m1_pin {JTAG_15}             PIN inout up
# JTAG_16: driven low
# tarvo_orix_m1_pin {JTAG_16}             PIN inout none
# JTAG_17: not connected
# tarvo_orix_m1_pin {JTAG_17}             PIN inout none
# JTAG_18: driven low
# tarvo_orix_m1_pin {JTAG_18}             PIN inout none

# GPIO
# GPIO[15:0]: pins
# tarvo_orix_m1_pin {GPIO[15]}            PIN inout none
# tarvo_orix_m1_pin {GPIO[14]}            PIN inout none
# tarvo_orix_m1_pin {GPIO[13]}            PIN inout none
# tarvo_orix_m1_pin {GPIO[12]}            PIN inout none
# tarvo_orix_m1_pin {GPIO[11]}            PIN inout none
# tarvo_orix_m1_pin {GPIO[10]}            PIN inout none
# tarvo_orix_m1_pin {GPIO[9]}             PIN inout none
# tarvo_orix_m1_pin {GPIO[8]}             PIN inout none
# tarvo_orix_m1_pin {GPIO[7]}             PIN inout none
# tarvo_orix_m1_pin {GPIO[6]}             PIN inout none
# tarvo_orix_m1_pin {GPIO[5]}             PIN inout none
# tarvo_orix_m1_pin {GPIO[4]}             PIN inout none
# tarvo_orix_m1_pin {GPIO[3]}             PIN inout none
# tarvo_orix_m1_pin {GPIO[2]}             PIN inout none
# tarvo_orix_m1_pin {GPIO[1]}             PIN inout none
# tarvo_orix_m1_pin {GPIO[0]}             PIN inout none

# SPI-Flash
# FLASH_SPI_HOLDN: hold of the flash, always released, active low
# tarvo_orix_m1_pin {FLASH_SPI_HOLDN}     PIN inout none
# FLASH_SPI_CSN: chip select of the flash, active low
# tarvo_orix_m1_pin {FLASH_SPI_CSN}       PIN inout none
# FLASH_SPI_MISO: data from the flash
# tarvo_orix_m1_pin {FLASH_SPI_MISO}      PIN inout none
# FLASH_SPI_MOSI: data to the flash
# tarvo_orix_m1_pin {FLASH_SPI_MOSI}      PIN inout none
# FLASH_SPI_WPN: write protection of the flash, active low
# tarvo_orix_m1_pin {FLASH_SPI_WPN}       PIN inout none
# FLASH_SPI_CLK: clock of the flash
# tarvo_orix_m1_pin {FLASH_SPI_CLK}       PIN inout none

# UART
# UART0RXD: serial data to receive
# tarvo_orix_m1_pin {UART0RXD}            PIN input none
# UART0TXD: serial data sent
# tarvo_orix_m1_pin {UART0TXD}            PIN output none
# UART1RXD: serial data to receive
# tarvo_orix_m1_pin {UART1RXD}            PIN input none
# UART1TXD: serial data sent
# tarvo_orix_m1_pin {UART1TXD}            PIN output none

# Timer
# TIMER0EXTIN: gate or events of the timer
# tarvo_orix_m1_pin {TIMER0EXTIN}         PIN input none
# TIMER1EXTIN: gate or events of the timer
# tarvo_orix_m1_pin {TIMER1EXTIN}         PIN input none

# RTC
# RTCSRCCLK: source clock of the seconds, sampled with HCLK and slower than HCLK / 4
# tarvo_orix_m1_pin {RTCSRCCLK}           PIN input none

# I2C
# SCL: clock of the bus, to be pulled up
# tarvo_orix_m1_pin {SCL}                 PIN inout up
# SDA: data of the bus, to be pulled up
# tarvo_orix_m1_pin {SDA}                 PIN inout up

# SPI
# MOSI: data to the slave
# tarvo_orix_m1_pin {MOSI}                PIN output none
# MISO: data from the slave
# tarvo_orix_m1_pin {MISO}                PIN input none
# SCLK: clock of the slave
# tarvo_orix_m1_pin {SCLK}                PIN output none
# NSS: slave select, active low
# tarvo_orix_m1_pin {NSS}                 PIN output none

# SD-Card
# SD_CLK: clock of the card
# tarvo_orix_m1_pin {SD_CLK}              PIN output none
# SD_SPICLK: source clock of SD_CLK, sampled with HCLK and slower than HCLK / 4
# tarvo_orix_m1_pin {SD_SPICLK}           PIN input none
# SD_CS: chip select of the card, active low
# tarvo_orix_m1_pin {SD_CS}               PIN output none
# SD_DATAIN: data from the card
# tarvo_orix_m1_pin {SD_DATAIN}           PIN input none
# SD_DATAOUT: data to the card
# tarvo_orix_m1_pin {SD_DATAOUT}          PIN output none
# SD_CARD_INIT: software has initialised the card
# tarvo_orix_m1_pin {SD_CARD_INIT}        PIN output none
# SD_CHECKIN: switch of the card's socket, low with a card, active low
# tarvo_orix_m1_pin {SD_CHECKIN}          PIN input none
# SD_CHECKOUT: a card is present
# tarvo_orix_m1_pin {SD_CHECKOUT}         PIN output none
