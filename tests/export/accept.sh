#!/usr/bin/env bash
# Takes what the current build exports as the new golden files: tests/export/accept.sh [BUILD FOLDER]. Look at
# "git diff tests/export/golden" afterwards.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
build=${1:-$here/../../build/release}
TARVO_ACCEPT_GOLDENS=1 "$build/tests/bin/tst_exportgolden" exportsTheSameFiles
