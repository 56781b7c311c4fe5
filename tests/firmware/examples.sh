#!/usr/bin/env bash
# Runs the programs of examples/firmware with the commands that the user guide names.
#   examples.sh CASE ORIXM1 DATA ROOT
#   run:PROGRAM[:OPTION…]     the guide's command, with further options (--engine=verilator, --model=netlist): it passes and
#                             prints what it has to
#   all:CONFIGURATION[:OPTION…]   the same for all programs of a configuration, one after the other; with storage-node files, too
#   table                     the guide's table has each program once
#   mutants:PROGRAM[:COUNT]   bits that are stuck in the RTL of the blocks that it uses are noticed by the program; the first COUNT
#   files[:OPTION…]           what a program leaves in a file is there for its next run; a card's files in several pieces
#   own                       the guide's way to a program of one's own
#   elf                       the guide's way to end a program that is compiled already
#   long[:OPTION…]            all programs; by hand for what takes too long, as examples.sh long:--model=netlist …
#   DATA: the IP's data folder as it is built; ROOT: the checkout
set -euo pipefail
IFS=: read -r -a case <<<"$1"
orixm1=$2 data=$3 root=$4
options=()
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
cd "$tmp"
fail() { echo "FAILED: $*"; exit 1; }

mkdir bin
ln -s "$orixm1" bin/orixm1
export PATH=$tmp/bin:$PATH XDG_CACHE_HOME=${TARVO_TEST_CACHE:-$tmp/cache}
ln -s "$root/examples" examples
guide=$root/docs/user-guide.md

# The guide's table: program, what it shows, command.
rows() { sed -nE 's/^\| `([a-z0-9-]+)\.c` \|.*\| `(.*)` \|$/\1|\2/p' "$guide"; }
command_of() { rows | sed -n "s/^$1|//p"; }
programs() { rows | cut -d'|' -f1; }

# What each one prints, and the clock cycles that it may take.
expected() {
    case $1 in
        hello) echo "hello, world" ;;
        blink) ;;
        echo) cat "$root/examples/firmware/note.txt" ;;
        scheduler) echo aabaabaab ;;
        watchdog) printf '%s\n' "power on" "reset by the watchdog" ;;
        clock) printf '%s\n' 11:59:59 12:00:00 12:00:01 ;;
        loopback) printf '%s\n' SPI UART1 "extension ports" ;;
        timers) printf '%s\n' "five periods" once ;;
        i2c-eeprom) echo "start 001" ;;
        flash-reader)
            printf '%s\n' "flash A0 01 14 1-4-4" "$(head -n 1 "$root/examples/firmware/note.txt")" written ;;
        sd-files)
            echo "NOTE.TXT $(wc -c <"$root/examples/firmware/note.txt")"
            cat "$root/examples/firmware/note.txt" ;;
        *) fail "nothing is known of the program $1" ;;
    esac
}
limit=
cycles() { if [[ -n $limit ]]; then echo "$limit"; elif [[ $1 == sd-files ]]; then echo 1000000; else echo 30000; fi; }

# Runs the guide's command for a program with further options; what it prints is in the files out and err.
simulate() { # PROGRAM OPTION…
    local program=$1 command
    command=$(command_of "$program")
    [[ -n $command ]] || fail "the guide has no command for $program"
    shift
    status=0
    bash -ec "$command --timeout $(cycles "$program") ${*@Q}" >out 2>err || status=$?
}
passes() { # whether the last run did what the program has to do
    [[ $status == 0 ]] && expected "$1" | cmp -s - out
}
run() { # PROGRAM OPTION…
    simulate "$@"
    passes "$1" || fail "$*: status $status, prints:
$(cat out err)"
}

# What a program leaves in a file, and finds in one.
files() { # OPTION…
    local options=(--timeout 3000000 "$@")
    eeprom() { # FROM TO
        orixm1 simulate examples/storage-node.ipc --eeprom "$1" --eeprom-result "$2" --c examples/firmware/i2c-eeprom.c \
            "${options[@]}" 2>err || fail "$(cat err)"
    }
    # Memories of up to 2 KB have other addresses.
    { printf '%016d' 0; printf 's009\214\317\317\306'; head -c 4072 /dev/zero; } >ninth
    [[ $(eeprom ninth tenth) == "start 010" && $(eeprom tenth next) == "start 011" ]] || fail "the next starts"
    head -c 4096 /dev/zero >blank
    [[ $(eeprom blank first) == "start 001" ]] || fail "a memory without a record"
    orixm1 simulate examples/storage-node.ipc --flash-result flash --c examples/firmware/flash-reader.c "${options[@]}" \
        >out 2>err || fail "$(cat err)"
    [[ $(od -An -v -tx1 -j4096 -N16 flash | tr -d ' \n') == 00000000000000000000000000000000 ]] || fail "the flash"
    seq 400 >long.txt # four blocks
    seq -f 'other %g' 100 >other
    bash examples/firmware/make-card.sh card.img long.txt other
    orixm1 simulate examples/storage-node.ipc --sd card.img --c examples/firmware/sd-files.c "${options[@]}" >out 2>err ||
        fail "$(cat out err)"
    diff <(printf '%s\n' "LONG.TXT $(wc -c <long.txt)" "OTHER $(wc -c <other)" && cat long.txt) out || fail "a long file"
}

