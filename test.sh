#!/usr/bin/env bash
# Installs what is missing and runs all tests: Release with warnings as errors, then Debug with the
# address and undefined behaviour sanitizers, then the formatting. With --long also the thread
# sanitizer, the soak, and a minute of each fuzzer.
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

tools/format.sh --check

[[ ${1:-} == --long ]] || exit 0

build_preset tsan
build/tsan/tests/test_batch --gtest_brief=1 --gtest_filter='OrderedWorkers*:Options*:Program*:Runs*'

cmake --build --preset release --target soak_tasks soak_forms
build/release/tests/soak_tasks --seconds 600
FERNA_ROUNDS=300 build/release/tests/soak_forms 2>/dev/null

fuzz/run.sh 60
