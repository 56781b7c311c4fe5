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
# tarvo_orix_m1_pin {HCLK}                 PIN input none
# hwRstn: resets everything, debug included, active low
# tarvo_orix_m1_pin {hwRstn}               PIN input none
# LOCKUP: the processor has stopped after a second fault
# tarvo_orix_m1_pin {LOCKUP}               PIN output none
# HALTED: the debugger has stopped the processor
# tarvo_orix_m1_pin {HALTED}               PIN output none
# JTAG_7: TMS or SWDIO
# tarvo_orix_m1_pin {JTAG_7}               PIN inout none
# JTAG_9: TCK or SWCLK, clocks the debug port
# tarvo_orix_m1_pin {JTAG_9}               PIN inout none
# JTAG_3: nTRST, resets the debug port, active low, to be pulled up
# tarvo_orix_m1_pin {JTAG_3}               PIN inout up
# JTAG_4: driven low
# tarvo_orix_m1_pin {JTAG_4}               PIN inout none
# JTAG_5: TDI
# tarvo_orix_m1_pin {JTAG_5}               PIN inout none
# JTAG_6: driven low
# tarvo_orix_m1_pin {JTAG_6}               PIN inout none
# JTAG_8: driven low
# tarvo_orix_m1_pin {JTAG_8}               PIN inout none
# JTAG_10: driven low
# tarvo_orix_m1_pin {JTAG_10}              PIN inout none
# JTAG_11: driven low
# tarvo_orix_m1_pin {JTAG_11}              PIN inout none
# JTAG_12: driven low
# tarvo_orix_m1_pin {JTAG_12}              PIN inout none
# JTAG_13: TDO
# tarvo_orix_m1_pin {JTAG_13}              PIN inout none
# JTAG_14: driven low
# tarvo_orix_m1_pin {JTAG_14}              PIN inout none
# JTAG_15: nSRST, resets everything but debug; left open, it can hold the subsystem in reset for ever, active low, to be pulled up
# tarvo_orix_m1_pin {JTAG_15}              PIN inout up
# JTAG_16: driven low
# tarvo_orix_m1_pin {JTAG_16}              PIN inout none
# JTAG_17: not connected
# tarvo_orix_m1_pin {JTAG_17}              PIN inout none
# JTAG_18: driven low
# tarvo_orix_m1_pin {JTAG_18}              PIN inout none

# SPI-Flash
# FLASH_SPI_HOLDN: hold of the flash, always released, active low
# tarvo_orix_m1_pin {FLASH_SPI_HOLDN}      PIN inout none
# FLASH_SPI_CSN: chip select of the flash, active low
# tarvo_orix_m1_pin {FLASH_SPI_CSN}        PIN inout none
# FLASH_SPI_MISO: data from the flash
# tarvo_orix_m1_pin {FLASH_SPI_MISO}       PIN inout none
# FLASH_SPI_MOSI: data to the flash
# tarvo_orix_m1_pin {FLASH_SPI_MOSI}       PIN inout none
# FLASH_SPI_WPN: write protection of the flash, active low
# tarvo_orix_m1_pin {FLASH_SPI_WPN}        PIN inout none
# FLASH_SPI_CLK: clock of the flash
# tarvo_orix_m1_pin {FLASH_SPI_CLK}        PIN inout none

# PSRAM
# O_psram_ck[1:0]: clocks of the memory
# tarvo_orix_m1_pin {O_psram_ck[1]}        PIN output none
# tarvo_orix_m1_pin {O_psram_ck[0]}        PIN output none
# O_psram_ck_n[1:0]: the same, inverted
# tarvo_orix_m1_pin {O_psram_ck_n[1]}      PIN output none
# tarvo_orix_m1_pin {O_psram_ck_n[0]}      PIN output none
# IO_psram_rwds[1:0]: strobes of the memory
# tarvo_orix_m1_pin {IO_psram_rwds[1]}     PIN inout none
# tarvo_orix_m1_pin {IO_psram_rwds[0]}     PIN inout none
# IO_psram_dq[15:0]: data of the memory
# tarvo_orix_m1_pin {IO_psram_dq[15]}      PIN inout none
# tarvo_orix_m1_pin {IO_psram_dq[14]}      PIN inout none
# tarvo_orix_m1_pin {IO_psram_dq[13]}      PIN inout none
# tarvo_orix_m1_pin {IO_psram_dq[12]}      PIN inout none
# tarvo_orix_m1_pin {IO_psram_dq[11]}      PIN inout none
# tarvo_orix_m1_pin {IO_psram_dq[10]}      PIN inout none
# tarvo_orix_m1_pin {IO_psram_dq[9]}       PIN inout none
# tarvo_orix_m1_pin {IO_psram_dq[8]}       PIN inout none
# tarvo_orix_m1_pin {IO_psram_dq[7]}       PIN inout none
# tarvo_orix_m1_pin {IO_psram_dq[6]}       PIN inout none
# tarvo_orix_m1_pin {IO_psram_dq[5]}       PIN inout none
# tarvo_orix_m1_pin {IO_psram_dq[4]}       PIN inout none
# tarvo_orix_m1_pin {IO_psram_dq[3]}       PIN inout none
# tarvo_orix_m1_pin {IO_psram_dq[2]}       PIN inout none
# tarvo_orix_m1_pin {IO_psram_dq[1]}       PIN inout none
# tarvo_orix_m1_pin {IO_psram_dq[0]}       PIN inout none
# O_psram_reset_n[1:0]: resets the memory, active low
# tarvo_orix_m1_pin {O_psram_reset_n[1]}   PIN output none
# tarvo_orix_m1_pin {O_psram_reset_n[0]}   PIN output none
# O_psram_cs_n[1:0]: chip selects of the memory, active low
# tarvo_orix_m1_pin {O_psram_cs_n[1]}      PIN output none
# tarvo_orix_m1_pin {O_psram_cs_n[0]}      PIN output none
# init_calib: the PSRAM is calibrated
# tarvo_orix_m1_pin {init_calib}           PIN output none
# psram_ref_clk: reference clock of the PSRAM interface
# tarvo_orix_m1_pin {psram_ref_clk}        PIN input none
# psram_memory_clk: clock of the PSRAM
# tarvo_orix_m1_pin {psram_memory_clk}     PIN input none
