#!/usr/bin/env bash
# Installs the library into an empty folder and builds and runs a project that finds it there.
#
# Usage: consume_installed.sh CMAKE BUILD_DIRECTORY CONSUMER_SOURCES PROGRAM OPTION... -- RUNNER...
#
# The options are for the consumer's configuration; the runner is what starts programs of another
# system, or nothing.
set -euo pipefail
cmake=$1 build=$2 sources=$3 program=$4
shift 4
options=()
while [ "$1" != -- ]; do
  options+=("$1")
  shift
done
shift

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
"$cmake" --install "$build" --prefix "$scratch/prefix" >/dev/null
# A library of the other system is looked for below the folders of its compiler, unless named.
"$cmake" -G Ninja -S "$sources" -B "$scratch/build" "${options[@]}" \
  -DCMAKE_PREFIX_PATH="$scratch/prefix" -DCMAKE_FIND_ROOT_PATH="$scratch/prefix" >/dev/null
"$cmake" --build "$scratch/build" >/dev/null
# Some systems look for libraries in the program's folder alone.
find "$scratch/prefix" -name '*.dll' -exec cp {} "$scratch/build" \;
answer=$("$@" "$scratch/build/$program" | tr -d '\r')
# The installed tool, too, has to find the library.
version=$("$@" "$(find "$scratch/prefix" -name 'kxxlate*' -path '*/bin/*')" --version | tr -d '\r')
case $version in *KxXlate.dll*) ;; *) echo "the installed tool says: $version"; exit 1 ;; esac
[ "$answer" = "three of ten" ] || { echo "the consumer says: $answer"; exit 1; }
