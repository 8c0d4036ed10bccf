#!/usr/bin/env bash
# Branch coverage of the rooms that judge a base, by their tests: every condition as it is written,
# both ways. A branch that no test takes must stand in tests/coverage/unreached.txt with the reason
# why it cannot be reached; any other ends the run with an error.
#   tests/coverage.sh          builds, runs, prints the table
#   tests/coverage.sh --again  the table only, from the runs there are
# The jumps that a compiler makes for exceptions, as behind each allocation, are no conditions and do
# not count.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source tools/setup.sh
install_missing "${build_packages[@]}" "${run_packages[@]}" "${test_packages[@]}" "${proof_packages[@]}"

tests=(analysis batch_sections equilibrium notes notes_references plate statics utilisation)
build=build/branches
if [[ ${1:-} != --again ]]; then
    [[ -f $build/build.ninja ]] || cmake --preset branches >/dev/null
    cmake --build $build -j "${JOBS:-1}" --target "${tests[@]/#/test_}"
    rm -f $build/*.profraw
    for test in "${tests[@]}"; do
        FERNA_LOADS=100000 LLVM_PROFILE_FILE=$build/$test.profraw LC_ALL=C.UTF-8 "$build/tests/test_$test" --gtest_brief=1
    done
    llvm-profdata-14 merge -o $build/tests.profdata $build/*.profraw
fi

objects=()
for test in "${tests[@]}"; do
    objects+=(-object "$build/tests/test_$test")
done
llvm-cov-14 export "${objects[@]}" -instr-profile=$build/tests.profdata \
    -ignore-filename-regex='/tests/|^/usr/' >$build/branches.json
/usr/bin/python3 tests/coverage/branches.py $build/branches.json tests/coverage/unreached.txt \
    analysis plate statics equilibrium notes utilisation
