#!/usr/bin/env python3
"""Compiles statements that hosts must not write, and checks that each is an error whose message says
what to write instead; and that the right forms compile, so that it is not something else that fails.

Usage: check_misuse.py COMPILER STANDARD"""

import pathlib
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
WARNINGS = ["-Wall", "-Wextra", "-Wpedantic", "-Wshadow", "-Wconversion", "-Werror"]

DROPPED = "this translator is dropped at the end of the statement"
NO_SIZE = "a pointer does not tell how long the buffer is: pass its size behind it"
NO_BUFFER = "a buffer must be an array of char, writable and of more than one byte"
NO_TEXT = "this must be a text (char*, std::string, std::string_view)"
NO_OBJECT = "an object cannot be a value here. Pass text.c_str(), or use kx::insert_variable"
NO_VALUE = "a value must be a text (char*, std::string, std::string_view) or a number"

# What stands before the statements of each row.
HEADER = "#include <KxXlate.hpp>\n"
BEFORE = """
struct Opaque {};
void Host(char* place, const char* key, const std::string& text, const kx::Translator& texts,
          CKxXlate* raw);
void Host([[maybe_unused]] char* place, [[maybe_unused]] const char* key,
          [[maybe_unused]] const std::string& text, [[maybe_unused]] const kx::Translator& texts,
          [[maybe_unused]] CKxXlate* raw) {
  [[maybe_unused]] char line[80];
"""

# What is wrong, what is right, and what the compiler says of the wrong one.
ROWS = [
    # A translator that is gone before its text is read.
    ('auto t = kx::Translator::find("a", "fr").text(key); (void)t;',
     'auto a = kx::Translator::find("a", "fr"); auto t = a.text(key); (void)t;', DROPPED),
    ('auto t = kx::Translator::find("a", "fr").text_or(key, "x"); (void)t;', '', DROPPED),
    ('auto t = kx::Translator::find("a", "fr").c_text(key); (void)t;', '', DROPPED),
    ('auto t = kx::Translator::find("a", "fr").label(key); (void)t;', '', DROPPED),
    ('auto t = kx::Translator::find("a", "fr").directory(key); (void)t;', '', DROPPED),
    ('auto t = kx::Translator::find("a", "fr").name(); (void)t;', '', "deleted"),
    ('auto t = kx::Translator::find("a", "fr").get(); (void)t;', '', "deleted"),
    # A reference that nobody takes.
    ('kx::Translator::find("a", "fr");', '', "nodiscard"),
    ('kx::Translator::share(raw);', '', "nodiscard"),
    ('kx::Translator(texts).release();', '', "nodiscard"),
    # A pointer does not become a reference by itself.
    ('kx::Translator t = raw; (void)t;', 'auto t = kx::Translator::adopt(raw); (void)t;',
     ("conversion", "no viable conversion")),
    # A result that is dropped.
    ('kx::insert(key, 1);', 'auto t = kx::insert(key, 1); (void)t;', "nodiscard"),
    ('kx::insert_into(line, key);', '(void)kx::insert_into(line, key).is_cut;', "nodiscard"),
    # A fallback that is gone before it is read.
    ('auto t = texts.text_or(key, std::string("x")); (void)t;',
     'auto t = texts.text_or(key, text); (void)t;',
     "this fallback is dropped at the end of the statement"),
    # An object among the values of the raw interface.
    ('CKxXlate::InsertVariable(line, sizeof line, key, 3, text);',
     'CKxXlate::InsertVariable(line, sizeof line, key, 3, text.c_str());', NO_OBJECT),
    ('CKxXlate::InsertVariable(line, sizeof line, key, std::string_view(key));',
     'CKxXlate::InsertVariable(line, sizeof line, key);', NO_OBJECT),
    # Buffers whose size nobody tells, and those that are too narrow.
    ('(void)kx::insert_into(place, key).text;', '(void)kx::insert_into(place, 80, key).text;',
     NO_SIZE),
    ('(void)kx::insert_into(place, key, 1).text;', '', NO_SIZE),
    ('(void)kx::insert_typed_into(place, text).text;', '', NO_SIZE),
    ('(void)kx::insert_variable_into(place, 80).text;', '', NO_SIZE),
    ('char one[1]; (void)kx::insert_into(one, key).text;', '', NO_BUFFER),
    ('wchar_t wide[80]; (void)kx::insert_into(wide, key).text;', '', NO_BUFFER),
    ('(void)kx::insert_into("literal", key).text;', '', NO_BUFFER),
    ('std::string s; (void)kx::insert_into(s, key).text;', '', NO_BUFFER),
    ('(void)kx::insert_into(std::array<char, 80>(), key).text;',
     'std::array<char, 80> a; (void)kx::insert_into(a, key).text;', "this buffer is dropped"),
    ('(void)kx::insert_into(key, 80, key).text;', '', "a buffer must be of char, and writable"),
    # Texts that may be none, and what is no text.
    ('auto t = kx::insert(texts.text(key), 1); (void)t;',
     'auto t = kx::insert(texts.text_or(key, "x"), 1); (void)t;', NO_TEXT),
    ('auto t = texts.text(1); (void)t;', '', NO_TEXT),
    ('auto t = kx::Translator::find("a", Opaque()); (void)t;', '', NO_TEXT),
    # Values that have no text.
    ('auto t = kx::insert(key, true); (void)t;', 'auto t = kx::insert(key, text, \'c\', 1); (void)t;',
     NO_VALUE),
    ('auto t = kx::insert(key, Opaque()); (void)t;', '', NO_VALUE),
    ('auto t = kx::insert(key, L"wide"); (void)t;', '', NO_VALUE),
    ('auto t = kx::insert(key, texts.text(key)); (void)t;', '', NO_VALUE),
    ('auto t = kx::insert_typed(key, Opaque()); (void)t;',
     'auto t = kx::insert_typed(key, text, place, 1, 2.5); (void)t;',
     "a typed value must be a text"),
    ('auto t = kx::insert_variable(key, true); (void)t;',
     'auto t = kx::insert_variable(key, text, place, 1, 2.5); (void)t;',
     "a typed value must be a text"),
    # Messages.
    ('kx::Message("a", "fr").format(key);',
     'kx::Message m("a", "fr"); (void)m.format(key);', "this message is dropped"),
    ('kx::Message m("a", "fr"); m.set_values(1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17);', '',
     "a message takes 16 values at most"),
]


