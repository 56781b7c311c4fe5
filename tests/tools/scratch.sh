# What the checks of these tools begin with: the folder of the tools, and one of the check's own, which is the current one and goes with it.
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT
cd "$tmp"
fail() { echo "FAILED: $*"; exit 1; }
