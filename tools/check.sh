#!/usr/bin/env bash
# Checks what no test sees: format, layers, lints. Stops at the first that fails.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/common.sh
show_help "$@"

need_packages "${BUILD_PACKAGES[@]}" "${TEST_PACKAGES[@]}" "${EXAMPLE_PACKAGES[@]}" git clang-format clang-tidy clang
listed=$(git ls-files '*.h' '*.hpp' '*.cpp')
mapfile -t sources <<<"$listed"
echo "Format of ${#sources[@]} files."
clang-format --dry-run -Werror "${sources[@]}"
echo "Layers, platform conditionals, plain ASCII, lengths."
tools/check_includes.py
tools/check_lengths.py
echo "Lints."
quietly cmake --preset clang -DCMAKE_EXPORT_COMPILE_COMMANDS=ON
listed=$(git ls-files 'src/*.cpp' 'tools/*.cpp' ':!*_win32.cpp')
mapfile -t linted <<<"$listed"
printf '%s\0' "${linted[@]}" |
  xargs -0 -n 4 -P "$(nproc)" clang-tidy --quiet -p build/clang 2>/dev/null
