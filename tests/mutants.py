#!/usr/bin/python3
"""Breaks the rooms that judge a base, one operator, bound or constant at a time, and sees whether
their tests notice.

    tests/mutants.py                 500 mutants, drawn by a fixed seed; the table, then survivors
    tests/mutants.py --survivors     those that did not fail the last time, after a new test
    tests/mutants.py --mutant KEY    one, with what the tests say
    tests/mutants.py --count N --seed S --rooms ROOM ...

All mutants stand in one program (tests/mutation/mutated.h), built once under build/mutants. Each test
is first run alone to see which mutants it comes to; a mutant is run with the tests that come to it, the
quick ones first, up to the first that fails, crashes or takes many times its time.

Mutants that no test can notice, as they are the same program to whoever looks, stand in
tests/mutation/equivalent.txt, each with its reason. Those that the seed comes to are passed over, and it
draws on until there are as many others as asked for; they are counted and run too, so that a reason
that does not hold is found out. Ends with an error where a mutant survives that has no reason, or where
a reason stands behind one that is noticed or is no more.
"""
import argparse
import collections
import hashlib
import json
import os
import pathlib
import re
import resource
import shlex
import shutil
import subprocess
import sys
import time

TOP = pathlib.Path(__file__).resolve().parent.parent
TREE = TOP / "build" / "mutants"
BUILD = TREE / "build" / "release"
ROOMS = ["analysis", "plate", "statics", "equilibrium", "notes"]
PROGRAMS = {
    "analysis": ["test_analysis", "test_notes", "test_utilisation"],
    "plate": ["test_plate", "test_notes"],
    "statics": ["test_statics"],
    "equilibrium": ["test_equilibrium", "test_utilisation", "test_notes"],
    "notes": ["test_notes"],
}
# What these programs link; the other rooms are left out of the build.
CORE = ["command", "equilibrium", "input", "notes", "plate", "selection", "statics", "tables", "task",
        "utilisation"]
QUICK = 0.3  # seconds of the processor: such tests are run together
SLOW = 5  # and longer ones not at all: what the others let pass counts as a survivor


def say(text):
    print(time.strftime("[%H:%M:%S] ") + text, flush=True)


def make_tree():
    """A copy of the sources under build/mutants, laid out as the original so that the compiler's cache
    knows what is unchanged. Files that are the same keep their time."""
    for name in ["src", "tests", "cmake", "data", "docs", "packaging", "tools"]:
        for source in [TOP / name, *sorted((TOP / name).rglob("*"))]:
            target = TREE / source.relative_to(TOP)
            if source.is_dir():
                target.mkdir(parents=True, exist_ok=True)
            else:
                copy_changed(source.read_bytes(), target, source.stat().st_mode)
        for target in (TREE / name).rglob("*.*"):
            if not (TOP / target.relative_to(TREE)).exists() and target.name != "mutated.h":
                target.unlink()
    copy_changed((TOP / "tests/mutation/mutated.h").read_bytes(), TREE / "src/mutated.h")
    for name in ["CMakeLists.txt", "CMakePresets.json", "CHANGELOG.md", "README.md"]:
        copy_changed((TOP / name).read_bytes(), TREE / name, 0o644)


def copy_changed(text, target, mode=0o644):
    """Where the sources are mutated afterwards, what is compared is the text that stood there."""
    original = TREE / "originals" / target.relative_to(TREE)
    mutated = original.exists()
    if mutated and original.read_bytes() == text:
        return
    if not mutated and target.exists() and target.read_bytes() == text:
        return
    if mutated:
        original.unlink()
    target.write_bytes(text)
    target.chmod(mode)


def write_mutated(target, text):
    original = TREE / "originals" / target.relative_to(TREE)
    if original.exists():
        kept = original.read_bytes()
    else:
        kept = target.read_bytes()
        original.parent.mkdir(parents=True, exist_ok=True)
        original.write_bytes(kept)
    if target.read_bytes() != text:
        target.write_bytes(text)


def configure():
    if not (BUILD / "build.ninja").exists():
        subprocess.run(["cmake", "--preset", "release", "-DFERNA_BENCH=OFF",
                        "-DCMAKE_UNITY_BUILD=OFF"], cwd=TREE, check=True,
                       stdout=subprocess.DEVNULL)
    commands = json.loads((BUILD / "compile_commands.json").read_text())
    return {entry["file"]: arguments_of(entry["command"]) for entry in commands}


