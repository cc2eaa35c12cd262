#!/usr/bin/env python3
"""Checks of check_commands.py: what it says of blocks that are right and that are wrong.

Usage: check_commands_test.py TOOL HOST    as check_commands.py takes them"""

import pathlib
import sys
import tempfile

import check_commands

ROTATION = "```logrotate\n/var/log/product/translate.log {\n    rotate 8\n    %s\n}\n```\n"

# What stands in a document, and a part of what is said of it; "" when nothing is.
CASES = [
    ("```sh\ntest -f README.md\n```\n", ""),
    ("```sh\nfalse\ntrue\n```\n", "ends with 1"),
    ("```sh\necho $NOT_SET\n```\n", "NOT_SET: unbound variable"),
    ("```console\n$ printf 'a\\nb\\n'\na\nb\n$ true\n```\n", ""),
    ("```console\n$ export A=1\n$ echo $A; echo 2 >&2\n1\n2\n```\n", ""),
    ("```console\n$ echo one\ntwo\n```\n", "$ echo one\nprints\none\n"),
    ("```console\n$ echo one\n```\n", "$ echo one\nprints\none\n"),
    ("```console\n$ exit\n$ true\n```\n", "ends early"),
    ("```console\ntwo\n```\n", "begins with no command"),
    ("```ini\n[Service]\nEnvironment=KXXLATE_LOG=off\n```\n", ""),
    ("```ini\n[Service]\nEnvironment=KXXLATE_LOC=off\n```\n", "no host reads KXXLATE_LOC"),
    ("```ini\n[Service]\nEnvironment\n```\n", "no line of a unit: Environment"),
    (ROTATION % "copytruncate", ""),
    (ROTATION % "create", "still written: ''"),
    (ROTATION % "copytrunkate", "unknown option"),
    ("<!-- test: scripts -->\n```sh\nscripts/test.sh mingw  # on Windows\n```\n", ""),
    ("<!-- test: scripts -->\n```sh\nscripts/test.sh sunday\n```\n", "does not tell of sunday"),
    ("<!-- test: scripts -->\n```sh\nscripts/nothing.sh\n```\n", "no program scripts/nothing.sh"),
    ("<!-- test: scripts -->\n```sh\nmake\n```\n", "no script of the project: make"),
    ("<!-- test: planned -->\n```sh\ncmake --preset sunday\n```\n", "No such preset"),
    ("<!-- test: planned -->\n```sh\ncmake --install build/x\n```\n", "nothing was configured in"),
    ("<!-- test: later -->\n```sh\ntrue\n```\n", "nobody knows the note later"),
    ("```fish\ntrue\n```\n", "nobody knows how to run the kind fish"),
    ("`scripts/test.sh [PRESET]`\n```sh\ntrue\n```\n", ""),
    ("`scripts/nothing.sh`\n```sh\ntrue\n```\n", "no program scripts/nothing.sh"),
    ("`tools/nothing.py`\n```sh\ntrue\n```\n", "is not there"),
]


def main():
    failed = False
    with tempfile.TemporaryDirectory() as folder:
        copy = check_commands.copy_of_project(folder)
        for text, expected in CASES:
            document = pathlib.Path(folder, "a.md")
            document.write_text(text)
            said = list(check_commands.problems_of(document, copy, *sys.argv[1:]))
            if len(said) != bool(expected) or (expected and expected not in said[0]):
                print(f"of\n{text}is said:\n{said}\nnot: {expected}")
                failed = True
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
