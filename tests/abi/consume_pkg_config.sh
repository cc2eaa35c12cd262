#!/usr/bin/env bash
# Installs the library into an empty folder, moves it elsewhere, and builds and runs a project that
# finds it there by pkg-config: with CMake, with meson, or with the compiler alone.
#
# Usage: consume_pkg_config.sh cmake|meson|compiler BUILD_DIRECTORY CONSUMERS COMPILER
set -euo pipefail
how=$1 build=$2 consumers=$3 compiler=$4

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cmake --install "$build" --prefix "$scratch/first"
# Nothing of what is installed may say where it was.
prefix="$scratch/moved here"
mv "$scratch/first" "$prefix"
found=$(find "$prefix" -name kxxlate.pc)
library=$(find "$prefix" -name libKxXlate.so)
PKG_CONFIG_PATH=$(dirname "$found")
export PKG_CONFIG_PATH
cd "$scratch"
cp "$consumers/main.cpp" .
case $how in
  cmake)
    cp "$consumers/pkg_config/CMakeLists.txt" .
    cmake -G Ninja -S . -B build -DCMAKE_CXX_COMPILER="$compiler"
    cmake --build build
    ;;
  meson)
    cp "$consumers/meson/meson.build" .
    CXX=$compiler meson setup build
    meson compile -C build
    ;;
  compiler)
    mkdir build
    pkg-config --cflags --libs "kxxlate >= 12" |
      xargs "$compiler" -std=c++17 main.cpp -o build/consumer
    ;;
esac

# Hosts run where the files for development are not installed.
target=$(readlink "$library")
[ "$target" = libKxXlate.so.12 ] || { echo "libKxXlate.so leads to $target"; exit 1; }
rm "$library"
written=$(LD_LIBRARY_PATH=$(dirname "$library") build/consumer)
[ "$written" = "three of ten" ] || { echo "The consumer wrote: $written"; exit 1; }
readelf --dynamic build/consumer | grep -q 'NEEDED.*\[libKxXlate\.so\.12\]' ||
  { echo "The consumer does not ask for libKxXlate.so.12."; exit 1; }
