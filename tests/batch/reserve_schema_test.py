#!/usr/bin/env python3
"""The schemas of --nosnosc and --dobierz against the companion: every answer is valid, the companion
refuses exactly the ranges that the schema refuses, and the pages of the format tell every key.

Usage: reserve_schema_test.py ROOT_OF_THE_TREE FOLDER_OF_THE_PROGRAMS
"""

import copy
import glob
import json
import os
import sys
import tempfile

from jsonschema import Draft202012Validator

from schema_test import VALUES, Companion, at, changed, lose, mutants, pages_tell_every_key, places, put

NAMES = ("zakres", "dobor", "nosnosc")
# Few bases, every key once.
RANGE = {
    "Slup": {"h": 200, "b": 200}, "Dlugosc": {"od": 600, "do": 700, "co": 50},
    "Szerokosc": {"od": 500, "do": 600, "co": 50}, "Kotwy": [4, 6], "Srednice": [24, 36],
    "Stale": [2, 7],
    "Odleglosci": {"krawedz": 2.5, "krawedz_mm": 50, "rozstaw": 3, "slup": 1.5},
    "Docisk": 1.5, "Nr_stali_blachy": 4, "Grubosc": 20, "Zebra": 1, "Podlewka": 40, "Ile": 3,
}


def valid_beyond_the_schema(range_):
    """What no schema can say: a size goes up, and not too many candidates."""
    sizes = [range_[key] for key in ("Dlugosc", "Szerokosc") if key in range_]
    if any(size["od"] > size["do"] for size in sizes):
        return False
    count = 1
    for size in sizes:
        count *= (size["do"] - size["od"]) // size["co"] + 1
    return count < 100_000


def answers_are_valid(root, companion, schemas, work):
    path = os.path.join(work, "range.json")
    with open(path, "w", encoding="utf-8") as file:
        json.dump(RANGE, file)
    tasks = sorted(glob.glob(os.path.join(root, "data", "przyklady", "*.json")))
    answers = []
    for task in tasks:
        for name, arguments in (("nosnosc", ["--nosnosc"]), ("dobor", ["--dobierz", path])):
            code, text, said = companion.call(*arguments, task)
            if code not in (0, 1) or said:
                yield f"{name} of {task}: exit code {code}: {said}"
                continue
            answers.append((name, json.loads(text)))
    for name, answer in answers:
        for wrong in schemas[name].iter_errors(answer):
            yield f"{name}: {wrong.json_path}: {wrong.message[:200]}"
    for name in ("nosnosc", "dobor"):
        yield from changed_answers_are_invalid(
            name, schemas[name], next(a for n, a in answers if n == name and a.get("Podstawy") != []))
    print(f"{len(answers)} answers are valid")


def changed_answers_are_invalid(name, schema, answer):
    answer = copy.deepcopy(answer)
    for case in answer.get("Przypadki", ()):
        del case["Linia"][2:]
    for key in ("N_M1", "N_M2"):
        if key in answer:
            del answer[key][1:]
    optional = ("M1", "M2")
    for path in places(answer):
        if isinstance(path[-1], str) and path[-1] not in optional \
                and schema.is_valid(changed(answer, path, lose)):
            yield f"{name} without {path} is valid"
        if isinstance(at(answer, path), dict) and schema.is_valid(
                changed(answer, path, put(at(answer, path) | {"nieznany": 1}))):
            yield f"{name} with an unknown key in {path} is valid"


def ranges_agree(root, companion, schema, work):
    task = os.path.join(root, "data", "przyklady", "slup-hali.json")
    path = os.path.join(work, "range.json")
    ratio = {key: value for key, value in RANGE.items() if key != "Szerokosc"} | {"Proporcja": 0.8}
    refused = count = 0
    for mutant in (RANGE, ratio, RANGE | {"Proporcja": 0.8}, *mutants(RANGE),
                   *(ratio | {"Proporcja": value} for value in VALUES)):
        valid = schema.is_valid(mutant)
        if valid and not valid_beyond_the_schema(mutant):
            continue
        with open(path, "w", encoding="utf-8") as file:
            json.dump(mutant, file)
        code, _, said = companion.call("--dobierz", path, task)
        count += 1
        refused += code == 2
        if valid == (code == 2):
            yield f"{json.dumps(mutant)}\n  exit code {code}: {said}\n  valid: {valid}"
        if code == 2 and not (said.startswith(f"ferna-wsad: {path}, line ")
                              and said.count("\n") == 1):
            yield f"the refusal is no line with its place: {said}"
    print(f"{count} changed ranges, {refused} of them refused by both")
    if not 0 < refused < count:
        yield "the changes do not show anything"


def main():
    root, programs = map(os.path.abspath, sys.argv[1:])
    companion = Companion(programs)
    schemas, wrong = {}, []
    for name in NAMES:
        text = companion.schema(name)
        Draft202012Validator.check_schema(json.loads(text))
        schemas[name] = Draft202012Validator(json.loads(text))
        with open(os.path.join(root, "data", "schemat", f"{name}.schema.json"),
                  encoding="utf-8") as file:
            if file.read() != text:
                wrong.append(f"--schemat {name} prints something else than what is installed")
    with tempfile.TemporaryDirectory() as work:
        wrong += answers_are_valid(root, companion, schemas, work)
        wrong += ranges_agree(root, companion, schemas["zakres"], work)
    wrong += pages_tell_every_key(root, [schemas[name].schema for name in NAMES])
    if wrong:
        sys.exit("\n".join(wrong[:30] + [f"{len(wrong)} differences"]))


if __name__ == "__main__":
    main()
