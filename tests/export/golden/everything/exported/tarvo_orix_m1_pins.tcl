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
# tarvo_orix_m1_pin {HCLK}                    PIN input none
# hwRstn: resets everything, debug included, active low
# tarvo_orix_m1_pin {hwRstn}                  PIN input none
# LOCKUP: the processor has stopped after a second fault
# tarvo_orix_m1_pin {LOCKUP}                  PIN output none
# HALTED: the debugger has stopped the processor
# tarvo_orix_m1_pin {HALTED}                  PIN output none
# JTAG_7: TMS or SWDIO
# tarvo_orix_m1_pin {JTAG_7}                  PIN inout none
# JTAG_9: TCK or SWCLK, clocks the debug port
# tarvo_orix_m1_pin {JTAG_9}                  PIN inout none
# JTAG_3: nTRST, resets the debug port, active low, to be pulled up
# tarvo_orix_m1_pin {JTAG_3}                  PIN inout up
# JTAG_4: driven low
# tarvo_orix_m1_pin {JTAG_4}                  PIN inout none
# JTAG_5: TDI
# tarvo_orix_m1_pin {JTAG_5}                  PIN inout none
# JTAG_6: driven low
# tarvo_orix_m1_pin {JTAG_6}                  PIN inout none
# JTAG_8: driven low
# tarvo_orix_m1_pin {JTAG_8}                  PIN inout none
# JTAG_10: driven low
# tarvo_orix_m1_pin {JTAG_10}                 PIN inout none
# JTAG_11: driven low
# tarvo_orix_m1_pin {JTAG_11}                 PIN inout none
# JTAG_12: driven low
# tarvo_orix_m1_pin {JTAG_12}                 PIN inout none
# JTAG_13: TDO
# tarvo_orix_m1_pin {JTAG_13}                 PIN inout none
# JTAG_14: driven low
# tarvo_orix_m1_pin {JTAG_14}                 PIN inout none
# JTAG_15: nSRST, resets everything but debug; left open, it can hold the subsystem in reset for ever, active low, to be pulled up
# tarvo_orix_m1_pin {JTAG_15}                 PIN inout up
# JTAG_16: driven low
# tarvo_orix_m1_pin {JTAG_16}                 PIN inout none
# JTAG_17: not connected
# tarvo_orix_m1_pin {JTAG_17}                 PIN inout none
# JTAG_18: driven low
# tarvo_orix_m1_pin {JTAG_18}                 PIN inout none
# EXTINT[3:0]: interrupts 12 (bit 0) to 15 (bit 3), requested while high
# tarvo_orix_m1_pin {EXTINT[3]}               PIN input none
# tarvo_orix_m1_pin {EXTINT[2]}               PIN input none
# tarvo_orix_m1_pin {EXTINT[1]}               PIN input none
# tarvo_orix_m1_pin {EXTINT[0]}               PIN input none

# GPIO
# GPIO[15:0]: pins
# tarvo_orix_m1_pin {GPIO[15]}                PIN inout none
# tarvo_orix_m1_pin {GPIO[14]}                PIN inout none
# tarvo_orix_m1_pin {GPIO[13]}                PIN inout none
# tarvo_orix_m1_pin {GPIO[12]}                PIN inout none
# tarvo_orix_m1_pin {GPIO[11]}                PIN inout none
# tarvo_orix_m1_pin {GPIO[10]}                PIN inout none
# tarvo_orix_m1_pin {GPIO[9]}                 PIN inout none
# tarvo_orix_m1_pin {GPIO[8]}                 PIN inout none
# tarvo_orix_m1_pin {GPIO[7]}                 PIN inout none
# tarvo_orix_m1_pin {GPIO[6]}                 PIN inout none
# tarvo_orix_m1_pin {GPIO[5]}                 PIN inout none
# tarvo_orix_m1_pin {GPIO[4]}                 PIN inout none
# tarvo_orix_m1_pin {GPIO[3]}                 PIN inout none
# tarvo_orix_m1_pin {GPIO[2]}                 PIN inout none
# tarvo_orix_m1_pin {GPIO[1]}                 PIN inout none
# tarvo_orix_m1_pin {GPIO[0]}                 PIN inout none

# CAN
# CAN_RX: from the transceiver
# tarvo_orix_m1_pin {CAN_RX}                  PIN input none
# CAN_TX: to the transceiver
# tarvo_orix_m1_pin {CAN_TX}                  PIN output none

# Ethernet
# MDC: management clock of the PHY
# tarvo_orix_m1_pin {MDC}                     PIN output none
# MDIO: management data of the PHY, to be pulled up
# tarvo_orix_m1_pin {MDIO}                    PIN inout up
# RGMII_TXC: transmit clock
# tarvo_orix_m1_pin {RGMII_TXC}               PIN output none
# RGMII_TX_CTL: transmit control
# tarvo_orix_m1_pin {RGMII_TX_CTL}            PIN output none
# RGMII_TXD[3:0]: transmit data
# tarvo_orix_m1_pin {RGMII_TXD[3]}            PIN output none
# tarvo_orix_m1_pin {RGMII_TXD[2]}            PIN output none
# tarvo_orix_m1_pin {RGMII_TXD[1]}            PIN output none
# tarvo_orix_m1_pin {RGMII_TXD[0]}            PIN output none
# RGMII_RXC: receive clock of the PHY
# tarvo_orix_m1_pin {RGMII_RXC}               PIN input none
# RGMII_RX_CTL: receive control
# tarvo_orix_m1_pin {RGMII_RX_CTL}            PIN input none
# RGMII_RXD[3:0]: receive data
# tarvo_orix_m1_pin {RGMII_RXD[3]}            PIN input none
# tarvo_orix_m1_pin {RGMII_RXD[2]}            PIN input none
# tarvo_orix_m1_pin {RGMII_RXD[1]}            PIN input none
# tarvo_orix_m1_pin {RGMII_RXD[0]}            PIN input none
# GTX_CLK: transmit clock of the MAC, 125 MHz
# tarvo_orix_m1_pin {GTX_CLK}                 PIN input none

# SPI-Flash
# FLASH_SPI_HOLDN: hold of the flash, always released, active low
# tarvo_orix_m1_pin {FLASH_SPI_HOLDN}         PIN inout none
# FLASH_SPI_CSN: chip select of the flash, active low
# tarvo_orix_m1_pin {FLASH_SPI_CSN}           PIN inout none
# FLASH_SPI_MISO: data from the flash
# tarvo_orix_m1_pin {FLASH_SPI_MISO}          PIN inout none
# FLASH_SPI_MOSI: data to the flash
# tarvo_orix_m1_pin {FLASH_SPI_MOSI}          PIN inout none
# FLASH_SPI_WPN: write protection of the flash, active low
# tarvo_orix_m1_pin {FLASH_SPI_WPN}           PIN inout none
# FLASH_SPI_CLK: clock of the flash
# tarvo_orix_m1_pin {FLASH_SPI_CLK}           PIN inout none

# DDR3
# DDR_STOP_O: asks to stop DDR_MEM_CLK_I while its phase changes
# tarvo_orix_m1_pin {DDR_STOP_O}              PIN output none
# DDR_CLK_I: reference clock of the DDR3 controller
# tarvo_orix_m1_pin {DDR_CLK_I}               PIN input none
# DDR_MEM_CLK_I: clock of the DDR3 interface
# tarvo_orix_m1_pin {DDR_MEM_CLK_I}           PIN input none
# DDR_LOCK_I: DDR_MEM_CLK_I is stable
# tarvo_orix_m1_pin {DDR_LOCK_I}              PIN input none
# DDR_RSTN_I: resets the DDR3 controller, active low
# tarvo_orix_m1_pin {DDR_RSTN_I}              PIN input none
# DDR_INIT_COMPLETE_O: the DDR3 memory is ready
# tarvo_orix_m1_pin {DDR_INIT_COMPLETE_O}     PIN output none
# DDR_ADDR_O[15:0]: address of the memory
# tarvo_orix_m1_pin {DDR_ADDR_O[15]}          PIN output none
# tarvo_orix_m1_pin {DDR_ADDR_O[14]}          PIN output none
# tarvo_orix_m1_pin {DDR_ADDR_O[13]}          PIN output none
# tarvo_orix_m1_pin {DDR_ADDR_O[12]}          PIN output none
# tarvo_orix_m1_pin {DDR_ADDR_O[11]}          PIN output none
# tarvo_orix_m1_pin {DDR_ADDR_O[10]}          PIN output none
# tarvo_orix_m1_pin {DDR_ADDR_O[9]}           PIN output none
# tarvo_orix_m1_pin {DDR_ADDR_O[8]}           PIN output none
# tarvo_orix_m1_pin {DDR_ADDR_O[7]}           PIN output none
# tarvo_orix_m1_pin {DDR_ADDR_O[6]}           PIN output none
# tarvo_orix_m1_pin {DDR_ADDR_O[5]}           PIN output none
# tarvo_orix_m1_pin {DDR_ADDR_O[4]}           PIN output none
# tarvo_orix_m1_pin {DDR_ADDR_O[3]}           PIN output none
# tarvo_orix_m1_pin {DDR_ADDR_O[2]}           PIN output none
# tarvo_orix_m1_pin {DDR_ADDR_O[1]}           PIN output none
# tarvo_orix_m1_pin {DDR_ADDR_O[0]}           PIN output none
# DDR_BA_O[2:0]: bank of the memory
# tarvo_orix_m1_pin {DDR_BA_O[2]}             PIN output none
# tarvo_orix_m1_pin {DDR_BA_O[1]}             PIN output none
# tarvo_orix_m1_pin {DDR_BA_O[0]}             PIN output none
# DDR_CS_N_O: chip select of the memory, active low
# tarvo_orix_m1_pin {DDR_CS_N_O}              PIN output none
# DDR_RAS_N_O: row address strobe, active low
# tarvo_orix_m1_pin {DDR_RAS_N_O}             PIN output none
# DDR_CAS_N_O: column address strobe, active low
# tarvo_orix_m1_pin {DDR_CAS_N_O}             PIN output none
# DDR_WE_N_O: write enable, active low
# tarvo_orix_m1_pin {DDR_WE_N_O}              PIN output none
# DDR_CLK_O: clock of the memory
# tarvo_orix_m1_pin {DDR_CLK_O}               PIN output none
# DDR_CLK_N_O: the same, inverted
# tarvo_orix_m1_pin {DDR_CLK_N_O}             PIN output none
# DDR_CKE_O: clock enable
# tarvo_orix_m1_pin {DDR_CKE_O}               PIN output none
# DDR_ODT_O: termination
# tarvo_orix_m1_pin {DDR_ODT_O}               PIN output none
# DDR_RESET_N_O: resets the memory, active low
# tarvo_orix_m1_pin {DDR_RESET_N_O}           PIN output none
# DDR_DQM_O[1:0]: masks of the data
# tarvo_orix_m1_pin {DDR_DQM_O[1]}            PIN output none
# tarvo_orix_m1_pin {DDR_DQM_O[0]}            PIN output none
# DDR_DQ_IO[15:0]: data of the memory
# tarvo_orix_m1_pin {DDR_DQ_IO[15]}           PIN inout none
# tarvo_orix_m1_pin {DDR_DQ_IO[14]}           PIN inout none
# tarvo_orix_m1_pin {DDR_DQ_IO[13]}           PIN inout none
# tarvo_orix_m1_pin {DDR_DQ_IO[12]}           PIN inout none
# tarvo_orix_m1_pin {DDR_DQ_IO[11]}           PIN inout none
# tarvo_orix_m1_pin {DDR_DQ_IO[10]}           PIN inout none
# tarvo_orix_m1_pin {DDR_DQ_IO[9]}            PIN inout none
# tarvo_orix_m1_pin {DDR_DQ_IO[8]}            PIN inout none
# tarvo_orix_m1_pin {DDR_DQ_IO[7]}            PIN inout none
# tarvo_orix_m1_pin {DDR_DQ_IO[6]}            PIN inout none
# tarvo_orix_m1_pin {DDR_DQ_IO[5]}            PIN inout none
# tarvo_orix_m1_pin {DDR_DQ_IO[4]}            PIN inout none
# tarvo_orix_m1_pin {DDR_DQ_IO[3]}            PIN inout none
# tarvo_orix_m1_pin {DDR_DQ_IO[2]}            PIN inout none
# tarvo_orix_m1_pin {DDR_DQ_IO[1]}            PIN inout none
# tarvo_orix_m1_pin {DDR_DQ_IO[0]}            PIN inout none
# DDR_DQS_IO[1:0]: strobes of the data
# tarvo_orix_m1_pin {DDR_DQS_IO[1]}           PIN inout none
# tarvo_orix_m1_pin {DDR_DQS_IO[0]}           PIN inout none
# DDR_DQS_N_IO[1:0]: the same, inverted
# tarvo_orix_m1_pin {DDR_DQS_N_IO[1]}         PIN inout none
# tarvo_orix_m1_pin {DDR_DQS_N_IO[0]}         PIN inout none

