#!/usr/bin/env bash
# Installs what is missing, builds, and starts the program. Without a display it computes the
# delivered sample task and leaves its report.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")"
source tools/setup.sh

install_missing "${build_packages[@]}" "${run_packages[@]}"
build_preset release -DFERNA_TESTS=OFF -DFERNA_BENCH=OFF

bin=build/release/bin
if [[ -n ${DISPLAY:-}${WAYLAND_DISPLAY:-} && -x $bin/ferna ]]; then
    exec "$bin/ferna" "$@"
fi

mkdir -p build/raport
"$bin/ferna-wsad" --dziesietny , --wynik build/raport/slup-hali.json \
    --raport build/raport/slup-hali.txt data/przyklady/slup-hali.json
step "No display: computed data/przyklady/slup-hali.json"
echo "Report: $PWD/build/raport/slup-hali.txt"
echo "Result: $PWD/build/raport/slup-hali.json"
echo "The report is in code page 1250; this shows it:"
echo "    iconv -f cp1250 -t utf-8 build/raport/slup-hali.txt"
