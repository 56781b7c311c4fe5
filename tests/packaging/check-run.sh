#!/usr/bin/env bash
# check-run.sh SOURCE_FOLDER: how ./run meets other runs, odd paths and failures. The checkout that it runs in has the
# scripts alone; a stand-in for cmake says when it works and waits until it is told to go on.
set -euo pipefail

source=$1
scratch=$(mktemp -d)
trap 'jobs -p | xargs -r kill 2>/dev/null || true; rm -rf "$scratch"' EXIT
fail() {
    echo "$*" >&2
    exit 1
}
make_checkout() {
    mkdir -p "$1/packaging"
    cp "$source/run" "$1"
    cp "$source/packaging/build.sh" "$source/packaging/setup.sh" "$1/packaging"
    : >"$1/packaging/debian-packages.txt"
}

checkout="$scratch/a checkout = ü%{1}"
make_checkout "$checkout"
mkdir "$scratch/bin" "$scratch/tmp"
mkfifo "$scratch/begun" "$scratch/gate"
cat >"$scratch/bin/cmake" <<'STAND_IN'
#!/usr/bin/env bash
mkdir "$SCRATCH/busy" 2>/dev/null || { echo "two builds at once" >>"$SCRATCH/overlaps"; exit 1; }
if [[ -e $SCRATCH/hold && $1 == --preset ]]; then
    echo begun >"$SCRATCH/begun"
    read -r <"$SCRATCH/gate"
fi
if [[ -e $SCRATCH/broken ]]; then
    echo "no such compiler"
    rmdir "$SCRATCH/busy"
    exit 1
fi
mkdir -p build/release/bin
printf '#!/bin/sh\necho "ran $*"\n' >build/release/bin/orixm1
chmod +x build/release/bin/orixm1
rmdir "$SCRATCH/busy"
STAND_IN
chmod +x "$scratch/bin/cmake"
export SCRATCH=$scratch TMPDIR=$scratch/tmp PATH=$scratch/bin:$PATH

[[ $("$checkout/run" --version 2>/dev/null) == "ran --version" ]] || fail "a single run does not run the command"
[[ -z $("$checkout/run" x 2>&1 >/dev/null) ]] || fail "a second run is not silent"

# Two at once: the second says that it waits, and both end well.
touch "$scratch/hold"
"$checkout/run" first >"$scratch/first" 2>&1 &
first=$!
read -r <"$scratch/begun"
mkfifo "$scratch/told"
"$checkout/run" second >"$scratch/second" 2>"$scratch/told" &
second=$!
read -r line <"$scratch/told"
[[ $line == "Waiting for another build of $checkout/build/release"* ]] || fail "the second run says: $line"
rm "$scratch/hold"
echo go >"$scratch/gate"
wait "$first" || fail "the first of two runs failed: $(<"$scratch/first")"
wait "$second" || fail "the second of two runs failed"
[[ $(<"$scratch/second") == "ran second" ]] || fail "the second run printed: $(<"$scratch/second")"
[[ ! -e $scratch/overlaps ]] || fail "two runs built at once"

# A failed build shows what the tools said, and its status is the run's.
touch "$scratch/broken"
if output=$("$checkout/run" --version 2>&1) || [[ $output != "no such compiler" ]]; then
    fail "a failed build gives: $output"
fi
rm "$scratch/broken"

[[ -z $(ls -A "$scratch/tmp") ]] || fail "left in the folder for temporary files: $(ls -A "$scratch/tmp")"

# Paths that the build tools would misread are refused before anything is made of them.
for name in "it's" 'a$(touch made)b' 'a`touch made`b' 'a"b' 'a;b' 'a,b' 'a#b' 'a&b' 'a[b' 'a]b' 'a\b' 'a:b' $'a\nb'; do
    make_checkout "$scratch/odd/$name"
    if output=$("$scratch/odd/$name/run" --version 2>&1) || [[ $output != *"because of the character"* ]]; then
        fail "a checkout in $name gives: $output"
    fi
    [[ ! -e $scratch/odd/$name/build && ! -e made ]] || fail "something is made of a checkout in $name"
done
