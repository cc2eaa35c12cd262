#!/usr/bin/env bash
# Unpacks the zip for Windows, builds the example that is in it as its reader would, and runs it.
#
# Usage: build_packed_example.sh BUILD_DIRECTORY TOOLCHAIN_FILE -- RUNNER...
set -euo pipefail
build=$1 toolchain=$2
shift 3
top=$(mktemp -d)
trap 'rm -rf "$top"' EXIT
scratch=$top/of/one/test
mkdir -p "$scratch"
(cd "$build" && cpack -B "$scratch/packages" >/dev/null)
python3 -m zipfile -e "$scratch"/packages/*.zip "$scratch"
prefix=$(dirname "$scratch"/*/bin)
cmake -G Ninja -S "$prefix/share/doc/KxXlate/examples" -B "$scratch/build" \
  -DCMAKE_TOOLCHAIN_FILE="$toolchain" -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_FIND_ROOT_PATH="$prefix"
cmake --build "$scratch/build"
cd "$scratch/build"
text=$(sed -n 's/^WELCOME_USER = //p' resources/agent_ja.properties)
expected=$(sed "s/%0/Ann/; s/%1/3/" <<<"$text")
written=$("$@" ./example_host.exe ja | tr -d '\r')
[ "$written" = "$expected" ] || { echo "wrote: $written"; exit 1; }
