# SPDX-License-Identifier: MIT
"""The program in a folder, with settings and a home of its own."""

import os
import shutil
import subprocess

from settings import SettingsFile
from waiting import USUAL_SECONDS, wait_until
from windows import (ABOUT_TITLE, MONTHLY_TITLE, MOON_TITLE, OPTIONS_TITLE, PROGRAM_TITLE,
                     YEAR_TITLES, MessageBox, MonthlyWindow, MoonWindow, OptionsWindow, Window,
                     YearWindow)

EXECUTABLE = "orvalen-years-calendar"


def copy_program(built, folder):
    """The program with its files in a folder of its own, where tests may change them."""
    folder.mkdir()
    _link_or_copy(built / EXECUTABLE, folder / EXECUTABLE)
    for file in [built / "Moon.bmp", *built.glob("*.lng")]:
        shutil.copy(file, folder)
    return folder / EXECUTABLE


class Program:
    def __init__(self, desktop, executable, folder):
        self.desktop = desktop
        self.folder = executable.parent
        self.config = folder / "config"
        self.settings = SettingsFile(self.config / PROGRAM_TITLE / "settings.ini")
        self._command = [str(executable)]
        self.more_environment = {}  # a name without a value is not set
        self.home = folder / "home"
        self._output = folder / "output.txt"
        self._process = None
        self._boxes = set()
        self._make_folders()

    def start(self):
        self._boxes = set()
        with open(self._output, "wb") as output:
            self._process = subprocess.Popen(self._command, cwd=self.home,
                                             env=self._environment(), stdin=subprocess.DEVNULL,
                                             stdout=output, stderr=output)

    def run_by(self, command):
        """From now on the program is started by a command that gives way to it."""
        self._command = [*command, *self._command]

    def pid(self):
        return self._process.pid

    def is_running(self):
        return self._process is not None and self._process.poll() is None

    def wait_for_exit(self, seconds=USUAL_SECONDS):
        """The exit status."""
        wait_until(lambda: not self.is_running(), "the program ends", seconds,
                   self.describe_windows)
        return self._process.returncode

    def terminate(self):
        self._process.terminate()
        return self.wait_for_exit()

    def kill(self):
        if self.is_running():
            self._process.kill()
            self._process.wait()

    def managed_windows(self):
        windows = self.desktop.managed_windows(self.pid())
        self._boxes |= {window.number for window in windows if _is_message_box(window)}
        return windows

    def titles(self):
        """Of the windows that are open, sorted."""
        return sorted(window.title for window in self.managed_windows())

    def output(self):
        return self._output.read_text(encoding="utf-8", errors="replace").strip()

    def describe_windows(self):
        front = self.desktop.front_window()
        windows = ", ".join(_describe(window, window.number == front)
                            for window in self.managed_windows())
        return f"windows: {windows or 'none'}; {self._describe_process()}"

    def message_boxes(self):
        return [window for window in self.managed_windows() if _is_message_box(window)]

    def message_boxes_seen(self):
        """How many there have been since the start, as far as was looked."""
        return len(self._boxes)

    def has_splash(self):
        return any(_is_splash(window) for window in self.managed_windows())

    def monthly_window(self, title=MONTHLY_TITLE):
        return MonthlyWindow(self, self._wait_for(title))

    def year_window(self, calendar):
        return YearWindow(self, self._wait_for(YEAR_TITLES[calendar]), calendar)

    def moon_window(self, title=MOON_TITLE):
        return MoonWindow(self, self._wait_for(title))

    def options_window(self):
        return OptionsWindow(self, self._wait_for(OPTIONS_TITLE))

    def about_window(self):
        return Window(self, self._wait_for(ABOUT_TITLE))

    def message_box(self):
        boxes = self._wait_while_running(self.message_boxes, "a message box appears")
        return MessageBox(self, boxes[0])

    def wait_until_started(self):
        """Until the splash has come and gone."""
        self._wait_while_running(self.has_splash, "the splash appears")
        self._wait_while_running(lambda: not self.has_splash(), "the splash goes")

    def _wait_for(self, title):
        def shown():
            return [window for window in self.managed_windows()
                    if window.title == title and window.state == "Normal"]
        return self._wait_while_running(shown, f"the window “{title}” is shown")[0]

    def _wait_while_running(self, condition, expectation):
        def condition_or_end():
            value = condition()
            if not value and not self.is_running():
                raise AssertionError(f"not before the program's end: {expectation}; "
                                     f"{self._describe_process()}")
            return value
        return wait_until(condition_or_end, expectation, found=self.describe_windows)

    def _describe_process(self):
        state = "running" if self.is_running() else f"ended with {self._process.returncode}"
        return f"program {state}, its output: {self.output() or 'none'}"

    def _make_folders(self):
        for folder in (self.config, self.home, self._runtime_folder()):
            folder.mkdir(mode=0o700)

    def _runtime_folder(self):
        return self.home.with_name("runtime")

    def _environment(self):
        environment = self.desktop.environment() | {
            "QT_QPA_PLATFORM": "xcb",
            "HOME": str(self.home),
            "XDG_CONFIG_HOME": str(self.config),
            "XDG_RUNTIME_DIR": str(self._runtime_folder()),
        } | self.more_environment
        return {name: value for name, value in environment.items() if value is not None}


def _link_or_copy(source, target):
    try:
        os.link(source, target)
    except OSError:
        shutil.copy(source, target)


def _describe(window, in_front):
    return f"{window.title} ({window.kind}, {window.state}{', in front' if in_front else ''})"


def _is_message_box(window):
    return window.title == PROGRAM_TITLE and window.kind == "DIALOG"


def _is_splash(window):
    return window.kind == "SPLASH"
