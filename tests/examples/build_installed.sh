#!/usr/bin/env bash
# Installs the library and its examples into an empty folder, builds one of them there as a reader of
# the documents would, and runs it.
#
# Usage: build_installed.sh host|http_server|comparison BUILD_DIRECTORY COMPILER
set -euo pipefail
example=$1 build=$2 compiler=$3
here=$(cd "$(dirname "$0")" && pwd)

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
prefix=$scratch/installed
cmake --install "$build" --prefix "$prefix"
examples=$(dirname "$(find "$prefix" -path '*/examples/host.cpp')")
library=$(dirname "$(find "$prefix" -name libKxXlate.so)")
export LD_LIBRARY_PATH=$library

# expect EXPECTED COMMAND...: compares what the command writes, byte for byte.
expect() {
  local expected=$1 written
  shift
  written=$("$@")
  [ "$written" = "$expected" ] || { echo "$*: $written"; exit 1; }
}

cd "$examples"
if [ "$example" = host ]; then
  "$compiler" -std=c++17 -I "$prefix/include" -L "$library" host.cpp -o "$scratch/host" -lKxXlate
  export TAVI_XLATE_ROOT=catalogues
  expect "Bonjour, Ann. Vous avez 3 messages non lus." "$scratch/host" fr-CA
  exit
fi
cmake -G Ninja -S "$example" -B "$scratch/build" -DCMAKE_CXX_COMPILER="$compiler" \
  -DCMAKE_PREFIX_PATH="$prefix"
cmake --build "$scratch/build"
if [ "$example" = http_server ]; then
  python3 -B "$here/http_server_test.py" "$scratch/build/http_server" catalogues/resources
else
  for library in kxxlate gettext icu boost_locale; do
    TAVI_XLATE_ROOT=comparison/catalogues \
      expect "Bienvenue sur alpha, Ann." "$scratch/build/greet_with_$library" fr
  done
fi
