#!/usr/bin/env bash
# Installs what is missing and runs all tests: Release with warnings as errors, then Debug with the
# address and undefined behaviour sanitizers, then the formatting and the scripts. With --long also
# what takes its time: tests/long.sh.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")"
source tools/setup.sh

install_missing "${build_packages[@]}" "${run_packages[@]}" "${test_packages[@]}"
export CTEST_OUTPUT_ON_FAILURE=1

# run.sh may have configured the same folder without tests.
cmake --preset release -DFERNA_TESTS=ON -DFERNA_BENCH=ON >/dev/null
cmake --build --preset release
ctest --test-dir build/release -j2

build_preset asan
export LSAN_OPTIONS=suppressions=$PWD/tests/leaks_of_libraries.supp:print_suppressions=0
ctest --test-dir build/asan -j2 -LE e2e

tools/lint.sh --quick

[[ ${1:-} == --long ]] || exit 0
tests/long.sh
