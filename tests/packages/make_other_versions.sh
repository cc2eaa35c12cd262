#!/usr/bin/env bash
# Makes packages to upgrade from and to: those of the names that the set had once, with files of the
# same paths, and the set itself as a later build would be.
#
# Usage: make_other_versions.sh PACKAGES EARLIER LATER
set -euo pipefail
packages=$1 earlier=$2 later=$3
mkdir "$earlier" "$later"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
triplet=$(dpkg-architecture -qDEB_HOST_MULTIARCH)

# earlier_package NAME FILE...
earlier_package() {
  local name=$1 file
  shift
  mkdir -p "$scratch/$name/DEBIAN"
  cat >"$scratch/$name/DEBIAN/control" <<CONTROL
Package: $name
Version: 12.8.801
Architecture: $(dpkg --print-architecture)
Maintainer: KxXlate developers <kxxlate@example.org>
Description: stands for a package of an earlier time
CONTROL
  for file in "$@"; do
    mkdir -p "$scratch/$name/$(dirname "$file")"
    echo "of an earlier time" >"$scratch/$name/$file"
  done
  dpkg-deb --root-owner-group --build "$scratch/$name" "$earlier" >/dev/null
}

earlier_package kxxlate "usr/lib/$triplet/libKxXlate.so" usr/bin/kxxlate \
  usr/share/doc/KxXlate/README.md
earlier_package kxxlate-dev usr/include/CKxXlate.h "usr/lib/$triplet/cmake/KxXlate/KxXlateConfig.cmake"

for package in "$packages"/*.deb; do
  unpacked=$scratch/$(basename "$package")
  dpkg-deb -R "$package" "$unpacked"
  version=$(dpkg-deb -f "$package" Version)
  sed -i "s/${version//./\\.}/${version%-*}-2/" "$unpacked/DEBIAN/control"
  dpkg-deb --root-owner-group --build "$unpacked" "$later" >/dev/null
done
