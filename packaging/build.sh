#!/usr/bin/env bash
# Makes the Debian package, whole: installs what is missing for it, also the word processor's
# development files, builds, and packs. The package lies in build/release/package.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
source tools/setup.sh

install_missing "${build_packages[@]}" "${run_packages[@]}" "${package_packages[@]}"
# A folder that run.sh has configured knows nothing yet of what was installed now.
settings=()
[[ -f build/release/build.ninja ]] || settings=(-DFERNA_TESTS=OFF -DFERNA_BENCH=OFF)
cmake --preset release "${settings[@]}" >/dev/null
build_preset release
step "Packing"
cpack --preset release
ls -l build/release/package/*.deb
