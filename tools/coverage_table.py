#!/usr/bin/env python3
"""Prints line and branch coverage by folder of src/ from a report of gcovr in JSON.

Usage: coverage_table.py COVERAGE.json [FOLDER ...]: with folders also what they leave uncovered.
"""

import collections
import json
import sys


def counts(file):
    lines = [line for line in file["lines"] if not line.get("gcovr/noncode")]
    branches = [branch for line in lines for branch in line["branches"]]
    return (
        sum(line["count"] > 0 for line in lines),
        len(lines),
        sum(branch["count"] > 0 for branch in branches),
        len(branches),
    )


def room_of(path):
    """The room of a source, or of a header, which rooms find in build/.../rooms/ROOM/."""
    parts = path.split("/")
    return parts[parts.index("rooms" if "rooms" in parts else "src") + 1]


def row(name, c):
    share = lambda part, whole: f"{100 * part / whole:6.1f} %" if whole else "      -"
    print(f"{name:<22}{c[0]:>6} of {c[1]:>5}{share(c[0], c[1])}   {c[2]:>6} of {c[3]:>5}{share(c[2], c[3])}")


def main():
    folders = collections.defaultdict(lambda: [0, 0, 0, 0])
    with open(sys.argv[1], encoding="utf-8") as report:
        files = json.load(report)["files"]
    total = [0, 0, 0, 0]
    for file in files:
        folder = room_of(file["file"])
        for i, count in enumerate(counts(file)):
            folders[folder][i] += count
            total[i] += count
    print(f"{'folder':<22}{'lines':>15}{'':>7}   {'branches':>15}")
    for folder in sorted(folders):
        row("src/" + folder, folders[folder])
    row("all", total)
    for wanted in sys.argv[2:]:
        for file in files:
            if room_of(file["file"]) != wanted:
                continue
            for line in file["lines"]:
                missed = [b for b in line["branches"] if b["count"] == 0]
                if not line.get("gcovr/noncode") and (line["count"] == 0 or missed):
                    taken = len(line["branches"]) - len(missed)
                    print(f"{file['file']}:{line['line_number']}: {line['count']} times, "
                          f"{taken} of {len(line['branches'])} branches")


main()
