#!/usr/bin/env bash
# Line and branch coverage by folder of what is not a form, from the tests that need no screen and no
# word processor:
#   tools/coverage.sh          builds, runs, prints the table; details in build/coverage/report
#   tools/coverage.sh --again  the table only, from the runs there are
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source tools/setup.sh
install_missing "${build_packages[@]}" "${run_packages[@]}" "${test_packages[@]}" "${long_test_packages[@]}"

if [[ ${1:-} != --again ]]; then
    build_preset coverage
    find build/coverage -name '*.gcda' -delete
    ctest --preset coverage || echo "coverage: a test failed, its lines may lack" >&2
fi

mkdir -p build/coverage/report
# Branches to the handling of exceptions that the compiler adds behind every call count for nothing.
gcovr --root . --object-directory build/coverage --filter 'src/' \
    --exclude '.*/forms/' --exclude '.*/widgets/' --exclude-throw-branches \
    --exclude-unreachable-branches --json build/coverage/report/coverage.json \
    --html-details build/coverage/report/index.html build/coverage/src
python3 tools/coverage_table.py build/coverage/report/coverage.json
