# Tarvo_ORIX_M1_Top in a build with CMake: include(…/tarvo_orix_m1.cmake), then take what is listed here.
#
#   TARVO_ORIX_M1_IPC                  the configuration; set it before where it is not beside this folder
#   TARVO_ORIX_M1_FORMATS              what is exported anew when it has changed; empty for all formats
#   TARVO_ORIX_M1_SOURCES              what synthesis compiles, in order
#   TARVO_ORIX_M1_INCLUDE_DIR          what the sources include
#   TARVO_ORIX_M1_SIMULATION_SOURCES   with test bench and model of the processor; run it in TARVO_ORIX_M1_DIR
#   TARVO_ORIX_M1_NETLIST              what a generation makes; the target tarvo_orix_m1_netlist makes it
#
# When the configuration has changed, CMake configures again, exports into this folder and reads the new lists. Without
# the program orixm1, or without the configuration, the lists are those that stand here.
set(TARVO_ORIX_M1_DIR "${CMAKE_CURRENT_LIST_DIR}")
set(TARVO_ORIX_M1_IPC "${TARVO_ORIX_M1_DIR}/../tarvo_orix_m1.ipc" CACHE FILEPATH "Configuration of Tarvo_ORIX_M1_Top")
set(TARVO_ORIX_M1_FORMATS "" CACHE STRING "Formats of Tarvo_ORIX_M1_Top that are exported; all if empty")
find_program(ORIXM1 orixm1 DOC "Configures, exports and generates Tarvo_ORIX_M1_Top")

if(ORIXM1 AND EXISTS "${TARVO_ORIX_M1_IPC}" AND NOT TARVO_ORIX_M1_IS_EXPORTED)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${TARVO_ORIX_M1_IPC}")
    set(TARVO_ORIX_M1_STAMP "${CMAKE_CURRENT_BINARY_DIR}/tarvo_orix_m1_export.stamp")
    if("${TARVO_ORIX_M1_IPC}" IS_NEWER_THAN "${TARVO_ORIX_M1_STAMP}")
        execute_process(
            COMMAND "${ORIXM1}" export "${TARVO_ORIX_M1_IPC}" ${TARVO_ORIX_M1_FORMATS} --out "${TARVO_ORIX_M1_DIR}"
            OUTPUT_QUIET RESULT_VARIABLE TARVO_ORIX_M1_STATUS)
        if(NOT TARVO_ORIX_M1_STATUS EQUAL 0)
            message(FATAL_ERROR "Tarvo_ORIX_M1_Top could not be exported from ${TARVO_ORIX_M1_IPC}")
        endif()
        file(TOUCH "${TARVO_ORIX_M1_STAMP}")
        set(TARVO_ORIX_M1_IS_EXPORTED TRUE)
        include("${CMAKE_CURRENT_LIST_FILE}")
        unset(TARVO_ORIX_M1_IS_EXPORTED)
        return()
    endif()
endif()

