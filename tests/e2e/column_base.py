#!/usr/bin/env python3
"""Works the built program on a real screen as an engineer does: types the delivered sample task,
adds four anchors, calculates, leaves, and finds the task back at the next start.

Usage: column_base.py FOLDER_OF_THE_PROGRAMS SAMPLE_TASK.json
"""

import os
import sys

from program import TITLE, Program, expect, read
from reports import companion_reports
from stage import stage


def as_task(configuration, task):
    """The task that a saved configuration holds, with what it does not hold from `task`."""
    lines = configuration.decode("cp1250").split("\r\n")
    number = lambda line: int(lines[line - 1].split()[0])
    expect(lines[5].split()[0] == "0", "the ratio n is not the computed one")
    cases = [[int(tenths) / 10 for tenths in lines[7 + i].split()] for i in range(6)]
    return task | {
        "Nr_normy": number(1), "Nr_strony": number(2), "Nazwa_projektu": lines[2],
        "Nr_betonu": number(4), "Nr_stali": number(5), "Nr_jezyka": number(7),
        "Dlug_plyty_mm": number(14), "Szer_plyty_mm": number(15),
        "Przypadki": [dict(zip(("N", "M1", "M2", "Vx", "Vy"), values))
                      for values in cases[:len(task["Przypadki"])]],
        "Hsily_wszystkie": number(17), "Tryb_RTF": number(20),
    }


def report(folder, work, name, task):
    """The text report that the batch companion writes for a task."""
    return companion_reports(folder, work, name, task, ".txt")[0]


def page(configuration):
    return int(configuration.split(b"\r\n")[1].split()[0])


def without_page(configuration):
    lines = configuration.split(b"\r\n")
    return lines[:1] + lines[2:]


def run(desktop, folder, work, task):
    anchor = task["Kotwy"][0]
    program = Program(desktop, folder).ready()
    program.type_general(task)
    program.type_loads(task)
    program.add_four(anchor)
    results = program.calculate(task["Nazwa_stopy"])
    picture = read(folder, "Ferrob.bmp")
    expect(picture[:2] == b"BM", "the picture of the plate is no bitmap")
    results.back()
    program.leave()

    saved = read(folder, "Ferna.cfg")
    expect(as_task(saved, task)["Nazwa_projektu"] == task["Nazwa_projektu"], "project name")
    typed = report(folder, work, "typed", as_task(saved, task))
    expect(typed == report(folder, work, "sample", task),
           "what was typed does not give the report of the sample")
    first = saved.decode("cp1250").split("\r\n")[15].split()
    expect(first == [str(anchor["x"]), str(anchor["y"])], "the first anchor was not saved")

    # Only the anchors are typed anew: the rest stands in the fields and is calculated from there.
    os.remove(os.path.join(folder, "Ferrob.bmp"))
    program = Program(desktop, folder).ready()
    desktop.screenshot(os.path.join(work, "restored.png"))
    program.choose_footing(task["Stopa_betonowa"])
    program.add_four(anchor, typed=False)
    results = program.calculate(task["Nazwa_stopy"])
    expect(read(folder, "Ferrob.bmp") == picture, "the plate is drawn otherwise the second time")
    results.back()
    program.leave()
    again = read(folder, "Ferna.cfg")
    expect(without_page(again) == without_page(saved), "the task did not come back into the fields")
    expect(page(again) == page(saved) + 1, "the page number was not counted on")
    saved = again

    # Closed by the frame the program leaves the configuration alone.
    program = Program(desktop, folder).ready()
    desktop.keys("alt+1")
    desktop.type("nie zapisane")
    desktop.keys("alt+F4")
    expect(program.process.wait(30) == 0, "closed by the frame the program did not end well")
    expect(read(folder, "Ferna.cfg") == saved, "closing by the frame wrote the configuration")

    # A damaged configuration is told, kept, and replaced by the delivered one.
    damaged = b"1 Norma\r\nno number\r\n"
    with open(os.path.join(folder, "Ferna.cfg"), "wb") as file:
        file.write(damaged)
    program = Program(desktop, folder)
    desktop.window(TITLE)
    desktop.screenshot(os.path.join(work, "damaged.png"))
    desktop.keys("alt+u")
    program.ready()
    program.leave()
    expect(read(folder, "Ferna.cfg.uszkodzony") == damaged, "the damaged file was not kept")
    expect(b"Projekt" in read(folder, "Ferna.cfg"), "the delivered settings did not come back")

    # A damaged catalogue is told by its own name and replaced alone.
    last_task = read(folder, "Ferna.cfg")
    catalogue = read(folder, "Ferpl.txt")
    damaged = b"\r\n".join(catalogue.split(b"\r\n")[:60])
    with open(os.path.join(folder, "Ferpl.txt"), "wb") as file:
        file.write(damaged)
    program = Program(desktop, folder)
    desktop.window(TITLE)
    desktop.screenshot(os.path.join(work, "catalogue.png"))
    desktop.keys("alt+d")
    program.ready()
    expect(read(folder, "Ferna.cfg") == last_task, "a damaged catalogue cost the task")
    program.leave()
    expect(read(folder, "Ferpl.txt") == catalogue, "the delivered catalogue did not come back")
    expect(read(folder, "Ferpl.txt.uszkodzony") == damaged, "the damaged catalogue was not kept")


def main():
    programs = sys.argv[1]
    before = sorted((entry.name, entry.stat().st_mtime_ns) for entry in os.scandir(programs))
    with stage("e2e") as scene:
        run(*scene)
    after = sorted((entry.name, entry.stat().st_mtime_ns) for entry in os.scandir(programs))
    expect(before == after, "the test changed the folder of the programs")


main()
