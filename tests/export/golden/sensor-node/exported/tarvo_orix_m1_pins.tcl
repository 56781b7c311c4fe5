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
# tarvo_orix_m1_pin {HCLK}              PIN input none
# hwRstn: resets everything, debug included, active low
# tarvo_orix_m1_pin {hwRstn}            PIN input none
# LOCKUP: the processor has stopped after a second fault
# tarvo_orix_m1_pin {LOCKUP}            PIN output none
# HALTED: the debugger has stopped the processor
# tarvo_orix_m1_pin {HALTED}            PIN output none
# JTAG_7: TMS or SWDIO
# tarvo_orix_m1_pin {JTAG_7}            PIN inout none
# JTAG_9: TCK or SWCLK, clocks the debug port
# tarvo_orix_m1_pin {JTAG_9}            PIN inout none
# JTAG_3: nTRST, resets the debug port, active low, to be pulled up
# tarvo_orix_m1_pin {JTAG_3}            PIN inout up
# JTAG_4: driven low
# tarvo_orix_m1_pin {JTAG_4}            PIN inout none
# JTAG_5: TDI
# tarvo_orix_m1_pin {JTAG_5}            PIN inout none
# JTAG_6: driven low
# tarvo_orix_m1_pin {JTAG_6}            PIN inout none
# JTAG_8: driven low
# tarvo_orix_m1_pin {JTAG_8}            PIN inout none
# JTAG_10: driven low
# tarvo_orix_m1_pin {JTAG_10}           PIN inout none
# JTAG_11: driven low
# tarvo_orix_m1_pin {JTAG_11}           PIN inout none
# JTAG_12: driven low
# tarvo_orix_m1_pin {JTAG_12}           PIN inout none
# JTAG_13: TDO
# tarvo_orix_m1_pin {JTAG_13}           PIN inout none
# JTAG_14: driven low
# tarvo_orix_m1_pin {JTAG_14}           PIN inout none
# JTAG_15: nSRST, resets everything but debug; left open, it can hold the subsystem in reset for ever, active low, to be pulled up
# tarvo_orix_m1_pin {JTAG_15}           PIN inout up
# JTAG_16: driven low
# tarvo_orix_m1_pin {JTAG_16}           PIN inout none
# JTAG_17: not connected
# tarvo_orix_m1_pin {JTAG_17}           PIN inout none
# JTAG_18: driven low
# tarvo_orix_m1_pin {JTAG_18}           PIN inout none
# EXTINT[3:0]: interrupts 12 (bit 0) to 15 (bit 3), requested while high
# tarvo_orix_m1_pin {EXTINT[3]}         PIN input none
# tarvo_orix_m1_pin {EXTINT[2]}         PIN input none
# tarvo_orix_m1_pin {EXTINT[1]}         PIN input none
# tarvo_orix_m1_pin {EXTINT[0]}         PIN input none

# GPIO
# GPIO[15:0]: pins
# tarvo_orix_m1_pin {GPIO[15]}          PIN inout none
# tarvo_orix_m1_pin {GPIO[14]}          PIN inout none
# tarvo_orix_m1_pin {GPIO[13]}          PIN inout none
# tarvo_orix_m1_pin {GPIO[12]}          PIN inout none
# tarvo_orix_m1_pin {GPIO[11]}          PIN inout none
# tarvo_orix_m1_pin {GPIO[10]}          PIN inout none
# tarvo_orix_m1_pin {GPIO[9]}           PIN inout none
# tarvo_orix_m1_pin {GPIO[8]}           PIN inout none
# tarvo_orix_m1_pin {GPIO[7]}           PIN inout none
# tarvo_orix_m1_pin {GPIO[6]}           PIN inout none
# tarvo_orix_m1_pin {GPIO[5]}           PIN inout none
# tarvo_orix_m1_pin {GPIO[4]}           PIN inout none
# tarvo_orix_m1_pin {GPIO[3]}           PIN inout none
# tarvo_orix_m1_pin {GPIO[2]}           PIN inout none
# tarvo_orix_m1_pin {GPIO[1]}           PIN inout none
# tarvo_orix_m1_pin {GPIO[0]}           PIN inout none

