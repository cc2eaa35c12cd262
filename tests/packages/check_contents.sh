#!/usr/bin/env bash
# Looks at the Debian packages in FOLDER: what lintian says of them, whether the symbols that other
# packages depend on are those that the library exports and the agreed ones, and whether they are
# stripped.
#
# Usage: check_contents.sh FOLDER EXPORTS
set -euo pipefail
folder=$1 exports=$2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

fail() {
  echo "$*"
  exit 1
}

names=$(for package in "$folder"/*.deb; do dpkg-deb -f "$package" Package; done | sort | xargs)
[ "$names" = "kxxlate-doc kxxlate-tools libkxxlate-dev libkxxlate12" ] || fail "There are: $names"

# Root is warned not to be root, whatever the packages are.
said=$(lintian --allow-root --fail-on none "$folder"/*.deb)
[ -z "$said" ] || fail "$said"

for package in "$folder"/*.deb; do
  dpkg-deb -R "$package" "$scratch/$(dpkg-deb -f "$package" Package)"
done
unpacked=$scratch/libkxxlate12
library=$(find "$unpacked" -name 'libKxXlate.so.12.*' -type f)
readelf --dynamic "$library" | grep -q 'SONAME.*\[libKxXlate\.so\.12\]' || fail "Wrong SONAME."
[ "$(readlink "${library%/*}/libKxXlate.so.12")" = "${library##*/}" ] || fail "No libKxXlate.so.12."

# Without an argument c++filt takes names from its input, and gives constructors one name.
sed -n 's/^ \(.*\)@Base .*/\1/p' "$unpacked/DEBIAN/symbols" | sort >"$scratch/listed"
nm --dynamic --defined-only "$library" | cut -d ' ' -f 3 | sort >"$scratch/exported"
diff "$scratch/listed" "$scratch/exported" || fail "The symbols file is not what is exported."
c++filt <"$scratch/listed" | sort -u >"$scratch/demangled"
sort "$exports" | diff "$scratch/demangled" - || fail "The symbols file is not what was agreed."

for file in "$library" "$scratch/kxxlate-tools/usr/bin/kxxlate"; do
  ! readelf --sections "$file" | grep -qE '\.(symtab|debug_)' || fail "$file is not stripped."
done
"$(dirname "$0")/check_hardening.sh" fortified "$library" "$scratch/kxxlate-tools/usr/bin/kxxlate"
grep -q 'All rights reserved. The owner has named no licence yet.' \
  "$scratch"/*/usr/share/doc/*/copyright || fail "No word on the licence."
for name in README.md docs/markers.md html/index.html examples/host.cpp examples/catalogues/resources; do
  [ -e "$scratch/kxxlate-doc/usr/share/doc/kxxlate-doc/$name" ] || fail "$name is not in kxxlate-doc."
done
echo "Contents of $names: as agreed; lintian is silent."