# AHB Master [1-6]
# AHB1HRDATA[31:0]: data read, of AHB1
# tarvo_orix_m1_pin {AHB1HRDATA[31]}          PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[30]}          PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[29]}          PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[28]}          PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[27]}          PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[26]}          PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[25]}          PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[24]}          PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[23]}          PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[22]}          PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[21]}          PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[20]}          PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[19]}          PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[18]}          PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[17]}          PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[16]}          PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[15]}          PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[14]}          PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[13]}          PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[12]}          PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[11]}          PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[10]}          PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[9]}           PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[8]}           PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[7]}           PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[6]}           PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[5]}           PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[4]}           PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[3]}           PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[2]}           PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[1]}           PIN input none
# tarvo_orix_m1_pin {AHB1HRDATA[0]}           PIN input none
# AHB1HREADYOUT: the slave has finished, of AHB1
# tarvo_orix_m1_pin {AHB1HREADYOUT}           PIN input none
# AHB1HRESP[1:0]: response; any value but 0 is an error, of AHB1
# tarvo_orix_m1_pin {AHB1HRESP[1]}            PIN input none
# tarvo_orix_m1_pin {AHB1HRESP[0]}            PIN input none
# AHB1HTRANS[1:0]: kind of the transfer, of AHB1
# tarvo_orix_m1_pin {AHB1HTRANS[1]}           PIN output none
# tarvo_orix_m1_pin {AHB1HTRANS[0]}           PIN output none
# AHB1HBURST[2:0]: kind of the burst, of AHB1
# tarvo_orix_m1_pin {AHB1HBURST[2]}           PIN output none
# tarvo_orix_m1_pin {AHB1HBURST[1]}           PIN output none
# tarvo_orix_m1_pin {AHB1HBURST[0]}           PIN output none
# AHB1HPROT[3:0]: protection of the transfer, of AHB1
# tarvo_orix_m1_pin {AHB1HPROT[3]}            PIN output none
# tarvo_orix_m1_pin {AHB1HPROT[2]}            PIN output none
# tarvo_orix_m1_pin {AHB1HPROT[1]}            PIN output none
# tarvo_orix_m1_pin {AHB1HPROT[0]}            PIN output none
# AHB1HSIZE[2:0]: size of the transfer, of AHB1
# tarvo_orix_m1_pin {AHB1HSIZE[2]}            PIN output none
# tarvo_orix_m1_pin {AHB1HSIZE[1]}            PIN output none
# tarvo_orix_m1_pin {AHB1HSIZE[0]}            PIN output none
# AHB1HWRITE: 1 writes, of AHB1
# tarvo_orix_m1_pin {AHB1HWRITE}              PIN output none
# AHB1HREADYMUX: the transfer before has finished, of AHB1
# tarvo_orix_m1_pin {AHB1HREADYMUX}           PIN output none
# AHB1HMASTER[3:0]: number of the master, of AHB1
# tarvo_orix_m1_pin {AHB1HMASTER[3]}          PIN output none
# tarvo_orix_m1_pin {AHB1HMASTER[2]}          PIN output none
# tarvo_orix_m1_pin {AHB1HMASTER[1]}          PIN output none
# tarvo_orix_m1_pin {AHB1HMASTER[0]}          PIN output none
# AHB1HMASTLOCK: the transfer is locked, of AHB1
# tarvo_orix_m1_pin {AHB1HMASTLOCK}           PIN output none
# AHB1HADDR[31:0]: address, of AHB1
# tarvo_orix_m1_pin {AHB1HADDR[31]}           PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[30]}           PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[29]}           PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[28]}           PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[27]}           PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[26]}           PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[25]}           PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[24]}           PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[23]}           PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[22]}           PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[21]}           PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[20]}           PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[19]}           PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[18]}           PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[17]}           PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[16]}           PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[15]}           PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[14]}           PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[13]}           PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[12]}           PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[11]}           PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[10]}           PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[9]}            PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[8]}            PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[7]}            PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[6]}            PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[5]}            PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[4]}            PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[3]}            PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[2]}            PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[1]}            PIN output none
# tarvo_orix_m1_pin {AHB1HADDR[0]}            PIN output none
# AHB1HWDATA[31:0]: data written, of AHB1
# tarvo_orix_m1_pin {AHB1HWDATA[31]}          PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[30]}          PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[29]}          PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[28]}          PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[27]}          PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[26]}          PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[25]}          PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[24]}          PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[23]}          PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[22]}          PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[21]}          PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[20]}          PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[19]}          PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[18]}          PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[17]}          PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[16]}          PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[15]}          PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[14]}          PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[13]}          PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[12]}          PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[11]}          PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[10]}          PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[9]}           PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[8]}           PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[7]}           PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[6]}           PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[5]}           PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[4]}           PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[3]}           PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[2]}           PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[1]}           PIN output none
# tarvo_orix_m1_pin {AHB1HWDATA[0]}           PIN output none
# AHB1HSEL: the address is one of the port, of AHB1
# tarvo_orix_m1_pin {AHB1HSEL}                PIN output none
# AHB1HCLK: clock of the port, of AHB1
# tarvo_orix_m1_pin {AHB1HCLK}                PIN output none
# AHB1HRESET: reset of the port, of AHB1, active low
# tarvo_orix_m1_pin {AHB1HRESET}              PIN output none
# AHB2HRDATA[31:0]: data read, of AHB2
# tarvo_orix_m1_pin {AHB2HRDATA[31]}          PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[30]}          PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[29]}          PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[28]}          PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[27]}          PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[26]}          PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[25]}          PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[24]}          PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[23]}          PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[22]}          PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[21]}          PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[20]}          PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[19]}          PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[18]}          PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[17]}          PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[16]}          PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[15]}          PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[14]}          PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[13]}          PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[12]}          PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[11]}          PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[10]}          PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[9]}           PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[8]}           PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[7]}           PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[6]}           PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[5]}           PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[4]}           PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[3]}           PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[2]}           PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[1]}           PIN input none
# tarvo_orix_m1_pin {AHB2HRDATA[0]}           PIN input none
# AHB2HREADYOUT: the slave has finished, of AHB2
# tarvo_orix_m1_pin {AHB2HREADYOUT}           PIN input none
# AHB2HRESP[1:0]: response; any value but 0 is an error, of AHB2
# tarvo_orix_m1_pin {AHB2HRESP[1]}            PIN input none
# tarvo_orix_m1_pin {AHB2HRESP[0]}            PIN input none
# AHB2HTRANS[1:0]: kind of the transfer, of AHB2
# tarvo_orix_m1_pin {AHB2HTRANS[1]}           PIN output none
# tarvo_orix_m1_pin {AHB2HTRANS[0]}           PIN output none
# AHB2HBURST[2:0]: kind of the burst, of AHB2
# tarvo_orix_m1_pin {AHB2HBURST[2]}           PIN output none
# tarvo_orix_m1_pin {AHB2HBURST[1]}           PIN output none
# tarvo_orix_m1_pin {AHB2HBURST[0]}           PIN output none
# AHB2HPROT[3:0]: protection of the transfer, of AHB2
# tarvo_orix_m1_pin {AHB2HPROT[3]}            PIN output none
# tarvo_orix_m1_pin {AHB2HPROT[2]}            PIN output none
# tarvo_orix_m1_pin {AHB2HPROT[1]}            PIN output none
# tarvo_orix_m1_pin {AHB2HPROT[0]}            PIN output none
# AHB2HSIZE[2:0]: size of the transfer, of AHB2
# tarvo_orix_m1_pin {AHB2HSIZE[2]}            PIN output none
# tarvo_orix_m1_pin {AHB2HSIZE[1]}            PIN output none
# tarvo_orix_m1_pin {AHB2HSIZE[0]}            PIN output none
# AHB2HWRITE: 1 writes, of AHB2
# tarvo_orix_m1_pin {AHB2HWRITE}              PIN output none
# AHB2HREADYMUX: the transfer before has finished, of AHB2
# tarvo_orix_m1_pin {AHB2HREADYMUX}           PIN output none
# AHB2HMASTER[3:0]: number of the master, of AHB2
# tarvo_orix_m1_pin {AHB2HMASTER[3]}          PIN output none
# tarvo_orix_m1_pin {AHB2HMASTER[2]}          PIN output none
# tarvo_orix_m1_pin {AHB2HMASTER[1]}          PIN output none
# tarvo_orix_m1_pin {AHB2HMASTER[0]}          PIN output none
# AHB2HMASTLOCK: the transfer is locked, of AHB2
# tarvo_orix_m1_pin {AHB2HMASTLOCK}           PIN output none
# AHB2HADDR[31:0]: address, of AHB2
# tarvo_orix_m1_pin {AHB2HADDR[31]}           PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[30]}           PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[29]}           PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[28]}           PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[27]}           PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[26]}           PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[25]}           PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[24]}           PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[23]}           PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[22]}           PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[21]}           PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[20]}           PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[19]}           PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[18]}           PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[17]}           PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[16]}           PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[15]}           PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[14]}           PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[13]}           PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[12]}           PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[11]}           PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[10]}           PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[9]}            PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[8]}            PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[7]}            PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[6]}            PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[5]}            PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[4]}            PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[3]}            PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[2]}            PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[1]}            PIN output none
# tarvo_orix_m1_pin {AHB2HADDR[0]}            PIN output none
# AHB2HWDATA[31:0]: data written, of AHB2
# tarvo_orix_m1_pin {AHB2HWDATA[31]}          PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[30]}          PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[29]}          PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[28]}          PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[27]}          PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[26]}          PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[25]}          PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[24]}          PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[23]}          PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[22]}          PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[21]}          PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[20]}          PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[19]}          PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[18]}          PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[17]}          PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[16]}          PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[15]}          PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[14]}          PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[13]}          PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[12]}          PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[11]}          PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[10]}          PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[9]}           PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[8]}           PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[7]}           PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[6]}           PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[5]}           PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[4]}           PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[3]}           PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[2]}           PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[1]}           PIN output none
# tarvo_orix_m1_pin {AHB2HWDATA[0]}           PIN output none
# AHB2HSEL: the address is one of the port, of AHB2
# tarvo_orix_m1_pin {AHB2HSEL}                PIN output none
# AHB2HCLK: clock of the port, of AHB2
# tarvo_orix_m1_pin {AHB2HCLK}                PIN output none
# AHB2HRESET: reset of the port, of AHB2, active low
# tarvo_orix_m1_pin {AHB2HRESET}              PIN output none
# AHB3HRDATA[31:0]: data read, of AHB3
# tarvo_orix_m1_pin {AHB3HRDATA[31]}          PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[30]}          PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[29]}          PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[28]}          PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[27]}          PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[26]}          PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[25]}          PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[24]}          PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[23]}          PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[22]}          PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[21]}          PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[20]}          PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[19]}          PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[18]}          PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[17]}          PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[16]}          PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[15]}          PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[14]}          PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[13]}          PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[12]}          PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[11]}          PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[10]}          PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[9]}           PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[8]}           PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[7]}           PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[6]}           PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[5]}           PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[4]}           PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[3]}           PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[2]}           PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[1]}           PIN input none
# tarvo_orix_m1_pin {AHB3HRDATA[0]}           PIN input none
# AHB3HREADYOUT: the slave has finished, of AHB3
# tarvo_orix_m1_pin {AHB3HREADYOUT}           PIN input none
# AHB3HRESP[1:0]: response; any value but 0 is an error, of AHB3
# tarvo_orix_m1_pin {AHB3HRESP[1]}            PIN input none
# tarvo_orix_m1_pin {AHB3HRESP[0]}            PIN input none
# AHB3HTRANS[1:0]: kind of the transfer, of AHB3
# tarvo_orix_m1_pin {AHB3HTRANS[1]}           PIN output none
# tarvo_orix_m1_pin {AHB3HTRANS[0]}           PIN output none
# AHB3HBURST[2:0]: kind of the burst, of AHB3
# tarvo_orix_m1_pin {AHB3HBURST[2]}           PIN output none
# tarvo_orix_m1_pin {AHB3HBURST[1]}           PIN output none
# tarvo_orix_m1_pin {AHB3HBURST[0]}           PIN output none
# AHB3HPROT[3:0]: protection of the transfer, of AHB3
# tarvo_orix_m1_pin {AHB3HPROT[3]}            PIN output none
# tarvo_orix_m1_pin {AHB3HPROT[2]}            PIN output none
# tarvo_orix_m1_pin {AHB3HPROT[1]}            PIN output none
# tarvo_orix_m1_pin {AHB3HPROT[0]}            PIN output none
# AHB3HSIZE[2:0]: size of the transfer, of AHB3
# tarvo_orix_m1_pin {AHB3HSIZE[2]}            PIN output none
# tarvo_orix_m1_pin {AHB3HSIZE[1]}            PIN output none
# tarvo_orix_m1_pin {AHB3HSIZE[0]}            PIN output none
# AHB3HWRITE: 1 writes, of AHB3
# tarvo_orix_m1_pin {AHB3HWRITE}              PIN output none
# AHB3HREADYMUX: the transfer before has finished, of AHB3
# tarvo_orix_m1_pin {AHB3HREADYMUX}           PIN output none
# AHB3HMASTER[3:0]: number of the master, of AHB3
# tarvo_orix_m1_pin {AHB3HMASTER[3]}          PIN output none
# tarvo_orix_m1_pin {AHB3HMASTER[2]}          PIN output none
# tarvo_orix_m1_pin {AHB3HMASTER[1]}          PIN output none
# tarvo_orix_m1_pin {AHB3HMASTER[0]}          PIN output none
# AHB3HMASTLOCK: the transfer is locked, of AHB3
# tarvo_orix_m1_pin {AHB3HMASTLOCK}           PIN output none
# AHB3HADDR[31:0]: address, of AHB3
# tarvo_orix_m1_pin {AHB3HADDR[31]}           PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[30]}           PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[29]}           PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[28]}           PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[27]}           PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[26]}           PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[25]}           PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[24]}           PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[23]}           PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[22]}           PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[21]}           PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[20]}           PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[19]}           PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[18]}           PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[17]}           PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[16]}           PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[15]}           PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[14]}           PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[13]}           PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[12]}           PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[11]}           PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[10]}           PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[9]}            PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[8]}            PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[7]}            PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[6]}            PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[5]}            PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[4]}            PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[3]}            PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[2]}            PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[1]}            PIN output none
# tarvo_orix_m1_pin {AHB3HADDR[0]}            PIN output none
# AHB3HWDATA[31:0]: data written, of AHB3
# tarvo_orix_m1_pin {AHB3HWDATA[31]}          PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[30]}          PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[29]}          PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[28]}          PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[27]}          PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[26]}          PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[25]}          PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[24]}          PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[23]}          PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[22]}          PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[21]}          PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[20]}          PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[19]}          PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[18]}          PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[17]}          PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[16]}          PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[15]}          PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[14]}          PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[13]}          PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[12]}          PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[11]}          PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[10]}          PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[9]}           PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[8]}           PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[7]}           PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[6]}           PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[5]}           PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[4]}           PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[3]}           PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[2]}           PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[1]}           PIN output none
# tarvo_orix_m1_pin {AHB3HWDATA[0]}           PIN output none
# AHB3HSEL: the address is one of the port, of AHB3
# tarvo_orix_m1_pin {AHB3HSEL}                PIN output none
# AHB3HCLK: clock of the port, of AHB3
# tarvo_orix_m1_pin {AHB3HCLK}                PIN output none
# AHB3HRESET: reset of the port, of AHB3, active low
# tarvo_orix_m1_pin {AHB3HRESET}              PIN output none
# AHB4HRDATA[31:0]: data read, of AHB4
# tarvo_orix_m1_pin {AHB4HRDATA[31]}          PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[30]}          PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[29]}          PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[28]}          PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[27]}          PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[26]}          PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[25]}          PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[24]}          PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[23]}          PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[22]}          PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[21]}          PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[20]}          PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[19]}          PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[18]}          PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[17]}          PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[16]}          PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[15]}          PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[14]}          PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[13]}          PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[12]}          PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[11]}          PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[10]}          PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[9]}           PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[8]}           PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[7]}           PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[6]}           PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[5]}           PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[4]}           PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[3]}           PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[2]}           PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[1]}           PIN input none
# tarvo_orix_m1_pin {AHB4HRDATA[0]}           PIN input none
# AHB4HREADYOUT: the slave has finished, of AHB4
# tarvo_orix_m1_pin {AHB4HREADYOUT}           PIN input none
# AHB4HRESP[1:0]: response; any value but 0 is an error, of AHB4
# tarvo_orix_m1_pin {AHB4HRESP[1]}            PIN input none
# tarvo_orix_m1_pin {AHB4HRESP[0]}            PIN input none
# AHB4HTRANS[1:0]: kind of the transfer, of AHB4
# tarvo_orix_m1_pin {AHB4HTRANS[1]}           PIN output none
# tarvo_orix_m1_pin {AHB4HTRANS[0]}           PIN output none
# AHB4HBURST[2:0]: kind of the burst, of AHB4
# tarvo_orix_m1_pin {AHB4HBURST[2]}           PIN output none
# tarvo_orix_m1_pin {AHB4HBURST[1]}           PIN output none
# tarvo_orix_m1_pin {AHB4HBURST[0]}           PIN output none
# AHB4HPROT[3:0]: protection of the transfer, of AHB4
# tarvo_orix_m1_pin {AHB4HPROT[3]}            PIN output none
# tarvo_orix_m1_pin {AHB4HPROT[2]}            PIN output none
# tarvo_orix_m1_pin {AHB4HPROT[1]}            PIN output none
# tarvo_orix_m1_pin {AHB4HPROT[0]}            PIN output none
# AHB4HSIZE[2:0]: size of the transfer, of AHB4
# tarvo_orix_m1_pin {AHB4HSIZE[2]}            PIN output none
# tarvo_orix_m1_pin {AHB4HSIZE[1]}            PIN output none
# tarvo_orix_m1_pin {AHB4HSIZE[0]}            PIN output none
# AHB4HWRITE: 1 writes, of AHB4
# tarvo_orix_m1_pin {AHB4HWRITE}              PIN output none
# AHB4HREADYMUX: the transfer before has finished, of AHB4
# tarvo_orix_m1_pin {AHB4HREADYMUX}           PIN output none
# AHB4HMASTER[3:0]: number of the master, of AHB4
# tarvo_orix_m1_pin {AHB4HMASTER[3]}          PIN output none
# tarvo_orix_m1_pin {AHB4HMASTER[2]}          PIN output none
# tarvo_orix_m1_pin {AHB4HMASTER[1]}          PIN output none
# tarvo_orix_m1_pin {AHB4HMASTER[0]}          PIN output none
# AHB4HMASTLOCK: the transfer is locked, of AHB4
# tarvo_orix_m1_pin {AHB4HMASTLOCK}           PIN output none
# AHB4HADDR[31:0]: address, of AHB4
# tarvo_orix_m1_pin {AHB4HADDR[31]}           PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[30]}           PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[29]}           PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[28]}           PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[27]}           PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[26]}           PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[25]}           PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[24]}           PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[23]}           PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[22]}           PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[21]}           PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[20]}           PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[19]}           PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[18]}           PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[17]}           PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[16]}           PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[15]}           PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[14]}           PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[13]}           PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[12]}           PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[11]}           PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[10]}           PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[9]}            PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[8]}            PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[7]}            PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[6]}            PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[5]}            PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[4]}            PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[3]}            PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[2]}            PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[1]}            PIN output none
# tarvo_orix_m1_pin {AHB4HADDR[0]}            PIN output none
# AHB4HWDATA[31:0]: data written, of AHB4
# tarvo_orix_m1_pin {AHB4HWDATA[31]}          PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[30]}          PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[29]}          PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[28]}          PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[27]}          PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[26]}          PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[25]}          PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[24]}          PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[23]}          PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[22]}          PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[21]}          PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[20]}          PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[19]}          PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[18]}          PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[17]}          PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[16]}          PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[15]}          PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[14]}          PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[13]}          PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[12]}          PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[11]}          PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[10]}          PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[9]}           PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[8]}           PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[7]}           PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[6]}           PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[5]}           PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[4]}           PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[3]}           PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[2]}           PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[1]}           PIN output none
# tarvo_orix_m1_pin {AHB4HWDATA[0]}           PIN output none
# AHB4HSEL: the address is one of the port, of AHB4
# tarvo_orix_m1_pin {AHB4HSEL}                PIN output none
# AHB4HCLK: clock of the port, of AHB4
# tarvo_orix_m1_pin {AHB4HCLK}                PIN output none
# AHB4HRESET: reset of the port, of AHB4, active low
# tarvo_orix_m1_pin {AHB4HRESET}              PIN output none
# AHB5HRDATA[31:0]: data read, of AHB5
# tarvo_orix_m1_pin {AHB5HRDATA[31]}          PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[30]}          PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[29]}          PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[28]}          PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[27]}          PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[26]}          PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[25]}          PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[24]}          PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[23]}          PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[22]}          PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[21]}          PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[20]}          PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[19]}          PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[18]}          PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[17]}          PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[16]}          PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[15]}          PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[14]}          PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[13]}          PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[12]}          PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[11]}          PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[10]}          PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[9]}           PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[8]}           PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[7]}           PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[6]}           PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[5]}           PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[4]}           PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[3]}           PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[2]}           PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[1]}           PIN input none
# tarvo_orix_m1_pin {AHB5HRDATA[0]}           PIN input none
# AHB5HREADYOUT: the slave has finished, of AHB5
# tarvo_orix_m1_pin {AHB5HREADYOUT}           PIN input none
# AHB5HRESP[1:0]: response; any value but 0 is an error, of AHB5
# tarvo_orix_m1_pin {AHB5HRESP[1]}            PIN input none
# tarvo_orix_m1_pin {AHB5HRESP[0]}            PIN input none
# AHB5HTRANS[1:0]: kind of the transfer, of AHB5
# tarvo_orix_m1_pin {AHB5HTRANS[1]}           PIN output none
# tarvo_orix_m1_pin {AHB5HTRANS[0]}           PIN output none
# AHB5HBURST[2:0]: kind of the burst, of AHB5
# tarvo_orix_m1_pin {AHB5HBURST[2]}           PIN output none
# tarvo_orix_m1_pin {AHB5HBURST[1]}           PIN output none
# tarvo_orix_m1_pin {AHB5HBURST[0]}           PIN output none
# AHB5HPROT[3:0]: protection of the transfer, of AHB5
# tarvo_orix_m1_pin {AHB5HPROT[3]}            PIN output none
# tarvo_orix_m1_pin {AHB5HPROT[2]}            PIN output none
# tarvo_orix_m1_pin {AHB5HPROT[1]}            PIN output none
# tarvo_orix_m1_pin {AHB5HPROT[0]}            PIN output none
# AHB5HSIZE[2:0]: size of the transfer, of AHB5
# tarvo_orix_m1_pin {AHB5HSIZE[2]}            PIN output none
# tarvo_orix_m1_pin {AHB5HSIZE[1]}            PIN output none
# tarvo_orix_m1_pin {AHB5HSIZE[0]}            PIN output none
# AHB5HWRITE: 1 writes, of AHB5
# tarvo_orix_m1_pin {AHB5HWRITE}              PIN output none
# AHB5HREADYMUX: the transfer before has finished, of AHB5
# tarvo_orix_m1_pin {AHB5HREADYMUX}           PIN output none
# AHB5HMASTER[3:0]: number of the master, of AHB5
# tarvo_orix_m1_pin {AHB5HMASTER[3]}          PIN output none
# tarvo_orix_m1_pin {AHB5HMASTER[2]}          PIN output none
# tarvo_orix_m1_pin {AHB5HMASTER[1]}          PIN output none
# tarvo_orix_m1_pin {AHB5HMASTER[0]}          PIN output none
# AHB5HMASTLOCK: the transfer is locked, of AHB5
# tarvo_orix_m1_pin {AHB5HMASTLOCK}           PIN output none
# AHB5HADDR[31:0]: address, of AHB5
# tarvo_orix_m1_pin {AHB5HADDR[31]}           PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[30]}           PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[29]}           PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[28]}           PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[27]}           PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[26]}           PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[25]}           PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[24]}           PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[23]}           PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[22]}           PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[21]}           PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[20]}           PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[19]}           PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[18]}           PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[17]}           PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[16]}           PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[15]}           PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[14]}           PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[13]}           PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[12]}           PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[11]}           PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[10]}           PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[9]}            PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[8]}            PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[7]}            PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[6]}            PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[5]}            PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[4]}            PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[3]}            PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[2]}            PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[1]}            PIN output none
# tarvo_orix_m1_pin {AHB5HADDR[0]}            PIN output none
# AHB5HWDATA[31:0]: data written, of AHB5
# tarvo_orix_m1_pin {AHB5HWDATA[31]}          PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[30]}          PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[29]}          PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[28]}          PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[27]}          PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[26]}          PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[25]}          PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[24]}          PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[23]}          PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[22]}          PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[21]}          PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[20]}          PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[19]}          PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[18]}          PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[17]}          PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[16]}          PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[15]}          PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[14]}          PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[13]}          PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[12]}          PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[11]}          PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[10]}          PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[9]}           PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[8]}           PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[7]}           PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[6]}           PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[5]}           PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[4]}           PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[3]}           PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[2]}           PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[1]}           PIN output none
# tarvo_orix_m1_pin {AHB5HWDATA[0]}           PIN output none
# AHB5HSEL: the address is one of the port, of AHB5
# tarvo_orix_m1_pin {AHB5HSEL}                PIN output none
# AHB5HCLK: clock of the port, of AHB5
# tarvo_orix_m1_pin {AHB5HCLK}                PIN output none
# AHB5HRESET: reset of the port, of AHB5, active low
# tarvo_orix_m1_pin {AHB5HRESET}              PIN output none
# AHB6HRDATA[31:0]: data read, of AHB6
# tarvo_orix_m1_pin {AHB6HRDATA[31]}          PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[30]}          PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[29]}          PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[28]}          PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[27]}          PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[26]}          PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[25]}          PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[24]}          PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[23]}          PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[22]}          PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[21]}          PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[20]}          PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[19]}          PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[18]}          PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[17]}          PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[16]}          PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[15]}          PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[14]}          PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[13]}          PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[12]}          PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[11]}          PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[10]}          PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[9]}           PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[8]}           PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[7]}           PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[6]}           PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[5]}           PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[4]}           PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[3]}           PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[2]}           PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[1]}           PIN input none
# tarvo_orix_m1_pin {AHB6HRDATA[0]}           PIN input none
# AHB6HREADYOUT: the slave has finished, of AHB6
# tarvo_orix_m1_pin {AHB6HREADYOUT}           PIN input none
# AHB6HRESP[1:0]: response; any value but 0 is an error, of AHB6
# tarvo_orix_m1_pin {AHB6HRESP[1]}            PIN input none
# tarvo_orix_m1_pin {AHB6HRESP[0]}            PIN input none
# AHB6HTRANS[1:0]: kind of the transfer, of AHB6
# tarvo_orix_m1_pin {AHB6HTRANS[1]}           PIN output none
# tarvo_orix_m1_pin {AHB6HTRANS[0]}           PIN output none
# AHB6HBURST[2:0]: kind of the burst, of AHB6
# tarvo_orix_m1_pin {AHB6HBURST[2]}           PIN output none
# tarvo_orix_m1_pin {AHB6HBURST[1]}           PIN output none
# tarvo_orix_m1_pin {AHB6HBURST[0]}           PIN output none
# AHB6HPROT[3:0]: protection of the transfer, of AHB6
# tarvo_orix_m1_pin {AHB6HPROT[3]}            PIN output none
# tarvo_orix_m1_pin {AHB6HPROT[2]}            PIN output none
# tarvo_orix_m1_pin {AHB6HPROT[1]}            PIN output none
# tarvo_orix_m1_pin {AHB6HPROT[0]}            PIN output none
# AHB6HSIZE[2:0]: size of the transfer, of AHB6
# tarvo_orix_m1_pin {AHB6HSIZE[2]}            PIN output none
# tarvo_orix_m1_pin {AHB6HSIZE[1]}            PIN output none
# tarvo_orix_m1_pin {AHB6HSIZE[0]}            PIN output none
# AHB6HWRITE: 1 writes, of AHB6
# tarvo_orix_m1_pin {AHB6HWRITE}              PIN output none
# AHB6HREADYMUX: the transfer before has finished, of AHB6
# tarvo_orix_m1_pin {AHB6HREADYMUX}           PIN output none
# AHB6HMASTER[3:0]: number of the master, of AHB6
# tarvo_orix_m1_pin {AHB6HMASTER[3]}          PIN output none
# tarvo_orix_m1_pin {AHB6HMASTER[2]}          PIN output none
# tarvo_orix_m1_pin {AHB6HMASTER[1]}          PIN output none
# tarvo_orix_m1_pin {AHB6HMASTER[0]}          PIN output none
# AHB6HMASTLOCK: the transfer is locked, of AHB6
# tarvo_orix_m1_pin {AHB6HMASTLOCK}           PIN output none
# AHB6HADDR[31:0]: address, of AHB6
# tarvo_orix_m1_pin {AHB6HADDR[31]}           PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[30]}           PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[29]}           PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[28]}           PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[27]}           PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[26]}           PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[25]}           PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[24]}           PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[23]}           PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[22]}           PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[21]}           PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[20]}           PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[19]}           PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[18]}           PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[17]}           PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[16]}           PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[15]}           PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[14]}           PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[13]}           PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[12]}           PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[11]}           PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[10]}           PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[9]}            PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[8]}            PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[7]}            PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[6]}            PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[5]}            PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[4]}            PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[3]}            PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[2]}            PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[1]}            PIN output none
# tarvo_orix_m1_pin {AHB6HADDR[0]}            PIN output none
# AHB6HWDATA[31:0]: data written, of AHB6
# tarvo_orix_m1_pin {AHB6HWDATA[31]}          PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[30]}          PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[29]}          PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[28]}          PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[27]}          PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[26]}          PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[25]}          PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[24]}          PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[23]}          PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[22]}          PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[21]}          PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[20]}          PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[19]}          PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[18]}          PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[17]}          PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[16]}          PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[15]}          PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[14]}          PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[13]}          PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[12]}          PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[11]}          PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[10]}          PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[9]}           PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[8]}           PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[7]}           PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[6]}           PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[5]}           PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[4]}           PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[3]}           PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[2]}           PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[1]}           PIN output none
# tarvo_orix_m1_pin {AHB6HWDATA[0]}           PIN output none
# AHB6HSEL: the address is one of the port, of AHB6
# tarvo_orix_m1_pin {AHB6HSEL}                PIN output none
# AHB6HCLK: clock of the port, of AHB6
# tarvo_orix_m1_pin {AHB6HCLK}                PIN output none
# AHB6HRESET: reset of the port, of AHB6, active low
# tarvo_orix_m1_pin {AHB6HRESET}              PIN output none

