# SPDX-License-Identifier: MIT
"""A copy of the sources in which one file at a time is changed, built and tested."""

import json
import os
import pathlib
import re
import resource
import shutil
import subprocess
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
MEMORY = 4 << 30
SLOWEST_BUILD = 1800  # seconds
SLOW = 0.5  # seconds of a test


def rooms_above():
    """Each room of the sources with the rooms that link it, the nearest first."""
    rooms = re.findall(r"^add_room\((\w+)([^)]*)\)", (ROOT / "src/CMakeLists.txt").read_text(), re.M)
    links = {name: set(words.split()) for name, words in rooms}
    above = {}
    for name in links:
        above[name] = []
        for other in links:
            if links[other] & {name, *above[name]}:
                above[name].append(other)
    # The desktop of the rooms' own tests has one monitor, and a square one.
    return {name: [*rooms, "monitors"] for name, rooms in above.items()}


def slow_tests(report):
    for suite in report["testsuites"]:
        for case in suite["testsuite"]:
            if float(case["time"].removesuffix("s")) > SLOW:
                yield f"{suite['name']}.{case['name']}"


def limit_memory():
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))


class Workshop:
    def __init__(self, folder):
        self.tree = folder / "tree"
        self.build = folder / "build"
        self.seconds = {}
        self.slow = {}
        self._copy_sources()
        self._configure()

    def _copy_sources(self):
        said = subprocess.run(["git", "ls-files"], cwd=ROOT, text=True, check=True,
                              capture_output=True).stdout
        names = set(said.splitlines())
        for old in self.tree.rglob("*"):
            if old.is_file() and old.relative_to(self.tree).as_posix() not in names:
                old.unlink()
        for name in names:
            target = self.tree / name
            if target.exists() and target.read_bytes() == (ROOT / name).read_bytes():
                continue
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copyfile(ROOT / name, target)

    def _configure(self):
        subprocess.run(
            ["cmake", "-G", "Ninja", "-S", self.tree, "-B", self.build, "-DCMAKE_BUILD_TYPE=Debug",
             "-DCMAKE_CXX_FLAGS_DEBUG=-O1 -w", "-DORVALEN_TESTS=ON"],
            check=True, stdout=subprocess.DEVNULL)

    def put(self, path, text):
        (self.tree / path).write_text(text, encoding="utf-8")

    def builds(self, room):
        command = ["cmake", "--build", self.build, "--target", f"{room}_tests", "-j1"]
        return subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                              timeout=SLOWEST_BUILD, check=False).returncode == 0

    def first_failure(self, room):
        """The first test of a room that fails, "" when none does. The quick ones go
        first: most changes are noticed by them."""
        slow = ":".join(self.slow.get(room, []))
        return self._failure(room, f"-{slow}") or (slow and self._failure(room, slow))

    def _failure(self, room, tests, report="report.json"):
        limit = 20 + 8 * self.seconds.get(room, 150)
        with tempfile.TemporaryDirectory() as folder:
            environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "XDG_RUNTIME_DIR": folder,
                           "XDG_CONFIG_HOME": folder, "GTEST_FAIL_FAST": "1",
                           "GTEST_FILTER": tests, "GTEST_OUTPUT": f"json:{report}"}
            try:
                done = subprocess.run(
                    [self.build / "bin" / f"{room}_tests"], env=environment, cwd=folder, text=True,
                    errors="replace", stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                    timeout=limit, preexec_fn=limit_memory, check=False)
            except subprocess.TimeoutExpired:
                return "no end"
        if done.returncode == 0:
            return ""
        started = re.findall(r"^\[ RUN      \] (\S+)", done.stdout, re.M)
        failed = re.findall(r"^\[  FAILED  \] (\S+?)[,\s]", done.stdout, re.M)
        return (failed or started[-1:] or ["start"])[0]

    def measure(self, rooms):
        """Builds the unchanged tests, which must pass, and takes their times."""
        for room in rooms:
            if not self.builds(room):
                raise SystemExit(f"The tests of {room} do not build.")
            started = time.monotonic()
            report = self.build / f"{room}.json"
            failed = self._failure(room, "*", report)
            self.seconds[room] = time.monotonic() - started
            if failed:
                raise SystemExit(f"{room}: {failed} fails without any change.")
            self.slow[room] = list(slow_tests(json.loads(report.read_text())))
            print(f"{room}: {self.seconds[room]:.0f} s without a change", flush=True)
