#!/usr/bin/env bash
# Fails when a consumer below FOLDER needs more than six lines to build. CMake's own first line, which
# says for which CMake the others are written, is not about the library.
#
# Usage: check_consumer_lines.sh FOLDER
set -euo pipefail
found=0
for file in "$1"/*/CMakeLists.txt "$1"/*/meson.build; do
  lines=$(grep -cvE '^(#|$|cmake_minimum_required)' "$file")
  [ "$lines" -le 6 ] || { echo "$file: $lines lines, more than six"; exit 1; }
  found=$((found + 1))
done
[ "$found" -ge 5 ] || { echo "Only $found consumers below $1."; exit 1; }
