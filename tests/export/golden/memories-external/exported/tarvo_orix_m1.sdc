# Signals that reach Tarvo_ORIX_M1 from pins or from other clocks. Each passes two flip-flops of HCLK, which carry the
# attribute async_reg in the netlist: the first, "meta", may settle late, and the second, "stable", is what the logic sees.
#
# Before this file is read, set what does not hold of your design:
#   tarvo_orix_m1_path       path of the instance with a separator at its end, or a pattern
#   tarvo_orix_m1_settle_ns  longest way between the two flip-flops: what it leaves of HCLK's period is there to settle
if {![info exists tarvo_orix_m1_path]} { set tarvo_orix_m1_path "*" }
if {![info exists tarvo_orix_m1_settle_ns]} { set tarvo_orix_m1_settle_ns 2.0 }

proc tarvo_orix_m1_crossing {synchronizer} {
    global tarvo_orix_m1_path tarvo_orix_m1_settle_ns
    set meta [get_cells "${tarvo_orix_m1_path}${synchronizer}.meta*_reg"]
    set stable [get_cells "${tarvo_orix_m1_path}${synchronizer}.stable*_reg"]
    set_false_path -to $meta
    set_max_delay -from $meta -to $stable $tarvo_orix_m1_settle_ns
}

# JTAG_15: nSRST, resets everything but debug; left open, it can hold the subsystem in reset for ever
tarvo_orix_m1_crossing u_reset.u_sync_srst
# UART0RXD: serial data to receive
tarvo_orix_m1_crossing u_uart0.u_sync_rxd
