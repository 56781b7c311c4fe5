#!/usr/bin/env bash
# Runs programs that are made from nothing but exported files on the RTL of the example.
#   run.sh blocks|mistakes|memories|memory-mistakes ORIXM1 DATA EXAMPLES MODEL MODULES
#   blocks: the program that reads and writes each block passes, and so do the board's own checks
#   mistakes: with one mistake in the exported files, or without what it needs, it does not
#   memories: it passes in the memories of the RTL too, of every kind that devices have, which have it from the start or are filled
#   memory-mistakes: with one mistake in those memories or their initial contents it does not
#   MODEL: folder with cortex_m1_core_isa.v; MODULES: folder with cortexm1core.vpi
set -euo pipefail
case=$1 orixm1=$2 data=$3 examples=$4 model=$5 modules=$6
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
cd "$tmp"
fail() { echo "FAILED: $*"; exit 1; }
# The rules of the buses are held: what breaks one is printed. The runs that are about memories or mistakes of a program have the same
# transfers, and are spared the time. The program of the former has to fit into small memories.
checkers=$data/simulation/checkers
rules=(-s bus_watch -DWATCHED=board.dut "-I$checkers" "-y$checkers")
watch=()
[[ $case != blocks ]] || watch=("${rules[@]}")
size=()
if [[ $case == memor* ]]; then
    watch=(-DFEW_BLOCKS)
    size=(-DFEW_BLOCKS -ffunction-sections -fdata-sections -Wl,--gc-sections)
fi

"$orixm1" export "$examples/sensor-node.ipc" --out exported > log 2>&1 || { cat log; fail "export"; }

