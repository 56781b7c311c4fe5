#!/usr/bin/env bash
# The Yosys that remembers, with a tool behind it that counts its runs.
set -euo pipefail
# shellcheck source=tests/tools/scratch.sh
source "$(dirname "${BASH_SOURCE[0]}")/scratch.sh"

mkdir real .tarvo-run scratch
cat > real/yosys <<'END'
#!/bin/sh
echo run >> "$COUNT"
[ "$1" != -V ] || { echo "a version"; exit; }
grep -q broken .tarvo-run/design && { echo "said of it" >&2; exit 3; }
echo "said of it" >&2
{ cat .tarvo-run/design; echo "mapped with $*"; } > .tarvo-run/netlist.v
echo changed >> .tarvo-run/cells
END
chmod +x real/yosys
export PATH=$here:$tmp/real:$PATH COUNT=$tmp/count TMPDIR=$tmp/scratch TARVO_TEST_CACHE=$tmp/cache
unset LC_ALL TZ

runs() { # NUMBER STATUS ARGUMENT…: so many runs of the tool there are after this one; its results are right
    local number=$1 expected=$2 status=0
    shift 2
    echo one > .tarvo-run/cells
    rm -f .tarvo-run/netlist.v
    yosys "$@" > out 2> err || status=$?
    [[ $status == "$expected" ]] || fail "status $status: $(cat err)"
    [[ $(wc -l < count) == "$number" ]] || fail "$(wc -l < count) runs, $number expected: $*"
    [[ -z $(ls scratch) ]] || fail "left behind: $(ls scratch)"
    [[ ${*: -1} != *.ys ]] || [[ $(cat err) == "said of it" && ! -s out ]] || fail "says: $(cat out err)"
    if [[ ${*: -1} == *.ys && $status == 0 ]]; then
        [[ $(cat .tarvo-run/netlist.v) == "$(cat .tarvo-run/design)"$'\n'"mapped with $*" ]] || fail "$(cat .tarvo-run/netlist.v)"
        [[ $(cat .tarvo-run/cells) == $'one\nchanged' ]] || fail "$(cat .tarvo-run/cells)"
        [[ $(ls .tarvo-run | grep -v '\.ys$' | paste -sd ' ') == "cells design netlist.v" ]] || fail "$(ls .tarvo-run)"
    fi
}
map=.tarvo-run/map.ys
echo 'read_rtlil .tarvo-run/design' > $map
cp $map .tarvo-run/run.ys
echo first > .tarvo-run/design
runs 1 0 -s $map
runs 1 0 -s $map # remembered
runs 2 0 -v 2 -s $map # other arguments
TZ=Asia/Tokyo runs 3 0 -s $map
echo second > .tarvo-run/design
runs 4 0 -s $map
runs 4 0 -s $map
echo first > .tarvo-run/design
runs 4 0 -s $map
echo broken > .tarvo-run/design # a failure is not remembered
runs 5 3 -s $map
runs 6 3 -s $map
echo first > .tarvo-run/design
TARVO_TEST_CACHE='' runs 7 0 -s $map
runs 8 0 -s .tarvo-run/run.ys # not the mapping
runs 9 0 -V
[[ $(cat out) == "a version" ]] || fail "$(cat out)"
echo 'read_verilog .tarvo-run/dir0/a.v' >> $map # what is read lies elsewhere
runs 10 0 -s $map
runs 11 0 -s $map
echo 'read_rtlil .tarvo-run/design' > $map
for entry in cache/yosys/*; do # an entry that is broken is none
    head -c 40 "$entry" > part
    mv part "$entry"
done
runs 12 0 -s $map
runs 12 0 -s $map
touch -d yesterday real/yosys # another tool
runs 13 0 -s $map
# A tool before this one that calls it is not called back.
mkdir before
printf '#!/bin/sh\nexec "%s/yosys" "$@"\n' "$here" > before/yosys
chmod +x before/yosys
PATH=$tmp/before:$PATH runs 13 0 -s $map
