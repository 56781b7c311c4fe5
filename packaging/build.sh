#!/usr/bin/env bash
# packaging/build.sh [--quiet] PRESET [TARGET …]: installs what is missing (without TARGET also what the tests need),
# configures and builds, one caller at a time.
# With --quiet it speaks only when something fails.
set -euo pipefail

quiet=
if [[ ${1:-} == --quiet ]]; then
    quiet=1
    shift
fi
preset=$1
shift
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# CMake and Ninja quote a path in some places only; what they would make of such a one is anybody's guess.
if [[ $PWD =~ [][:cntrl:]\'\"\`\$\\\;:,\#\&\<\>\|()*?[] ]]; then
    printf 'The build tools cannot work in "%s", because of the character "%s" in this path. Please move the checkout.\n' \
        "$PWD" "${BASH_REMATCH[0]}" >&2
    exit 1
fi

# The kernel takes the lock back with the last process that holds it, however that ends; the tools do not get it.
mkdir -p build
exec {lock}>"build/.$preset.lock"
if ! flock --nonblock "$lock"; then
    echo "Waiting for another build of $PWD/build/$preset …" >&2
    flock "$lock"
fi
if [[ $quiet && ! -d build/$preset/bin ]]; then
    echo "Building, which takes a few minutes the first time …" >&2
fi

# Everything is built for the tests.
packaging/setup.sh $( (($#)) || echo --tests) {lock}>&-
build() {
    cmake --preset "$preset" && cmake --build --preset "$preset" ${1+--target "$@"}
}
if [[ $quiet ]]; then
    log=build/.$preset.log
    if ! build "$@" >"$log" 2>&1 {lock}>&-; then
        cat "$log" >&2
        exit 1
    fi
else
    build "$@" {lock}>&-
fi
