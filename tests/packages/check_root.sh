#!/usr/bin/env bash
# Installs the Debian packages in FOLDER into a minimal system of its own, upgrades and removes them
# there, and builds a host against them. To be run by root.
#
# Usage: check_root.sh FOLDER CONSUMER_SOURCE
set -euo pipefail
folder=$1 consumer=$2
[ "$(id -u)" -eq 0 ] || { echo "Only root can install packages, even into a system of their own."; exit 1; }
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
root=$scratch/root
here=$(dirname "$0")
triplet=$(dpkg-architecture -qDEB_HOST_MULTIARCH)

fail() {
  echo "$*"
  exit 1
}

# inside COMMAND...: runs a command in the system, and shows what it writes if it fails.
inside() {
  env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive \
    chroot "$root" "$@" >"$scratch/said" 2>&1 || { cat "$scratch/said"; fail "Failed: $*"; }
}

# install FOLDER: as an administrator does with the files of packages.
install() {
  rm -rf "$root/tmp/packages"
  cp -r "$1" "$root/tmp/packages"
  inside sh -c 'apt-get install -y --no-install-recommends /tmp/packages/*.deb'
  rm -r "$root/tmp/packages"
  inside dpkg --audit
  [ ! -s "$scratch/said" ] || fail "dpkg complains: $(cat "$scratch/said")"
}

# Everything there is, but for what the package tools write about themselves.
inventory() {
  (cd "$root" && find . -xdev \( -path ./dev -o -path ./proc -o -path ./sys -o -path ./tmp \
    -o -path ./var/cache -o -path ./var/log -o -path ./var/lib/apt -o -path ./var/lib/dpkg \) \
    -prune -o -printf '%p %y %m %l\n' | sort)
}

# works: the tool and a host that was built before do what they are for.
works() {
  inside kxxlate --resources /usr/share/doc/kxxlate-doc/examples/catalogues/resources \
    get agent en WELCOME_USER Ann 3
  grep -q Ann "$scratch/said" || fail "kxxlate wrote: $(cat "$scratch/said")"
  cp "$scratch/consumer" "$root/tmp/consumer"
  inside /tmp/consumer
  [ "$(cat "$scratch/said")" = "three of ten" ] || fail "The host wrote: $(cat "$scratch/said")"
}

packages=$scratch/packages
mkdir "$packages"
cp "$folder"/*.deb "$packages"
# dpkg-dev is for the host that is built; it brings no compiler.
mmdebstrap --quiet --variant=apt --include=libstdc++6,dpkg-dev \
  "$(. /etc/os-release && echo "$VERSION_CODENAME")" "$root"
inventory >"$scratch/before"

install "$packages"
inside ldconfig --print-cache
grep -q 'libKxXlate\.so\.12 ' "$scratch/said" || fail "The loader does not know libKxXlate.so.12."
c++ -std=c++17 "$consumer" -o "$scratch/consumer" -I "$root/usr/include" \
  -L "$root/usr/lib/$triplet" -lKxXlate
works

# What another package that has the host must depend on.
mkdir -p "$root/tmp/host/debian"
printf 'Source: host\n\nPackage: host\nArchitecture: any\n' >"$root/tmp/host/debian/control"
inside sh -c 'cd /tmp/host && dpkg-shlibdeps -O /tmp/consumer'
grep -q '^shlibs:Depends=.*libkxxlate12 (>= 12\.' "$scratch/said" ||
  fail "dpkg-shlibdeps wrote: $(cat "$scratch/said")"

"$here/make_other_versions.sh" "$packages" "$scratch/earlier" "$scratch/later"
install "$scratch/later"
works
inside dpkg-query -W -f '${Version}\n' libkxxlate12
grep -q -- '-2$' "$scratch/said" || fail "It was not upgraded: $(cat "$scratch/said")"

inside apt-get purge -y libkxxlate12 libkxxlate-dev kxxlate-tools kxxlate-doc
inventory | diff "$scratch/before" - || fail "Removed packages left that behind."

# The set had other names once.
install "$scratch/earlier"
install "$packages"
works
inside dpkg-query -W -f '${Package} ${db:Status-Status}\n' '*kxxlate*'
! grep -E '^kxxlate(-dev)? installed' "$scratch/said" || fail "It is still there."
inside apt-get purge -y libkxxlate12 libkxxlate-dev kxxlate-tools kxxlate-doc kxxlate kxxlate-dev
inventory | diff "$scratch/before" - || fail "Replaced packages left that behind."
echo "Installation, upgrade and removal: as agreed; a host depends on libkxxlate12."
