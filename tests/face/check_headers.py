#!/usr/bin/env python3
"""Compiles each public header of the face alone, as a host would that includes no other, with warnings
as errors.

Usage: check_headers.py COMPILER STANDARD"""

import pathlib
import subprocess
import sys

INCLUDE = pathlib.Path(__file__).resolve().parent.parent.parent / "include"
WARNINGS = ["-Wall", "-Wextra", "-Wpedantic", "-Wshadow", "-Wconversion", "-Wsign-conversion",
            "-Wdeprecated", "-Wold-style-cast", "-Werror"]


def main():
    compiler, standard = sys.argv[1:]
    headers = sorted([*INCLUDE.glob("KxXlate*"), *INCLUDE.glob("kxxlate/*.hpp")])
    runs = []
    for header in headers:
        command = [compiler, f"-std=c++{standard}", "-fsyntax-only", *WARNINGS, "-I", INCLUDE,
                   "-x", "c++", "-"]
        program = f'#include "{header.relative_to(INCLUDE).as_posix()}"\n'
        run = subprocess.run(command, input=program, text=True, check=False)
        runs.append(run.returncode)
    if len(headers) < 10:
        print(f"only {len(headers)} headers found")
    return 1 if any(runs) or len(headers) < 10 else 0


if __name__ == "__main__":
    sys.exit(main())
