#!/usr/bin/env bash
# The processor's bus-functional models, in Verilog and in VHDL, and the processor's model with the same scripts: all of them print
# the same lines.
#   scripts.sh example|bus SHARE OUT EXAMPLES [MODEL]
# SHARE is the folder of the installed data, OUT what `models.sh generate` made, MODEL the folder of the processor's model.
#   example: on the example's simulation models
#   bus: on a memory with wait states and errors; the buses show the same in every cycle, too
set -euo pipefail
case=$1 share=$2 out=$3 examples=$4 model=${5:-}
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
cd "$tmp"
fail() { echo "FAILED: $*"; exit 1; }
bfm=$share/tarvo_orix_m1/simulation/cortex_m1_core_bfm.v
net=$out/node/tarvo_orix_m1

analyse() { # STANDARD BOARD.vhd ENTITY...: what stands before the model
    local standard=$1 board=$2
    shift 2
    rm -rf "work$standard" && mkdir "work$standard"
    local said
    for file in "$@" "${bfm}hd" "$board"; do
        said=$(ghdl -a "--std=$standard" "--workdir=work$standard" "$file" 2>&1) || fail "$file: $said"
        [[ -z $said ]] || fail "$file: $said"
    done
}

verilog() { # SCRIPT
    timeout 250 vvp -n sim "+script=$1" +finish 2>&1
}
vhdl() { # SCRIPT [STANDARD]
    timeout 250 ghdl -r "--std=${2:-93}" "--workdir=work${2:-93}" "$top" "-gscript=$1" 2>&1 || fail "$1: the simulation"
}

core() { # SCRIPT [ARGUMENT…]
    timeout 250 vvp -n -M "$model" -m cortexm1core sim-core "+script=$1" +finish "${@:2}" 2>&1
}
# What a bus-functional model prints, as the processor's model says it.
as_core() { # SCRIPT
    sed -E "s/^[a-z0-9_.]+: line ([0-9]+): /${1//\//\\/}:\1: /; s/^[a-z0-9_.]+: ([^ ]+): line ([0-9]+): /\1:\2: /
        s/^[a-z0-9_.]+: (the script .*)/\1/"
}
trace() { # NAME: keeps what the buses have shown
    [[ ! -e trace ]] || mv trace "trace-$1"
}

both() { # SCRIPT: prints what both models print
    local first second third memories
    first=$(verilog "$1")
    trace verilog
    second=$(vhdl "$1")
    trace vhdl
    [[ $first == "$second" ]] || { diff <(echo "$first") <(echo "$second") || true; fail "$(head -n 30 "$1"): the models differ"; }
    # The board without memories answers for them.
    for memories in ${model:+model rtl}; do
        [[ $memories == rtl || $top == sensor_node_tb ]] || continue
        third=$(core "$1" "+tcm=$memories")
        trace core
        [[ $(as_core "$1" <<< "$first") == "$third" ]] ||
            { diff <(as_core "$1" <<< "$first") <(echo "$third") || true; fail "$(head -n 30 "$1"): the processor's model differs"; }
        [[ ! -e trace-core ]] || cmp trace-verilog trace-core ||
            fail "$(head -n 30 "$1"): the buses differ: $(diff trace-verilog trace-core | head)"
    done
    echo "$first"
}

script=script
expect() { # TEXT LINE…: the script of these lines must fail, and say so with the text
    local text=$1
    shift
    printf '%s\n' "$@" > $script
    local result
    result=$(both $script) || fail "$result"
    [[ $(tail -n 1 <<< "$result") == FAIL:* ]] || fail "$* passed: $result"
    [[ $result == *"$text"* ]] || fail "$*: \"$text\" is missing in: $result"
}
pass() { # LINE…
    printf '%b\n' "$@" > $script
    local result
    result=$(both $script) || fail "$result"
    [[ $result == PASS ]] || fail "$*: $result"
}

