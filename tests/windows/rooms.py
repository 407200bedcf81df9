# SPDX-License-Identifier: MIT
"""Builds the tests of the rooms that know no Qt for Windows, and runs them under wine.
They are what g++-mingw-w64-x86-64-posix, wine64, wine and googletest are needed for."""

import json
import os
import pathlib
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
BUILD = ROOT / "build" / "windows-tests"
ROOMS = ["shared", "calc"]


def build():
    toolchain = ROOT / "packaging" / "windows" / "toolchain.cmake"
    for command in (["-G", "Ninja", "-S", ROOT / "tests" / "windows", "-B", BUILD,
                     f"-DCMAKE_TOOLCHAIN_FILE={toolchain}", "-DCMAKE_BUILD_TYPE=Release"],
                    ["--build", BUILD]):
        subprocess.run(["cmake", *command], check=True)


def environment(home):
    """A Windows of its own, without a screen and without what it would fetch."""
    kept = {name: value for name, value in os.environ.items() if name != "DISPLAY"}
    return kept | {"HOME": home, "WINEPREFIX": f"{home}/prefix", "WINEDEBUG": "-all",
                   "WINEDLLOVERRIDES": "mscoree=;mshtml=;winemenubuilder.exe="}


def answers(report):
    """How many answers of the program were those of its judges."""
    return sum(int(test.get("answers", 0))
               for suite in report["testsuites"] for test in suite["testsuite"])


def run(room, home):
    report = pathlib.Path(home) / f"{room}.json"
    done = subprocess.run(["wine", BUILD / "bin" / f"{room}_tests.exe", "--gtest_brief=1",
                           f"--gtest_output=json:Z:{report}"], env=environment(home), check=False)
    counts = json.loads(report.read_text(encoding="utf-8")) if report.exists() else None
    if counts is None or counts["tests"] == 0 or done.returncode != 0:
        sys.exit(f"the tests of {room} failed under wine")
    print(f"{room}: {counts['tests']} tests passed under wine, {answers(counts)} answers judged",
          flush=True)


def main():
    build()
    with tempfile.TemporaryDirectory(prefix="orvalen-wine-") as home:
        try:
            for room in ROOMS:
                run(room, home)
        finally:
            subprocess.run(["wineserver", "--wait"], env=environment(home), check=False)


if __name__ == "__main__":
    main()
