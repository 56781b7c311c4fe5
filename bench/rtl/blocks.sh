#!/usr/bin/env bash
# What each block of the RTL takes when it is synthesized alone with its default parameters, as a table.
#   blocks.sh BUILD [RTL-FOLDER [OTHER-RTL-FOLDER]]
# BUILD is a build folder (build/release) with the target synthesizemodule; RTL-FOLDER this checkout's sources if it is not named.
# With a second folder each number stands as "before > after", the first folder being before.
# "LUT4" are tables alone; "RAM16" memories of 16 words of 4 bits, each of which takes four tables more; "depth" is the number of
# tables on the longest way between flip-flops and pins, carries of a chain not counted.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
build=$(cd "${1:?build folder}" && pwd)
first=$(cd "${2:-$here/../../data/tarvo_orix_m1/rtl}" && pwd)
second=${3:-}
[[ -z $second ]] || second=$(cd "$second" && pwd)
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT

sources_of() { # FOLDER MODULE: its file and those of the modules in it
    local word
    echo "$1/$2.v"
    while read -r word; do
        [[ ! -f $1/$word.v ]] || sources_of "$1" "$word"
    done < <(sed -nE 's/^ *([a-z][a-z0-9_]+) +(#\(.*|u_[a-z0-9_]+ \(.*)$/\1/p' "$1/$2.v" | grep -vxE 'module|task|function' | sort -u)
}

numbers() { # FOLDER MODULE: six numbers, or nothing if there is no such module
    local files
    [[ -f $1/$2.v ]] || return 0
    mapfile -t files < <(sources_of "$1" "$2" | sort -u)
    "$build/tests/bin/synthesizemodule" "$2" "$tmp/$2" "${files[@]}"
}

# Bridges to licensed blocks are left out: what they take is that of the licensed block.
mapfile -t blocks < <(cat <(cd "$first" && ls) <(cd "${second:-$first}" && ls) | sort -u \
    | sed -nE 's/^((ahb|apb)_.*|reset_controller|sync_fifo)\.v$/\1/p' | grep -vxE 'ahb_(can|ddr3|ethernet|psram)')
((${#blocks[@]} > 10)) || { echo "few blocks in $first" >&2; exit 1; }

printf '%-20s %12s %12s %12s %12s %12s %12s\n' block LUT4 flip-flops RAM16 "block RAM" carry depth
for block in "${blocks[@]}"; do
    line=$(numbers "$first" "$block")
    read -r -a a <<< "$line"
    [[ -z $second ]] || line=$(numbers "$second" "$block")
    read -r -a b <<< "$line"
    printf '%-20s' "$block"
    for n in 0 1 2 3 4 5; do
        if [[ -z $second ]]; then text=${a[n]}; else text="${a[n]:--} > ${b[n]:--}"; fi
        printf ' %12s' "$text"
    done
    echo
done
