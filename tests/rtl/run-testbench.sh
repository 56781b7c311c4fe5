#!/usr/bin/env bash
# Builds and runs one testbench of benches.txt in a temporary folder.  Success is a line "PASS" and nothing that failed.
#   run-testbench.sh NAME
set -u
here=$(cd "$(dirname "$0")" && pwd)
rtl=${RTL_DIR:-$here/../../data/tarvo_orix_m1/rtl}
name=${1:?name of a testbench}
bench=
sources=()
while read -r entry file rest; do
    [[ $entry == "$name" ]] || continue
    bench=$file
    for word in $rest; do
        case $word in
            -*) sources+=("$word") ;;
            defines/*) sources+=("-I$here/$word") ;;
            all) for file in "$rtl"/*.v; do
                     case $(basename "$file") in
                         itcm* | dtcm* | cortex_m1_core.v | ddr3_name.v | psram_local_define.v | psram_local_param.v | \
                         psram_param.v | triple_speed_mac_name.v | tvmc_local_param.v | tvmc_param.v) ;;
                         *) sources+=("$file") ;;
                     esac
                 done ;;
            *) sources+=("$rtl/$word") ;;
        esac
    done
done < "$here/benches.txt"
[[ -n $bench ]] || { echo "no testbench named $name"; exit 2; }
tmp=$(mktemp -d) || exit 2
trap 'rm -rf "$tmp"' EXIT
iverilog -g2005 -Wall -s tb -I "$here" -I "$rtl" "-DPROGRAM_DIR=\"$here/program\"" -o "$tmp/bench" \
    "${sources[@]}" "$here/$bench" || exit 1
(cd "$tmp" && vvp -n bench) > "$tmp/log" 2>&1
status=$?
cat "$tmp/log"
[[ $status -eq 0 ]] && grep -qx PASS "$tmp/log" && ! grep -qiE 'fail|error' "$tmp/log"
