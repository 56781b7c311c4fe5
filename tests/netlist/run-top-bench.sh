#!/usr/bin/env bash
# Runs the testbench of the whole subsystem (tests/rtl/tb_top.v) on the simulation model of everything in place of the
# sources. Success is a line "PASS" and nothing that failed.
#   run-top-bench.sh GENERATED-FOLDER RTL-FOLDER RTL-TESTS
set -u
ip=$1 rtl=$2 tests=$3
tmp=$(mktemp -d) || exit 2
trap 'rm -rf "$tmp"' EXIT
# The testbench brings a processor of its own; the stand-ins of licensed blocks are those of the RTL.
awk '/^\(\* blackbox \*\)$/ { held = $0; next }
     held != "" { skip = 1; held = "" }
     !skip { print }
     /^endmodule/ { skip = 0 }' "$ip/tarvo_orix_m1.vo" > "$tmp/model.v"
boxes=()
for name in can_core triple_speed_mac ddr3_controller psram_interface trng_core; do
    boxes+=("$rtl/$name.v")
done
checkers=$tests/../../data/tarvo_orix_m1/simulation/checkers
iverilog -g2005 -s tb -I "$tests" -I "$checkers" -y "$checkers" -I "$ip/temp/tv_orix_m1" -I "$rtl" -DGATES \
    "-DPROGRAM_DIR=\"$tests/program\"" -o "$tmp/bench" "${boxes[@]}" "$tmp/model.v" "$tests/tb_top.v" || exit 1
(cd "$tmp" && vvp -n bench) > "$tmp/log" 2>&1
status=$?
cat "$tmp/log"
[[ $status -eq 0 ]] && grep -qx PASS "$tmp/log" && ! grep -qiE 'fail|error' "$tmp/log"