# UART
# UART0RXD: serial data to receive
# tarvo_orix_m1_pin {UART0RXD}                PIN input none
# UART0TXD: serial data sent
# tarvo_orix_m1_pin {UART0TXD}                PIN output none
# UART1RXD: serial data to receive
# tarvo_orix_m1_pin {UART1RXD}                PIN input none
# UART1TXD: serial data sent
# tarvo_orix_m1_pin {UART1TXD}                PIN output none

# Timer
# TIMER0EXTIN: gate or events of the timer
# tarvo_orix_m1_pin {TIMER0EXTIN}             PIN input none
# TIMER1EXTIN: gate or events of the timer
# tarvo_orix_m1_pin {TIMER1EXTIN}             PIN input none

# RTC
# RTCSRCCLK: source clock of the seconds, sampled with HCLK and slower than HCLK / 4
# tarvo_orix_m1_pin {RTCSRCCLK}               PIN input none

# I2C
# SCL: clock of the bus, to be pulled up
# tarvo_orix_m1_pin {SCL}                     PIN inout up
# SDA: data of the bus, to be pulled up
# tarvo_orix_m1_pin {SDA}                     PIN inout up

# SPI
# MOSI: data to the slave
# tarvo_orix_m1_pin {MOSI}                    PIN output none
# MISO: data from the slave
# tarvo_orix_m1_pin {MISO}                    PIN input none
# SCLK: clock of the slave
# tarvo_orix_m1_pin {SCLK}                    PIN output none
# NSS: slave select, active low
# tarvo_orix_m1_pin {NSS}                     PIN output none

# SD-Card
# SD_CLK: clock of the card
# tarvo_orix_m1_pin {SD_CLK}                  PIN output none
# SD_SPICLK: source clock of SD_CLK, sampled with HCLK and slower than HCLK / 4
# tarvo_orix_m1_pin {SD_SPICLK}               PIN input none
# SD_CS: chip select of the card, active low
# tarvo_orix_m1_pin {SD_CS}                   PIN output none
# SD_DATAIN: data from the card
# tarvo_orix_m1_pin {SD_DATAIN}               PIN input none
# SD_DATAOUT: data to the card
# tarvo_orix_m1_pin {SD_DATAOUT}              PIN output none
# SD_CARD_INIT: software has initialised the card
# tarvo_orix_m1_pin {SD_CARD_INIT}            PIN output none
# SD_CHECKIN: switch of the card's socket, low with a card, active low
# tarvo_orix_m1_pin {SD_CHECKIN}              PIN input none
# SD_CHECKOUT: a card is present
# tarvo_orix_m1_pin {SD_CHECKOUT}             PIN output none

