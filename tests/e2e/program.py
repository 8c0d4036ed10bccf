"""The forms of the program as a person works them: by keys, with windows found by their titles."""

import os

from desktop import Failure, wait_for

# Patterns of window titles, without the Polish letters that xdotool does not match.
MAIN = "Ferna 2005 Pr - zakotwienie .*"
TITLE = "Ferna 2005 Pr"  # of the input boxes, and of most messages
RESULTS = "WY N I K I"
FOUR = "Podaj .* jednej z 4 .*"
STATICS = "Statyka .*"
LOAD = "Szczeg.* obci.*"
SCHEME = "Zapis obci.*"
PLATE = "Grubo.* blachy.*"
PRINT = "(Print|Drukuj|Drukowanie)"
ANCHOR = "Dob.* kotwy"
COMBINATIONS = "Ferna 2005 Pr - Kombinacje"
READING = "Wczytywanie kombinacji.*"
CAPACITY = "No.* podstawy"
SMALLEST = "Dob.* najmniejszej podstawy"

VERTICAL, PLANE_ZX, PLANE_ZY = range(3)  # directions of a load
FORCE, DISTRIBUTED, MOMENT = range(3)  # kinds of a load


def expect(condition, message):
    if not condition:
        raise Failure(message)


def read(*path):
    with open(os.path.join(*path), "rb") as file:
        return file.read()


class Program:
    """The running program; it begins on its main form."""

    def __init__(self, desktop, folder, *arguments):
        self.desktop = desktop
        self.folder = folder
        self.process = desktop.start([os.path.join(folder, "ferna"), *arguments], folder)

    def ready(self):
        self.desktop.window(MAIN)
        return self

    def tab(self, number):
        self.desktop.keys(f"alt+{number}")

    def type_general(self, task):
        type_, keys = self.desktop.type, self.desktop.keys
        self.tab(1)
        type_(task["Nazwa_projektu"])
        keys("Tab")
        type_(str(task["Nr_strony"]))
        keys("Tab", *["Down"] * task["Nr_normy"])
        self.tab(2)
        type_(str(len(task["Przypadki"])))
        keys("Tab")
        type_(str(task["Dlug_plyty_mm"]))
        keys("Tab")
        type_(str(task["Szer_plyty_mm"]))
        keys("Tab", "Home", *["Down"] * (task["Nr_betonu"] - 1))
        keys("Tab", "Tab", "Home", *["Down"] * (task["Nr_stali"] - 1))
        keys("Tab", *["Right"] * task["Stopa_betonowa"])

    def choose_footing(self, Stopa_betonowa):
        """The one field of the general data that no configuration keeps."""
        self.desktop.keys("alt+2", *["Tab"] * 6, *["Right"] * Stopa_betonowa)

    def type_loads(self, task):
        self.tab(3)
        for case in task["Przypadki"]:
            for name in ("N", "M1", "M2", "Vx", "Vy"):
                self.desktop.type(str(case[name]))
                self.desktop.keys("Tab")

    def add_four(self, anchor, typed=True):
        self.tab(4)
        self.desktop.keys("space")
        self.desktop.window(FOUR)
        if typed:
            self.desktop.type(str(anchor["x"]))
        self.desktop.keys("Tab")
        if typed:
            self.desktop.type(str(anchor["y"]))
        self.desktop.keys("Tab")
        self.desktop.write(str(anchor["fi"]))
        self.desktop.keys("Return")
        self.desktop.gone(FOUR)
        self.desktop.window(MAIN)

    def statics(self):
        self.tab(3)
        self.desktop.keys("alt+s")
        return ColumnStatics(self.desktop)

    def calculate(self, label):
        """Calculates, and answers the question for the label. The results form comes up."""
        self.desktop.keys("alt+o")
        self.desktop.answer(TITLE, label)
        return Results(self.desktop, self)

    def leave(self):
        self.desktop.keys("alt+k")
        self.ended()

    def ended(self):
        expect(self.process.wait(30) == 0, "the program did not end well")


