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
# tarvo_orix_m1_pin {HCLK}         PIN input none
# hwRstn: resets everything, debug included, active low
# tarvo_orix_m1_pin {hwRstn}       PIN input none
# LOCKUP: the processor has stopped after a second fault
# tarvo_orix_m1_pin {LOCKUP}       PIN output none
# HALTED: the debugger has stopped the processor
# tarvo_orix_m1_pin {HALTED}       PIN output none
# JTAG_7: TMS or SWDIO
# tarvo_orix_m1_pin {JTAG_7}       PIN inout none
# JTAG_9: TCK or SWCLK, clocks the debug port
# tarvo_orix_m1_pin {JTAG_9}       PIN inout none
# JTAG_3: nTRST, resets the debug port, active low, to be pulled up
# tarvo_orix_m1_pin {JTAG_3}       PIN inout up
# JTAG_4: driven low
# tarvo_orix_m1_pin {JTAG_4}       PIN inout none
# JTAG_5: TDI
# tarvo_orix_m1_pin {JTAG_5}       PIN inout none
# JTAG_6: driven low
# tarvo_orix_m1_pin {JTAG_6}       PIN inout none
# JTAG_8: driven low
# tarvo_orix_m1_pin {JTAG_8}       PIN inout none
# JTAG_10: driven low
# tarvo_orix_m1_pin {JTAG_10}      PIN inout none
# JTAG_11: driven low
# tarvo_orix_m1_pin {JTAG_11}      PIN inout none
# JTAG_12: driven low
# tarvo_orix_m1_pin {JTAG_12}      PIN inout none
# JTAG_13: TDO
# tarvo_orix_m1_pin {JTAG_13}      PIN inout none
# JTAG_14: driven low
# tarvo_orix_m1_pin {JTAG_14}      PIN inout none
# JTAG_15: nSRST, resets everything but debug; left open, it can hold the subsystem in reset for ever, active low, to be pulled up
# tarvo_orix_m1_pin {JTAG_15}      PIN inout up
# JTAG_16: driven low
# tarvo_orix_m1_pin {JTAG_16}      PIN inout none
# JTAG_17: not connected
# tarvo_orix_m1_pin {JTAG_17}      PIN inout none
# JTAG_18: driven low
# tarvo_orix_m1_pin {JTAG_18}      PIN inout none

# UART
# UART0RXD: serial data to receive
# tarvo_orix_m1_pin {UART0RXD}     PIN input none
# UART0TXD: serial data sent
# tarvo_orix_m1_pin {UART0TXD}     PIN output none
