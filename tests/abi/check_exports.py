#!/usr/bin/env python3
"""Compares the names that the finished library exports with the agreed list.

Usage: check_exports.py NM LIBRARY LIST

LIST holds one demangled name a line. Both constructors of a class (and all three destructors) have
one demangled name, which stands there once.
"""

import subprocess
import sys


def exported(nm, library):
    output = subprocess.run([nm, "--dynamic", "--defined-only", "--demangle", library], check=True,
                            capture_output=True, text=True).stdout
    return {line.split(" ", 2)[2] for line in output.splitlines()}


def main():
    nm, library, listing = sys.argv[1:]
    with open(listing, encoding="ascii") as file:
        agreed = {line.rstrip("\n") for line in file}
    found = exported(nm, library)
    for name in sorted(found - agreed):
        print("exported, but not agreed:", name)
    for name in sorted(agreed - found):
        print("agreed, but not exported:", name)
    return 0 if found == agreed else 1


if __name__ == "__main__":
    sys.exit(main())
