#!/usr/bin/env bash
# Takes what the current build generates as the new golden files: tests/golden/accept.sh [BUILD FOLDER]. Look at
# "git diff tests/golden" afterwards.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
build=${1:-$here/../../build/release}
TARVO_ACCEPT_GOLDENS=1 QT_QPA_PLATFORM=offscreen "$build/tests/bin/tst_golden"
