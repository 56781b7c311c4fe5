#!/usr/bin/env bash
# Builds and runs one testbench of benches.txt in a temporary folder.  Success is a line "PASS" and nothing that failed.
#   run-testbench.sh ORIXM1 RTL NAME [rtl|netlist|verilog|vhdl [FOLDER [short]]]
# RTL is the folder of the variants.  With "verilog" or "vhdl" the module of the row, which is the first source and has no parameters
# set, is replaced by its netlist in that language, as the synthesis of configurations makes it (synthesizemodule, in the build
# folder of ORIXM1).  "netlist" leaves the netlists in FOLDER, from where "verilog" and "vhdl" take them; those make them themselves
# without a FOLDER.  The testbench knows from the macro GATES that what is unknown goes through the module, and from SHORT that it
# has to be done in seconds: fewer rounds of the same. With UNTIL in the environment the run ends behind the line with that text.
set -u
here=$(cd "$(dirname "$0")" && pwd)
. "$here/configure.sh"
checkers=$here/../../data/tarvo_orix_m1/simulation/checkers
orixm1=$1 variants=$2 name=${3:?name of a testbench} model=${4:-rtl} folder=${5:-} length=${6:-whole}
tmp=$(mktemp -d) || exit 2
trap 'rm -rf "$tmp"' EXIT
bench=
words=() files=()
roots=(-s tb)
has_netlist=
while read -r entry file rest; do
    [[ $entry == "$name" ]] || continue
    bench=$file
    for word in $rest; do
        case $word in
            -*) words+=("$word") ;;
            rtl-only) has_netlist=false ;;
            netlists) has_netlist=true ;;
            cases/*) # all of the design but the processor
                configure "$orixm1" "${word#cases/}" "$tmp" || exit 2
                words+=("-I$generated_dir")
                for file in "${sources[@]}"; do
                    [[ $file == */cortex_m1_core.v ]] || files+=("$file")
                done
                roots+=(-s bus_watch)
                files+=("$checkers/bus_watch.v") ;;
            *) # in one of the variants, or the same in all
                found=("$variants"/*/"$word")
                files+=("${found[0]}") ;;
        esac
    done
done < "$here/benches.txt"
[[ -n $bench ]] || { echo "no testbench named $name"; exit 2; }

if [[ $model != rtl ]]; then
    [[ ${#words[@]} -eq 0 || $has_netlist == true ]] && [[ $has_netlist != false && ${#files[@]} -gt 0 ]] || { echo "$name has no netlist of its own"; exit 2; }
    library=$here/../../src/host/synthesis/library
    module=$(basename "${files[0]}" .v)
    if [[ -z $folder || $model == netlist ]]; then
        folder=${folder:-$tmp/netlist}
        rm -rf "$folder"
        "$(dirname "$orixm1")/../tests/bin/synthesizemodule" "$module" "$folder" "${files[@]}" > "$tmp/log" 2>&1 \
            || { cat "$tmp/log"; exit 1; }
    fi
    netlist=$tmp/netlist.v
    case $model in
        netlist) [[ -s $folder/$module.vg && -s $folder/$module.vhg ]]; exit ;;
        verilog) cp "$folder/$module.vg" "$netlist" ;;
        vhdl) # as GHDL reads it, over the same primitives
            cp "$folder/$module.vhg" "$tmp/netlist.vhd"
            (cd "$tmp" && ghdl --synth --std=93c -Wno-binding --out=verilog netlist.vhd -e "$module") > "$tmp/ghdl.v" 2> "$tmp/log" \
                || { cat "$tmp/log"; exit 1; }
            sed -nE 's/^  (TV_[A-Z0-9_]+|[)]) (_[0-9]+_) [(]$/\2/p' "$folder/$module.vg" > "$tmp/cells"
            awk -v top="$module" -f "$here/../netlist/proof/ghdl-verilog.awk" "$tmp/cells" "$tmp/ghdl.v" > "$tmp/renamed.v" || exit 1
            # Contents of a block RAM are more digits than Icarus Verilog reads at once.
            awk '{
                while (match($0, /16384\047b[01xXzZ]+/)) {
                    printf "%s{", substr($0, 1, RSTART - 1)
                    for (i = 0; i < 16; ++i)
                        printf "%s1024\047b%s", i ? ", " : "", substr($0, RSTART + 7 + 1024 * i, 1024)
                    printf "}"
                    $0 = substr($0, RSTART + RLENGTH)
                }
                print
            }' "$tmp/renamed.v" > "$netlist" ;;
        *) echo "no such model: $model"; exit 2 ;;
    esac
    grep -q "^module $module\b" "$netlist" || { echo "no module $module in its netlist"; exit 1; }
    # The testbench's other modules stay what they are.
    files=("$netlist" "${files[@]:1}" "$library/primitives.v")
    words+=(-DTARVO_NO_TIMESCALE -DGATES)
fi
[[ $length == whole ]] || words+=(-DSHORT)
iverilog -g2005 -Wall "${roots[@]}" -I "$here" -I "$checkers" -I "$variants/debug" "-DPROGRAM_DIR=\"$here/program\"" \
    -o "$tmp/bench" "${words[@]}" "${files[@]}" "$checkers"/*_checker.v "$here/$bench" || exit 1
if [[ -n ${UNTIL:-} ]]; then
    # Line by line: whoever writes on when nobody reads is ended.
    (cd "$tmp" && stdbuf -oL vvp -n bench) 2>&1 | awk -v until="$UNTIL" '{ print } index($0, until) { exit }' > "$tmp/log"
    status=${PIPESTATUS[0]}
else
    (cd "$tmp" && vvp -n bench) > "$tmp/log" 2>&1
    status=$?
fi
cat "$tmp/log"
[[ $status -eq 0 ]] && grep -qx PASS "$tmp/log" && ! grep -qiE 'fail|error' "$tmp/log"
