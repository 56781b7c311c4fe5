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

# APB Master [1-16]
# APB16PADDR[31:0]: address, of APB16
# tarvo_orix_m1_pin {APB16PADDR[31]}    PIN output none
# tarvo_orix_m1_pin {APB16PADDR[30]}    PIN output none
# tarvo_orix_m1_pin {APB16PADDR[29]}    PIN output none
# tarvo_orix_m1_pin {APB16PADDR[28]}    PIN output none
# tarvo_orix_m1_pin {APB16PADDR[27]}    PIN output none
# tarvo_orix_m1_pin {APB16PADDR[26]}    PIN output none
# tarvo_orix_m1_pin {APB16PADDR[25]}    PIN output none
# tarvo_orix_m1_pin {APB16PADDR[24]}    PIN output none
# tarvo_orix_m1_pin {APB16PADDR[23]}    PIN output none
# tarvo_orix_m1_pin {APB16PADDR[22]}    PIN output none
# tarvo_orix_m1_pin {APB16PADDR[21]}    PIN output none
# tarvo_orix_m1_pin {APB16PADDR[20]}    PIN output none
# tarvo_orix_m1_pin {APB16PADDR[19]}    PIN output none
# tarvo_orix_m1_pin {APB16PADDR[18]}    PIN output none
# tarvo_orix_m1_pin {APB16PADDR[17]}    PIN output none
# tarvo_orix_m1_pin {APB16PADDR[16]}    PIN output none
# tarvo_orix_m1_pin {APB16PADDR[15]}    PIN output none
# tarvo_orix_m1_pin {APB16PADDR[14]}    PIN output none
# tarvo_orix_m1_pin {APB16PADDR[13]}    PIN output none
# tarvo_orix_m1_pin {APB16PADDR[12]}    PIN output none
# tarvo_orix_m1_pin {APB16PADDR[11]}    PIN output none
# tarvo_orix_m1_pin {APB16PADDR[10]}    PIN output none
# tarvo_orix_m1_pin {APB16PADDR[9]}     PIN output none
# tarvo_orix_m1_pin {APB16PADDR[8]}     PIN output none
# tarvo_orix_m1_pin {APB16PADDR[7]}     PIN output none
# tarvo_orix_m1_pin {APB16PADDR[6]}     PIN output none
# tarvo_orix_m1_pin {APB16PADDR[5]}     PIN output none
# tarvo_orix_m1_pin {APB16PADDR[4]}     PIN output none
# tarvo_orix_m1_pin {APB16PADDR[3]}     PIN output none
# tarvo_orix_m1_pin {APB16PADDR[2]}     PIN output none
# tarvo_orix_m1_pin {APB16PADDR[1]}     PIN output none
# tarvo_orix_m1_pin {APB16PADDR[0]}     PIN output none
# APB16PENABLE: second and further cycles of the transfer, of APB16
# tarvo_orix_m1_pin {APB16PENABLE}      PIN output none
# APB16PWRITE: 1 writes, of APB16
# tarvo_orix_m1_pin {APB16PWRITE}       PIN output none
# APB16PSTRB[3:0]: bytes that are written, of APB16
# tarvo_orix_m1_pin {APB16PSTRB[3]}     PIN output none
# tarvo_orix_m1_pin {APB16PSTRB[2]}     PIN output none
# tarvo_orix_m1_pin {APB16PSTRB[1]}     PIN output none
# tarvo_orix_m1_pin {APB16PSTRB[0]}     PIN output none
# APB16PPROT[2:0]: protection of the transfer, of APB16
# tarvo_orix_m1_pin {APB16PPROT[2]}     PIN output none
# tarvo_orix_m1_pin {APB16PPROT[1]}     PIN output none
# tarvo_orix_m1_pin {APB16PPROT[0]}     PIN output none
# APB16PWDATA[31:0]: data written, of APB16
# tarvo_orix_m1_pin {APB16PWDATA[31]}   PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[30]}   PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[29]}   PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[28]}   PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[27]}   PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[26]}   PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[25]}   PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[24]}   PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[23]}   PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[22]}   PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[21]}   PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[20]}   PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[19]}   PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[18]}   PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[17]}   PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[16]}   PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[15]}   PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[14]}   PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[13]}   PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[12]}   PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[11]}   PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[10]}   PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[9]}    PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[8]}    PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[7]}    PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[6]}    PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[5]}    PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[4]}    PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[3]}    PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[2]}    PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[1]}    PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[0]}    PIN output none
# APB16PSEL: the address is one of the port, of APB16
# tarvo_orix_m1_pin {APB16PSEL}         PIN output none
# APB16PRDATA[31:0]: data read, of APB16
# tarvo_orix_m1_pin {APB16PRDATA[31]}   PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[30]}   PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[29]}   PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[28]}   PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[27]}   PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[26]}   PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[25]}   PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[24]}   PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[23]}   PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[22]}   PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[21]}   PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[20]}   PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[19]}   PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[18]}   PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[17]}   PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[16]}   PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[15]}   PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[14]}   PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[13]}   PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[12]}   PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[11]}   PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[10]}   PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[9]}    PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[8]}    PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[7]}    PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[6]}    PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[5]}    PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[4]}    PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[3]}    PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[2]}    PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[1]}    PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[0]}    PIN input none
# APB16PREDADY: the slave has finished, of APB16
# tarvo_orix_m1_pin {APB16PREDADY}      PIN input none
# APB16PSLVERR: the transfer has failed, of APB16
# tarvo_orix_m1_pin {APB16PSLVERR}      PIN input none
# APB16PCLK: clock of the port, of APB16
# tarvo_orix_m1_pin {APB16PCLK}         PIN output none
# APB16PRESET: reset of the port, of APB16, active low
# tarvo_orix_m1_pin {APB16PRESET}       PIN output none