set(TARVO_ORIX_M1_INCLUDE_DIR "${TARVO_ORIX_M1_DIR}/rtl")
set(TARVO_ORIX_M1_SOURCES
    "${TARVO_ORIX_M1_DIR}/rtl/ahb_can.v"
    "${TARVO_ORIX_M1_DIR}/rtl/ahb_ddr3.v"
    "${TARVO_ORIX_M1_DIR}/rtl/ahb_decoder.v"
    "${TARVO_ORIX_M1_DIR}/rtl/ahb_default_slave.v"
    "${TARVO_ORIX_M1_DIR}/rtl/ahb_ethernet.v"
    "${TARVO_ORIX_M1_DIR}/rtl/ahb_gpio.v"
    "${TARVO_ORIX_M1_DIR}/rtl/ahb_interconnect.v"
    "${TARVO_ORIX_M1_DIR}/rtl/ahb_psram.v"
    "${TARVO_ORIX_M1_DIR}/rtl/ahb_spi_flash.v"
    "${TARVO_ORIX_M1_DIR}/rtl/ahb_to_apb.v"
    "${TARVO_ORIX_M1_DIR}/rtl/apb_dual_timer.v"
    "${TARVO_ORIX_M1_DIR}/rtl/apb_i2c.v"
    "${TARVO_ORIX_M1_DIR}/rtl/apb_mux.v"
    "${TARVO_ORIX_M1_DIR}/rtl/apb_rtc.v"
    "${TARVO_ORIX_M1_DIR}/rtl/apb_sdcard.v"
    "${TARVO_ORIX_M1_DIR}/rtl/apb_spi.v"
    "${TARVO_ORIX_M1_DIR}/rtl/apb_system.v"
    "${TARVO_ORIX_M1_DIR}/rtl/apb_timer.v"
    "${TARVO_ORIX_M1_DIR}/rtl/apb_uart.v"
    "${TARVO_ORIX_M1_DIR}/rtl/apb_watchdog.v"
    "${TARVO_ORIX_M1_DIR}/rtl/can_core.v"
    "${TARVO_ORIX_M1_DIR}/rtl/cdc_synchronizer.v"
    "${TARVO_ORIX_M1_DIR}/rtl/cortex_m1_core.v"
    "${TARVO_ORIX_M1_DIR}/rtl/ddr3_controller.v"
    "${TARVO_ORIX_M1_DIR}/rtl/dtcm.v"
    "${TARVO_ORIX_M1_DIR}/rtl/itcm.v"
    "${TARVO_ORIX_M1_DIR}/rtl/psram_interface.v"
    "${TARVO_ORIX_M1_DIR}/rtl/reset_controller.v"
    "${TARVO_ORIX_M1_DIR}/rtl/sd_sequencer.v"
    "${TARVO_ORIX_M1_DIR}/rtl/sd_shifter.v"
    "${TARVO_ORIX_M1_DIR}/rtl/spi_flash_shifter.v"
    "${TARVO_ORIX_M1_DIR}/rtl/spi_word_shifter.v"
    "${TARVO_ORIX_M1_DIR}/rtl/sync_fifo.v"
    "${TARVO_ORIX_M1_DIR}/rtl/tarvo_orix_m1_top.v"
    "${TARVO_ORIX_M1_DIR}/rtl/tcm_lane.v"
    "${TARVO_ORIX_M1_DIR}/rtl/tcm_lane_pair.v"
    "${TARVO_ORIX_M1_DIR}/rtl/tcm_ram.v"
    "${TARVO_ORIX_M1_DIR}/rtl/triple_speed_mac.v"
    "${TARVO_ORIX_M1_DIR}/rtl/trng_core.v")
