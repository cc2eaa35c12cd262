#!/usr/bin/env python3
"""Runs the tool on a terminal of its own and compares what that shows.

Usage: check_console.py COMMAND...      the tool, behind what runs programs of another system
"""

import os
import pathlib
import sys
import tempfile

from terminal import WORD, compare, copied, shown, without_a_log

# A line of 80 columns would be wrapped.
CATALOGUE = f"{WORD}/agent_fr.properties"
GREEK = "\u03b1"


def main():
    *runner, tool = sys.argv[1:]
    with tempfile.TemporaryDirectory() as directory:
        tree = pathlib.Path(directory)
        copy = copied(pathlib.Path(tool).resolve(), tree)
        without_a_log(tree)
        os.chdir(tree)
        pathlib.Path(WORD).mkdir()
        get = [*runner, str(copy), "--resources", WORD, "get", "agent", "fr"]

        texts = pathlib.Path(CATALOGUE)
        texts.write_text(f"Hello={WORD} %0.\n", "utf-8")
        isRight = compare(f"{WORD} {GREEK}.\n", shown([*get, "Hello", GREEK]))

        # What the tool says is right as well, and what the library says by itself.
        texts.write_text("no sign\n", "utf-8")
        isRight &= compare(
            f"{CATALOGUE}:1 does not contain '='. Skipped\n"
            f"{CATALOGUE} key not found: {GREEK}\n"
            f'kxxlate: no key "{GREEK}" in bundle "agent" for locale "fr"\n',
            shown([*get, GREEK]))
    return 0 if isRight else 1


if __name__ == "__main__":
    sys.exit(main())
