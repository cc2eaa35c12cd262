#!/usr/bin/env bash
# Builds the library with warnings as errors and runs every test.
#
#   scripts/test.sh [PRESET]     debug (the default), clang, asan, tsan, or mingw: for Windows, run
#                                under wine
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/common.sh
show_help "$@"

preset=${1:-debug}
packages=("${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}" "${EXAMPLE_PACKAGES[@]}" "${PACKAGING_PACKAGES[@]}")
[ "$preset" != mingw ] || packages+=("${WINDOWS_PACKAGES[@]}")
need_packages "${packages[@]}"
echo "Building into build/$preset."
quietly cmake --preset "$preset"
quietly cmake --build --preset "$preset"
# Tests that host the library themselves would find the developer's catalogues and log by these.
unset TAVI_XLATE_ROOT KXXLATE_LOG
ctest --preset "$preset" --parallel "$(nproc)" --schedule-random
