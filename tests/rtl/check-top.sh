#!/usr/bin/env bash
# Elaborates the top module in one configuration and compares its ports with the expected ones.
#   check-top.sh ORIXM1 CASE
# CASE is a folder of cases/: the configuration, from which everything else is generated, and "blocks" (the blocks present: a
# file of pins/, and the name that replaces @ in it). "parameters", where there is one, names black boxes, and the values
# that their parameters must have.
# The ports are read twice, from Yosys and from the text that the Icarus preprocessor leaves, since the two tools
# carry macros from file to file in different ways; Icarus also elaborates the whole design.
set -u
here=$(cd "$(dirname "$0")" && pwd)
. "$here/configure.sh"
tmp=$(mktemp -d) || exit 2
trap 'rm -rf "$tmp"' EXIT
configure "${1:?orixm1}" "${2:?case}" "$tmp" || exit 2
case_dir=$here/cases/$2
top=Tarvo_ORIX_M1_Top
fail() { echo "FAILED: $*"; exit 1; }

# Expected ports: "direction name width", sorted.
while read -r block instance; do
    [[ -f $here/pins/$block.txt ]] || fail "no pin list for block $block"
    sed "s/@/${instance:-}/" "$here/pins/$block.txt"
done < "$case_dir/blocks" | sort > "$tmp/expected"
[[ -s $tmp/expected ]] || fail "empty list of expected ports"

# Yosys, the generated files last.
memories=$(awk '/define CM1_[ID]TCMSIZE/ && !/4.b0000/ { n++ } END { print n + 0 }' "$generated_dir/cm1_option_defs.v")
parameters=
if [[ -f $case_dir/parameters ]]; then
    while read -r module parameter value; do
        parameters+="select -assert-count 1 t:$module r:$parameter=$value %i"$'\n'
    done < "$case_dir/parameters"
