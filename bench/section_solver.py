#!/usr/bin/env python3
"""The exact equilibrium beside a general solver of equations, on the same problems and to the same
tolerance: checks that they agree and prints the table of it. Debian has no library for the equilibrium
of cracked sections; its general solver of equations, MINPACK (libcminpack), stands in for one.

Usage: bench/section_solver.py [BUILD_FOLDER]    after a Release build with benchmarks
"""

import json
import os
import subprocess
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
AGREED = 1e-7  # of the largest stress in a corner, where both have balanced the load


def answers(build):
    done = subprocess.run([os.path.join(build, "bench", "section_solver")], check=True,
                          capture_output=True, text=True, timeout=600)
    return json.loads(done.stdout)


def check(found):
    own, general = found["own"], found["general"]
    if own["residual"] > found["tolerance"]:
        sys.exit(f"the exact equilibrium leaves {own['residual']:g} of a load")
    if general["converged"] == 0 or general["apart"] > AGREED:
        sys.exit(f"the two differ by {general['apart']:g} of the largest stress")


def table(found):
    problems, own = found["problems"], found["own"]
    lines = ["| a combination, six anchors | processor time | solved | farthest from the exact one |",
             "|---|---:|---:|---:|",
             f"| the exact equilibrium of the program | {1e6 * own['seconds']:.2f} µs "
             f"| {problems} of {problems} | its residual {own['residual']:.0e} of the load |"]
    for name, what in (("general", "MINPACK, pressure integrated exactly"),
                       ("fibres", "MINPACK, fibres of 10 x 10 mm")):
        one = found[name]
        lines.append(f"| {what} | {1e6 * one['seconds']:.2f} µs | {one['converged']} of {problems} "
                     f"| {one['apart']:.0e} of the largest stress |")
    return "\n".join(lines)


def main():
    build = os.path.abspath(sys.argv[1] if len(sys.argv) > 1 else os.path.join(ROOT, "build/release"))
    found = answers(build)
    check(found)
    print(table(found))


if __name__ == "__main__":
    main()
