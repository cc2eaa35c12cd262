#!/usr/bin/env python3
"""Compares the manual page of the tool with what the tool says of itself, and with the variables that
the library reads. Prints what the page lacks, and exits 1 if anything.

Usage: check_manual.py TOOL [PAGE]    the page of the project unless told otherwise"""

import pathlib
import re
import subprocess
import sys

from config_blocks import VARIABLES
from markdown_blocks import ROOT


def help_of(*command):
    return subprocess.run([*command, "--help"], check=True, capture_output=True, text=True).stdout


def words_of(tool):
    """The commands of the tool, and the options of all of them."""
    usage = help_of(tool)
    commands = re.findall(r"^  (\w+)", usage.partition("Subcommands:\n")[2], re.M)
    for text in [usage, *(help_of(tool, command) for command in commands)]:
        yield from re.findall(r"(--[\w-]+)", text)
    yield from commands


def main():
    tool = sys.argv[1]
    path = pathlib.Path(sys.argv[2]) if len(sys.argv) > 2 else ROOT / "packaging/kxxlate.1"
    page = path.read_text("utf-8").replace("\\-", "-")
    lacking = [word for word in sorted({*words_of(tool), *VARIABLES})
               if not re.search(rf"(?<![\w-]){word}(?![\w-])", page)]
    for word in lacking:
        print(f"{path.name} does not tell of {word}")
    return 1 if lacking else 0


if __name__ == "__main__":
    sys.exit(main())
