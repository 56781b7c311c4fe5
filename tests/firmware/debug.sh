#!/usr/bin/env bash
# A debugger at a program on the RTL of the example.
#   debug.sh session|strangers ORIXM1 DATA EXAMPLES MODEL MODULES
#   session: gdb halts, steps, reads and writes; the program does not notice
#   strangers: whoever else comes to the port, and ends of the simulator in the midst of it
set -euo pipefail
case=$1 orixm1=$2 data=$3 examples=$4 model=$5 modules=$6
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
tmp=$(mktemp -d)
simulator=
guard=(timeout -k 5 60)
cleanup() {
    # A guard hands SIGTERM on, and SIGKILL later; on its own death it would leave the simulator behind.
    if [[ -n $simulator ]]; then
        kill "$simulator" 2> /dev/null || true
        ((${#guard[@]} > 0)) || kill -KILL "$simulator" 2> /dev/null || true
        wait "$simulator" 2> /dev/null || true
    fi
    rm -rf "$tmp"
}
trap cleanup EXIT
cd "$tmp"
fail() {
    echo "FAILED: $*"
    for file in simulation gdb.log; do
        [[ ! -e $file ]] || { echo "--- $file"; cat $file; }
    done
    exit 1
}

"$orixm1" export "$examples/sensor-node.ipc" --out exported > log 2>&1 || { cat log; fail "export"; }
"$orixm1" generate "$examples/sensor-node.ipc" --no-synth --out "$tmp" > log 2>&1 || { cat log; fail "generation"; }
cp "$examples/sensor-node.ipc" .
sources=()
while read -r source; do
    [[ $(basename "$source") == cortex_m1_core.v ]] || sources+=("$source")
done < <("$orixm1" sources sensor-node.ipc)
iverilog -g2012 -s board -Itemp/tv_orix_m1 "-I$data/data/debug" -o board "${sources[@]}" "$model/cortex_m1_core_isa.v" "$here/board.v"
arm-none-eabi-gcc -mcpu=cortex-m1 -mthumb -std=c99 -Os -g3 -ffreestanding -nostdlib -Iexported -Iexported/drivers -L exported \
    -T tarvo_orix_m1.ld -o program.elf "$here/blocks.c" exported/*.c exported/drivers/*.c -lgcc

# Waits until the file has the text, as long as the simulator runs.
expect() { # FILE TEXT
    local turns=0
    until grep -qFs -- "$2" "$1"; do
        ((++turns < 2000)) && kill -0 "$simulator" 2> /dev/null || grep -qFs -- "$2" "$1" || fail "\"$2\" is missing in $1"
        read -rt 0.01 <> <(:) || true
    done
}

start() { # ARGUMENT…: the simulator; sets simulator and port
    rm -f simulation
    "${guard[@]}" vvp -n -M "$modules" -m cortexm1core board +firmware=program.elf "$@" > simulation 2>&1 &
    simulator=$!
    expect simulation "The program waits for gdb at 127.0.0.1:"
    port=$(sed -n 's/.*gdb at 127\.0\.0\.1:\([0-9]*\)$/\1/p' simulation)
    ((port > 0)) || fail "no port"
}

finish() { # TEXT: what the simulation printed at the end
    wait "$simulator" || fail "the simulator ended with $?"
    simulator=
    [[ $(tail -n +2 simulation) == "$1" ]] || fail "not the expected end"
}

debug() { # gdb with the commands of standard input
    { printf '%s\n' "set confirm off" "set pagination off" "set width 0" "target remote 127.0.0.1:$port"; cat; } > commands
    timeout 40 gdb-multiarch -nx -batch -x commands program.elf > gdb.log 2>&1 || fail "gdb ended with $?"
}

said() { # LINE…: gdb's output has lines like these patterns, in this order
    local line pattern=("$@")
    while read -r line; do
        # shellcheck disable=SC2053
        if ((${#pattern[@]} > 0)) && [[ $line == ${pattern[0]} ]]; then
            pattern=("${pattern[@]:1}")
        fi
    done < gdb.log
    ((${#pattern[@]} == 0)) || fail "gdb did not say: ${pattern[0]}"
}

if [[ $case == session ]]; then
    # SYS keeps the last address that gdb tried in vain for a back trace, in ERRINFO; the program wants none.
    start +gdb=0
    debug << 'COMMANDS'
info symbol $pc
tbreak main
continue
printf "PRIMASK %d CONTROL %d\n", $primask, $control
print failures
set var failures = 7
print failures
set var failures = 0
print /x *UART0
set var UART0->BAUDDIV = 100
print UART0->BAUDDIV
set var UART0->BAUDDIV = 16
stepi
info symbol $pc
next
watch ticks
continue
backtrace
delete
tbreak UART0_IRQHandler
continue
finish
set var *(unsigned *) 0x5000F010 = 3
continue
COMMANDS
    said "Reset_Handler in section *" "Temporary breakpoint 1, main *" "PRIMASK 0 CONTROL 0" '$1 = 0' '$2 = 7' \
        '$3 = {DATA = 0x0, STATUS = 0x0, CTRL = 0x0, BAUDDIV = 0x*, ID = 0x*}' '$4 = 100' "main + * in section *" \
        "Hardware watchpoint 2: ticks" "Old value = 0" "New value = 1" "#0 *SysTick_Handler*" '#* main *' \
        "Temporary breakpoint 3, UART0_IRQHandler *" "* in uart_enable_interrupts *" "*exited normally*"
    finish $'PASS\nBOARD PASS'

    # A reset by the debugger is a real one, which the board counts, and SYS: it keeps its cause, and the program's word.
    start +gdb=0
    debug << 'COMMANDS'
tbreak PendSV_Handler
continue
monitor reset
maintenance flush register-cache
info symbol $pc
tbreak main
continue
set var first_causes = 8
set var *(unsigned *) 0x5000F014 = 0
set var *(unsigned *) 0x5000F010 = 3
continue
COMMANDS
    said "Temporary breakpoint 1, PendSV_Handler *" "Reset_Handler in section *" "*exited normally*"
    grep -q "board: not seen: two resets" simulation || fail "no reset"
    wait "$simulator"
    simulator=
    exit
fi

# What comes and goes without a packet leaves the program waiting; of two only the first one is served.
start +gdb=0
listening=$(printf ':%04X 00000000:0000 0A' "$port")
[[ $(grep -hoE "[0-9A-F]+$listening" /proc/net/tcp /proc/net/tcp6) == "0100007F$listening" ]] || fail "it listens elsewhere"
exec 3<> "/dev/tcp/127.0.0.1/$port" 4<> "/dev/tcp/127.0.0.1/$port"
read -rt 10 -n 1 <&4 && fail "two debuggers at once"
(($? <= 1)) || fail "the second debugger has to wait"
printf '\xff\x00$$$#zz-$g#00}' >&3
read -rt 10 -n 1 answer <&3 || fail "no answer"
[[ $answer == - ]] || fail "$answer for noise"
exec 3>&- 4>&-
# One that has said something leaves in the midst of a packet: the program goes on.
exec 3<> "/dev/tcp/127.0.0.1/$port"
printf '$Z0,40,2#d8$?#3f' >&3
read -rt 10 -n 1 answer <&3 || fail "no second answer"
printf '$m2000' >&3
exec 3>&-
finish $'PASS\nBOARD PASS'

# Ctrl+C reaches a program that runs in a circle (at Reset_Handler, by an instruction that is written there).
request() { # PACKET: sends it and prints the reply
    local sum=0 i code answer
    for ((i = 0; i < ${#1}; ++i)); do
        printf -v code %d "'${1:i:1}"
        sum=$((sum + code))
    done
    printf '$%s#%02x' "$1" $((sum % 256)) >&3
    read -rt 10 -d '#' answer <&3 && read -rt 10 -n 2 <&3 && printf '%s' "${answer#*$}"
}
start +gdb=0
exec 3<> "/dev/tcp/127.0.0.1/$port"
place=$(request pf)
place=${place:6:2}${place:4:2}${place:2:2}${place:0:2}
[[ $(request "M$place,2:fee7") == OK ]] || fail "no instruction at $place"
printf '$c#63' >&3
read -rt 10 -n 1 answer <&3 && [[ $answer == + ]] || fail "it does not run"
printf '\x03' >&3
read -rt 10 -d '#' answer <&3 || fail "no answer to Ctrl+C"
[[ $answer == '$S02' ]] || fail "$answer for Ctrl+C"
exec 3>&-
kill "$simulator"
wait "$simulator" || true

# Killed by the debugger.
start +gdb=0
debug <<< kill
expect simulation "FAIL: the debugger has ended the program"
kill "$simulator" 2> /dev/null || true
wait "$simulator" || true

# Nothing is left of a simulator that is told to end while it waits, for a debugger or one that is silent.
guard=()
for signal in INT TERM HUP; do
    for company in none silent; do
        start +gdb=0
        if [[ $company == silent ]]; then
            exec 3<> "/dev/tcp/127.0.0.1/$port"
            printf '$?#3f' >&3
            read -rt 10 -n 5 answer <&3 || fail "no third answer"
        fi
        kill "-$signal" "$simulator"
        for ((turns = 0; turns < 1000; ++turns)); do
            kill -0 "$simulator" 2> /dev/null || break
            read -rt 0.01 <> <(:) || true
        done
        ((turns < 1000)) || fail "SIG$signal does not end the simulator ($company)"
        wait "$simulator" || true
        [[ $company == none ]] || exec 3>&-
    done
done
simulator=
guard=(timeout -k 5 60)

mistake() { # TEXT ARGUMENT…: a simulation that cannot begin
    local text=$1
    shift
    timeout 30 vvp -n -M "$modules" -m cortexm1core board +firmware=program.elf +finish "$@" > simulation 2>&1
    grep -qF -- "FAIL: $text" simulation || fail "\"$text\" is missing for $*"
}
for port in "" x -1 65536 123456 1x; do
    mistake "+gdb takes a port from 0 to 65535, not \"$port\"" "+gdb=$port"
done
for port in 0 x; do
    mistake "+gdb needs +tcm=model" "+gdb=$port" +tcm=rtl
done
start +gdb=0
taken=$port first=$simulator
mistake "the port $taken cannot be opened for a debugger: Address already in use" "+gdb=$taken"
kill "$first"
wait "$first" || true
simulator=
# Without the argument nobody listens.
vvp -n -M "$modules" -m cortexm1core board +firmware=program.elf > simulation &
simulator=$! looks=0
while kill -0 "$simulator"; do
    files=$(readlink /proc/"$simulator"/fd/*) || true # some may close meanwhile
    [[ $files != *socket:* ]] || fail "a socket without +gdb"
    [[ -z $files ]] || looks=$((looks + 1))
done 2> /dev/null
((looks > 0)) || fail "nobody has looked"
wait "$simulator" || fail "the simulator ended with $?"
simulator=
[[ $(cat simulation) == $'PASS\nBOARD PASS' ]] || fail "without a debugger"
