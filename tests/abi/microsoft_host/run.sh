#!/usr/bin/env bash
# Runs a host beside the library and its catalogues, and compares all that it writes.
#
# Usage: run.sh HOST LIBRARY FOLDER -- RUNNER...
#
# FOLDER has the catalogues and the expected output; the runner is what starts the host.
set -euo pipefail
host=$1 library=$2 folder=$3
shift 4
top=$(mktemp -d)
trap 'rm -rf "$top"' EXIT
# So deep that the library finds nothing above it and writes its log in here.
place=$top/of/one/more/test
mkdir -p "$place"
cp -r "$host" "$library" "$folder/resources" "$place"
cd "$place"
"$@" ./"$(basename "$host")" >"$top/written" || { cat "$top/written"; echo "exit code $?"; exit 1; }
diff "$folder/expected.txt" "$top/written"
