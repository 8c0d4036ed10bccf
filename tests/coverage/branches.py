#!/usr/bin/env python3
"""Tells which branches of some rooms no test takes, from what `llvm-cov export` has written.

    branches.py EXPORT.json UNREACHED.txt ROOM ...

UNREACHED.txt names the branches that cannot be reached: a line "file: function's source line: condition:
true|false" with the reason behind it, indented. Ends with an error where another one is not taken, or
where one of these is.
"""
import collections
import json
import pathlib
import sys

TOP = pathlib.Path(__file__).resolve().parent.parent.parent


def source(file, span):
    """The text of a condition, its blanks drawn together."""
    lines = pathlib.Path(file).read_text(encoding="utf-8").split("\n")
    line, column, last, end = span
    part = [text.encode() for text in lines[line - 1:last]]
    part[-1] = part[-1][:end - 1]
    part[0] = part[0][column - 1:]
    return " ".join(b" ".join(part).decode().split())


def branches(export, rooms):
    """(file, span, way): how often, over all instances of a template and both programs and tests."""
    taken = collections.Counter()
    for data in export["data"]:
        for function in data["functions"]:
            for *span, when_true, when_false, file_id, _, _ in function["branches"]:
                # Headers are found through the folders of the rooms in the build.
                path = pathlib.Path(function["filenames"][file_id]).resolve()
                if not any(path.parent == TOP / "src" / room for room in rooms):
                    continue
                name = str(path.relative_to(TOP))
                taken[(name, tuple(span), "true")] += when_true
                taken[(name, tuple(span), "false")] += when_false
    return taken


def reasons(file):
    found, key = {}, None
    for line in pathlib.Path(file).read_text(encoding="utf-8").splitlines():
        if line.startswith("#") or not line.strip():
            continue
        if line.startswith(" "):
            found[key] = (found[key] + " " + line.strip()).strip()
        else:
            key = line.strip()
            found[key] = ""
    return found


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        taken = branches(json.load(file), sys.argv[3:])
    known = reasons(sys.argv[2])
    table = {room: collections.Counter() for room in sys.argv[3:]}
    open_ones, used, stale = [], set(), set()
    for (file, span, way), count in sorted(taken.items()):
        row = table[file.split("/")[1]]
        row["all"] += 1
        key = f"{file}: {source(TOP / file, span)}: {way}"
        if count:
            row["taken"] += 1
            stale |= {key} & known.keys()
        elif known.get(key):
            row["unreachable"] += 1
            used.add(key)
        else:
            open_ones.append(f"{file}:{span[0]}: {key.split(': ', 1)[1]}")
    print(f"{'room':<14}{'branches':>10}{'taken':>8}{'cannot be':>11}{'open':>6}")
    for room, row in table.items():
        left = row["all"] - row["taken"] - row["unreachable"]
        print(f"{room:<14}{row['all']:>10}{row['taken']:>8}{row['unreachable']:>11}{left:>6}")
    for line in open_ones:
        print(f"not taken: {line}")
    for key in sorted((known.keys() - used) | (stale - used)):
        print(f"has a reason and is taken, or is no more: {key}")
    if open_ones or known.keys() - used:
        sys.exit(1)


main()
