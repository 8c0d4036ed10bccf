#!/usr/bin/env bash
# Formats every source file with the pinned clang-format 14; with --check only tells what differs.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
mode=(-i)
[[ ${1:-} == --check ]] && mode=(--dry-run --Werror)
git ls-files -z '*.cpp' '*.h' | xargs -0 clang-format-14 "${mode[@]}"
