# Where the ports of Tarvo_ORIX_M1_Top leave the device (TV5KT-LV138PG484C2/I1). Each line waits behind a "#": put the pin of the
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
# tarvo_orix_m1_pin {HCLK}            PIN input none
# hwRstn: resets everything, debug included, active low
# tarvo_orix_m1_pin {hwRstn}          PIN input none
# LOCKUP: the processor has stopped after a second fault
# tarvo_orix_m1_pin {LOCKUP}          PIN output none
# HALTED: the debugger has stopped the processor
# tarvo_orix_m1_pin {HALTED}          PIN output none
# JTAG_7: TMS or SWDIO
# tarvo_orix_m1_pin {JTAG_7}          PIN inout none
# JTAG_9: TCK or SWCLK, clocks the debug port
# tarvo_orix_m1_pin {JTAG_9}          PIN inout none
# JTAG_3: nTRST, resets the debug port, active low, to be pulled up
# tarvo_orix_m1_pin {JTAG_3}          PIN inout up
# JTAG_4: driven low
# tarvo_orix_m1_pin {JTAG_4}          PIN inout none
# JTAG_5: TDI
# tarvo_orix_m1_pin {JTAG_5}          PIN inout none
# JTAG_6: driven low
# tarvo_orix_m1_pin {JTAG_6}          PIN inout none
# JTAG_8: driven low
# tarvo_orix_m1_pin {JTAG_8}          PIN inout none
# JTAG_10: driven low
# tarvo_orix_m1_pin {JTAG_10}         PIN inout none
# JTAG_11: driven low
# tarvo_orix_m1_pin {JTAG_11}         PIN inout none
# JTAG_12: driven low
# tarvo_orix_m1_pin {JTAG_12}         PIN inout none
# JTAG_13: TDO
# tarvo_orix_m1_pin {JTAG_13}         PIN inout none
# JTAG_14: driven low
# tarvo_orix_m1_pin {JTAG_14}         PIN inout none
# JTAG_15: nSRST, resets everything but debug; left open, it can hold the subsystem in reset for ever, active low, to be pulled up
# tarvo_orix_m1_pin {JTAG_15}         PIN inout up
# JTAG_16: driven low
# tarvo_orix_m1_pin {JTAG_16}         PIN inout none
# JTAG_17: not connected
# tarvo_orix_m1_pin {JTAG_17}         PIN inout none
# JTAG_18: driven low
# tarvo_orix_m1_pin {JTAG_18}         PIN inout none
# EXTINT[3:0]: interrupts 12 (bit 0) to 15 (bit 3), requested while high
# tarvo_orix_m1_pin {EXTINT[3]}       PIN input none
# tarvo_orix_m1_pin {EXTINT[2]}       PIN input none
# tarvo_orix_m1_pin {EXTINT[1]}       PIN input none
# tarvo_orix_m1_pin {EXTINT[0]}       PIN input none

