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
# tarvo_orix_m1_pin {HCLK}                   PIN input none
# hwRstn: resets everything, debug included, active low
# tarvo_orix_m1_pin {hwRstn}                 PIN input none
# LOCKUP: the processor has stopped after a second fault
# tarvo_orix_m1_pin {LOCKUP}                 PIN output none
# HALTED: the debugger has stopped the processor
# tarvo_orix_m1_pin {HALTED}                 PIN output none
# JTAG_7: TMS or SWDIO
# tarvo_orix_m1_pin {JTAG_7}                 PIN inout none
# JTAG_9: TCK or SWCLK, clocks the debug port
# tarvo_orix_m1_pin {JTAG_9}                 PIN inout none
# JTAG_3: nTRST, resets the debug port, active low, to be pulled up
# tarvo_orix_m1_pin {JTAG_3}                 PIN inout up
# JTAG_4: driven low
# tarvo_orix_m1_pin {JTAG_4}                 PIN inout none
# JTAG_5: TDI
# tarvo_orix_m1_pin {JTAG_5}                 PIN inout none
# JTAG_6: driven low
# tarvo_orix_m1_pin {JTAG_6}                 PIN inout none
# JTAG_8: driven low
# tarvo_orix_m1_pin {JTAG_8}                 PIN inout none
# JTAG_10: driven low
# tarvo_orix_m1_pin {JTAG_10}                PIN inout none
# JTAG_11: driven low
# tarvo_orix_m1_pin {JTAG_11}                PIN inout none
# JTAG_12: driven low
# tarvo_orix_m1_pin {JTAG_12}                PIN inout none
# JTAG_13: TDO
# tarvo_orix_m1_pin {JTAG_13}                PIN inout none
# JTAG_14: driven low
# tarvo_orix_m1_pin {JTAG_14}                PIN inout none
# JTAG_15: nSRST, resets everything but debug; left open, it can hold the subsystem in reset for ever, active low, to be pulled up
# tarvo_orix_m1_pin {JTAG_15}                PIN inout up
# JTAG_16: driven low
# tarvo_orix_m1_pin {JTAG_16}                PIN inout none
# JTAG_17: not connected
# tarvo_orix_m1_pin {JTAG_17}                PIN inout none
# JTAG_18: driven low
# tarvo_orix_m1_pin {JTAG_18}                PIN inout none
# EXTFLASH0HRDATA[31:0]: data read, of EXTFLASH
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[31]}    PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[30]}    PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[29]}    PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[28]}    PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[27]}    PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[26]}    PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[25]}    PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[24]}    PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[23]}    PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[22]}    PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[21]}    PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[20]}    PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[19]}    PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[18]}    PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[17]}    PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[16]}    PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[15]}    PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[14]}    PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[13]}    PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[12]}    PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[11]}    PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[10]}    PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[9]}     PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[8]}     PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[7]}     PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[6]}     PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[5]}     PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[4]}     PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[3]}     PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[2]}     PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[1]}     PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRDATA[0]}     PIN input none
# EXTFLASH0HREADYOUT: the slave has finished, of EXTFLASH
# tarvo_orix_m1_pin {EXTFLASH0HREADYOUT}     PIN input none
# EXTFLASH0HRESP[1:0]: response; any value but 0 is an error, of EXTFLASH
# tarvo_orix_m1_pin {EXTFLASH0HRESP[1]}      PIN input none
# tarvo_orix_m1_pin {EXTFLASH0HRESP[0]}      PIN input none
# EXTFLASH0HTRANS[1:0]: kind of the transfer, of EXTFLASH
# tarvo_orix_m1_pin {EXTFLASH0HTRANS[1]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HTRANS[0]}     PIN output none
# EXTFLASH0HBURST[2:0]: kind of the burst, of EXTFLASH
# tarvo_orix_m1_pin {EXTFLASH0HBURST[2]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HBURST[1]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HBURST[0]}     PIN output none
# EXTFLASH0HPROT[3:0]: protection of the transfer, of EXTFLASH
# tarvo_orix_m1_pin {EXTFLASH0HPROT[3]}      PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HPROT[2]}      PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HPROT[1]}      PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HPROT[0]}      PIN output none
# EXTFLASH0HSIZE[2:0]: size of the transfer, of EXTFLASH
# tarvo_orix_m1_pin {EXTFLASH0HSIZE[2]}      PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HSIZE[1]}      PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HSIZE[0]}      PIN output none
# EXTFLASH0HWRITE: 1 writes, of EXTFLASH
# tarvo_orix_m1_pin {EXTFLASH0HWRITE}        PIN output none
# EXTFLASH0HREADYMUX: the transfer before has finished, of EXTFLASH
# tarvo_orix_m1_pin {EXTFLASH0HREADYMUX}     PIN output none
# EXTFLASH0HMASTER[3:0]: number of the master, of EXTFLASH
# tarvo_orix_m1_pin {EXTFLASH0HMASTER[3]}    PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HMASTER[2]}    PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HMASTER[1]}    PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HMASTER[0]}    PIN output none
# EXTFLASH0HMASTLOCK: the transfer is locked, of EXTFLASH
# tarvo_orix_m1_pin {EXTFLASH0HMASTLOCK}     PIN output none
# EXTFLASH0HADDR[31:0]: address, of EXTFLASH
# tarvo_orix_m1_pin {EXTFLASH0HADDR[31]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[30]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[29]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[28]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[27]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[26]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[25]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[24]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[23]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[22]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[21]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[20]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[19]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[18]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[17]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[16]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[15]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[14]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[13]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[12]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[11]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[10]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[9]}      PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[8]}      PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[7]}      PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[6]}      PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[5]}      PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[4]}      PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[3]}      PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[2]}      PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[1]}      PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HADDR[0]}      PIN output none
# EXTFLASH0HWDATA[31:0]: data written, of EXTFLASH
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[31]}    PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[30]}    PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[29]}    PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[28]}    PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[27]}    PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[26]}    PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[25]}    PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[24]}    PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[23]}    PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[22]}    PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[21]}    PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[20]}    PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[19]}    PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[18]}    PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[17]}    PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[16]}    PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[15]}    PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[14]}    PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[13]}    PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[12]}    PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[11]}    PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[10]}    PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[9]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[8]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[7]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[6]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[5]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[4]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[3]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[2]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[1]}     PIN output none
# tarvo_orix_m1_pin {EXTFLASH0HWDATA[0]}     PIN output none
# EXTFLASH0HSEL: the address is one of the port, of EXTFLASH
# tarvo_orix_m1_pin {EXTFLASH0HSEL}          PIN output none
# EXTFLASH0HCLK: clock of the port, of EXTFLASH
# tarvo_orix_m1_pin {EXTFLASH0HCLK}          PIN output none
# EXTFLASH0HRESET: reset of the port, of EXTFLASH, active low
# tarvo_orix_m1_pin {EXTFLASH0HRESET}        PIN output none
# EXTSRAM0HRDATA[31:0]: data read, of EXTSRAM
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[31]}     PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[30]}     PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[29]}     PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[28]}     PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[27]}     PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[26]}     PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[25]}     PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[24]}     PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[23]}     PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[22]}     PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[21]}     PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[20]}     PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[19]}     PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[18]}     PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[17]}     PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[16]}     PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[15]}     PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[14]}     PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[13]}     PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[12]}     PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[11]}     PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[10]}     PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[9]}      PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[8]}      PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[7]}      PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[6]}      PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[5]}      PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[4]}      PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[3]}      PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[2]}      PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[1]}      PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRDATA[0]}      PIN input none
# EXTSRAM0HREADYOUT: the slave has finished, of EXTSRAM
# tarvo_orix_m1_pin {EXTSRAM0HREADYOUT}      PIN input none
# EXTSRAM0HRESP[1:0]: response; any value but 0 is an error, of EXTSRAM
# tarvo_orix_m1_pin {EXTSRAM0HRESP[1]}       PIN input none
# tarvo_orix_m1_pin {EXTSRAM0HRESP[0]}       PIN input none
# EXTSRAM0HTRANS[1:0]: kind of the transfer, of EXTSRAM
# tarvo_orix_m1_pin {EXTSRAM0HTRANS[1]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HTRANS[0]}      PIN output none
# EXTSRAM0HBURST[2:0]: kind of the burst, of EXTSRAM
# tarvo_orix_m1_pin {EXTSRAM0HBURST[2]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HBURST[1]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HBURST[0]}      PIN output none
# EXTSRAM0HPROT[3:0]: protection of the transfer, of EXTSRAM
# tarvo_orix_m1_pin {EXTSRAM0HPROT[3]}       PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HPROT[2]}       PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HPROT[1]}       PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HPROT[0]}       PIN output none
# EXTSRAM0HSIZE[2:0]: size of the transfer, of EXTSRAM
# tarvo_orix_m1_pin {EXTSRAM0HSIZE[2]}       PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HSIZE[1]}       PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HSIZE[0]}       PIN output none
# EXTSRAM0HWRITE: 1 writes, of EXTSRAM
# tarvo_orix_m1_pin {EXTSRAM0HWRITE}         PIN output none
# EXTSRAM0HREADYMUX: the transfer before has finished, of EXTSRAM
# tarvo_orix_m1_pin {EXTSRAM0HREADYMUX}      PIN output none
# EXTSRAM0HMASTER[3:0]: number of the master, of EXTSRAM
# tarvo_orix_m1_pin {EXTSRAM0HMASTER[3]}     PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HMASTER[2]}     PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HMASTER[1]}     PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HMASTER[0]}     PIN output none
# EXTSRAM0HMASTLOCK: the transfer is locked, of EXTSRAM
# tarvo_orix_m1_pin {EXTSRAM0HMASTLOCK}      PIN output none
# EXTSRAM0HADDR[31:0]: address, of EXTSRAM
# tarvo_orix_m1_pin {EXTSRAM0HADDR[31]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[30]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[29]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[28]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[27]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[26]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[25]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[24]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[23]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[22]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[21]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[20]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[19]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[18]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[17]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[16]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[15]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[14]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[13]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[12]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[11]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[10]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[9]}       PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[8]}       PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[7]}       PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[6]}       PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[5]}       PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[4]}       PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[3]}       PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[2]}       PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[1]}       PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HADDR[0]}       PIN output none
# EXTSRAM0HWDATA[31:0]: data written, of EXTSRAM
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[31]}     PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[30]}     PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[29]}     PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[28]}     PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[27]}     PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[26]}     PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[25]}     PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[24]}     PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[23]}     PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[22]}     PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[21]}     PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[20]}     PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[19]}     PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[18]}     PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[17]}     PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[16]}     PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[15]}     PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[14]}     PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[13]}     PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[12]}     PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[11]}     PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[10]}     PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[9]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[8]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[7]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[6]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[5]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[4]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[3]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[2]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[1]}      PIN output none
# tarvo_orix_m1_pin {EXTSRAM0HWDATA[0]}      PIN output none
# EXTSRAM0HSEL: the address is one of the port, of EXTSRAM
# tarvo_orix_m1_pin {EXTSRAM0HSEL}           PIN output none
# EXTSRAM0HCLK: clock of the port, of EXTSRAM
# tarvo_orix_m1_pin {EXTSRAM0HCLK}           PIN output none
# EXTSRAM0HRESET: reset of the port, of EXTSRAM, active low
# tarvo_orix_m1_pin {EXTSRAM0HRESET}         PIN output none

# UART
# UART0RXD: serial data to receive
# tarvo_orix_m1_pin {UART0RXD}               PIN input none
# UART0TXD: serial data sent
# tarvo_orix_m1_pin {UART0TXD}               PIN output none