set(TARVO_ORIX_M1_SIMULATION_SOURCES
    "${TARVO_ORIX_M1_DIR}/sim/tarvo_orix_m1_tb.v"
    "${TARVO_ORIX_M1_DIR}/sim/cortex_m1_core_bfm.v"
    "${TARVO_ORIX_M1_DIR}/rtl/ahb_can.v"
    "${TARVO_ORIX_M1_DIR}/rtl/ahb_ddr3.v"
    "${TARVO_ORIX_M1_DIR}/rtl/ahb_decoder.v"
    "${TARVO_ORIX_M1_DIR}/rtl/ahb_default_slave.v"
    "${TARVO_ORIX_M1_DIR}/rtl/ahb_ethernet.v"
    "${TARVO_ORIX_M1_DIR}/rtl/ahb_gpio.v"
    "${TARVO_ORIX_M1_DIR}/rtl/ahb_interconnect.v"
    "${TARVO_ORIX_M1_DIR}/rtl/ahb_psram.v"
    "${TARVO_ORIX_M1_DIR}/rtl/ahb_spi_flash.v"
    "${TARVO_ORIX_M1_DIR}/rtl/ahb_to_apb.v"
    "${TARVO_ORIX_M1_DIR}/rtl/apb_dual_timer.v"
    "${TARVO_ORIX_M1_DIR}/rtl/apb_i2c.v"
    "${TARVO_ORIX_M1_DIR}/rtl/apb_mux.v"
    "${TARVO_ORIX_M1_DIR}/rtl/apb_rtc.v"
    "${TARVO_ORIX_M1_DIR}/rtl/apb_sdcard.v"
    "${TARVO_ORIX_M1_DIR}/rtl/apb_spi.v"
    "${TARVO_ORIX_M1_DIR}/rtl/apb_system.v"
    "${TARVO_ORIX_M1_DIR}/rtl/apb_timer.v"
    "${TARVO_ORIX_M1_DIR}/rtl/apb_uart.v"
    "${TARVO_ORIX_M1_DIR}/rtl/apb_watchdog.v"
    "${TARVO_ORIX_M1_DIR}/rtl/can_core.v"
    "${TARVO_ORIX_M1_DIR}/rtl/cdc_synchronizer.v"
    "${TARVO_ORIX_M1_DIR}/rtl/ddr3_controller.v"
    "${TARVO_ORIX_M1_DIR}/rtl/dtcm.v"
    "${TARVO_ORIX_M1_DIR}/rtl/itcm.v"
    "${TARVO_ORIX_M1_DIR}/rtl/psram_interface.v"
    "${TARVO_ORIX_M1_DIR}/rtl/reset_controller.v"
    "${TARVO_ORIX_M1_DIR}/rtl/sd_sequencer.v"
    "${TARVO_ORIX_M1_DIR}/rtl/sd_shifter.v"
    "${TARVO_ORIX_M1_DIR}/rtl/spi_flash_shifter.v"
    "${TARVO_ORIX_M1_DIR}/rtl/spi_word_shifter.v"
    "${TARVO_ORIX_M1_DIR}/rtl/sync_fifo.v"
    "${TARVO_ORIX_M1_DIR}/rtl/tarvo_orix_m1_top.v"
    "${TARVO_ORIX_M1_DIR}/rtl/tcm_lane.v"
    "${TARVO_ORIX_M1_DIR}/rtl/tcm_lane_pair.v"
    "${TARVO_ORIX_M1_DIR}/rtl/tcm_ram.v"
    "${TARVO_ORIX_M1_DIR}/rtl/triple_speed_mac.v"
    "${TARVO_ORIX_M1_DIR}/rtl/trng_core.v")
set(TARVO_ORIX_M1_SIMULATION_TOP tarvo_orix_m1_tb)
set(TARVO_ORIX_M1_SIMULATION_SCRIPT sim/tarvo_orix_m1_tb.play)
set(TARVO_ORIX_M1_NETLIST_DIR "${CMAKE_CURRENT_BINARY_DIR}/tarvo_orix_m1")
set(TARVO_ORIX_M1_NETLIST
    "${TARVO_ORIX_M1_NETLIST_DIR}/tarvo_orix_m1.v"
    "${TARVO_ORIX_M1_NETLIST_DIR}/tarvo_orix_m1_tmp.v"
    "${TARVO_ORIX_M1_NETLIST_DIR}/tarvo_orix_m1.vo")

if(ORIXM1 AND EXISTS "${TARVO_ORIX_M1_IPC}" AND NOT TARGET tarvo_orix_m1_netlist)
    add_custom_command(
        OUTPUT ${TARVO_ORIX_M1_NETLIST}
        COMMAND "${ORIXM1}" generate "${TARVO_ORIX_M1_IPC}" --out "${TARVO_ORIX_M1_NETLIST_DIR}"
        COMMAND "${CMAKE_COMMAND}" -E touch ${TARVO_ORIX_M1_NETLIST}
        DEPENDS "${TARVO_ORIX_M1_IPC}"
        COMMENT "Generating Tarvo_ORIX_M1_Top" VERBATIM)
    add_custom_target(tarvo_orix_m1_netlist DEPENDS ${TARVO_ORIX_M1_NETLIST})
endif()
