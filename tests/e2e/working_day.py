#!/usr/bin/env python3
"""A working day of an engineer with the built programs, on a real screen: describes a column base,
takes loads from the column, calculates, adds the plate thickness and a catalogue anchor, saves and
prints the report in every form, goes back and calculates again, ends the program from both places
and finds everything at the next start. A second day begins with a crash, and its task goes into a file.
Then the renderer breaks.

Every output is compared with what the batch companion computes from the same task.

Usage: working_day.py FOLDER_OF_THE_PROGRAMS SAMPLE_TASK.json
"""

import json
import os
import time

from desktop import wait_for
from print_server import PrintServer
from program import (DISTRIBUTED, FORCE, MAIN, PLANE_ZX, PLANE_ZY, RESULTS, TITLE, VERTICAL, Program,
                     Results, expect, read)
from reports import (companion_reports, has_word_processor, lines_of, pages_of_pdf,
                     text_of_document, texts_of_emf, without_date)
from stage import stage

FIRST_PAGE = 7
LABEL = "F-7"
THICKNESS = 50  # of the plate and the mortar under it, mm

# On the column: a crane bracket's force and wind growing upward. Reduced by hand to its base:
# N = 410, M1 = 410 x 0.05 + 18 x (3 + 6 / 6) = 92.5, M2 = -410 x 0.02 = -8.2, Vx = 18.
COLUMN = [{"kierunek": "pionowe", "rodzaj": "sila", "P": 410, "ex": 50, "ey": -20},
          {"kierunek": "ZX", "rodzaj": "ciagle", "p1": 2, "p2": 4, "h1": 0, "h2": 6}]
COLUMN_LINE = "Przypadek 2 410.00 kN 92.50 kNm - 8.20 kNm 18.00 kN 0.00 kN"
PLATE = {"Nr_stali_blachy": 2,
         "Sprawdzenia": {"1": {"bs": 150, "ca": 60}, "3": {"l": 240, "b": 180}}}