# GPIO
# GPIOIN[15:0]: levels of the pins
# tarvo_orix_m1_pin {GPIOIN[15]}      PIN input none
# tarvo_orix_m1_pin {GPIOIN[14]}      PIN input none
# tarvo_orix_m1_pin {GPIOIN[13]}      PIN input none
# tarvo_orix_m1_pin {GPIOIN[12]}      PIN input none
# tarvo_orix_m1_pin {GPIOIN[11]}      PIN input none
# tarvo_orix_m1_pin {GPIOIN[10]}      PIN input none
# tarvo_orix_m1_pin {GPIOIN[9]}       PIN input none
# tarvo_orix_m1_pin {GPIOIN[8]}       PIN input none
# tarvo_orix_m1_pin {GPIOIN[7]}       PIN input none
# tarvo_orix_m1_pin {GPIOIN[6]}       PIN input none
# tarvo_orix_m1_pin {GPIOIN[5]}       PIN input none
# tarvo_orix_m1_pin {GPIOIN[4]}       PIN input none
# tarvo_orix_m1_pin {GPIOIN[3]}       PIN input none
# tarvo_orix_m1_pin {GPIOIN[2]}       PIN input none
# tarvo_orix_m1_pin {GPIOIN[1]}       PIN input none
# tarvo_orix_m1_pin {GPIOIN[0]}       PIN input none
# GPIOOUT[15:0]: values for the pins
# tarvo_orix_m1_pin {GPIOOUT[15]}     PIN output none
# tarvo_orix_m1_pin {GPIOOUT[14]}     PIN output none
# tarvo_orix_m1_pin {GPIOOUT[13]}     PIN output none
# tarvo_orix_m1_pin {GPIOOUT[12]}     PIN output none
# tarvo_orix_m1_pin {GPIOOUT[11]}     PIN output none
# tarvo_orix_m1_pin {GPIOOUT[10]}     PIN output none
# tarvo_orix_m1_pin {GPIOOUT[9]}      PIN output none
# tarvo_orix_m1_pin {GPIOOUT[8]}      PIN output none
# tarvo_orix_m1_pin {GPIOOUT[7]}      PIN output none
# tarvo_orix_m1_pin {GPIOOUT[6]}      PIN output none
# tarvo_orix_m1_pin {GPIOOUT[5]}      PIN output none
# tarvo_orix_m1_pin {GPIOOUT[4]}      PIN output none
# tarvo_orix_m1_pin {GPIOOUT[3]}      PIN output none
# tarvo_orix_m1_pin {GPIOOUT[2]}      PIN output none
# tarvo_orix_m1_pin {GPIOOUT[1]}      PIN output none
# tarvo_orix_m1_pin {GPIOOUT[0]}      PIN output none
# GPIOOUTEN[15:0]: 1 drives the pin
# tarvo_orix_m1_pin {GPIOOUTEN[15]}   PIN output none
# tarvo_orix_m1_pin {GPIOOUTEN[14]}   PIN output none
# tarvo_orix_m1_pin {GPIOOUTEN[13]}   PIN output none
# tarvo_orix_m1_pin {GPIOOUTEN[12]}   PIN output none
# tarvo_orix_m1_pin {GPIOOUTEN[11]}   PIN output none
# tarvo_orix_m1_pin {GPIOOUTEN[10]}   PIN output none
# tarvo_orix_m1_pin {GPIOOUTEN[9]}    PIN output none
# tarvo_orix_m1_pin {GPIOOUTEN[8]}    PIN output none
# tarvo_orix_m1_pin {GPIOOUTEN[7]}    PIN output none
# tarvo_orix_m1_pin {GPIOOUTEN[6]}    PIN output none
# tarvo_orix_m1_pin {GPIOOUTEN[5]}    PIN output none
# tarvo_orix_m1_pin {GPIOOUTEN[4]}    PIN output none
# tarvo_orix_m1_pin {GPIOOUTEN[3]}    PIN output none
# tarvo_orix_m1_pin {GPIOOUTEN[2]}    PIN output none
# tarvo_orix_m1_pin {GPIOOUTEN[1]}    PIN output none
# tarvo_orix_m1_pin {GPIOOUTEN[0]}    PIN output none

# UART
# UART0RXD: serial data to receive
# tarvo_orix_m1_pin {UART0RXD}        PIN input none
# UART0TXD: serial data sent
# tarvo_orix_m1_pin {UART0TXD}        PIN output none

# Timer
# TIMER1EXTIN: gate or events of the timer
# tarvo_orix_m1_pin {TIMER1EXTIN}     PIN input none

# SPI
# MOSI: data to the slave
# tarvo_orix_m1_pin {MOSI}            PIN output none
# MISO: data from the slave
# tarvo_orix_m1_pin {MISO}            PIN input none
# SCLK: clock of the slave
# tarvo_orix_m1_pin {SCLK}            PIN output none
# NSS: slave select, active low
# tarvo_orix_m1_pin {NSS}             PIN output none
