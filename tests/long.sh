#!/usr/bin/env bash
# What takes its time, behind ./test.sh: a search that takes a hundred thousand tasks, the equilibrium
# of two million loads, five hundred kills of the keeping of tasks, the thread sanitizer, ten minutes
# of the soak of tasks, three hundred rounds of the forms, a minute of each fuzzer, the branches of the
# rooms that judge a base, five hundred mutants of them, the pictures of the guide, the package on a
# fresh Debian 12, and both commands of the README there (as root or by sudo).
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source tools/setup.sh
install_missing "${long_test_packages[@]}"

FERNA_LONG=1 build/release/tests/test_analysis --gtest_brief=1 --gtest_filter='Search.Ends*'
FERNA_LONG=1 build/release/tests/test_task --gtest_brief=1 --gtest_filter='Kept.Kills*'
FERNA_LOADS=2000000 build/release/tests/test_equilibrium --gtest_brief=1 --gtest_filter='RandomLoads*'

# Apart from one another: a process that has started others is no longer followed through its mutexes.
build_preset tsan
build/tsan/tests/test_batch --gtest_brief=1 --gtest_filter='OrderedWorkers*:Options*:Runs*'
build/tsan/tests/test_batch --gtest_brief=1 --gtest_filter='Program*'

cmake --build --preset release --target soak_tasks soak_forms
build/release/tests/soak_tasks --seconds 600
FERNA_ROUNDS=300 build/release/tests/soak_forms 2>/dev/null

fuzz/run.sh 60

tests/coverage.sh
tests/mutants.py

python3 tests/e2e/guide_pictures_test.py . build/release/bin

tests/fresh_package.sh build/release # the package that ./test.sh has left there
tests/fresh_machine.sh
