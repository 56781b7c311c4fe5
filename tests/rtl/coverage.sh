#!/usr/bin/env bash
# What the testbenches of benches.txt reach of the blocks that they are for: lines (statements and branches) and toggled bits, as
# Verilator counts them. A block is a first source with the other sources of its rows, but those that are blocks themselves; all rows
# for it count together.
#   coverage.sh RTL [FILE.v …]
# RTL is the folder of the sources; without FILE all blocks. Fails where a source has less than 95 % of its lines, those left out that
# stand in coverage-waivers.txt, each with a reason; a waiver that is not needed fails too. Lines that are not reached are printed.
# What never toggles are bits that the register map leaves 0 (upper bits of PRDATA, PSLVERR, an ID), upper address bits, and the upper
# bits of counters for long times.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
rtl=$(cd "$1" && pwd)
shift
least=95
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
cache=$(command -v ccache || true)

# Left out are the memories, which are nothing but words.
rows() { grep -vE '^#|cases/|^$|[id]tcm' "$here/benches.txt"; }
(($#)) || mapfile -t all < <(rows | awk '{ print $3 }' | sort -u)
(($#)) || set -- "${all[@]}"

run() { # DATA BENCH WORD…: runs a row; what it reached is in the file DATA
    local data=$1 bench=$2 word words=()
    shift 2
    for word; do
        case $word in
            rtl-only) ;;
            -*) words+=("$word") ;;
            *) words+=("$rtl/$word") ;;
        esac
    done
    rm -rf "$tmp/run" "$tmp/bench"
    mkdir "$tmp/bench"
    for word in "$here"/*.vh "$here/flash_model.v" "$here/$bench"; do
        awk -f "$here/coverage.awk" "$word" "$word" > "$tmp/bench/${word##*/}"
    done
    verilator --cc --exe --build --timing --coverage-line --coverage-toggle -fno-life --x-assign 0 --default-language 1364-2005 \
        -Wno-fatal -Wno-lint -Wno-style -Wno-IMPURE --top-module tb --prefix Vtb \
        "-I$tmp/bench" "-I$here/checkers" "-I$rtl" --Mdir "$tmp/run" -MAKEFLAGS "OPT_FAST=-O0 OPT_SLOW=-O0 OPT_GLOBAL=-O0 OBJCACHE=$cache" \
        "$here/coverage.vlt" "${words[@]}" "$tmp/bench/$bench" "$here/coverage_main.cpp" > "$tmp/log" 2>&1 || { tail -n 20 "$tmp/log"; exit 1; }
    "$tmp/run/Vtb" "$data" > "$tmp/log"
    if ! grep -qx PASS "$tmp/log" || grep -q failed "$tmp/log"; then
        cat "$tmp/log"
        exit 1
    fi
}

mapfile -t blocks < <(rows | awk '{ print $3 }' | sort -u)
status=0
report() { # FILE DATA…
    local file=$1 missed left line text total zero waived
    shift
    # Points of the file, over all rows and instances: kind, line, and how often.
    cat "$@" | awk -v file="/$file" '
        /^C / {
            count = $NF
            text = $0
            split("", field)
            n = split(text, part, "\001")
            for (i = 2; i <= n; i++) { at = index(part[i], "\002"); field[substr(part[i], 1, at - 1)] = substr(part[i], at + 1) }
            if (substr(field["f"], length(field["f"]) - length(file) + 1) != file) next
            kind = field["page"]; sub(/\/.*/, "", kind)
            sub(/\047.*/, "", field["o"])
            key = kind " " field["l"] " " field["n"] " " field["o"]
            sum[key] += count
        }
        END { for (key in sum) print key, sum[key] }' > "$tmp/points"
    awk '$1 == "v_line" || $1 == "v_branch"' "$tmp/points" > "$tmp/lines"
    awk '$1 == "v_toggle"' "$tmp/points" > "$tmp/toggles"
    missed=$(awk '$NF == 0 { print $2 }' "$tmp/lines" | sort -un)
    left=
    for line in $missed; do
        text=$(sed -n "${line}p" "$rtl/$file")
        if ! awk -v file="$file" -v text="$text" '/^[^#]/ { name = $1; sub(/^[^ ]+ +/, ""); sub(/ +\/\/ .*/, "")
                 if (name == file && index(text, $0)) found = 1 } END { exit !found }' "$here/coverage-waivers.txt"; then
            left+=" $line"
            echo "$file:$line:$text" >> "$tmp/unreached"
        fi
    done
    total=$(wc -l < "$tmp/lines")
    [[ -s $tmp/points ]] || { echo "nothing was counted of $file"; exit 1; }
    zero=0
    for line in $left; do zero=$((zero + $(awk -v line="$line" '$NF == 0 && $2 == line' "$tmp/lines" | wc -l))); done
    awk -v file="$file" -v total="$total" -v zero="$zero" -v toggles="$tmp/toggles" 'BEGIN {
        while ((getline row < toggles) > 0) { all++; n = split(row, word, " "); if (word[n] > 0) seen++ }
        printf "%-22s %5d of %5d %3d %% %5d of %5d %3d %%\n", file, total - zero, total, total ? 100 * (total - zero) / total : 100, seen, all, all ? 100 * seen / all : 100 }'
    (( 100 * (total - zero) >= least * total )) || { echo "$file: fewer than $least % of the lines are reached"; status=1; }
    while read -r waived text; do # is each waiver of the file needed?
        [[ $waived == "$file" ]] || continue
        text=${text%% // *}
        grep -qF -- "$text" <(for line in $missed; do sed -n "${line}p" "$rtl/$file"; done) || { echo "not needed: $waived $text"; status=1; }
    done < <(grep -v '^#' "$here/coverage-waivers.txt" || true)
}

printf '%-22s %18s %18s\n' source lines "toggled bits"
for file; do
    datas=()
    parts=()
    while read -r name bench words; do
        [[ ${words%% *} == "$file" ]] || continue
        # shellcheck disable=SC2086
        run "$tmp/$name.dat" "$bench" $words
        datas+=("$tmp/$name.dat")
        for word in $words; do
            [[ $word == *.v && " ${blocks[*]} ${parts[*]-} " != *" $word "* ]] && parts+=("$word")
        done
    done < <(rows)
    ((${#datas[@]} > 0)) || { echo "no row for $file"; exit 1; }
    for part in "$file" ${parts[@]+"${parts[@]}"}; do
        report "$part" "${datas[@]}"
    done
done
[[ ! -e $tmp/unreached ]] || { echo "not reached:"; cat "$tmp/unreached"; }
exit $status
