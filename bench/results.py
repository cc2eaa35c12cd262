"""Reads what Google Benchmark wrote: one number for each benchmark."""

import json
import re
import statistics

# Google Benchmark adds to a name how it was run.
HOW = re.compile(r"/(iterations:\d+|repeats:\d+|threads:\d+|manual_time|real_time|min_time:[\d.]+)")


def read(path):
    """Answers {name: number}: nanoseconds, or the count that a benchmark counts.

    Of several repetitions the least counts, since what disturbs a run only ever adds time. But two
    threads that missed each other look too fast, so theirs is the median.
    """
    with open(path, encoding="utf-8") as file:
        runs = json.load(file)["benchmarks"]
    found = {}
    for run in runs:
        if run["run_type"] != "iteration" or run.get("error_occurred"):
            continue
        found.setdefault(run["run_name"], []).append(number(run))
    return {HOW.sub("", name): (statistics.median if "/threads:" in name else min)(numbers)
            for name, numbers in found.items()}


def failed(path):
    """Answers the names of the benchmarks that could not be measured."""
    with open(path, encoding="utf-8") as file:
        runs = json.load(file)["benchmarks"]
    return sorted({HOW.sub("", run["run_name"]) for run in runs if run.get("error_occurred")})


def number(run):
    if "count" in run:
        return run["count"]
    wall = "_time" in run["run_name"]
    return run["real_time" if wall else "cpu_time"] * {"ns": 1, "us": 1e3, "ms": 1e6}[run["time_unit"]]


def row(name):
    """The row of a benchmark, which is its name without the contender."""
    return name.rpartition("/")[0]


def contender(name):
    return name.rpartition("/")[2]
