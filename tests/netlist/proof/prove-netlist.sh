#!/usr/bin/env bash
# Proves that the netlists of a configuration do what its sources do.
#
#   prove-netlist.sh ORIXM1 LIBRARY-FOLDER PROGRAM-FOLDER CONFIGURATION [CHANGE ...]
#
# Verilog: the sources up to the mapping of their memories, and the netlist with the primitives' simulation models, are
# cut at the bits of state, block RAMs, pin drivers and black boxes that both have by name. What then is left is proven
# equal by ABC. VHDL: GHDL reads that netlist, and cell by cell the inputs are proven to be those of the Verilog netlist.
# CHANGE is "verilog: " or "vhdl: " and a sed script for that netlist. Each must be noticed: the proof must fail.
#
# Not covered: reading the sources and mapping their memories to block RAMs, which both sides share. The simulations
# compare these.
#
# The functions that prove set `verdict` to "equal" or "different" and are called as plain commands, since the shell lets
# errors pass in those that an "if", "!" or "||" asks: what could not be decided must not look like a difference.
set -euo pipefail

orixm1=$1 library=$2 program=$3 config=$4
shift 4
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
cd "$tmp"
ln -s "$library" library
ln -s "$here" proof

fail() {
    echo "$*" >&2
    exit 1
}

synthesizer() { # SCRIPT
    yosys -Q -T -q -l "$1.log" "$1" > "$1.out" 2>&1 || {
        tail -n 5 "$1.out" >&2
        fail "Yosys failed in $1"
    }
}

sed -e "s#^ITCM_Initialization_AbsolutePath=.*#ITCM_Initialization_AbsolutePath=$program#" -e '/^LANG=/d' \
    -e 's/^\[Config\]$/&\nLANG=1/' "$config" > config.ipc
grep -qx 'LANG=1' config.ipc || printf '[Config]\nLANG=1\n' >> config.ipc
"$orixm1" generate config.ipc --out ip > generate.log 2>&1 || fail "$(cat generate.log)"
"$orixm1" sources config.ipc > sources.txt

# What is done alike to both designs.
cut_script() { # NAME
    cat << EOF
opt_clean
dffunmap
simplemap
dfflegalize -cell \$_DFF_?_ 01 -cell \$_DFF_?P?_ 01
opt_clean
rename -hide t:TV_TBUF t:\$_DFF*
rename -wire t:TV_TBUF t:\$_DFF*
read_verilog -lib proof/boundary.v
techmap -map proof/cut.v
simplemap
opt_clean
hierarchy -top Tarvo_ORIX_M1_Top -purge_lib
select -assert-none t:\$_DFF* t:\$_DLATCH* t:\$_SR* t:\$mem*
select -assert-min 1 t:STATE
tee -q -o $1.pins select -list i:* o:* %i t:* %co1 %i
tee -q -o $1.states select -list t:STATE
rename Tarvo_ORIX_M1_Top $1
write_rtlil $1.whole
EOF
}

{
    echo "read_verilog -lib library/primitives.v"
    while IFS= read -r source; do
        case $source in
            */temp/tv_orix_m1/*) source=ip/temp/tv_orix_m1/${source##*/} ;;
            *)
                [[ -e rtl ]] || ln -s "${source%/*}" rtl
                source=rtl/${source##*/}
                ;;
        esac
        echo "read_verilog -Iip/temp/tv_orix_m1 -Irtl $source"
    done < sources.txt
    cat << 'EOF'
hierarchy -check -top Tarvo_ORIX_M1_Top
setattr -mod -unset keep_hierarchy
proc -noopt
techmap -map library/map_tristate.v
tribuf
flatten
opt_expr
opt_clean
opt
memory -nomap
opt_clean
memory_libmap -lib library/memories.txt
techmap -map library/map_memories.v
memory_map
opt_clean
alumacc
techmap
simplemap
techmap -map library/map_cells.v t:$_TBUF_
EOF
    cut_script sources
} > sources.ys
synthesizer sources.ys

prove_verilog() { # NETLIST; is it equal to the sources?
    {
        cat << EOF
read_verilog -lib library/primitives.v
read_verilog $1
hierarchy -check -top Tarvo_ORIX_M1_Top
techmap -autoproc -map library/primitives.v t:TV_* t:TV_RAM* t:TV_TBUF %u %d
EOF
        cut_script netlist
    } > netlist.ys
    synthesizer netlist.ys

    for design in sources netlist; do
        sed 's#^[^/]*/##' "$design.states" | sort > "$design.names"
    done
    comm -12 sources.names netlist.names > shared
    isolate shared sources netlist
    echo "states: $(wc -l < shared) shared, $(comm -23 sources.names netlist.names | wc -l) of the sources only," \
        "$(comm -13 sources.names netlist.names | wc -l) of the netlist only"
    compare sources netlist
}

