#!/usr/bin/env python3
"""Compares the code that the guide shows of other libraries with the programs that tests run."""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]


def main():
    programs = [path.read_text() for path in sorted((ROOT / "examples/comparison").glob("*.cpp"))]
    shown = re.findall(r"^```c\+\+\n(.*?)^```$", (ROOT / "docs/guide.md").read_text(),
                       re.MULTILINE | re.DOTALL)
    for excerpt in shown:
        if not any(excerpt in program for program in programs):
            print(f"no program of examples/comparison has\n{excerpt}")
            return 1
    if len(shown) != len(programs):
        print(f"{len(shown)} programs shown, {len(programs)} there")
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
