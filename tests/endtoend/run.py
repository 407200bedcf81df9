# SPDX-License-Identifier: MIT
"""Runs the end-to-end tests on a desktop of their own."""

import argparse
import pathlib
import signal
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True  # before the first of the modules beside this file

import desktop
import program
import testcase


class Result(unittest.TextTestResult):
    """Counts the tests that fail and keeps pictures of the screen at that moment."""

    def __init__(self, *arguments, **options):
        super().__init__(*arguments, **options)
        self.failed = set()
        self._screenshots = None

    def addFailure(self, test, error):
        super().addFailure(test, error)
        self._note(test)

    def addError(self, test, error):
        super().addError(test, error)
        self._note(test)

    def addSubTest(self, test, subtest, error):
        super().addSubTest(test, subtest, error)
        if error is not None:
            self._note(test)

    def _note(self, test):
        self.failed.add(test.id())
        if self._screenshots is None:
            self._screenshots = pathlib.Path(tempfile.mkdtemp(prefix="orvalen-screenshots-"))
        path = self._screenshots / f"{test.id()}.png"
        try:
            getattr(test, "desktop", testcase.EndToEndTest.desktop).save_screenshot(path)
            self.stream.writeln(f"screenshot: {path}")
        except (AssertionError, OSError) as problem:
            self.stream.writeln(f"no screenshot: {problem}")


def load_tests(name, part, parts):
    folder = str(pathlib.Path(__file__).resolve().parent)
    loader = unittest.TestLoader()
    loader.testNamePatterns = [f"*{name}*"]
    # Dealt out by size, so that the parts take about as long.
    files = sorted(loader.discover(folder, "test_*.py", folder),
                   key=unittest.TestSuite.countTestCases)
    return unittest.TestSuite(files[part - 1::parts])


def run_tests(tests):
    # A shell has it ignored in what it runs in the background.
    signal.signal(signal.SIGINT, signal.default_int_handler)
    runner = unittest.TextTestRunner(stream=sys.stdout, verbosity=2, resultclass=Result)
    with tempfile.TemporaryDirectory(prefix="orvalen-desktop-") as folder:
        testcase.EndToEndTest.desktop = desktop.Desktop(folder)
        try:
            testcase.EndToEndTest.desktop.start()
            return runner.run(tests)
        finally:
            testcase.EndToEndTest.desktop.stop()


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("built", type=pathlib.Path, help="folder of the built program")
    parser.add_argument("name", nargs="?", default="", help="only tests whose name contains it")
    parser.add_argument("--part", type=int, nargs=2, default=[1, 1], metavar=("NUMBER", "OF"),
                        help="only this one of so many parts, which others run beside it")
    arguments = parser.parse_args()
    if not (arguments.built / program.EXECUTABLE).is_file():
        parser.error(f"no program in {arguments.built}")
    testcase.EndToEndTest.built = arguments.built.resolve()
    result = run_tests(load_tests(arguments.name, *arguments.part))
    failed, skipped = len(result.failed), len(result.skipped)
    passed = result.testsRun - failed - skipped
    print(f"{passed} passed, {failed} failed, {skipped} skipped", flush=True)
    return 1 if failed or result.testsRun == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
