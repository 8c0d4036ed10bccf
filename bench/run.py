#!/usr/bin/env python3
"""Times every road that a user waits on and writes docs/performance.md.

Usage: bench/run.py [BUILD_FOLDER]    on an otherwise quiet machine, after a Release build with
benchmarks (cmake --preset release -DFERNA_BENCH=ON; cmake --build --preset release).
"""

import json
import os
import platform
import re
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
sys.path.insert(0, os.path.join(ROOT, "tests", "e2e"))
from desktop import Desktop, wait_for  # noqa: E402

REPETITIONS = 7
ROADS = {  # names of the benchmarks in a reader's words
    "Evaluation/4": "one equilibrium of a neutral line, 4 anchors",
    "Evaluation/8": "one equilibrium of a neutral line, 8 anchors",
    "Evaluation/20": "one equilibrium of a neutral line, 20 anchors",
    "Case/1": "load case, zone a triangle (7 665 evaluations)",
    "Case/2": "load case, zone along the length (25 383 evaluations)",
    "Case/3": "load case, zone along the width",
    "Case/4": "load case, plate less a triangle",
    "Case/5": "load case, whole plate compressed",
    "ExactCase/1": "its exact equilibrium, zone a triangle",
    "ExactCase/2": "its exact equilibrium, zone along the length",
    "ExactCase/3": "its exact equilibrium, zone along the width",
    "ExactCase/4": "its exact equilibrium, plate less a triangle",
    "ExactCase/5": "its exact equilibrium, whole plate compressed",
    "ExactBase": "a base made ready for exact equilibria",
    "MomentLine/-100": "capacity line of M1-M2, 360 directions, N = -100 kN (aim 20 ms)",
    "MomentLine/0": "the same at N = 0",
    "MomentLine/300": "the same at N = 300 kN",
    "MomentLine/2000": "the same at N = 2000 kN",
    "AxialLine": "capacity line of N-M1, 360 directions",
    "FiftyThousandCandidates": "smallest base, 49 972 candidates x 6 cases (aim 1 s)",
    "FiftyThousandThatPass": "the same where every candidate passes every case",
    "TaskOfSixCases": "six median cases, 20 anchors, from the fields to the text report",
    "Answers/300": "combinations, six anchors: 300 answered, the governing ones chosen",
    "Answers/10000": "combinations, six anchors: 10 000 answered (aim 0.1 s)",
    "ReadAndAnswered/300": "combinations, six anchors: 300 read from text and answered",
    "ReadAndAnswered/10000": "combinations, six anchors: 10 000 read from text and answered",
    "ReadAndAnswered/100000": "combinations, six anchors: 100 000 read from text and answered",
    "KeyToPicture/0/real_time": "live view, key to painted case, 20 anchors, 6 cases (aim 16 ms)",
    "KeyToPicture/6/real_time": "live view, key to painted envelope, 20 anchors, 6 cases (aim 16 ms)",
    "PictureValuesOfATask": "live view, its values alone, 20 anchors, 6 cases",
    "ReportLines": "lines of the report, six cases",
    "TextReport": "text report",
    "RtfReport/1": "RTF report, pattern A",
    "RtfReport/2": "RTF report, pattern B",
    "PrintCommands": "print-command file with its pictures",
    "Sketches": "six sketches of zones, saved at print quality",
    "Renderer/real_time": "renderer, from its start to its end, screen picture of six cases, three pages",
    "MetafileLoading": "reading and painting that picture",
    "Opening/iterations:3/repeats:7/real_time": "opening of the results form, two pages (aim 0.6 s)",
    "Refresh/iterations:3/repeats:7/real_time": "refresh of the results form, two pages (aim 60 ms)",
}
UNITS = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1.0}


def seconds(value):
    for unit, scale in (("s", 1.0), ("ms", 1e-3), ("µs", 1e-6), ("ns", 1e-9)):
        if value >= scale:
            return f"{value / scale:.3g} {unit}"
    return f"{value:.3g} s"


def row(what, values):
    return f"| {what} | {seconds(min(values))} | {seconds(statistics.median(values))} " \
           f"| {seconds(max(values))} |"


