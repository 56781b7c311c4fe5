# Timing of Tarvo_ORIX_M1_Top: its clocks, and its signals that come from pins or from other clocks.
#
# Before this file is read, set what holds of your design:
#   tarvo_orix_m1_path       path of the instance with a separator at its end, or a pattern
#   tarvo_orix_m1_settle_ns  longest way between the two flip-flops of a synchronizer: what it leaves of HCLK's period is
#                            there to settle
#   tarvo_orix_m1_are_ports  1 where the signals below are ports of the whole design under these names, so that the
#                            asynchronous ones need no timing; with 0 that is left to you
# and the periods of the clocks that your design has not made yet, in ns; one without a period is left to you:
#   set tarvo_orix_m1_HCLK_ns 20.0
#   set tarvo_orix_m1_JTAG_9_ns 20.0
if {![info exists tarvo_orix_m1_path]} { set tarvo_orix_m1_path "*" }
if {![info exists tarvo_orix_m1_settle_ns]} { set tarvo_orix_m1_settle_ns 2.0 }
if {![info exists tarvo_orix_m1_are_ports]} { set tarvo_orix_m1_are_ports 0 }

# A clock at a port. All are asynchronous to each other.
set tarvo_orix_m1_clocks {}
proc tarvo_orix_m1_clock {port} {
    global tarvo_orix_m1_clocks tarvo_orix_m1_${port}_ns
    if {[info exists tarvo_orix_m1_${port}_ns]} {
        create_clock -name $port -period [set tarvo_orix_m1_${port}_ns] [get_ports $port]
        lappend tarvo_orix_m1_clocks -group $port
    }
}

# A port that no clock times.
proc tarvo_orix_m1_asynchronous {port} {
    global tarvo_orix_m1_are_ports
    if {$tarvo_orix_m1_are_ports} { set_false_path -from [get_ports $port] }
}

# A signal that passes two flip-flops of HCLK, which carry the attribute async_reg in the netlist: the first, "meta", may
# settle late, and the second, "stable", is what the logic sees.
proc tarvo_orix_m1_crossing {synchronizer} {
    global tarvo_orix_m1_path tarvo_orix_m1_settle_ns
    set meta [get_cells "${tarvo_orix_m1_path}${synchronizer}.meta*_reg"]
    set stable [get_cells "${tarvo_orix_m1_path}${synchronizer}.stable*_reg"]
    set_false_path -to $meta
    set_max_delay -from $meta -to $stable $tarvo_orix_m1_settle_ns
}

# Clocks
# HCLK: clocks processor, buses and blocks
tarvo_orix_m1_clock HCLK
# JTAG_9: TCK or SWCLK, clocks the debug port
tarvo_orix_m1_clock JTAG_9
if {[llength $tarvo_orix_m1_clocks] > 2} { eval set_clock_groups -asynchronous $tarvo_orix_m1_clocks }

# Signals that no clock times
# hwRstn: resets everything, debug included
tarvo_orix_m1_asynchronous hwRstn
# JTAG_3: nTRST, resets the debug port
tarvo_orix_m1_asynchronous JTAG_3

# Signals that HCLK samples
# JTAG_15: nSRST, resets everything but debug; left open, it can hold the subsystem in reset for ever
tarvo_orix_m1_crossing u_reset.u_sync_srst
# UART0RXD: serial data to receive
tarvo_orix_m1_crossing u_uart0.u_sync_rxd