class Day:
    def __init__(self, printer, desktop, folder, work, sample):
        self.desktop = desktop
        self.printer = printer
        self.folder = folder
        self.work = work
        self.typed = sample | {"Nr_strony": FIRST_PAGE}
        self.began = self.step_began = time.monotonic()
        self.calculated = self.typed | {"Nazwa_stopy": LABEL, "Slup": COLUMN}
        self.whole = self.calculated | {"Blacha": PLATE, "Kotwa": {"rodzaj": "F", "g": THICKNESS}}

    def done(self, step):
        now = time.monotonic()
        print(f"{now - self.began:6.1f} s  {now - self.step_began:5.1f} s  {step}", flush=True)
        self.step_began = now

    def saved(self, name):
        return os.path.join(self.work, "saved", name)

    def companion(self, name, task, *endings):
        return companion_reports(self.folder, self.work, name, task, *endings)

    def page_of_report(self):
        """The first page number in the report that is shown."""
        lines = read(self.folder, "FERNAPr.wyd").decode("cp1250").split("\r\n")
        return [int(line.removeprefix("Strona ")) for line in lines if line.startswith("Strona ")]

    def next_free_page(self):
        """The renderer's reply, once it tells of success."""
        fields = wait_for("the reply of the renderer", self.good_reply)
        return int(fields[1])

    def good_reply(self):
        fields = read(self.folder, "W_X.txt").decode("cp1250").replace(",", " ").split()
        return fields if len(fields) == 2 and float(fields[0]) > 0 else None

    def describe(self):
        program = Program(self.desktop, self.folder).ready()
        program.type_general(self.typed)
        program.type_loads(self.typed)
        program.add_four(self.typed["Kotwy"][0])
        self.done("project, plate, loads and anchors")
        statics = program.statics()
        statics.add(VERTICAL, FORCE, 410, 50, -20)
        statics.add(PLANE_ZY, FORCE, 12, 5)
        statics.add(PLANE_ZX, DISTRIBUTED, 2, 4, 0, 6)
        statics.remove(2)
        self.desktop.screenshot(self.saved("statics.png"))
        statics.save_as_new_case()
        self.done("loads on the column")
        return program

    def calculate(self, program):
        results = program.calculate(LABEL)
        self.shows_report(self.desktop.window(RESULTS))
        expect(self.page_of_report() == [FIRST_PAGE], "the report has another first page")
        self.done("calculation")
        return results

    def is_report_shown(self, window):
        return self.desktop.dark_share(window) > 0.01

    def shows_report(self, window):
        wait_for("the report on the screen", lambda: self.is_report_shown(window))

    def add_sections(self, results):
        plate = results.plate_form()
        plate.choose_grade(2)
        plate.check(1, 150, 60)
        plate.check(8, 240, 180)
        self.desktop.screenshot(self.saved("plate.png"))
        plate.accept()
        results.choose_hooked_anchor(THICKNESS)
        self.desktop.screenshot(self.saved("sections.png"))
        self.done("plate thickness and anchor")

    def save_texts(self, results):
        results.save_text(self.saved("raport.txt"))
        results.save_rtf(self.saved("raport.rtf"))
        text, rtf, result = self.companion("whole", self.whole, ".txt", ".rtf")
        saved = read(self.saved("raport.txt"))
        expect(without_date(saved) == without_date(text), "the text report differs")
        self.lines = lines_of(saved)
        expect(COLUMN_LINE in self.lines, "the column's case is not in the report")
        expect(any("F-30-1600" in line for line in self.lines), "no anchor section")
        for check in ("1", "3"):
            needed = result["Blacha"]["Spr_blachy"][int(check) - 1]
            expect(needed > 0 and f"Wymagana grubość blachy t = {needed} mm" in self.lines,
                   f"check {check} is not in the plate section")
        saved = read(self.saved("raport.rtf"))
        expect(saved.startswith(b"{\\rtf"), "no RTF")
        expect(without_date(saved) == without_date(rtf), "the RTF report differs")
        # The RTF has a page break, and the number it counted stays: it is set back.
        results.set_page_number(FIRST_PAGE, LABEL)
        self.done("text and RTF")

    def save_document(self, results):
        if not has_word_processor(self.folder):
            self.done("SKIPPED: the document, as LibreOffice is not installed")
            return
        results.save_document(self.saved("raport.doc"))
        shown = text_of_document(self.saved("raport.doc"), self.work)
        self.has_results("document", " ".join(shown.split()))
        self.done("document of the word processor")

    def save_emf(self, results):
        results.save_emf(self.saved("raport.emf"), LABEL)
        self.pages = self.next_free_page() - FIRST_PAGE
        expect(self.pages == 2, f"the report has {self.pages} pages")
        files = [self.saved(f"raport-strona-{page + 1}-z-{self.pages}.emf") for page in range(self.pages)]
        for file in files:
            results.written(file)
        pages = [texts_of_emf(read(file)) for file in files]
        for number, texts in enumerate(pages, FIRST_PAGE):
            expect(f"Strona {number}" in texts, f"no page number {number} in the metafile")
            expect(self.typed["Nazwa_projektu"] in texts, "no project in the metafile")
        self.has_results("metafiles", " ".join(" ".join(sum(pages, [])).split()))
        self.done("metafiles")

    def print(self, results):
        results.print_on_default(LABEL)
        self.is_printed(self.printer.printed(1))
        self.done("print on the default printer")
        results.print_on_chosen(LABEL, self.saved("print-dialog.png"))
        self.is_printed(self.printer.printed(2))
        self.done("print through the dialog")

    def is_printed(self, path):
        pages = pages_of_pdf(path)
        expect(len(pages) == self.pages, f"{len(pages)} pages printed")
        for number, page in enumerate(pages, FIRST_PAGE):
            expect(f"Strona {number}" in page, f"no page number {number} on paper")
            expect(self.typed["Nazwa_projektu"] in page, "no project on paper")
        self.has_results("print", " ".join(pages))

    def has_results(self, output, text):
        """Every line of the text report stands in another output too, but those it draws."""
        missing = [line for line in self.lines
                   if line not in text and "omega" not in line and line != "Strona"]
        expect(not missing, f"the {output} lacks {missing}")

    def calculate_again(self, program, results):
        results.back("alt+p", "Right", "Right", "Return")
        results = program.calculate("F-8")
        second = FIRST_PAGE + self.pages
        expect(self.page_of_report() == [second], "the page number was not counted on")
        results.save_text(self.saved("second.txt"))
        text, _ = self.companion("second", self.calculated | {"Nazwa_stopy": "F-8"}, ".txt")
        expect(without_date(read(self.saved("second.txt"))) == without_date(text),
               "the second report is not that of the calculation alone")
        self.done("second calculation")
        results.end_program("alt+k")
        self.after_second = self.page_in_configuration()
        expect(self.after_second > second, "the end of the program did not count the page on")
        self.done("end of the program")

    def page_in_configuration(self):
        return int(read(self.folder, "Ferna.cfg").split(b"\r\n")[1].split()[0])

    def start_again(self):
        """What was typed is there; only the anchors and the type of the footing are asked anew."""
        program = Program(self.desktop, self.folder).ready()
        program.tab(2)
        self.desktop.type("2")
        program.choose_footing(self.typed["Stopa_betonowa"])
        program.add_four(self.typed["Kotwy"][0], typed=False)
        results = program.calculate("F-8")
        expect(self.page_of_report() == [self.after_second], "the page number did not come back")
        results.save_text(self.saved("third.txt"))
        expect(without_date(read(self.saved("third.txt")))
               == without_date(read(self.saved("second.txt"))), "the task did not come back")
        results.end_program("alt+p", "z")
        expect(self.page_in_configuration() > self.after_second, "the page was not counted on")
        self.done("start again, and the other end")

    def begin_with_a_crash(self):
        """The second day: the program is killed over the work and brings it back at its next start.
        The task goes into a file, and the companion computes that file."""
        program = Program(self.desktop, self.folder).ready()
        second = self.typed | {"Nazwa_projektu": "Dzien drugi", "Nr_strony": 40}
        program.type_general(second)
        program.type_loads(second)
        program.add_four(second["Kotwy"][0])
        program.tab(1)
        program.process.kill()
        program.process.wait()
        program = Program(self.desktop, self.folder).ready()
        self.desktop.screenshot(self.saved("offer.png"))
        self.desktop.keys("alt+r")
        results = program.calculate("F-10")
        results.save_text(self.saved("recovered.txt"))
        text, _ = self.companion("recovered", second | {"Nazwa_stopy": "F-10"}, ".txt")
        expect(without_date(read(self.saved("recovered.txt"))) == without_date(text),
               "the killed task did not come back whole")
        results.back("alt+Left")
        self.desktop.window(MAIN)
        self.desktop.keys("ctrl+s")
        self.desktop.answer("Zapisz zadanie jako", self.saved("F-10"))
        wait_for("the file of the task", lambda: os.path.exists(self.saved("F-10.ferna")))
        saved = json.loads(read(self.saved("F-10.ferna")))
        expect(saved["Nazwa_stopy"] == "F-10" and len(saved["Kotwy"]) == 4, "a task is missing")
        text, _ = self.companion("from-file", saved | {"Nr_strony": 40}, ".txt")
        expect(without_date(read(self.saved("recovered.txt"))) == without_date(text),
               "the companion has another report of the saved task")
        program.leave()
        self.done("a second day that begins with a crash")

    def break_renderer(self):
        renderer = os.path.join(self.folder, "Wyd_drk")
        os.rename(renderer, renderer + ".whole")
        with open(renderer, "w", encoding="utf-8") as file:
            file.write("#!/bin/sh\necho 'Wyd_drk: brak papieru' >&2\nexit 1\n")
        os.chmod(renderer, 0o755)

    def mend_renderer(self):
        renderer = os.path.join(self.folder, "Wyd_drk")
        os.replace(renderer + ".whole", renderer)

    def told_of_failure(self, name):
        """The box of a stopped command, answered by the mnemonic of its Polish way back."""
        box = self.desktop.window(TITLE)
        self.desktop.screenshot(self.saved(name))
        self.desktop.keys("alt+w")
        wait_for("the message to go", lambda: box not in self.desktop.shown(TITLE))
        return self.desktop.window(RESULTS)

    def work_without_renderer(self):
        program = Program(self.desktop, self.folder).ready()
        program.add_four(self.typed["Kotwy"][0], typed=False)
        self.break_renderer()
        self.desktop.keys("alt+o")
        self.desktop.answer(TITLE, LABEL)
        window = self.told_of_failure("broken.png")
        results = Results(self.desktop, program)
        results.save_text(self.saved("broken.txt"))
        expect(LABEL in lines_of(read(self.saved("broken.txt"))), "no text without the renderer")
        results.file_menu("d")
        self.desktop.answer(TITLE, LABEL)
        self.told_of_failure("broken-print.png")
        expect(not self.is_report_shown(window), "a picture without the renderer")
        self.mend_renderer()
        self.desktop.click(window, 0.9, 12)  # the panel of the label: asks, and draws anew
        self.desktop.answer(TITLE, "F-9")
        self.shows_report(window)
        results.back()
        program.leave()
        self.done("a broken renderer, mended")

    def run(self):
        program = self.describe()
        results = self.calculate(program)
        self.add_sections(results)
        self.save_texts(results)
        self.save_document(results)
        self.save_emf(results)
        self.print(results)
        self.calculate_again(program, results)
        self.start_again()
        self.begin_with_a_crash()
        self.work_without_renderer()


def main():
    with PrintServer() as printer, stage("day", environment=lambda _: printer.environment) as scene:
        os.makedirs(os.path.join(scene.work, "saved"))
        Day(printer, *scene).run()


main()
