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

FRAME = """
#include <cstdio>
#include <cstdlib>
#include <string_view>
static void Expect(std::string_view given, std::string_view expected) {
  if (given == expected) return;
  std::printf("gives \\"%%.*s\\"\\n", static_cast<int>(given.size()), given.data());
  std::exit(1);
}
static void Sample([[maybe_unused]] void (*Show)(const char* text)) {
  [[maybe_unused]] const auto expect = &Expect;
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
    return f"{line}\nexpect({told[1] or told[2]}, {told[3]});" if told else line


def program_of(sample):
    if re.search(r"^int main\(", sample, re.M):
        return sample
    lines = sample.splitlines()
    includes = [line for line in lines if line.startswith("#include")]
    public = [f"#include <{path.name}>" for path in sorted((ROOT / "include").glob("*.h*"))]
    body = [with_expectation(line) for line in lines if not line.startswith("#include")]
    return "\n".join([*includes, *public, FRAME % ("\n".join(body) + "\n")])


def refusal_problem_of(sample, command):
    made = subprocess.run([*command, "-fsyntax-only", "-x", "c++", "-"], input=program_of(sample),
                          text=True, check=False, capture_output=True)
    return None if made.returncode else "compiles"


def problem_of(sample, refused, printed, command, library):
    """What is wrong with a sample, or nothing."""
    if refused:
        return refusal_problem_of(sample, command)
    with tempfile.TemporaryDirectory() as folder:
        if library:
            program = str(pathlib.Path(folder, "sample"))
            link = ["-x", "none", library, f"-Wl,-rpath,{pathlib.Path(library).parent}", "-pthread"]
            command = [*command, "-x", "c++", "-", *link, "-o", program]
        else:
            command = [*command, "-fsyntax-only", "-x", "c++", "-"]
        made = subprocess.run(command, input=program_of(sample), text=True, check=False,
                              capture_output=True)
        if made.returncode:
            return f"does not compile:\n{made.stderr}"
        if not library:
            return None
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
    command = [compiler, f"-std=c++{standard}", *WARNINGS, *options, "-I", str(ROOT / "include")]
    found = [*samples_of_documents(), *samples_of_headers()]
    with concurrent.futures.ThreadPoolExecutor(2) as pool:
        problems = list(pool.map(lambda one: problem_of(*one[1:], command, library), found))
    for (name, sample, _, _), problem in zip(found, problems):
        if problem:
            print(f"{name}: this sample\n{sample}{problem}")
    if len(found) < 5:
        print(f"only {len(found)} samples found")
    return 1 if any(problems) or len(found) < 5 else 0


if __name__ == "__main__":
    sys.exit(main())
