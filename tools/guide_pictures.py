#!/usr/bin/env python3
"""Takes the pictures of the user guide from the running program: works through the delivered sample
column base as the guide tells it, then through the day with 300 combinations, and pictures each window
on the way.

Usage: guide_pictures.py FOLDER_OF_THE_PROGRAMS SAMPLE_TASK.json FOLDER_FOR_THE_PICTURES
"""

import json
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tests", "e2e"))
from desktop import Desktop, wait_for
from program import (ANCHOR, CAPACITY, COMBINATIONS, FOUR, MAIN, PLATE, READING, RESULTS, SMALLEST,
                     TITLE, Program)

EXAMPLES = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "docs", "examples")
SCREEN = "1280x1024x24"  # the results window takes nine tenths of it
SAVE_TEXT = "Podaj .* pliku tekstowego"


class Camera:
    def __init__(self, desktop, folder):
        self.desktop = desktop
        self.folder = folder

    def take(self, name, title, part=None, colours=64):
        """Pictures the window of that title with its frame, in few colours; with `part`, the width
        and height of its upper left corner and what covers it."""
        window = self.desktop.window(title)
        time.sleep(0.5)  # the last key is drawn
        what = ["-frame", "-window", window]
        if part:
            told = subprocess.run(["xwininfo", "-id", window], env=self.desktop.env, text=True,
                                  capture_output=True, check=True, timeout=30).stdout
            place = re.findall(r"Absolute upper-left .:\s+(\d+)", told)
            what = ["-window", "root", "-crop", "%dx%d+%s+%s" % (*part, *place), "+repage"]
        path = os.path.join(self.folder, name + ".png")
        subprocess.run(["import", *what, "-strip", "+dither", "-colors", str(colours),
                        "-define", "png:compression-level=9",
                        "-define", "png:exclude-chunks=date,time", "PNG8:" + path],
                       env=self.desktop.env, check=True, timeout=30)


class Guide(Program):
    """The sample column base as the guide works it."""

    def __init__(self, desktop, folder, camera):
        super().__init__(desktop, folder)
        self.take = camera.take
        self.ready()

    def describe(self, task):
        self.type_general(task)
        self.type_loads(task)
        for number, name in enumerate(("configuration", "general", "loads"), 1):
            self.tab(number)
            self.take(name, MAIN)

    def add_anchors(self, anchor):
        keys, type_ = self.desktop.keys, self.desktop.type
        self.tab(4)
        keys("space")
        self.desktop.window(FOUR)
        type_(str(anchor["x"]))
        keys("Tab")
        type_(str(anchor["y"]))
        keys("Tab")
        self.desktop.xdotool("type", str(anchor["fi"]))
        self.take("new-anchors", FOUR)
        keys("Return")
        self.desktop.gone(FOUR)
        self.take("anchors", MAIN)
        keys("F9")
        self.take("live-view", MAIN, colours=256)  # the pressures are a smooth field
        keys("F9")

    def slip(self, task):
        """A letter among the loads: the program stops, tells it and lets the engineer go back."""
        self.tab(3)
        self.desktop.type("32o")
        self.desktop.keys("alt+o")
        self.take("stopped", TITLE)
        self.desktop.keys("Return")
        self.desktop.window(MAIN)
        self.tab(2)  # and back: the focus is on the first load again
        self.tab(3)
        self.desktop.type(str(task["Przypadki"][0]["N"]))

    def compute(self, label):
        self.desktop.keys("alt+o")
        self.desktop.window(TITLE)
        self.desktop.type(label)
        self.take("label", TITLE)
        self.desktop.keys("Return")
        self.desktop.window(RESULTS, 60)
        self.take("results", RESULTS)

    def details(self, entry):
        """Opens the entry of that number in the menu of the further calculations."""
        self.desktop.window(RESULTS)
        self.desktop.keys("alt+s", *["Down"] * (entry - 1), "Return")

    def plate_thickness(self, accepted):
        keys = self.desktop.keys
        self.details(1)
        self.desktop.window(PLATE)
        keys("Down", "Down")
        keys("Tab", "Tab", "Tab", "Tab", "space")
        keys("Tab", "Tab")
        self.desktop.type(str(accepted))
        self.take("plate-thickness", PLATE)
        keys("alt+k")
        self.desktop.gone(PLATE)

    def catalogue_anchor(self):
        self.details(2)
        self.desktop.window(TITLE)
        self.desktop.type("75")
        self.take("grout", TITLE)
        self.desktop.keys("Return")
        self.take("anchor-selection", ANCHOR)
        self.desktop.keys("alt+k")
        self.desktop.gone(ANCHOR)

    def look_at_the_end(self):
        self.desktop.window(RESULTS)
        self.desktop.keys("End", "Prior", "Up", "Up")  # both sections: the sheet's end is empty
        self.take("report-end", RESULTS)

    def save_text(self, path):
        keys = self.desktop.keys
        self.desktop.window(RESULTS)
        keys("Alt_L", "Down")
        time.sleep(0.5)
        self.take("file-menu", RESULTS, (330, 205))
        keys("t")
        self.desktop.window(SAVE_TEXT)
        self.desktop.type(path)
        keys("Return")
        self.desktop.gone(SAVE_TEXT)
        wait_for("the text report", lambda: os.path.exists(path))

    def back(self):
        self.desktop.keys("alt+F4")  # closing the results is the way back
        self.desktop.gone(RESULTS)
        self.desktop.window(MAIN)
        self.tab(1)
        self.take("next-page", MAIN)
        self.leave()


