# SPDX-License-Identifier: MIT
"""What every end-to-end test starts from."""

import pathlib
import re
import shutil
import tempfile
import unittest

from program import Program, copy_program
from windows import CALENDARS


def monthly_title_of(language_file):
    """The monthly window's title in a language."""
    text = language_file.read_text(encoding="utf-8")
    calendars = text.split("[CALENDARS]")[1].split("[")[0]
    return re.search(r"^5=(.+)$", calendars, re.MULTILINE).group(1).strip()


class EndToEndTest(unittest.TestCase):
    """A test with a program of its own that is not started yet."""

    # Set before the tests run.
    desktop = None
    built = None

    def setUp(self):
        folder = pathlib.Path(tempfile.mkdtemp(prefix="orvalen-test-"))
        self.addCleanup(shutil.rmtree, folder, ignore_errors=True)
        self.program = Program(self.desktop, self.install(folder), folder)
        self.addCleanup(self.program.kill)
        self.settings = self.program.settings
        self.desktop.xdotool("mousemove", 0, 0)

    def install(self, folder):
        """Puts the program somewhere below a folder; returns what is started."""
        return copy_program(self.built, folder / "program")

    def start_monthly(self, **title):
        """Starts the program and returns its monthly window."""
        self.program.start()
        self.program.wait_until_started()
        return self.program.monthly_window(**title)

    def start_year(self, calendar):
        """Starts the program with the year window of a calendar."""
        self.settings.write({"Startup/Window": CALENDARS.index(calendar) + 1})
        self.program.start()
        self.program.wait_until_started()
        return self.program.year_window(calendar)

    def assert_ends_well(self):
        self.assertEqual(self.program.wait_for_exit(), 0, "exit status")

    def assert_titles(self, titles, message=None):
        """Exactly these windows are open."""
        self.assertEqual(self.program.titles(), sorted(titles), message)
