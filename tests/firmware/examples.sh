#!/usr/bin/env bash
# Runs the programs of examples/firmware with the commands that the user guide names.
#   examples.sh CASE ORIXM1 DATA ROOT
#   run:PROGRAM[:OPTION…]     the guide's command, with further options (--engine=verilator, --model=netlist): it passes and
#                             prints what it has to
#   all:CONFIGURATION[:OPTION…]   the same for all programs of a configuration, one after the other
#   table                     the guide's table has each program once
#   mutants:PROGRAM           bits that are stuck in the RTL of the blocks that it uses are noticed by the program
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
PATH=$tmp/bin:$PATH
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
        scheduler) echo aabaabaab ;;
        watchdog) printf '%s\n' "power on" "reset by the watchdog" ;;
        clock) printf '%s\n' 11:59:59 12:00:00 12:00:01 ;;
        loopback) printf '%s\n' SPI UART1 "extension ports" ;;
        timers) printf '%s\n' "five periods" once ;;
        *) fail "nothing is known of the program $1" ;;
    esac
}
cycles() { echo 30000; }

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
        ((count > 1)) || fail "few programs with $configuration"
        ;;
    table)
        diff <(programs | sort) <(cd "$root/examples/firmware" && printf '%s\n' *.c | sed 's/\.c$//' | sort) ||
            fail "the guide's table and examples/firmware differ"
        ;;
    mutants)
        cp -r "$data" whole
        run "${case[1]}" --data whole
        count=0
        while read -r program file expression; do
            [[ $program == "${case[1]}" ]] || continue
            rm -rf changed
            cp -r whole changed
            for folder in changed/data/*/; do
                sed -i -E "$expression" "$folder$file"
                ! cmp -s "$folder$file" "whole${folder#changed}$file" || fail "$expression changes nothing in $file"
            done
            simulate "$program" --data changed
            # It was compiled and ran, and came to another end.
            grep -qE '^orixm1: (Passed|Failed|Time limit reached) after ' err || fail "$expression in $file: $(cat err)"
            ! passes "$program" || fail "$program does not notice $expression in $file"
            count=$((count + 1))
        done <<'END'
hello ahb_to_apb.v s/(assign PWDATA += HWDATA)/\1 \& 32'hFFFFFFEF/
hello apb_uart.v s/tx_buffer <= PWDATA\[7:0\]/tx_buffer <= PWDATA[7:0] | 8'h04/
blink ahb_gpio.v s/(4'd0: +r = level)/\1 | 16'h0800/
blink ahb_gpio.v s/gpio_out +<= gpio_out \| w/gpio_out <= gpio_out | (w \& 16'hFFBF)/
blink apb_timer.v s/(assign irq += )pend/\11'b0/
clock apb_timer.v s/value - 24'd1/(value - 24'd1) \& 24'hFFFFDF/
clock apb_rtc.v s/(wire \[31:0\] next = )(seconds [+] 32'd1)/\1(\2) \& 32'hFFFFFFFD/
clock apb_rtc.v s/part [+] 24'd1/(part + 24'd1) | 24'h000004/
watchdog apb_watchdog.v s/reset_req <= expire/reset_req <= 1'b0/
watchdog apb_watchdog.v s/(assign nmi += )pend/\11'b0/
loopback apb_spi.v s/\{24'd0, rx_data\}/{24'd0, rx_data | 8'h10}/
loopback spi_engine.v s/\{shift_in\[6:0\], miso\}/{shift_in[6:0], 1'b0}/
timers apb_dual_timer.v s/value - 32'd1/(value - 32'd1) | 32'h00000040/
timers apb_dual_timer.v s/oneshot, ie, en\} <= PWDATA\[2:0\]/oneshot, ie, en} <= PWDATA[2:0] \& 3'b011/
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
