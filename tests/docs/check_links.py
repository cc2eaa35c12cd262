#!/usr/bin/env python3
"""Checks that the links of the documents lead to files and headings that are there. Prints each that
does not, and exits 1 if any."""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent


def without_code(text):
    return re.sub(r"^```.*?^```$|`[^`\n]*`", "", text, flags=re.M | re.S)


def anchors_of(path):
    """A heading's anchor is its text in small letters, without punctuation, joined by hyphens."""
    for heading in re.findall(r"^#+ (.*)$", path.read_text("utf-8"), re.M):
        yield re.sub(r"[^\w -]", "", heading.lower()).replace(" ", "-")


def main():
    failed = False
    for document in [*ROOT.glob("*.md"), *(ROOT / "docs").glob("*.md")]:
        for link in re.findall(r"\]\(([^)]+)\)", without_code(document.read_text("utf-8"))):
            if re.match(r"\w+:", link):
                continue
            place, _, anchor = link.partition("#")
            target = document.parent / place if place else document
            if not target.exists() or (anchor and anchor not in anchors_of(target)):
                print(f"{document.relative_to(ROOT)}: nothing is at {link}")
                failed = True
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