fi
cat > "$tmp/check.ys" <<Y
read_verilog -I$generated_dir -I$rtl ${sources[*]} ${generated[*]}
hierarchy -check -top $top
proc
check -assert
$parameters
tee -q -o $tmp/yosys-ports dump $top/x:*
tribuf
flatten
opt -fast
memory -nomap
opt_clean
tee -q -o $tmp/memories select -list t:\$mem_v2
tee -q -o $tmp/contents dump t:\$mem_v2
select -assert-none t:\$mem
check -assert
write_verilog -noattr $tmp/netlist.v
Y
yosys -q -s "$tmp/check.ys" > "$tmp/yosys.log" 2>&1 || { tail -n 20 "$tmp/yosys.log"; fail "Yosys"; }
unexpected=$(grep -i warning "$tmp/yosys.log" | grep -v 'limited support for tri-state logic')
[[ -z $unexpected ]] || fail "warnings of Yosys: $unexpected"
cat > "$tmp/ports.awk" <<'A'
$1 == "wire" {
    width = 1; direction = ""
    for (i = 2; i <= NF; i++) {
        if ($i == "width") width = $(i + 1)
        if ($i == "input" || $i == "output" || $i == "inout") direction = $i
    }
    name = $NF; sub(/^\\/, "", name)
    if (direction != "") print direction, name, width
}
A
awk -f "$tmp/ports.awk" "$tmp/yosys-ports" | sort > "$tmp/from-yosys"
diff -u "$tmp/expected" "$tmp/from-yosys" || fail "ports that Yosys sees"
found=$(wc -l < "$tmp/memories")
if grep -q CM1_ITCM_INIT_EN "$generated_dir/cm1_option_defs.v"; then
    # The first four words of the byte lanes, as the program files have them: word n of lane l is l and n as nibbles.
    b=(0000 0001 0010 0011)
    contents_of() { # NAME: the initial contents of the array in that instance, from its highest bit on
        grep -A400 "cell .*mem_v2.*$1" "$tmp/contents" | grep -m1 -oE "INIT [0-9]+'[01x]+" | sed "s/.*'//"
    }
    for lane in 0 1 2 3; do
        init=$(contents_of "u_lane$lane")
        if [[ -z $init ]]; then # two lanes share an array
            init=$(contents_of "$( ((lane < 2)) && echo u_low || echo u_high)")
            (((lane & 1) == 0)) || init=${init:0:${#init} / 2}
        fi
        [[ $init == *"${b[lane]}${b[3]}${b[lane]}${b[2]}${b[lane]}${b[1]}${b[lane]}${b[0]}" ]] || fail "program of lane $lane"
    done
fi
(( memories == 0 ? found == 0 : found >= memories )) || fail "$found memories, expected at least $memories"

# The netlist is Verilog again, which another tool accepts.
boxes=()
for file in cortex_m1_core can_core triple_speed_mac ddr3_controller psram_interface trng_core; do
    boxes+=("$rtl/$file.v")
done
iverilog -g2005 -t null -I "$generated_dir" -I "$rtl" -s $top "$tmp/netlist.v" "${boxes[@]}" > "$tmp/netlist.log" 2>&1 \
    || { cat "$tmp/netlist.log"; fail "netlist"; }

# The ports again, with the macro files first (parameters outside of modules must stay last: Yosys adds them to every module
# that follows), read as SystemVerilog; and with every file as a unit of its own, without the macros of the others.
macros=("$generated_dir"/cm1_option_defs.v "$generated_dir"/ahb_option_defs.v "$generated_dir"/triple_speed_mac_define.v "$generated_dir"/DDR3_define.v)
{
    echo "read_verilog -sv -I$generated_dir -I$rtl ${macros[*]} ${sources[*]} $generated_dir/parameter.vh $generated_dir/triple_speed_mac_param.v"
    echo "hierarchy -check -top $top"
    echo "tee -q -o $tmp/yosys-ports-first dump $top/x:*"
} > "$tmp/first.ys"
{
    for file in "${sources[@]}" "${generated[@]}"; do
        echo "read_verilog -I$generated_dir -I$rtl $file"
        echo "design -reset-vlog"
    done
    echo "hierarchy -check -top $top"
    echo "tee -q -o $tmp/yosys-ports-units dump $top/x:*"
} > "$tmp/units.ys"
for order in first units; do
    yosys -q -s "$tmp/$order.ys" > "$tmp/yosys.log" 2>&1 || { tail -n 20 "$tmp/yosys.log"; fail "Yosys, $order"; }
    awk -f "$tmp/ports.awk" "$tmp/yosys-ports-$order" | sort > "$tmp/from-yosys"
    diff -u "$tmp/expected" "$tmp/from-yosys" || fail "ports that Yosys sees, $order"
done

# Icarus: one compilation unit, in which every macro lives on.  Parameters outside of modules need -g2012.
iverilog -g2005 -Wall -I "$generated_dir" -I "$rtl" -s $top -o "$tmp/a.out" "${sources[@]}" > "$tmp/icarus.log" 2>&1 \
    || { cat "$tmp/icarus.log"; fail "Icarus"; }
iverilog -g2012 -Wall -I "$generated_dir" -I "$rtl" -s $top -o "$tmp/a.out" "${generated[@]}" "${sources[@]}" \
    > "$tmp/icarus2.log" 2>&1 || { cat "$tmp/icarus2.log"; fail "Icarus, generated files first"; }
grep -i warning "$tmp"/icarus*.log && fail "warnings of Icarus"
for order in first last; do
    if [[ $order == first ]]; then list=("${generated[@]}" "${sources[@]}"); else list=("${sources[@]}" "${generated[@]}"); fi
    iverilog -g2012 -E -I "$generated_dir" -I "$rtl" -o "$tmp/flat.v" "${list[@]}" || fail "Icarus preprocessor"
    awk -v top=$top '
        $1 == "module" { inside = $2 == top }
        inside && /^ *\);/ { exit }
        inside {
            sub(/^ *,/, "")
            if ($1 != "input" && $1 != "output" && $1 != "inout") next
            width = 1
            if (match($0, /\[[0-9]+:0\]/)) width = substr($0, RSTART + 1, RLENGTH - 4) + 1
            print $1, $NF, width
        }' "$tmp/flat.v" | sort > "$tmp/from-icarus"
    diff -u "$tmp/expected" "$tmp/from-icarus" || fail "ports that Icarus sees, generated files $order"
done
echo "PASS: $(wc -l < "$tmp/expected") ports, $found memories"
