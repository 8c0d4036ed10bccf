#!/usr/bin/env python3
"""What a task of a stream costs: instructions and allocations, counted by callgrind, so that the
figures do not depend on the machine's other work.

Usage: bench/stream_cost.py [PROGRAM]

Sixty mixed tasks of the reference sets are computed, then the same twice; the difference is what
sixty tasks cost without the start of the program. Leaves with 1 where a task costs more than it
should beside the searches.
"""

import collections
import os
import pathlib
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
TASKS = 60
# A task, beside the search.
MOST_INSTRUCTIONS = 250_000
MOST_ALLOCATIONS = 100
SEARCH = "ferna::Szukaj_"
EQUILIBRIUM = ("ferna::enteredEquilibria(", "ferna::batch::writeEquilibria(")
NOTES = ("ferna::notes::notesOf(", "ferna::notes::entered(", "ferna::batch::writeNotes(")
ALLOCATORS = ("malloc", "realloc", "calloc")


def mixed_tasks():
    lines = []
    for name in ("anchor", "plate", "solver", "statics"):
        lines += (ROOT / f"tests/golden/{name}.tasks.jsonl").read_text(encoding="utf-8").splitlines()
    return [lines[i * len(lines) // TASKS] for i in range(TASKS)]


def counts(program, tasks):
    """Total instructions, those of search, equilibrium and notes, and allocations of a run."""
    with tempfile.TemporaryDirectory() as folder:
        out = pathlib.Path(folder) / "callgrind"
        # Callgrind counts an instruction that repeats itself over bytes once a byte.
        environment = dict(os.environ, GLIBC_TUNABLES="glibc.cpu.x86_rep_stosb_threshold=1000000:"
                                                      "glibc.cpu.x86_rep_movsb_threshold=1000000")
        subprocess.run(["valgrind", "--tool=callgrind", f"--callgrind-out-file={out}", program,
                        "--linie"], input="\n".join(tasks) + "\n", text=True, check=False,
                       env=environment,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        lines = out.read_text(encoding="utf-8").splitlines()
    names = {}
    own = 0
    calls = collections.Counter()  # by the function called
    within = collections.Counter()  # instructions of calls, by caller and function called
    caller = called = None
    is_call = False
    for line in lines:
        if function := re.match(r"(c?)fn=\((\d+)\)(?: (.*))?", line):
            of_call, number, name = function.groups()
            if name:
                names[number] = name
            if of_call:
                called = number
            else:
                caller = number
        elif line.startswith("calls="):
            calls[called] += int(line[6:].split()[0])
            is_call = True
        elif re.match(r"[-+*\d]", line) and len(line.split()) > 1:
            instructions = int(line.split()[1])
            if is_call:
                within[caller, called] += instructions
            else:
                own += instructions
            is_call = False

    def of(start):
        """Instructions of the functions of that name, called from others."""
        return sum(count for (by, to), count in within.items()
                   if names.get(to, "").startswith(start) and not names[by].startswith(start))

    return collections.Counter(
        all=own, search=of(SEARCH), notes=sum(of(start) for start in NOTES),
        equilibrium=sum(of(start) for start in EQUILIBRIUM),
        allocations=sum(count for number, count in calls.items()
                        if names.get(number) in ALLOCATORS))


def main():
    program = sys.argv[1] if len(sys.argv) > 1 else ROOT / "build/release/bin/ferna-wsad"
    tasks = mixed_tasks()
    once = counts(program, tasks)
    twice = counts(program, tasks * 2)
    cost = {what: (twice[what] - once[what]) / TASKS for what in twice}
    beside = cost["all"] - cost["search"]
    rest = beside - cost["equilibrium"] - cost["notes"]
    print("| a task of a stream, mean of 60 | |\n|---|---:|")
    for what, value in (("instructions", cost["all"]), ("of these the search", cost["search"]),
                        ("everything beside the search", beside),
                        ("of that the exact equilibrium and its key", cost["equilibrium"]),
                        ("the notes", cost["notes"]), ("the rest", rest),
                        ("allocations", cost["allocations"])):
        print(f"| {what} | {value:,.0f} |".replace(",", " "))
    return int(beside > MOST_INSTRUCTIONS or cost["allocations"] > MOST_ALLOCATIONS)


if __name__ == "__main__":
    sys.exit(main())
