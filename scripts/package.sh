#!/usr/bin/env bash
# Makes the packages: a zip for 64-bit Windows, and a set of Debian packages. They lie in build/.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/common.sh
show_help "$@"

need_packages "${BUILD_PACKAGES[@]}" "${WINDOWS_PACKAGES[@]}" "${PACKAGING_PACKAGES[@]}"

# package NAME PRESET OPTION...: builds a preset for release and packs what it installs.
package() {
  local build=build/package-$1 preset=$2
  shift 2
  echo "Building into $build."
  quietly cmake --preset "$preset" -B "$build" -DCMAKE_BUILD_TYPE=Release -DKXXLATE_TESTS=OFF "$@"
  quietly cmake --build "$build"
  (cd "$build" && quietly cpack)
}

package linux release -DCMAKE_INSTALL_PREFIX=/usr
package windows mingw
ls -l build/package-*/*.deb build/package-*/*.zip
