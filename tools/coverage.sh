#!/usr/bin/env bash
# Line and branch coverage of ferna_core by folder, from the tests that need no screen and no word
# processor:
#   tools/coverage.sh          builds, runs, prints the table; details in build/coverage/report
#   tools/coverage.sh --again  the table only, from the runs there are
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source tools/setup.sh
install_missing "${build_packages[@]}" "${run_packages[@]}" "${test_packages[@]}" "${long_test_packages[@]}"

tests=(runtime design analysis command batch batch_sections plate selection statics report input rtf
    document renderer faults)
if [[ ${1:-} != --again ]]; then
    [[ -f build/coverage/build.ninja ]] || cmake --preset coverage >/dev/null
    cmake --build --preset coverage --target "${tests[@]/#/test_}" ferna-wsad Wyd_drk
    find build/coverage -name '*.gcda' -delete
    for test in "${tests[@]}"; do
        QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 "build/coverage/tests/test_$test" \
            --gtest_brief=1 2>/dev/null || echo "test_$test failed"
    done
fi

mkdir -p build/coverage/report
# Branches to the handling of exceptions that the compiler adds behind every call count for nothing.
gcovr --root . --object-directory build/coverage --filter 'src/' \
    --exclude '.*/forms/' --exclude '.*/widgets/' --exclude-throw-branches \
    --exclude-unreachable-branches --json build/coverage/report/coverage.json \
    --html-details build/coverage/report/index.html build/coverage/src
python3 tools/coverage_table.py build/coverage/report/coverage.json