# AHB Master [1-6]
# AHB1HRDATA[31:0]: data read, of AHB1
# tarvo_orix_m1_pin {AHB1HRDATA[31]}    PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[30]}    PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[29]}    PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[28]}    PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[27]}    PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[26]}    PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[25]}    PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[24]}    PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[23]}    PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[22]}    PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[21]}    PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[20]}    PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[19]}    PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[18]}    PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[17]}    PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[16]}    PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[15]}    PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[14]}    PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[13]}    PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[12]}    PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[11]}    PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[10]}    PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[9]}     PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[8]}     PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[7]}     PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[6]}     PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[5]}     PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[4]}     PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[3]}     PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[2]}     PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[1]}     PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[0]}     PIN input none
# AHB1HREADYOUT: the slave has finished, of AHB1
# tarvo_orix_m1_pin {AHB1HREADYOUT}     PIN input none
# AHB1HRESP[1:0]: response; any value but 0 is an error, of AHB1
# tarvo_orix_m1_pin {AHB1HRESP[1]}      PIN input none
# tarvo_orix_m1_pin {AHB1HRESP[0]}      PIN input none
# AHB1HTRANS[1:0]: kind of the transfer, of AHB1
# tarvo_orix_m1_pin {AHB1HTRANS[1]}     PIN output none
# tarvo_orix_m1_pin {AHB1HTRANS[0]}     PIN output none
# AHB1HBURST[2:0]: kind of the burst, of AHB1
# tarvo_orix_m1_pin {AHB1HBURST[2]}     PIN output none
# tarvo_orix_m1_pin {AHB1HBURST[1]}     PIN output none
# tarvo_orix_m1_pin {AHB1HBURST[0]}     PIN output none
# AHB1HPROT[3:0]: protection of the transfer, of AHB1
# tarvo_orix_m1_pin {AHB1HPROT[3]}      PIN output none
# tarvo_orix_m1_pin {AHB1HPROT[2]}      PIN output none
# tarvo_orix_m1_pin {AHB1HPROT[1]}      PIN output none
# tarvo_orix_m1_pin {AHB1HPROT[0]}      PIN output none
# AHB1HSIZE[2:0]: size of the transfer, of AHB1
# tarvo_orix_m1_pin {AHB1HSIZE[2]}      PIN output none
# tarvo_orix_m1_pin {AHB1HSIZE[1]}      PIN output none
# tarvo_orix_m1_pin {AHB1HSIZE[0]}      PIN output none
# AHB1HWRITE: 1 writes, of AHB1
# tarvo_orix_m1_pin {AHB1HWRITE}        PIN output none
# AHB1HREADYMUX: the transfer before has finished, of AHB1
# tarvo_orix_m1_pin {AHB1HREADYMUX}     PIN output none
# AHB1HMASTER[3:0]: number of the master, of AHB1
# tarvo_orix_m1_pin {AHB1HMASTER[3]}    PIN output none
# tarvo_orix_m1_pin {AHB1HMASTER[2]}    PIN output none
# tarvo_orix_m1_pin {AHB1HMASTER[1]}    PIN output none
# tarvo_orix_m1_pin {AHB1HMASTER[0]}    PIN output none
# AHB1HMASTLOCK: the transfer is locked, of AHB1
# tarvo_orix_m1_pin {AHB1HMASTLOCK}     PIN output none
# AHB1HADDR[31:0]: address, of AHB1
# tarvo_orix_m1_pin {AHB1HADDR[31]}     PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[30]}     PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[29]}     PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[28]}     PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[27]}     PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[26]}     PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[25]}     PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[24]}     PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[23]}     PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[22]}     PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[21]}     PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[20]}     PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[19]}     PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[18]}     PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[17]}     PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[16]}     PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[15]}     PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[14]}     PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[13]}     PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[12]}     PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[11]}     PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[10]}     PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[9]}      PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[8]}      PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[7]}      PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[6]}      PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[5]}      PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[4]}      PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[3]}      PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[2]}      PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[1]}      PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[0]}      PIN output none
# AHB1HWDATA[31:0]: data written, of AHB1
# tarvo_orix_m1_pin {AHB1HWDATA[31]}    PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[30]}    PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[29]}    PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[28]}    PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[27]}    PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[26]}    PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[25]}    PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[24]}    PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[23]}    PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[22]}    PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[21]}    PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[20]}    PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[19]}    PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[18]}    PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[17]}    PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[16]}    PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[15]}    PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[14]}    PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[13]}    PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[12]}    PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[11]}    PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[10]}    PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[9]}     PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[8]}     PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[7]}     PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[6]}     PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[5]}     PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[4]}     PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[3]}     PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[2]}     PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[1]}     PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[0]}     PIN output none
# AHB1HSEL: the address is one of the port, of AHB1
# tarvo_orix_m1_pin {AHB1HSEL}          PIN output none
# AHB1HCLK: clock of the port, of AHB1
# tarvo_orix_m1_pin {AHB1HCLK}          PIN output none
# AHB1HRESET: reset of the port, of AHB1, active low
# tarvo_orix_m1_pin {AHB1HRESET}        PIN output none