def arguments_of(command):
    """For clang: where headers lie and what is defined, of the rooms the one tree."""
    words = shlex.split(command)
    kept = ["-std=c++20", "-ferror-limit=0", "-w", "-Wno-invalid-constexpr", f"-I{TREE / 'src'}"]
    for i, word in enumerate(words):
        if word == "-isystem":
            kept += [word, words[i + 1]]
        elif word.startswith("-D") or word.startswith("-I") and "/rooms/" not in word:
            kept.append(word)
    return kept


def originals(room):
    """Name in the tree: bytes of the original, of every source and header of the room itself."""
    return {str(TREE / "src" / room / file.name): file.read_bytes()
            for file in sorted((TOP / "src" / room).iterdir()) if file.suffix in (".cpp", ".h")}


def candidates(room, arguments, places):
    texts = originals(room)
    found = {}
    for source in sorted(name for name in texts if name.endswith(".cpp")):
        for place in places.places(source, arguments[source], texts):
            found[(place.file, place.start, place.end, place.new)] = place
    unique = list(found.values())
    for place in unique:
        place.file = str(pathlib.Path(place.file).relative_to(TREE))
    places.name_keys(unique)
    return unique


def refused(source, arguments, texts, spots, places):
    """The mutants of a source that do not compile: by the place of the error or of its note, or else
    all of its line."""
    found, unknown = set(), []

    def mutants_at(location):
        name = location.file.name if location.file else ""
        inside = [(end - start, number) for number, (start, end) in spots.get(name, {}).items()
                  if start <= location.offset <= end]
        return {number for size, number in inside if size == min(inside)[0]}

    def mutants_of_line(location):
        name = location.file.name if location.file else ""
        text = texts.get(name, b"")
        begin = text.rfind(b"\n", 0, location.offset) + 1
        end = text.find(b"\n", location.offset)
        return {number for number, (start, stop) in spots.get(name, {}).items()
                if start <= end and stop >= begin}

    for error in places.parse(source, arguments, texts).diagnostics:
        if error.severity < error.Error:
            continue
        at = mutants_at(error.location)
        for note in error.children:
            at = at or mutants_at(note.location)
        at = at or mutants_of_line(error.location)
        if at:
            found |= at
        else:
            unknown.append(str(error))
    if unknown and not found:
        raise SystemExit("\n".join(unknown[:5]))
    return found


def without_refused(room, chosen, arguments, places):
    """The chosen places of a room that compile."""
    dropped = set()
    texts = originals(room)
    plain = dict(texts)
    again = True
    while again:
        again = False
        spots = {}
        for name, text in plain.items():
            here = [p for p in chosen if str(TREE / p.file) == name and p.number not in dropped]
            if here:
                texts[name], spots[name] = places.written(text, here)
            else:
                texts[name] = text
        for source in sorted(name for name in texts if name.endswith(".cpp")):
            new = refused(source, arguments[source], texts, spots, places)
            dropped |= new
            again = again or bool(new)
    return [place for place in chosen if place.number not in dropped]


def rank(place, seed):
    return hashlib.sha1(f"{seed} {place.key}".encode()).hexdigest()


def drawn(ranked, share, known, refuse):
    """The first of a row that compile, so many that `share` of them have no reason in `known`."""
    compiled, looked, missing = [], 0, share
    while missing > 0 and looked < len(ranked):
        # Some do not compile, and some are the same program: the next of the row take their place.
        looked += missing + missing // 6 + 5
        compiled = refuse(ranked[:looked])
        missing = share - sum(place.key not in known for place in compiled)
    others = [i for i, place in enumerate(compiled) if place.key not in known]
    return compiled[:others[share - 1] + 1] if 0 < share <= len(others) else compiled


def choose(rooms, count, seed, known, arguments, places):
    """As many mutants as asked for, each room by its share of all places, and those passed over on the
    way; the same again as long as neither the rooms nor the reasons nor what finds the places change.
    Reasons whose mutant is no more end the run."""
    kept = TREE / "chosen.json"
    texts = [text for room in rooms for text in originals(room).values()]
    scripts = [pathlib.Path(places.__file__).read_bytes(), pathlib.Path(__file__).read_bytes()]
    stamp = hashlib.sha1(b"".join([*texts, *scripts, *(key.encode() for key in known),
                                   f"{count} {seed}".encode()])).hexdigest()
    if kept.exists() and (before := json.loads(kept.read_text()))["stamp"] == stamp:
        return [places.Place(**place) for place in before["places"]]
    found = {room: sorted(candidates(room, arguments, places), key=lambda p: rank(p, seed))
             for room in rooms}
    gone = ({key for key in known if key.split("/")[1] in rooms}
            - {place.key for ranked in found.values() for place in ranked})
    if gone:
        raise SystemExit("\n".join(["has a reason and is no more:", *sorted(gone)]))
    total = sum(map(len, found.values()))
    say(f"{total} places")
    chosen, left = [], count
    for i, room in enumerate(rooms):
        share = round(count * len(found[room]) / total) if i + 1 < len(rooms) else left
        left -= share
        for number, place in enumerate(found[room], 1):
            place.number = number
        mine = drawn(found[room], share, known,
                     lambda some: without_refused(room, some, arguments, places))
        chosen += mine
        say(f"{room}: {len(found[room])} places, {len(mine)} drawn, of which "
            f"{sum(place.key in known for place in mine)} are the same program")
    for number, place in enumerate(chosen, 1):
        place.number = number
    kept.write_text(json.dumps({"stamp": stamp, "places": [vars(place) for place in chosen]}))
    return chosen


