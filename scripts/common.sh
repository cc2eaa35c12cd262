# What the scripts share; to be sourced.

# show_help ARGUMENT...: for --help, prints how the script is used, which its first comment tells, and
# ends it. To be called in the project's folder, to which each script goes first.
show_help() {
  case " $* " in *' --help '*) ;; *) return 0 ;; esac
  (cd "$OLDPWD" && sed -n '2,/^[^#]/s/^# \{0,1\}//p' "$0")
  exit 0
}

# need_packages PACKAGE...: installs the Debian packages that are missing, and says so.
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
  quietly "${as_root[@]}" apt-get update -qq
  quietly "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

# quietly COMMAND...: shows what the command writes only if it fails.
quietly() {
  local written status=0
  written=$(mktemp)
  "$@" >"$written" 2>&1 || status=$?
  [ "$status" -eq 0 ] || cat "$written"
  rm "$written"
  return "$status"
}

BUILD_PACKAGES=(cmake ninja-build g++ libcli11-dev)
TEST_PACKAGES=(libgtest-dev libgmock-dev python3 binutils clang libclang-rt-dev doxygen logrotate
  pkg-config meson)
# What the examples are built with beside the library, and their clients.
EXAMPLE_PACKAGES=(libcpp-httplib-dev wrk curl gettext libicu-dev icu-devtools libboost-locale-dev)
# Two thread models of one compiler: the library's, and the one whose std::thread the tests use.
# llvm makes the import library for Microsoft's compiler; clang and lld build hosts as that would.
WINDOWS_PACKAGES=(g++-mingw-w64-x86-64-win32 g++-mingw-w64-x86-64-posix googletest wine wine64
  python3 binutils llvm clang lld)
BENCH_PACKAGES=(libbenchmark-dev python3 pkg-config libabsl-dev libfmt-dev libicu-dev icu-devtools
  libboost-locale-dev gettext libglib2.0-dev libsimdjson-dev)
PACKAGING_PACKAGES=(dpkg-dev file python3 doxygen)
# For the packages that are made: what looks at them, and what makes a system to install them into.
PACKAGE_TEST_PACKAGES=(lintian mmdebstrap python3-jsonschema binutils)