if [[ $case == example ]]; then
    top=sensor_node_tb
    iverilog -g2005 -Wall -DHAVE_CortexM1Core -s $top -o sim "$net.vo" "$bfm" "$examples/sensor-node-tb.v"
    [[ -z $model ]] || iverilog -g2005 -Wall -DHAVE_CortexM1Core -s $top -o sim-core "$net.vo" "$model/cortex_m1_core_isa.v" \
        "$examples/sensor-node-tb.v"
    analyse 93 "$examples/sensor-node-tb.vhd" "$net.vho"
    analyse 08 "$examples/sensor-node-tb.vhd" "$net.vho"
    [[ $(both "$examples/sensor-node-tb.play") == PASS ]] || fail "the example: $(verilog "$examples/sensor-node-tb.play")"
    [[ $(vhdl "$examples/sensor-node-tb.play" 08) == PASS ]] || fail "VHDL of 2008"
    # The mistakes one after the other: the start of a simulation takes long.
    count=0
    expect() { # as below
        [[ $1 == FAIL:* ]] && return
        count=$((count + 1))
        printf '%s\n' "mistake$count: $1" >> texts
        printf '%s\n' "${@:2}" > mistake$count
        printf '%s\n' "include mistake$count" reset >> mistakes
    }
    # shellcheck source=tests/simulation/mistakes.sh
    source "$here/mistakes.sh"
    result=$(both mistakes) || fail "$result"
    while read -r text; do
        [[ $result == *"$text"* ]] || fail "\"$text\" is missing in: $result"
    done < texts
    [[ $(wc -l <<< "$result") == $((count + 1)) ]] || fail "not a line for each mistake: $result"
    if [[ -n $model ]]; then
        printf '%s\n' 'write16 0x20000200 0xABCD' 'read 0x20000200 0xABCD 0xFFFF' 'read 0x20000200 0' 'read 0x20000200 0 0xF0FF000' > $script
        result=$(core $script) || true
        for text in "script:3: read 0xxxxxabcd, expected 0x00000000 in the bits 0xffffffff" "script:4: read 0xxxxxabcd" "FAIL: 2 of 4 checks"; do
            [[ $result == *"$text"* ]] || fail "\"$text\" is missing in: $result"
        done
    fi
    # Memories, registers behind the bridge and an extension port, back to back and in bursts.
    pass 'write 0x40000004 0x55 # comment\r' '\tread\t0x40000004 85\r' 'read 0x40000004 0x5 0xF\r' \
        'pipeline on' 'write8 0x40000005 0xA5' 'write8 0x40000004 0x5A' 'read 0x40000004 0xA55A' 'read8 0x40000005 0xA5' \
        'write 0x20000010 7' 'write 0x60000010 1' 'read 0x60000010 1' 'read 0x20000010 7' 'error 0x60100000' \
        'error 0x50003000' 'read 0x40000004 0xA55A' 'read 0x60000010 1' 'pipeline off' \
        'burst-read incr4 0x80000010 0xA0000001 0xA0000001 0xA0000001 0xA0000001' \
        'burst-write wrap4 0x60000014 4 3 2 1' 'read 0x60000010 1' \
        'burst-write incr 0x40000004 0x1234' 'burst-read single 0x40000004 0x1234 0' 'repeat 3' 'error 0x30000000' end
    exit 0
fi

top=bench
mkdir sub
iverilog -g2005 -Wall -s $top -o sim "$bfm" "$here/bus-tb.v"
[[ -z $model ]] || iverilog -g2005 -Wall -s $top -o sim-core "$model/cortex_m1_core_isa.v" "$here/bus-tb.v"
{ printf 'library ieee;\nuse ieee.std_logic_1164.all;\n'; sed -n '/^entity CortexM1Core is/,/^end entity/p' "$net.vho"; } > core.vhd
analyse 93 "$here/bus-tb.vhd" core.vhd

cat > bus << 'P'
write 0x40000000 0x11223344
write8 0x40000001 0xAA
write16 0x40001002 0xBBCC        # a wait state
read 0x40002000 0xBBCCAA44
read8 0x40003003 0xBB
read16 0x40000002 0xBBCC
error 0x50000000
error 0x50003000
poll 0x40001000 0x44 0xFF 3
burst-write incr4 0x400013F0 1 2 3 4
burst-write incr8 0x40002040 0x10 0x11 0x12 0x13 0x14 0x15 0x16 0x17
burst-read wrap8 0x40000054 0x15 0x16 0x17 0x10 0x11 0x12 0x13 0x14
burst-write wrap16 0x40000138 14 15 0 1 2 3 4 5 6 7 8 9 10 11 12 13
burst-read incr16 0x40003100 0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15
burst-write wrap4 0x4000020C 3 0 1 2
burst-read single 0x40000200 0 1 2 3
burst-read incr 0x40001200 0 1 2 3 0
burst-read incr 0x40001200 0
burst-write single 0x400013FC 9 8
burst-read single 0x400003FC 9 8
pipeline on
write 0x40000500 1
read 0x40000500 1
write8 0x40001501 2
read 0x40000500 0x201
error 0x50001000
read16 0x40003500 0x201
write 0x40000504 5
wait 2
repeat 3
  repeat 2
    read 0x40000504 5
    write 0x40002508 6
  end
  write 0x4000050C 7
end
include sub/more
read 0x40000510 8
pipeline off
repeat 0
  nonsense
  repeat 5
    include nowhere
  end
