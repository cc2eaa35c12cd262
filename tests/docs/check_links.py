#!/usr/bin/env python3
"""Checks that the links of the documents lead to files and headings that are there, links of HTML and
named links included. Prints each that does not, and exits 1 if any.

Usage: check_links.py [ROOT]    the folder of the project unless told otherwise"""

import pathlib
import re
import sys


def documents_of(root):
    # What a build makes is nobody's document.
    return sorted(path for path in root.rglob("*.md")
                  if path.relative_to(root).parts[0] not in ("build", ".git"))


def without_code(text):
    return re.sub(r"^ *```.*?^ *```$|`[^`\n]*`", "", text, flags=re.M | re.S)


def plain(heading):
    """A heading as it is read: a link is its text, and code its letters."""
    return re.sub(r"\[([^\]]*)\]\([^)]*\)", r"\1", heading).strip()


def anchors_of(path):
    """A heading's anchor is its text in small letters, without punctuation, joined by hyphens; that of
    the second heading of one text has "-1" behind it, and so on."""
    text = re.sub(r"^ *```.*?^ *```$", "", path.read_text("utf-8"), flags=re.M | re.S)
    seen = {}
    for heading in re.findall(r"^#+ +(.*?) *#*$", text, re.M):
        anchor = re.sub(r"[^\w -]", "", plain(heading).lower()).replace(" ", "-")
        count = seen.get(anchor, 0)
        seen[anchor] = count + 1
        yield f"{anchor}-{count}" if count else anchor
    yield from re.findall(r"<a (?:id|name)=\"([^\"]+)\"", text)


def links_of(text):
    yield from re.findall(r"\]\(\s*<?([^)\s>]+)>?[^)]*\)", text)
    yield from re.findall(r"^ *\[[^\]]+\]: *<?(\S+?)>?(?: .*)?$", text, re.M)
    yield from re.findall(r"<(?:a|img)\b[^>]*?\b(?:href|src)=\"([^\"]+)\"", text)


def undefined_names_of(text):
    defined = {name.lower() for name in re.findall(r"^ *\[([^\]]+)\]:", text, re.M)}
    for label, name in re.findall(r"\[([^\]]+)\]\[([^\]]*)\]", text):
        if (name or label).lower() not in defined:
            yield f"[{label}][{name}]"


def breaches_of(document, root):
    text = without_code(document.read_text("utf-8"))
    for link in links_of(text):
        if re.match(r"\w+:", link):
            continue
        place, _, anchor = link.partition("#")
        target = document.parent / place if place else document
        if not target.exists():
            yield link
        elif root not in target.resolve().parents and target.resolve() != root:
            yield f"{link}, outside of the project"
        elif anchor and (target.suffix != ".md" or anchor not in anchors_of(target)):
            yield link
    yield from undefined_names_of(text)


def main():
    root = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else __file__).resolve()
    root = root if len(sys.argv) > 1 else root.parent.parent.parent
    documents = documents_of(root)
    failed = not documents
    for document in documents:
        for breach in breaches_of(document, root):
            print(f"{document.relative_to(root)}: nothing is at {breach}")
            failed = True
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
