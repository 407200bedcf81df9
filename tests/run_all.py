# SPDX-License-Identifier: MIT
"""Runs every test and check of a built tree, the quick ones beside the long, and
ends with one line that says how many passed and failed."""

import concurrent.futures
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import time

from checks import compile_database
from checks import floors as floor_plan

ROOT = pathlib.Path(__file__).resolve().parent.parent
ASAN = ROOT / "build" / "asan"
QUICK = ROOT / "build" / "quick"
PROGRAM = QUICK / "bin"
ROOMS = [room for rooms in reversed(floor_plan.FLOORS) for room in sorted(rooms)]
TESTED = ["endurance", *ROOMS, "monitors", "screen"]
PARTS = 2  # of the tests end to end, each with a desktop
DRAWN = ["monthly", "yearcals", "platform"]
SCALES = {"at 125 %": "1.25", "at 150 %": "1.5"}
# What the program and the measurements are built from, the longest first.
LINTED = ["platform", "make_pictures", *sorted(set(ROOMS) - {"platform"}), "windows_bench",
          "arithmetic_bench", "empty_window", "orvalen-years-calendar", "make_moon"]
LINTED_AT_LENGTH = [*[f"{room}_tests" for room in sorted(TESTED)], "platform_test_support",
                    "random_user", "widget_test_support"]


class Result:
    def __init__(self, name, passed, failed, output, seconds, skipped=0):
        self.name, self.passed, self.failed, self.skipped = name, passed, failed, skipped
        self.output, self.seconds = output, seconds


def environment_of_ours(home):
    """What this process has, without what a user or a machine would decide by."""
    private = re.compile("(XDG|LC|QT|GTEST)_|(DISPLAY|WAYLAND_DISPLAY|LANG|LANGUAGE)$")
    kept = {name: value for name, value in os.environ.items() if not private.match(name)}
    return kept | {"HOME": home, "LC_ALL": "C.UTF-8", "TZ": "UTC"}