def write_sources(rooms, chosen, places):
    floors = (TOP / "src/CMakeLists.txt").read_text()
    core = "add_library(ferna_core INTERFACE)\ntarget_link_libraries(ferna_core INTERFACE "
    core += " ".join(f"ferna_{room}" for room in CORE) + ")"
    floors = re.sub(r"add_library\(ferna_core INTERFACE\)\n.*?\)", core, floors, flags=re.DOTALL)
    write_mutated(TREE / "src/CMakeLists.txt", floors.encode())
    for room in rooms:
        mine = [place for place in chosen if place.file.split("/")[1] == room]
        for name, text in originals(room).items():
            here = [place for place in mine if str(TREE / place.file) == name]
            write_mutated(pathlib.Path(name), places.written(text, here)[0] if here else text)
        lists = TREE / "src" / room / "CMakeLists.txt"
        # A place behind an array ends the program, as it does under the address sanitizer.
        options = (f"target_compile_options(ferna_{room} PRIVATE -w -D_GLIBCXX_ASSERTIONS)\n"
                   f"set_target_properties(ferna_{room} PROPERTIES DISABLE_PRECOMPILE_HEADERS ON)\n")
        write_mutated(lists, (TOP / "src" / room / "CMakeLists.txt").read_bytes() + options.encode())


def programs_of(rooms):
    return sorted({program for room in rooms for program in PROGRAMS[room]})


def run(program, tests, environment, seconds=None):
    """Exit code, seconds of the processor and output of these tests of a program."""
    def limits():
        if seconds:
            resource.setrlimit(resource.RLIMIT_CPU, (int(seconds) + 1, int(seconds) + 2))
        resource.setrlimit(resource.RLIMIT_AS, (8 << 30, 8 << 30))
        resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    try:
        done = subprocess.run(
            [str(BUILD / "tests" / program), "--gtest_brief=1", "--gtest_fail_fast",
             "--gtest_filter=" + ":".join(tests)],
            env={**os.environ, "LC_ALL": "C.UTF-8", **environment}, preexec_fn=limits,
            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=60 + 20 * (seconds or 60))
        code, output = done.returncode, done.stdout.decode(errors="replace")
    except subprocess.TimeoutExpired:
        code, output = -1, "waits for ever"
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return code, after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime, output


def names_of_tests(program):
    listed = subprocess.run([str(BUILD / "tests" / program), "--gtest_list_tests"],
                            capture_output=True, text=True, check=True).stdout
    suite, names = "", []
    for line in listed.splitlines():
        if line.startswith("  "):
            names.append(suite + line.split("#")[0].strip())
        elif line.endswith(".") or "# " in line:
            suite = line.split("#")[0].strip()
    return names


def measure(programs, most):
    """Of each test alone its seconds and the mutants that it comes to."""
    record = TREE / "reached"
    measured = {}
    for program in programs:
        binary = BUILD / "tests" / program
        kept = TREE / f"{program}.json"
        stamp = hashlib.sha1(binary.read_bytes()).hexdigest()
        known = json.loads(kept.read_text()) if kept.exists() else {}
        if known.get("stamp") != stamp:
            known = {"stamp": stamp, "tests": {}}
            for test in names_of_tests(program):
                record.unlink(missing_ok=True)
                code, seconds, output = run(program, [test], {"FERNA_REACHED": str(record)})
                if code != 0:
                    raise SystemExit(f"{program} {test} fails without a mutant:\n{output}")
                reached = record.read_bytes()[:most + 1] if record.exists() else b""
                known["tests"][test] = [seconds, [i for i, byte in enumerate(reached) if byte]]
            kept.write_text(json.dumps(known))
            say(f"{program}: {len(known['tests'])} tests measured")
        measured[program] = known["tests"]
    return measured


