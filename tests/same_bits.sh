#!/bin/sh
# The same bits from g++ and clang++, in Release and in Debug: builds print_bits with each preset
# and compares what it prints for the golden tasks.
#   tests/same_bits.sh [PRESET ...]
set -eu
cd "$(dirname "$0")/.."
[ $# -gt 0 ] || set -- release debug clang-release clang-debug
first=
for preset in "$@"; do
    cmake --preset "$preset" -DFERNA_TESTS=ON > /dev/null
    cmake --build --preset "$preset" --target print_bits -j2 > /dev/null
    bits=build/$preset/print_bits.txt
    "build/$preset/tests/print_bits" tests/golden/solver.tasks.jsonl data > "$bits"
    echo "$preset: $(wc -l < "$bits") lines, sha256 $(sha256sum < "$bits" | cut -c1-16)"
    [ -n "$first" ] || first=$bits
    cmp "$first" "$bits"
done
echo "same bits in all of: $*"
