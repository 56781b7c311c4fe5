#!/usr/bin/env bash
# Builds and runs one testbench of benches.txt in a temporary folder.  Success is a line "PASS" and nothing that failed.
#   run-testbench.sh ORIXM1 RTL NAME
# RTL is the folder of the variants.
set -u
here=$(cd "$(dirname "$0")" && pwd)
. "$here/configure.sh"
orixm1=$1 variants=$2 name=${3:?name of a testbench}
tmp=$(mktemp -d) || exit 2
trap 'rm -rf "$tmp"' EXIT
bench=
words=()
roots=(-s tb)
while read -r entry file rest; do
    [[ $entry == "$name" ]] || continue
    bench=$file
    for word in $rest; do
        case $word in
            -*) words+=("$word") ;;
            cases/*) # all of the design but the processor
                configure "$orixm1" "${word#cases/}" "$tmp" || exit 2
                words+=("-I$generated_dir")
                for file in "${sources[@]}"; do
                    [[ $file == */cortex_m1_core.v ]] || words+=("$file")
                done
                roots+=(-s bus_watch)
                words+=("$here/checkers/bus_watch.v") ;;
            *) # in one of the variants, or the same in all
                files=("$variants"/*/"$word")
                words+=("${files[0]}") ;;
        esac
    done
done < "$here/benches.txt"
[[ -n $bench ]] || { echo "no testbench named $name"; exit 2; }
iverilog -g2005 -Wall "${roots[@]}" -I "$here" -I "$here/checkers" -I "$variants/debug" "-DPROGRAM_DIR=\"$here/program\"" -o "$tmp/bench" \
    "${words[@]}" "$here"/checkers/*_checker.v "$here/$bench" || exit 1
(cd "$tmp" && vvp -n bench) > "$tmp/log" 2>&1
status=$?
cat "$tmp/log"
[[ $status -eq 0 ]] && grep -qx PASS "$tmp/log" && ! grep -qiE 'fail|error' "$tmp/log"
