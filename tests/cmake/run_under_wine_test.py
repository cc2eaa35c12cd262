#!/usr/bin/env python3
"""Tests the script that runs Windows programs, with a wine that does as it is told.

Usage: run_under_wine_test.py SCRIPT
"""

import os
import pathlib
import pty
import subprocess
import sys
import tempfile
import unittest

SCRIPT = pathlib.Path(sys.argv.pop()).resolve()

# Counts its runs, and is then what the test wrote.
WINE = """#!/usr/bin/env python3
import os, sys
place = os.environ["RUNS"]
run = os.path.getsize(place) + 1
open(place, "a").write("x")
def out(data): sys.stdout.buffer.write(data); sys.stdout.buffer.flush()
def err(data): sys.stderr.buffer.write(data); sys.stderr.buffer.flush()
"""
EVERY_BYTE = bytes(range(256)) * 3


class RunUnderWine(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = pathlib.Path(scratch.name)
        self.runs = self.folder / "runs"
        self.runs.touch()
        self.prefix = self.folder / "prefix"
        server = self.folder / "wineserver"
        server.write_text("#!/bin/sh\nexit 2\n")  # as if it ran already
        server.chmod(0o755)
        self.environment = {**os.environ, "RUNS": str(self.runs),
                            "PATH": f"{self.folder}:{os.environ['PATH']}"}

    def command(self, program, *arguments):
        wine = self.folder / "wine"
        wine.write_text(WINE + program + "\n")
        wine.chmod(0o755)
        return [SCRIPT, self.prefix, *arguments]

    def run_program(self, program, *arguments, **options):
        options = {"stdout": subprocess.PIPE, "stderr": subprocess.PIPE, **options}
        return subprocess.run(self.command(program, *arguments), env=self.environment,
                              check=False, timeout=60, **options)

    def expect(self, found, runs, code, output=b"", errors=b""):
        self.assertEqual((runs, code), (self.runs.stat().st_size, found.returncode))
        self.assertTrue(output == found.stdout, f"{len(output)} bytes, not {found.stdout[:300]!r}")
        self.assertTrue(errors == found.stderr, f"{len(errors)} bytes, not {found.stderr[:300]!r}")

    def test_what_succeeded_is_not_run_again(self):
        self.expect(self.run_program("out(b'text')"), 1, 0, b"text")

    def test_what_succeeded_without_a_word_is_not_run_again(self):
        self.expect(self.run_program("pass"), 1, 0)

    def test_what_failed_without_a_word_is_run_once_more(self):
        found = self.run_program("sys.exit(53) if run == 1 else out(b'text')", "x.exe", "a b")
        self.expect(found, 2, 0, b"text")
        self.assertEqual("exit code 53: x.exe a b\n",
                         (self.prefix / "run_again.log").read_text())

    def test_the_second_failure_counts(self):
        self.expect(self.run_program("sys.exit(7 if run == 1 else 9)"), 2, 9)

    def test_a_failure_that_printed_something_counts(self):
        self.expect(self.run_program("out(b'1'); sys.exit(3)"), 1, 3, b"1")

    def test_a_failure_that_printed_on_standard_error_counts(self):
        self.expect(self.run_program("err(b'1'); sys.exit(3)"), 1, 3, b"", b"1")

    def test_a_failure_that_printed_a_zero_byte_counts(self):
        self.expect(self.run_program("out(bytes(1)); sys.exit(3)"), 1, 3, bytes(1))

    def test_a_program_that_a_signal_ended_is_run_once_more(self):
        self.expect(self.run_program("os.kill(os.getpid(), 9) if run == 1 else out(b'2')"), 2, 0,
                    b"2")

    def test_bytes_pass_as_they_are(self):
        self.expect(self.run_program("out(bytes(range(256)) * 3); err(bytes(range(255, -1, -1)))"),
                    1, 0, EVERY_BYTE, bytes(range(255, -1, -1)))

    def test_outputs_may_be_large(self):
        program = "for _ in range(512): out(b'o\\n' * 8192); err(b'e\\0' * 8192)\nsys.exit(4)"
        self.expect(self.run_program(program), 1, 4, b"o\n" * 8192 * 512, b"e\0" * 8192 * 512)

    def test_streams_that_are_one_keep_their_order(self):
        program = "for _ in range(100): out(b'output\\n'); err(b'errors\\n')"
        found = self.run_program(program, stderr=subprocess.STDOUT)
        self.assertEqual(b"output\nerrors\n" * 100, found.stdout)

    def test_streams_that_are_one_are_repeated_as_one(self):
        found = self.run_program("os.kill(os.getpid(), 9) if run == 1 else sys.exit(6)",
                                 stderr=subprocess.STDOUT)
        self.assertEqual((2, 6, b""),
                         (self.runs.stat().st_size, found.returncode, found.stdout))

    def test_output_passes_while_the_program_runs(self):
        program = "out(b'ready'); sys.exit(0 if sys.stdin.read() == 'go on' else 1)"
        with subprocess.Popen(self.command(program), env=self.environment, stdin=subprocess.PIPE,
                              stdout=subprocess.PIPE) as running:
            self.assertEqual(b"ready", running.stdout.read(5))
            running.stdin.write(b"go on")
            running.stdin.close()
            self.assertEqual(0, running.wait(60))

    def test_arguments_pass_as_they_are(self):
        found = self.run_program("out('|'.join(sys.argv[1:]).encode())", "x.exe", "", "a  b", "*",
                                 "\u00e9\n")
        self.expect(found, 1, 0, "x.exe||a  b|*|\u00e9\n".encode())

    def test_a_program_on_a_terminal_has_it_for_itself(self):
        command = self.command("out(str((os.isatty(1), os.isatty(2))).encode()); sys.exit(5)")
        terminal, program_side = pty.openpty()
        found = subprocess.run(command, env=self.environment, stdout=program_side,
                               stderr=program_side, check=False, timeout=60)
        os.close(program_side)
        self.assertEqual(5, found.returncode)
        self.assertEqual(b"(True, True)", os.read(terminal, 100))

    def test_nothing_is_left_behind(self):
        self.environment["TMPDIR"] = str(self.folder / "temporary")
        (self.folder / "temporary").mkdir()
        self.run_program("sys.exit(1)")
        self.assertEqual([], list((self.folder / "temporary").iterdir()))


if __name__ == "__main__":
    unittest.main()
