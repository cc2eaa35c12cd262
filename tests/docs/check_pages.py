#!/usr/bin/env python3
"""Makes the pages of the headers and documents, in two copies of the project in different places.
Nothing may be warned of, both must be the same, byte for byte, and say nothing of where they were made,
and each link between pages must lead to something.

Usage: check_pages.py DOXYGEN"""

import concurrent.futures
import os
import pathlib
import posixpath
import re
import shutil
import subprocess
import sys
import tempfile
from urllib.parse import unquote

from markdown_blocks import ROOT

READ = ["README.md", "CHANGELOG.md", "CONTRIBUTING.md", "docs", "include", "cmake", "tools"]
# So that nothing which a reader looks for is left out without a word.
EXPECTED = ["class CKxXlate", "class CKxText", "struct Xlate", "getProductVersion",
            "ReleaseTranslator", "KxSize", "KXXLATE_API"]


def make(doxygen, top):
    """Answers what is said, and the pages."""
    project = pathlib.Path(top, "project")
    project.mkdir(parents=True)
    for name in READ:
        copy = shutil.copytree if (ROOT / name).is_dir() else shutil.copy
        copy(ROOT / name, project / name)
    made = pathlib.Path(top, "made")
    made.mkdir()
    ran = subprocess.run([doxygen, "cmake/Doxyfile"], cwd=project, text=True, check=False,
                         stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                         env={**os.environ, "KXXLATE_DOCS": str(made), "KXXLATE_VERSION": "1.2.3"})
    files = sorted(path for path in made.rglob("*") if path.is_file())
    said = ran.stdout or (f"ends with {ran.returncode}" if ran.returncode else "")
    return said, {str(path.relative_to(made / "html")): path.read_bytes() for path in files}


def broken_links_of(pages):
    named = {name: set(re.findall(rb"(?:id|name)=\"([^\"]+)\"", page)) for name, page in pages.items()}
    for name, page in pages.items():
        links = re.findall(r"(?:href|src)=\"([^\"#]*)(?:#([^\"]*))?\"", page.decode("utf-8")) if (
            name.endswith(".html")) else []
        for place, anchor in links:
            if re.match(r"\w+:|//", place):
                continue
            place_of_page = posixpath.join(posixpath.dirname(name), unquote(place))
            target = posixpath.normpath(place_of_page) if place else name
            if target not in pages or (anchor and anchor.encode() not in named[target]):
                yield f"{name}: nothing is at {place}#{anchor}"


def problems_of(folder, said, pages, other_pages):
    if said:
        yield said
    if pages != other_pages:
        yield "differ: " + " ".join(sorted(
            name for name in {**pages, **other_pages} if pages.get(name) != other_pages.get(name)))
    for name, page in pages.items():
        if folder.encode() in page:
            yield f"{name} tells where it was made"
    yield from broken_links_of(pages)
    text = b"".join(page for name, page in pages.items()
                    if re.fullmatch(r"annotated\.html|globals.*\.html", name)).decode()
    text = re.sub(r"<[^>]+>|&#160;|\(\)", " ", text)
    for expected in EXPECTED:
        if expected.split()[-1] not in text.split():
            yield f"there is no page of {expected}"


def main():
    with tempfile.TemporaryDirectory() as folder, concurrent.futures.ThreadPoolExecutor(2) as pool:
        places = [pathlib.Path(folder, "a"), pathlib.Path(folder, "another", "place")]
        made = list(pool.map(lambda place: make(sys.argv[1], place), places))
        problems = list(problems_of(folder, made[0][0], made[0][1], made[1][1]))
    print(*problems, sep="\n")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
