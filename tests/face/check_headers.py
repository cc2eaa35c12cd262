#!/usr/bin/env python3
"""Compiles each public header of the face alone, as a host would that includes no other, with warnings
as errors; and all of them behind the macros that the header of Windows leaves to hosts of Microsoft's
compiler.

Usage: check_headers.py COMPILER STANDARD"""

import pathlib
import re
import subprocess
import sys

INCLUDE = pathlib.Path(__file__).resolve().parent.parent.parent / "include"
WARNINGS = ["-Wall", "-Wextra", "-Wpedantic", "-Wshadow", "-Wconversion", "-Wsign-conversion",
            "-Wdeprecated", "-Wold-style-cast", "-Werror"]

# The standard library's headers stand before them, since not each one bears them.
MACROS = """#define min(a, b) (((a) < (b)) ? (a) : (b))
#define max(a, b) (((a) > (b)) ? (a) : (b))
"""


def behind_macros(headers):
    texts = "".join(header.read_text("ascii") for header in headers)
    standard = sorted(set(re.findall(r"^#include <(\w+)>$", texts, re.MULTILINE)))
    return "".join(f"#include <{name}>\n" for name in standard) + MACROS + '#include "KxXlate.hpp"\n'


def main():
    compiler, standard = sys.argv[1:]
    headers = sorted([*INCLUDE.glob("KxXlate*"), *INCLUDE.glob("kxxlate/*.hpp")])
    programs = [f'#include "{header.relative_to(INCLUDE).as_posix()}"\n' for header in headers]
    runs = []
    for program in [*programs, behind_macros(headers)]:
        command = [compiler, f"-std=c++{standard}", "-fsyntax-only", *WARNINGS, "-I", INCLUDE,
                   "-x", "c++", "-"]
        run = subprocess.run(command, input=program, text=True, check=False)
        runs.append(run.returncode)
    if len(headers) < 10:
        print(f"only {len(headers)} headers found")
    return 1 if any(runs) or len(headers) < 10 else 0


if __name__ == "__main__":
    sys.exit(main())
