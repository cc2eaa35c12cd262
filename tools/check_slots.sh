#!/usr/bin/env bash
# Shows that Microsoft's compiler gives the translators' operations their fixed places, though it
# orders overloads in a way of its own, and sizes and fields what they have elsewhere: clang lays
# classes out as that compiler does. tests/abi/slot_layout.cpp asserts the sizes.
#
# Usage: check_slots.sh [CLANG]
set -euo pipefail
cd "$(dirname "$0")/.."
clang=${1:-clang++}

# Prints the table with this heading: each line is a place and the operation there, without its
# result and class.
layout_of() {
  "$clang" --target=x86_64-pc-windows-msvc -std=c++20 -nostdinc \
    -I tests/abi/msvc_stubs -I include -I src -DKXXLATE_BUILDING -Xclang -fdump-vtable-layouts \
    -c tests/abi/slot_layout.cpp -o /dev/null |
    awk -v head="VFTable for $1 (" '
      index($0, head) == 1 { inside = 1; next }
      /^VFTable/ { inside = 0 }
      # The first entry lies in front of the table and describes the class.
      inside && / \| / && !/ RTTI$/ {
        place = $1 - 1
        sub(/ \[pure\]$/, "")
        sub(/^.*::/, "")
        print place, $0
      }'
}

expected_of_both='0 Release()
1 AddRef()
2 GetName()
3 GetLanguageCode()
4 GetCountryCode()
5 GetLongName()
6 GetCharset()
7 GetId()
8 GetImageDirectory()
9 GetDirection()
10 GetPromptSuffix()
11 GetDirectory(const char *)
12 GetDirectory(char *, KxSize, const char *)
13 GetText(const char *)
14 GetText(char *, KxSize, const char *, const char *)
15 GetLabel(const char *)
16 GetLabel(char *, KxSize, const char *)
17 GetPrompt(char *, KxSize, const char *, const char *)'

compare() {
  diff <(printf '%s\n' "$2") <(layout_of "$1") || { echo "the table for $1 differs"; exit 1; }
}

compare "'CKxXlate'" "$expected_of_both
18 ~CKxXlate() [scalar deleting]"
compare "'CKxXlate' in 'CRealKxXlate'" "$expected_of_both
18 ~CRealKxXlate() [scalar deleting]
19 GetDisplayName()"
