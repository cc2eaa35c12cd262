#!/usr/bin/env python3
"""Prints the table of one run: report.py TARGETS RESULTS."""

import re
import sys

import results

REACH = re.compile(r"(?P<sign><=|>=) (?P<ratio>[\d.]+)(?: (?P<other>[a-z][\w./]*))?"
                   r"(?: \+ (?P<more>[\d.]+))?$")


def targets(path):
    with open(path, encoding="utf-8") as file:
        for line in file:
            if line.strip() and not line.startswith("#"):
                yield [cell.strip() for cell in line.split("|")]


def shown(value, unit):
    """A value in about three digits."""
    if value is None:
        return ""
    for limit, factor, name in ((1e6, 1e6, {"ns": "ms", "B": "MB"}), (1e4, 1e3, {"ns": "us", "B": "KB"})):
        if value >= limit and unit in name:
            return f"{digits(value / factor)} {name[unit]}"
    return f"{digits(value)} {unit}".strip()


def digits(value):
    return f"{value:.0f}" if value >= 100 or value == int(value) else f"{value:.3g}"


class Row:
    def __init__(self, name, measured):
        self.measured = measured
        self.ours = measured[name]
        rivals = {results.contender(other): value for other, value in measured.items()
                  if results.row(other) == results.row(name)}
        kind = results.contender(name).partition(".")[2]
        self.floor = rivals.get(f"floor.{kind}", rivals.get("floor"))
        self.named = rivals
        self.peers = sorted((value, peer) for peer, value in rivals.items()
                            if not peer.startswith(("ours", "floor")))

    def value_of(self, other):
        if "/" in other:
            return self.measured.get(other)
        if other == "best":
            return self.peers[0][0] if self.peers else None
        return self.floor if other == "floor" else self.named.get(other)

    def reached(self, target):
        """Whether one target is reached, with what was measured."""
        found = REACH.match(target)
        if not found:
            raise ValueError(f"no target: {target}")
        ratio = float(found["ratio"])
        if found["other"] is None:
            return "yes" if self.ours <= ratio else "NO"
        other = self.value_of(found["other"])
        if other is None:
            return "not measured"
        if found["sign"] == ">=":
            return verdict(other / self.ours >= ratio, other / self.ours)
        return verdict(self.ours <= ratio * other + float(found["more"] or 0), self.ours / other)


def verdict(reached, measured):
    return f"{'yes' if reached else 'NO'}, {measured:.2f}"


def over(value, other):
    return f"{value / other:.2f}" if other else ""


def cells(name, workload, unit, reach, measured):
    row = Row(name, measured)
    wanted = [target.strip() for target in reach.split(",") if target.strip()]
    peers = ", ".join(f"{peer} {shown(value, unit)}" for value, peer in row.peers)
    best = row.peers[0][0] if row.peers else None
    return [workload, shown(row.ours, unit), peers, shown(row.floor, unit),
            over(row.ours, best), over(row.ours, row.floor), "; ".join(wanted),
            "; ".join(row.reached(target) for target in wanted)]


def print_table(rows):
    widths = [max(len(row[column]) for row in rows) for column in range(len(rows[0]))]
    for number, row in enumerate(rows):
        print("| " + " | ".join(cell.ljust(width) for cell, width in zip(row, widths)) + " |")
        if number == 0:
            print("|" + "|".join("-" * (width + 2) for width in widths) + "|")


def main():
    measured = results.read(sys.argv[2])
    rows = [["Workload", "Ours", "Peers", "Floor", "Ours / best", "Ours / floor", "To reach",
             "Reached"]]
    for name, workload, unit, reach in targets(sys.argv[1]):
        if name in measured:
            rows.append(cells(name, workload, unit, reach, measured))
    for name in results.failed(sys.argv[2]):
        print(f"Failed: {name}")
    if len(rows) == 1:
        print("No row of the table was measured.")
        return
    print_table(rows)
    print("\nThe least of the repetitions, for two threads the median; ratios within this one run.")


if __name__ == "__main__":
    main()