def benchmarks(program):
    """Rows of a Google Benchmark program, and what it prints besides."""
    with tempfile.NamedTemporaryFile(suffix=".json") as out:
        done = subprocess.run([program, f"--benchmark_repetitions={REPETITIONS}",
                               "--benchmark_min_time=0.05", "--benchmark_out_format=json",
                               f"--benchmark_out={out.name}"],
                              capture_output=True, text=True, check=True,
                              env=dict(os.environ, QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8"))
        runs = json.load(open(out.name, encoding="utf-8"))["benchmarks"]
    times = {}
    for run in runs:
        if run["run_type"] == "iteration":
            if run.get("error_occurred"):
                raise SystemExit(f"{run['name']}: {run['error_message']}")
            kind = "real_time" if "real_time" in run["name"] else "cpu_time"
            name = run["run_name"]
            times.setdefault(name, []).append(run[kind] * UNITS[run["time_unit"]])
    return [row(ROADS.get(name, name), values) for name, values in times.items()], done.stdout


def timed(run):
    values = []
    for _ in range(REPETITIONS):
        begin = time.monotonic()
        run()
        values.append(time.monotonic() - begin)
    return values


def program_start(bin_folder, work):
    """From the start of the process to its window on the screen."""
    folder = os.path.join(work, "program")
    shutil.copytree(bin_folder, folder)
    desktop = Desktop(os.path.join(work, "home"))
    values = []
    try:
        for _ in range(REPETITIONS + 1):
            begin = time.monotonic()
            process = desktop.start([os.path.join(folder, "ferna")], folder)
            wait_for("the main form", lambda: desktop.xdotool(
                "search", "--onlyvisible", "--pid", process.pid, "--name", "Ferna"))
            values.append(time.monotonic() - begin)
            process.terminate()
            process.wait()
    finally:
        desktop.close()
    return values[1:]  # the first one reads the disk


def machine():
    model = re.search(r"model name\s*: (.*)", open("/proc/cpuinfo", encoding="utf-8").read())
    return f"{model[1] if model else platform.processor()}, {os.cpu_count()} processors, " \
           f"{platform.freedesktop_os_release()['PRETTY_NAME']}"


def main():
    build = os.path.abspath(sys.argv[1] if len(sys.argv) > 1 else os.path.join(ROOT, "build/release"))
    bin_folder = os.path.join(build, "bin")
    companion = os.path.join(bin_folder, "ferna-wsad")
    sample = os.path.join(ROOT, "data/przyklady/szesc-przypadkow.json")
    rows, spread = benchmarks(os.path.join(build, "bench/ferna_bench"))
    spread = spread[spread.index("cases outside the kern") - 6:].strip()
    for name in ("combinations_bench", "reserve_bench", "live_view_bench", "report_bench",
                 "results_form_bench"):
        program = os.path.join(build, "bench", name)
        if os.path.exists(program):
            rows += benchmarks(program)[0]
    with tempfile.TemporaryDirectory() as work:
        rows.append(row("start of the program to its window", program_start(bin_folder, work)))
        for ending, what in (("pdf", "companion: task to PDF, whole process"),
                             ("txt", "companion: task to text report, whole process"),
                             ("doc", "companion: task to a word-processor document")):
            rows.append(row(what, timed(lambda e=ending: subprocess.run(
                [companion, "--wynik", f"{work}/r.json", "--raport", f"{work}/r.{e}", sample],
                check=True, env=dict(os.environ, QT_QPA_PLATFORM="offscreen")))))
        beside = subprocess.run([os.path.join(ROOT, "bench/section_solver.py"), build], check=True,
                                capture_output=True, text=True).stdout.strip()
        stream = subprocess.run([os.path.join(ROOT, "bench/stream.sh"), build], check=True,
                                capture_output=True, text=True).stdout.strip()
    cost = subprocess.run([os.path.join(ROOT, "bench/stream_cost.py"), companion],
                          capture_output=True, text=True, check=False).stdout.strip()
    page = f"""# Performance

Written by `bench/run.py` on: {machine()}. Each figure comes from {REPETITIONS} repetitions; the
calculation's are processor time, those of whole processes wall time.

| | least | median | most |
|---|---:|---:|---:|
""" + "\n".join(rows) + f"""

The cases of 20 000 random tasks that are not wholly compressed, each with its result lines
(`build/release/bench/ferna_bench`):

```text
{spread}
```

Aims: the median below 10 µs, 99 % below 1 ms. The mean stands beside the median because of the few
cases that march far.

The stream of the companion (`bench/stream.sh`), the tasks of the reference set over and over:

```text
{stream}
```

What a task of a stream costs, counted by callgrind (`bench/stream_cost.py`), so that other work on the
machine makes no difference. Aims beside the search: 250 000 instructions, 100 allocations.

{cost}

## Beside a general solver

Debian 12 has no library for the equilibrium of cracked sections, so the exact equilibrium stands beside a
general solver of equations that it has: Powell's hybrid method of MINPACK (libcminpack), begun at the
plane of the uncracked section. 2000 combinations of a plate of 600 x 400 mm with six anchors, the same
ones for each, to a residual of 1e-10 of the load (`bench/section_solver.py`, which fails where the
solutions differ). The fibres are how a program for sections of any shape has the concrete:

{beside}

## Where the time goes

- The search evaluates neutral lines. A line costs about ten divisions one after the other; on the
  long marches several lines are evaluated side by side (`analysis/march_ahead`), with AVX2
  instructions where the processor has them. Rows of four begin a march, as most are short; rows of
  sixteen follow. A march that no longer moves the line, and a search of the angle that has come back to
  where it was, jump to the end of their evaluations (`analysis/shortcuts`). No bit of a result
  changes: `LookingAhead.ChangesNoBitOfAnyResult` compares with fingerprints of the search that
  evaluated line by line. A few cases march far in small steps, so the mean is many times the median.
- Tried and left out: to pass over the anchors that lie in front of all lines of a row. It took as much
  as it saved.
- A Single becomes text by whole-number arithmetic, as its product with a power of ten is exact; a
  Double that has been typed is looked for as a short decimal. Only other numbers are written from 17
  digits, and from all of them where those read as an exact half.
- The renderer is started anew for each picture and counted from its start to its end; a refresh counts
  from the click to the painted picture, with the writing of the print commands and the reading of the
  metafile. Its processor time: libraries 7 ms, Qt 2 ms, the system's font configuration 5 ms, texts
  and sketches 6 ms, the metafile 3 ms. Beside that a thread forms the marks that tie the bitmaps to their
  vector twins (23 MB, 5 ms) and reads the twins, another one waits for the disk; a bitmap with a twin
  is not decoded. Printing, PDF and widgets are loaded when they are asked for: they would take 6 ms.
- A document waits for the word processor to start.
"""
    with open(os.path.join(ROOT, "docs/performance.md"), "w", encoding="utf-8") as file:
        file.write(page)
    print(page)


main()
