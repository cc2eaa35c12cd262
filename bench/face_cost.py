#!/usr/bin/env python3
"""Counts the instructions that the face takes beside the raw call, and prints them with their ratios.
Exits 1 where a limit is passed. Needs valgrind; instructions, unlike times, are the same in each run.

Usage: face_cost.py PROGRAM RESOURCE_ROOT"""

import os
import re
import subprocess
import sys

# The operation by the face, what it is compared with, and the most that it may take of that.
ROWS = [("hit.face", "hit.raw", 1.02), ("length.face", "length.raw", 1.02),
        ("optional.face", "optional.raw", 1.02), ("acquire.face", "acquire.raw", 1.02),
        ("insert_buffer.face", "insert_buffer.raw", None),
        ("insert_string.face", "insert_string.raw", None)]
FEW, MANY = 1000, 3000


def instructions(program, root, operation, times):
    command = ["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", program, operation,
               str(times)]
    run = subprocess.run(command, env={**os.environ, "TAVI_XLATE_ROOT": root}, text=True, check=True,
                         capture_output=True)
    return int(re.search(r"Collected : (\d+)", run.stderr).group(1))


def cost(program, root, operation):
    counted = [instructions(program, root, operation, times) for times in (FEW, MANY)]
    return (counted[1] - counted[0]) / (MANY - FEW)


def main():
    program, root = sys.argv[1:]
    costs = {name: cost(program, root, name) for row in ROWS for name in row[:2]}
    passed = False
    for face, raw, limit in ROWS:
        ratio = costs[face] / costs[raw]
        passed |= limit is not None and ratio > limit
        print(f"{face}: {costs[face]:.1f}, {raw}: {costs[raw]:.1f}, ratio {ratio:.3f}")
    return 1 if passed else 0


if __name__ == "__main__":
    sys.exit(main())
