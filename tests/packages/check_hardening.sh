#!/usr/bin/env bash
# Looks whether a binary has the defences of code that reads other people's files. "fortified" wants
# those too that only an optimised build has.
#
# Usage: check_hardening.sh built|fortified FILE...
set -euo pipefail
how=$1
shift

# wants PATTERN WHAT COMMAND...: looks for a line in what a command writes.
wants() {
  local pattern=$1 what=$2
  shift 2
  "$@" | grep -E -- "$pattern" >/dev/null || { echo "$file: $what"; exit 1; }
}

for file in "$@"; do
  wants 'FLAGS_1.*NOW' 'its functions are not all bound at the start' readelf --dynamic "$file"
  wants 'GNU_RELRO' 'what the loader wrote stays writable' readelf --segments --wide "$file"
  wants 'GNU_STACK.* RW ' 'its stack is executable' readelf --segments --wide "$file"
  wants 'DYN \(' 'it does not run at any address' readelf --file-header "$file"
  wants '__stack_chk_fail' 'its stack is not protected' readelf --dyn-syms --wide "$file"
  [ "$how" = built ] || wants '__[a-z]+_chk@' 'no call is fortified' \
    bash -c 'readelf --dyn-syms --wide "$1" | grep -v __stack_chk_fail' _ "$file"
  if [ "$(uname -m)" = x86_64 ]; then
    wants 'SHSTK' 'it is not marked for the shadow stack' readelf --notes "$file"
    wants 'endbr64' 'indirect branches have no marked targets' objdump --disassemble "$file"
  fi
done
