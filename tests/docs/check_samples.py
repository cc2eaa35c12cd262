#!/usr/bin/env python3
"""Compiles the samples of the documents and of the public headers as a host does: against the public
headers alone, with warnings as errors.

Usage: check_samples.py COMPILER STANDARD"""

import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
WARNINGS = ["-Wall", "-Wextra", "-Wpedantic", "-Wshadow", "-Wconversion", "-Werror"]


def samples_of_documents():
    for path in [ROOT / "README.md", *sorted((ROOT / "docs").glob("*.md"))]:
        for block in re.findall(r"^```cpp\n(.*?)^```$", path.read_text("utf-8"), re.M | re.S):
            yield path.name, block


def samples_of_headers():
    # In a comment a sample stands further to the right than the text, behind an empty line.
    for path in sorted((ROOT / "include").glob("*.h")):
        for block in re.findall(r"^ *///\n((?: *///     .*\n)+)", path.read_text("ascii"), re.M):
            yield path.name, re.sub(r"^ *///     ", "", block, flags=re.M)


def program_of(sample):
    lines = sample.splitlines()
    includes = [line for line in lines if line.startswith("#include")]
    body = [line for line in lines if not line.startswith("#include")]
    # Each sample may show a text, and be inside of a function.
    return "\n".join([*includes, "#include <CKxXlate.h>", "#include <Xlate.h>",
                      "void Sample(void (*Show)(const char* text));",
                      "void Sample([[maybe_unused]] void (*Show)(const char* text)) {",
                      *body, "}", ""])


def main():
    compiler, standard = sys.argv[1:]
    found = [*samples_of_documents(), *samples_of_headers()]
    failed = False
    for name, sample in found:
        command = [compiler, f"-std=c++{standard}", "-fsyntax-only", *WARNINGS,
                   "-I", str(ROOT / "include"), "-x", "c++", "-"]
        if subprocess.run(command, input=program_of(sample), text=True, check=False).returncode:
            print(f"{name}: this sample does not compile:\n{sample}")
            failed = True
    if len(found) < 5:
        print(f"only {len(found)} samples found")
        failed = True
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
