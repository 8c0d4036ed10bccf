#!/usr/bin/env bash
# Takes the pictures of the user guide anew from the built program, in a screen of its own:
#   tools/guide_pictures.sh [FOLDER_OF_THE_PROGRAMS [FOLDER_FOR_THE_PICTURES]]
# Look at them before committing: git shows them as changed whenever the date in a report differs.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source tools/setup.sh

install_missing "${run_packages[@]}" "${test_packages[@]}"
PYTHONDONTWRITEBYTECODE=1 exec python3 tools/guide_pictures.py "${1:-build/release/bin}" \
    data/przyklady/slup-hali.json "${2:-docs/pictures}"
