#!/usr/bin/env bash
# Makes the packages once more from a copy of the sources, in a folder of another name and length, with
# another language, time zone, and right to read what is made, and compares the sums with those in
# FOLDER.
#
# Usage: check_same_bytes.sh FOLDER
set -euo pipefail
folder=$(realpath "$1")
cd "$(dirname "$0")/../.."
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct 2>/dev/null || echo 1767225600)}
export SOURCE_DATE_EPOCH

copy=$scratch/a/folder/of/quite/another/name
mkdir -p "$copy"
tar --exclude=./build --exclude=./.git -cf - . | tar -C "$copy" -xf -
(umask 077 && LC_ALL=C.UTF-8 TZ=Asia/Tokyo "$copy/scripts/package.sh")
diff "$folder/SHA256SUMS" "$copy/build/packages/SHA256SUMS"
echo "A second build in another folder: the same bytes."
