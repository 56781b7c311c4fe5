#!/usr/bin/env bash
# Makes the pictures of the documents from the real windows: docs/pictures/make-pictures.sh [BUILD FOLDER]
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
build=${1:-$here/../../build/release}
cmake --build "$build" --target pictures workbenchpictures >&2
export QT_QPA_PLATFORM=offscreen
"$build/tests/bin/pictures" -style fusion "$here"
"$build/tests/bin/workbenchpictures" -style fusion "$here"
