#!/usr/bin/env bash
# Proves that a module keeps the rules of its buses, which stand in data/tarvo_orix_m1/simulation/checkers and are the same in simulations.
#   prove.sh RTL SUBJECT [CHANGE …]
# RTL is the folder of the sources, SUBJECT a row of subjects.txt. CHANGE is "FILE: " and a sed script for that source; each must be
# noticed: the proof must fail. Where CHANGE is "all" or "first", the row's own changes, the lines below it, or the first one, are made.
# Each proof holds for any number of clock cycles: Yosys makes one circuit of module, checkers and any surroundings, and the property
# directed reachability of ABC closes the induction. Surroundings that look inside the module say which states can be, and one step of
# induction by Yosys' own "sat" is the proof. With VCD=FILE in the environment a proof that fails leaves what it found there,
# as the shortest run of "sat".
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
checkers=$here/../../../data/tarvo_orix_m1/simulation/checkers
rtl=$(cd "$1" && pwd) subject=$2
shift 2
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
fail() { echo "FAILED: $*" >&2; exit 1; }

row=$(grep -E "^$subject " "$here/subjects.txt") || fail "no such subject: $subject"
read -r _ harness waits words <<< "$row"
files= parameters=
for word in $words; do
    case $word in
        *=*) parameters+=" -set ${word%%=*} ${word#*=}" ;;
        *) files+=${files:+ }$word ;;
    esac
done
if [[ ${1:-} == all || ${1:-} == first ]]; then
    mapfile -t changes < <(awk -v name="$subject" '/^[^ #]/ { on = $1 == name; next } on && /^ / { sub(/^ +/, ""); print }' \
        "$here/subjects.txt")
    ((${#changes[@]} > 0)) || fail "$subject has no changes"
    if [[ $1 == first ]]; then set -- "${changes[0]}"; else set -- "${changes[@]}"; fi
fi

prove() { # FOLDER with the sources, and what ABC tries; sets verdict
    local folder=$tmp/sources way module defines="" port set=proof
    # A stand-in is a black box of netlists, and has an inside here.
    rm -rf "$folder"
    mkdir "$folder"
    cp "$1"/*.v "$1"/*.vh "$folder"
    sed -i '/^(\* blackbox \*)$/d' "$folder"/*.v
    module=$(basename "${files%% *}" .v)
    for port in HADDR HSIZE HPROT HWRITE; do
        ! grep -qE "^ *input .*\b$port\b" "$folder/$module.v" || defines+=" -DHAS_$port"
    done
    {
        echo "read_verilog -formal -DMODULE=$module -DMOST_WAITS=$waits$defines -I$here -I$checkers -I$folder \
$checkers/apb_checker.v $checkers/ahb_lite_checker.v $here/$harness.v $(printf " $folder/%s" $files)"
        # Surroundings that a parameter changes have it too, and set it.
        grep -q '^module proof #' "$here/$harness.v" || set=$module
        [[ -z $parameters ]] || echo "chparam$parameters $set"
        cat << 'END'
hierarchy -check -top proof
proc
flatten
opt -fast
memory -nomap
memory_map
async2sync
setundef -undriven -anyseq
opt -fast
select -assert-min 1 t:$assert
write_rtlil circuit.il
techmap
opt_clean
dffunmap
simplemap
abc -g AND -fast
opt_clean
write_aiger -zinit circuit.aig
END
    } > "$tmp/circuit.ys"
    (cd "$tmp" && yosys -Q -T -q -s circuit.ys > yosys.log 2>&1) || { tail -n 5 "$tmp/yosys.log" >&2; fail "Yosys"; }
    if grep -q hierconn "$here/$harness.v"; then
        (cd "$tmp" && timeout 600 yosys -Q -T -p "read_rtlil circuit.il; sat -prove-asserts -set-assumes -tempinduct -seq 1 -maxsteps 1" \
            > sat.log 2>&1) || true
        verdict=broken
        if grep -q '^Induction step proven: SUCCESS' "$tmp/sat.log"; then
            verdict=holds
        elif ! grep -qE '^(SAT temporal induction proof finished|Reached maximum number of time steps)' "$tmp/sat.log"; then
            tail -n 5 "$tmp/sat.log" >&2
            fail "nothing was decided"
        fi
        return
    fi
    # A short run mostly shows a mistake.
    for way in "${@:2}"; do
        (cd "$tmp" && timeout 300 yosys-abc -c "read_aiger circuit.aig; fold; strash; $way" > abc.log 2>&1) || true
        ! grep -q 'was asserted in frame' "$tmp/abc.log" || break
    done
    if grep -q '^Property proved' "$tmp/abc.log"; then
        verdict=holds
    elif grep -qE 'was asserted in frame|^Networks are not|SATISFIABLE' "$tmp/abc.log"; then
        verdict=broken
    else
        tail -n 5 "$tmp/abc.log" >&2
        fail "nothing was decided"
    fi
}

prove "$rtl" "scorr; pdr"
[[ $verdict == holds ]] || {
    [[ -z ${VCD:-} ]] || yosys -Q -T -q -p "read_rtlil $tmp/circuit.il; sat -prove-asserts -set-assumes -set-init-zero -seq 1 \
        -maxsteps 30 -tempinduct-baseonly -show-public -dump_vcd $VCD" > "$tmp/sat.log" 2>&1 || true
    fail "$subject breaks a rule"
}
echo "proven: $subject"

for change; do
    file=${change%%: *}
    rm -rf "$tmp/changed"
    mkdir "$tmp/changed"
    cp "$rtl"/*.v "$rtl"/*.vh "$tmp/changed"
    sed -i -E "${change#*: }" "$tmp/changed/$file"
    ! cmp -s "$rtl/$file" "$tmp/changed/$file" || fail "nothing to change: $change"
    prove "$tmp/changed" "bmc3 -F 6" "scorr; pdr"
    [[ $verdict == broken ]] || fail "not noticed: $change"
    echo "noticed: $change"
done
