#!/usr/bin/env bash
# The compilers of simulations with another allocator, and the players with quicker casts, run what comes next on PATH, with everything
# that they are given.
set -euo pipefail
# shellcheck source=tests/tools/scratch.sh
source "$(dirname "${BASH_SOURCE[0]}")/scratch.sh"

mkdir real before links empty
cat > real/iverilog <<'END'
#!/bin/sh
printf '<%s>' "${0##*/}" "$@"
cat
echo "$LD_PRELOAD" > "$PRELOADED"
exit 3
END
chmod +x real/iverilog
cp real/iverilog real/verilator
cp real/iverilog real/vvp
printf '#!/bin/sh\nexec "%s/iverilog" before "$@"\n' "$here" > before/iverilog
chmod +x before/iverilog
export PRELOADED=$tmp/preloaded
tools=/usr/bin:/bin

runs() { # SAID PRELOADED PATH COMMAND…
    local said=$1 preloaded=$2 path=$3 status=0
    shift 3
    rm -f preloaded
    (PATH=$path && echo input | "$@") > out || status=$?
    [[ $status == 3 && $(<out) == "${said}input" ]] || fail "status $status: $(cat out)"
    # shellcheck disable=SC2053
    [[ $(<preloaded) == $preloaded ]] || fail "preloaded: $(cat preloaded)"
}
unset LD_PRELOAD TARVO_TEST_CASTS
allocator=
for file in /usr/lib/*/libtcmalloc_minimal.so.4; do
    [[ ! -f $file ]] || allocator=$file
done
runs "<iverilog><a b><*><>" "$allocator" "$here:$tmp/real:$tools" iverilog "a b" '*' ''
runs "<verilator><x>" "$allocator" "$tmp/empty:$here:$tmp/empty:$tmp/real:$tools" verilator x
runs "<iverilog><before><x>" "$allocator" "$tmp/before:$here:$tmp/real:$tools" iverilog x
ln -s "$here/iverilog" links/iverilog
runs "<iverilog><x>" "$allocator" "$tmp/links:$here:$tmp/real:$tools" iverilog x
LD_PRELOAD=$allocator runs "<iverilog><x>" "$allocator" "$here:$tmp/real:$tools" iverilog x
mapfile -t other < <(ldconfig -p | sed -n 's/.*libdl\.so\.2.* => //p')
LD_PRELOAD=${other[0]} runs "<iverilog><x>" "${other[0]}" "$here:$tmp/real:$tools" iverilog x
casts=${other[0]} # any library
runs "<vvp><-n><x>" "" "$here:$tmp/real:$tools" vvp -n x
TARVO_TEST_CASTS=$tmp/none runs "<vvp><x>" "" "$here:$tmp/real:$tools" vvp x
TARVO_TEST_CASTS=$casts runs "<vvp><x>" "$casts" "$here:$tmp/real:$tools" vvp x
TARVO_TEST_CASTS=$casts runs "<iverilog><x>" "${allocator:+$allocator:}$casts" "$here:$tmp/real:$tools" iverilog x
LD_PRELOAD=$allocator TARVO_TEST_CASTS=$casts runs "<vvp><x>" "$allocator:$casts" "$here:$tmp/real:$tools" vvp x
ln -s "$here/iverilog" links/a-tool-that-is-nowhere
status=0
(PATH=$tmp/links:$tools && a-tool-that-is-nowhere x) > out 2>&1 || status=$?
[[ $status == 127 && $(<out) == "no a-tool-that-is-nowhere on PATH behind "* ]] || fail "no tool: status $status, $(cat out)"
