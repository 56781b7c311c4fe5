#!/usr/bin/env bash
# Has the netlists of a configuration proven equal to its sources by "orixm1 prove".
#
#   prove-netlist.sh ORIXM1 PROGRAM-FOLDER CONFIGURATION [CHANGE ...]
#
# CHANGE is "verilog: " or "vhdl: " and a sed script for that netlist. Each must be refuted.
set -euo pipefail

orixm1=$1 program=$2 config=$3
shift 3
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
cd "$tmp"

fail() {
    echo "$*" >&2
    exit 1
}

sed -e "s#^ITCM_Initialization_AbsolutePath=.*#ITCM_Initialization_AbsolutePath=$program#" -e '/^LANG=/d' \
    -e 's/^\[Config\]$/&\nLANG=1/' "$config" > config.ipc
grep -qx 'LANG=1' config.ipc || printf '[Config]\nLANG=1\n' >> config.ipc

if [[ $# -eq 0 ]]; then
    "$orixm1" prove config.ipc --timeout 3000 || fail "not proven"
    exit
fi

"$orixm1" generate config.ipc --no-cache --out ip > generate.log 2>&1 || fail "$(cat generate.log)"
verilog=ip/temp/tv_orix_m1/tarvo_orix_m1.vg
vhdl=ip/temp/tv_orix_m1/tarvo_orix_m1.vhg
for change in "$@"; do
    language=${change%%: *}
    sed -E "${change#*: }" "${!language}" > changed
    ! cmp -s "${!language}" changed || fail "nothing to change: $change"
    case $language in
        verilog) arguments=(--netlist changed --language verilog) ;;
        vhdl) arguments=(--netlist "$verilog" --vhdl-netlist changed) ;;
    esac
    status=0
    "$orixm1" prove config.ipc "${arguments[@]}" > report || status=$?
    cat report
    [[ $status -eq 1 ]] || fail "exit status $status"
    grep -qx 'Result: refuted' report || fail "not noticed: $change"
    grep -q '^ *differs: ' report || fail "not told where: $change"
    # The other side has not changed.
    [[ $language == verilog ]] || grep -qx 'proven *The netlist computes what the sources say' report || fail "not proven"
    echo "noticed: $change"
done
