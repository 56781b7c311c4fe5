#!/usr/bin/env bash
# The block RAM of the tightly coupled memories: what the flow maps them to is no more than the bytes need.
#   check-memories.sh ORIXM1
# A block holds 2 KB. An ITCM with initial contents needs two blocks at least, since the files are lanes (tcm_ram.v).
set -euo pipefail
orixm1=$1
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
cd "$tmp"
fail() { echo "FAILED: $*"; exit 1; }

blocks() { # KB [LEAST]: how many blocks that many KB take
    local count=$((($1 + 1) / 2))
    echo $((count < ${2:-1} ? ${2:-1} : count))
}

checked=0
# A device, whether there is debug, and the codes of the sizes of ITCM and DTCM: 1 KB << code.
while read -r device debug itcm dtcm; do
    for initial in false true; do
        least=1
        cat > memories.ipc <<END
[General]
target_device=$device
type=tarvo.tarvo_orix_m1
version=1.0

[Config]
Enable%20Debug=$debug
ITCM_Size=$itcm
DTCM_Size=$dtcm
END
        if $initial; then
            least=2
            for lane in 0 1 2 3; do # a quarter of the bytes each, and none of them known to the tool beforehand
                awk -v count=$((256 << itcm)) -v lane=$lane 'BEGIN { srand(lane + 1)
                    for (i = 0; i < count; i++) printf "%02x\n", int(rand() * 256) }' > itcm$lane
            done
            printf '%s\n' Initialize%20ITCM=true ITCM_Initialization_Path=. "ITCM_Initialization_AbsolutePath=$tmp" >> memories.ipc
        fi
        "$orixm1" generate --json --no-cache memories.ipc > report.json 2> log || { cat log; fail "$device $itcm $dtcm initial: $initial"; }
        used=$(tr -d ' \n' < report.json | grep -oE '"cell":"TV_RAMB_[A-Z]+","count":[0-9]+' | awk -F: '{ n += $3 } END { print n + 0 }')
        expected=$(($(blocks $((1 << itcm)) $least) + $(blocks $((1 << dtcm)))))
        ((used == expected)) || fail "$device, debug: $debug, ITCM $((1 << itcm)) KB, DTCM $((1 << dtcm)) KB," \
            "initial contents: $initial: $used blocks, $expected expected"
        checked=$((checked + 1))
    done
done <<'END'
TV2KR-18C-QFN88P-C8/I7 true 0 1
TV2KR-18C-QFN88P-C8/I7 true 3 2
TV2KR-18C-QFN88P-C8/I7 false 1 0
TV2KR-18C-QFN88P-C8/I7 false 2 3
TV3K-10A-LQFP144-C8/I7 false 1 2
TV3K-10A-LQFP144-C8/I7 false 4 1
TV5K-25A-MBGA121N-C2/I1 false 0 0
TV5K-25A-MBGA121N-C2/I1 false 5 4
TV5K-25A-MBGA121N-C2/I1 true 1 4
END
((checked == 18)) || fail "$checked memories checked"