# What is between the cells of two designs: NAME.whole and NAME.pins become NAME.logic and NAME.cells.
isolate() { # FILE-OF-SHARED-STATES NAME NAME
    local shared=$1 design
    shift
    for design; do
        awk -f proof/cut.awk "$shared" "$design.pins" "$design.whole" > "$design.cut"
        awk -f proof/cells.awk declarations "$design.cut" | sort > "$design.cells"
        [[ -s $design.cells ]] || fail "no cells in the design \"$design\""
        cat << EOF
read_rtlil $design.cut
hierarchy -top $design
techmap -map proof/own-state.v
opt_clean
cd $design
select -set taken t:* t:\$* %d
expose -evert @taken
cd ..
write_rtlil $design.logic
design -reset
EOF
    done > isolate.ys
    synthesizer isolate.ys
}

compare() { # NAME NAME; are the designs equal?
    verdict=different
    if ! cmp -s "$1.cells" "$2.cells"; then
        echo "cells differ:"
        { diff "$1.cells" "$2.cells" || true; } | cut -c1-150 | sed -n 1,6p
        return
    fi
    cat > miter.ys << EOF
read_rtlil $1.logic
read_rtlil $2.logic
miter -equiv -flatten $1 $2 miter
hierarchy -top miter
flatten
setundef -zero -undriven
setundef -init -zero
techmap
opt_clean
aigmap
write_aiger miter.aig
EOF
    synthesizer miter.ys
    yosys-abc -c "read_aiger miter.aig; strash; zero; &get; &scorr; &put; dprove" > abc.log 2>&1 || true
    # The second of each is said where no state is left on one side only.
    if grep -Eq '^(Networks are equivalent\.|UNSATISFIABLE)' abc.log; then
        verdict=equal
    elif ! grep -E '^(Networks are (not equivalent|NOT EQUIVALENT)\.|SATISFIABLE)' abc.log; then
        fail "ABC decided nothing: $(tail -n 3 abc.log)"
    fi
}

as_written() { # NAME READ-VERILOG-ARGUMENTS
    cat << EOF
read_verilog -lib library/primitives.v
read_verilog $2
hierarchy -check -top Tarvo_ORIX_M1_Top
opt_clean
tee -q -o $1.pins select -list i:* o:* %i t:* %co1 %i
hierarchy -top Tarvo_ORIX_M1_Top -purge_lib
rename Tarvo_ORIX_M1_Top $1
write_rtlil $1.whole
design -reset
EOF
}

prove_vhdl() { # NETLIST; is it equal to the Verilog netlist?
    cp "$1" netlist.vhd
    ghdl --synth --std=93c --out=verilog netlist.vhd -e Tarvo_ORIX_M1_Top > ghdl.v 2> ghdl.log || fail "$(cat ghdl.log)"
    sed -nE 's/^  (TV_[A-Z0-9_]+|[)]) (_[0-9]+_) [(]$/\2/p' "$verilog" > cells
    awk -f proof/ghdl-verilog.awk cells ghdl.v > vhdl.v
    {
        as_written verilog "$verilog"
        as_written vhdl "boxes.v vhdl.v"
    } > as-written.ys
    synthesizer as-written.ys
    isolate /dev/null verilog vhdl
    compare verilog vhdl
}

verilog=ip/temp/tv_orix_m1/tarvo_orix_m1.vg
vhdl=ip/temp/tv_orix_m1/tarvo_orix_m1.vhg
awk '/^[(][*] blackbox [*][)]$/ { on = 1 } on { print } /^endmodule/ { on = 0 }' "$verilog" > boxes.v
cat > declarations.ys << 'EOF'
read_verilog -lib library/primitives.v
read_verilog boxes.v
write_rtlil declarations
EOF
synthesizer declarations.ys
prove_verilog "$verilog"
[[ $verdict == equal ]] || fail "the Verilog netlist differs from the sources"
prove_vhdl "$vhdl"
[[ $verdict == equal ]] || fail "the VHDL netlist differs from the Verilog netlist"
echo "proven equal"

for change in "$@"; do
    language=${change%%: *}
    sed -E "${change#*: }" "${!language}" > changed
    ! cmp -s "${!language}" changed || fail "nothing to change: $change"
    "prove_$language" changed
    [[ $verdict == different ]] || fail "not noticed: $change"
    echo "noticed: $change"
done
