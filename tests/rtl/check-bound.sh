#!/usr/bin/env bash
# The checkers are bound in: with a module that breaks a rule of its bus, its testbench says which rule it is. That of whole
# subsystems stands in tests/firmware.
#   check-bound.sh ORIXM1 RTL
# RTL is the folder of the variants.
set -u
here=$(cd "$(dirname "$0")" && pwd)
orixm1=$1 variants=$(cd "$2" && pwd)
tmp=$(mktemp -d) || exit 2
trap 'rm -rf "$tmp"' EXIT
fail() { echo "FAILED: $*"; exit 1; }

broken() { # TESTBENCH RULE FILE SED-SCRIPT
    local file
    rm -rf "$tmp/variants"
    cp -rL "$variants" "$tmp/variants"
    chmod -R u+w "$tmp/variants"
    for file in "$tmp"/variants/*/"$3"; do
        sed -i -E "$4" "$file"
        ! cmp -s "$file" "$variants/$(basename "$(dirname "$file")")/$3" || fail "nothing to change: $3: $4"
    done
    UNTIL="failed: bus rule: $2 (" "$here/run-testbench.sh" "$orixm1" "$tmp/variants" "$1" > "$tmp/log" 2>&1 && fail "$1 passes with $3: $4"
    grep -qF "failed: bus rule: $2 (" "$tmp/log" || fail "$1 does not name the rule that $3 breaks ($4):
$(head -n 10 "$tmp/log")"
}
broken uart "PSLVERR is known with PREADY" apb_uart.v "s/(PSLVERR +=) 1'b0/\1 1'bx/"
broken gpio "a slave that is not asked says ready and OKAY" ahb_gpio.v "s/(HRESP +=) 1'b0/\1 irq/"
broken apb-bridge "HRDATA is known where it is read" ahb_to_apb.v "s/(HRDATA +=) PRDATA/\1 PRDATA | {31'd0, 1'bx}/"
broken interconnect "an error response has a first cycle" ahb_default_slave.v "s/HREADYOUT = ~first/HREADYOUT = 1'b1/"
echo PASS
