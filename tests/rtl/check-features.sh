#!/usr/bin/env bash
# Holds features.txt: without what its parameters leave out a block lints clean and takes what the table says, at most two tables and
# two flip-flops more.  Success is a table of what was found.
#   check-features.sh ORIXM1 RTL [BLOCK…]
# ORIXM1 tells where synthesizemodule is; RTL is the folder of the sources.
set -u
here=$(cd "$(dirname "$0")" && pwd)
synthesize=$(dirname "${1:?orixm1}")/../tests/bin/synthesizemodule
rtl=$(cd "${2:?folder of the RTL}" && pwd)
shift 2
tmp=$(mktemp -d) || exit 2
trap 'rm -rf "$tmp"' EXIT
status=0
checked=0
printf '%-18s %16s %16s\n' block "tables (most)" "flip-flops (most)"
while read -r block parameters _ _ tables flipflops _ _ rest; do
    [[ -n $block && $block != \#* ]] || continue
    [[ $# -eq 0 || " $* " == *" $block "* ]] || continue
    files=("$rtl/$block.v")
    for file in $rest; do files+=("$rtl/$file.v"); done
    IFS=, read -r -a assignments <<< "$parameters"
    out=$(verilator --lint-only -Wall --language 1364-2005 --top-module "$block" -I"$rtl" "${assignments[@]/#/-G}" \
        "$here/lint.vlt" "${files[@]}" 2>&1) && [[ -z $out ]] || { echo "$block: $out"; status=1; }
    if ! read -r lut ff ram _ < <("$synthesize" "$block" "$tmp/$block" "${assignments[@]}" "${files[@]}"); then
        echo "$block: no netlist"
        status=1
        continue
    fi
    checked=$((checked + 1))
    lut=$((lut + 4 * ram))
    printf '%-18s %16s %16s\n' "$block" "$lut ($tables)" "$ff ($flipflops)"
    ((lut <= tables + 2 && ff <= flipflops + 2)) || { echo "$block takes more than it promises"; status=1; }
done < "$here/features.txt"
[[ $checked -gt 0 ]] || { echo "nothing was checked"; status=1; }
exit $status
