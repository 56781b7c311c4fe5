#!/usr/bin/env bash
# Checks sources.json: it names every source of the folder exactly once, and each debug mode has the variants it needs.
set -u
here=$(cd "$(dirname "$0")" && pwd)
rtl=$here/../../data/tarvo_orix_m1/rtl
status=0
fail() { echo "FAILED: $*"; status=1; }

list() { sed -n "/\"$1\": \[/,/\]/p" "$rtl/sources.json" | grep -oE '"[^"]+\.vh?"' | tr -d '"' | sort; }
for set in common debug no_debug; do
    [[ -n $(list $set) ]] || fail "no sources in $set"
done
named=$(list common; list debug; list no_debug)
twice=$(sort <<< "$named" | uniq -d)
[[ -z $twice ]] || fail "named twice: $twice"
diff <(sort <<< "$named") <(cd "$rtl" && ls -- *.v *.vh *.in | sed 's/\.in$//' | sort) || fail "sources.json and the folder differ"
diff <(list debug) <(printf '%s\n' dtcmdbg.v itcmdbg.v itcmdbg_2kc.v) || fail "sources with debug"
diff <(list no_debug) <(printf '%s\n' dtcm.v dtcm_3k.v dtcm_5k.v itcm.v itcm_3k.v itcm_5k.v) || fail "sources without debug"

# Every support file is included by some source, and nothing else is.
support="ddr3_name.v define.vh psram_local_define.v psram_local_param.v psram_param.v static_macro_define.vh
triple_speed_mac_name.v tvmc_local_param.v tvmc_param.v"
generated="DDR3_define.v ahb_option_defs.v cm1_option_defs.v parameter.vh psram_define.v triple_speed_mac_define.v
triple_speed_mac_param.v"
diff <(printf '%s\n' $support $generated | LC_ALL=C sort) \
     <(grep -hoE '^ *`include "[^"]+"' "$rtl"/*.v "$rtl"/*.vh "$rtl"/*.in | grep -oE '"[^"]+"' | tr -d '"' | LC_ALL=C sort -u) || fail "included files"
[[ $status -eq 0 ]] && echo PASS
exit $status
