#!/usr/bin/env bash
# Installs what is missing and runs all tests: first the formatting and the scripts, which takes
# seconds, then Release with warnings as errors, then Debug with the address and undefined behaviour
# sanitizers. With --long also what takes its time: tests/long.sh.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")"
source tools/setup.sh

case ${1:-} in
    "" | --long) ;;
    *) sed -n '2,4s/^# //p' "$0" >&2; exit 2 ;;
esac
install_missing "${build_packages[@]}" "${run_packages[@]}" "${test_packages[@]}"
export CTEST_OUTPUT_ON_FAILURE=1
jobs=$(($(nproc) + 1)) # a test on a screen mostly waits

step "Formatting and scripts"
tools/lint.sh --quick

# run.sh may have configured the same folder without tests.
cmake --preset release -DFERNA_TESTS=ON -DFERNA_BENCH=ON >/dev/null
build_preset release
step "Testing build/release"
ctest --test-dir build/release -j"$jobs"

build_preset asan
step "Testing build/asan"
export LSAN_OPTIONS=suppressions=$PWD/tests/leaks_of_libraries.supp:print_suppressions=0
ctest --test-dir build/asan -j"$jobs" -LE e2e
step "All tests passed"

[[ ${1:-} == --long ]] || exit 0
tests/long.sh
