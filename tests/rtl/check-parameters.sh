#!/usr/bin/env bash
# Holds docs/block-parameters.md to the RTL: each row is of a parameter that its module has, and the rows of FULL are the sum that is its
# default; each parameter of a block that leaves something out has its row, or is named as one with a field in ID, and is measured in
# features.txt; and ID, read from the simulated module with the one thing left out, is as the row says.
#   check-parameters.sh RTL DOCUMENT REGISTERS
# RTL is the folder of the sources, REGISTERS that of the register descriptions. Success is a table of what was read.
set -u
here=$(cd "$(dirname "$0")" && pwd)
rtl=$(cd "${1:?folder of the RTL}" && pwd) document=${2:?document} registers=${3:?folder of the register descriptions}
tmp=$(mktemp -d) || exit 2
trap 'rm -rf "$tmp"' EXIT
status=0 read_ids=0
fail() { echo "FAILED: $*"; status=1; }

# BLOCK|BIT or NAME=VALUE|bit, field or nothing
awk -F' *\\| *' '/^\|/ { gsub(/`/, ""); if ($2 != "") block = $2; if (block ~ /_/) print block "|" $3 "|" $6 }' "$document" > "$tmp/rows"
(($(wc -l < "$tmp/rows") > 0)) || fail "no table in $document"
fielded=" $(tr '\n' ' ' < "$document" | grep -oE '(`[A-Z]+`,? (and )?)+(the depths of FIFOs )?have fields of their own' | grep -oE '[A-Z]{2,}' | grep -v FIFO | tr '\n' ' ')"
[[ -n ${fielded// /} ]] || fail "no parameters with fields of their own in $document"

parameters() { # MODULE: NAME=DEFAULT of what stands in its head
    sed -nE "/^module $1 #\(/,/^\)/p" "$rtl/$1.v" | sed 's://.*::' | grep -oE '\b[A-Z][A-Z_]* *= *[^,)]+' | tr -d ' '
}
field() { # MODULE FIELD: HIGH:LOW or BIT of the field in ID, which may be a plural
    awk -v field="\"name\": \"$2S?\"" '/"name": "ID"/ { on = 1 } on && $0 ~ field { sub(/.*"bits": "/, ""); sub(/".*/, ""); print; exit }' \
        "$(grep -l "\"module\": \"$1\"" "$registers"/*.json)"
}
declare -A id
read_id() { # MODULE [NAME=VALUE]…: sets id[MODULE NAME=VALUE] for the defaults and for each assignment alone
    local module=$1 bus=p number=0 address=FFC port assignment pins=
    grep -qE 'input.*\bHADDR\b' "$rtl/$module.v" && bus=h
    [[ $module == ahb_spi_flash ]] && address=1000FFC   # behind the window
    while read -r port; do
        case $port in
            PCLK|HCLK) pins+=".$port(clk), " ;;
            *RESETn) pins+=".$port(rstn), " ;;
            PSEL|PENABLE|HSEL) pins+=".$port(1'b1), " ;;
            PADDR|HADDR) pins+=".$port(32'h$address), " ;;
            HTRANS|HSIZE) pins+=".$port(2'd2), " ;;
            HREADY) [[ $bus == h ]] && pins+=".$port(ready), " ;;
            *) pins+=".$port(0), " ;;
        esac
    done < <(sed -nE '/^module /,/^\);/s/^ *input +wire +(\[[^]]*\] *)?([A-Za-z_0-9]+).*/\2/p' "$rtl/$module.v")
    {
        echo "module tb; reg clk = 0, rstn = 0; always #5 clk = ~clk; initial begin #42 rstn = 1; #1000 \$finish; end"
        for assignment in "" "${@:2}"; do
            number=$((number + 1))
            echo "if (1) begin : g$number wire [31:0] data; wire ready;"
            if [[ $bus == h && $module != apb_system ]]; then pins_out=".HRDATA(data), .HREADYOUT(ready)"; else pins_out=".PRDATA(data)"; fi
            echo "$module #(${assignment:+.${assignment%%=*}(${assignment#*=})}) dut ($pins$pins_out);"
            echo "initial #1000 \$display(\"$module${assignment:+ $assignment}|%0d\", data); end"
        done
        echo "endmodule"
    } > "$tmp/$module.v"
    iverilog -g2005 -s tb -I "$rtl" -y "$rtl" -o "$tmp/$module" "$tmp/$module.v" > "$tmp/log" 2>&1 || { fail "$module: $(head -n 3 "$tmp/log")"; return; }
    while IFS='|' read -r key value; do
        [[ $value =~ ^[0-9]+$ ]] || fail "$key: ID reads $value"
        id[$key]=$value
        read_ids=$((read_ids + 1))
    done < <(vvp -n "$tmp/$module" | grep '|')
}
bits() { # ID HIGH:LOW
    local high=${2%:*} low=${2#*:}
    echo $((($1 >> low) & ((1 << (high - low + 1)) - 1)))
}

while read -r block; do
    [[ -f $rtl/$block.v ]] || fail "there is no block $block"
done < <(cut -d'|' -f1 "$tmp/rows" | sort -u)
for source in "$rtl"/apb_*.v "$rtl"/ahb_*.v; do
    module=$(basename "$source" .v)
    declare -A default=()
    while IFS='=' read -r name value; do default[$name]=$value; done < <(parameters "$module")
    mapfile -t rows < <(grep "^$module|" "$tmp/rows")
    ((${#default[@]} + ${#rows[@]} > 0)) || continue
    left_out=() sum=0
    for row in "${rows[@]}"; do
        IFS='|' read -r _ what _ <<< "$row"
        if [[ $what == *=* ]]; then
            [[ -n ${default[${what%%=*}]:-} ]] || fail "$module has no parameter ${what%%=*}"
            left_out+=("$what")
        else
            (((what & (what - 1)) == 0 && what > 0 && (sum & what) == 0)) || fail "$module: $what is no bit of its own"
            sum=$((sum | what))
            left_out+=("FULL=$((${default[FULL]:-0} - what))")
        fi
    done
    [[ ${default[FULL]:-0} == "$sum" ]] || fail "$module: FULL is ${default[FULL]:-not there}, its rows are $sum"
    measured=$(awk -v block="$module" '$1 == block { print "," $2 "," }' "$here/features.txt")
    # What is there by default, and need not be; the others are sizes.
    for name in "${!default[@]}"; do
        [[ $name == FULL || ${default[$name]} == 1 ]] || continue
        [[ $measured == *",$name=0,"* ]] || fail "features.txt does not measure $module without $name"
        [[ $name != FULL ]] || continue
        if [[ $fielded == *" $name "* ]]; then left_out+=("$name=0"); else fail "$module: nothing is said of $name"; fi
    done
    # Who is not in a register description has no ID.
    if ! grep -q "\"module\": \"$module\"" "$registers"/*.json; then
        for row in "${rows[@]}"; do [[ -z ${row##*|} ]] || fail "$module has no ID: $row"; done
        continue
    fi
    ((${#left_out[@]} > 0)) || continue
    read_id "$module" "${left_out[@]}"
    whole=${id[$module]:-0}
    for row in "${rows[@]}"; do
        IFS='|' read -r _ what place <<< "$row"
        key=$what
        [[ $what == *=* ]] || key=FULL=$((${default[FULL]:-0} - what))
        without=${id[$module $key]:-0}
        if [[ $place =~ ^[0-9]+$ ]]; then
            [[ $(bits "$whole" "$place:$place")$(bits "$without" "$place:$place") == 01 ]] || fail "$module with $key: bit $place of ID"
        else
            place=$(field "$module" "${place%% *}")
            [[ -n $place && $(bits "$whole" "$place") != 0 && $(bits "$without" "$place") == 0 ]] || fail "$module with $key: field '${row##*|}' of ID"
        fi
        printf '%-15s %-12s %08x > %08x\n' "$module" "$key" "$whole" "$without"
    done
    for name in $fielded; do
        [[ ${default[$name]:-} == 1 ]] || continue
        place=$(field "$module" "$name")
        [[ -n $place && $(bits "$whole" "$place") != 0 && $(bits "${id[$module $name=0]:-0}" "$place") == 0 ]] || fail "$module: no field $name of ID"
        printf '%-15s %-12s %08x > %08x\n' "$module" "$name=0" "$whole" "${id[$module $name=0]:-0}"
    done
done
for name in $fielded; do grep -qE "parameter.*\b$name\b" "$rtl"/a[hp]b_*.v || fail "no block has a parameter $name"; done
((read_ids > 20)) || fail "few IDs were read"
exit $status
