#!/usr/bin/env bash
# Runs a host beside the library and its catalogues, and compares all that it writes.
#
# Usage: run.sh HOST LIBRARY CATALOGUES EXPECTED -- RUNNER...
#
# EXPECTED is a file with the output; the runner is what starts the host.
set -euo pipefail
host=$1 library=$2 catalogues=$3 expected=$4
shift 5
top=$(mktemp -d)
trap 'rm -rf "$top"' EXIT
# So deep that the library finds nothing above it and writes its log in here.
place=$top/of/one/more/test
mkdir -p "$place"
cp "$host" "$library" "$place"
cp -r "$catalogues" "$place/resources"
cd "$place"
"$@" ./"$(basename "$host")" >"$top/written" || { cat "$top/written"; echo "exit code $?"; exit 1; }
diff "$expected" "$top/written"
