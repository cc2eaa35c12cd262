#!/usr/bin/env python3
"""Runs what the documents tell their readers to run, and what they show in other languages of the
system, in a scratch copy of the project's files. Prints each that fails, and exits 1 if any.

Usage: check_commands.py TOOL HOST [DOCUMENT...]    the programs kxxlate and xlate_host; all documents
                                                    unless told otherwise

A block is run by its kind:

  sh         a script that must succeed
  console    commands behind "$ ", each followed by all that it prints
  ini        a unit of systemd, or a part of one
  logrotate  the rotation of a log, while a host writes it

A comment directly above a block of the kind sh says why it is not run as it stands:

  <!-- test: planned -->   what it builds takes long: cmake configures, but only tells the build that
                           it would do, and what would be installed where
  <!-- test: scripts -->   each of its commands is a script that does a whole set-up: it must be there,
                           and its --help must tell of each argument

Scripts that are named in a line of text are checked like the latter."""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

from config_blocks import check_rotation, check_unit
from markdown_blocks import ROOT, blocks_of, documents

STAND_INS = pathlib.Path(__file__).resolve().parent / "stand_ins"
ELSEWHERE = {"": "text", "cpp": "check_samples.py", "c++": "check_comparison.py", "cmake": "the consumers of the packages",
             "properties": "properties_document_test.cpp", "text": "what a program prints"}
SECONDS = 100


class Failure(Exception):
    pass


def copy_of_project(folder):
    """Without what a build or a host has left in the folder of the project."""
    copy = pathlib.Path(folder, "project")
    shutil.copytree(ROOT, copy, symlinks=True,
                    ignore=shutil.ignore_patterns("build", ".git", "__pycache__", "translate.log"))
    return copy


def environment(home, tool, first=None):
    kept = {name: value for name, value in os.environ.items()
            if not re.match(r"TAVI_|PWSVC_|KXXLATE_|CMAKE_|CXX", name)}
    path = [str(first)] if first else []
    path += [str(pathlib.Path(tool).parent), os.environ["PATH"], "/usr/sbin", "/sbin"]
    return {**kept, "HOME": str(home), "LC_ALL": "C.UTF-8", "PATH": ":".join(path)}


def run(command, **options):
    return subprocess.run(command, text=True, check=False, timeout=SECONDS,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, **options)


def check_script(block, copy, tool):
    first = STAND_INS if block.note == "planned" else None
    ran = run(["bash", "-euo", "pipefail", "-c", block.text], cwd=copy,
              env=environment(copy.parent, tool, first))
    if ran.returncode:
        raise Failure(f"ends with {ran.returncode}:\n{ran.stdout}")


def check_script_named(command):
    """A script with its arguments; those in brackets are what the reader puts there."""
    script, *arguments = command.split()
    path = ROOT / script
    if not path.is_file() or not os.access(path, os.X_OK):
        raise Failure(f"no program {script}")
    if "bash" in path.open().readline() and run(["bash", "-n", path]).returncode:
        raise Failure(f"{script} is no script")
    if not arguments:
        return
    helped = run([path, "--help"])
    for argument in arguments:
        word = re.sub(r"[\[\]]|\.\.\.", "", argument).partition("=")[0]
        if helped.returncode or (word != "OPTION" and word not in helped.stdout):
            raise Failure(f"{script} --help does not tell of {argument}")


def commands_of(text):
    for line in text.splitlines():
        command = re.sub(r"(^|\s)#.*", "", line).strip()
        if command:
            yield command


def check_set_up(block):
    for command in commands_of(block.text):
        if not re.match(r"(scripts|tools|\.ci)/", command):
            raise Failure(f"no script of the project: {command}")
        check_script_named(command)


def check_console(block, copy, tool):
    dialogue = []
    for line in block.text.splitlines():
        if line.startswith("$ "):
            dialogue.append((line[2:], []))
        elif not dialogue:
            raise Failure("begins with no command")
        else:
            dialogue[-1][1].append(line + "\n")
    mark = "@@ end of a command @@"
    script = "".join(f"{command}\nprintf '%s\\n' '{mark}'\n" for command, _ in dialogue)
    ran = run(["bash", "-c", script], cwd=copy, env=environment(copy.parent, tool))
    printed = ran.stdout.split(mark + "\n")
    for (command, lines), output in zip(dialogue, printed):
        if output != "".join(lines):
            raise Failure(f"$ {command}\nprints\n{output}")
    if len(printed) != len(dialogue) + 1:
        raise Failure(f"ends early:\n{ran.stdout}")


def check_block(block, copy, tool, host):
    if block.kind == "sh" and block.note == "scripts":
        check_set_up(block)
    elif block.kind == "sh" and block.note in ("", "planned"):
        check_script(block, copy, tool)
    elif block.note and (block.kind, block.note) != ("cpp", "refused"):
        raise Failure(f"nobody knows the note {block.note}")
    elif block.kind == "console":
        check_console(block, copy, tool)
    elif block.kind in ("ini", "logrotate"):
        check = check_unit if block.kind == "ini" else check_rotation
        problem = check(block.text, copy, host)
        if problem:
            raise Failure(problem)
    elif block.kind not in ELSEWHERE:
        raise Failure(f"nobody knows how to run the kind {block.kind}")


def problems_of(document, copy, tool, host):
    for block in blocks_of(document):
        try:
            check_block(block, copy, tool, host)
        except (Failure, subprocess.TimeoutExpired) as problem:
            yield f"{block.place()}: {problem}"
    prose = re.sub(r"^ *```.*?^ *```$", "", document.read_text("utf-8"), flags=re.M | re.S)
    for command in re.findall(r"`((?:scripts|tools|\.ci)/[\w./]+(?: [^`]*)?)`", prose):
        try:
            if (ROOT / command.split()[0]).suffix in ("", ".sh"):
                check_script_named(command)
            elif not (ROOT / command).exists():
                raise Failure("is not there")
        except Failure as problem:
            yield f"{document.name}: {command}: {problem}"


def main():
    tool, host, *named = sys.argv[1:]
    failed = False
    for document in [pathlib.Path(name).resolve() for name in named] or documents():
        with tempfile.TemporaryDirectory() as folder:
            for problem in problems_of(document, copy_of_project(folder), tool, host):
                print(problem)
                failed = True
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
