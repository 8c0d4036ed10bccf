#!/bin/sh
# Writes the golden files anew from the present program: reports as text, print commands, RTF, document,
# and the ways to the exact equilibrium. Look at the difference afterwards and commit only what is
# right. The text reports are shown: git diff shows their code page 1250 as bytes.
#   tests/accept_golden.sh [BUILD_FOLDER]
set -eu
cd "$(dirname "$0")/.."
build=${1:-build/release}
cmake --build "$build" --target test_report test_rtf test_document test_live test_equilibrium
export QT_QPA_PLATFORM=offscreen
golden_tests() {
    "$build/tests/test_report" --gtest_brief=1 --gtest_filter='*GoldenReports*:PrintCommands.*'
    "$build/tests/test_rtf" --gtest_brief=1 --gtest_filter='RtfGolden.*'
    "$build/tests/test_document" --gtest_brief=1
    "$build/tests/test_live" --gtest_brief=1 --gtest_filter='Live/PictureGoldens.*'
    "$build/tests/test_equilibrium" --gtest_brief=1 --gtest_filter='WaysToTheEquilibrium.*'
}
# A test that rewrites its file fails, so that nobody takes it for a passed one.
(set +e; export FERNA_ACCEPT_GOLDEN=1; golden_tests > /dev/null) || true
golden_tests
for file in tests/golden/report/*.txt; do
    echo "=== $file"
    iconv -f cp1250 -t utf-8 "$file"
done
git --no-pager diff --stat -- tests/golden
