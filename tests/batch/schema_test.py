#!/usr/bin/env python3
"""The JSON schemas of task and result against the companion, both ways: every reference task and
every result is valid; of thousands of changed tasks the companion refuses for their form exactly
those that the schema refuses. The pages of the format tell every key of the schemas.

Usage: schema_test.py ROOT_OF_THE_TREE FOLDER_OF_THE_PROGRAMS
"""

import copy
import glob
import json
import os
import subprocess
import sys

from jsonschema import Draft202012Validator

PAGES = ("docs/en/task-format.md", "docs/pl/format-zadania.md")
# What is put in the place of every value, and behind every bound.
VALUES = (None, True, "x", "", -1, 0, 1, 1.0, 1.5, 3, 5, 6, 7, 8, 26, 32767.4, 32767.5, 32768,
          -32767.5, -32768, -32768.5, -32769, 3.5e38, -3.5e38, [], [1], {}, {"x": 1})
SEEDS = (("solver", 0), ("anchor", 0), ("statics", 0))  # golden tasks that are changed, by their lines


def lines(path):
    with open(path, encoding="utf-8") as file:
        return [json.loads(line) for line in file]


class Companion:
    def __init__(self, programs):
        self.path = os.path.join(programs, "ferna-wsad")

    def call(self, *arguments, text=""):
        done = subprocess.run([self.path, *arguments], input=text, text=True, timeout=300,
                              capture_output=True, encoding="utf-8")
        return done.returncode, done.stdout, done.stderr

    def schema(self, name):
        code, text, _ = self.call("--schemat", name)
        if code:
            sys.exit(f"--schemat {name} ended with {code}")
        return text

    def results(self, tasks):
        _, text, _ = self.call("--linie", "--watki", "2", "--dziesietny", ".",
                               text="".join(json.dumps(task) + "\n" for task in tasks))
        return [json.loads(line) for line in text.splitlines()]


def places(value, path=()):
    """The path of every value within a task."""
    items = value.items() if isinstance(value, dict) else \
        enumerate(value) if isinstance(value, list) else ()
    for key, inner in items:
        yield (*path, key)
        yield from places(inner, (*path, key))


def at(task, path):
    for key in path:
        task = task[key]
    return task


def changed(task, path, change):
    fresh = copy.deepcopy(task)
    change(at(fresh, path[:-1]), path[-1])
    return fresh


def put(value):
    def change(holder, key):
        holder[key] = value
    return change


def lose(holder, key):
    del holder[key]


def mutants(task):
    yield {}
    yield task | {"nieznany": 1}
    for path in places(task):
        yield changed(task, path, lose)
        for value in VALUES:
            yield changed(task, path, put(value))
        value = at(task, path)
        if isinstance(value, dict):
            yield changed(task, path, put(value | {"nieznany": 1}))
        if isinstance(value, list) and value:
            for count in (5, 6, 7, 20, 21):
                yield changed(task, path, put((value * count)[:count]))


def seeds(root):
    golden = os.path.join(root, "tests", "golden")
    tasks = [lines(os.path.join(golden, f"{name}.tasks.jsonl"))[number] for name, number in SEEDS]
    for task in tasks:  # one of each kind says as much as six
        for key in ("Kotwy", "Przypadki"):
            del task[key][1:]
    # Every key at least once, every check and every kind of load.
    tasks.append({
        "Nazwa_projektu": "Hala", "Nazwa_stopy": "F-1", "Nr_strony": 2, "Nr_normy": 1,
        "Nr_jezyka": 2, "Tryb_RTF": 2, "Hsily_wszystkie": 1, "Tryb_wsp_n": 1, "Wsp_n_val": 7.0,
        "Nr_betonu": 2, "Stopa_betonowa": 1, "Nr_stali": 7,
        "Stal": {"Stal_nazwa": "S355", "Stal_fd": 305, "Stal_fi_max": 80, "Stal_Re": 355,
                 "Stal_Rm": 490},
        "Dlug_plyty_mm": 600, "Szer_plyty_mm": 400,
        "Kotwy": [{"x": 250, "y": 150, "fi": 30}, {"x": -250, "y": -150, "fi": 30}],
        "Przypadki": [{"N": 900, "M1": 20, "M2": 10, "Vx": 1, "Vy": 0}],
        "Slup": [{"kierunek": "pionowe", "rodzaj": "sila", "P": 900, "ex": 10, "ey": 5},
                 {"kierunek": "ZX", "rodzaj": "sila", "H": 5, "h": 2},
                 {"kierunek": "ZY", "rodzaj": "ciagle", "p1": 1, "p2": 2, "h1": 0, "h2": 3},
                 {"kierunek": "ZX", "rodzaj": "moment", "M": 3}],
        "Blacha": {"Nr_stali_blachy": 6, "Blacha_nazwa": "S355", "Blacha_fd": 305,
                   "Blacha_t_max": 63, "Grubosc": 30, "Sprawdzenia": {
                       "1": {"bs": 180, "ca": 90, "S": 70}, "2": {"ca": 90, "sigma_k": 5, "sigma_p": 4},
                       "3": {"l": 300, "b": 200, "sigma": 5}, "4": {"Nr_profilu": 5, "sigma": 5},
                       "5": {"l": 300, "b": 200, "sigma": 5}, "6": {"l": 300, "b": 200, "sigma": 5},
                       "7": {"b": 200, "a": 100, "c": 80, "S": 70},
                       "8": {"b": 200, "a": 100, "c": 80, "S": 70}}},
        "Kotwa": {"rodzaj": "P", "g": 75},
    })
    return tasks


def refused_for_form(result):
    return set(result) == {"Blad"}


