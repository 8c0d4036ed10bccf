#!/usr/bin/env python3
"""Runs every command of the README and the guides as they stand there, in a copy of the tree.

The ```sh blocks of a page run one after the other in one shell, which stops at the first command
that fails. Every file that a block names must be there afterwards. A ```text block right behind a
```sh block shows what is printed: its lines must come in that order. A block that cannot run in a
test stands behind a comment, <!-- not run: why -->; the test lists these. Links within the tree must
lead somewhere.

Usage: docs_commands.py ROOT_OF_THE_TREE FOLDER_OF_THE_PROGRAMS
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile

PAGES = re.compile(r"^(README|CONTRIBUTING)\.md$|^docs/.*\.md$")
NOT_RUN = re.compile(r"<!-- not run: (.+) -->$")
FILE = re.compile(r"(?<![\w$*{/.])[\w./-]*\w\.(?:json|jsonl|csv|txt|rtf|pdf|svg|emf|odt|doc|wyd|py|sh)\b")
LINK = re.compile(r"\]\(([^)#:\s]+)(#[^)\s]*)?\)")
SECONDS = 300
PROGRAMS = "build/release/bin"
EXERCISES = "build/exercises"  # where the pages let their files go
# The English pages are read under the bare C locale, the Polish ones under the Polish locale.
LOCALES = {"docs/en/": "C", "docs/pl/": "pl_PL.UTF-8"}


class Page:
    """The blocks of one page: (kind, line, text, why it is not run)."""

    def __init__(self, path, text):
        self.path = path
        self.text = text
        self.blocks = []
        kind, why, lines = None, None, []
        for number, line in enumerate(text.split("\n"), 1):
            if kind is not None:
                if line == "```":
                    self.blocks.append((kind, start, "\n".join(lines), why))
                    kind, why = None, None
                else:
                    lines.append(line)
            elif line.startswith("```"):
                kind, start, lines = line[3:], number, []
            elif line.strip():
                mark = NOT_RUN.match(line)
                why = mark.group(1) if mark else None

    def commands(self):
        """The blocks to run, each with the lines that it must print."""
        for i, (kind, start, text, why) in enumerate(self.blocks):
            if kind == "sh" and not why:
                behind = self.blocks[i + 1] if i + 1 < len(self.blocks) else None
                adjoins = (behind and behind[0] == "text"
                           and behind[1] == start + text.count("\n") + 3)
                yield start, text, behind[2] if adjoins else ""

    def not_run(self):
        return [(start, why) for kind, start, _, why in self.blocks if kind == "sh" and why]

    def unmarked(self):
        """Fences that say no language: nobody could tell whether they are commands."""
        return [start for kind, start, _, _ in self.blocks if kind == ""]


def copy_tree(root, programs, work):
    """The files of the tree, and the programs where the pages expect them."""
    copy = os.path.join(work, "ferna")
    shutil.copytree(root, copy, ignore=shutil.ignore_patterns(".git", "build", "__pycache__"))
    shutil.copytree(programs, os.path.join(copy, PROGRAMS))
    for command in (["git", "init", "-q"], ["git", "add", "-A"]):
        subprocess.run(command, cwd=copy, check=True)
    return copy


def restore(copy):
    """The copy is again what it was before a page ran in it."""
    for command in (["git", "clean", "-ffdxq", "-e", "/" + PROGRAMS], ["git", "checkout", "-q", "--", "."]):
        subprocess.run(command, cwd=copy, check=True)


def missing_lines(expected, printed):
    """The expected lines that do not come, in their order, among the printed ones."""
    rest = iter(line.rstrip() for line in printed.split("\n"))
    return [line for line in expected.split("\n")
            if line.strip() and not any(line.rstrip() == other for other in rest)]


def run_page(commands, copy, locale, locales):
    """Runs the blocks of a page in the copy, which it leaves as it was. What is wrong with them."""
    with tempfile.TemporaryDirectory(prefix="ferna-docs-home-") as home:
        os.chmod(home, 0o700)
        wrong = run_in(copy, home, commands, locale, locales) + litter_in(copy)
    restore(copy)
    return wrong


def litter_in(copy):
    """Files that git would take for new ones: the exercises leave none."""
    told = subprocess.run(["git", "status", "--porcelain"], cwd=copy, text=True, check=True,
                          capture_output=True).stdout
    return [f"left in the tree: {line}" for line in told.splitlines() if line.startswith("??")]


def make_locale(name, folder):
    subprocess.run(["localedef", "-i", name.partition(".")[0], "-f", "UTF-8",
                    os.path.join(folder, name)], capture_output=True, timeout=120)
    if not os.path.isdir(os.path.join(folder, name)):
        sys.exit(f"localedef makes no {name}")


def run_in(copy, home, commands, locale, locales):
    marker = "=== block {}"
    script = "set -euo pipefail\n" + "".join(
        f"echo '{marker.format(start)}'\n{text}\n" for start, text, _ in commands)
    environment = {"PATH": os.environ["PATH"], "HOME": home, "LC_ALL": locale, "LOCPATH": locales,
                   "XDG_RUNTIME_DIR": home, "PYTHONDONTWRITEBYTECODE": "1"}
    done = subprocess.run(["bash", "-c", script], cwd=copy, env=environment, encoding="utf-8",
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=SECONDS,
                          stdin=subprocess.DEVNULL)
    wrong = []
    if done.returncode:
        wrong.append(f"ended with {done.returncode}:\n{done.stdout[-2000:]}")
    for start, text, expected in commands:
        printed = done.stdout.partition(marker.format(start) + "\n")[2].partition("\n=== block ")[0]
        for line in missing_lines(expected, printed):
            wrong.append(f"line {start}: not printed: {line}\n{printed[-2000:]}")
        for name in FILE.findall(text):
            if not any(os.path.exists(os.path.join(folder, name))
                       for folder in (copy, os.path.join(copy, EXERCISES))):
                wrong.append(f"line {start}: no file {name}")
    return wrong


def anchor_of(heading):
    words = re.sub(r"[^\w\- ]", "", heading.strip().lower())
    return "#" + words.replace(" ", "-")


def dead_links(page, root):
    for target, anchor in LINK.findall(page.text):
        path = os.path.normpath(os.path.join(root, os.path.dirname(page.path), target))
        if not os.path.exists(path):
            yield f"leads nowhere: {target}"
        elif anchor:
            with open(path, encoding="utf-8") as file:
                headings = re.findall(r"^#+ (.*)$", file.read(), re.MULTILINE)
            if anchor not in map(anchor_of, headings):
                yield f"no such heading: {target}{anchor}"


def unused_pictures(pages, root):
    folder = os.path.join(root, "docs", "pictures")
    shown = "\n".join(page.text for page in pages)
    return [name for name in sorted(os.listdir(folder)) if f"pictures/{name}" not in shown]


def read_pages(root):
    pages = []
    for folder, _, names in os.walk(root):
        for name in names:
            path = os.path.relpath(os.path.join(folder, name), root)
            if PAGES.match(path):
                with open(os.path.join(root, path), encoding="utf-8") as file:
                    pages.append(Page(path, file.read()))
    return sorted(pages, key=lambda page: page.path)


def wrong_of_pages(pages, root, programs):
    """What is wrong with the pages, and how many blocks were run."""
    wrong, blocks = [], 0
    with tempfile.TemporaryDirectory(prefix="ferna-docs-") as work:
        copy = copy_tree(root, programs, work)
        for locale in LOCALES.values():
            if locale != "C":
                make_locale(locale, work)
        for page in pages:
            wrong += [f"{page.path}: {what}" for what in dead_links(page, root)]
            wrong += [f"{page.path}:{line}: a fence without a language" for line in page.unmarked()]
            for line, why in page.not_run():
                print(f"not run: {page.path}:{line}: {why}")
            commands = list(page.commands())
            locale = LOCALES.get(page.path[:8], "C.UTF-8")
            if commands:
                wrong += [f"{page.path}: {what}" for what in run_page(commands, copy, locale, work)]
            blocks += len(commands)
    return wrong, blocks


def main():
    root, programs = map(os.path.abspath, sys.argv[1:])
    pages = read_pages(root)
    wrong, blocks = wrong_of_pages(pages, root, programs)
    wrong += [f"docs/pictures/{name}: no page shows it" for name in unused_pictures(pages, root)]
    print(f"{len(pages)} pages, {blocks} blocks run")
    if not blocks:
        wrong.append("no block was found")
    if wrong:
        sys.exit("\n".join(wrong))


if __name__ == "__main__":
    main()
