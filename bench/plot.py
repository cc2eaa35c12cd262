#!/usr/bin/env python3
"""Draws the growth curves of one run with gnuplot: plot.py RESULTS DIRECTORY."""

import pathlib
import subprocess
import sys

import results

# File, title, what the names of its benchmarks begin with (the size comes next, then who it is), the
# axes, the scales, and what a value is multiplied with, for each unit of size and in all.
CHARTS = [
    ("hit", "A hit, by the keys of its catalogue", "growth/hit/", "keys", "ns", "x", 0, 1),
    ("acquisition", "Acquire and release, by the number of bundles", "acquire_among/", "bundles",
     "ns", "x", 0, 1),
    ("load", "Load of a file, by its keys of about 99 bytes a line", ("growth/load/", "load/"),
     "keys", "ms", "xy", 1, 1e-6),
    ("languages", "Memory held for languages of 1,000 texts each", "growth/languages/",
     "languages", "KB", "", 0, 1e-3),
]


def curves(measured, prefix, each, factor):
    """Answers {contender: [(size, value)]} of those with more than one size."""
    found = {}
    for name, value in measured.items():
        if name.startswith(prefix):
            size = int(results.contender(results.row(name)))
            value *= factor * (size if each else 1)
            found.setdefault(results.contender(name), []).append((size, value))
    return {contender: sorted(points) for contender, points in sorted(found.items())
            if len(points) > 1}


def script(path, title, across, up, logarithmic, drawn):
    lines = ["set terminal svg size 720,420 font 'sans,13' background 'white'",
             f"set output '{path}'", f"set title '{title}'", f"set xlabel '{across}'",
             f"set ylabel '{up}'", "set key left top reverse Left", "set grid", "set format x '%.0f'"]
    if logarithmic:
        lines.append(f"set logscale {logarithmic}")
    if "y" not in logarithmic:
        lines.append("set yrange [0:*]")
    for number, points in enumerate(drawn.values()):
        lines += [f"$data{number} << END", *(f"{size} {value:.6g}" for size, value in points), "END"]
    lines.append("plot " + ", ".join(
        f"$data{number} with linespoints linewidth 2 title '{name.replace('_', ' ')}'"
        for number, name in enumerate(drawn)))
    return "\n".join(lines) + "\n"


def main():
    measured = results.read(sys.argv[1])
    directory = pathlib.Path(sys.argv[2])
    directory.mkdir(parents=True, exist_ok=True)
    for name, title, prefix, across, up, logarithmic, each, factor in CHARTS:
        drawn = curves(measured, prefix, each, factor)
        if not drawn:
            print(f"Nothing was measured for {name}.svg.")
            continue
        path = directory / f"{name}.svg"
        commands = script(path, title, across, up, logarithmic, drawn)
        subprocess.run(["gnuplot"], input=commands, text=True, check=True)
        print(f"Drawn: {path}")


if __name__ == "__main__":
    main()
