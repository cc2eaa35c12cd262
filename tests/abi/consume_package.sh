#!/usr/bin/env bash
# Packs what was built, unpacks it into an empty folder, and builds and runs a project that finds the
# library there.
#
# Usage: consume_package.sh CPACK BUILD_DIRECTORY CONSUMER_SOURCES PROGRAM OPTION... -- RUNNER...
#
# As for consume_installed.sh.
set -euo pipefail
cpack=$1 build=$2 sources=$3 program=$4
shift 4
options=()
while [ "$1" != -- ]; do
  options+=("$1")
  shift
done
shift

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
(cd "$build" && "$cpack" -B "$scratch/packages" >/dev/null)
mkdir "$scratch/unpacked"
for package in "$scratch"/packages/*.deb; do
  [ ! -e "$package" ] || dpkg-deb -x "$package" "$scratch/unpacked"
done
for package in "$scratch"/packages/*.zip; do
  [ ! -e "$package" ] || python3 -m zipfile -e "$package" "$scratch/unpacked"
done
prefix=$(dirname "$(dirname "$(find "$scratch/unpacked" -name CKxXlate.h)")")
for needed in README.md CKxXlate.h Xlate.h KxXlateExport.h KxXlateConfig.cmake; do
  [ -n "$(find "$prefix" -name "$needed")" ] || { echo "the package lacks $needed"; exit 1; }
done

cmake -G Ninja -S "$sources" -B "$scratch/build" "${options[@]}" -DCMAKE_PREFIX_PATH="$prefix" \
  -DCMAKE_FIND_ROOT_PATH="$prefix" >/dev/null
cmake --build "$scratch/build" >/dev/null
find "$prefix" -name '*.dll' -exec cp {} "$scratch/build" \;
answer=$("$@" "$scratch/build/$program" | tr -d '\r')
[ "$answer" = "three of ten" ] || { echo "the consumer says: $answer"; exit 1; }
version=$("$@" "$(find "$prefix" -name 'kxxlate*' -path '*/bin/*')" --version | tr -d '\r')
case $version in *KxXlate.dll*) ;; *) echo "the packed tool says: $version"; exit 1 ;; esac
