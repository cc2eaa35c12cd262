#!/usr/bin/env bash
# Makes the packages: a zip for 64-bit Windows, and a set of Debian packages. They lie in
# build/packages, with the list of what they consist of and their sums. The same commit gives the same
# bytes, in whatever folder.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/common.sh
show_help "$@"

need_packages "${BUILD_PACKAGES[@]}" "${WINDOWS_PACKAGES[@]}" "${PACKAGING_PACKAGES[@]}"
packages=build/packages
rm -rf "$packages" build/package-*/*.deb build/package-*/*.zip
mkdir -p "$packages"
# The time that stands in the packages: that of the commit. Where there is none, one day for all.
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct 2>/dev/null || echo 1767225600)}
export SOURCE_DATE_EPOCH
# An archive for Windows has local times, and what is installed the rights that the caller's files get.
export TZ=UTC
umask 022

# package NAME PRESET TARGET OPTION...: builds a preset for release and packs what it installs.
package() {
  local build=build/package-$1 preset=$2 target=$3
  shift 3
  echo "Building into $build."
  quietly cmake --preset "$preset" -B "$build" -DCMAKE_BUILD_TYPE=Release -DKXXLATE_TESTS=OFF "$@"
  quietly cmake --build "$build" --target all "$target"
  (cd "$build" && quietly cpack)
}

# Pages of the headers and documents are for the Debian packages only, which have one for them.
package linux release docs -DCMAKE_INSTALL_PREFIX=/usr -DCMAKE_INSTALL_DOCDIR=share/doc/kxxlate-doc
package windows mingw all
cp build/package-*/*.deb build/package-*/*.zip "$packages"
version=$(sed -n 's/^project(KxXlate VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
packaging/make_sbom.py "$version" "$packages"
(cd "$packages" && LC_ALL=C sha256sum -- *.deb *.zip *.json >SHA256SUMS)
ls -l "$packages"