case ${case[0]} in
    run)
        run "${case[@]:1}"
        ;;
    all | long)
        options=("${case[@]:1}")
        configuration=
        if [[ ${case[0]} == all ]]; then
            configuration=${options[0]}
            options=("${options[@]:1}")
        fi
        count=0
        for program in $(programs); do
            [[ $(command_of "$program") == *" examples/${configuration:-*}.ipc "* || -z $configuration ]] || continue
            run "$program" "${options[@]}"
            echo "$program: $(sed -n 's/^orixm1: \(Passed .*\)/\1/p' err)"
            count=$((count + 1))
        done
        ((count > 0)) || fail "no programs with $configuration"
        [[ $configuration != storage-node ]] || files "${options[@]}"
        ;;
    files)
        files "${case[@]:1}"
        ;;
    table)
        diff <(programs | sort) <(cd "$root/examples/firmware" && printf '%s\n' *.c | sed 's/\.c$//' | sort) ||
            fail "the guide's table and examples/firmware differ"
        ;;
    mutants)
        cp -r "$data" whole
        [[ ${case[1]} != hello ]] || run hello --data whole # a copy is as good
        # A quarter more than the unchanged RTL takes is enough. The program itself is to notice, not the rules of the buses.
        run "${case[1]}" --engine=verilator
        limit=$(($(sed -nE 's/^orixm1: Passed after ([0-9]+) clock cycles.*/\1/p' err) * 5 / 4))
        ((limit > 0)) || fail "no number of clock cycles: $(cat err)"
        options=(--no-checks)
        [[ ${case[1]} != sd-files ]] || options+=(--engine=verilator) # the longest
        count=0
        while read -r program file expression; do
            [[ $program == "${case[1]}" ]] || continue
            rm -rf changed
            cp -r whole changed
            for folder in changed/data/*/; do
                sed -i -E "$expression" "$folder$file"
                ! cmp -s "$folder$file" "whole${folder#changed}$file" || fail "$expression changes nothing in $file"
            done
            simulate "$program" --data changed "${options[@]}"
            # It was compiled and ran, and came to another end.
            grep -qE '^orixm1: (Passed|Failed|Time limit reached) after ' err || fail "$expression in $file: $(cat err)"
            ! passes "$program" || fail "$program does not notice $expression in $file"
            count=$((count + 1))
            [[ $count != "${case[2]-}" ]] || break
        done <<'END'
hello ahb_to_apb.v s/(assign PWDATA += HWDATA)/\1 \& 32'hFFFFFFEF/
hello apb_uart.v s/tx_shift  <= [{]HAS_FORMAT.*[}]/& | 9'h004/
echo apb_uart.v s/is_break \| is_wrong, rx_shift/is_break | is_wrong, rx_shift | 9'h020/
echo apb_uart.v s/\(ctrl\[3\] & rx_reached\)/1'b0/
echo apb_uart.v s/(assign timed_out = ).*;/\11'b0;/
loopback apb_uart.v s/(wire rx +=) loop \? tx_line :/\1/
loopback apb_uart.v s/PWDATA\[8\] \& PSTRB\[1\]/1'b0/
blink ahb_gpio.v s/(4'd0: +r = \{4'd0, level)/\1 | 16'h0800/
blink ahb_gpio.v s/\(HWDATA\[15:0\] \& HWDATA\[31:16\]\)/(HWDATA[15:0] \& HWDATA[31:16] \& 16'hFFBF)/
blink ahb_gpio.v s/(steady\[k\] <= pin\[k\])/\1 | (k == 10)/
blink apb_timer.v s/(assign irq += )\(pend\[0\]/\1(1'b0/
clock apb_timer.v s/value - 24'd1/(value - 24'd1) \& 24'hFFFFDF/
clock apb_rtc.v s/(wire \[31:0\] next = )(seconds [+] 32'd1)/\1(\2) \& 32'hFFFFFFFD/
clock apb_rtc.v s/part [+] 24'd1/(part + 24'd1) | 24'h000004/
watchdog apb_watchdog.v s/reset_req <= expire/reset_req <= 1'b0/
watchdog apb_watchdog.v s/(assign nmi += )pend/\11'b0/
watchdog apb_system.v s/[{]reset_cause, /{4'd0, /
watchdog apb_system.v s/scratch <= [(]scratch & ~mask[)]/scratch <= 32'd0;\/\/ /
loopback apb_spi.v s/[?] rx_oldest/& | 8'h10/
loopback apb_spi.v s/top_bit <= top_written/top_bit <= top_written \& 6'h3E/
loopback spi_word_shifter.v s/(loop \? mosi : )miso/\11'b0/g
loopback spi_word_shifter.v s/(loop \? )mosi/\11'b1/g
timers apb_dual_timer.v s/value - 32'd1/(value - 32'd1) | 32'h00000040/
timers apb_dual_timer.v s/oneshot, ie, en\} <= PWDATA\[2:0\]/oneshot, ie, en} <= PWDATA[2:0] \& 3'b011/
i2c-eeprom apb_i2c.v s/wdata\(shift_in\)/wdata(shift_in | 8'h08)/
i2c-eeprom apb_i2c.v s/txdata : q_byte, 1'b1/txdata : q_byte \& 8'hFD, 1'b1/
flash-reader ahb_spi_flash.v s/(2'd1: assembled\[15:8\] +<= )rx/\1rx \& 8'hBF/
flash-reader ahb_spi_flash.v s/(2'd2: assembled\[23:16\] +<= )rx/\1rx | 8'h01/
sd-files apb_sdcard.v s/card +<= ~card/card <= 1'b0/
sd-files sd_sequencer.v s/(push_word += \{)rx/\1(rx | 8'h80)/
sd-files sd_sequencer.v s/crc7\[2\] \^ in7/crc7[2]/
sd-files sd_sequencer.v s/crc16\[11\] \^ in16/crc16[11]/
END
        ((count > 0)) || fail "no mutants of ${case[1]}"
        ;;
    own)
        # Of the three commands the first installs the compiler.
        sed -n '/^### From a clone to a program/,/^### /p' "$guide" >section
        sed -n '/^```sh$/,/^```$/p' section | sed '/^```/d' >commands
        sed -n '/^```c$/,/^```$/p' section | sed '/^```/d' >main.c
        [[ $(wc -l <commands) == 3 ]] || fail "not three commands"
        [[ $(<"$root/README.md") == *"$(<commands)"* ]] || fail "README.md has other commands"
        [[ $(sed -n 's|^sudo apt-get install.* gcc-arm-none-eabi|&|p; q' commands) ]] || fail "the compiler is not installed"
        sed -n 's|^\./run |orixm1 |p' commands >ours
        [[ $(wc -l <ours) == 2 ]] || fail "not two commands of ours"
        mkdir empty
        mv main.c empty
        cd empty
        bash -euo pipefail ../ours >../out 2>../err || fail "$(cat ../out ../err)"
        [[ $(sed -n 's/.*print("\(.*\)\\n");/\1/p' main.c) == "$(tail -n 1 ../out)" ]] || fail "prints $(cat ../out)"
        ;;
    elf)
        sed -n '/^```c$/,/^```$/p' "$guide" | sed -n '/end_simulation/,/^}/p' | head -n 30 >end.h
        grep -q bkpt end.h || fail "the guide does not say how a program ends"
        orixm1 export examples/sensor-node.ipc --out made >log 2>&1 || fail "$(cat log)"
        for value in 0 1; do
            printf '#include "end.h"\nint main(void) { end_simulation(%d); return 0; }\n' $value >main.c
            arm-none-eabi-gcc -mcpu=cortex-m1 -mthumb -Os -Wall -Werror -nostartfiles -Imade -Imade/drivers -Lmade \
                -Ttarvo_orix_m1.ld main.c made/*.c made/drivers/*.c -o main.elf
            status=0
            orixm1 simulate examples/sensor-node.ipc --firmware main.elf --timeout 60000 >out 2>err || status=$?
            [[ $status == "$value" ]] || fail "ended with $value: status $status, $(cat out err)"
        done
        ;;
    *)
        fail "no case ${case[0]}"
        ;;
esac
