#!/usr/bin/env bash
# Makes the pictures of the user guide from the real windows: docs/pictures/make-pictures.sh [BUILD FOLDER]
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
build=${1:-$here/../../build/release}
cmake --build "$build" --target pictures >&2
QT_QPA_PLATFORM=offscreen "$build/tests/bin/pictures" -style fusion "$here"
