#!/usr/bin/env bash
# Plays the example's script of bus transfers.
#   play.sh netlist|rtl|mistakes ORIXM1 DATA EXAMPLES GENERATED-FOLDER
#   netlist: on the simulation model that a run makes, compiled as the user guide says
#   rtl: on the sources
#   mistakes: scripts that must fail, each with its line
set -euo pipefail
case=$1 orixm1=$2 data=$3 examples=$4 generated=$5
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
cd "$tmp"
fail() { echo "FAILED: $*"; exit 1; }

model=$data/simulation/cortex_m1_core_bfm.v
if [[ $case == netlist ]]; then
    iverilog -g2005 -Wall -DHAVE_CortexM1Core -s sensor_node_tb -o sim "$generated/tarvo_orix_m1.vo" "$model" "$examples/sensor-node-tb.v"
else
    "$orixm1" generate "$examples/sensor-node.ipc" --no-synth --out "$tmp" > log 2>&1 || { cat log; fail "generation"; }
    cp "$examples/sensor-node.ipc" .
    sources=()
    while read -r source; do
        [[ $(basename "$source") == cortex_m1_core.v ]] || sources+=("$source")
    done < <("$orixm1" sources sensor-node.ipc)
    ((${#sources[@]} > 20)) || fail "few sources"
    iverilog -g2012 -s sensor_node_tb -Itemp/tv_orix_m1 "-I$data/data/debug" -o sim "${sources[@]}" "$model" \
        "$examples/sensor-node-tb.v"
fi

play() { # SCRIPT: prints what the simulation prints
    timeout 250 vvp -n sim "+script=$1" +finish
}

if [[ $case != mistakes ]]; then
    result=$(play "$examples/sensor-node-tb.play")
    [[ $result == PASS ]] || fail "$result"
    exit 0
fi

expect() { # TEXT SCRIPT…: the script of these lines must fail, and say so with the text
    local text=$1
    shift
    printf '%s\n' "$@" > script
    local result
    result=$(play script)
    [[ $(tail -n 1 <<< "$result") == FAIL:* ]] || fail "$* passed: $result"
    [[ $result == *"$text"* ]] || fail "$*: \"$text\" is missing in: $result"
}
# shellcheck source=tests/simulation/mistakes.sh
source "$(dirname "${BASH_SOURCE[0]}")/mistakes.sh"
rm script
[[ $(play script) == *'the script "script" cannot be read'* ]] || fail "missing script"
printf 'write 0x40000004 0x55 # comment\r\n\tread\t0x40000004 85\r\nread 0x40000004 0x5 0xF\r\n' > script
[[ $(play script) == PASS ]] || fail "tabs, carriage returns and comments: $(play script)"
