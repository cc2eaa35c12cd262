#!/usr/bin/env python3
"""Runs a host on a console whose code page lacks most letters, and compares what the console shows of
the library's lines and what code page it has in the end.

Usage: check_code_page.py COMMAND...    the host, behind what runs programs of another system
"""

import os
import pathlib
import sys
import tempfile

from terminal import WORD, compare, copied, shown, without_a_log


def main():
    *runner, host = sys.argv[1:]
    with tempfile.TemporaryDirectory() as directory:
        tree = pathlib.Path(directory)
        copy = copied(pathlib.Path(host).resolve(), tree)
        without_a_log(tree)
        os.chdir(tree)
        pathlib.Path(WORD).mkdir()
        catalogue = pathlib.Path(f"{WORD}/agent_fr.properties")
        catalogue.write_text("no sign\n", "utf-8")
        isRight = compare(
            f"{catalogue}:1 does not contain '='. Skipped\n"
            f"{catalogue} key not found: {WORD}\n"
            "code page 437\n",
            shown([*runner, str(copy), WORD]))
    return 0 if isRight else 1


if __name__ == "__main__":
    sys.exit(main())
