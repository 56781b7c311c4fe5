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
# tarvo_orix_m1_pin {HCLK}         PIN input none
# hwRstn: resets everything, debug included, active low
# tarvo_orix_m1_pin {hwRstn}       PIN input none
# LOCKUP: the processor has stopped after a second fault
# tarvo_orix_m1_pin {LOCKUP}       PIN output none

# UART
# UART1RXD: serial data to receive
# tarvo_orix_m1_pin {UART1RXD}     PIN input none
# UART1TXD: serial data sent
# tarvo_orix_m1_pin {UART1TXD}     PIN output none