class ColumnStatics:
    """The list of the loads on the column."""

    def __init__(self, desktop):
        self.desktop = desktop
        desktop.window(STATICS)
        desktop.keys(*["Tab"] * 6, "space")  # from the totals to the first direction
        self.direction, self.kind, self.loads = VERTICAL, FORCE, 0

    def choose(self, direction, kind):
        step = "Down" if direction > self.direction else "Up"
        self.desktop.keys(*[step] * abs(direction - self.direction))
        if direction == VERTICAL:
            self.kind = FORCE
        else:
            step = "Down" if kind > self.kind else "Up"
            self.desktop.keys("Tab", *[step] * abs(kind - self.kind), "shift+Tab")
            self.kind = kind
        self.direction = direction

    def add(self, direction, kind, *values):
        self.choose(direction, kind)
        self.desktop.keys("Return")
        self.desktop.window(LOAD)
        for value in values:
            self.desktop.type(str(value))
            self.desktop.keys("Tab")
        self.desktop.keys("alt+d")
        self.desktop.gone(LOAD)
        self.desktop.window(STATICS)
        self.loads += 1

    def remove(self, number):
        self.desktop.keys("Tab", "Tab", "Tab", "End", *["Up"] * (self.loads - number), "Tab",
                          "space", *["shift+Tab"] * 4)
        self.loads -= 1

    def save_as_new_case(self):
        self.desktop.keys(*["shift+Tab"] * 1, "space")
        self.desktop.window(SCHEME)
        self.desktop.keys("Return")
        self.desktop.gone(STATICS)
        self.desktop.window(MAIN)


class Results:
    """The results form."""

    def __init__(self, desktop, program):
        self.desktop = desktop
        self.program = program
        desktop.window(RESULTS, 60)

    def file_menu(self, key):
        self.desktop.keys("alt+p", key)

    def set_page_number(self, number, label):
        self.file_menu("s")
        self.desktop.answer(TITLE, str(number))
        self.desktop.answer(TITLE, label)
        self.desktop.window(RESULTS)

    def save(self, choose, question, path):
        """Saves an output under a name that is typed into its question."""
        choose()
        self.desktop.answer(question, path)

    def save_text(self, path):
        self.save(lambda: self.file_menu("t"), "Podaj nazw.* pliku tekstowego", path)
        self.written(path)

    def save_rtf(self, path):
        # The entry has no mnemonic of its own: it is the one below the document's.
        self.save(lambda: self.desktop.keys("alt+p", "Down", "Down", "Down", "Return"),
                  "Podaj nazw.* pliku w formacie rtf", path)
        self.written(path)

    def save_document(self, path):
        self.file_menu("w")
        self.desktop.answer("Podaj nazw.* dokumentu Word'a", path, 90)
        self.desktop.window("Dokument Word'a", 60)  # the advice, after the saving
        self.desktop.keys("Return")
        self.desktop.window(RESULTS)

    def save_emf(self, path, label):
        self.file_menu("e")
        self.desktop.answer(TITLE, label)
        self.desktop.answer("Zapisz jako EMF", path, 60)
        self.desktop.window(RESULTS)

    def print_on_default(self, label):
        self.file_menu("d")
        self.desktop.answer(TITLE, label)
        self.desktop.window(RESULTS)

    def print_on_chosen(self, label, screenshot):
        self.file_menu("u")
        self.desktop.answer(TITLE, label)
        self.desktop.window(PRINT, 60)
        self.desktop.screenshot(screenshot)
        self.desktop.keys("Return")
        self.desktop.gone(PRINT)
        self.desktop.window(RESULTS)

    def written(self, path):
        wait_for(path, lambda: os.path.exists(path))
        self.desktop.window(RESULTS)

    def plate_form(self):
        self.desktop.keys("alt+s", "Home", "Return")
        return PlateForm(self.desktop, self)

    def choose_hooked_anchor(self, thickness):
        self.desktop.keys("alt+s", "End", "Return")
        self.desktop.answer(TITLE, str(thickness))
        self.desktop.window(ANCHOR)
        self.desktop.keys("alt+k")
        self.desktop.gone(ANCHOR)
        self.desktop.window(RESULTS)

    def back(self, *keys):
        self.desktop.keys(*(keys or ["alt+F4"]))  # closing the results is the way back, too
        self.desktop.gone(RESULTS)
        self.desktop.window(MAIN)

    def end_program(self, *keys):
        self.desktop.keys(*keys)
        self.program.ended()


class PlateForm:
    """The thickness of the plate."""

    def __init__(self, desktop, results):
        self.desktop = desktop
        self.results = results
        desktop.window(PLATE)

    def choose_grade(self, number):
        self.desktop.keys("Home", *["Down"] * (number - 1))

    def check(self, tab, *values):
        """Computes the check of a tab; the fields behind the values keep what they offer."""
        self.desktop.keys(f"alt+{tab}")
        for i, value in enumerate(values):
            if i:
                self.desktop.keys("Tab")
            self.desktop.type(str(value))
        self.desktop.keys("Return")

    def accept(self):
        self.desktop.keys("alt+k")
        self.desktop.gone(PLATE)
        self.desktop.window(RESULTS)
        return self.results
