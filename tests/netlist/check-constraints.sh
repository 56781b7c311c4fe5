#!/usr/bin/env bash
# The exported constraints against the netlist of the same configuration.
#   check-constraints.sh ORIXM1 CONFIGURATION NETLIST [EXPRESSION…]
# The netlist is in Verilog; "-": to be generated.
# Every flip-flop that the netlist marks as one of a crossing is constrained, and every constraint finds its flip-flops; a mistake that
# an EXPRESSION makes of the constraints is noticed.
set -euo pipefail
orixm1=$1 configuration=$(realpath "$2") netlist=$3
shift 3
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
cd "$tmp"
fail() { echo "FAILED: $*"; exit 1; }

cp "$configuration" config.ipc
if [[ $netlist == - ]]; then
    "$orixm1" generate config.ipc > log 2>&1 || { cat log; fail "generation"; }
    netlist=tarvo_orix_m1.v
fi
"$orixm1" export config.ipc sdc --out . > log 2>&1 || { cat log; fail "export"; }
# The cell stands behind its attribute: "TV_DFFC #(", ".INIT(…)" and so on, "\u_uart0.u_sync_rxd.meta_reg  (".
awk '/^  \(\* async_reg = "true" \*\)$/ { marked = 1; next }
    marked && /^  wire / { marked = 0 }
    marked && /[^ ]+ +\($/ && !/#\($/ { name = $(NF - 1); sub(/^\\/, "", name); print "u_subsystem/" name; marked = 0 }
    marked && /;$/ { marked = 0 }' "$netlist" | sort > marked
[[ -s marked ]] || fail "no flip-flop of the netlist is marked"

cat > reader.tcl <<'END'
# What a tool that places and routes has: cells by pattern, and constraints of them.
set marked [split [string trim [read [open marked]]] "\n"]
proc get_cells {pattern} {
    global marked
    set found [lsearch -all -inline -glob $marked $pattern]
    if {[llength $found] == 0} { error "no cell is called $pattern" }
    return $found
}
proc set_false_path {option cells} {
    global late
    if {$option ne "-to"} { error "set_false_path $option" }
    foreach cell $cells { if {[dict exists $late $cell]} { error "$cell comes twice" }; dict set late $cell 1 }
}
proc set_max_delay {from cells to others delay} {
    global close
    if {$from ne "-from" || $to ne "-to" || $delay != 1.25} { error "set_max_delay $from $to $delay" }
    if {[llength $cells] != [llength $others]} { error "[llength $cells] and [llength $others] flip-flops" }
    foreach cell [concat $cells $others] { dict set close $cell 1 }
}
set late [dict create]
set close [dict create]
set tarvo_orix_m1_path "u_subsystem/"
set tarvo_orix_m1_settle_ns 1.25
source [lindex $argv 0]
foreach cell $marked {
    if {![dict exists $close $cell]} { error "$cell is not constrained" }
    if {[string match *meta* $cell] != [dict exists $late $cell]} { error "$cell may settle late, or may not" }
}
puts "[llength $marked] flip-flops"
END
tclsh reader.tcl tarvo_orix_m1.sdc || fail "$(basename "$(dirname "$configuration")")"
for expression; do
    sed -E "$expression" tarvo_orix_m1.sdc > mistaken.sdc
    ! cmp -s mistaken.sdc tarvo_orix_m1.sdc || fail "$expression changes nothing"
    ! tclsh reader.tcl mistaken.sdc > log 2>&1 || fail "$expression is not noticed"
done
