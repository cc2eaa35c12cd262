#!/usr/bin/env bash
# Checks the packages that scripts/package.sh has made: what is in them, how they are installed and
# removed, and that a second build, elsewhere and under other circumstances, gives the same bytes.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/common.sh
show_help "$@"

need_packages "${BUILD_PACKAGES[@]}" "${PACKAGING_PACKAGES[@]}" "${PACKAGE_TEST_PACKAGES[@]}"
packages=build/packages
(cd "$packages" && sha256sum --quiet --check SHA256SUMS)
tests/packages/check_contents.sh "$packages" tests/abi/exports_linux.txt
# By its full name: another python3 that comes first does not see the system's modules.
/usr/bin/python3 tests/packages/check_sbom.py "$packages" packaging/cyclonedx
as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(sudo)  # as for installing what is missing
"${as_root[@]}" tests/packages/check_root.sh "$packages" tests/abi/consumer/main.cpp
tests/packages/check_same_bytes.sh "$packages"
