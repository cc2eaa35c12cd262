#!/usr/bin/env python3
"""Compiles the samples of the documents and of the public headers as a host does, against the public
headers and the library alone, with warnings as errors, and runs them with the example catalogues.

Usage: check_samples.py COMPILER STANDARD [LIBRARY [OPTION...]]

Without a library, as for another system, samples are only compiled; options go to the compiler.

A sample with a main is a program and compiled as it stands; any other is the inside of a function
that can show a text. Both must end well, but for one below a comment  <!-- test: refused -->, which must
not compile, and

  - a statement with a text behind it as a comment, such as  f(line, ...);  // "three of ten"
    or  line = ...;  // "three of ten"  must have given that text;
  - what a sample shows or prints is the block of the kind "text" that follows it, if one does."""

import concurrent.futures
import os
import pathlib
import re
import subprocess
import sys
import tempfile

from markdown_blocks import ROOT, blocks_of, documents

WARNINGS = ["-Wall", "-Wextra", "-Wpedantic", "-Wshadow", "-Wconversion", "-Werror"]
CATALOGUES = ROOT / "examples" / "catalogues"

# What stands in front of each sample that is no program; compiled once, since the headers take longer
# than all samples.
FRAME = """
#include <cstdio>
#include <cstdlib>
#include <string_view>
inline void Expect(std::string_view given, std::string_view expected) {
  if (given == expected) return;
  std::printf("gives \\"%.*s\\"\\n", static_cast<int>(given.size()), given.data());
  std::exit(1);
}
"""

PROGRAM = """
static void Sample([[maybe_unused]] void (*Show)(const char* text)) {
%s}
int main() {
  Sample([](const char* text) { std::puts(text); });
}
"""


def samples_of_documents():
    """The place of each, its text, whether it is refused, and what it prints if that is told."""
    for document in documents():
        blocks = list(blocks_of(document))
        for block, behind in zip(blocks, [*blocks[1:], None]):
            if block.kind == "cpp":
                end = block.line + block.text.count("\n")
                shown = behind and behind.kind == "text" and behind.line - end <= 3
                yield (block.place(), block.text, block.note == "refused",
                       behind.text if shown else None)


def samples_of_headers():
    # In a comment a sample stands further to the right than the text, behind an empty line.
    for path in sorted((ROOT / "include").rglob("*.h*")):
        for block in re.findall(r"^ *///\n((?: *///     .*\n)+)", path.read_text("ascii"), re.M):
            yield path.name, re.sub(r"^ *///     ", "", block, flags=re.M), False, None


def with_expectation(line):
    told = re.match(r"(?:.*?\b(\w+) = .*|\s*[\w:]+\((\w+), .*);  // (\"[^\"]*\")$", line)
    return f"{line}\nExpect({told[1] or told[2]}, {told[3]});" if told else line


def is_program(sample):
    return re.search(r"^int main\(", sample, re.M)


def program_of(sample):
    if is_program(sample):
        return sample
    lines = sample.splitlines()
    includes = [line for line in lines if line.startswith("#include")]
    body = [with_expectation(line) for line in lines if not line.startswith("#include")]
    return "\n".join([*includes, PROGRAM % ("\n".join(body) + "\n")])


class Samples:
    """Compiles and runs samples; to be used as a context."""

    def __init__(self, compiler, standard, library=None, options=()):
        self.library = library
        self.command = [compiler, f"-std=c++{standard}", *WARNINGS, *options, "-pthread",
                        "-I", str(ROOT / "include")]

    def __enter__(self):
        self.folder = tempfile.TemporaryDirectory()
        self.frame = pathlib.Path(self.folder.name, "frame.h")
        public = [f"#include <{path.name}>\n" for path in sorted((ROOT / "include").glob("*.h*"))]
        self.frame.write_text("".join(public) + FRAME)
        subprocess.run([*self.command, "-x", "c++-header", self.frame, "-o", f"{self.frame}.gch"],
                       check=True)
        return self

    def __exit__(self, *_):
        self.folder.cleanup()

    def problem_of(self, sample, refused, printed):
        """What is wrong with a sample, or nothing."""
        if refused:
            made = self.compile(sample, ["-fsyntax-only", "-x", "c++", "-"])
            return None if made.returncode else "compiles"
        with tempfile.TemporaryDirectory() as folder:
            program = str(pathlib.Path(folder, "sample"))
            what = ["-fsyntax-only", "-x", "c++", "-"]
            if self.library:
                what = ["-x", "c++", "-", "-x", "none", self.library, "-o", program,
                        f"-Wl,-rpath,{pathlib.Path(self.library).parent}"]
            made = self.compile(sample, what)
            if made.returncode:
                return f"does not compile:\n{made.stderr}"
            return problem_of_run(program, folder, printed) if self.library else None

    def compile(self, sample, what):
        frame = [] if is_program(sample) else ["-include", str(self.frame)]
        return subprocess.run([*self.command, *frame, *what], input=program_of(sample), text=True,
                              check=False, capture_output=True)


def problem_of_run(program, folder, printed):
    environment = {**os.environ, "TAVI_XLATE_ROOT": str(CATALOGUES),
                   "KXXLATE_LOG": str(pathlib.Path(folder, "log"))}
    ran = subprocess.run([program], text=True, check=False, capture_output=True, cwd=folder,
                         env=environment, timeout=60)
    if ran.returncode or ran.stderr:
        return f"ends with {ran.returncode}:\n{ran.stdout}{ran.stderr}"
    if printed is not None and ran.stdout != printed:
        return f"prints\n{ran.stdout}"
    return None


def main():
    compiler, standard, *rest = sys.argv[1:]
    library, options = (rest[0], rest[1:]) if rest else (None, [])
    found = [*samples_of_documents(), *samples_of_headers()]
    with Samples(compiler, standard, library, options) as samples, \
            concurrent.futures.ThreadPoolExecutor(2) as pool:
        problems = list(pool.map(lambda one: samples.problem_of(*one[1:]), found))
    for (name, sample, _, _), problem in zip(found, problems):
        if problem:
            print(f"{name}: this sample\n{sample}{problem}")
    if len(found) < 5:
        print(f"only {len(found)} samples found")
    return 1 if any(problems) or len(found) < 5 else 0


if __name__ == "__main__":
    sys.exit(main())