build() { # [FOLDER]: the example's RTL, or that of another sensor-node.ipc, in the folder, and the board in a simulation
    local source board=$here/board.v
    sources=()
    (
        mkdir -p "${1:-.}"
        cd "${1:-.}"
        [[ -e sensor-node.ipc ]] || cp "$examples/sensor-node.ipc" .
        "$orixm1" generate sensor-node.ipc --no-synth --out "$PWD" > log 2>&1 || { cat log; fail "generation"; }
    ) || exit 1
    while read -r source; do
        [[ $(basename "$source") == cortex_m1_core.v ]] || sources+=("$source")
    done < <("$orixm1" sources "${1:-.}/sensor-node.ipc")
    ((${#sources[@]} > 20)) || fail "few sources"
    if grep -q '^Enable%20Debug=false' "${1:-.}/sensor-node.ipc"; then
        sed 's/^ *\.JTAG_3.*JTAG_15(srst),$//' "$here/board.v" > no-debug.v
        board=no-debug.v
    fi
    iverilog -g2012 -s board "${watch[@]}" "-I${1:-.}/temp/tv_orix_m1" "-I$data/data/debug" -o board "${sources[@]}" \
        ${watch[0]+"$checkers/bus_watch.v"} "$model/cortex_m1_core_isa.v" "$board"
}

compile() { # FOLDER [OPTION…]: the program from the files of an export
    local folder=$1
    shift
    arm-none-eabi-gcc -mcpu=cortex-m1 -mthumb -std=c99 -Os -g -ffreestanding -nostdlib -Wall -Wextra -Werror \
        "${size[@]}" "$@" "-I$folder" "-I$folder/drivers" -L "$folder" -T tarvo_orix_m1.ld -o program.elf \
        "$here/blocks.c" "$folder"/*.c "$folder"/drivers/*.c -lgcc
}

play() { # ARGUMENT…: prints what the simulation prints
    timeout 400 vvp -n -M "$modules" -m cortexm1core board "$@"
}

memories() { # the kinds of memory in the last simulation
    printf '%s\n' "${sources[@]}" | sed -nE 's/.*\/([id]tcm[^/]*)\.v$/\1/p' | sort | paste -sd ' '
}

if [[ $case == memories ]]; then
    # A device, whether there is debug, sizes of ITCM and DTCM, and the memories' files.
    known=
    while read -r device debug itcm dtcm kinds; do
        for initialized in true false; do
            rm -rf other
            mkdir other
            sed -E "s|^(target_device=).*|\1$device|; s|^(Enable%20Debug=).*|\1$debug|
                s|^(ITCM_Size=).*|\1$itcm|; s|^(DTCM_Size=).*|\1$dtcm|" "$examples/sensor-node.ipc" > other/sensor-node.ipc
            if [[ $dtcm != "$known" ]]; then # the program looks behind the end of the DTCM
                "$orixm1" export other/sensor-node.ipc --out exported > log 2>&1 || { cat log; fail "export"; }
                compile exported
                known=$dtcm
            fi
            program=+firmware=program.elf
            if $initialized; then
                "$orixm1" firmware program.elf other/sensor-node.ipc --initialize > log 2>&1 || { cat log; fail "itcm"; }
                program=
            fi
            build other
            [[ $(memories) == "$kinds" ]] || fail "$device has other memories: $(memories)"
            result=$(play +tcm=rtl $program)
            [[ $result == $'PASS\nBOARD PASS' ]] || fail "$kinds, initialized: $initialized: $result"
        done
    done <<'END'
TV2KR-18C-QFN88P-C8/I7 true 3 3 dtcmdbg itcmdbg_2kc
TV3K-10A-LQFP144-C8/I7 false 4 3 dtcm_3k itcm_3k
TV5K-25A-MBGA121N-C2/I1 false 5 3 dtcm_5k itcm_5k
TV2KR-18C-QFN88P-C8/I7 false 4 4 dtcm itcm
TV5K-25A-MBGA121N-C2/I1 true 3 4 dtcmdbg itcmdbg
END
    exit 0
fi

if [[ $case == memory-mistakes ]]; then
    compile exported
    cp "$examples/sensor-node.ipc" .
    "$orixm1" firmware program.elf sensor-node.ipc --initialize > log 2>&1 || { cat log; fail "itcm"; }
    build
    result=$(play +tcm=rtl)
    [[ $result == $'PASS\nBOARD PASS' ]] || fail "$result"
    result=$(play +tcm=elsewhere)
    [[ $result == *"FAIL: +tcm=elsewhere is neither +tcm=model nor +tcm=rtl"* ]] || fail "$result"

    # A byte of the address at which the program begins.
    cp -r itcm good
    for lane in 0 1 2 3; do
        byte=$(sed -n 2p "good/itcm$lane")
        sed -i "2s/.*/$(printf '%02x' $((0xFF ^ 0x$byte)))/" "itcm/itcm$lane"
        result=$(play +tcm=rtl)
        [[ $result != *"BOARD PASS"* ]] || fail "lane $lane is not noticed"
        cp "good/itcm$lane" itcm
    done
    sed -i '2s/.*/xx/' itcm/itcm2
    result=$(play +tcm=rtl)
    [[ $result == *"FAIL: the read from 0x00000004 brings unknown bits, 0x00FF0000 (at 0x00000000)"* ]] || fail "$result"
    cp good/itcm2 itcm

    broken() { # FILE EXPRESSION: a mistake of a memory, which only the program in the RTL can notice
        local i
        for i in "${!sources[@]}"; do
            [[ $(basename "${sources[i]}") != "$1" ]] || break
        done
        sed -E "$2" "${sources[i]}" > broken.v
        ! cmp -s broken.v "${sources[i]}" || fail "$2 changes nothing in $1"
        iverilog -g2012 -s board "${watch[@]}" -Itemp/tv_orix_m1 "-I$data/data/debug" -o board "${sources[@]:0:i}" broken.v \
            "${sources[@]:i+1}" "$checkers/bus_watch.v" "$model/cortex_m1_core_isa.v" "$here/board.v"
        result=$(play +tcm=rtl)
        [[ $result != *"BOARD PASS"* ]] || fail "$2 is not noticed in $1"
        result=$(play +firmware=program.elf)
        [[ $result == $'PASS\nBOARD PASS' ]] || fail "$2 is noticed without the memory: $result"
    }
    broken dtcmdbg.v 's/\.we\(we\)/.we({we[3:2], we[0], we[0]})/'
    broken tcm_ram.v 's/8\*n \+: 8\] <= wdata\[8\*n/8*n +: 8] <= wdata[8*(n ^ (\&we))/'
    broken dtcmdbg.v 's/core_addr\[AW-1:0\]/core_addr[AW-1:0] \& ~4/'
    exit 0
fi
build

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
    compile changed -DENDS_AT_A_FAILURE 2> log || { cat log; fail "$2 does not compile"; }
    result=$(play +firmware=program.elf)
    [[ $result != *"BOARD PASS"* ]] || fail "$2 is not noticed in $1"
}
# A block at another place, one of each kind of bus.
mistake tarvo_orix_m1.h 's/^(#define UART1_BASE +)0x50005000u/\10x50006000u/'
mistake tarvo_orix_m1.h 's/^(#define AHB1_BASE +)0x80000000u/\10x80000040u/'
# Interrupts of other numbers.
mistake tarvo_orix_m1.h 's/EXTINT1_IRQn = 13/EXTINT1_IRQn = 11/'
# Another place of a field.
mistake tarvo_orix_m1.h 's/^(#define I2C_FIFO_STOP_Msk +).*/\10x40000u/'
# A driver that forgets to wait.
mistake drivers/spi.c 's/SPI_STATUS_DONE_Msk/SPI_STATUS_BUSY_Msk/'
# A driver that forgets to clear.
mistake drivers/sys.c 's/sys->RESETCAUSE = causes;//'
mistake drivers/sys.c 's/sys->ERRINFO = SYS_ERRINFO_VALID_Msk \| /sys->ERRINFO = /'
# Two handlers in each other's place.
mistake startup_tarvo_orix_m1.c 's/SVC_Handler, /@/; s/PendSV_Handler, /SVC_Handler, /; s/@/PendSV_Handler, /'

breaks() { # RULE FILE EXPRESSION: a change of the RTL that breaks a rule of a bus, which the run names
    local i
    for i in "${!sources[@]}"; do
        [[ $(basename "${sources[i]}") != "$2" ]] || break
    done
    sed -E "$3" "${sources[i]}" > broken.v
    ! cmp -s broken.v "${sources[i]}" || fail "$3 changes nothing in $2"
    iverilog -g2012 -s board "${rules[@]}" -Itemp/tv_orix_m1 "-I$data/data/debug" -o board "${sources[@]:0:i}" broken.v \
        "${sources[@]:i+1}" "$checkers/bus_watch.v" "$model/cortex_m1_core_isa.v" "$here/board.v"
    result=$(play +firmware=program.elf)
    [[ $result == *"failed: bus rule: $1 ("* ]] || fail "$3 in $2 does not break \"$1\""
}
compile exported
breaks "PSTRB is 0 in reads" ahb_to_apb.v "s/HWRITE [?] lanes : 4'd0/lanes/"
breaks "PSLVERR is known with PREADY" apb_uart.v "s/(PSLVERR +=) 1'b0/\1 1'bx/"
breaks "an error response has a first cycle" ahb_gpio.v "s/(HRESP +=) 1'b0/\1 active/"
