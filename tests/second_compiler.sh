#!/usr/bin/env bash
# What only the second compiler tells: the programs build with clang++ without a warning, it computes
# the same bits as g++, and clang-tidy finds nothing in what changed. Needs the release build.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source tools/files.sh

cmake --preset clang-release -DFERNA_TESTS=ON >/dev/null
cmake --build --preset clang-release --target ferna ferna-wsad Wyd_drk print_bits
tests/same_bits.sh release clang-release

# An unpacked archive does not know what changed.
! has_history || tools/lint.sh