def completed(reference, answer):
    """A reference result tells what is compared; the rest is taken from the companion's answer."""
    if isinstance(reference, dict) and isinstance(answer, dict):
        return answer | {key: completed(value, answer.get(key)) for key, value in reference.items()}
    if isinstance(reference, list) and isinstance(answer, list) and len(reference) == len(answer):
        return [completed(*pair) for pair in zip(reference, answer)]
    return reference


def valid_references(root, companion, task_schema, result_schema):
    """Reference tasks, delivered tasks, reference results, and what the companion answers."""
    tasks, references = [], []
    for path in sorted(glob.glob(os.path.join(root, "tests", "golden", "*.tasks.jsonl"))):
        tasks += lines(path)
        references += lines(path.replace(".tasks.", ".expected."))
    for path in sorted(glob.glob(os.path.join(root, "data", "przyklady", "*.json"))):
        with open(path, encoding="utf-8") as file:
            tasks.append(json.load(file))
    results = companion.results(tasks)
    results += [completed(*pair) for pair in zip(references, results)]
    for kind, schema, values in (("task", task_schema, tasks), ("result", result_schema, results)):
        for number, value in enumerate(values, 1):
            for wrong in schema.iter_errors(value):
                yield f"{kind} {number}: {wrong.json_path}: {wrong.message[:200]}"
    print(f"{len(tasks)} tasks and {len(results)} results are valid")


def mutants_agree(root, companion, task_schema, result_schema):
    """Both refuse, or neither; and every answer is a valid result."""
    tasks = [mutant for seed in seeds(root) for mutant in mutants(seed)]
    results = companion.results(tasks)
    if len(results) != len(tasks):
        yield f"{len(results)} results of {len(tasks)} changed tasks"
    refused = 0
    for task, result in zip(tasks, results):
        refused += refused_for_form(result)
        if refused_for_form(result) == task_schema.is_valid(task):
            yield (f"{json.dumps(task)[:600]}\n  the companion: {json.dumps(result)[:200]}\n"
                   f"  the schema: {[e.message[:200] for e in task_schema.iter_errors(task)]}")
        for wrong in result_schema.iter_errors(result):
            yield f"result: {wrong.json_path}: {wrong.message[:200]}"
    print(f"{len(tasks)} changed tasks, {refused} of them refused by both")
    if not 0 < refused < len(tasks):
        yield "the changes do not show anything"


def changed_results_are_invalid(companion, result_schema, root):
    """A key lost or added anywhere, or a text in a number's place, is no result."""
    result = companion.results(seeds(root)[-1:])[0]
    optional = ("Slup", "Blacha", "Kotwa", "Rownowaga", "Uwagi", "przypadek", "kotwa",
                "sprawdzenie", "klucz", "szczegol")
    for path in places(result):
        if isinstance(path[-1], str) and path[-1] not in optional:
            if result_schema.is_valid(changed(result, path, lose)):
                yield f"a result without {path} is valid"
        value = at(result, path)
        if isinstance(value, (int, float)) and result_schema.is_valid(changed(result, path, put("x"))):
            yield f"a result with a text as {path} is valid"
        if isinstance(value, dict) and result_schema.is_valid(
                changed(result, path, put(value | {"nieznany": 1}))):
            yield f"a result with an unknown key in {path} is valid"


def keys(schema):
    """(name, definition) of every key."""
    if isinstance(schema, dict):
        for name, definition in schema.get("properties", {}).items():
            yield name, definition
        for inner in schema.values():
            yield from keys(inner)
    elif isinstance(schema, list):
        for inner in schema:
            yield from keys(inner)


def pages_tell_every_key(root, schemas):
    for path in PAGES:
        with open(os.path.join(root, path), encoding="utf-8") as file:
            rows = [line for line in file if line.startswith("|")]
        for schema in schemas:
            for name, definition in keys(schema):
                told = [row for row in rows if f"`{name}`" in row.split("|")[1]]
                if not told:
                    yield f"{path}: no row of the key {name}"
                elif "default" in definition and not any(
                        f"| `{json.dumps(definition['default'])}` |" in row for row in told):
                    yield f"{path}: {name} is left out as {json.dumps(definition['default'])}"
                for bound in [definition[key] for key in ("minimum", "maximum") if key in definition]:
                    if not any(str(bound) in row.partition("|")[2].partition("|")[2] for row in told):
                        yield f"{path}: {name}: the bound {bound} is not told"
                for code in definition.get("enum", ()):
                    if not any(f"`{code}`" in row for row in rows):
                        yield f"{path}: {name}: the value {code} is not told"


def main():
    root, programs = map(os.path.abspath, sys.argv[1:])
    companion = Companion(programs)
    texts = [companion.schema(name) for name in ("zadanie", "wynik")]
    schemas = [json.loads(text) for text in texts]
    for schema in schemas:
        Draft202012Validator.check_schema(schema)
    task_schema, result_schema = map(Draft202012Validator, schemas)
    wrong = []
    for name, text in zip(("zadanie", "wynik"), texts):
        with open(os.path.join(root, "data", "schemat", f"{name}.schema.json"),
                  encoding="utf-8") as file:
            if file.read() != text:
                wrong.append(f"--schemat {name} prints something else than what is installed")
    if companion.call("--schemat", "inne")[0] != 2:
        wrong.append("--schemat inne is no bad call")
    wrong += valid_references(root, companion, task_schema, result_schema)
    wrong += mutants_agree(root, companion, task_schema, result_schema)
    wrong += changed_results_are_invalid(companion, result_schema, root)
    wrong += pages_tell_every_key(root, schemas)
    if wrong:
        sys.exit("\n".join(wrong[:30] + [f"{len(wrong)} differences"]))


if __name__ == "__main__":
    main()