class Compiler:
    """Reads the headers once for all statements."""

    def __init__(self, compiler, standard, folder):
        self.command = [compiler, f"-std=c++{standard}", *WARNINGS, "-I", str(ROOT / "include")]
        self.header = folder / "host.hpp"
        self.header.write_text(HEADER, "ascii")
        suffix = ".pch" if "clang" in pathlib.Path(compiler).name else ".gch"
        subprocess.run([*self.command, "-x", "c++-header", self.header, "-o",
                        f"{self.header}{suffix}"], check=True)

    def run(self, statement):
        command = [*self.command, "-fsyntax-only", "-include", self.header, "-x", "c++", "-"]
        return subprocess.run(command, input=f"{BEFORE}  {statement}\n}}\n", text=True, check=False,
                              capture_output=True)


def problems_of(row, compiler):
    wrong, right, message = row
    run = compiler.run(wrong)
    expected = (message,) if isinstance(message, str) else message
    # The older wording of one warning.
    if message == "nodiscard":
        expected = ("nodiscard", "unused-result")
    if run.returncode == 0:
        yield f"compiles: {wrong}"
    elif not any(words in run.stderr for words in expected):
        yield f"{wrong}\nis refused without '{expected[0]}':\n{run.stderr}"
    if right and (run := compiler.run(right)).returncode != 0:
        yield f"does not compile: {right}\n{run.stderr}"


def main():
    compiler, standard = sys.argv[1:]
    with tempfile.TemporaryDirectory() as folder:
        host = Compiler(compiler, standard, pathlib.Path(folder))
        found = [problem for row in ROWS for problem in problems_of(row, host)]
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
