#!/usr/bin/env python3
"""Checks of check_samples.py: what it says of samples that are right and that are wrong.

Usage: check_samples_test.py COMPILER LIBRARY [OPTION...]"""

import concurrent.futures
import pathlib
import sys
import tempfile

import check_samples
import markdown_blocks

PROGRAM = "#include <cstdio>\nint main() { std::puts(\"one\"); return %d; }\n"

# A sample, what it is said to print, and a part of what is said of it; "" when nothing is.
CASES = [
    ("Show(\"one\");\n", None, ""),
    ("Show(\"one\");\n", "one\n", ""),
    ("Show(\"one\");\n", "two\n", "prints\none\n"),
    ("int Unused = 3;\n", None, "does not compile"),
    ("#include <vector>\nconst std::vector<int> list;\nShow(list.data() ? \"a\" : \"b\");\n", "b\n", ""),
    ("std::string a = \"b\";  // \"b\"\n", None, ""),
    ("std::string a = \"b\";  // \"c\"\n", None, "gives \"b\""),
    ("char a[9];\nCKxXlate::Insert(a, 8, \"%0\", \"b\");  // \"c\"\n", None, "gives \"b\""),
    ("std::abort();\n", None, "ends with -6"),
    (PROGRAM % 0, "one\n", ""),
    (PROGRAM % 0, "two\n", "prints\none\n"),
    (PROGRAM % 3, None, "ends with 3"),
]

# A sample that must not compile, and what is said of it.
REFUSED_CASES = [("int number = \"text\";\n", None), ("Show(\"one\");\n", "compiles")]

DOCUMENT = "```cpp\na\n```\n\n```text\nA\n```\n\n```cpp\nb\n```\n\nFar.\n\n```text\nB\n```\n" \
    "\n<!-- test: refused -->\n```cpp\nc\n```\n"


def breaches_of_reading():
    """Only a text directly behind a sample is what it prints."""
    with tempfile.TemporaryDirectory() as folder:
        document = pathlib.Path(folder, "a.md")
        document.write_text(DOCUMENT)
        check_samples.documents = lambda: [document]
        read = [found[1:] for found in check_samples.samples_of_documents()]
        check_samples.documents = markdown_blocks.documents
    if read != [("a\n", False, "A\n"), ("b\n", False, None), ("c\n", True, None)]:
        yield f"read as {read}"


def main():
    compiler, library, *options = sys.argv[1:]
    with check_samples.Samples(compiler, 17, library, options) as samples, \
            concurrent.futures.ThreadPoolExecutor(2) as pool:
        said = list(pool.map(lambda case: samples.problem_of(case[0], False, case[1]), CASES))
        refused = [samples.problem_of(sample, True, None) for sample, _ in REFUSED_CASES]
    breaches = list(breaches_of_reading())
    for (sample, _, expected), problem in zip(CASES, said):
        if bool(problem) != bool(expected) or expected not in (problem or ""):
            breaches.append(f"of\n{sample}is said:\n{problem}\nnot: {expected}")
    for (sample, expected), problem in zip(REFUSED_CASES, refused):
        if problem != expected:
            breaches.append(f"of\n{sample}that is refused is said:\n{problem}\nnot: {expected}")
    print(*breaches, sep="\n")
    return 1 if breaches else 0


if __name__ == "__main__":
    sys.exit(main())
