#!/usr/bin/env python3
"""Compares what the finished DLL exports and which libraries it needs with what is agreed.

Usage: check_windows_library.py OBJDUMP LIBRARY LIST NEEDED...

LIST holds one exported name a line, as it stands in the DLL: hosts link these very names. NEEDED
are the only libraries that the DLL may need, and does.
"""

import re
import subprocess
import sys


def difference(found, agreed, verb):
    for name in sorted(found - agreed):
        yield f"{verb}, but not agreed: {name}"
    for name in sorted(agreed - found):
        yield f"agreed, but not {verb}: {name}"


def main():
    objdump, library, listing, *needed = sys.argv[1:]
    headers = subprocess.run([objdump, "-p", library], check=True, capture_output=True,
                             text=True).stdout
    names = headers[headers.index("[Ordinal/Name Pointer] Table"):]
    exported = set(re.findall(r"^\s+\[ *\d+\] +(?:\S+ +)?(\S+)$", names, re.M))
    imported = set(re.findall(r"^\s*DLL Name: (\S+)$", headers, re.M))
    with open(listing, encoding="ascii") as file:
        agreed = set(file.read().split())
    breaches = [*difference(exported, agreed, "exported"),
                *difference(imported, set(needed), "needed")]
    print("\n".join(breaches))
    return 1 if breaches else 0


if __name__ == "__main__":
    sys.exit(main())
