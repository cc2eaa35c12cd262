#!/usr/bin/env python3
"""Checks that Windows can protect finished DLLs and programs: they may be loaded at any place, data are
not executed, and nothing can be both written and executed.

Usage: check_windows_protection.py [--packed] FILE...

With --packed the files must have nothing for debuggers; without it they must not tell when they were
made. What makes them smaller for the package writes a time, which SOURCE_DATE_EPOCH sets.
"""

import struct
import sys

# Of the whole file.
RELOCS_STRIPPED = 0x0001
# What the system's loader is told.
TOLD = {"HIGH_ENTROPY_VA": 0x0020, "DYNAMIC_BASE": 0x0040, "NX_COMPAT": 0x0100}
# Of a section.
EXECUTE = 0x20000000
WRITE = 0x80000000

RELOCATION_DIRECTORY = 5
FOUR_GIB = 1 << 32


class PeFile:
    """The headers of a 64-bit file, as far as they are looked at here."""

    def __init__(self, image):
        start, = struct.unpack_from("<I", image, 0x3C)
        if image[start:start + 4] != b"PE\0\0":
            raise ValueError("no DLL or program")
        (_, section_count, self.time, _, self.symbols, optional_size,
         self.characteristics) = struct.unpack_from("<HHIIIHH", image, start + 4)
        optional = start + 24
        self.base, = struct.unpack_from("<Q", image, optional + 24)
        self.told, = struct.unpack_from("<H", image, optional + 70)
        self.relocations, self.relocations_size = struct.unpack_from(
            "<II", image, optional + 112 + 8 * RELOCATION_DIRECTORY)
        self.sections = []
        for i in range(section_count):
            header = optional + optional_size + 40 * i
            name = image[header:header + 8].rstrip(b"\0").decode("ascii")
            flags, = struct.unpack_from("<I", image, header + 36)
            self.sections.append((name, flags))


def breaches(file, packed):
    for name, flag in TOLD.items():
        if not file.told & flag:
            yield f"does not tell the loader {name}"
    # A file that wants to lie low gets few places to choose from.
    if file.base < FOUR_GIB:
        yield "wants to be loaded below 4 GiB"
    if file.characteristics & RELOCS_STRIPPED or file.relocations_size == 0:
        yield "has no relocations, so that it can be loaded at one place only"
    for name, flags in file.sections:
        if flags & EXECUTE and flags & WRITE:
            yield f"section {name} can be written and executed"
        # Long names, which those for debuggers have, stand elsewhere.
        if packed and name.startswith("/"):
            yield f"section {name} is for debuggers"
    if packed and file.symbols:
        yield f"has {file.symbols} symbols"
    if not packed and file.time:
        yield f"tells when it was made: {file.time}"


def main():
    arguments = sys.argv[1:]
    packed = arguments[:1] == ["--packed"]
    found = []
    for path in arguments[packed:]:
        with open(path, "rb") as opened:
            file = PeFile(opened.read())
        found += [f"{path}: {breach}" for breach in breaches(file, packed)]
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
