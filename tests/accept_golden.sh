#!/bin/sh
# Writes the golden text reports anew from the present program. Look at the difference afterwards
# (git diff shows code page 1250; iconv -f cp1250 makes it readable) and commit only what is right.
#   tests/accept_golden.sh [BUILD_FOLDER]
set -eu
cd "$(dirname "$0")/.."
build=${1:-build/release}
cmake --build "$build" --target test_report
mkdir -p tests/golden/report
QT_QPA_PLATFORM=offscreen FERNA_ACCEPT_GOLDEN=1 "$build/tests/test_report" \
    --gtest_filter='*GoldenReports*'
for file in tests/golden/report/*.txt; do
    echo "=== $file"
    iconv -f cp1250 -t utf-8 "$file"
done
git --no-pager diff --stat -- tests/golden/report
