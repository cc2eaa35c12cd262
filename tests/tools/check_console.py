#!/usr/bin/env python3
"""Runs the tool on a terminal of its own and compares what that shows.

Usage: check_console.py COMMAND...      the tool, behind what runs programs of another system
"""

import os
import pathlib
import pty
import re
import shutil
import sys
import tempfile

# Letters of two and three bytes in UTF-8. Not of four: those have two cells on some consoles.
WORD = "\u00e9\u042f\u65e5"
CONTROL_SEQUENCE = re.compile(r"\x1b\[[0-9;?]*[A-Za-z]|\x1b\][^\x07]*\x07")


def shown(command):
    """What a terminal shows of the command's output, without its moves and colours."""
    pieces = []

    def read(terminal):
        pieces.append(os.read(terminal, 4096))
        return pieces[-1]

    # Our own standard input may have ended, and its end would hang the terminal up.
    keyboard, _ = os.pipe()
    os.dup2(keyboard, 0)
    # What is copied to our standard output helps whoever looks into a failure.
    pty.spawn(command, read)
    text = b"".join(pieces).decode()
    # The console of another system shows blanks as moves to the right.
    text = re.sub(r"\x1b\[(\d*)C", lambda move: " " * int(move[1] or 1), text)
    return CONTROL_SEQUENCE.sub("", text).replace("\r", "")


def copied(tool, tree):
    """A copy of the tool, so deep in the tree that its log lies in the tree, too."""
    folder = tree / "a" / "b" / "c" / "d"
    folder.mkdir(parents=True)
    for file in (tool, *tool.parent.glob("*.dll")):
        shutil.copy2(file, folder)
    return folder / tool.name


def main():
    *runner, tool = sys.argv[1:]
    os.environ["TERM"] = "xterm"
    breaches = 0
    with tempfile.TemporaryDirectory() as tree:
        copy = copied(pathlib.Path(tool), pathlib.Path(tree))
        pathlib.Path(tree, "agent_fr.properties").write_text(f"Hello={WORD} %0.\n", "utf-8")
        get = [*runner, str(copy), "--resources", tree, "get", "agent", "fr"]
        for arguments, expected in (
                (["Hello", "\u03b1"], f"{WORD} \u03b1.\n"),
                (["\u03b1"], 'kxxlate: no key "\u03b1" in bundle "agent" for locale "fr"\n')):
            found = shown(get + arguments)
            if found != expected:
                print(f"expected: {expected!r}\nfound:    {found!r}")
                breaches += 1
    return 1 if breaches else 0


if __name__ == "__main__":
    sys.exit(main())
