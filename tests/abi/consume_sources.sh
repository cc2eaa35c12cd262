#!/usr/bin/env bash
# Builds and runs a project that takes in the library's sources, from an empty folder, and looks that
# the library leaves everything else of that project alone.
#
# Usage: consume_sources.sh embedded|fetched SOURCES CONSUMERS OPTION...
set -euo pipefail
how=$1 sources=$2 consumers=$3
shift 3

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
project=$scratch/project build=$scratch/build
mkdir "$project"
cp "$consumers/$how/CMakeLists.txt" "$consumers/main.cpp" "$project"
options=("$@")
case $how in
  embedded)
    ln -s "$sources" "$project/KxXlate"
    ;;
  fetched)
    tar -C "$sources" --exclude=./build --exclude=./.git -czf "$scratch/KxXlate.tar.gz" .
    options+=(-DKXXLATE_ARCHIVE="file://$scratch/KxXlate.tar.gz")
    ;;
esac

cmake -G Ninja -S "$project" -B "$build" -DCMAKE_EXPORT_COMPILE_COMMANDS=ON "${options[@]}"
cmake --build "$build"
written=$("$build/consumer")
[ "$written" = "three of ten" ] || { echo "The consumer wrote: $written"; exit 1; }

# An option, definition, warning or standard that the project did not ask for, but for the standard that
# the headers need, where the compiler's own is an earlier one.
command=$(grep '"command".*/main\.cpp"' "$build/compile_commands.json" | sed 's/ -std=gnu++17 / /')
if grep -E -- ' -([DOW]|f|m|std)' <<<"$command"; then
  echo "The project is compiled in another way."
  exit 1
fi
ctest --test-dir "$build" --show-only | grep -qx 'Total Tests: 0' || { echo "It got tests."; exit 1; }
cmake --install "$build" --prefix "$scratch/installed"
for foreign in installed build/CPackConfig.cmake build/KxXlate/tools build/_deps/kxxlate-build/tools; do
  [ ! -e "$scratch/$foreign" ] || { echo "It got $foreign."; exit 1; }
done