end
read 0x40000508 6
P
cat > sub/more << 'P'
write 0x40000510 7
include ../bus-end
P
printf 'repeat 2\nread 0x40000510 0x7 0xf\nend\nwrite 0x40000510 8' > bus-end
both bus > said
[[ $(< said) == PASS ]] || fail "$(head -n 20 said)"
cmp trace-verilog trace-vhdl || fail "the buses differ: $(diff trace-verilog trace-vhdl | head)"
# Pipelined transfers leave no idle cycle, others do.
idle() { verilog $script > said; [[ $(< said) == PASS ]] || fail "$(< said)"; sed -n '/^10 /,$p' trace | tac | sed -n '/^10 /,$p' | grep -c '^00 ' || true; }
printf '%s\n' "pipeline on" "repeat 5" "write 0x40000000 1" "read 0x40000000 1" "end" > $script
[[ $(idle) == 0 ]] || fail "idle cycles in a pipeline"
sed -i 1d $script
[[ $(idle) == 9 ]] || fail "no idle cycles without a pipeline"
# What a read expects is not on the bus.
printf '%s\n' "write 0x40000000 0" "read 0x40000004 7" "burst-read incr 0x40000004 7" "error 0x50000000" > $script
both $script > said
[[ $(awk '{ print $6 }' trace-verilog | sort -u) =~ ^0+$ ]] || fail "a read drives HWDATA"
# The watch over the protocol sees what is wrong.
mutate() { # SED TEXT
    sed "$1" "$bfm" > mutant.v
    ! cmp -s mutant.v "$bfm" || fail "no mutant: $1"
    iverilog -g2005 -s $top -o mutant mutant.v "$here/bus-tb.v"
    timeout 60 vvp -n mutant +script=bus +finish > said || true
    grep -q "PROTOCOL: $2" said || fail "\"$2\" is missing in: $(head -n 10 said)"
}
mutate "s/address + 32'd4 :/address + 32'd8 :/" "address [0-9a-f]* does not go on with the burst"
mutate 's/wrap8": *begin burst = 3.b100/wrap8": begin burst = 3'"'"'b110/' "the burst is too short"
mutate 's/"incr16": begin burst = 3.b111/"incr16": begin burst = 3'"'"'b101/' "the burst is too long"
mutate 's/next_HTRANS = trans; next_HBURST/next_HTRANS = trans; next_HBURST/; s/^            ready;$//' "the address phase changes"

# What the board of "orixm1 simulate" is needed for.
for line in 'expect-uart 0 "a" 1' 'uart 0 "a"' 'gpio 1 1 1' 'gpio-drive 1 1'; do
    printf '%s\n' "$line" > $script
    [[ $(verilog $script) == *"line 1: only in orixm1 simulate"* && $(verilog $script) == "$(vhdl $script)" ]] ||
        fail "$line: $(verilog $script) $(vhdl $script)"
done

