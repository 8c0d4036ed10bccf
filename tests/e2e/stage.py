"""What every scene on a real screen stands on: a copy of the programs, a task, a screen of its own."""

import json
import os
import shutil
import sys
import tempfile
from contextlib import contextmanager
from typing import NamedTuple

from desktop import Desktop


class Stage(NamedTuple):
    desktop: Desktop
    folder: str  # of the copied programs
    work: str  # for whatever the scene writes; gone after a scene that went well
    task: dict


@contextmanager
def stage(name, manager="openbox", environment=lambda work: {}):
    """A stage for one scene, of the call's FOLDER_OF_THE_PROGRAMS and SAMPLE_TASK.json. After a
    failure its files stay and a screenshot with them, as they do where FERNA_E2E_KEEP is set.
    `environment` is asked for more variables of the programs."""
    programs, sample = sys.argv[1:]
    with open(sample, encoding="utf-8") as file:
        task = json.load(file)
    work = tempfile.mkdtemp(prefix=f"ferna-{name}-")
    folder = os.path.join(work, "bin")
    shutil.copytree(programs, folder)
    desktop = Desktop(os.path.join(work, "home"), environment=environment(work), manager=manager)
    try:
        yield Stage(desktop, folder, work, task)
    except BaseException:
        desktop.screenshot(os.path.join(work, "failure.png"))
        print(f"files and screenshot in {work}", file=sys.stderr)
        raise
    finally:
        desktop.close()
    if not os.environ.get("FERNA_E2E_KEEP"):
        shutil.rmtree(work)
