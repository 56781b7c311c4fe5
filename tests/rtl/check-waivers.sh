#!/usr/bin/env bash
# Each line of lint.vlt says why it is there, and is still needed: without any of them Verilator warns of what it is for, in at least
# one of the cases.
#   check-waivers.sh ORIXM1 CASE…
set -u
here=$(cd "$(dirname "$0")" && pwd)
. "$here/configure.sh"
orixm1=${1:?orixm1}
shift
tmp=$(mktemp -d) || exit 2
trap 'rm -rf "$tmp"' EXIT
for case; do
    mkdir "$tmp/$case"
    configure "$orixm1" "$case" "$tmp/$case" || exit 2
    verilator --lint-only -Wall -Wno-fatal --language 1364-2005 --top-module Tarvo_ORIX_M1_Top -I"$generated_dir" -I"$rtl" \
        "${sources[@]}" 2>&1 | grep -oE '^%Warning-[A-Z]+: [^:]+:' >> "$tmp/warnings"
done
sort -u "$tmp/warnings" > "$tmp/known"
(($(wc -l < "$tmp/known") > 5)) || { echo "FAILED: few warnings without waivers"; exit 1; }

status=0 count=0
while IFS= read -r line; do
    [[ $line == lint_off* ]] || continue
    count=$((count + 1))
    if [[ ! $line =~ ^lint_off\ -rule\ ([A-Z]+)\ -file\ \"([^\"]+)\"\ //\ .+\ .+$ ]]; then
        echo "FAILED: no reason, or another form: $line"
        status=1
        continue
    fi
    rule=${BASH_REMATCH[1]} pattern=${BASH_REMATCH[2]} needed=false
    while IFS=' ' read -r kind file; do
        # shellcheck disable=SC2053
        if [[ $kind == "%Warning-$rule:" && ${file%:} == $pattern ]]; then needed=true; fi
    done < "$tmp/known"
    $needed || { echo "FAILED: not needed: $line"; status=1; }
done < "$here/lint.vlt"
((count > 0)) || { echo "FAILED: no waivers"; exit 1; }
[[ $status -eq 0 ]] && echo "PASS: $count waivers"
exit $status
