"""Runs programs on a terminal of their own."""

import os
import pty
import re
import shutil

# Letters of two and three bytes in UTF-8. Not of four: those have two cells on some consoles.
WORD = "\u00e9\u042f\u65e5"
CONTROL_SEQUENCE = re.compile(r"\x1b\[[0-9;?]*[A-Za-z]|\x1b\][^\x07]*\x07")


def shown(command):
    """What a terminal shows of the command's output, without its moves and colours."""
    pieces = []

    def read(terminal):
        pieces.append(os.read(terminal, 4096))
        return pieces[-1]

    os.environ["TERM"] = "xterm"
    # Our own standard input may have ended, and its end would hang the terminal up.
    keyboard, _ = os.pipe()
    os.dup2(keyboard, 0)
    # What is copied to our standard output helps whoever looks into a failure.
    pty.spawn(command, read)
    text = b"".join(pieces).decode()
    # The console of another system shows blanks as moves to the right.
    text = re.sub(r"\x1b\[(\d*)C", lambda move: " " * int(move[1] or 1), text)
    return CONTROL_SEQUENCE.sub("", text).replace("\r", "")


def copied(program, tree):
    """A copy of the program, so deep in the tree that its log lies in the tree, too."""
    folder = tree / "a" / "b" / "c" / "d"
    folder.mkdir(parents=True)
    for file in (program, *program.parent.glob("*.dll")):
        shutil.copy2(file, folder)
    return folder / program.name


def without_a_log(tree):
    """Lets the program copied into the tree log on standard output."""
    (tree / "a" / "log").write_text("a file in the way")
    (tree / "a" / "translate.log").mkdir()


def compare(expected, found):
    """Whether both are the same; prints them when not."""
    if found != expected:
        print(f"expected: {expected!r}\nfound:    {found!r}")
    return found == expected
