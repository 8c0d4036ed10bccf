#!/usr/bin/env python3
"""Takes the pictures of the guide anew and compares them with those in the tree: the same windows,
of the same size, with the same in them. Only the date and the time in a report may differ.

Usage: guide_pictures_test.py ROOT_OF_THE_TREE FOLDER_OF_THE_PROGRAMS
"""

import os
import subprocess
import sys
import tempfile

LARGEST_SHARE = 0.003  # of differing pixels; date, time and a blinking cursor are less


def told(command):
    done = subprocess.run(command, text=True, capture_output=True, timeout=60)
    return done.stdout + done.stderr


def size(path):
    return tuple(map(int, told(["identify", "-format", "%w %h", path]).split()))


def difference(kept, taken):
    """What differs beyond measure; None for the same picture."""
    if size(kept) != size(taken):
        return f"size {size(taken)} and not {size(kept)}"
    width, height = size(kept)
    differing = told(["compare", "-metric", "AE", "-fuzz", "20%", kept, taken, "null:"])
    share = float(differing.split()[0]) / (width * height)
    return f"{share:.2%} of the pixels" if share > LARGEST_SHARE else None


def main():
    root, programs = map(os.path.abspath, sys.argv[1:])
    pictures = os.path.join(root, "docs", "pictures")
    with tempfile.TemporaryDirectory(prefix="ferna-pictures-") as taken:
        subprocess.run([sys.executable, os.path.join(root, "tools", "guide_pictures.py"), programs,
                        os.path.join(root, "data", "przyklady", "slup-hali.json"), taken],
                       check=True, timeout=240)
        if sorted(os.listdir(pictures)) != sorted(os.listdir(taken)):
            sys.exit(f"in the tree {sorted(os.listdir(pictures))}\ntaken {sorted(os.listdir(taken))}")
        stale = []
        for name in sorted(os.listdir(taken)):
            differs = difference(os.path.join(pictures, name), os.path.join(taken, name))
            if differs:
                stale.append(f"{name}: {differs}")
    if stale:
        sys.exit("\n".join([*stale, "Run tools/guide_pictures.sh and look at the pictures."]))
    print("the windows look like their pictures")


main()
