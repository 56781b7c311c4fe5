#!/usr/bin/env bash
# A test with sanitizers is run again, with whole call stacks, if and only if anything seems to leak; other reports are shown.
set -euo pipefail
# shellcheck source=tests/tools/scratch.sh
source "$(dirname "${BASH_SOURCE[0]}")/scratch.sh"

# What a sanitizer does: "reports TEXT" while stacks are short, and the status of the run.
cat > test <<'END'
#!/usr/bin/env bash
echo "$ASAN_OPTIONS" >> runs
if [[ $ASAN_OPTIONS == *log_path=* ]]; then
    [[ -z ${1-} ]] || echo "$1" > "${ASAN_OPTIONS##*log_path=}.77"
    exit "$2"
fi
exit "$3"
END
chmod +x test
runs() { # STATUS RUNS SHOWN ARGUMENT…
    local status=0 expected=$1 count=$2 shown=$3
    shift 3
    rm -f runs
    ASAN_OPTIONS=mine=1 "$here/sanitized" ./test "$@" > out 2>&1 || status=$?
    [[ $status == "$expected" && $(wc -l < runs) == "$count" ]] || fail "$*: status $status, $(cat runs out)"
    [[ $(grep -c '^mine=1:fast_unwind_on_malloc=' runs) == "$count" ]] || fail "$*: $(cat runs)"
    [[ $(<out) == *"$shown"* && ($shown || ! -s out) ]] || fail "$*: $(cat out)"
}
leak="==1==ERROR: LeakSanitizer: detected memory leaks"
runs 0 1 "" "" 0 5
runs 3 1 "" "" 3 0
runs 1 1 heap-use-after-free "==1==ERROR: AddressSanitizer: heap-use-after-free" 1 0
runs 0 2 again "$leak" 23 0
runs 23 2 again "$leak" 23 23
runs 4 2 again "$leak" 0 4
