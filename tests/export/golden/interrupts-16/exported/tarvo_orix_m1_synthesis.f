// The sources of Tarvo_ORIX_M1_Top in the order of compilation, relative to this folder: run the tools here.
// The processor and other licensed blocks are declarations and stand-ins until you compile the real ones in their place.
//   $ verilator --lint-only --top-module Tarvo_ORIX_M1_Top -f tarvo_orix_m1_synthesis.f
//   $ iverilog -g2005 -tnull -s Tarvo_ORIX_M1_Top -c tarvo_orix_m1_synthesis.f
+incdir+rtl
rtl/ahb_can.v
rtl/ahb_ddr3.v
rtl/ahb_decoder.v
rtl/ahb_default_slave.v
rtl/ahb_ethernet.v
rtl/ahb_gpio.v
rtl/ahb_interconnect.v
rtl/ahb_psram.v
rtl/ahb_spi_flash.v
rtl/ahb_to_apb.v
rtl/apb_dual_timer.v
rtl/apb_i2c.v
rtl/apb_mux.v
rtl/apb_rtc.v
rtl/apb_sdcard.v
rtl/apb_spi.v
rtl/apb_system.v
rtl/apb_timer.v
rtl/apb_uart.v
rtl/apb_watchdog.v
rtl/can_core.v
rtl/cdc_synchronizer.v
rtl/cortex_m1_core.v
rtl/ddr3_controller.v
rtl/dtcmdbg.v
rtl/itcmdbg.v
rtl/psram_interface.v
rtl/reset_controller.v
rtl/sd_sequencer.v
rtl/sd_shifter.v
rtl/spi_flash_shifter.v
rtl/spi_word_shifter.v
rtl/sync_fifo.v
rtl/tarvo_orix_m1_top.v
rtl/tcm_lane.v
rtl/tcm_lane_pair.v
rtl/tcm_ram.v
rtl/triple_speed_mac.v
rtl/trng_core.v
