#!/usr/bin/env bash
# Lints the design with Verilator for one case of defines/.  Success is silence.
#   lint.sh CASE
set -u
here=$(cd "$(dirname "$0")" && pwd)
rtl=${RTL_DIR:-$here/../../data/tarvo_orix_m1/rtl}
case_dir=$here/defines/${1:?case}
[[ -d $case_dir ]] || { echo "no such case: $1"; exit 2; }
sources=()
for file in "$rtl"/*.v; do
    case $(basename "$file") in
        itcm* | dtcm* | ddr3_name.v | psram_local_define.v | psram_local_param.v | psram_param.v | \
        triple_speed_mac_name.v | tvmc_local_param.v | tvmc_param.v) ;;
        *) sources+=("$file") ;;
    esac
done
while read -r file; do sources+=("$rtl/$file"); done < "$case_dir/tcm-sources"
out=$(verilator --lint-only -Wall --language 1364-2005 --top-module Tarvo_ORIX_M1_Top -I"$case_dir" -I"$rtl" \
    "$here/lint.vlt" "${sources[@]}" 2>&1)
status=$?
[[ -z $out ]] || echo "$out"
[[ $status -eq 0 && -z $out ]]
