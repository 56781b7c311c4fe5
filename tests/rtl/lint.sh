#!/usr/bin/env bash
# Lints the design with Verilator for one case of cases/.  Success is silence.
#   lint.sh ORIXM1 CASE
set -u
here=$(cd "$(dirname "$0")" && pwd)
. "$here/configure.sh"
tmp=$(mktemp -d) || exit 2
trap 'rm -rf "$tmp"' EXIT
configure "${1:?orixm1}" "${2:?case}" "$tmp" || exit 2
out=$(verilator --lint-only -Wall --language 1364-2005 --top-module Tarvo_ORIX_M1_Top -I"$generated_dir" -I"$rtl" \
    "$here/lint.vlt" "${sources[@]}" 2>&1)
status=$?
[[ -z $out ]] || echo "$out"
[[ $status -eq 0 && -z $out ]]
