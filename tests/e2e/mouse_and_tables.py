#!/usr/bin/env python3
"""Pastes a load table and works the anchors by mouse and keys on a real screen; the report that
comes of it is that of the same task as the companion has it.

Usage: mouse_and_tables.py FOLDER_OF_THE_PROGRAMS SAMPLE_TASK.json
"""

import os
import time

from program import MAIN, Program, expect, read
from reports import companion_reports, lines_of
from stage import stage

TABLE = "320;55,5;1 250,5e-3;35;-4"  # one row: what a field of names can hold
CASES = [{"N": 320, "M1": 55.5, "M2": 1.2505, "Vx": 35, "Vy": -4}]
# The drawing within the main form, in shares of its width and height.
LEFT, TOP, RIGHT, BOTTOM = 0.45, 0.18, 0.96, 0.66


def drag(desktop, window, start, end):
    size = dict(line.split("=") for line in
                desktop.xdotool("getwindowgeometry", "--shell", window).split())
    places = [(int(int(size["WIDTH"]) * x), int(int(size["HEIGHT"]) * y)) for x, y in (start, end)]
    desktop.xdotool("mousemove", "--window", window, *places[0], "mousedown", 1)
    for part in (3, 2, 1):  # a person's hand passes between
        between = [(a + (b - a) // part) for a, b in zip(*places)]
        desktop.xdotool("mousemove", "--window", window, *between)
        time.sleep(0.05)
    desktop.xdotool("mouseup", 1)


def paste_loads(program, desktop, task):
    """Copies the table out of the field of the project's name, and puts the name back there."""
    program.tab(1)
    desktop.type(TABLE)
    desktop.keys("ctrl+a", "ctrl+c")
    desktop.type(task["Nazwa_projektu"])
    program.tab(3)
    desktop.keys("ctrl+v", "ctrl+z", "ctrl+y")  # one step, back and forth


def work_anchors(program, desktop, task):
    """Moves all four, removes the first and takes that back, removes the second, and gives the
    second of those left place and diameter."""
    program.add_four(task["Kotwy"][0])
    main = desktop.window(MAIN)
    drag(desktop, main, (LEFT, TOP), (RIGHT, BOTTOM))
    desktop.keys("shift+Right", "Down")
    desktop.keys("Escape", "Next", "Delete", "ctrl+z")
    desktop.keys("Escape", "Next", "Next", "Delete")
    desktop.keys("Next", "Next", "F2")
    desktop.type("200")
    desktop.keys("Tab")
    desktop.type("-120")
    desktop.keys("Tab", "Down", "Return")
    first, _, third, fourth = [anchor | {"x": anchor["x"] + 10, "y": anchor["y"] - 1}
                               for anchor in task["Kotwy"]]
    return [first, third | {"x": 200, "y": -120, "fi": 36}, fourth]


def run(desktop, folder, work, task):
    program = Program(desktop, folder).ready()
    program.type_general(task)
    paste_loads(program, desktop, task)
    desktop.screenshot(os.path.join(work, "pasted.png"))
    anchors = work_anchors(program, desktop, task)
    desktop.screenshot(os.path.join(work, "anchors.png"))
    results = program.calculate(task["Nazwa_stopy"])
    path = os.path.join(work, "raport.txt")
    results.save_text(path)
    results.back()
    program.leave()
    wanted = companion_reports(folder, work, "wanted", task | {"Kotwy": anchors, "Przypadki": CASES},
                               ".txt")[0]
    expect(lines_of(read(path)) == lines_of(wanted),
           "the report of what was pasted and moved is not that of the task")


def main():
    with stage("mouse") as scene:
        run(*scene)


main()
