#!/usr/bin/env python3
"""A large table of combinations in parts, and the answers of the parts as those of one table.

    combinations_parts.py split TABLE FOLDER [ROWS]   FOLDER/part-00001.csv ... of so many rows (10000)
    combinations_parts.py merge FOLDER                the answers, as of the whole table

The first line of TABLE holds the names of the columns and stands at the head of each part. TABLE is
text in UTF-8 or code page 1250. Between the two, each part is answered by
`ferna-wsad --kombinacje PART TASK.json` into a file beside it that ends in .jsonl:
combinations_parallel.sh does that on the processors of one machine, combinations_slurm.sh on those of
a cluster. A part that was split stays as it is, so that a second call changes nothing.
"""

import json
import sys
from pathlib import Path

CHECKS = ("beton", "rozciaganie", "scinanie", "interakcja")
EQUAL = 1 + 1e-9  # uses that rounding alone tells apart are equal
ROOM = 6          # rows of the load table


def write_whole(path, lines):
    """Under another name first: a part is there as a whole or not at all."""
    passing = path.with_suffix(".tmp")
    passing.write_bytes(b"".join(lines))
    passing.rename(path)


def split(table, folder, size):
    folder.mkdir(parents=True, exist_ok=True)
    with open(table, "rb") as file:
        head = file.readline()
        lines, number = [], 1
        for line in file:
            if not line.strip(b" \t\r\n;,"):
                continue
            lines.append(line)
            if len(lines) == size:
                write_part(folder, number, head, lines)
                lines, number = [], number + 1
    if lines:
        write_part(folder, number, head, lines)


def write_part(folder, number, head, lines):
    path = folder / f"part-{number:05}.csv"
    if not path.exists():
        write_whole(path, [head, *lines])


def use_of(row, check):
    """How far a row uses a check: without limit where nothing could carry it."""
    uses = row["Wytezenie"]
    return float("inf") if uses is None or uses[check] is None else uses[check]


class Choice:
    """The rows that govern, and the six worst; in the room of a few rows."""

    def __init__(self):
        self.governing = dict.fromkeys(CHECKS)
        self.worst = []

    def add(self, row):
        for check in CHECKS:
            best = self.governing[check]
            if best is None or use_of(row, check) > best[1] * EQUAL:
                self.governing[check] = (row["wiersz"], use_of(row, check))
        use = max(use_of(row, check) for check in CHECKS)
        place = next((i for i, (_, other) in enumerate(self.worst) if use > other * EQUAL),
                     len(self.worst))
        self.worst.insert(place, (row["wiersz"], use))
        del self.worst[ROOM:]

    def summary(self, rows, refused):
        governing = {check: best and best[0] for check, best in self.governing.items()}
        order = [row for row in governing.values() if row] + [row for row, _ in self.worst]
        return {"Podsumowanie": {"wiersze": rows, "odrzucone": refused, "miarodajne": governing,
                                 "szesc": list(dict.fromkeys(order))[:ROOM]}}


def one_line(value):
    return json.dumps(value, ensure_ascii=False, separators=(",", ":"))


def merge(folder):
    rows = refused = 0
    choice = Choice()
    for part in sorted(folder.glob("part-*.csv")):
        answers = part.with_suffix(".jsonl")
        if not answers.exists():
            sys.exit(f"{answers} is not there: call the script of the parts again")
        before = rows
        with open(answers, encoding="utf-8") as file:
            for line in file:
                row = json.loads(line)
                if "Podsumowanie" in row:
                    continue
                row["wiersz"] += before
                rows += 1
                if "blad" in row:
                    refused += 1
                else:
                    choice.add(row)
                print(one_line(row))
    print(one_line(choice.summary(rows, refused)))


def main():
    sys.stdout.reconfigure(encoding="utf-8")
    arguments = sys.argv[1:]
    if len(arguments) in (3, 4) and arguments[0] == "split":
        split(arguments[1], Path(arguments[2]), int(arguments[3]) if len(arguments) == 4 else 10000)
    elif len(arguments) == 2 and arguments[0] == "merge":
        merge(Path(arguments[1]))
    else:
        sys.exit(__doc__)


if __name__ == "__main__":
    main()
