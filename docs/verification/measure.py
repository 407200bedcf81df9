# SPDX-License-Identifier: MIT
"""Runs the tests of all rooms in a build that counts what they run, and keeps what
their reports say."""

import json
import os
import pathlib
import subprocess
import sys
import tempfile

from coverage import coverage, forget

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.append(str(ROOT / "docs"))

import machine  # noqa: E402  beside the folders of the pages

BUILD = ROOT / "build/coverage"
HOURLONG = "*AMillionRandomActions*"  # for ./test --long, under the sanitizers


def build():
    subprocess.run(["cmake", "--preset", "coverage"], cwd=ROOT, check=True,
                   stdout=subprocess.DEVNULL)
    subprocess.run(["cmake", "--build", "--preset", "coverage"], cwd=ROOT, check=True,
                   stdout=subprocess.DEVNULL)


def run_tests(room):
    with tempfile.TemporaryDirectory() as folder:
        report = pathlib.Path(folder) / "report.json"
        environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "XDG_RUNTIME_DIR": folder,
                       "GTEST_OUTPUT": f"json:{report}"}
        on_screen = [sys.executable, "tests/endtoend/on_screen.py"] if room == "screen" else []
        subprocess.run([*on_screen, BUILD / "bin" / f"{room}_tests", "--gtest_also_run_disabled_tests",
                        f"--gtest_filter=-{HOURLONG}"], cwd=ROOT, env=environment, check=True,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        return json.loads(report.read_text())


def cases(reports):
    return [case for report in reports.values() for suite in report["testsuites"]
            for case in suite["testsuite"]]


def judgements(found):
    asked = {}
    for case in found:
        if "judge" in case:
            key = case["judge"], case["asked"]
            asked[key] = asked.get(key, 0) + int(case["answers"])
    return [{"judge": judge, "asked": question, "answers": answers}
            for (judge, question), answers in asked.items()]


def withstood(found):
    times = {}
    for case in found:
        if "withstood" in case:
            times[case["withstood"]] = times.get(case["withstood"], 0) + int(case["times"])
    return [{"what": what, "times": count} for what, count in times.items()]


def late_years(found):
    """Year, our first day, the rule's and ICU's."""
    numbers = [int(word) for case in found for word in case.get("late", "").split()]
    return [numbers[i:i + 4] for i in range(0, len(numbers), 4)]


def measured():
    build()
    forget(BUILD)
    rooms = sorted(path.name.removesuffix("_tests") for path in (BUILD / "bin").glob("*_tests"))
    reports = {}
    for room in rooms:
        reports[room] = run_tests(room)
        print(f"{room}: {reports[room]['tests']} tests, {reports[room]['failures']} failures",
              flush=True)
    found = cases(reports)
    return {
        "system": machine.described(),
        "tests": {room: report["tests"] for room, report in reports.items()},
        "judgements": judgements(found),
        "late": late_years(found),
        "withstood": withstood(found),
        "coverage": coverage(ROOT / "src", BUILD),
    }
