#!/usr/bin/env bash
# Installs or unpacks the library into an empty folder, builds and runs a project that finds it there,
# and runs the tool from there on the example catalogues.
#
# Usage: consume.sh installed|packed BUILD_DIRECTORY CONSUMER_SOURCES PROGRAM CATALOGUES
#                   OPTION... -- RUNNER...
#
# The options are for the consumer's configuration; the runner is what starts programs of another
# system, or nothing.
set -euo pipefail
how=$1 build=$2 sources=$3 program=$4 catalogues=$5
shift 5
options=()
while [ "$1" != -- ]; do
  options+=("$1")
  shift
done
shift

top=$(mktemp -d)
trap 'rm -rf "$top"' EXIT
# So deep that no program here has a directory above it in which others left catalogues.
scratch=$top/of/one/test
mkdir -p "$scratch"
# A user's folder has a blank in its name, and letters outside the code pages of the West.
folder=$scratch/$'unpacked \303\274\346\227\245'
case $how in
  installed)
    cmake --install "$build" --prefix "$folder"
    ;;
  packed)
    (cd "$build" && cpack -B "$scratch/packages")
    mkdir "$folder"
    for package in "$scratch"/packages/*.deb; do
      [ ! -e "$package" ] || dpkg-deb -x "$package" "$folder"
    done
    for package in "$scratch"/packages/*.zip; do
      [ ! -e "$package" ] || python3 -m zipfile -e "$package" "$folder"
    done
    ;;
esac
prefix=$(dirname "$(dirname "$(find "$folder" -path '*/include/CKxXlate.h')")")
for needed in README.md CKxXlate.h Xlate.h KxXlateExport.h KxXlate.hpp translator.hpp \
  KxXlateConfig.cmake; do
  [ -n "$(find "$prefix" -name "$needed")" ] || { echo "$needed is missing"; exit 1; }
done

# expect EXPECTED COMMAND...: compares what the command writes, byte for byte.
expect() {
  local expected=$1 written
  shift
  written=$("$@")
  [ "$written" = "$expected" ] || { echo "$*: $written"; exit 1; }
}

# A library of the other system is looked for below the folders of its compiler, unless named.
mkdir "$scratch/consumer"
cp "$sources/found/CMakeLists.txt" "$sources/main.cpp" "$scratch/consumer"
cmake -G Ninja -S "$scratch/consumer" -B "$scratch/build" "${options[@]}" \
  -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_FIND_ROOT_PATH="$prefix"
cmake --build "$scratch/build"
# Some systems look for libraries in the program's folder alone.
find "$prefix" -name '*.dll' -exec cp {} "$scratch/build" \;
expect "three of ten" "$@" "$scratch/build/$program"

cp -r "$catalogues" "$prefix/resources"
text=$(sed -n 's/^WELCOME_USER = //p' "$catalogues/agent_ja.properties")
name=$'\303\211va'
cd "$prefix/bin"
expect "$(sed "s/%0/$name/; s/%1/3/" <<<"$text")" "$@" ./kxxlate* get agent ja WELCOME_USER "$name" 3