# APB Master [1-16]
# APB1PADDR[31:0]: address, of APB1
# tarvo_orix_m1_pin {APB1PADDR[31]}           PIN output none
# tarvo_orix_m1_pin {APB1PADDR[30]}           PIN output none
# tarvo_orix_m1_pin {APB1PADDR[29]}           PIN output none
# tarvo_orix_m1_pin {APB1PADDR[28]}           PIN output none
# tarvo_orix_m1_pin {APB1PADDR[27]}           PIN output none
# tarvo_orix_m1_pin {APB1PADDR[26]}           PIN output none
# tarvo_orix_m1_pin {APB1PADDR[25]}           PIN output none
# tarvo_orix_m1_pin {APB1PADDR[24]}           PIN output none
# tarvo_orix_m1_pin {APB1PADDR[23]}           PIN output none
# tarvo_orix_m1_pin {APB1PADDR[22]}           PIN output none
# tarvo_orix_m1_pin {APB1PADDR[21]}           PIN output none
# tarvo_orix_m1_pin {APB1PADDR[20]}           PIN output none
# tarvo_orix_m1_pin {APB1PADDR[19]}           PIN output none
# tarvo_orix_m1_pin {APB1PADDR[18]}           PIN output none
# tarvo_orix_m1_pin {APB1PADDR[17]}           PIN output none
# tarvo_orix_m1_pin {APB1PADDR[16]}           PIN output none
# tarvo_orix_m1_pin {APB1PADDR[15]}           PIN output none
# tarvo_orix_m1_pin {APB1PADDR[14]}           PIN output none
# tarvo_orix_m1_pin {APB1PADDR[13]}           PIN output none
# tarvo_orix_m1_pin {APB1PADDR[12]}           PIN output none
# tarvo_orix_m1_pin {APB1PADDR[11]}           PIN output none
# tarvo_orix_m1_pin {APB1PADDR[10]}           PIN output none
# tarvo_orix_m1_pin {APB1PADDR[9]}            PIN output none
# tarvo_orix_m1_pin {APB1PADDR[8]}            PIN output none
# tarvo_orix_m1_pin {APB1PADDR[7]}            PIN output none
# tarvo_orix_m1_pin {APB1PADDR[6]}            PIN output none
# tarvo_orix_m1_pin {APB1PADDR[5]}            PIN output none
# tarvo_orix_m1_pin {APB1PADDR[4]}            PIN output none
# tarvo_orix_m1_pin {APB1PADDR[3]}            PIN output none
# tarvo_orix_m1_pin {APB1PADDR[2]}            PIN output none
# tarvo_orix_m1_pin {APB1PADDR[1]}            PIN output none
# tarvo_orix_m1_pin {APB1PADDR[0]}            PIN output none
# APB1PENABLE: second and further cycles of the transfer, of APB1
# tarvo_orix_m1_pin {APB1PENABLE}             PIN output none
# APB1PWRITE: 1 writes, of APB1
# tarvo_orix_m1_pin {APB1PWRITE}              PIN output none
# APB1PSTRB[3:0]: bytes that are written, of APB1
# tarvo_orix_m1_pin {APB1PSTRB[3]}            PIN output none
# tarvo_orix_m1_pin {APB1PSTRB[2]}            PIN output none
# tarvo_orix_m1_pin {APB1PSTRB[1]}            PIN output none
# tarvo_orix_m1_pin {APB1PSTRB[0]}            PIN output none
# APB1PPROT[2:0]: protection of the transfer, of APB1
# tarvo_orix_m1_pin {APB1PPROT[2]}            PIN output none
# tarvo_orix_m1_pin {APB1PPROT[1]}            PIN output none
# tarvo_orix_m1_pin {APB1PPROT[0]}            PIN output none
# APB1PWDATA[31:0]: data written, of APB1
# tarvo_orix_m1_pin {APB1PWDATA[31]}          PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[30]}          PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[29]}          PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[28]}          PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[27]}          PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[26]}          PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[25]}          PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[24]}          PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[23]}          PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[22]}          PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[21]}          PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[20]}          PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[19]}          PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[18]}          PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[17]}          PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[16]}          PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[15]}          PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[14]}          PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[13]}          PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[12]}          PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[11]}          PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[10]}          PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[9]}           PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[8]}           PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[7]}           PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[6]}           PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[5]}           PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[4]}           PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[3]}           PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[2]}           PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[1]}           PIN output none
# tarvo_orix_m1_pin {APB1PWDATA[0]}           PIN output none
# APB1PSEL: the address is one of the port, of APB1
# tarvo_orix_m1_pin {APB1PSEL}                PIN output none
# APB1PRDATA[31:0]: data read, of APB1
# tarvo_orix_m1_pin {APB1PRDATA[31]}          PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[30]}          PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[29]}          PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[28]}          PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[27]}          PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[26]}          PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[25]}          PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[24]}          PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[23]}          PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[22]}          PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[21]}          PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[20]}          PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[19]}          PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[18]}          PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[17]}          PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[16]}          PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[15]}          PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[14]}          PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[13]}          PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[12]}          PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[11]}          PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[10]}          PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[9]}           PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[8]}           PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[7]}           PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[6]}           PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[5]}           PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[4]}           PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[3]}           PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[2]}           PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[1]}           PIN input none
# tarvo_orix_m1_pin {APB1PRDATA[0]}           PIN input none
# APB1PREDADY: the slave has finished, of APB1
# tarvo_orix_m1_pin {APB1PREDADY}             PIN input none
# APB1PSLVERR: the transfer has failed, of APB1
# tarvo_orix_m1_pin {APB1PSLVERR}             PIN input none
# APB1PCLK: clock of the port, of APB1
# tarvo_orix_m1_pin {APB1PCLK}                PIN output none
# APB1PRESET: reset of the port, of APB1, active low
# tarvo_orix_m1_pin {APB1PRESET}              PIN output none
# APB2PADDR[31:0]: address, of APB2
# tarvo_orix_m1_pin {APB2PADDR[31]}           PIN output none
# tarvo_orix_m1_pin {APB2PADDR[30]}           PIN output none
# tarvo_orix_m1_pin {APB2PADDR[29]}           PIN output none
# tarvo_orix_m1_pin {APB2PADDR[28]}           PIN output none
# tarvo_orix_m1_pin {APB2PADDR[27]}           PIN output none
# tarvo_orix_m1_pin {APB2PADDR[26]}           PIN output none
# tarvo_orix_m1_pin {APB2PADDR[25]}           PIN output none
# tarvo_orix_m1_pin {APB2PADDR[24]}           PIN output none
# tarvo_orix_m1_pin {APB2PADDR[23]}           PIN output none
# tarvo_orix_m1_pin {APB2PADDR[22]}           PIN output none
# tarvo_orix_m1_pin {APB2PADDR[21]}           PIN output none
# tarvo_orix_m1_pin {APB2PADDR[20]}           PIN output none
# tarvo_orix_m1_pin {APB2PADDR[19]}           PIN output none
# tarvo_orix_m1_pin {APB2PADDR[18]}           PIN output none
# tarvo_orix_m1_pin {APB2PADDR[17]}           PIN output none
# tarvo_orix_m1_pin {APB2PADDR[16]}           PIN output none
# tarvo_orix_m1_pin {APB2PADDR[15]}           PIN output none
# tarvo_orix_m1_pin {APB2PADDR[14]}           PIN output none
# tarvo_orix_m1_pin {APB2PADDR[13]}           PIN output none
# tarvo_orix_m1_pin {APB2PADDR[12]}           PIN output none
# tarvo_orix_m1_pin {APB2PADDR[11]}           PIN output none
# tarvo_orix_m1_pin {APB2PADDR[10]}           PIN output none
# tarvo_orix_m1_pin {APB2PADDR[9]}            PIN output none
# tarvo_orix_m1_pin {APB2PADDR[8]}            PIN output none
# tarvo_orix_m1_pin {APB2PADDR[7]}            PIN output none
# tarvo_orix_m1_pin {APB2PADDR[6]}            PIN output none
# tarvo_orix_m1_pin {APB2PADDR[5]}            PIN output none
# tarvo_orix_m1_pin {APB2PADDR[4]}            PIN output none
# tarvo_orix_m1_pin {APB2PADDR[3]}            PIN output none
# tarvo_orix_m1_pin {APB2PADDR[2]}            PIN output none
# tarvo_orix_m1_pin {APB2PADDR[1]}            PIN output none
# tarvo_orix_m1_pin {APB2PADDR[0]}            PIN output none
# APB2PENABLE: second and further cycles of the transfer, of APB2
# tarvo_orix_m1_pin {APB2PENABLE}             PIN output none
# APB2PWRITE: 1 writes, of APB2
# tarvo_orix_m1_pin {APB2PWRITE}              PIN output none
# APB2PSTRB[3:0]: bytes that are written, of APB2
# tarvo_orix_m1_pin {APB2PSTRB[3]}            PIN output none
# tarvo_orix_m1_pin {APB2PSTRB[2]}            PIN output none
# tarvo_orix_m1_pin {APB2PSTRB[1]}            PIN output none
# tarvo_orix_m1_pin {APB2PSTRB[0]}            PIN output none
# APB2PPROT[2:0]: protection of the transfer, of APB2
# tarvo_orix_m1_pin {APB2PPROT[2]}            PIN output none
# tarvo_orix_m1_pin {APB2PPROT[1]}            PIN output none
# tarvo_orix_m1_pin {APB2PPROT[0]}            PIN output none
# APB2PWDATA[31:0]: data written, of APB2
# tarvo_orix_m1_pin {APB2PWDATA[31]}          PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[30]}          PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[29]}          PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[28]}          PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[27]}          PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[26]}          PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[25]}          PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[24]}          PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[23]}          PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[22]}          PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[21]}          PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[20]}          PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[19]}          PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[18]}          PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[17]}          PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[16]}          PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[15]}          PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[14]}          PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[13]}          PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[12]}          PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[11]}          PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[10]}          PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[9]}           PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[8]}           PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[7]}           PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[6]}           PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[5]}           PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[4]}           PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[3]}           PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[2]}           PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[1]}           PIN output none
# tarvo_orix_m1_pin {APB2PWDATA[0]}           PIN output none
# APB2PSEL: the address is one of the port, of APB2
# tarvo_orix_m1_pin {APB2PSEL}                PIN output none
# APB2PRDATA[31:0]: data read, of APB2
# tarvo_orix_m1_pin {APB2PRDATA[31]}          PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[30]}          PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[29]}          PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[28]}          PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[27]}          PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[26]}          PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[25]}          PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[24]}          PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[23]}          PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[22]}          PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[21]}          PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[20]}          PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[19]}          PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[18]}          PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[17]}          PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[16]}          PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[15]}          PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[14]}          PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[13]}          PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[12]}          PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[11]}          PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[10]}          PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[9]}           PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[8]}           PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[7]}           PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[6]}           PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[5]}           PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[4]}           PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[3]}           PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[2]}           PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[1]}           PIN input none
# tarvo_orix_m1_pin {APB2PRDATA[0]}           PIN input none
# APB2PREDADY: the slave has finished, of APB2
# tarvo_orix_m1_pin {APB2PREDADY}             PIN input none
# APB2PSLVERR: the transfer has failed, of APB2
# tarvo_orix_m1_pin {APB2PSLVERR}             PIN input none
# APB2PCLK: clock of the port, of APB2
# tarvo_orix_m1_pin {APB2PCLK}                PIN output none
# APB2PRESET: reset of the port, of APB2, active low
# tarvo_orix_m1_pin {APB2PRESET}              PIN output none
# APB3PADDR[31:0]: address, of APB3
# tarvo_orix_m1_pin {APB3PADDR[31]}           PIN output none
# tarvo_orix_m1_pin {APB3PADDR[30]}           PIN output none
# tarvo_orix_m1_pin {APB3PADDR[29]}           PIN output none
# tarvo_orix_m1_pin {APB3PADDR[28]}           PIN output none
# tarvo_orix_m1_pin {APB3PADDR[27]}           PIN output none
# tarvo_orix_m1_pin {APB3PADDR[26]}           PIN output none
# tarvo_orix_m1_pin {APB3PADDR[25]}           PIN output none
# tarvo_orix_m1_pin {APB3PADDR[24]}           PIN output none
# tarvo_orix_m1_pin {APB3PADDR[23]}           PIN output none
# tarvo_orix_m1_pin {APB3PADDR[22]}           PIN output none
# tarvo_orix_m1_pin {APB3PADDR[21]}           PIN output none
# tarvo_orix_m1_pin {APB3PADDR[20]}           PIN output none
# tarvo_orix_m1_pin {APB3PADDR[19]}           PIN output none
# tarvo_orix_m1_pin {APB3PADDR[18]}           PIN output none
# tarvo_orix_m1_pin {APB3PADDR[17]}           PIN output none
# tarvo_orix_m1_pin {APB3PADDR[16]}           PIN output none
# tarvo_orix_m1_pin {APB3PADDR[15]}           PIN output none
# tarvo_orix_m1_pin {APB3PADDR[14]}           PIN output none
# tarvo_orix_m1_pin {APB3PADDR[13]}           PIN output none
# tarvo_orix_m1_pin {APB3PADDR[12]}           PIN output none
# tarvo_orix_m1_pin {APB3PADDR[11]}           PIN output none
# tarvo_orix_m1_pin {APB3PADDR[10]}           PIN output none
# tarvo_orix_m1_pin {APB3PADDR[9]}            PIN output none
# tarvo_orix_m1_pin {APB3PADDR[8]}            PIN output none
# tarvo_orix_m1_pin {APB3PADDR[7]}            PIN output none
# tarvo_orix_m1_pin {APB3PADDR[6]}            PIN output none
# tarvo_orix_m1_pin {APB3PADDR[5]}            PIN output none
# tarvo_orix_m1_pin {APB3PADDR[4]}            PIN output none
# tarvo_orix_m1_pin {APB3PADDR[3]}            PIN output none
# tarvo_orix_m1_pin {APB3PADDR[2]}            PIN output none
# tarvo_orix_m1_pin {APB3PADDR[1]}            PIN output none
# tarvo_orix_m1_pin {APB3PADDR[0]}            PIN output none
# APB3PENABLE: second and further cycles of the transfer, of APB3
# tarvo_orix_m1_pin {APB3PENABLE}             PIN output none
# APB3PWRITE: 1 writes, of APB3
# tarvo_orix_m1_pin {APB3PWRITE}              PIN output none
# APB3PSTRB[3:0]: bytes that are written, of APB3
# tarvo_orix_m1_pin {APB3PSTRB[3]}            PIN output none
# tarvo_orix_m1_pin {APB3PSTRB[2]}            PIN output none
# tarvo_orix_m1_pin {APB3PSTRB[1]}            PIN output none
# tarvo_orix_m1_pin {APB3PSTRB[0]}            PIN output none
# APB3PPROT[2:0]: protection of the transfer, of APB3
# tarvo_orix_m1_pin {APB3PPROT[2]}            PIN output none
# tarvo_orix_m1_pin {APB3PPROT[1]}            PIN output none
# tarvo_orix_m1_pin {APB3PPROT[0]}            PIN output none
# APB3PWDATA[31:0]: data written, of APB3
# tarvo_orix_m1_pin {APB3PWDATA[31]}          PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[30]}          PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[29]}          PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[28]}          PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[27]}          PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[26]}          PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[25]}          PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[24]}          PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[23]}          PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[22]}          PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[21]}          PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[20]}          PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[19]}          PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[18]}          PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[17]}          PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[16]}          PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[15]}          PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[14]}          PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[13]}          PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[12]}          PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[11]}          PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[10]}          PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[9]}           PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[8]}           PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[7]}           PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[6]}           PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[5]}           PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[4]}           PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[3]}           PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[2]}           PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[1]}           PIN output none
# tarvo_orix_m1_pin {APB3PWDATA[0]}           PIN output none
# APB3PSEL: the address is one of the port, of APB3
# tarvo_orix_m1_pin {APB3PSEL}                PIN output none
# APB3PRDATA[31:0]: data read, of APB3
# tarvo_orix_m1_pin {APB3PRDATA[31]}          PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[30]}          PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[29]}          PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[28]}          PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[27]}          PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[26]}          PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[25]}          PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[24]}          PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[23]}          PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[22]}          PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[21]}          PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[20]}          PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[19]}          PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[18]}          PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[17]}          PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[16]}          PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[15]}          PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[14]}          PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[13]}          PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[12]}          PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[11]}          PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[10]}          PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[9]}           PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[8]}           PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[7]}           PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[6]}           PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[5]}           PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[4]}           PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[3]}           PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[2]}           PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[1]}           PIN input none
# tarvo_orix_m1_pin {APB3PRDATA[0]}           PIN input none
# APB3PREDADY: the slave has finished, of APB3
# tarvo_orix_m1_pin {APB3PREDADY}             PIN input none
# APB3PSLVERR: the transfer has failed, of APB3
# tarvo_orix_m1_pin {APB3PSLVERR}             PIN input none
# APB3PCLK: clock of the port, of APB3
# tarvo_orix_m1_pin {APB3PCLK}                PIN output none
# APB3PRESET: reset of the port, of APB3, active low
# tarvo_orix_m1_pin {APB3PRESET}              PIN output none
# APB4PADDR[31:0]: address, of APB4
# tarvo_orix_m1_pin {APB4PADDR[31]}           PIN output none
# tarvo_orix_m1_pin {APB4PADDR[30]}           PIN output none
# tarvo_orix_m1_pin {APB4PADDR[29]}           PIN output none
# tarvo_orix_m1_pin {APB4PADDR[28]}           PIN output none
# tarvo_orix_m1_pin {APB4PADDR[27]}           PIN output none
# tarvo_orix_m1_pin {APB4PADDR[26]}           PIN output none
# tarvo_orix_m1_pin {APB4PADDR[25]}           PIN output none
# tarvo_orix_m1_pin {APB4PADDR[24]}           PIN output none
# tarvo_orix_m1_pin {APB4PADDR[23]}           PIN output none
# tarvo_orix_m1_pin {APB4PADDR[22]}           PIN output none
# tarvo_orix_m1_pin {APB4PADDR[21]}           PIN output none
# tarvo_orix_m1_pin {APB4PADDR[20]}           PIN output none
# tarvo_orix_m1_pin {APB4PADDR[19]}           PIN output none
# tarvo_orix_m1_pin {APB4PADDR[18]}           PIN output none
# tarvo_orix_m1_pin {APB4PADDR[17]}           PIN output none
# tarvo_orix_m1_pin {APB4PADDR[16]}           PIN output none
# tarvo_orix_m1_pin {APB4PADDR[15]}           PIN output none
# tarvo_orix_m1_pin {APB4PADDR[14]}           PIN output none
# tarvo_orix_m1_pin {APB4PADDR[13]}           PIN output none
# tarvo_orix_m1_pin {APB4PADDR[12]}           PIN output none
# tarvo_orix_m1_pin {APB4PADDR[11]}           PIN output none
# tarvo_orix_m1_pin {APB4PADDR[10]}           PIN output none
# tarvo_orix_m1_pin {APB4PADDR[9]}            PIN output none
# tarvo_orix_m1_pin {APB4PADDR[8]}            PIN output none
# tarvo_orix_m1_pin {APB4PADDR[7]}            PIN output none
# tarvo_orix_m1_pin {APB4PADDR[6]}            PIN output none
# tarvo_orix_m1_pin {APB4PADDR[5]}            PIN output none
# tarvo_orix_m1_pin {APB4PADDR[4]}            PIN output none
# tarvo_orix_m1_pin {APB4PADDR[3]}            PIN output none
# tarvo_orix_m1_pin {APB4PADDR[2]}            PIN output none
# tarvo_orix_m1_pin {APB4PADDR[1]}            PIN output none
# tarvo_orix_m1_pin {APB4PADDR[0]}            PIN output none
# APB4PENABLE: second and further cycles of the transfer, of APB4
# tarvo_orix_m1_pin {APB4PENABLE}             PIN output none
# APB4PWRITE: 1 writes, of APB4
# tarvo_orix_m1_pin {APB4PWRITE}              PIN output none
# APB4PSTRB[3:0]: bytes that are written, of APB4
# tarvo_orix_m1_pin {APB4PSTRB[3]}            PIN output none
# tarvo_orix_m1_pin {APB4PSTRB[2]}            PIN output none
# tarvo_orix_m1_pin {APB4PSTRB[1]}            PIN output none
# tarvo_orix_m1_pin {APB4PSTRB[0]}            PIN output none
# APB4PPROT[2:0]: protection of the transfer, of APB4
# tarvo_orix_m1_pin {APB4PPROT[2]}            PIN output none
# tarvo_orix_m1_pin {APB4PPROT[1]}            PIN output none
# tarvo_orix_m1_pin {APB4PPROT[0]}            PIN output none
# APB4PWDATA[31:0]: data written, of APB4
# tarvo_orix_m1_pin {APB4PWDATA[31]}          PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[30]}          PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[29]}          PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[28]}          PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[27]}          PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[26]}          PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[25]}          PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[24]}          PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[23]}          PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[22]}          PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[21]}          PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[20]}          PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[19]}          PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[18]}          PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[17]}          PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[16]}          PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[15]}          PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[14]}          PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[13]}          PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[12]}          PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[11]}          PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[10]}          PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[9]}           PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[8]}           PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[7]}           PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[6]}           PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[5]}           PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[4]}           PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[3]}           PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[2]}           PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[1]}           PIN output none
# tarvo_orix_m1_pin {APB4PWDATA[0]}           PIN output none
# APB4PSEL: the address is one of the port, of APB4
# tarvo_orix_m1_pin {APB4PSEL}                PIN output none
# APB4PRDATA[31:0]: data read, of APB4
# tarvo_orix_m1_pin {APB4PRDATA[31]}          PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[30]}          PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[29]}          PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[28]}          PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[27]}          PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[26]}          PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[25]}          PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[24]}          PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[23]}          PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[22]}          PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[21]}          PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[20]}          PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[19]}          PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[18]}          PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[17]}          PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[16]}          PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[15]}          PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[14]}          PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[13]}          PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[12]}          PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[11]}          PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[10]}          PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[9]}           PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[8]}           PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[7]}           PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[6]}           PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[5]}           PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[4]}           PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[3]}           PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[2]}           PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[1]}           PIN input none
# tarvo_orix_m1_pin {APB4PRDATA[0]}           PIN input none
# APB4PREDADY: the slave has finished, of APB4
# tarvo_orix_m1_pin {APB4PREDADY}             PIN input none
# APB4PSLVERR: the transfer has failed, of APB4
# tarvo_orix_m1_pin {APB4PSLVERR}             PIN input none
# APB4PCLK: clock of the port, of APB4
# tarvo_orix_m1_pin {APB4PCLK}                PIN output none
# APB4PRESET: reset of the port, of APB4, active low
# tarvo_orix_m1_pin {APB4PRESET}              PIN output none
# APB5PADDR[31:0]: address, of APB5
# tarvo_orix_m1_pin {APB5PADDR[31]}           PIN output none
# tarvo_orix_m1_pin {APB5PADDR[30]}           PIN output none
# tarvo_orix_m1_pin {APB5PADDR[29]}           PIN output none
# tarvo_orix_m1_pin {APB5PADDR[28]}           PIN output none
# tarvo_orix_m1_pin {APB5PADDR[27]}           PIN output none
# tarvo_orix_m1_pin {APB5PADDR[26]}           PIN output none
# tarvo_orix_m1_pin {APB5PADDR[25]}           PIN output none
# tarvo_orix_m1_pin {APB5PADDR[24]}           PIN output none
# tarvo_orix_m1_pin {APB5PADDR[23]}           PIN output none
# tarvo_orix_m1_pin {APB5PADDR[22]}           PIN output none
# tarvo_orix_m1_pin {APB5PADDR[21]}           PIN output none
# tarvo_orix_m1_pin {APB5PADDR[20]}           PIN output none
# tarvo_orix_m1_pin {APB5PADDR[19]}           PIN output none
# tarvo_orix_m1_pin {APB5PADDR[18]}           PIN output none
# tarvo_orix_m1_pin {APB5PADDR[17]}           PIN output none
# tarvo_orix_m1_pin {APB5PADDR[16]}           PIN output none
# tarvo_orix_m1_pin {APB5PADDR[15]}           PIN output none
# tarvo_orix_m1_pin {APB5PADDR[14]}           PIN output none
# tarvo_orix_m1_pin {APB5PADDR[13]}           PIN output none
# tarvo_orix_m1_pin {APB5PADDR[12]}           PIN output none
# tarvo_orix_m1_pin {APB5PADDR[11]}           PIN output none
# tarvo_orix_m1_pin {APB5PADDR[10]}           PIN output none
# tarvo_orix_m1_pin {APB5PADDR[9]}            PIN output none
# tarvo_orix_m1_pin {APB5PADDR[8]}            PIN output none
# tarvo_orix_m1_pin {APB5PADDR[7]}            PIN output none
# tarvo_orix_m1_pin {APB5PADDR[6]}            PIN output none
# tarvo_orix_m1_pin {APB5PADDR[5]}            PIN output none
# tarvo_orix_m1_pin {APB5PADDR[4]}            PIN output none
# tarvo_orix_m1_pin {APB5PADDR[3]}            PIN output none
# tarvo_orix_m1_pin {APB5PADDR[2]}            PIN output none
# tarvo_orix_m1_pin {APB5PADDR[1]}            PIN output none
# tarvo_orix_m1_pin {APB5PADDR[0]}            PIN output none
# APB5PENABLE: second and further cycles of the transfer, of APB5
# tarvo_orix_m1_pin {APB5PENABLE}             PIN output none
# APB5PWRITE: 1 writes, of APB5
# tarvo_orix_m1_pin {APB5PWRITE}              PIN output none
# APB5PSTRB[3:0]: bytes that are written, of APB5
# tarvo_orix_m1_pin {APB5PSTRB[3]}            PIN output none
# tarvo_orix_m1_pin {APB5PSTRB[2]}            PIN output none
# tarvo_orix_m1_pin {APB5PSTRB[1]}            PIN output none
# tarvo_orix_m1_pin {APB5PSTRB[0]}            PIN output none
# APB5PPROT[2:0]: protection of the transfer, of APB5
# tarvo_orix_m1_pin {APB5PPROT[2]}            PIN output none
# tarvo_orix_m1_pin {APB5PPROT[1]}            PIN output none
# tarvo_orix_m1_pin {APB5PPROT[0]}            PIN output none
# APB5PWDATA[31:0]: data written, of APB5
# tarvo_orix_m1_pin {APB5PWDATA[31]}          PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[30]}          PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[29]}          PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[28]}          PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[27]}          PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[26]}          PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[25]}          PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[24]}          PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[23]}          PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[22]}          PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[21]}          PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[20]}          PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[19]}          PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[18]}          PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[17]}          PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[16]}          PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[15]}          PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[14]}          PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[13]}          PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[12]}          PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[11]}          PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[10]}          PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[9]}           PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[8]}           PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[7]}           PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[6]}           PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[5]}           PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[4]}           PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[3]}           PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[2]}           PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[1]}           PIN output none
# tarvo_orix_m1_pin {APB5PWDATA[0]}           PIN output none
# APB5PSEL: the address is one of the port, of APB5
# tarvo_orix_m1_pin {APB5PSEL}                PIN output none
# APB5PRDATA[31:0]: data read, of APB5
# tarvo_orix_m1_pin {APB5PRDATA[31]}          PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[30]}          PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[29]}          PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[28]}          PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[27]}          PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[26]}          PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[25]}          PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[24]}          PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[23]}          PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[22]}          PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[21]}          PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[20]}          PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[19]}          PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[18]}          PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[17]}          PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[16]}          PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[15]}          PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[14]}          PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[13]}          PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[12]}          PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[11]}          PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[10]}          PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[9]}           PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[8]}           PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[7]}           PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[6]}           PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[5]}           PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[4]}           PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[3]}           PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[2]}           PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[1]}           PIN input none
# tarvo_orix_m1_pin {APB5PRDATA[0]}           PIN input none
# APB5PREDADY: the slave has finished, of APB5
# tarvo_orix_m1_pin {APB5PREDADY}             PIN input none
# APB5PSLVERR: the transfer has failed, of APB5
# tarvo_orix_m1_pin {APB5PSLVERR}             PIN input none
# APB5PCLK: clock of the port, of APB5
# tarvo_orix_m1_pin {APB5PCLK}                PIN output none
# APB5PRESET: reset of the port, of APB5, active low
# tarvo_orix_m1_pin {APB5PRESET}              PIN output none
# APB6PADDR[31:0]: address, of APB6
# tarvo_orix_m1_pin {APB6PADDR[31]}           PIN output none
# tarvo_orix_m1_pin {APB6PADDR[30]}           PIN output none
# tarvo_orix_m1_pin {APB6PADDR[29]}           PIN output none
# tarvo_orix_m1_pin {APB6PADDR[28]}           PIN output none
# tarvo_orix_m1_pin {APB6PADDR[27]}           PIN output none
# tarvo_orix_m1_pin {APB6PADDR[26]}           PIN output none
# tarvo_orix_m1_pin {APB6PADDR[25]}           PIN output none
# tarvo_orix_m1_pin {APB6PADDR[24]}           PIN output none
# tarvo_orix_m1_pin {APB6PADDR[23]}           PIN output none
# tarvo_orix_m1_pin {APB6PADDR[22]}           PIN output none
# tarvo_orix_m1_pin {APB6PADDR[21]}           PIN output none
# tarvo_orix_m1_pin {APB6PADDR[20]}           PIN output none
# tarvo_orix_m1_pin {APB6PADDR[19]}           PIN output none
# tarvo_orix_m1_pin {APB6PADDR[18]}           PIN output none
# tarvo_orix_m1_pin {APB6PADDR[17]}           PIN output none
# tarvo_orix_m1_pin {APB6PADDR[16]}           PIN output none
# tarvo_orix_m1_pin {APB6PADDR[15]}           PIN output none
# tarvo_orix_m1_pin {APB6PADDR[14]}           PIN output none
# tarvo_orix_m1_pin {APB6PADDR[13]}           PIN output none
# tarvo_orix_m1_pin {APB6PADDR[12]}           PIN output none
# tarvo_orix_m1_pin {APB6PADDR[11]}           PIN output none
# tarvo_orix_m1_pin {APB6PADDR[10]}           PIN output none
# tarvo_orix_m1_pin {APB6PADDR[9]}            PIN output none
# tarvo_orix_m1_pin {APB6PADDR[8]}            PIN output none
# tarvo_orix_m1_pin {APB6PADDR[7]}            PIN output none
# tarvo_orix_m1_pin {APB6PADDR[6]}            PIN output none
# tarvo_orix_m1_pin {APB6PADDR[5]}            PIN output none
# tarvo_orix_m1_pin {APB6PADDR[4]}            PIN output none
# tarvo_orix_m1_pin {APB6PADDR[3]}            PIN output none
# tarvo_orix_m1_pin {APB6PADDR[2]}            PIN output none
# tarvo_orix_m1_pin {APB6PADDR[1]}            PIN output none
# tarvo_orix_m1_pin {APB6PADDR[0]}            PIN output none
# APB6PENABLE: second and further cycles of the transfer, of APB6
# tarvo_orix_m1_pin {APB6PENABLE}             PIN output none
# APB6PWRITE: 1 writes, of APB6
# tarvo_orix_m1_pin {APB6PWRITE}              PIN output none
# APB6PSTRB[3:0]: bytes that are written, of APB6
# tarvo_orix_m1_pin {APB6PSTRB[3]}            PIN output none
# tarvo_orix_m1_pin {APB6PSTRB[2]}            PIN output none
# tarvo_orix_m1_pin {APB6PSTRB[1]}            PIN output none
# tarvo_orix_m1_pin {APB6PSTRB[0]}            PIN output none
# APB6PPROT[2:0]: protection of the transfer, of APB6
# tarvo_orix_m1_pin {APB6PPROT[2]}            PIN output none
# tarvo_orix_m1_pin {APB6PPROT[1]}            PIN output none
# tarvo_orix_m1_pin {APB6PPROT[0]}            PIN output none
# APB6PWDATA[31:0]: data written, of APB6
# tarvo_orix_m1_pin {APB6PWDATA[31]}          PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[30]}          PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[29]}          PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[28]}          PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[27]}          PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[26]}          PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[25]}          PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[24]}          PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[23]}          PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[22]}          PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[21]}          PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[20]}          PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[19]}          PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[18]}          PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[17]}          PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[16]}          PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[15]}          PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[14]}          PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[13]}          PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[12]}          PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[11]}          PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[10]}          PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[9]}           PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[8]}           PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[7]}           PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[6]}           PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[5]}           PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[4]}           PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[3]}           PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[2]}           PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[1]}           PIN output none
# tarvo_orix_m1_pin {APB6PWDATA[0]}           PIN output none
# APB6PSEL: the address is one of the port, of APB6
# tarvo_orix_m1_pin {APB6PSEL}                PIN output none
# APB6PRDATA[31:0]: data read, of APB6
# tarvo_orix_m1_pin {APB6PRDATA[31]}          PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[30]}          PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[29]}          PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[28]}          PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[27]}          PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[26]}          PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[25]}          PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[24]}          PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[23]}          PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[22]}          PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[21]}          PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[20]}          PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[19]}          PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[18]}          PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[17]}          PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[16]}          PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[15]}          PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[14]}          PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[13]}          PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[12]}          PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[11]}          PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[10]}          PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[9]}           PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[8]}           PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[7]}           PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[6]}           PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[5]}           PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[4]}           PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[3]}           PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[2]}           PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[1]}           PIN input none
# tarvo_orix_m1_pin {APB6PRDATA[0]}           PIN input none
# APB6PREDADY: the slave has finished, of APB6
# tarvo_orix_m1_pin {APB6PREDADY}             PIN input none
# APB6PSLVERR: the transfer has failed, of APB6
# tarvo_orix_m1_pin {APB6PSLVERR}             PIN input none
# APB6PCLK: clock of the port, of APB6
# tarvo_orix_m1_pin {APB6PCLK}                PIN output none
# APB6PRESET: reset of the port, of APB6, active low
# tarvo_orix_m1_pin {APB6PRESET}              PIN output none
# APB7PADDR[31:0]: address, of APB7
# tarvo_orix_m1_pin {APB7PADDR[31]}           PIN output none
# tarvo_orix_m1_pin {APB7PADDR[30]}           PIN output none
# tarvo_orix_m1_pin {APB7PADDR[29]}           PIN output none
# tarvo_orix_m1_pin {APB7PADDR[28]}           PIN output none
# tarvo_orix_m1_pin {APB7PADDR[27]}           PIN output none
# tarvo_orix_m1_pin {APB7PADDR[26]}           PIN output none
# tarvo_orix_m1_pin {APB7PADDR[25]}           PIN output none
# tarvo_orix_m1_pin {APB7PADDR[24]}           PIN output none
# tarvo_orix_m1_pin {APB7PADDR[23]}           PIN output none
# tarvo_orix_m1_pin {APB7PADDR[22]}           PIN output none
# tarvo_orix_m1_pin {APB7PADDR[21]}           PIN output none
# tarvo_orix_m1_pin {APB7PADDR[20]}           PIN output none
# tarvo_orix_m1_pin {APB7PADDR[19]}           PIN output none
# tarvo_orix_m1_pin {APB7PADDR[18]}           PIN output none
# tarvo_orix_m1_pin {APB7PADDR[17]}           PIN output none
# tarvo_orix_m1_pin {APB7PADDR[16]}           PIN output none
# tarvo_orix_m1_pin {APB7PADDR[15]}           PIN output none
# tarvo_orix_m1_pin {APB7PADDR[14]}           PIN output none
# tarvo_orix_m1_pin {APB7PADDR[13]}           PIN output none
# tarvo_orix_m1_pin {APB7PADDR[12]}           PIN output none
# tarvo_orix_m1_pin {APB7PADDR[11]}           PIN output none
# tarvo_orix_m1_pin {APB7PADDR[10]}           PIN output none
# tarvo_orix_m1_pin {APB7PADDR[9]}            PIN output none
# tarvo_orix_m1_pin {APB7PADDR[8]}            PIN output none
# tarvo_orix_m1_pin {APB7PADDR[7]}            PIN output none
# tarvo_orix_m1_pin {APB7PADDR[6]}            PIN output none
# tarvo_orix_m1_pin {APB7PADDR[5]}            PIN output none
# tarvo_orix_m1_pin {APB7PADDR[4]}            PIN output none
# tarvo_orix_m1_pin {APB7PADDR[3]}            PIN output none
# tarvo_orix_m1_pin {APB7PADDR[2]}            PIN output none
# tarvo_orix_m1_pin {APB7PADDR[1]}            PIN output none
# tarvo_orix_m1_pin {APB7PADDR[0]}            PIN output none
# APB7PENABLE: second and further cycles of the transfer, of APB7
# tarvo_orix_m1_pin {APB7PENABLE}             PIN output none
# APB7PWRITE: 1 writes, of APB7
# tarvo_orix_m1_pin {APB7PWRITE}              PIN output none
# APB7PSTRB[3:0]: bytes that are written, of APB7
# tarvo_orix_m1_pin {APB7PSTRB[3]}            PIN output none
# tarvo_orix_m1_pin {APB7PSTRB[2]}            PIN output none
# tarvo_orix_m1_pin {APB7PSTRB[1]}            PIN output none
# tarvo_orix_m1_pin {APB7PSTRB[0]}            PIN output none
# APB7PPROT[2:0]: protection of the transfer, of APB7
# tarvo_orix_m1_pin {APB7PPROT[2]}            PIN output none
# tarvo_orix_m1_pin {APB7PPROT[1]}            PIN output none
# tarvo_orix_m1_pin {APB7PPROT[0]}            PIN output none
# APB7PWDATA[31:0]: data written, of APB7
# tarvo_orix_m1_pin {APB7PWDATA[31]}          PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[30]}          PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[29]}          PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[28]}          PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[27]}          PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[26]}          PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[25]}          PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[24]}          PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[23]}          PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[22]}          PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[21]}          PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[20]}          PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[19]}          PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[18]}          PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[17]}          PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[16]}          PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[15]}          PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[14]}          PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[13]}          PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[12]}          PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[11]}          PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[10]}          PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[9]}           PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[8]}           PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[7]}           PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[6]}           PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[5]}           PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[4]}           PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[3]}           PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[2]}           PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[1]}           PIN output none
# tarvo_orix_m1_pin {APB7PWDATA[0]}           PIN output none
# APB7PSEL: the address is one of the port, of APB7
# tarvo_orix_m1_pin {APB7PSEL}                PIN output none
# APB7PRDATA[31:0]: data read, of APB7
# tarvo_orix_m1_pin {APB7PRDATA[31]}          PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[30]}          PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[29]}          PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[28]}          PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[27]}          PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[26]}          PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[25]}          PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[24]}          PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[23]}          PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[22]}          PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[21]}          PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[20]}          PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[19]}          PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[18]}          PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[17]}          PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[16]}          PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[15]}          PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[14]}          PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[13]}          PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[12]}          PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[11]}          PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[10]}          PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[9]}           PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[8]}           PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[7]}           PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[6]}           PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[5]}           PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[4]}           PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[3]}           PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[2]}           PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[1]}           PIN input none
# tarvo_orix_m1_pin {APB7PRDATA[0]}           PIN input none
# APB7PREDADY: the slave has finished, of APB7
# tarvo_orix_m1_pin {APB7PREDADY}             PIN input none
# APB7PSLVERR: the transfer has failed, of APB7
# tarvo_orix_m1_pin {APB7PSLVERR}             PIN input none
# APB7PCLK: clock of the port, of APB7
# tarvo_orix_m1_pin {APB7PCLK}                PIN output none
# APB7PRESET: reset of the port, of APB7, active low
# tarvo_orix_m1_pin {APB7PRESET}              PIN output none
# APB8PADDR[31:0]: address, of APB8
# tarvo_orix_m1_pin {APB8PADDR[31]}           PIN output none
# tarvo_orix_m1_pin {APB8PADDR[30]}           PIN output none
# tarvo_orix_m1_pin {APB8PADDR[29]}           PIN output none
# tarvo_orix_m1_pin {APB8PADDR[28]}           PIN output none
# tarvo_orix_m1_pin {APB8PADDR[27]}           PIN output none
# tarvo_orix_m1_pin {APB8PADDR[26]}           PIN output none
# tarvo_orix_m1_pin {APB8PADDR[25]}           PIN output none
# tarvo_orix_m1_pin {APB8PADDR[24]}           PIN output none
# tarvo_orix_m1_pin {APB8PADDR[23]}           PIN output none
# tarvo_orix_m1_pin {APB8PADDR[22]}           PIN output none
# tarvo_orix_m1_pin {APB8PADDR[21]}           PIN output none
# tarvo_orix_m1_pin {APB8PADDR[20]}           PIN output none
# tarvo_orix_m1_pin {APB8PADDR[19]}           PIN output none
# tarvo_orix_m1_pin {APB8PADDR[18]}           PIN output none
# tarvo_orix_m1_pin {APB8PADDR[17]}           PIN output none
# tarvo_orix_m1_pin {APB8PADDR[16]}           PIN output none
# tarvo_orix_m1_pin {APB8PADDR[15]}           PIN output none
# tarvo_orix_m1_pin {APB8PADDR[14]}           PIN output none
# tarvo_orix_m1_pin {APB8PADDR[13]}           PIN output none
# tarvo_orix_m1_pin {APB8PADDR[12]}           PIN output none
# tarvo_orix_m1_pin {APB8PADDR[11]}           PIN output none
# tarvo_orix_m1_pin {APB8PADDR[10]}           PIN output none
# tarvo_orix_m1_pin {APB8PADDR[9]}            PIN output none
# tarvo_orix_m1_pin {APB8PADDR[8]}            PIN output none
# tarvo_orix_m1_pin {APB8PADDR[7]}            PIN output none
# tarvo_orix_m1_pin {APB8PADDR[6]}            PIN output none
# tarvo_orix_m1_pin {APB8PADDR[5]}            PIN output none
# tarvo_orix_m1_pin {APB8PADDR[4]}            PIN output none
# tarvo_orix_m1_pin {APB8PADDR[3]}            PIN output none
# tarvo_orix_m1_pin {APB8PADDR[2]}            PIN output none
# tarvo_orix_m1_pin {APB8PADDR[1]}            PIN output none
# tarvo_orix_m1_pin {APB8PADDR[0]}            PIN output none
# APB8PENABLE: second and further cycles of the transfer, of APB8
# tarvo_orix_m1_pin {APB8PENABLE}             PIN output none
# APB8PWRITE: 1 writes, of APB8
# tarvo_orix_m1_pin {APB8PWRITE}              PIN output none
# APB8PSTRB[3:0]: bytes that are written, of APB8
# tarvo_orix_m1_pin {APB8PSTRB[3]}            PIN output none
# tarvo_orix_m1_pin {APB8PSTRB[2]}            PIN output none
# tarvo_orix_m1_pin {APB8PSTRB[1]}            PIN output none
# tarvo_orix_m1_pin {APB8PSTRB[0]}            PIN output none
# APB8PPROT[2:0]: protection of the transfer, of APB8
# tarvo_orix_m1_pin {APB8PPROT[2]}            PIN output none
# tarvo_orix_m1_pin {APB8PPROT[1]}            PIN output none
# tarvo_orix_m1_pin {APB8PPROT[0]}            PIN output none
# APB8PWDATA[31:0]: data written, of APB8
# tarvo_orix_m1_pin {APB8PWDATA[31]}          PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[30]}          PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[29]}          PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[28]}          PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[27]}          PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[26]}          PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[25]}          PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[24]}          PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[23]}          PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[22]}          PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[21]}          PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[20]}          PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[19]}          PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[18]}          PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[17]}          PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[16]}          PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[15]}          PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[14]}          PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[13]}          PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[12]}          PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[11]}          PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[10]}          PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[9]}           PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[8]}           PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[7]}           PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[6]}           PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[5]}           PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[4]}           PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[3]}           PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[2]}           PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[1]}           PIN output none
# tarvo_orix_m1_pin {APB8PWDATA[0]}           PIN output none
# APB8PSEL: the address is one of the port, of APB8
# tarvo_orix_m1_pin {APB8PSEL}                PIN output none
# APB8PRDATA[31:0]: data read, of APB8
# tarvo_orix_m1_pin {APB8PRDATA[31]}          PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[30]}          PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[29]}          PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[28]}          PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[27]}          PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[26]}          PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[25]}          PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[24]}          PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[23]}          PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[22]}          PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[21]}          PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[20]}          PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[19]}          PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[18]}          PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[17]}          PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[16]}          PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[15]}          PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[14]}          PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[13]}          PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[12]}          PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[11]}          PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[10]}          PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[9]}           PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[8]}           PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[7]}           PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[6]}           PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[5]}           PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[4]}           PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[3]}           PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[2]}           PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[1]}           PIN input none
# tarvo_orix_m1_pin {APB8PRDATA[0]}           PIN input none
# APB8PREDADY: the slave has finished, of APB8
# tarvo_orix_m1_pin {APB8PREDADY}             PIN input none
# APB8PSLVERR: the transfer has failed, of APB8
# tarvo_orix_m1_pin {APB8PSLVERR}             PIN input none
# APB8PCLK: clock of the port, of APB8
# tarvo_orix_m1_pin {APB8PCLK}                PIN output none
# APB8PRESET: reset of the port, of APB8, active low
# tarvo_orix_m1_pin {APB8PRESET}              PIN output none
# APB9PADDR[31:0]: address, of APB9
# tarvo_orix_m1_pin {APB9PADDR[31]}           PIN output none
# tarvo_orix_m1_pin {APB9PADDR[30]}           PIN output none
# tarvo_orix_m1_pin {APB9PADDR[29]}           PIN output none
# tarvo_orix_m1_pin {APB9PADDR[28]}           PIN output none
# tarvo_orix_m1_pin {APB9PADDR[27]}           PIN output none
# tarvo_orix_m1_pin {APB9PADDR[26]}           PIN output none
# tarvo_orix_m1_pin {APB9PADDR[25]}           PIN output none
# tarvo_orix_m1_pin {APB9PADDR[24]}           PIN output none
# tarvo_orix_m1_pin {APB9PADDR[23]}           PIN output none
# tarvo_orix_m1_pin {APB9PADDR[22]}           PIN output none
# tarvo_orix_m1_pin {APB9PADDR[21]}           PIN output none
# tarvo_orix_m1_pin {APB9PADDR[20]}           PIN output none
# tarvo_orix_m1_pin {APB9PADDR[19]}           PIN output none
# tarvo_orix_m1_pin {APB9PADDR[18]}           PIN output none
# tarvo_orix_m1_pin {APB9PADDR[17]}           PIN output none
# tarvo_orix_m1_pin {APB9PADDR[16]}           PIN output none
# tarvo_orix_m1_pin {APB9PADDR[15]}           PIN output none
# tarvo_orix_m1_pin {APB9PADDR[14]}           PIN output none
# tarvo_orix_m1_pin {APB9PADDR[13]}           PIN output none
# tarvo_orix_m1_pin {APB9PADDR[12]}           PIN output none
# tarvo_orix_m1_pin {APB9PADDR[11]}           PIN output none
# tarvo_orix_m1_pin {APB9PADDR[10]}           PIN output none
# tarvo_orix_m1_pin {APB9PADDR[9]}            PIN output none
# tarvo_orix_m1_pin {APB9PADDR[8]}            PIN output none
# tarvo_orix_m1_pin {APB9PADDR[7]}            PIN output none
# tarvo_orix_m1_pin {APB9PADDR[6]}            PIN output none
# tarvo_orix_m1_pin {APB9PADDR[5]}            PIN output none
# tarvo_orix_m1_pin {APB9PADDR[4]}            PIN output none
# tarvo_orix_m1_pin {APB9PADDR[3]}            PIN output none
# tarvo_orix_m1_pin {APB9PADDR[2]}            PIN output none
# tarvo_orix_m1_pin {APB9PADDR[1]}            PIN output none
# tarvo_orix_m1_pin {APB9PADDR[0]}            PIN output none
# APB9PENABLE: second and further cycles of the transfer, of APB9
# tarvo_orix_m1_pin {APB9PENABLE}             PIN output none
# APB9PWRITE: 1 writes, of APB9
# tarvo_orix_m1_pin {APB9PWRITE}              PIN output none
# APB9PSTRB[3:0]: bytes that are written, of APB9
# tarvo_orix_m1_pin {APB9PSTRB[3]}            PIN output none
# tarvo_orix_m1_pin {APB9PSTRB[2]}            PIN output none
# tarvo_orix_m1_pin {APB9PSTRB[1]}            PIN output none
# tarvo_orix_m1_pin {APB9PSTRB[0]}            PIN output none
# APB9PPROT[2:0]: protection of the transfer, of APB9
# tarvo_orix_m1_pin {APB9PPROT[2]}            PIN output none
# tarvo_orix_m1_pin {APB9PPROT[1]}            PIN output none
# tarvo_orix_m1_pin {APB9PPROT[0]}            PIN output none
# APB9PWDATA[31:0]: data written, of APB9
# tarvo_orix_m1_pin {APB9PWDATA[31]}          PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[30]}          PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[29]}          PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[28]}          PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[27]}          PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[26]}          PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[25]}          PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[24]}          PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[23]}          PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[22]}          PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[21]}          PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[20]}          PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[19]}          PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[18]}          PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[17]}          PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[16]}          PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[15]}          PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[14]}          PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[13]}          PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[12]}          PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[11]}          PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[10]}          PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[9]}           PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[8]}           PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[7]}           PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[6]}           PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[5]}           PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[4]}           PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[3]}           PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[2]}           PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[1]}           PIN output none
# tarvo_orix_m1_pin {APB9PWDATA[0]}           PIN output none
# APB9PSEL: the address is one of the port, of APB9
# tarvo_orix_m1_pin {APB9PSEL}                PIN output none
# APB9PRDATA[31:0]: data read, of APB9
# tarvo_orix_m1_pin {APB9PRDATA[31]}          PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[30]}          PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[29]}          PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[28]}          PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[27]}          PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[26]}          PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[25]}          PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[24]}          PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[23]}          PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[22]}          PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[21]}          PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[20]}          PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[19]}          PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[18]}          PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[17]}          PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[16]}          PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[15]}          PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[14]}          PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[13]}          PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[12]}          PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[11]}          PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[10]}          PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[9]}           PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[8]}           PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[7]}           PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[6]}           PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[5]}           PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[4]}           PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[3]}           PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[2]}           PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[1]}           PIN input none
# tarvo_orix_m1_pin {APB9PRDATA[0]}           PIN input none
# APB9PREDADY: the slave has finished, of APB9
# tarvo_orix_m1_pin {APB9PREDADY}             PIN input none
# APB9PSLVERR: the transfer has failed, of APB9
# tarvo_orix_m1_pin {APB9PSLVERR}             PIN input none
# APB9PCLK: clock of the port, of APB9
# tarvo_orix_m1_pin {APB9PCLK}                PIN output none
# APB9PRESET: reset of the port, of APB9, active low
# tarvo_orix_m1_pin {APB9PRESET}              PIN output none
# APB10PADDR[31:0]: address, of APB10
# tarvo_orix_m1_pin {APB10PADDR[31]}          PIN output none
# tarvo_orix_m1_pin {APB10PADDR[30]}          PIN output none
# tarvo_orix_m1_pin {APB10PADDR[29]}          PIN output none
# tarvo_orix_m1_pin {APB10PADDR[28]}          PIN output none
# tarvo_orix_m1_pin {APB10PADDR[27]}          PIN output none
# tarvo_orix_m1_pin {APB10PADDR[26]}          PIN output none
# tarvo_orix_m1_pin {APB10PADDR[25]}          PIN output none
# tarvo_orix_m1_pin {APB10PADDR[24]}          PIN output none
# tarvo_orix_m1_pin {APB10PADDR[23]}          PIN output none
# tarvo_orix_m1_pin {APB10PADDR[22]}          PIN output none
# tarvo_orix_m1_pin {APB10PADDR[21]}          PIN output none
# tarvo_orix_m1_pin {APB10PADDR[20]}          PIN output none
# tarvo_orix_m1_pin {APB10PADDR[19]}          PIN output none
# tarvo_orix_m1_pin {APB10PADDR[18]}          PIN output none
# tarvo_orix_m1_pin {APB10PADDR[17]}          PIN output none
# tarvo_orix_m1_pin {APB10PADDR[16]}          PIN output none
# tarvo_orix_m1_pin {APB10PADDR[15]}          PIN output none
# tarvo_orix_m1_pin {APB10PADDR[14]}          PIN output none
# tarvo_orix_m1_pin {APB10PADDR[13]}          PIN output none
# tarvo_orix_m1_pin {APB10PADDR[12]}          PIN output none
# tarvo_orix_m1_pin {APB10PADDR[11]}          PIN output none
# tarvo_orix_m1_pin {APB10PADDR[10]}          PIN output none
# tarvo_orix_m1_pin {APB10PADDR[9]}           PIN output none
# tarvo_orix_m1_pin {APB10PADDR[8]}           PIN output none
# tarvo_orix_m1_pin {APB10PADDR[7]}           PIN output none
# tarvo_orix_m1_pin {APB10PADDR[6]}           PIN output none
# tarvo_orix_m1_pin {APB10PADDR[5]}           PIN output none
# tarvo_orix_m1_pin {APB10PADDR[4]}           PIN output none
# tarvo_orix_m1_pin {APB10PADDR[3]}           PIN output none
# tarvo_orix_m1_pin {APB10PADDR[2]}           PIN output none
# tarvo_orix_m1_pin {APB10PADDR[1]}           PIN output none
# tarvo_orix_m1_pin {APB10PADDR[0]}           PIN output none
# APB10PENABLE: second and further cycles of the transfer, of APB10
# tarvo_orix_m1_pin {APB10PENABLE}            PIN output none
# APB10PWRITE: 1 writes, of APB10
# tarvo_orix_m1_pin {APB10PWRITE}             PIN output none
# APB10PSTRB[3:0]: bytes that are written, of APB10
# tarvo_orix_m1_pin {APB10PSTRB[3]}           PIN output none
# tarvo_orix_m1_pin {APB10PSTRB[2]}           PIN output none
# tarvo_orix_m1_pin {APB10PSTRB[1]}           PIN output none
# tarvo_orix_m1_pin {APB10PSTRB[0]}           PIN output none
# APB10PPROT[2:0]: protection of the transfer, of APB10
# tarvo_orix_m1_pin {APB10PPROT[2]}           PIN output none
# tarvo_orix_m1_pin {APB10PPROT[1]}           PIN output none
# tarvo_orix_m1_pin {APB10PPROT[0]}           PIN output none
# APB10PWDATA[31:0]: data written, of APB10
# tarvo_orix_m1_pin {APB10PWDATA[31]}         PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[30]}         PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[29]}         PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[28]}         PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[27]}         PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[26]}         PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[25]}         PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[24]}         PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[23]}         PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[22]}         PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[21]}         PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[20]}         PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[19]}         PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[18]}         PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[17]}         PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[16]}         PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[15]}         PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[14]}         PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[13]}         PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[12]}         PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[11]}         PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[10]}         PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[9]}          PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[8]}          PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[7]}          PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[6]}          PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[5]}          PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[4]}          PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[3]}          PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[2]}          PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[1]}          PIN output none
# tarvo_orix_m1_pin {APB10PWDATA[0]}          PIN output none
# APB10PSEL: the address is one of the port, of APB10
# tarvo_orix_m1_pin {APB10PSEL}               PIN output none
# APB10PRDATA[31:0]: data read, of APB10
# tarvo_orix_m1_pin {APB10PRDATA[31]}         PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[30]}         PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[29]}         PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[28]}         PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[27]}         PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[26]}         PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[25]}         PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[24]}         PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[23]}         PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[22]}         PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[21]}         PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[20]}         PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[19]}         PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[18]}         PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[17]}         PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[16]}         PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[15]}         PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[14]}         PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[13]}         PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[12]}         PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[11]}         PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[10]}         PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[9]}          PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[8]}          PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[7]}          PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[6]}          PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[5]}          PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[4]}          PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[3]}          PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[2]}          PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[1]}          PIN input none
# tarvo_orix_m1_pin {APB10PRDATA[0]}          PIN input none
# APB10PREDADY: the slave has finished, of APB10
# tarvo_orix_m1_pin {APB10PREDADY}            PIN input none
# APB10PSLVERR: the transfer has failed, of APB10
# tarvo_orix_m1_pin {APB10PSLVERR}            PIN input none
# APB10PCLK: clock of the port, of APB10
# tarvo_orix_m1_pin {APB10PCLK}               PIN output none
# APB10PRESET: reset of the port, of APB10, active low
# tarvo_orix_m1_pin {APB10PRESET}             PIN output none
# APB11PADDR[31:0]: address, of APB11
# tarvo_orix_m1_pin {APB11PADDR[31]}          PIN output none
# tarvo_orix_m1_pin {APB11PADDR[30]}          PIN output none
# tarvo_orix_m1_pin {APB11PADDR[29]}          PIN output none
# tarvo_orix_m1_pin {APB11PADDR[28]}          PIN output none
# tarvo_orix_m1_pin {APB11PADDR[27]}          PIN output none
# tarvo_orix_m1_pin {APB11PADDR[26]}          PIN output none
# tarvo_orix_m1_pin {APB11PADDR[25]}          PIN output none
# tarvo_orix_m1_pin {APB11PADDR[24]}          PIN output none
# tarvo_orix_m1_pin {APB11PADDR[23]}          PIN output none
# tarvo_orix_m1_pin {APB11PADDR[22]}          PIN output none
# tarvo_orix_m1_pin {APB11PADDR[21]}          PIN output none
# tarvo_orix_m1_pin {APB11PADDR[20]}          PIN output none
# tarvo_orix_m1_pin {APB11PADDR[19]}          PIN output none
# tarvo_orix_m1_pin {APB11PADDR[18]}          PIN output none
# tarvo_orix_m1_pin {APB11PADDR[17]}          PIN output none
# tarvo_orix_m1_pin {APB11PADDR[16]}          PIN output none
# tarvo_orix_m1_pin {APB11PADDR[15]}          PIN output none
# tarvo_orix_m1_pin {APB11PADDR[14]}          PIN output none
# tarvo_orix_m1_pin {APB11PADDR[13]}          PIN output none
# tarvo_orix_m1_pin {APB11PADDR[12]}          PIN output none
# tarvo_orix_m1_pin {APB11PADDR[11]}          PIN output none
# tarvo_orix_m1_pin {APB11PADDR[10]}          PIN output none
# tarvo_orix_m1_pin {APB11PADDR[9]}           PIN output none
# tarvo_orix_m1_pin {APB11PADDR[8]}           PIN output none
# tarvo_orix_m1_pin {APB11PADDR[7]}           PIN output none
# tarvo_orix_m1_pin {APB11PADDR[6]}           PIN output none
# tarvo_orix_m1_pin {APB11PADDR[5]}           PIN output none
# tarvo_orix_m1_pin {APB11PADDR[4]}           PIN output none
# tarvo_orix_m1_pin {APB11PADDR[3]}           PIN output none
# tarvo_orix_m1_pin {APB11PADDR[2]}           PIN output none
# tarvo_orix_m1_pin {APB11PADDR[1]}           PIN output none
# tarvo_orix_m1_pin {APB11PADDR[0]}           PIN output none
# APB11PENABLE: second and further cycles of the transfer, of APB11
# tarvo_orix_m1_pin {APB11PENABLE}            PIN output none
# APB11PWRITE: 1 writes, of APB11
# tarvo_orix_m1_pin {APB11PWRITE}             PIN output none
# APB11PSTRB[3:0]: bytes that are written, of APB11
# tarvo_orix_m1_pin {APB11PSTRB[3]}           PIN output none
# tarvo_orix_m1_pin {APB11PSTRB[2]}           PIN output none
# tarvo_orix_m1_pin {APB11PSTRB[1]}           PIN output none
# tarvo_orix_m1_pin {APB11PSTRB[0]}           PIN output none
# APB11PPROT[2:0]: protection of the transfer, of APB11
# tarvo_orix_m1_pin {APB11PPROT[2]}           PIN output none
# tarvo_orix_m1_pin {APB11PPROT[1]}           PIN output none
# tarvo_orix_m1_pin {APB11PPROT[0]}           PIN output none
# APB11PWDATA[31:0]: data written, of APB11
# tarvo_orix_m1_pin {APB11PWDATA[31]}         PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[30]}         PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[29]}         PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[28]}         PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[27]}         PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[26]}         PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[25]}         PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[24]}         PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[23]}         PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[22]}         PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[21]}         PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[20]}         PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[19]}         PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[18]}         PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[17]}         PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[16]}         PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[15]}         PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[14]}         PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[13]}         PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[12]}         PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[11]}         PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[10]}         PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[9]}          PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[8]}          PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[7]}          PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[6]}          PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[5]}          PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[4]}          PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[3]}          PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[2]}          PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[1]}          PIN output none
# tarvo_orix_m1_pin {APB11PWDATA[0]}          PIN output none
# APB11PSEL: the address is one of the port, of APB11
# tarvo_orix_m1_pin {APB11PSEL}               PIN output none
# APB11PRDATA[31:0]: data read, of APB11
# tarvo_orix_m1_pin {APB11PRDATA[31]}         PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[30]}         PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[29]}         PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[28]}         PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[27]}         PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[26]}         PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[25]}         PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[24]}         PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[23]}         PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[22]}         PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[21]}         PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[20]}         PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[19]}         PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[18]}         PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[17]}         PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[16]}         PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[15]}         PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[14]}         PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[13]}         PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[12]}         PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[11]}         PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[10]}         PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[9]}          PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[8]}          PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[7]}          PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[6]}          PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[5]}          PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[4]}          PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[3]}          PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[2]}          PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[1]}          PIN input none
# tarvo_orix_m1_pin {APB11PRDATA[0]}          PIN input none
# APB11PREDADY: the slave has finished, of APB11
# tarvo_orix_m1_pin {APB11PREDADY}            PIN input none
# APB11PSLVERR: the transfer has failed, of APB11
# tarvo_orix_m1_pin {APB11PSLVERR}            PIN input none
# APB11PCLK: clock of the port, of APB11
# tarvo_orix_m1_pin {APB11PCLK}               PIN output none
# APB11PRESET: reset of the port, of APB11, active low
# tarvo_orix_m1_pin {APB11PRESET}             PIN output none
# APB12PADDR[31:0]: address, of APB12
# tarvo_orix_m1_pin {APB12PADDR[31]}          PIN output none
# tarvo_orix_m1_pin {APB12PADDR[30]}          PIN output none
# tarvo_orix_m1_pin {APB12PADDR[29]}          PIN output none
# tarvo_orix_m1_pin {APB12PADDR[28]}          PIN output none
# tarvo_orix_m1_pin {APB12PADDR[27]}          PIN output none
# tarvo_orix_m1_pin {APB12PADDR[26]}          PIN output none
# tarvo_orix_m1_pin {APB12PADDR[25]}          PIN output none
# tarvo_orix_m1_pin {APB12PADDR[24]}          PIN output none
# tarvo_orix_m1_pin {APB12PADDR[23]}          PIN output none
# tarvo_orix_m1_pin {APB12PADDR[22]}          PIN output none
# tarvo_orix_m1_pin {APB12PADDR[21]}          PIN output none
# tarvo_orix_m1_pin {APB12PADDR[20]}          PIN output none
# tarvo_orix_m1_pin {APB12PADDR[19]}          PIN output none
# tarvo_orix_m1_pin {APB12PADDR[18]}          PIN output none
# tarvo_orix_m1_pin {APB12PADDR[17]}          PIN output none
# tarvo_orix_m1_pin {APB12PADDR[16]}          PIN output none
# tarvo_orix_m1_pin {APB12PADDR[15]}          PIN output none
# tarvo_orix_m1_pin {APB12PADDR[14]}          PIN output none
# tarvo_orix_m1_pin {APB12PADDR[13]}          PIN output none
# tarvo_orix_m1_pin {APB12PADDR[12]}          PIN output none
# tarvo_orix_m1_pin {APB12PADDR[11]}          PIN output none
# tarvo_orix_m1_pin {APB12PADDR[10]}          PIN output none
# tarvo_orix_m1_pin {APB12PADDR[9]}           PIN output none
# tarvo_orix_m1_pin {APB12PADDR[8]}           PIN output none
# tarvo_orix_m1_pin {APB12PADDR[7]}           PIN output none
# tarvo_orix_m1_pin {APB12PADDR[6]}           PIN output none
# tarvo_orix_m1_pin {APB12PADDR[5]}           PIN output none
# tarvo_orix_m1_pin {APB12PADDR[4]}           PIN output none
# tarvo_orix_m1_pin {APB12PADDR[3]}           PIN output none
# tarvo_orix_m1_pin {APB12PADDR[2]}           PIN output none
# tarvo_orix_m1_pin {APB12PADDR[1]}           PIN output none
# tarvo_orix_m1_pin {APB12PADDR[0]}           PIN output none
# APB12PENABLE: second and further cycles of the transfer, of APB12
# tarvo_orix_m1_pin {APB12PENABLE}            PIN output none
# APB12PWRITE: 1 writes, of APB12
# tarvo_orix_m1_pin {APB12PWRITE}             PIN output none
# APB12PSTRB[3:0]: bytes that are written, of APB12
# tarvo_orix_m1_pin {APB12PSTRB[3]}           PIN output none
# tarvo_orix_m1_pin {APB12PSTRB[2]}           PIN output none
# tarvo_orix_m1_pin {APB12PSTRB[1]}           PIN output none
# tarvo_orix_m1_pin {APB12PSTRB[0]}           PIN output none
# APB12PPROT[2:0]: protection of the transfer, of APB12
# tarvo_orix_m1_pin {APB12PPROT[2]}           PIN output none
# tarvo_orix_m1_pin {APB12PPROT[1]}           PIN output none
# tarvo_orix_m1_pin {APB12PPROT[0]}           PIN output none
# APB12PWDATA[31:0]: data written, of APB12
# tarvo_orix_m1_pin {APB12PWDATA[31]}         PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[30]}         PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[29]}         PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[28]}         PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[27]}         PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[26]}         PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[25]}         PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[24]}         PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[23]}         PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[22]}         PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[21]}         PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[20]}         PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[19]}         PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[18]}         PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[17]}         PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[16]}         PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[15]}         PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[14]}         PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[13]}         PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[12]}         PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[11]}         PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[10]}         PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[9]}          PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[8]}          PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[7]}          PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[6]}          PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[5]}          PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[4]}          PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[3]}          PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[2]}          PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[1]}          PIN output none
# tarvo_orix_m1_pin {APB12PWDATA[0]}          PIN output none
# APB12PSEL: the address is one of the port, of APB12
# tarvo_orix_m1_pin {APB12PSEL}               PIN output none
# APB12PRDATA[31:0]: data read, of APB12
# tarvo_orix_m1_pin {APB12PRDATA[31]}         PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[30]}         PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[29]}         PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[28]}         PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[27]}         PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[26]}         PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[25]}         PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[24]}         PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[23]}         PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[22]}         PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[21]}         PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[20]}         PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[19]}         PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[18]}         PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[17]}         PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[16]}         PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[15]}         PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[14]}         PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[13]}         PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[12]}         PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[11]}         PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[10]}         PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[9]}          PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[8]}          PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[7]}          PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[6]}          PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[5]}          PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[4]}          PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[3]}          PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[2]}          PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[1]}          PIN input none
# tarvo_orix_m1_pin {APB12PRDATA[0]}          PIN input none
# APB12PREDADY: the slave has finished, of APB12
# tarvo_orix_m1_pin {APB12PREDADY}            PIN input none
# APB12PSLVERR: the transfer has failed, of APB12
# tarvo_orix_m1_pin {APB12PSLVERR}            PIN input none
# APB12PCLK: clock of the port, of APB12
# tarvo_orix_m1_pin {APB12PCLK}               PIN output none
# APB12PRESET: reset of the port, of APB12, active low
# tarvo_orix_m1_pin {APB12PRESET}             PIN output none
# APB13PADDR[31:0]: address, of APB13
# tarvo_orix_m1_pin {APB13PADDR[31]}          PIN output none
# tarvo_orix_m1_pin {APB13PADDR[30]}          PIN output none
# tarvo_orix_m1_pin {APB13PADDR[29]}          PIN output none
# tarvo_orix_m1_pin {APB13PADDR[28]}          PIN output none
# tarvo_orix_m1_pin {APB13PADDR[27]}          PIN output none
# tarvo_orix_m1_pin {APB13PADDR[26]}          PIN output none
# tarvo_orix_m1_pin {APB13PADDR[25]}          PIN output none
# tarvo_orix_m1_pin {APB13PADDR[24]}          PIN output none
# tarvo_orix_m1_pin {APB13PADDR[23]}          PIN output none
# tarvo_orix_m1_pin {APB13PADDR[22]}          PIN output none
# tarvo_orix_m1_pin {APB13PADDR[21]}          PIN output none
# tarvo_orix_m1_pin {APB13PADDR[20]}          PIN output none
# tarvo_orix_m1_pin {APB13PADDR[19]}          PIN output none
# tarvo_orix_m1_pin {APB13PADDR[18]}          PIN output none
# tarvo_orix_m1_pin {APB13PADDR[17]}          PIN output none
# tarvo_orix_m1_pin {APB13PADDR[16]}          PIN output none
# tarvo_orix_m1_pin {APB13PADDR[15]}          PIN output none
# tarvo_orix_m1_pin {APB13PADDR[14]}          PIN output none
# tarvo_orix_m1_pin {APB13PADDR[13]}          PIN output none
# tarvo_orix_m1_pin {APB13PADDR[12]}          PIN output none
# tarvo_orix_m1_pin {APB13PADDR[11]}          PIN output none
# tarvo_orix_m1_pin {APB13PADDR[10]}          PIN output none
# tarvo_orix_m1_pin {APB13PADDR[9]}           PIN output none
# tarvo_orix_m1_pin {APB13PADDR[8]}           PIN output none
# tarvo_orix_m1_pin {APB13PADDR[7]}           PIN output none
# tarvo_orix_m1_pin {APB13PADDR[6]}           PIN output none
# tarvo_orix_m1_pin {APB13PADDR[5]}           PIN output none
# tarvo_orix_m1_pin {APB13PADDR[4]}           PIN output none
# tarvo_orix_m1_pin {APB13PADDR[3]}           PIN output none
# tarvo_orix_m1_pin {APB13PADDR[2]}           PIN output none
# tarvo_orix_m1_pin {APB13PADDR[1]}           PIN output none
# tarvo_orix_m1_pin {APB13PADDR[0]}           PIN output none
# APB13PENABLE: second and further cycles of the transfer, of APB13
# tarvo_orix_m1_pin {APB13PENABLE}            PIN output none
# APB13PWRITE: 1 writes, of APB13
# tarvo_orix_m1_pin {APB13PWRITE}             PIN output none
# APB13PSTRB[3:0]: bytes that are written, of APB13
# tarvo_orix_m1_pin {APB13PSTRB[3]}           PIN output none
# tarvo_orix_m1_pin {APB13PSTRB[2]}           PIN output none
# tarvo_orix_m1_pin {APB13PSTRB[1]}           PIN output none
# tarvo_orix_m1_pin {APB13PSTRB[0]}           PIN output none
# APB13PPROT[2:0]: protection of the transfer, of APB13
# tarvo_orix_m1_pin {APB13PPROT[2]}           PIN output none
# tarvo_orix_m1_pin {APB13PPROT[1]}           PIN output none
# tarvo_orix_m1_pin {APB13PPROT[0]}           PIN output none
# APB13PWDATA[31:0]: data written, of APB13
# tarvo_orix_m1_pin {APB13PWDATA[31]}         PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[30]}         PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[29]}         PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[28]}         PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[27]}         PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[26]}         PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[25]}         PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[24]}         PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[23]}         PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[22]}         PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[21]}         PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[20]}         PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[19]}         PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[18]}         PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[17]}         PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[16]}         PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[15]}         PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[14]}         PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[13]}         PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[12]}         PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[11]}         PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[10]}         PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[9]}          PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[8]}          PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[7]}          PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[6]}          PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[5]}          PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[4]}          PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[3]}          PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[2]}          PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[1]}          PIN output none
# tarvo_orix_m1_pin {APB13PWDATA[0]}          PIN output none
# APB13PSEL: the address is one of the port, of APB13
# tarvo_orix_m1_pin {APB13PSEL}               PIN output none
# APB13PRDATA[31:0]: data read, of APB13
# tarvo_orix_m1_pin {APB13PRDATA[31]}         PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[30]}         PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[29]}         PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[28]}         PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[27]}         PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[26]}         PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[25]}         PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[24]}         PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[23]}         PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[22]}         PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[21]}         PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[20]}         PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[19]}         PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[18]}         PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[17]}         PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[16]}         PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[15]}         PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[14]}         PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[13]}         PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[12]}         PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[11]}         PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[10]}         PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[9]}          PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[8]}          PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[7]}          PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[6]}          PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[5]}          PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[4]}          PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[3]}          PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[2]}          PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[1]}          PIN input none
# tarvo_orix_m1_pin {APB13PRDATA[0]}          PIN input none
# APB13PREDADY: the slave has finished, of APB13
# tarvo_orix_m1_pin {APB13PREDADY}            PIN input none
# APB13PSLVERR: the transfer has failed, of APB13
# tarvo_orix_m1_pin {APB13PSLVERR}            PIN input none
# APB13PCLK: clock of the port, of APB13
# tarvo_orix_m1_pin {APB13PCLK}               PIN output none
# APB13PRESET: reset of the port, of APB13, active low
# tarvo_orix_m1_pin {APB13PRESET}             PIN output none
# APB14PADDR[31:0]: address, of APB14
# tarvo_orix_m1_pin {APB14PADDR[31]}          PIN output none
# tarvo_orix_m1_pin {APB14PADDR[30]}          PIN output none
# tarvo_orix_m1_pin {APB14PADDR[29]}          PIN output none
# tarvo_orix_m1_pin {APB14PADDR[28]}          PIN output none
# tarvo_orix_m1_pin {APB14PADDR[27]}          PIN output none
# tarvo_orix_m1_pin {APB14PADDR[26]}          PIN output none
# tarvo_orix_m1_pin {APB14PADDR[25]}          PIN output none
# tarvo_orix_m1_pin {APB14PADDR[24]}          PIN output none
# tarvo_orix_m1_pin {APB14PADDR[23]}          PIN output none
# tarvo_orix_m1_pin {APB14PADDR[22]}          PIN output none
# tarvo_orix_m1_pin {APB14PADDR[21]}          PIN output none
# tarvo_orix_m1_pin {APB14PADDR[20]}          PIN output none
# tarvo_orix_m1_pin {APB14PADDR[19]}          PIN output none
# tarvo_orix_m1_pin {APB14PADDR[18]}          PIN output none
# tarvo_orix_m1_pin {APB14PADDR[17]}          PIN output none
# tarvo_orix_m1_pin {APB14PADDR[16]}          PIN output none
# tarvo_orix_m1_pin {APB14PADDR[15]}          PIN output none
# tarvo_orix_m1_pin {APB14PADDR[14]}          PIN output none
# tarvo_orix_m1_pin {APB14PADDR[13]}          PIN output none
# tarvo_orix_m1_pin {APB14PADDR[12]}          PIN output none
# tarvo_orix_m1_pin {APB14PADDR[11]}          PIN output none
# tarvo_orix_m1_pin {APB14PADDR[10]}          PIN output none
# tarvo_orix_m1_pin {APB14PADDR[9]}           PIN output none
# tarvo_orix_m1_pin {APB14PADDR[8]}           PIN output none
# tarvo_orix_m1_pin {APB14PADDR[7]}           PIN output none
# tarvo_orix_m1_pin {APB14PADDR[6]}           PIN output none
# tarvo_orix_m1_pin {APB14PADDR[5]}           PIN output none
# tarvo_orix_m1_pin {APB14PADDR[4]}           PIN output none
# tarvo_orix_m1_pin {APB14PADDR[3]}           PIN output none
# tarvo_orix_m1_pin {APB14PADDR[2]}           PIN output none
# tarvo_orix_m1_pin {APB14PADDR[1]}           PIN output none
# tarvo_orix_m1_pin {APB14PADDR[0]}           PIN output none
# APB14PENABLE: second and further cycles of the transfer, of APB14
# tarvo_orix_m1_pin {APB14PENABLE}            PIN output none
# APB14PWRITE: 1 writes, of APB14
# tarvo_orix_m1_pin {APB14PWRITE}             PIN output none
# APB14PSTRB[3:0]: bytes that are written, of APB14
# tarvo_orix_m1_pin {APB14PSTRB[3]}           PIN output none
# tarvo_orix_m1_pin {APB14PSTRB[2]}           PIN output none
# tarvo_orix_m1_pin {APB14PSTRB[1]}           PIN output none
# tarvo_orix_m1_pin {APB14PSTRB[0]}           PIN output none
# APB14PPROT[2:0]: protection of the transfer, of APB14
# tarvo_orix_m1_pin {APB14PPROT[2]}           PIN output none
# tarvo_orix_m1_pin {APB14PPROT[1]}           PIN output none
# tarvo_orix_m1_pin {APB14PPROT[0]}           PIN output none
# APB14PWDATA[31:0]: data written, of APB14
# tarvo_orix_m1_pin {APB14PWDATA[31]}         PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[30]}         PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[29]}         PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[28]}         PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[27]}         PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[26]}         PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[25]}         PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[24]}         PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[23]}         PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[22]}         PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[21]}         PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[20]}         PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[19]}         PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[18]}         PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[17]}         PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[16]}         PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[15]}         PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[14]}         PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[13]}         PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[12]}         PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[11]}         PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[10]}         PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[9]}          PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[8]}          PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[7]}          PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[6]}          PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[5]}          PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[4]}          PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[3]}          PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[2]}          PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[1]}          PIN output none
# tarvo_orix_m1_pin {APB14PWDATA[0]}          PIN output none
# APB14PSEL: the address is one of the port, of APB14
# tarvo_orix_m1_pin {APB14PSEL}               PIN output none
# APB14PRDATA[31:0]: data read, of APB14
# tarvo_orix_m1_pin {APB14PRDATA[31]}         PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[30]}         PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[29]}         PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[28]}         PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[27]}         PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[26]}         PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[25]}         PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[24]}         PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[23]}         PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[22]}         PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[21]}         PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[20]}         PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[19]}         PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[18]}         PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[17]}         PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[16]}         PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[15]}         PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[14]}         PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[13]}         PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[12]}         PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[11]}         PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[10]}         PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[9]}          PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[8]}          PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[7]}          PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[6]}          PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[5]}          PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[4]}          PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[3]}          PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[2]}          PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[1]}          PIN input none
# tarvo_orix_m1_pin {APB14PRDATA[0]}          PIN input none
# APB14PREDADY: the slave has finished, of APB14
# tarvo_orix_m1_pin {APB14PREDADY}            PIN input none
# APB14PSLVERR: the transfer has failed, of APB14
# tarvo_orix_m1_pin {APB14PSLVERR}            PIN input none
# APB14PCLK: clock of the port, of APB14
# tarvo_orix_m1_pin {APB14PCLK}               PIN output none
# APB14PRESET: reset of the port, of APB14, active low
# tarvo_orix_m1_pin {APB14PRESET}             PIN output none
# APB15PADDR[31:0]: address, of APB15
# tarvo_orix_m1_pin {APB15PADDR[31]}          PIN output none
# tarvo_orix_m1_pin {APB15PADDR[30]}          PIN output none
# tarvo_orix_m1_pin {APB15PADDR[29]}          PIN output none
# tarvo_orix_m1_pin {APB15PADDR[28]}          PIN output none
# tarvo_orix_m1_pin {APB15PADDR[27]}          PIN output none
# tarvo_orix_m1_pin {APB15PADDR[26]}          PIN output none
# tarvo_orix_m1_pin {APB15PADDR[25]}          PIN output none
# tarvo_orix_m1_pin {APB15PADDR[24]}          PIN output none
# tarvo_orix_m1_pin {APB15PADDR[23]}          PIN output none
# tarvo_orix_m1_pin {APB15PADDR[22]}          PIN output none
# tarvo_orix_m1_pin {APB15PADDR[21]}          PIN output none
# tarvo_orix_m1_pin {APB15PADDR[20]}          PIN output none
# tarvo_orix_m1_pin {APB15PADDR[19]}          PIN output none
# tarvo_orix_m1_pin {APB15PADDR[18]}          PIN output none
# tarvo_orix_m1_pin {APB15PADDR[17]}          PIN output none
# tarvo_orix_m1_pin {APB15PADDR[16]}          PIN output none
# tarvo_orix_m1_pin {APB15PADDR[15]}          PIN output none
# tarvo_orix_m1_pin {APB15PADDR[14]}          PIN output none
# tarvo_orix_m1_pin {APB15PADDR[13]}          PIN output none
# tarvo_orix_m1_pin {APB15PADDR[12]}          PIN output none
# tarvo_orix_m1_pin {APB15PADDR[11]}          PIN output none
# tarvo_orix_m1_pin {APB15PADDR[10]}          PIN output none
# tarvo_orix_m1_pin {APB15PADDR[9]}           PIN output none
# tarvo_orix_m1_pin {APB15PADDR[8]}           PIN output none
# tarvo_orix_m1_pin {APB15PADDR[7]}           PIN output none
# tarvo_orix_m1_pin {APB15PADDR[6]}           PIN output none
# tarvo_orix_m1_pin {APB15PADDR[5]}           PIN output none
# tarvo_orix_m1_pin {APB15PADDR[4]}           PIN output none
# tarvo_orix_m1_pin {APB15PADDR[3]}           PIN output none
# tarvo_orix_m1_pin {APB15PADDR[2]}           PIN output none
# tarvo_orix_m1_pin {APB15PADDR[1]}           PIN output none
# tarvo_orix_m1_pin {APB15PADDR[0]}           PIN output none
# APB15PENABLE: second and further cycles of the transfer, of APB15
# tarvo_orix_m1_pin {APB15PENABLE}            PIN output none
# APB15PWRITE: 1 writes, of APB15
# tarvo_orix_m1_pin {APB15PWRITE}             PIN output none
# APB15PSTRB[3:0]: bytes that are written, of APB15
# tarvo_orix_m1_pin {APB15PSTRB[3]}           PIN output none
# tarvo_orix_m1_pin {APB15PSTRB[2]}           PIN output none
# tarvo_orix_m1_pin {APB15PSTRB[1]}           PIN output none
# tarvo_orix_m1_pin {APB15PSTRB[0]}           PIN output none
# APB15PPROT[2:0]: protection of the transfer, of APB15
# tarvo_orix_m1_pin {APB15PPROT[2]}           PIN output none
# tarvo_orix_m1_pin {APB15PPROT[1]}           PIN output none
# tarvo_orix_m1_pin {APB15PPROT[0]}           PIN output none
# APB15PWDATA[31:0]: data written, of APB15
# tarvo_orix_m1_pin {APB15PWDATA[31]}         PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[30]}         PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[29]}         PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[28]}         PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[27]}         PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[26]}         PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[25]}         PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[24]}         PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[23]}         PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[22]}         PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[21]}         PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[20]}         PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[19]}         PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[18]}         PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[17]}         PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[16]}         PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[15]}         PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[14]}         PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[13]}         PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[12]}         PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[11]}         PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[10]}         PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[9]}          PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[8]}          PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[7]}          PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[6]}          PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[5]}          PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[4]}          PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[3]}          PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[2]}          PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[1]}          PIN output none
# tarvo_orix_m1_pin {APB15PWDATA[0]}          PIN output none
# APB15PSEL: the address is one of the port, of APB15
# tarvo_orix_m1_pin {APB15PSEL}               PIN output none
# APB15PRDATA[31:0]: data read, of APB15
# tarvo_orix_m1_pin {APB15PRDATA[31]}         PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[30]}         PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[29]}         PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[28]}         PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[27]}         PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[26]}         PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[25]}         PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[24]}         PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[23]}         PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[22]}         PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[21]}         PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[20]}         PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[19]}         PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[18]}         PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[17]}         PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[16]}         PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[15]}         PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[14]}         PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[13]}         PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[12]}         PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[11]}         PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[10]}         PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[9]}          PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[8]}          PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[7]}          PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[6]}          PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[5]}          PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[4]}          PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[3]}          PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[2]}          PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[1]}          PIN input none
# tarvo_orix_m1_pin {APB15PRDATA[0]}          PIN input none
# APB15PREDADY: the slave has finished, of APB15
# tarvo_orix_m1_pin {APB15PREDADY}            PIN input none
# APB15PSLVERR: the transfer has failed, of APB15
# tarvo_orix_m1_pin {APB15PSLVERR}            PIN input none
# APB15PCLK: clock of the port, of APB15
# tarvo_orix_m1_pin {APB15PCLK}               PIN output none
# APB15PRESET: reset of the port, of APB15, active low
# tarvo_orix_m1_pin {APB15PRESET}             PIN output none
# APB16PADDR[31:0]: address, of APB16
# tarvo_orix_m1_pin {APB16PADDR[31]}          PIN output none
# tarvo_orix_m1_pin {APB16PADDR[30]}          PIN output none
# tarvo_orix_m1_pin {APB16PADDR[29]}          PIN output none
# tarvo_orix_m1_pin {APB16PADDR[28]}          PIN output none
# tarvo_orix_m1_pin {APB16PADDR[27]}          PIN output none
# tarvo_orix_m1_pin {APB16PADDR[26]}          PIN output none
# tarvo_orix_m1_pin {APB16PADDR[25]}          PIN output none
# tarvo_orix_m1_pin {APB16PADDR[24]}          PIN output none
# tarvo_orix_m1_pin {APB16PADDR[23]}          PIN output none
# tarvo_orix_m1_pin {APB16PADDR[22]}          PIN output none
# tarvo_orix_m1_pin {APB16PADDR[21]}          PIN output none
# tarvo_orix_m1_pin {APB16PADDR[20]}          PIN output none
# tarvo_orix_m1_pin {APB16PADDR[19]}          PIN output none
# tarvo_orix_m1_pin {APB16PADDR[18]}          PIN output none
# tarvo_orix_m1_pin {APB16PADDR[17]}          PIN output none
# tarvo_orix_m1_pin {APB16PADDR[16]}          PIN output none
# tarvo_orix_m1_pin {APB16PADDR[15]}          PIN output none
# tarvo_orix_m1_pin {APB16PADDR[14]}          PIN output none
# tarvo_orix_m1_pin {APB16PADDR[13]}          PIN output none
# tarvo_orix_m1_pin {APB16PADDR[12]}          PIN output none
# tarvo_orix_m1_pin {APB16PADDR[11]}          PIN output none
# tarvo_orix_m1_pin {APB16PADDR[10]}          PIN output none
# tarvo_orix_m1_pin {APB16PADDR[9]}           PIN output none
# tarvo_orix_m1_pin {APB16PADDR[8]}           PIN output none
# tarvo_orix_m1_pin {APB16PADDR[7]}           PIN output none
# tarvo_orix_m1_pin {APB16PADDR[6]}           PIN output none
# tarvo_orix_m1_pin {APB16PADDR[5]}           PIN output none
# tarvo_orix_m1_pin {APB16PADDR[4]}           PIN output none
# tarvo_orix_m1_pin {APB16PADDR[3]}           PIN output none
# tarvo_orix_m1_pin {APB16PADDR[2]}           PIN output none
# tarvo_orix_m1_pin {APB16PADDR[1]}           PIN output none
# tarvo_orix_m1_pin {APB16PADDR[0]}           PIN output none
# APB16PENABLE: second and further cycles of the transfer, of APB16
# tarvo_orix_m1_pin {APB16PENABLE}            PIN output none
# APB16PWRITE: 1 writes, of APB16
# tarvo_orix_m1_pin {APB16PWRITE}             PIN output none
# APB16PSTRB[3:0]: bytes that are written, of APB16
# tarvo_orix_m1_pin {APB16PSTRB[3]}           PIN output none
# tarvo_orix_m1_pin {APB16PSTRB[2]}           PIN output none
# tarvo_orix_m1_pin {APB16PSTRB[1]}           PIN output none
# tarvo_orix_m1_pin {APB16PSTRB[0]}           PIN output none
# APB16PPROT[2:0]: protection of the transfer, of APB16
# tarvo_orix_m1_pin {APB16PPROT[2]}           PIN output none
# tarvo_orix_m1_pin {APB16PPROT[1]}           PIN output none
# tarvo_orix_m1_pin {APB16PPROT[0]}           PIN output none
# APB16PWDATA[31:0]: data written, of APB16
# tarvo_orix_m1_pin {APB16PWDATA[31]}         PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[30]}         PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[29]}         PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[28]}         PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[27]}         PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[26]}         PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[25]}         PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[24]}         PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[23]}         PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[22]}         PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[21]}         PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[20]}         PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[19]}         PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[18]}         PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[17]}         PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[16]}         PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[15]}         PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[14]}         PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[13]}         PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[12]}         PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[11]}         PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[10]}         PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[9]}          PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[8]}          PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[7]}          PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[6]}          PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[5]}          PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[4]}          PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[3]}          PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[2]}          PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[1]}          PIN output none
# tarvo_orix_m1_pin {APB16PWDATA[0]}          PIN output none
# APB16PSEL: the address is one of the port, of APB16
# tarvo_orix_m1_pin {APB16PSEL}               PIN output none
# APB16PRDATA[31:0]: data read, of APB16
# tarvo_orix_m1_pin {APB16PRDATA[31]}         PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[30]}         PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[29]}         PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[28]}         PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[27]}         PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[26]}         PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[25]}         PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[24]}         PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[23]}         PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[22]}         PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[21]}         PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[20]}         PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[19]}         PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[18]}         PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[17]}         PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[16]}         PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[15]}         PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[14]}         PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[13]}         PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[12]}         PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[11]}         PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[10]}         PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[9]}          PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[8]}          PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[7]}          PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[6]}          PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[5]}          PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[4]}          PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[3]}          PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[2]}          PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[1]}          PIN input none
# tarvo_orix_m1_pin {APB16PRDATA[0]}          PIN input none
# APB16PREDADY: the slave has finished, of APB16
# tarvo_orix_m1_pin {APB16PREDADY}            PIN input none
# APB16PSLVERR: the transfer has failed, of APB16
# tarvo_orix_m1_pin {APB16PSLVERR}            PIN input none
# APB16PCLK: clock of the port, of APB16
# tarvo_orix_m1_pin {APB16PCLK}               PIN output none
# APB16PRESET: reset of the port, of APB16, active low
# tarvo_orix_m1_pin {APB16PRESET}             PIN output none
