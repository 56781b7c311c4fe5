#!/usr/bin/env bash
# check-packages.sh SOURCE_FOLDER BUILD_FOLDER: packages made of what a build holds. What they hold and depend on, that they work where
# they are unpacked, that they say nothing of where they were built, and that making them twice gives the same bytes.
set -euo pipefail

source=$1
build=$2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
fail() {
    echo "$*" >&2
    exit 1
}

# Twice, as two people in two places; the second does without lintian.
mkdir "$scratch/first" "$scratch/second"
(umask 022 && TMPDIR=$scratch/first TZ=UTC LC_ALL=C.UTF-8 "$source/packaging/package" --built "$build" "$scratch/one" >/dev/null) &
first=$!
(umask 077 && TMPDIR=$scratch/second TZ=Pacific/Auckland LC_ALL=C USER=somebody LOGNAME=somebody HOME=$scratch/second \
    "$source/packaging/package" --no-lintian --built "$build" "$scratch/two" >/dev/null) || fail "the second set of packages cannot be made"
wait "$first" || fail "the first set of packages cannot be made"
"$source/packaging/compare-packages" "$scratch/one" "$scratch/two" >"$scratch/compared" || fail "$(<"$scratch/compared")"
[[ -z $(ls -A "$scratch/first" "$scratch/second" | grep -v ':$' | grep -v '^$') ]] || fail "left behind: $(ls -A "$scratch/first" "$scratch/second")"

# Each package has what is its own, and nothing else: a pattern a line, each with at least one file.
cd "$scratch/one"
for package in *.deb; do
    name=${package%%_*}
    dpkg-deb --fsys-tarfile "$package" | tar --list --verbose --numeric-owner >"$scratch/$name.list"
    awk '$1 !~ /^d/ { sub(/^\.\//, "", $6); print $6 }' "$scratch/$name.list" |
        grep -vE "^usr/share/doc/$name/(COPYRIGHT|copyright|changelog\.gz)$|^usr/share/lintian/overrides/$name$" >"$scratch/$name.files"
    grep -E "^$name " "$source/tests/packaging/contents.txt" | cut -d' ' -f2- >"$scratch/$name.patterns" || fail "contents.txt says nothing of $name"
    while read -r pattern; do
        grep -qE "^$pattern$" "$scratch/$name.files" || fail "$name has no file $pattern"
    done <"$scratch/$name.patterns"
    unknown=$(grep -vxEf "$scratch/$name.patterns" "$scratch/$name.files" || true)
    [[ -z $unknown ]] || fail "$name holds what contents.txt does not name: $unknown"
    wrong=$(awk '$2 != "0/0" || ($1 !~ /^(-rw-r--r--|-rwxr-xr-x|drwxr-xr-x|lrwxrwxrwx)$/)' "$scratch/$name.list")
    [[ -z $wrong ]] || fail "$name holds files with other owners or rights: $wrong"
    for name_in_docs in COPYRIGHT copyright; do
        grep -q " \./usr/share/doc/$name/$name_in_docs$" "$scratch/$name.list" || fail "$name has no $name_in_docs"
    done
    dpkg-deb --extract "$package" "$scratch/installed"
done
missing=$(cut -d' ' -f1 "$source/tests/packaging/contents.txt" | grep -v '^#' | sort -u | while read -r name; do
    [[ -z $name || -e $scratch/$name.files ]] || echo "$name"
done)
[[ -z $missing ]] || fail "there is no package $missing"
doubled=$(cat "$scratch"/*.files | sort | uniq --repeated)
[[ -z $doubled ]] || fail "in two packages: $doubled"

# Who installs the command line gets no display, and only the simulation's package gets what is under the GPL.
depends() { dpkg-deb --field "$1"_*.deb Depends; }
for name in orixm1 tarvo-host tarvo-orixm1-data; do
    [[ $(depends "$name") != *qt5gui* && $(depends "$name") != *tarvo-host-gui* ]] || fail "$name depends on a display"
done
for package in *.deb; do
    name=${package%%_*}
    if [[ $(depends "$name") == *libunicorn* ]]; then
        [[ $name == tarvo-simulation ]] || fail "$name depends on libunicorn"
    else
        [[ $name != tarvo-simulation ]] || fail "tarvo-simulation does not depend on libunicorn"
    fi
    [[ $(depends "$name") != *tarvo-simulation* ]] || fail "$name depends on tarvo-simulation"
    [[ $(dpkg-deb --field "$package" Version) == "$(sed -n 's/^project(Tarvo VERSION \([^ ]*\).*/\1/p' "$source/CMakeLists.txt")" ]] ||
        fail "$package has another version than the programs"
done

# Nothing tells where or by whom it was built.
said=$(grep -rlaF -e "$build" -e "$source" -e "$scratch" "$scratch/installed" || true)
[[ -z $said ]] || fail "the folder of the build stands in: $said"
host=$(uname --nodename)
if ((${#host} > 5)); then
    said=$(grep -rlaF -e "$host" "$scratch/installed" || true)
    [[ -z $said ]] || fail "the machine's name stands in: $said"
fi

# Unpacked anywhere, programs find their data, plug-in and model.
export QT_QPA_PLATFORM=offscreen HOME=$scratch/home XDG_CACHE_HOME=$scratch/home/cache
mkdir "$HOME"
bin=$scratch/installed/usr/bin
"$bin/orixm1" new --device TV2KR-18C --package QFN88P --set "Enable UART0=true" --out "$scratch/ip" >"$scratch/log" 2>&1 || fail "$(<"$scratch/log")"
"$bin/orixm1" export "$scratch/ip/tarvo_orix_m1.ipc" --out "$scratch/software" >"$scratch/log" 2>&1 || fail "$(<"$scratch/log")"
"$bin/tarvo-workbench" --render-diagram "$scratch/ip/tarvo_orix_m1.ipc" -o "$scratch/diagram.svg" >"$scratch/log" 2>&1 || fail "$(<"$scratch/log")"
grep -q "<svg" "$scratch/diagram.svg" || fail "the workbench has drawn no diagram"
for shell in bash fish zsh; do
    "$bin/orixm1" completions "$shell" >"$scratch/completions"
    [[ $(find "$scratch/installed/usr/share/$shell"* -type f -exec cmp --silent {} "$scratch/completions" \; -print | wc -l) == 1 ]] ||
        fail "the completions for $shell are not those of the program"
done
