#!/usr/bin/env bash
# Runs programs that are made from nothing but exported files on the RTL of the example.
#   run.sh blocks|mistakes ORIXM1 DATA EXAMPLES MODEL MODULES
#   blocks: the program that reads and writes each block passes, and so do the board's own checks
#   mistakes: with one mistake in the exported files, or without what it needs, it does not
#   MODEL: folder with cortex_m1_core_isa.v; MODULES: folder with cortexm1core.vpi
set -euo pipefail
case=$1 orixm1=$2 data=$3 examples=$4 model=$5 modules=$6
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
cd "$tmp"
fail() { echo "FAILED: $*"; exit 1; }

"$orixm1" export "$examples/sensor-node.ipc" --out exported > log 2>&1 || { cat log; fail "export"; }
"$orixm1" generate "$examples/sensor-node.ipc" --no-synth --out "$tmp" > log 2>&1 || { cat log; fail "generation"; }
cp "$examples/sensor-node.ipc" .
sources=()
while read -r source; do
    [[ $(basename "$source") == cortex_m1_core.v ]] || sources+=("$source")
done < <("$orixm1" sources sensor-node.ipc)
((${#sources[@]} > 20)) || fail "few sources"
iverilog -g2012 -s board -Itemp/tv_orix_m1 "-I$data/data/debug" -o board "${sources[@]}" "$model/cortex_m1_core_isa.v" "$here/board.v"

compile() { # FOLDER: the program from the files of an export
    arm-none-eabi-gcc -mcpu=cortex-m1 -mthumb -std=c99 -Os -g -ffreestanding -nostdlib -Wall -Wextra -Werror \
        "-I$1" "-I$1/drivers" -L "$1" -T tarvo_orix_m1.ld -o program.elf \
        "$here/blocks.c" "$1"/*.c "$1"/drivers/*.c -lgcc
}

play() { # prints what the simulation prints
    timeout 100 vvp -n -M "$modules" -m cortexm1core board "$@"
}

if [[ $case == blocks ]]; then
    compile exported
    result=$(play +firmware=program.elf)
    [[ $result == $'PASS\nBOARD PASS' ]] || fail "$result"
    result=$(CORTEXM1_FIRMWARE=program.elf play)
    [[ $result == $'PASS\nBOARD PASS' ]] || fail "named by the environment: $result"
    exit 0
fi

expect() { # TEXT ARGUMENT…: a simulation that ends with a reason
    local text=$1
    shift
    result=$(play "$@")
    [[ $result == *"$text"* ]] || fail "\"$text\" is missing in: $result"
    [[ $result != *PASS* ]] || fail "$* passed: $result"
}
expect "FAIL: no program is named"
expect 'FAIL: "missing.elf" cannot be read' +firmware=missing.elf
expect 'FAIL: "log" is no ELF file' +firmware=log

mistake() { # FILE EXPRESSION: a change of an exported file that the program must notice
    rm -rf changed
    cp -r exported changed
    sed -i -E "$2" "changed/$1"
    ! cmp -s "changed/$1" "exported/$1" || fail "$2 changes nothing in $1"
    compile changed 2> log || { cat log; fail "$2 does not compile"; }
    result=$(play +firmware=program.elf)
    [[ $result != *"BOARD PASS"* ]] || fail "$2 is not noticed in $1"
}
# A block at another place, one of each kind of bus.
mistake tarvo_orix_m1.h 's/^(#define UART1_BASE +)0x50005000u/\10x50006000u/'
mistake tarvo_orix_m1.h 's/^(#define AHB1_BASE +)0x80000000u/\10x80000040u/'
# Interrupts of other numbers.
mistake tarvo_orix_m1.h 's/EXTINT1_IRQn = 13/EXTINT1_IRQn = 11/'
# Another place of a field.
mistake tarvo_orix_m1.h 's/^(#define I2C_COMMAND_STOP_Msk +).*/\10x4u/'
# A driver that forgets to wait.
mistake drivers/spi.c 's/SPI_STATUS_DONE_Msk/SPI_STATUS_BUSY_Msk/'
# Two handlers in each other's place.
mistake startup_tarvo_orix_m1.c 's/SVC_Handler, /@/; s/PendSV_Handler, /SVC_Handler, /; s/@/PendSV_Handler, /'
