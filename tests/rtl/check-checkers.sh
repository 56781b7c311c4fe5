#!/usr/bin/env bash
# Each rule of the bus checkers is broken by tb_checkers.v, and noticed by its name; what is within the rules brings no message. The
# rules that are broken are those that the checkers state, none left out. It needs Icarus Verilog.
set -u
here=$(cd "$(dirname "$0")" && pwd)
checkers=$here/../../data/tarvo_orix_m1/simulation/checkers
tmp=$(mktemp -d) || exit 2
trap 'rm -rf "$tmp"' EXIT
fail() { echo "FAILED: $*"; exit 1; }

# "NAME: NAMES THAT ARE ANSWERED", one line a break; nothing may stand before the first.
answers() {
    awk '/^break: / { if (broken) print broken ": " said; broken = substr($0, 8); said = ""; next }
         match($0, /failed: bus rule: /) {
             name = substr($0, RSTART + RLENGTH)
             sub(/ \(tb\.(ahb|apb)\)$/, "", name)
             if (!broken) { print "within the rules: " name; exit }
             if (index("; " said ";", "; " name ";") == 0) said = said (said ? "; " : "") name
         }
         END { if (broken) print broken ": " said }'
}
stated=$(cat "$checkers"/*_checker.v | grep -oE '`RULE\(.*ASSUME_[A-Z]+, "[^"]+"' | grep -oE '"[^"]+"$' | tr -d '"' | sort -u)
known=$(grep -E ' (is|are) known' <<< "$stated")
[[ $(wc -l <<< "$stated") -ge 25 ]] || fail "few rules"

iverilog -g2005 -Wall -s tb -I "$checkers" -y "$checkers" -o "$tmp/bench" "$here/tb_checkers.v" > "$tmp/log" 2>&1 \
    && [[ ! -s $tmp/log ]] || fail "Icarus: $(cat "$tmp/log")"
vvp -n "$tmp/bench" | answers > "$tmp/answers"
awk -F': ' '$1 != $2' "$tmp/answers" | grep . && fail "these answers are not the rules that are broken"
diff <(cut -d: -f1 "$tmp/answers" | sort -u) <(echo "$stated") || fail "rules that are broken, and rules that are stated"

# A rule that never holds anything to account is noticed here.
mistakes=0
while IFS= read -r line; do
    number=${line%%:*} file=${line#*:}
    file=$checkers/$file
    for change in "s/\`RULE\(([^,(]|\([^)]*\))+, ASSUME/\`RULE(1'b0, ASSUME/"; do
        mkdir -p "$tmp/changed"
        cp "$checkers"/* "$tmp/changed"
        sed -i -E "${number}$change" "$tmp/changed/${file##*/}"
        cmp -s "$file" "$tmp/changed/${file##*/}" && fail "nothing to change: ${file##*/}:$number"
        iverilog -g2005 -s tb -I "$tmp/changed" -y "$tmp/changed" -o "$tmp/bench" "$here/tb_checkers.v" || fail "Icarus: $file:$number"
        vvp -n "$tmp/bench" | answers | awk -F': ' '$1 != $2' | grep -q . || fail "not noticed: ${file##*/}:$number"
        mistakes=$((mistakes + 1))
    done
done < <(cd "$checkers" && grep -n '`RULE(' ./*_checker.v | sed -E 's/^\.\/([^:]+):([0-9]+):.*/\2:\1/')
echo "PASS: $(wc -l < "$tmp/answers") ways to break $(wc -l <<< "$stated") rules ($(wc -l <<< "$known") of unknown bits), $mistakes mistakes noticed"
