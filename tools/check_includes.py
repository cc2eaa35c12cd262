#!/usr/bin/env python3
"""Checks what the compiler does not: who includes whom, where platform conditionals stand, and that
sources are plain ASCII. Prints each breach and exits 1 if any."""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
SRC = ROOT / "src"

# A folder is a layer; it may include itself, the public headers and these.
MAY_INCLUDE = {
    "platform": set(),
    "log": {"platform"},
    "format": {"platform"},
    "texts": {"platform"},
    "lang": {"platform", "log", "format", "texts"},
    "bundles": {"platform", "log", "format", "texts"},
    "core": {"platform", "log", "format", "texts", "lang", "bundles"},
}
PUBLIC_USERS = {"format", "lang", "bundles", "core"}

# The public headers' own three: what is exported, the buffer size, the order of operations. And
# what the face asks the system, declared and called, since nothing of it is in the library.
PLATFORM_CONDITIONALS_ALLOWED = {"include/KxXlateExport.h": 1, "include/CKxXlate.h": 2,
                                 "include/kxxlate/machine.hpp": 2}
PLATFORM_CONDITIONAL = re.compile(
    r"^\s*#\s*(?:el)?if.*\b(_WIN32|_WIN64|_MSC_VER|__linux__|__unix__|__MINGW\w*|__APPLE__)\b",
    re.M)


def name(path):
    return path.relative_to(ROOT).as_posix()


def sources(folder):
    suffixes = {".h", ".hpp", ".cpp"}
    return sorted(path for path in (ROOT / folder).rglob("*") if path.suffix in suffixes)


def include_breaches():
    for path in sources("src"):
        folder = path.relative_to(SRC).parts[0]
        for target in re.findall(r'^#include "(\w+)/', path.read_text(), re.M):
            if target != folder and target not in MAY_INCLUDE[folder]:
                yield f"{name(path)}: {folder}/ may not include {target}/"
        for public in re.findall(r'^#include "(\w+\.h)"', path.read_text(), re.M):
            if folder not in PUBLIC_USERS:
                yield f"{name(path)}: {folder}/ may not include the public header {public}"
    for path in sources("include"):
        for target in re.findall(r'^#include "([^"]+)"', path.read_text(), re.M):
            # Beside the header, or in the folder that hosts name to their compilers.
            places = [(path.parent / target).resolve(), (ROOT / "include" / target).resolve()]
            if not any(place.is_file() and place.is_relative_to(ROOT / "include")
                       for place in places):
                yield f"{name(path)}: a public header may include only public headers, not {target}"


def conditional_breaches():
    for folder in ("src", "include", "tools", "examples", "tests", "bench"):
        for path in sources(folder):
            if name(path).startswith("src/platform/"):
                continue
            found = len(PLATFORM_CONDITIONAL.findall(path.read_text()))
            if found > PLATFORM_CONDITIONALS_ALLOWED.get(name(path), 0):
                yield f"{name(path)}: platform conditional outside src/platform"


def text_breaches():
    for folder in ("src", "include", "tools", "examples", "tests", "bench"):
        for path in sources(folder):
            if not path.read_bytes().isascii():
                yield f"{name(path)}: not plain ASCII; write other bytes as escapes"


def main():
    breaches = [*include_breaches(), *conditional_breaches(), *text_breaches()]
    for breach in breaches:
        print(breach)
    return 1 if breaches else 0


if __name__ == "__main__":
    sys.exit(main())
