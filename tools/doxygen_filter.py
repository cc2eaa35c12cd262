#!/usr/bin/env python3
"""Writes a file as doxygen is to read it, line for line.

Usage: doxygen_filter.py FILE    in the project's folder

Of headers it leaves out members that the language writes or that are deleted, and says what the
usual ones do, so that a warning means something that nobody has told. In documents it gives each heading the name by which others link to it, and turns links into
such that doxygen follows; what is no page is left as its text alone."""

import pathlib
import re
import sys

ROOT = pathlib.Path.cwd().resolve()

# What every class has, so that headers need not tell of it.
USUAL = [
    (r" +(\w+)\(const \1& \w+\)", "Copies."),
    (r" +(\w+)\(\1&& \w+\)", "Moves."),
    (r" +(\w+)& operator=\((const )?\1&{0,2} \w+\)", "Assigns."),
    (r".* friend bool operator!=\(", "The opposite of equality."),
    (r" +.*\) && \{$", "Does not compile: the object is dropped before what it answers is read."),
]


def slug(heading):
    return re.sub(r"[^\w -]", "", heading.lower()).replace(" ", "-")


def page_of(path):
    return re.sub(r"\W", "-", path.relative_to(ROOT).with_suffix("").as_posix().lower())


def is_page(path):
    return path.suffix == ".md" and path.exists() and (
        path.parent in (ROOT, ROOT / "docs"))


def link_for(document, label, target):
    if re.match(r"\w+:", target):
        return f"[{label}]({target})"
    place, _, anchor = target.partition("#")
    path = (document.parent / place).resolve() if place else document
    if path.suffix in (".svg", ".png"):
        return f"[{label}]({path.name})"
    if not is_page(path):
        return label
    return f"[{label}](@ref {page_of(path)}{'--' + anchor if anchor else ''})"


def document_lines(document):
    page = page_of(document)
    seen = {}
    in_code = False
    for number, line in enumerate(document.read_text("utf-8").splitlines()):
        in_code ^= line.lstrip().startswith("```")
        heading = re.match(r"(#+) +(.*)$", line)
        if in_code or not (heading or "](" in line):
            yield line
            continue
        if heading and number == 0:
            yield f"{line} {{#{page}}}"
            continue
        line = re.sub(r"\[((?:[^\[\]]|\[[^\]]*\])*)\]\(([^)\s]+)\)",
                      lambda link: link_for(document, link[1], link[2]), line)
        if heading:
            anchor = slug(heading[2])
            count = seen.get(anchor, 0)
            seen[anchor] = count + 1
            line += f" {{#{page}--{anchor}{f'-{count}' if count else ''}}}"
        yield line


def header_lines(header):
    before = ""
    for line in header.read_text("ascii").splitlines():
        if re.search(r"\) *(const|noexcept|&&| )*= (default|delete);$", line):
            yield ""
        else:
            said = next((what for form, what in USUAL if re.match(form, line)), None)
            # "///" above the line, or above the template that begins there.
            is_told = before.lstrip().startswith("///")
            yield f"/** {said} */{line}" if said and not is_told else line
        if not line.lstrip().startswith("template <"):
            before = line
    yield from words_of(header)


def words_of(header):
    """Without a word of its file or namespace a function has no page."""
    about = re.match(r"#ifndef.*\n#define.*\n\n((?://.*\n)+)\n#include", header.read_text("ascii"))
    words = re.sub(r"^// ?", "", about[1], flags=re.M) if about else ""
    yield f"/** @file\n{words}*/"
    if header.name == "KxXlate.hpp":
        yield f"/** @namespace kx\n{words}*/"


def main():
    path = pathlib.Path(sys.argv[1]).resolve()
    lines = document_lines(path) if path.suffix == ".md" else header_lines(path)
    sys.stdout.reconfigure(encoding="utf-8")
    print("\n".join(lines))


if __name__ == "__main__":
    main()
