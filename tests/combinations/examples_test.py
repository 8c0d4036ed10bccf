#!/usr/bin/env python3
"""A table of combinations in parts gives what it gives as a whole, also after a kill.

    examples_test.py SOURCE_DIR FOLDER_OF_THE_PROGRAMS

The scripts in docs/examples run on this machine: GNU parallel as it is, the array of Slurm by setting
what Slurm sets.
"""

import os
import signal
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

SOURCE, PROGRAMS = Path(sys.argv[1]), Path(sys.argv[2])
EXAMPLES = SOURCE / "docs" / "examples"
TASK = EXAMPLES / "column.json"
ROWS = "7"  # of a part
PARTS = 44  # of 302 rows: the last one has a single row


class Parts(unittest.TestCase):
    def setUp(self):
        self.folder = Path(self.enterContext(tempfile.TemporaryDirectory()))
        lines = (EXAMPLES / "combinations.csv").read_text(encoding="utf-8").split("\n")
        for row in (40, *range(50, 57)):  # one row is refused, and all of a part
            lines[row] = lines[row].replace(";", ";x", 1)
        lines[80:80] = [lines[10]]  # one stands twice
        lines[200:200] = [lines[129]]  # and one of those that go into the load table
        self.table = self.folder / "table.csv"
        self.table.write_text("\n".join(lines), encoding="utf-8")
        self.environment = os.environ | {"FERNA_WSAD": str(PROGRAMS / "ferna-wsad")}

    def enterContext(self, manager):  # unittest has it from Python 3.11 on
        value = manager.__enter__()
        self.addCleanup(manager.__exit__, None, None, None)
        return value

    def whole(self):
        return subprocess.run([PROGRAMS / "ferna-wsad", "--kombinacje", self.table, TASK],
                              stdout=subprocess.PIPE, check=True).stdout

    def parallel(self, folder):
        return [EXAMPLES / "combinations_parallel.sh", TASK, self.table, folder, ROWS]

    def slow_companion(self):
        """The companion, half a second later: time to be killed in."""
        script = self.folder / "slow.sh"
        script.write_text(f'#!/bin/sh\nsleep 0.5\nexec "{PROGRAMS}/ferna-wsad" "$@"\n')
        script.chmod(0o755)
        return self.environment | {"FERNA_WSAD": str(script)}

    def test_the_parts_together_are_the_whole(self):
        done = subprocess.run(self.parallel(self.folder / "parts"), env=self.environment,
                              stdout=subprocess.PIPE, check=True)
        self.assertEqual(done.stdout.decode(), self.whole().decode())
        self.assertEqual(len(list((self.folder / "parts").glob("*.jsonl"))), PARTS)

    def test_a_killed_run_goes_on_and_ends_as_one_that_was_not(self):
        folder = self.folder / "parts"
        run = subprocess.Popen(self.parallel(folder), env=self.slow_companion(),
                               stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                               start_new_session=True)
        patience = time.monotonic() + 120
        while len(list(folder.glob("*.jsonl"))) < 3:
            self.assertIsNone(run.poll(), "killed too late")
            self.assertLess(time.monotonic(), patience)
            time.sleep(0.02)
        os.killpg(run.pid, signal.SIGKILL)
        run.wait()
        before = {path: path.stat().st_mtime_ns for path in folder.glob("*.jsonl")}
        self.assertLess(len(before), PARTS)
        done = subprocess.run(self.parallel(folder), env=self.environment, stdout=subprocess.PIPE,
                              check=True)
        self.assertEqual(done.stdout.decode(), self.whole().decode())
        for path, moment in before.items():
            self.assertEqual(path.stat().st_mtime_ns, moment, f"{path.name} was answered again")

    def test_the_array_of_a_cluster_gives_the_same(self):
        folder = self.folder / "parts"
        parts = EXAMPLES / "combinations_parts.py"
        subprocess.run([parts, "split", self.table, folder, ROWS], check=True)
        for task in (2, 1, 3, 1):  # in any order, and one of them twice
            subprocess.run([EXAMPLES / "combinations_slurm.sh", TASK, folder], check=True,
                           env=self.environment | {"SLURM_ARRAY_TASK_ID": str(task),
                                                   "SLURM_ARRAY_TASK_COUNT": "3"})
        merged = subprocess.run([parts, "merge", folder], stdout=subprocess.PIPE, check=True)
        self.assertEqual(merged.stdout.decode(), self.whole().decode())

    def test_a_part_that_fails_is_told_and_leaves_no_answers(self):
        one = self.folder / "part-00001.csv"
        one.write_bytes(self.table.read_bytes())
        script = self.folder / "failing.sh"
        script.write_text("#!/bin/sh\necho half\nexit 2\n")
        script.chmod(0o755)
        run = subprocess.run([EXAMPLES / "combinations_part.sh", TASK, one],
                             env=self.environment | {"FERNA_WSAD": str(script)}, check=False)
        self.assertEqual(run.returncode, 2)
        self.assertEqual(list(self.folder.glob("*.jsonl*")), [])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