def steps_of(number, room, measured):
    """What a mutant is run with: quick tests together, a program at a time, then the others."""
    quick, slow = [], []
    for program in PROGRAMS[room]:
        together = []
        for test, (seconds, reached) in measured[program].items():
            if number in reached and seconds < SLOW:
                if seconds < QUICK:
                    together.append((seconds, test))
                else:
                    slow.append((seconds, program, [test]))
        if together:
            quick.append((sum(s for s, _ in together), program, [test for _, test in together]))
    return quick + sorted(slow)


def try_mutant(place, measured):
    room = place.file.split("/")[1]
    for seconds, program, tests in steps_of(place.number, room, measured):
        code, _, output = run(program, tests, {"FERNA_MUTANT": str(place.number)}, 4 * seconds + 3)
        if code != 0:
            failed = re.search(r"\[  FAILED  \] (\S+)", output) or re.search(r"waits for ever", output)
            told = failed.group(failed.lastindex or 0) if failed else f"ended with {code}"
            return f"{program}: {told}", output
    return None, ""


def reasons():
    found, key = {}, None
    for line in (TOP / "tests/mutation/equivalent.txt").read_text().splitlines():
        if line.startswith("#") or not line.strip():
            continue
        if line.startswith(" "):
            found[key] = (found[key] + " " + line.strip()).strip()
        else:
            key = line.strip()
            found[key] = ""
    return found


def tell(chosen, verdicts, rooms, measured, known):
    """The table, then the survivors; true where each of them has a reason, and each reason holds."""
    table = {room: collections.Counter() for room in rooms}
    survivors = []
    for place in chosen:
        row = table[place.file.split("/")[1]]
        if not verdicts[place.key]:
            survivors.append(place)
        if place.key in known:
            row["same"] += 1
        else:
            row["all"] += 1
            row[place.kind] += 1
            row["noticed"] += verdicts[place.key] is not None
    total = sum(table.values(), collections.Counter())
    print(f"{'room':<14}{'passed over':>12}{'mutants':>9}{'operators':>11}{'bounds':>8}{'constants':>11}"
          f"{'noticed':>9}{'unnoticed':>11}")
    for name, row in [*table.items(), ("all", total)]:
        print(f"{name:<14}{row['same']:>12}{row['all']:>9}{row['operator']:>11}{row['bound']:>8}"
              f"{row['constant']:>11}{row['noticed']:>9}{row['all'] - row['noticed']:>11}"
              f"{100 * row['noticed'] / max(row['all'], 1):>8.1f} %")
    reached = {number for tests in measured.values() for _, places in tests.values()
               for number in places}
    for place in survivors:
        print(f"\n{place.file}:{place.line}: {place.function}: {place.change}"
              + ("" if place.number in reached else "  (no test comes here)"))
        print(f"    {known.get(place.key, 'NO REASON GIVEN')}")
    disproved = sorted({place.key for place in chosen if verdicts[place.key]} & known.keys())
    for key in disproved:
        print(f"\nis noticed, and yet has a reason not to be: {key}")
    return total["noticed"] == total["all"] and not disproved


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawTextHelpFormatter)
    parser.add_argument("--count", type=int, default=500)
    parser.add_argument("--seed", default="1")
    parser.add_argument("--rooms", nargs="+", default=ROOMS, choices=ROOMS)
    parser.add_argument("--survivors", action="store_true")
    parser.add_argument("--mutant")
    options = parser.parse_args()
    sys.path.insert(0, str(TOP / "tests" / "mutation"))
    sys.dont_write_bytecode = True
    import places  # needs the directory above

    TREE.mkdir(parents=True, exist_ok=True)
    say("Copying and configuring")
    make_tree()
    arguments = configure()
    known = reasons()
    chosen = choose(options.rooms, options.count, options.seed, known, arguments, places)
    write_sources(options.rooms, chosen, places)
    say(f"Building {len(chosen)} mutants in one program")
    programs = programs_of(options.rooms)
    subprocess.run(["nice", "-n", "15", "ninja", "-C", str(BUILD), "-j", os.environ.get("JOBS", "1"),
                    *programs], check=True)
    measured = measure(programs, len(chosen))

    results = TREE / "results.json"
    verdicts = json.loads(results.read_text()) if results.exists() else {}
    for place in chosen:
        if options.mutant and place.key != options.mutant:
            continue
        if options.survivors and verdicts.get(place.key):
            continue
        verdict, output = try_mutant(place, measured)
        verdicts[place.key] = verdict
        results.write_text(json.dumps(verdicts, indent=1))
        say(f"{place.number}/{len(chosen)} {verdict or 'SURVIVES'}: {place.key}")
        if options.mutant:
            print(output)
            return
    if not tell(chosen, verdicts, options.rooms, measured, known):
        sys.exit(1)


main()