def run(command, environment=None):
    started = time.monotonic()
    done = subprocess.run(
        command, cwd=ROOT, env={**os.environ, **(environment or {})}, encoding="utf-8",
        errors="replace", stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
    return done.returncode, done.stdout, time.monotonic() - started


def check(name, command):
    """A command that passes or fails as a whole."""
    status, output, seconds = run(command)
    return Result(name, int(status == 0), int(status != 0), output, seconds)


def building(preset):
    return check(f"building {preset}",
                 ["bash", "-c", f". packaging/packages.sh && build_preset {preset}"])


def room_tests(room, options, more_environment=None):
    """The tests of a room; a run that breaks off counts as one failure more."""
    on_screen = [sys.executable, "tests/endtoend/on_screen.py"] if room == "screen" else []
    with tempfile.TemporaryDirectory() as folder:
        report = pathlib.Path(folder) / "report.json"
        environment = {
            "QT_QPA_PLATFORM": "offscreen",
            "XDG_RUNTIME_DIR": folder,
            "ASAN_OPTIONS": "malloc_context_size=2",  # the usual 30 calls take longer to note
            "LSAN_OPTIONS": f"suppressions='{ROOT}/tests/support/lsan.supp':print_suppressions=0",
            "GTEST_OUTPUT": f"json:{report}",
        }
        status, output, seconds = run([*on_screen, ASAN / "bin" / f"{room}_tests", *options],
                                      environment | (more_environment or {}))
        counts = json.loads(report.read_text()) if report.exists() else {"tests": 0, "failures": 0}
    failed = counts["failures"]
    if status != 0 and failed == 0:
        failed = 1
    ran = counts["tests"] - counts.get("disabled", 0)
    return Result(f"tests of {room}", ran - counts["failures"], failed, output, seconds)


def room_tests_with_noto(room):
    """With other letters than those of the tests, on which texts of cells do not depend."""
    fonts = {"FONTCONFIG_FILE": ROOT / "tests/data/fonts-noto.conf"}
    result = room_tests(room, ["--gtest_filter=-YearGrids.EveryCell*"], fonts)
    result.name += " with Noto Sans"
    return result


def screen_tests_at(scale, options):
    """A process has one scale, from its start on."""
    result = room_tests("screen", options, {"QT_SCALE_FACTOR": SCALES[scale]})
    result.name += f" {scale}"
    return result


def end_to_end(part):
    # The system's own Python, which the packages of the assistive interface are for.
    status, output, seconds = run(["/usr/bin/python3", "tests/endtoend/run.py", PROGRAM,
                                   "--part", str(part), str(PARTS)])
    name = f"end to end, part {part} of {PARTS}"
    counts = re.search(r"(\d+) passed, (\d+) failed, (\d+) skipped\s*$", output)
    if not counts:
        return Result(name, 0, 1, output, seconds)
    failed = max(int(counts[2]), int(status != 0))
    return Result(name, int(counts[1]), failed, output, seconds, int(counts[3]))


def our_files(*patterns):
    listed = run(["git", "ls-files", "--cached", "--others", "--exclude-standard", *patterns])[1]
    return [name for name in listed.splitlines() if (ROOT / name).exists()]


def formatting():
    files = our_files("*.cpp", "*.h", "*.hpp")
    return check("clang-format", ["clang-format", "--dry-run", "-Werror", *files])


def linting(target, database, *options):
    """The sources of a target as its tree builds them, most trees several in one: the
    toolkit's headers take longer than they do."""
    entries = json.loads((database / "compile_commands.json").read_text())
    sources = [entry["file"] for entry in entries
               if f"/{target}.dir/" in entry["command"] and "_autogen/" not in entry["file"]]
    if not sources:
        return Result(f"clang-tidy of {target}", 0, 1, "The tree has no such target.", 0)
    # The optimised build has options of the compiler that the linter does not know.
    return check(f"clang-tidy of {target}",
                 ["run-clang-tidy-22", "-quiet", "-j1", "-p", database, *options,
                  "-extra-arg=-Wno-ignored-optimization-argument",
                  f"^({'|'.join(map(re.escape, sources))})$"])


def linting_at_length(target, database):
    """The sources of the tests, in the build's folder, where the linter does not find
    what they ask of it."""
    checks = re.search(r"^Checks: (.+)$", (ROOT / "tests/.clang-tidy").read_text(), re.M)[1]
    return linting(target, database, f"-checks={checks}")


def floors():
    return check("floors", [sys.executable, "tests/checks/floors.py", "src",
                            ASAN / "bin" / "calc_tests"])


def moon_picture():
    """Computed twice, the picture is the one that it has always been, to the byte."""
    return check("moon picture", [sys.executable, "tests/checks/moon_picture.py",
                                  PROGRAM / "make_moon"])


def cross_building():
    return check("cross building", [sys.executable, "tests/checks/cross_building.py", PROGRAM])


def desktop_entry():
    return check("desktop entry", [sys.executable, "tests/checks/desktop_entry.py"])


def installing():
    return check("installing", [sys.executable, "tests/checks/installing.py", PROGRAM])


def reproducible():
    return check("reproducible", [sys.executable, "tests/checks/reproducible.py"])


def compilers():
    return check("compilers", [sys.executable, "tests/checks/compilers.py"])


def autopkgtest():
    return check("autopkgtest", ["/usr/bin/python3", "tests/checks/autopkgtest.py", PROGRAM])


def includes(part):
    return check(f"includes of {part}", [sys.executable, "tests/checks/includes.py", part])


def licences():
    return check("licences", [sys.executable, "tests/checks/licences.py"])


def release():
    return check("release", [sys.executable, "tests/checks/release.py"])


def papers():
    return check("papers", [sys.executable, "tests/checks/papers.py"])


def keys():
    return check("keys", [sys.executable, "tests/checks/keys.py"])


def pictures():
    return check("pictures", [sys.executable, "tests/checks/pictures.py", PROGRAM / "make_pictures"])


def report(result):
    verdict = "ok" if result.failed == 0 else "FAILED"
    skipped = f"{result.skipped} skipped, " if result.skipped else ""
    print(f"{result.name}: {result.passed} passed, {result.failed} failed, {skipped}"
          f"{result.seconds:.0f} s, {verdict}", flush=True)
    if result.failed:
        print(result.output[-20000:], flush=True)


def keep(results, long):
    """What the page on verification says of this run."""
    rows = [{"name": one.name, "passed": one.passed, "failed": one.failed,
             "skipped": one.skipped, "seconds": round(one.seconds)} for one in results]
    commit = run(["git", "rev-parse", "--short", "HEAD"])[1].strip()
    kept = {"long": long, "commit": commit, "results": rows}
    (ROOT / "build/results.json").write_text(json.dumps(kept, indent=1) + "\n")


def of_the_program(long):
    """What the program's tree is enough for."""
    database = compile_database.write(QUICK)
    jobs = [lambda part=part: end_to_end(part + 1) for part in range(PARTS)]
    jobs += [lambda target=target: linting(target, database) for target in LINTED]
    jobs += [installing, cross_building, pictures, moon_picture, formatting, licences, release,
             papers, desktop_entry, keys]
    if long:
        jobs += [reproducible, compilers, autopkgtest]
        jobs += [lambda part=part: includes(part) for part in ("src", "assets", "tests")]
    return jobs


def of_the_tests(long):
    """What waits for the tests' tree, the longest first."""
    options = ["--gtest_also_run_disabled_tests"] if long else []
    jobs = [lambda room=room: room_tests(room, options) for room in TESTED]
    jobs += [lambda scale=scale: screen_tests_at(scale, options) for scale in SCALES]
    jobs += [lambda room=room: room_tests_with_noto(room) for room in DRAWN]
    if long:
        database = compile_database.write(ASAN)
        jobs += [lambda target=target: linting_at_length(target, database)
                 for target in LINTED_AT_LENGTH]
    return [*jobs, floors]


def run_everything(long):
    # Two more at a time than cores, as the tests end to end wait most of their time.
    with concurrent.futures.ThreadPoolExecutor(max_workers=4) as pool:
        program, tests = pool.submit(building, "quick"), pool.submit(building, "asan")
        started = [program, tests]
        if program.result().failed == 0:
            started += [pool.submit(job) for job in of_the_program(long)]
        if tests.result().failed == 0:
            started += [pool.submit(job) for job in of_the_tests(long)]
        for done in concurrent.futures.as_completed(started):
            report(done.result())
    results = [done.result() for done in started]
    keep(results, long)
    return results


def main():
    sys.stdout.reconfigure(errors="replace")
    with tempfile.TemporaryDirectory(prefix="orvalen-home-") as home:
        ours = environment_of_ours(home)
        os.environ.clear()
        os.environ.update(ours)
        results = run_everything("--long" in sys.argv[1:])
    passed = sum(result.passed for result in results)
    failed = sum(result.failed for result in results)
    skipped = sum(result.skipped for result in results)
    print(f"{passed} passed, {failed} failed" + (f", {skipped} skipped" if skipped else ""))
    sys.exit(1 if failed or not passed else 0)


if __name__ == "__main__":
    main()
