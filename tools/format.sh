#!/usr/bin/env bash
# Formats every source file with the pinned clang-format 14; with --check only tells what differs.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source tools/files.sh
mode=(-i)
[[ ${1:-} == --check ]] && mode=(--dry-run --Werror)
files_of_the_tree '*.cpp' '*.h' | xargs -d '\n' clang-format-14 "${mode[@]}"
