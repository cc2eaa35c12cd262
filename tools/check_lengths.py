#!/usr/bin/env python3
"""Checks that no file that people write is longer than can be read in one go. Prints each that is,
and exits 1 if any."""

import pathlib
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
FOLDERS = ("src", "include", "tests", "tools", "bench", "examples")
MOST_LINES = 300
# What a fuzzer found is not written by anybody.
NOT_WRITTEN = ("tests/fuzz/corpus/",)


def written_files():
    for folder in FOLDERS:
        for path in sorted((ROOT / folder).rglob("*")):
            name = path.relative_to(ROOT).as_posix()
            if path.is_file() and not name.startswith(NOT_WRITTEN) and path.suffix != ".pyc":
                yield name, path


def main():
    too_long = False
    for name, path in written_files():
        lines = path.read_bytes().count(b"\n")
        if lines > MOST_LINES:
            print(f"{name}: {lines} lines, more than {MOST_LINES}; split it along what it is about")
            too_long = True
    return 1 if too_long else 0


if __name__ == "__main__":
    sys.exit(main())
