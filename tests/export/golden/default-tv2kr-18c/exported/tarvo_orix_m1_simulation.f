// Tarvo_ORIX_M1_Top with a stand-in that plays the processor, and a test bench, relative to this folder: run the tools here.
// They set the time scale for what stands behind them.
//   $ iverilog -g2005-sv -s tarvo_orix_m1_tb -o simulation -c tarvo_orix_m1_simulation.f
//   $ vvp -n simulation +script=sim/tarvo_orix_m1_tb.play
+incdir+rtl
sim/tarvo_orix_m1_tb.v
sim/cortex_m1_core_bfm.v
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
rtl/ddr3_controller.v
rtl/dtcmdbg.v
rtl/itcmdbg_2kc.v
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
