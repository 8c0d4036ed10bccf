#!/usr/bin/env python3
"""The floors of the program, asked of the build itself.

    floors_test.py SOURCE_DIR BUILD_DIR COMPILER

The build leaves its link graph in BUILD_DIR/rooms.txt. No room links one of a higher floor, the
renderer knows nothing of the state, no room that computes links widgets, the page on the architecture
shows the floors in their order, and an include of a room that is not linked does not build.
"""
import pathlib
import re
import subprocess
import sys
import unittest

SOURCE, BUILD, COMPILER = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]), sys.argv[3]


def link_graph():
    graph = {}
    for line in (BUILD / "rooms.txt").read_text().splitlines():
        target, _, links = line.partition(": ")
        graph[target] = links.split()
    return graph


GRAPH = link_graph()

# Programs, and the modules that they load.
NO_ROOMS = ("ferna-wsad", "Wyd_drk", "ferna_renderer_paper", "ferna_paper", "ferna_writer")


def reachable(target):
    found, open_ones = set(), [target]
    while open_ones:
        for link in GRAPH.get(open_ones.pop(), []):
            if link not in found:
                found.add(link)
                open_ones.append(link)
    return found


def rooms_of(target):
    return {link.removeprefix("ferna_") for link in reachable(target)
            if link in GRAPH and link != target}


def builds(room, include):
    """Whether a source with that include compiles with the include folders of a room."""
    folders = [f"-I{BUILD}/rooms/{name}" for name in {room} | rooms_of(f"ferna_{room}")]
    run = subprocess.run([COMPILER, "-std=c++20", "-E", "-x", "c++", "-o", "/dev/null", *folders, "-"],
                         input=f'#if !__has_include("{include}")\n#error missing\n#endif\n',
                         text=True, capture_output=True, check=False)
    return run.returncode == 0


class Floors(unittest.TestCase):
    def test_no_room_links_a_room_of_a_higher_floor(self):
        order = list(GRAPH)
        for target, links in GRAPH.items():
            for link in links:
                if link in GRAPH:
                    self.assertLess(order.index(link), order.index(target),
                                    f"{target} links {link}, which stands above it")

    def test_every_room_has_a_folder_and_every_folder_a_room(self):
        rooms = {target.removeprefix("ferna_").removesuffix("_forms") for target in GRAPH
                 if target not in NO_ROOMS}
        rooms = {"app" if room == "ferna" else room for room in rooms}
        folders = {path.name for path in (SOURCE / "src").iterdir() if any(path.rglob("*.cpp"))}
        self.assertEqual(rooms, folders)

    def test_the_renderer_shares_windows_pages_and_protocol_and_nothing_of_the_state(self):
        self.assertEqual(rooms_of("Wyd_drk"),
                         {"renderer", "runtime", "pages", "protocol"})
        self.assertEqual(rooms_of("ferna_paper"),
                         {"renderer", "renderer_paper", "runtime", "pages", "protocol", "windows"})
        self.assertEqual(rooms_of("ferna_windows"), {"runtime"})

    def test_the_companion_and_the_rooms_that_compute_link_no_widgets(self):
        computing = [target for target in GRAPH if not target.endswith("_forms")
                     and target not in ("ferna", "ferna_widgets", "ferna_windows", "ferna_paper",
                                        "ferna_renderer_paper")]
        self.assertGreater(len(computing), 10)
        for target in computing:
            self.assertNotIn("Qt6::Widgets", reachable(target), target)
            self.assertNotIn("Qt6::PrintSupport", reachable(target), target)

    def test_the_page_on_the_architecture_shows_the_floors_in_their_order(self):
        page = (SOURCE / "docs/architecture.md").read_text()
        shown = re.findall(r"^\| `(\w+)/` \|", page, re.MULTILINE)
        built = [target.removeprefix("ferna_") for target in GRAPH
                 if not target.endswith("_forms")
                 and target not in NO_ROOMS]
        built = ["app" if room == "ferna" else room for room in built]
        self.assertEqual(shown, built)

    def test_an_include_of_a_room_that_is_not_linked_does_not_build(self):
        self.assertTrue(builds("analysis", "design/stan.h"))
        self.assertTrue(builds("analysis", "runtime/format.h"))
        self.assertFalse(builds("analysis", "report/report_lines.h"))
        self.assertFalse(builds("design", "analysis/load_case.h"))
        self.assertFalse(builds("pages", "design/stan.h"))
        self.assertFalse(builds("renderer", "design/stan.h"))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