# Mistakes.
rm $script
[[ $(both $script) == *'bench.core: the script "script" cannot be read'* ]] || fail "missing script"
expect "FAIL: 0 of 0 checks" "# a script that checks nothing"
nest() { # COUNT WORD…: the words as many times as that, a line each
    for ((n = 0; n < $1; n++)); do echo "${*:2}"; done
}
many() { for ((n = 0; n < $1; n++)); do printf x; done; }
expect "bench.core.fail: line 1: end without repeat" "end"
expect "bench.core.fail: line 2: repeat without end" "read 0 0" "repeat 2" "read 0x40000000 0"
expect "bench.core.fail: line 1: repeat without end" "repeat 0" "repeat 2" "end"
echo end > sub/end
expect "line 1: repeat without end" "repeat 1" "include sub/end" "read 0x40000000 0"
expect "bench.core.fail: sub/end: line 1: end without repeat" "repeat 1" "include sub/end" "end" "read 0x40000000 0"
pass "$(nest 8 repeat 2)" "read 0x40000000 0" "$(nest 8 end)"
expect "line 9: the repeats nest more than 8 deep" "$(nest 9 repeat 2)" "read 0x40000000 0" "$(nest 9 end)"
expect "line 2: not a number" "# the block is left out" "repeat often" "jump" "end" "read 0x40000000 0"
[[ $(both $script) == *"FAIL: 1 of 1 checks" ]] || fail "a refused repeat is played"
expect "line 1: a number is missing" "repeat" "end"
expect "line 1: too many words" "repeat 2 3" "end"
expect "line 2: too many words" "repeat 2" "end repeat" "end"
expect 'bench.core.play_include: line 2: the script "sub/nowhere" cannot be read' "read 0 0" "include sub/nowhere"
expect "line 1: the name of a file is missing" "include # nothing"
expect "line 1: too many words" "include sub/end sub/more"
expect "bench.core.fail: line 2: the included script is empty" "read 0x40000000 0" "include sub" "read 0x40000000 0"
echo 'include nowhere' > sub/deeper
expect 'bench.core.play_include: sub/deeper: line 1: the script "sub/nowhere" cannot be read' "include sub/deeper"
echo 'include again' > sub/again
expect "bench.core.fail: sub/again: line 1: the includes nest more than 8 deep" "repeat 1000" "include sub/again" "end"
[[ $(both $script | wc -l) == 2 ]] || fail "the script goes on behind includes that never end"
for ((n = 1; n < 8; n++)); do echo "include chain$((n + 1))" > chain$n; done
echo "read 0x40000000 0" > chain8
pass "include chain1" "include $tmp/chain8" "include ./chain8"
printf '\n\nread 0x40000000 1 0xF\nwrite 0x50000000 1\njump' > sub/wrong
expect "bench.core.check_read: sub/wrong: line 3: read 0x00000000, expected 0x00000001 in the bits 0x0000000f" "include sub/wrong"
expect "bench.core.fail: sub/wrong: line 4: error response" "pipeline on" "include sub/wrong"
expect "bench.core.fail: sub/wrong: line 5: unknown command" "repeat 2" "include sub/wrong" "end"
expect "line 3: read 0x00000000, expected 0x00000001" "pipeline on" "read 0x40000000 0" "read 0x40000000 1" "read 0x40000000 0"
expect "line 3: read 0x00000000, expected 0x00000001" "pipeline on" "repeat 2" "read 0x40000000 1" "end" "wait 5"
expect "line 1: neither on nor off" "pipeline"
expect "line 1: neither on nor off" "pipeline of"
expect "line 1: no burst of this name" "burst-read incr2 0x40000000 0 0"
expect "line 1: not as many data as the burst has" "burst-read incr4 0x40000000 0 0 0"
expect "line 1: not as many data as the burst has" "burst-write wrap4 0x40000000 0 0 0 0 0"
expect "line 1: too many words" "burst-write incr 0x40000000 0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16"
expect "line 1: a number is missing" "burst-write incr4 0x40000000"
expect "line 1: not a number" "burst-write incr4 0x40000000 0 1 2 three"
expect "line 1: the address of a burst is not a multiple of 4" "burst-read incr4 0x40000002 0 0 0 0"
expect "line 1: the burst crosses a boundary of 1 KB" "burst-read incr4 0x400003F4 0 0 0 0"
expect "line 1: no bursts in the ITCM and the DTCM" "burst-read single 0x1FFFFFFC 0 0"
expect "line 1: error response" "burst-write incr4 0x50000000 0 1 2 3"
[[ $(grep -c "line 1: error response" <<< "$(both $script)") == 4 ]] || fail "not each word has its error"
expect "line 1: read 0x00000000, expected 0x00000002" "burst-read incr 0x40000100 0 2 0"
expect "line 1: not a number" "read 0x40000000 0x"
expect "line 1: not a number" "read 0x40000000 12AB"
expect "line 1: not a number" "read 0x40000000 0xx"
expect "line 1: not a number" "wait -"
expect "line 1: a number of more than 32 bits" "read 0x40000000 4294967296"
expect "line 1: a number of more than 32 bits" "read 0x140000000 0"
expect "line 2: read 0x00000000, expected 0x00000001" "wait 0" "poll 0x40001000 1 1 3" "poll 0x40002000 0 1 0" "write 0x40000000 1"
expect "line 1: error response" "poll 0x50001000 0 0 5" "write 0x40000000 1"
expect "line 2: the interrupt input does not get the level" "irq 5 0 9" "irq 3 1 5" "write 0x40000000 1" "irq 35 3 0"
expect "line 2: the non-maskable interrupt does not get the level" "nmi 0 9" "nmi 1 4" "write 0x40000000 1"
expect "line 2: read 0x00000000, expected 0x00000001" "pipeline on" "read 0x40003000 1" "jump" "write 0x40000000"
expect "line 2: read 0x00000000, expected 0x00000001" "pipeline on" "read 0x40003000 1" "burst-read wrap5 0" "pipeline maybe"
expect "line 1: unknown command" "$(many 240)write 1"
expect "line 2: a line of more than 255 characters" "read 0x40000000 0 # $(many 237)" "read 0x40000000 0 # $(many 238)" "jump"
expect "line 3: unknown command" "" "# $(many 600)" "jump"
pass "# $(many 253)" "write 0x4000_0000 -1" "read 0x40000000 4_294_967_295" "write 0x40000000 +5" "read 0x40000000 5 0xF 0 0 0 0"
pass "wait\v1" "read\f0x40000000\v0x00000000000000000000000000000000000000000" "repeat 2" "read 0x40000000 0 # end" "end"
