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
# MII_RX_CLK: receive clock of the PHY
# tarvo_orix_m1_pin {MII_RX_CLK}              PIN input none
# MII_RXD[3:0]: receive data
# tarvo_orix_m1_pin {MII_RXD[3]}              PIN input none
# tarvo_orix_m1_pin {MII_RXD[2]}              PIN input none
# tarvo_orix_m1_pin {MII_RXD[1]}              PIN input none
# tarvo_orix_m1_pin {MII_RXD[0]}              PIN input none
# MII_RX_DV: receive data are valid
# tarvo_orix_m1_pin {MII_RX_DV}               PIN input none
# MII_RX_ER: receive error
# tarvo_orix_m1_pin {MII_RX_ER}               PIN input none
# MII_TX_CLK: transmit clock of the PHY
# tarvo_orix_m1_pin {MII_TX_CLK}              PIN input none
# MII_TXD[3:0]: transmit data
# tarvo_orix_m1_pin {MII_TXD[3]}              PIN output none
# tarvo_orix_m1_pin {MII_TXD[2]}              PIN output none
# tarvo_orix_m1_pin {MII_TXD[1]}              PIN output none
# tarvo_orix_m1_pin {MII_TXD[0]}              PIN output none
# MII_TX_EN: transmit data are valid
# tarvo_orix_m1_pin {MII_TX_EN}               PIN output none
# MII_TX_ER: transmit error
# tarvo_orix_m1_pin {MII_TX_ER}               PIN output none
# MII_COL: collision
# tarvo_orix_m1_pin {MII_COL}                 PIN input none
# MII_CRS: carrier
# tarvo_orix_m1_pin {MII_CRS}                 PIN input none

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
