"""The code blocks of the project's documents."""

import dataclasses
import pathlib
import re

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent


@dataclasses.dataclass
class Block:
    document: pathlib.Path
    line: int  # of its first line, counted from 1
    kind: str  # the word behind the fence: "sh", "cpp", or ""
    note: str  # what a comment "<!-- test: ... -->" directly above it says, or ""
    text: str

    def place(self):
        return f"{self.document.name}:{self.line}"


def blocks_of(document):
    lines = document.read_text("utf-8").splitlines()
    at = 0
    while at < len(lines):
        fence = re.match(r"( *)```(\S*)$", lines[at])
        at += 1
        if not fence:
            continue
        begin = at
        while at < len(lines) and lines[at].strip() != "```":
            at += 1
        note = re.match(r" *<!-- test: (.*?) -->$", lines[begin - 2] if begin > 1 else "")
        text = "".join(line[len(fence[1]):] + "\n" for line in lines[begin:at])
        yield Block(document, begin + 1, fence[2], note[1] if note else "", text)
        at += 1


def documents():
    return [ROOT / "README.md", ROOT / "CONTRIBUTING.md", *sorted((ROOT / "docs").glob("*.md"))]