# UART
# UART0RXD: serial data to receive
# tarvo_orix_m1_pin {UART0RXD}          PIN input none
# UART0TXD: serial data sent
# tarvo_orix_m1_pin {UART0TXD}          PIN output none
# UART1RXD: serial data to receive
# tarvo_orix_m1_pin {UART1RXD}          PIN input none
# UART1TXD: serial data sent
# tarvo_orix_m1_pin {UART1TXD}          PIN output none

# Timer
# TIMER0EXTIN: gate or events of the timer
# tarvo_orix_m1_pin {TIMER0EXTIN}       PIN input none

# RTC
# RTCSRCCLK: source clock of the seconds, sampled with HCLK and slower than HCLK / 4
# tarvo_orix_m1_pin {RTCSRCCLK}         PIN input none

# I2C
# SCL: clock of the bus, to be pulled up
# tarvo_orix_m1_pin {SCL}               PIN inout up
# SDA: data of the bus, to be pulled up
# tarvo_orix_m1_pin {SDA}               PIN inout up

# SPI
# MOSI: data to the slave
# tarvo_orix_m1_pin {MOSI}              PIN output none
# MISO: data from the slave
# tarvo_orix_m1_pin {MISO}              PIN input none
# SCLK: clock of the slave
# tarvo_orix_m1_pin {SCLK}              PIN output none
# NSS: slave select, active low
# tarvo_orix_m1_pin {NSS}               PIN output none

