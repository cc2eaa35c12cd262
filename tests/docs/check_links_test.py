#!/usr/bin/env python3
"""Checks of check_links.py: what it says of a tree of documents.

Usage: check_links_test.py"""

import pathlib
import subprocess
import sys
import tempfile

CHECK = pathlib.Path(__file__).resolve().parent / "check_links.py"

# A document named a.md, and what is said of it; "" when all is there.
CASES = {
    "[b](docs/b.md)": "",
    "[b](docs/b.md#first-heading)": "",
    "[b](docs/b.md#second-kxxlate-get-1)": "",
    "[here](#top)\n# Top": "",
    "[far](https://example.org/nothing.md)": "",
    "`[code](nothing.md)`\n```sh\n[code](nothing.md)\n```": "",
    "[folder](docs)": "",
    "[named][n]\n\n[n]: docs/b.md": "",
    "![picture](docs/p.svg)": "",
    "[b](nothing.md)": "nothing.md",
    "[b](docs/b.md#nothing)": "docs/b.md#nothing",
    "[b](docs/b.md#a-comment)": "docs/b.md#a-comment",
    "[b](docs/b.md#second-kxxlate-get-2)": "docs/b.md#second-kxxlate-get-2",
    "[here](#nothing)": "#nothing",
    "![picture](docs/nothing.svg \"title\")": "docs/nothing.svg",
    "[folder](docs#nothing)": "docs#nothing",
    "[named][n]\n\n[n]: docs/nothing.md": "docs/nothing.md",
    "[named][nobody]": "[named][nobody]",
    "<img src=\"nothing.png\">": "nothing.png",
    "[out](../..)": "../.., outside of the project",
}
OTHER = "# First heading\n## Second: `kxxlate get`\n## Second: `kxxlate get`\n```sh\n# A comment\n```\n"


def said_of(document):
    with tempfile.TemporaryDirectory() as folder:
        root = pathlib.Path(folder, "project")
        (root / "docs").mkdir(parents=True)
        (root / "a.md").write_text(document)
        (root / "docs" / "b.md").write_text(OTHER)
        (root / "docs" / "p.svg").write_text("")
        ran = subprocess.run([sys.executable, CHECK, root], capture_output=True, text=True,
                             check=False)
        return ran.returncode, ran.stdout


def main():
    failed = False
    for document, breach in CASES.items():
        expected = (1, f"a.md: nothing is at {breach}\n") if breach else (0, "")
        if said_of(document) != expected:
            print(f"of {document!r}: {said_of(document)}, not {expected}")
            failed = True
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
