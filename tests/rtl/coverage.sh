#!/usr/bin/env bash
# What the testbenches of benches.txt reach of the blocks that they are for: lines (statements and branches) and toggled bits, as
# Verilator counts them. A block is a first source; all rows for it count together. The other sources of its rows count with it,
# but those that are blocks themselves and those that an earlier block has.
#   coverage.sh RTL [FILE.v …]
# RTL is the folder of the sources; without FILE all blocks, some minutes. Fails where a source has less than 95 % of its lines, those
# left out that stand in coverage-waivers.txt, each with a reason; a waiver that is not needed fails too, and so does a testbench that
# does not pass. Lines that are not reached are printed behind the table.
# What never toggles are bits that the register map leaves 0 (upper bits of PRDATA, PSLVERR, an ID), upper address bits, and the upper
# bits of counters for long times.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
checkers=$here/../../data/tarvo_orix_m1/simulation/checkers
rtl=$(cd "$1" && pwd)
shift
least=95
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
cache=$(command -v ccache || true)

rows() { grep -vE '^#|cases/|^$' "$here/benches.txt"; }
mapfile -t blocks < <(rows | awk '!seen[$3]++ { print $3 }')
(($#)) || set -- "${blocks[@]}"

# The sources that count with a block: itself and those that no earlier block has.
sources_of() { # FILE
    rows | awk -v block="$1" -v blocks=" ${blocks[*]} " '{
        for (i = 3; i <= NF; i++)
            if ($i ~ /\.v$/ && !($i in owner) && (i == 3 || !index(blocks, " " $i " "))) {
                owner[$i] = $3
                if ($3 == block) print $i
            }
    }'
}

run() { # DATA BENCH WORD…: runs a row; what it reached is in the file DATA
    local data=$1 bench=$2 word words=()
    shift 2
    for word; do
        case $word in
            rtl-only | netlists) ;;
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
        -Wno-fatal -Wno-lint -Wno-style -Wno-IMPURE --top-module tb --prefix Vtb "-DPROGRAM_DIR=\"$here/program\"" \
        "-I$tmp/bench" "-I$checkers" "-I$rtl" --Mdir "$tmp/run" -MAKEFLAGS "OPT_FAST=-O0 OPT_SLOW=-O0 OPT_GLOBAL=-O0 OBJCACHE=$cache" \
        "$here/coverage.vlt" "${words[@]}" "$tmp/bench/$bench" "$here/coverage_main.cpp" > "$tmp/log" 2>&1 \
        || { tail -n 20 "$tmp/log"; return 1; }
    "$tmp/run/Vtb" "$data" > "$tmp/log" || { cat "$tmp/log"; return 1; }
    if ! grep -qx PASS "$tmp/log" || grep -q failed "$tmp/log"; then
        cat "$tmp/log"
        return 1
    fi
}

status=0
touch "$tmp/counted" "$tmp/remarks"
row() { # NAME LINES OF TOGGLES OF
    awk -v name="$1" -v lines="$2" -v of="$3" -v toggles="$4" -v bits="$5" 'BEGIN {
        printf "%-22s %5d of %5d %5.1f %% %5d of %5d %5.1f %%\n", name, lines, of, of ? 100 * lines / of : 100, toggles, bits, bits ? 100 * toggles / bits : 100 }'
}
report() { # FILE DATA…
    local file=$1 missed line text total zero bits toggled waived left
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
    [[ -s $tmp/points ]] || { echo "nothing was counted of $file" >> "$tmp/remarks"; status=1; return; }
    awk '$1 == "v_line" || $1 == "v_branch"' "$tmp/points" > "$tmp/lines"
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
    zero=0
    for line in $left; do zero=$((zero + $(awk -v line="$line" '$NF == 0 && $2 == line' "$tmp/lines" | wc -l))); done
    read -r toggled bits < <(awk '$1 == "v_toggle" { all++; if ($NF > 0) seen++ } END { print seen + 0, all + 0 }' "$tmp/points")
    row "$file" $((total - zero)) "$total" "$toggled" "$bits"
    echo $((total - zero)) "$total" "$toggled" "$bits" >> "$tmp/counted"
    if (( 100 * (total - zero) < least * total )); then
        echo "$file: fewer than $least % of the lines are reached" >> "$tmp/remarks"
        status=1
    fi
    while read -r waived text; do # is each waiver of the file needed?
        [[ $waived == "$file" ]] || continue
        text=${text%% // *}
        grep -qF -- "$text" <(for line in $missed; do sed -n "${line}p" "$rtl/$file"; done) && continue
        echo "not needed: $waived $text" >> "$tmp/remarks"
        status=1
    done < <(grep -v '^#' "$here/coverage-waivers.txt" || true)
}

printf '%-22s %22s %22s\n' source lines "toggled bits"
for file; do
    datas=()
    while read -r name bench words; do
        [[ ${words%% *} == "$file" ]] || continue
        # shellcheck disable=SC2086
        if run "$tmp/$name.dat" "$bench" $words > "$tmp/trouble"; then
            datas+=("$tmp/$name.dat")
        else
            { echo "$name does not pass:"; cat "$tmp/trouble"; } >> "$tmp/remarks"
            status=1
        fi
    done < <(rows)
    if ((${#datas[@]} == 0)); then
        echo "no row that passes for $file" >> "$tmp/remarks"
        status=1
        continue
    fi
    for part in $(sources_of "$file"); do
        report "$part" "${datas[@]}"
    done
done
read -r -a sums < <(awk '{ for (i = 1; i <= 4; i++) sum[i] += $i } END { print sum[1] + 0, sum[2] + 0, sum[3] + 0, sum[4] + 0 }' "$tmp/counted")
(($# == 1)) || row together "${sums[@]}"
[[ ! -e $tmp/unreached ]] || { echo "not reached:"; cat "$tmp/unreached"; }
cat "$tmp/remarks"
exit $status
