# To be sourced. need_packages PACKAGE...: installs the Debian packages that are missing, and says
# so.
need_packages() {
  local missing=()
  local package
  for package in "$@"; do
    dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed ||
      missing+=("$package")
  done
  if [ "${#missing[@]}" -eq 0 ]; then
    echo "Packages: all there ($*)."
    return
  fi
  echo "Packages: installing ${missing[*]}."
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "Neither root nor sudo: install them by hand."; return 1; }
    as_root=(sudo)
  fi
  "${as_root[@]}" apt-get update -qq
  DEBIAN_FRONTEND=noninteractive \
    "${as_root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

BUILD_PACKAGES=(cmake ninja-build g++ libcli11-dev)
TEST_PACKAGES=(libgtest-dev libgmock-dev python3 binutils clang)
WINDOWS_PACKAGES=(g++-mingw-w64-x86-64-posix googletest wine wine64 python3 binutils)
PACKAGING_PACKAGES=(dpkg-dev file)
