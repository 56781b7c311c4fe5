# Tarvo_ORIX_M1_Top in a build with make: "make -C FOLDER -f tarvo_orix_m1.mk TARGET" in this folder, or
# include it from elsewhere with TARVO_ORIX_M1_DIR set to this folder.
#
#   TARVO_ORIX_M1_IPC                  the configuration; set it where it is not beside this folder
#   TARVO_ORIX_M1_FORMATS              what is exported anew when it has changed; empty for all formats
#   TARVO_ORIX_M1_SOURCES              what synthesis compiles, in order
#   TARVO_ORIX_M1_INCLUDE_DIR          what the sources include
#   TARVO_ORIX_M1_SIMULATION_SOURCES   with test bench and model of the processor; run it in TARVO_ORIX_M1_DIR
#   TARVO_ORIX_M1_NETLIST              what a generation makes; the target tarvo_orix_m1_netlist makes it
#
# When the configuration has changed, make exports into this folder and reads the new lists first. Without the program
# orixm1, or without the configuration, the lists are those that stand here. make splits names at blanks: where the name
# of a folder has one, run make in this folder ("make -C") and leave the variables relative.
ORIXM1 ?= orixm1
TARVO_ORIX_M1_DIR ?= .
TARVO_ORIX_M1_IPC ?= $(TARVO_ORIX_M1_DIR)/../tarvo_orix_m1.ipc
TARVO_ORIX_M1_FORMATS ?=
TARVO_ORIX_M1_NETLIST_DIR ?= $(TARVO_ORIX_M1_DIR)/netlist
TARVO_ORIX_M1_INCLUDE_DIR := $(TARVO_ORIX_M1_DIR)/rtl
TARVO_ORIX_M1_SOURCES := $(addprefix $(TARVO_ORIX_M1_DIR)/, \
    rtl/ahb_can.v \
    rtl/ahb_ddr3.v \
    rtl/ahb_decoder.v \
    rtl/ahb_default_slave.v \
    rtl/ahb_ethernet.v \
    rtl/ahb_gpio.v \
    rtl/ahb_interconnect.v \
    rtl/ahb_psram.v \
    rtl/ahb_spi_flash.v \
    rtl/ahb_to_apb.v \
    rtl/apb_dual_timer.v \
    rtl/apb_i2c.v \
    rtl/apb_mux.v \
    rtl/apb_rtc.v \
    rtl/apb_sdcard.v \
    rtl/apb_spi.v \
    rtl/apb_system.v \
    rtl/apb_timer.v \
    rtl/apb_uart.v \
    rtl/apb_watchdog.v \
    rtl/can_core.v \
    rtl/cdc_synchronizer.v \
    rtl/cortex_m1_core.v \
    rtl/ddr3_controller.v \
    rtl/dtcmdbg.v \
    rtl/itcmdbg.v \
    rtl/psram_interface.v \
    rtl/reset_controller.v \
    rtl/sd_sequencer.v \
    rtl/sd_shifter.v \
    rtl/spi_flash_shifter.v \
    rtl/spi_word_shifter.v \
    rtl/sync_fifo.v \
    rtl/tarvo_orix_m1_top.v \
    rtl/tcm_lane.v \
    rtl/tcm_lane_pair.v \
    rtl/tcm_ram.v \
    rtl/triple_speed_mac.v \
    rtl/trng_core.v)
TARVO_ORIX_M1_SIMULATION_SOURCES := $(addprefix $(TARVO_ORIX_M1_DIR)/, \
    sim/tarvo_orix_m1_tb.v \
    sim/cortex_m1_core_bfm.v \
    rtl/ahb_can.v \
    rtl/ahb_ddr3.v \
    rtl/ahb_decoder.v \
    rtl/ahb_default_slave.v \
    rtl/ahb_ethernet.v \
    rtl/ahb_gpio.v \
    rtl/ahb_interconnect.v \
    rtl/ahb_psram.v \
    rtl/ahb_spi_flash.v \
    rtl/ahb_to_apb.v \
    rtl/apb_dual_timer.v \
    rtl/apb_i2c.v \
    rtl/apb_mux.v \
    rtl/apb_rtc.v \
    rtl/apb_sdcard.v \
    rtl/apb_spi.v \
    rtl/apb_system.v \
    rtl/apb_timer.v \
    rtl/apb_uart.v \
    rtl/apb_watchdog.v \
    rtl/can_core.v \
    rtl/cdc_synchronizer.v \
    rtl/ddr3_controller.v \
    rtl/dtcmdbg.v \
    rtl/itcmdbg.v \
    rtl/psram_interface.v \
    rtl/reset_controller.v \
    rtl/sd_sequencer.v \
    rtl/sd_shifter.v \
    rtl/spi_flash_shifter.v \
    rtl/spi_word_shifter.v \
    rtl/sync_fifo.v \
    rtl/tarvo_orix_m1_top.v \
    rtl/tcm_lane.v \
    rtl/tcm_lane_pair.v \
    rtl/tcm_ram.v \
    rtl/triple_speed_mac.v \
    rtl/trng_core.v)
TARVO_ORIX_M1_SIMULATION_TOP := tarvo_orix_m1_tb
TARVO_ORIX_M1_SIMULATION_SCRIPT := sim/tarvo_orix_m1_tb.play
TARVO_ORIX_M1_NETLIST := $(addprefix $(TARVO_ORIX_M1_NETLIST_DIR)/, \
    tarvo_orix_m1.v \
    tarvo_orix_m1_tmp.v \
    tarvo_orix_m1.vo)

# The first goal stays that of the including makefile.
TARVO_ORIX_M1_GOAL := $(.DEFAULT_GOAL)
.PHONY: tarvo_orix_m1_sources tarvo_orix_m1_netlist
# What was exported is that of the configuration.
tarvo_orix_m1_sources: $(TARVO_ORIX_M1_DIR)/tarvo_orix_m1.mk
tarvo_orix_m1_netlist: $(TARVO_ORIX_M1_NETLIST)

ifneq ($(wildcard $(TARVO_ORIX_M1_IPC)),)
ifneq ($(shell command -v $(ORIXM1)),)
$(TARVO_ORIX_M1_DIR)/tarvo_orix_m1.mk: $(TARVO_ORIX_M1_IPC)
	$(ORIXM1) export "$<" $(TARVO_ORIX_M1_FORMATS) --out "$(TARVO_ORIX_M1_DIR)" > /dev/null
	touch "$@"

# One run makes them all.
$(TARVO_ORIX_M1_NETLIST) &: $(TARVO_ORIX_M1_IPC)
	$(ORIXM1) generate "$<" --out "$(TARVO_ORIX_M1_NETLIST_DIR)"
	touch $(TARVO_ORIX_M1_NETLIST)
endif
endif
.DEFAULT_GOAL := $(TARVO_ORIX_M1_GOAL)