class CombinationsDay(Program):
    """The column of the examples with its 300 combinations."""

    def __init__(self, desktop, folder, examples, camera):
        super().__init__(desktop, folder, os.path.join(examples, "column.json"))
        self.table = os.path.join(examples, "combinations.csv")
        self.take = camera.take
        self.ready()

    def read(self):
        self.desktop.keys("ctrl+k")
        self.desktop.window(COMBINATIONS)
        self.desktop.keys("alt+p")
        self.desktop.window("Tabela kombinacji")
        self.desktop.type(self.table)
        self.desktop.keys("Return")
        self.take("combinations-reading", READING)
        self.desktop.keys("Return")
        self.desktop.gone(READING)
        self.take("combinations", COMBINATIONS, colours=256)

    def chart(self):
        self.desktop.keys("alt+y")
        self.take("capacity", CAPACITY, colours=128)
        self.desktop.keys("Escape")
        self.desktop.gone(CAPACITY)

    def compare(self, label):
        self.desktop.window(COMBINATIONS)
        self.desktop.keys("alt+w")
        self.desktop.window(MAIN)
        self.desktop.keys("alt+o")
        self.desktop.window(TITLE)
        self.desktop.type(label)
        self.desktop.keys("Return")
        self.desktop.window(RESULTS, 60)
        self.take("combinations-compared", COMBINATIONS, colours=128)
        self.desktop.keys("Escape")
        self.desktop.gone(COMBINATIONS)
        self.desktop.window(RESULTS)
        self.desktop.keys("alt+F4")
        self.desktop.gone(RESULTS)

    def smallest(self):
        self.desktop.window(MAIN)
        self.desktop.keys("alt+z")
        time.sleep(0.5)
        self.desktop.keys("d")
        self.desktop.window(SMALLEST)
        self.desktop.keys("Return")
        time.sleep(3)  # the search and its ten calculations
        self.take("smallest", SMALLEST)
        self.desktop.keys("Escape")
        self.desktop.gone(SMALLEST)
        self.desktop.window(MAIN)
        self.leave()


def day_of_combinations(desktop, folder, examples, pictures):
    day = CombinationsDay(desktop, folder, examples, Camera(desktop, pictures))
    day.read()
    day.chart()
    day.compare("F-3")
    day.smallest()


def run(desktop, folder, task, pictures):
    guide = Guide(desktop, folder, Camera(desktop, pictures))
    guide.describe(task)
    guide.add_anchors(task["Kotwy"][0])
    guide.slip(task)
    guide.compute(task["Nazwa_stopy"])
    guide.plate_thickness(30)
    guide.catalogue_anchor()
    guide.look_at_the_end()
    guide.save_text(os.path.join(desktop.env["HOME"], task["Nazwa_stopy"] + ".txt"))
    guide.back()


def picture_of_the_sheet(programs, sample, work, pictures):
    """The page of a load case in the calculation sheet."""
    pdf = os.path.join(work, "sheet.pdf")
    subprocess.run([os.path.join(programs, "ferna-wsad"), "--dziesietny", ",", "--wynik",
                    os.path.join(work, "sheet.json"), "--arkusz", pdf, sample],
                   env=os.environ | {"SOURCE_DATE_EPOCH": "1709560800"}, check=True, timeout=60)
    page = os.path.join(work, "sheet")
    subprocess.run(["pdftoppm", "-r", "80", "-f", "2", "-l", "2", "-singlefile", "-png", pdf, page],
                   check=True, timeout=60)
    subprocess.run(["convert", page + ".png", "-strip", "+dither", "-colors", "64",
                    "-define", "png:compression-level=9",
                    "-define", "png:exclude-chunks=date,time",
                    "PNG8:" + os.path.join(pictures, "sheet.png")], check=True, timeout=60)


def main():
    programs, sample, pictures = map(os.path.abspath, sys.argv[1:])
    with open(sample, encoding="utf-8") as file:
        task = json.load(file)
    os.makedirs(pictures, exist_ok=True)
    with tempfile.TemporaryDirectory(prefix="ferna-guide-") as work:
        folder, another = os.path.join(work, "bin"), os.path.join(work, "other")
        for copy in (folder, another):
            shutil.copytree(programs, copy)
        picture_of_the_sheet(programs, sample, work, pictures)
        desktop = Desktop(os.path.join(work, "home"), SCREEN)
        try:
            # Numbers as an engineer in Poland has them.
            desktop.env.pop("LC_ALL")
            desktop.env |= {"LANG": "C.UTF-8", "LC_NUMERIC": "pl_PL.UTF-8"}
            run(desktop, folder, task, pictures)
            day_of_combinations(desktop, another, EXAMPLES, pictures)
        except Exception:
            desktop.screenshot(os.path.join(pictures, "failure.png"))
            raise
        finally:
            desktop.close()


if __name__ == "__main__":
    main()
