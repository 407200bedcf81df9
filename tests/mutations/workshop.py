# SPDX-License-Identifier: MIT
"""A copy of the sources in which one file at a time is changed, built and tested."""

import hashlib
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
WHOLE = "endtoend"  # judges the program itself
PROGRAM_TARGETS = ["orvalen-years-calendar", "moon_picture", "languages"]


def linked():
    """Each room of the sources with the rooms that it links."""
    found = re.findall(r"^add_(?:qt_)?room\((\w+)([^)]*)\)", (ROOT / "src/CMakeLists.txt").read_text(), re.M)
    return {name: set(words.split()) for name, words in found}


def rooms():
    return list(linked())


def above(room):
    """The rooms that link a room, the nearest first."""
    found = []
    for name, links in linked().items():
        if links & {room, *found}:
            found.append(name)
    return found


def judges_of(room):
    """Whose tests are asked of a change in a room, one after the other."""
    if room not in rooms():  # the program itself, which no test links
        return [WHOLE]
    # The desktop of the rooms' own tests has one monitor, and no screen.
    return [room, *above(room), "monitors", "endurance", "screen"]


def slow_tests(report):
    for suite in report["testsuites"]:
        for case in suite["testsuite"]:
            if float(case["time"].removesuffix("s")) > SLOW:
                yield f"{suite['name']}.{case['name']}"


def limit_memory():
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))


class Workshop:
    NO_END = "no end"

    def __init__(self, folder, judges):
        """Builds the unchanged tests, which must pass, and takes their times."""
        self._tree, self._build = folder / "tree", folder / "build"
        self._seconds, self._slow = {}, {}
        self._copy_sources()
        self._configure()
        for judge in judges:
            self._measure(judge)

    def _copy_sources(self):
        said = subprocess.run(["git", "ls-files"], cwd=ROOT, text=True, check=True,
                              capture_output=True).stdout
        names = set(said.splitlines())
        for old in self._tree.rglob("*"):
            if old.is_file() and old.relative_to(self._tree).as_posix() not in names:
                old.unlink()
        for name in names:
            target = self._tree / name
            if target.exists() and target.read_bytes() == (ROOT / name).read_bytes():
                continue
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copyfile(ROOT / name, target)

    def _configure(self):
        subprocess.run(
            ["cmake", "-G", "Ninja", "-S", self._tree, "-B", self._build, "-DCMAKE_BUILD_TYPE=Debug",
             "-DCMAKE_CXX_COMPILER=clang++-22", "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld-22",
             "-DCMAKE_CXX_FLAGS_DEBUG=-O1 -w", "-DCMAKE_UNITY_BUILD=ON", "-DORVALEN_TESTS=ON"],
            check=True, stdout=subprocess.DEVNULL)

    def _measure(self, judge):
        if not self.builds(judge):
            raise SystemExit(f"The tests of {judge} do not build.")
        started = time.monotonic()
        report = self._build / f"{judge}.json"
        failed = self._failure(judge, "*", report)
        self._seconds[judge] = time.monotonic() - started
        if failed:
            raise SystemExit(f"{judge}: {failed} fails without any change.")
        self._slow[judge] = list(slow_tests(json.loads(report.read_text()))) if report.exists() else []
        print(f"{judge}: {self._seconds[judge]:.0f} s without a change", flush=True)

    def put(self, path, text):
        (self._tree / path).write_text(text, encoding="utf-8")

    def builds(self, judge):
        targets = PROGRAM_TARGETS if judge == WHOLE else [f"{judge}_tests"]
        command = ["cmake", "--build", self._build, "-j1", "--target", *targets]
        return subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                              timeout=SLOWEST_BUILD, check=False).returncode == 0

    def digest_of_tests(self, judge):
        """Changes with the tests, so that what they found is found again."""
        folders = ["endtoend"] if judge == WHOLE else [judge, "support"]
        said = subprocess.run(["git", "hash-object", "--stdin-paths"], cwd=ROOT, text=True, check=True,
                              capture_output=True, input="".join(
                                  f"{path}\n" for folder in folders
                                  for path in sorted((ROOT / "tests" / folder).iterdir())
                                  if path.is_file())).stdout
        return hashlib.sha256(said.encode()).hexdigest()[:16]

    def first_failure(self, judge):
        """The first test that fails, "" when none does. The quick ones go first: most
        changes are noticed by them."""
        slow = ":".join(self._slow.get(judge, []))
        return self._failure(judge, f"-{slow}") or (slow and self._failure(judge, slow))

    def _command(self, judge):
        tests = self._build / "bin" / f"{judge}_tests"
        if judge == WHOLE:
            return ["/usr/bin/python3", self._tree / "tests/endtoend/run.py", self._build / "bin", "start"]
        on_screen = ["/usr/bin/python3", self._tree / "tests/endtoend/on_screen.py"]
        return [*on_screen, tests] if judge == "screen" else [tests]

    def _failure(self, judge, tests, report="report.json"):
        limit = 20 + 8 * self._seconds.get(judge, 150)
        with tempfile.TemporaryDirectory() as folder:
            environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "XDG_RUNTIME_DIR": folder,
                           "XDG_CONFIG_HOME": folder, "GTEST_FAIL_FAST": "1",
                           "GTEST_FILTER": tests, "GTEST_OUTPUT": f"json:{report}"}
            try:
                done = subprocess.run(
                    self._command(judge), env=environment, cwd=folder, text=True, errors="replace",
                    stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=limit,
                    preexec_fn=limit_memory, check=False)
            except subprocess.TimeoutExpired:
                return self.NO_END
        return "" if done.returncode == 0 else self._first_failed(done.stdout)

    @staticmethod
    def _first_failed(output):
        started = re.findall(r"^\[ RUN      \] (\S+)", output, re.M)
        failed = re.findall(r"^\[  FAILED  \] (\S+?)[,\s]|^(\S+) \(.*\.\.\. (?:FAIL|ERROR)", output, re.M)
        return ([one or other for one, other in failed] or started[-1:] or ["start"])[0]
