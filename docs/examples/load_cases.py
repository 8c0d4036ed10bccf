#!/usr/bin/env python3
"""Many load cases of one column base, from a spreadsheet and back to it.

    load_cases.py tasks BASE.json LOADS.csv > tasks.jsonl
    ferna-wsad --linie < tasks.jsonl > results.jsonl
    load_cases.py table LOADS.csv results.jsonl > results.csv

LOADS.csv is saved by the spreadsheet: columns N, M1, M2, Vx, Vy in kN and kNm, in any order and
among others, separated by semicolons or commas, numbers with a comma or a point. Every row becomes
the only case of a task of its own; all else of the task is that of BASE.json, but its lines are
Polish, as the table is. results.csv is LOADS.csv with the results added to each row. Filter it by the
column werdykt: it takes anchors, concrete and horizontal forces together.
"""

import csv
import io
import json
import sys

LOADS = ("N", "M1", "M2", "Vx", "Vy")
ADDED = ("stan", "werdykt", "sigma_b_MPa", "sigma_b/Rb", "sigma_kotwy_MPa", "sila_kotwy_kN", "nr_kotwy",
         "kotwy_OK", "sily_poziome")
# How the line of the horizontal forces ends where they are taken; any other line fails.
SIDEWAYS_OK = ("tarcie między płytą a betonem.", "warunek spełniony.")


def read_loads(path):
    """The rows and the names of their columns."""
    with open(path, "rb") as file:
        raw = file.read()
    try:
        text = raw.decode("utf-8-sig")
    except UnicodeDecodeError:
        text = raw.decode("cp1250")  # as spreadsheets in Poland save it
    head = text.partition("\n")[0]
    rows = csv.DictReader(io.StringIO(text), delimiter=";" if ";" in head else ",")
    missing = [name for name in LOADS if name not in (rows.fieldnames or ())]
    if missing:
        sys.exit(f"{path}: no column {', '.join(missing)}")
    return list(rows), rows.fieldnames


def number(path, line, row, name):
    text = (row[name] or "").replace("\u00a0", "").replace(" ", "").replace(",", ".")
    try:
        return float(text)
    except ValueError:
        sys.exit(f"{path}, line {line}: {name} is no number: {row[name]!r}")


def cases(path):
    rows, _ = read_loads(path)
    return [{name: number(path, line, row, name) for name in LOADS}
            for line, row in enumerate(rows, 2)]


def write_tasks(base, loads):
    with open(base, encoding="utf-8") as file:
        task = json.load(file)
    for case in cases(loads):
        print(json.dumps(task | {"Nr_jezyka": 0, "Przypadki": [case]}, ensure_ascii=False))


def local(value):
    """A number as the spreadsheet reads it."""
    return f"{value:.3f}".replace(".", ",")


def verdict(result, sideways):
    """All checks of a row in one word, and what it hangs on."""
    ratio = result["Sigma_b_max"] / result["Materialy"]["Rb_betonu"]
    failed = [name for name, fails in (
        ("kotwy", not result["Kotwy_OK"]),
        ("beton", ratio > 2),
        ("siły poziome", sideways and not sideways.endswith(SIDEWAYS_OK))) if fails]
    told = " (rozwiązanie przybliżone)" if result["Komunikaty"] else ""
    if failed:
        return f"niespełniony: {', '.join(failed)}{told}"
    return (f"spełniony, gdy docisk >= {local(ratio)}" if ratio >= 1 else "spełniony") + told


def summary(case, result):
    """What is added to a row; the state and that there is no verdict where there are no results."""
    told = [message["tekst"].replace("\n", " ") for message in result.get("Komunikaty", [])]
    if result["Blad"]:
        told.append(result["Blad"]["tekst"])
    if not result.get("Przypadki") or result["Przerwij_obliczenia"]:
        return ["; ".join(told), "brak wyniku"] + [""] * (len(ADDED) - 2)
    is_pushed = (case["Vx"] ** 2 + case["Vy"] ** 2) ** 0.5 > 0.01
    sideways = result["Przypadki"][0]["Wiersze"][-1] if is_pushed else ""
    sigma_b = result["Sigma_b_max"]
    return ["; ".join(told) or "obliczone", verdict(result, sideways), local(sigma_b),
            local(sigma_b / result["Materialy"]["Rb_betonu"]), local(result["Sigma_s_max"]),
            local(result["Sila_kotwy_max"]), result["Nr_kotwy_max"] or "",
            "tak" if result["Kotwy_OK"] else "nie", sideways]


def write_table(loads, results):
    rows, names = read_loads(loads)
    with open(results, encoding="utf-8") as file:
        computed = [json.loads(line) for line in file]
    if len(computed) != len(rows):
        sys.exit(f"{results}: {len(computed)} results for {len(rows)} rows of {loads}")
    table = csv.writer(sys.stdout, delimiter=";", lineterminator="\n")
    table.writerow([*names, *ADDED])
    for row, case, result in zip(rows, cases(loads), computed):
        table.writerow([*(row[name] for name in names), *summary(case, result)])


def main():
    commands = {"tasks": write_tasks, "table": write_table}
    if len(sys.argv) != 4 or sys.argv[1] not in commands:
        sys.exit(__doc__)
    sys.stdout.reconfigure(encoding="utf-8")
    commands[sys.argv[1]](*sys.argv[2:])


if __name__ == "__main__":
    main()
