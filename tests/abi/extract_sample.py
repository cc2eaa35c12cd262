#!/usr/bin/env python3
"""Writes the sample of a document that has one, and what it prints, into files of their own.

Usage: extract_sample.py DOCUMENT SOURCE OUTPUT
"""

import pathlib
import re
import sys


def main():
    document, source, output = map(pathlib.Path, sys.argv[1:])
    block, = re.findall(r"^```cpp\n(.*?)^```\n\n```text\n(.*?)^```$",
                        document.read_text("utf-8"), re.M | re.S)
    source.write_text(block[0], "utf-8")
    output.write_text(block[1], "utf-8")


if __name__ == "__main__":
    main()
