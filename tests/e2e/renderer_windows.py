#!/usr/bin/env python3
"""The renderer's own windows over the results form, under two window managers: no waiting box comes
while one of them stands, nothing covers it, the keyboard is its own, a cancel takes back no page,
and the files that are saved are asked about, told, and shown in their folder.

Usage: renderer_windows.py FOLDER_OF_THE_PROGRAMS SAMPLE_TASK.json
"""

import os
import time

from desktop import wait_for
from program import PRINT, RESULTS, TITLE, Program, expect, read
from stage import stage

LABEL = "F-3"
EMF = "Zapisz jako EMF"
PATIENCE = 6  # seconds; the waiting box would come after 4


class Day:
    def __init__(self, desktop, folder, work, task):
        self.desktop = desktop
        self.folder = folder
        self.work = work
        self.task = task

    def picture(self, name):
        self.desktop.screenshot(os.path.join(self.work, f"{self.desktop.manager}-{name}.png"))

    def calculate(self):
        program = Program(self.desktop, self.folder).ready()
        program.type_general(self.task)
        program.type_loads(self.task)
        program.add_four(self.task["Kotwy"][0])
        return program.calculate(LABEL)

    def begin(self, results, key, title):
        """Gives a command of the file menu and waits for the renderer's window."""
        results.file_menu(key)
        self.desktop.answer(TITLE, LABEL)
        return self.desktop.window(title, 60)

    def stands_alone(self, window, name):
        """The window keeps the front and the keyboard, whatever the engineer clicks."""
        form = self.desktop.shown(RESULTS)[0]
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            expect(not self.desktop.is_shown(TITLE), f"{name}: a waiting box came")
            time.sleep(0.2)
        self.desktop.xdotool("windowactivate", form)
        self.desktop.xdotool("windowraise", form)
        self.desktop.click(form, 0.02, 300)
        time.sleep(1)
        self.picture(name)
        stacking = self.desktop.stacking()
        expect(stacking.index(int(window)) > stacking.index(int(form)),
               f"{name}: the results form covers the window")
        self.desktop.xdotool("windowactivate", window)
        wait_for("the keyboard", lambda: self.desktop.xdotool("getactivewindow") == window)

    def good_reply(self):
        reply = read(self.folder, "W_X.txt")
        return reply if float(reply.split(b",")[0]) > 0 else None

    def cancelled_print(self, results):
        reply = wait_for("the reply of the screen picture", self.good_reply, 60)
        window = self.begin(results, "u", PRINT)
        self.stands_alone(window, "print")
        self.desktop.keys("Escape")
        self.desktop.gone(PRINT)
        self.desktop.window(RESULTS)
        expect(read(self.folder, "W_X.txt") == reply, "the cancelled print took the reply back")

    def saved_emf(self, results):
        path = os.path.join(self.work, "rap")
        window = self.begin(results, "e", EMF)
        self.stands_alone(window, "emf")
        self.desktop.type(path)
        self.desktop.keys("Return")
        self.desktop.gone(EMF)
        self.desktop.window(RESULTS)
        wait_for("the metafile", lambda: os.path.exists(path + ".emf"))

    def replaced_emf(self, results):
        path = os.path.join(self.work, "rap.emf")
        with open(path, "wb") as file:
            file.write(b"stary")
        self.begin(results, "e", EMF)
        self.desktop.type(path)
        question = self.desktop.shown(EMF)
        self.desktop.keys("Return")
        window = wait_for("the question", lambda: [one for one in self.desktop.shown(EMF)
                                                   if one not in question])
        self.picture("replace")
        self.stands_alone(window[0], "replace")
        self.desktop.keys("Return")  # No is the default, and the name is asked for again
        self.desktop.window(EMF)
        expect(read(path) == b"stary", "replaced without a yes")
        self.desktop.keys("Escape")
        self.desktop.gone(EMF)
        self.desktop.window(RESULTS)

    def opened_folder(self, results):
        self.desktop.keys("alt+o")
        path = os.path.join(self.work, "opened")
        wait_for("the folder", lambda: os.path.exists(path))
        expect(read(path).decode().strip().endswith(self.work), "another folder was opened")

    def run(self):
        results = self.calculate()
        self.cancelled_print(results)
        self.saved_emf(results)
        self.picture("told")
        self.opened_folder(results)
        self.replaced_emf(results)
        results.end_program("alt+k")


def file_manager(work):
    """A desktop whose file manager notes what it is asked to open."""
    tools = os.path.join(work, "tools")
    os.makedirs(tools)
    opener = os.path.join(tools, "xdg-open")
    with open(opener, "w", encoding="utf-8") as file:
        file.write(f'#!/bin/sh\necho "$1" > "{work}/opened"\n')
    os.chmod(opener, 0o755)
    return {"PATH": tools + ":" + os.environ["PATH"]}


def main():
    for manager in ("openbox", "icewm"):
        with stage("windows", manager, file_manager) as scene:
            Day(*scene).run()
        print(f"{manager}: done", flush=True)


main()