# APB Master [1-16]
# APB1PADDR[31:0]: address, of APB1
# tarvo_orix_m1_pin {APB1PADDR[31]}     PIN output none
# tarvo_orix_m1_pin {APB1PADDR[30]}     PIN output none
# tarvo_orix_m1_pin {APB1PADDR[29]}     PIN output none
# tarvo_orix_m1_pin {APB1PADDR[28]}     PIN output none
# tarvo_orix_m1_pin {APB1PADDR[27]}     PIN output none
# tarvo_orix_m1_pin {APB1PADDR[26]}     PIN output none
# tarvo_orix_m1_pin {APB1PADDR[25]}     PIN output none
# tarvo_orix_m1_pin {APB1PADDR[24]}     PIN output none
# tarvo_orix_m1_pin {APB1PADDR[23]}     PIN output none
# tarvo_orix_m1_pin {APB1PADDR[22]}     PIN output none
# tarvo_orix_m1_pin {APB1PADDR[21]}     PIN output none
# tarvo_orix_m1_pin {APB1PADDR[20]}     PIN output none
# tarvo_orix_m1_pin {APB1PADDR[19]}     PIN output none
# tarvo_orix_m1_pin {APB1PADDR[18]}     PIN output none
# tarvo_orix_m1_pin {APB1PADDR[17]}     PIN output none
# tarvo_orix_m1_pin {APB1PADDR[16]}     PIN output none
# tarvo_orix_m1_pin {APB1PADDR[15]}     PIN output none
# tarvo_orix_m1_pin {APB1PADDR[14]}     PIN output none
# tarvo_orix_m1_pin {APB1PADDR[13]}     PIN output none
# tarvo_orix_m1_pin {APB1PADDR[12]}     PIN output none
# tarvo_orix_m1_pin {APB1PADDR[11]}     PIN output none
# tarvo_orix_m1_pin {APB1PADDR[10]}     PIN output none
# tarvo_orix_m1_pin {APB1PADDR[9]}      PIN output none
# tarvo_orix_m1_pin {APB1PADDR[8]}      PIN output none
# tarvo_orix_m1_pin {APB1PADDR[7]}      PIN output none
# tarvo_orix_m1_pin {APB1PADDR[6]}      PIN output none
# tarvo_orix_m1_pin {APB1PADDR[5]}      PIN output none
# tarvo_orix_m1_pin {APB1PADDR[4]}      PIN output none
# tarvo_orix_m1_pin {APB1PADDR[3]}      PIN output none
# tarvo_orix_m1_pin {APB1PADDR[2]}      PIN output none
# tarvo_orix_m1_pin {APB1PADDR[1]}      PIN output none
# tarvo_orix_m1_pin {APB1PADDR[0]}      PIN output none
# APB1PENABLE: second and further cycles of the transfer, of APB1
# tarvo_orix_m1_pin {APB1PENABLE}       PIN output none
# APB1PWRITE: 1 writes, of APB1
# tarvo_orix_m1_pin {APB1PWRITE}        PIN output none
# APB1PSTRB[3:0]: bytes that are written, of APB1
# tarvo_orix_m1_pin {APB1PSTRB[3]}      PIN output none
# tarvo_orix_m1_pin {APB1PSTRB[2]}      PIN output none
# tarvo_orix_m1_pin {APB1PSTRB[1]}      PIN output none
# tarvo_orix_m1_pin {APB1PSTRB[0]}      PIN output none
# APB1PPROT[2:0]: protection of the transfer, of APB1
# tarvo_orix_m1_pin {APB1PPROT[2]}      PIN output none
# tarvo_orix_m1_pin {APB1PPROT[1]}      PIN output none
# tarvo_orix_m1_pin {APB1PPROT[0]}      PIN output none
# APB1PWDATA[31:0]: data written, of APB1
# tarvo_orix_m1_pin {APB1PWDATA[31]}    PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[30]}    PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[29]}    PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[28]}    PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[27]}    PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[26]}    PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[25]}    PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[24]}    PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[23]}    PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[22]}    PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[21]}    PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[20]}    PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[19]}    PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[18]}    PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[17]}    PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[16]}    PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[15]}    PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[14]}    PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[13]}    PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[12]}    PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[11]}    PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[10]}    PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[9]}     PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[8]}     PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[7]}     PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[6]}     PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[5]}     PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[4]}     PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[3]}     PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[2]}     PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[1]}     PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[0]}     PIN output none
# APB1PSEL: the address is one of the port, of APB1
# tarvo_orix_m1_pin {APB1PSEL}          PIN output none
# APB1PRDATA[31:0]: data read, of APB1
# tarvo_orix_m1_pin {APB1PRDATA[31]}    PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[30]}    PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[29]}    PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[28]}    PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[27]}    PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[26]}    PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[25]}    PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[24]}    PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[23]}    PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[22]}    PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[21]}    PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[20]}    PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[19]}    PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[18]}    PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[17]}    PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[16]}    PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[15]}    PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[14]}    PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[13]}    PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[12]}    PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[11]}    PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[10]}    PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[9]}     PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[8]}     PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[7]}     PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[6]}     PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[5]}     PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[4]}     PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[3]}     PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[2]}     PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[1]}     PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[0]}     PIN input none
# APB1PREDADY: the slave has finished, of APB1
# tarvo_orix_m1_pin {APB1PREDADY}       PIN input none
# APB1PSLVERR: the transfer has failed, of APB1
# tarvo_orix_m1_pin {APB1PSLVERR}       PIN input none
# APB1PCLK: clock of the port, of APB1
# tarvo_orix_m1_pin {APB1PCLK}          PIN output none
# APB1PRESET: reset of the port, of APB1, active low
# tarvo_orix_m1_pin {APB1PRESET}        PIN output none
# APB2PADDR[31:0]: address, of APB2
# tarvo_orix_m1_pin {APB2PADDR[31]}     PIN output none
# tarvo_orix_m1_pin {APB2PADDR[30]}     PIN output none
# tarvo_orix_m1_pin {APB2PADDR[29]}     PIN output none
# tarvo_orix_m1_pin {APB2PADDR[28]}     PIN output none
# tarvo_orix_m1_pin {APB2PADDR[27]}     PIN output none
# tarvo_orix_m1_pin {APB2PADDR[26]}     PIN output none
# tarvo_orix_m1_pin {APB2PADDR[25]}     PIN output none
# tarvo_orix_m1_pin {APB2PADDR[24]}     PIN output none
# tarvo_orix_m1_pin {APB2PADDR[23]}     PIN output none
# tarvo_orix_m1_pin {APB2PADDR[22]}     PIN output none
# tarvo_orix_m1_pin {APB2PADDR[21]}     PIN output none
# tarvo_orix_m1_pin {APB2PADDR[20]}     PIN output none
# tarvo_orix_m1_pin {APB2PADDR[19]}     PIN output none
# tarvo_orix_m1_pin {APB2PADDR[18]}     PIN output none
# tarvo_orix_m1_pin {APB2PADDR[17]}     PIN output none
# tarvo_orix_m1_pin {APB2PADDR[16]}     PIN output none
# tarvo_orix_m1_pin {APB2PADDR[15]}     PIN output none
# tarvo_orix_m1_pin {APB2PADDR[14]}     PIN output none
# tarvo_orix_m1_pin {APB2PADDR[13]}     PIN output none
# tarvo_orix_m1_pin {APB2PADDR[12]}     PIN output none
# tarvo_orix_m1_pin {APB2PADDR[11]}     PIN output none
# tarvo_orix_m1_pin {APB2PADDR[10]}     PIN output none
# tarvo_orix_m1_pin {APB2PADDR[9]}      PIN output none
# tarvo_orix_m1_pin {APB2PADDR[8]}      PIN output none
# tarvo_orix_m1_pin {APB2PADDR[7]}      PIN output none
# tarvo_orix_m1_pin {APB2PADDR[6]}      PIN output none
# tarvo_orix_m1_pin {APB2PADDR[5]}      PIN output none
# tarvo_orix_m1_pin {APB2PADDR[4]}      PIN output none
# tarvo_orix_m1_pin {APB2PADDR[3]}      PIN output none
# tarvo_orix_m1_pin {APB2PADDR[2]}      PIN output none
# tarvo_orix_m1_pin {APB2PADDR[1]}      PIN output none
# tarvo_orix_m1_pin {APB2PADDR[0]}      PIN output none
# APB2PENABLE: second and further cycles of the transfer, of APB2
# tarvo_orix_m1_pin {APB2PENABLE}       PIN output none
# APB2PWRITE: 1 writes, of APB2
# tarvo_orix_m1_pin {APB2PWRITE}        PIN output none
# APB2PSTRB[3:0]: bytes that are written, of APB2
# tarvo_orix_m1_pin {APB2PSTRB[3]}      PIN output none
# tarvo_orix_m1_pin {APB2PSTRB[2]}      PIN output none
# tarvo_orix_m1_pin {APB2PSTRB[1]}      PIN output none
# tarvo_orix_m1_pin {APB2PSTRB[0]}      PIN output none
# APB2PPROT[2:0]: protection of the transfer, of APB2
# tarvo_orix_m1_pin {APB2PPROT[2]}      PIN output none
# tarvo_orix_m1_pin {APB2PPROT[1]}      PIN output none
# tarvo_orix_m1_pin {APB2PPROT[0]}      PIN output none
# APB2PWDATA[31:0]: data written, of APB2
# tarvo_orix_m1_pin {APB2PWDATA[31]}    PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[30]}    PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[29]}    PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[28]}    PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[27]}    PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[26]}    PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[25]}    PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[24]}    PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[23]}    PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[22]}    PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[21]}    PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[20]}    PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[19]}    PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[18]}    PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[17]}    PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[16]}    PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[15]}    PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[14]}    PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[13]}    PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[12]}    PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[11]}    PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[10]}    PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[9]}     PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[8]}     PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[7]}     PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[6]}     PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[5]}     PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[4]}     PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[3]}     PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[2]}     PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[1]}     PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[0]}     PIN output none
# APB2PSEL: the address is one of the port, of APB2
# tarvo_orix_m1_pin {APB2PSEL}          PIN output none
# APB2PRDATA[31:0]: data read, of APB2
# tarvo_orix_m1_pin {APB2PRDATA[31]}    PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[30]}    PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[29]}    PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[28]}    PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[27]}    PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[26]}    PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[25]}    PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[24]}    PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[23]}    PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[22]}    PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[21]}    PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[20]}    PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[19]}    PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[18]}    PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[17]}    PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[16]}    PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[15]}    PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[14]}    PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[13]}    PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[12]}    PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[11]}    PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[10]}    PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[9]}     PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[8]}     PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[7]}     PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[6]}     PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[5]}     PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[4]}     PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[3]}     PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[2]}     PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[1]}     PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[0]}     PIN input none
# APB2PREDADY: the slave has finished, of APB2
# tarvo_orix_m1_pin {APB2PREDADY}       PIN input none
# APB2PSLVERR: the transfer has failed, of APB2
# tarvo_orix_m1_pin {APB2PSLVERR}       PIN input none
# APB2PCLK: clock of the port, of APB2
# tarvo_orix_m1_pin {APB2PCLK}          PIN output none
# APB2PRESET: reset of the port, of APB2, active low
# tarvo_orix_m1_pin {APB2PRESET}        PIN output none
