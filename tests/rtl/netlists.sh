#!/usr/bin/env bash
# Runs the whole testbenches on the RTL and on both netlists of each module, which takes some minutes, and prints a table of the
# seconds of processor time.  (With the other tests runs a short form of them.)
#   netlists.sh ORIXM1 RTL [NAME…]
# ORIXM1 and RTL as in run-testbench.sh. Logs of what failed are printed at the end.
set -u
here=$(cd "$(dirname "$0")" && pwd)
orixm1=$1 variants=$2
shift 2
names=("$@")
[[ ${#names[@]} -gt 0 ]] || mapfile -t names < <(awk '/^[a-z]/ && (/ netlists/ || !/ -|rtl-only|cases\//) { print $1 }' "$here/benches.txt")
tmp=$(mktemp -d) || exit 2
trap 'rm -rf "$tmp"' EXIT
TIMEFORMAT='%U'
failures=()
printf '%-16s%12s%12s%12s%12s\n' block synthesis rtl verilog vhdl
for name in "${names[@]}"; do
    printf '%-16s' "$name"
    for model in netlist rtl verilog vhdl; do
        log=$tmp/$name.$model
        if seconds=$({ time bash "$here/run-testbench.sh" "$orixm1" "$variants" "$name" "$model" "$tmp/netlist" > "$log" 2>&1; } 2>&1); then
            printf '%12s' "$seconds"
        else
            printf '%12s' FAILED
            failures+=("$log")
        fi
    done
    echo
done
for log in "${failures[@]}"; do
    echo "${log##*/}:"
    head -n 20 "$log"
done
[[ ${#failures[@]} -eq 0 ]]
