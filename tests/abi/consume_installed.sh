#!/usr/bin/env bash
# Installs the library into an empty folder and builds and runs a project that finds it there.
#
# Usage: consume_installed.sh CMAKE BUILD_DIRECTORY CONSUMER_SOURCES CXX_COMPILER CXX_FLAGS
set -euo pipefail
cmake=$1 build=$2 sources=$3 compiler=$4 flags=$5

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
"$cmake" --install "$build" --prefix "$scratch/prefix" >/dev/null
"$cmake" -G Ninja -S "$sources" -B "$scratch/build" -DCMAKE_PREFIX_PATH="$scratch/prefix" \
  -DCMAKE_CXX_COMPILER="$compiler" -DCMAKE_CXX_FLAGS="$flags" >/dev/null
"$cmake" --build "$scratch/build" >/dev/null
answer=$("$scratch/build/consumer")
[ "$answer" = "three of ten" ] || { echo "the consumer says: $answer"; exit 1; }
