#!/usr/bin/env bash
# packaging/setup.sh [--tests] [--packages]: installs the Debian packages of debian-packages.txt that this machine lacks,
# with --tests those for the tests too, with --packages those that packages are made with. Prints nothing when there is
# nothing to do.
set -euo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
mapfile -t wanted < <(sed 's/#.*//' "$here/debian-packages.txt" |
    awk -v marks=" $* " '{ take = NF == 1; for (i = 2; i <= NF; ++i) if (index(marks, " --" $i " ")) take = 1 } take { print $1 }')

find_missing() {
    missing=()
    for package in "${wanted[@]}"; do
        status=$(dpkg-query --show --showformat='${db:Status-Status}' "$package" 2>/dev/null || true)
        [[ $status == installed ]] || missing+=("$package")
    done
}
find_missing
((${#missing[@]} == 0)) && exit 0

# One caller at a time: the others find nothing to do afterwards.
mkdir -p "$here/../build"
exec {lock}>"$here/../build/.setup.lock"
flock "$lock"
find_missing
((${#missing[@]} == 0)) && exit 0

echo "Installing: ${missing[*]}" >&2
as_root=()
if ((EUID != 0)); then
    command -v sudo >/dev/null || {
        echo "These Debian packages are missing and only root can install them: ${missing[*]}" >&2
        exit 1
    }
    as_root=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
"${as_root[@]}" apt-get update -q >&2 {lock}>&-
"${as_root[@]}" apt-get install -y -q -o DPkg::Lock::Timeout=600 --no-install-recommends "${missing[@]}" >&2 {lock}>&-
