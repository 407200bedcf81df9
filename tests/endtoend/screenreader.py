# SPDX-License-Identifier: MIT
"""Orca on the tests' desktop, and what it says."""

import json
import os
import pathlib
import shutil
import subprocess

from waiting import wait_until

START_SECONDS = 60
SECONDS = 30
COMMAND = "orca"


def is_installed():
    return shutil.which(COMMAND) is not None


class ScreenReader:
    def __init__(self, desktop, bus, folder):
        self._folder = pathlib.Path(folder)
        self._said = self._folder / "said"
        self._environment = desktop.environment() | bus.environment() | {
            "ORVALEN_HEARING": str(folder),
            "HOME": str(folder),
            "XDG_CONFIG_HOME": str(folder / "config"),
            "XDG_DATA_HOME": str(folder / "data"),
            "XDG_RUNTIME_DIR": str(folder / "runtime"),
            "GSETTINGS_BACKEND": "memory",
            "NO_AT_BRIDGE": "1",
        }
        self._questions = 0
        self._heard = 0

    def start(self):
        customizations = self._folder / "data" / "orca" / "orca-customizations.py"
        customizations.parent.mkdir(parents=True)
        shutil.copy(pathlib.Path(__file__).with_name("hearing.py"), customizations)
        (self._folder / "runtime").mkdir(mode=0o700)
        self._said.touch()
        os.mkfifo(self._folder / "asked")
        self._pipe = os.open(self._folder / "asked", os.O_RDWR)
        with open(self._folder / "orca.log", "wb") as log:
            self._process = subprocess.Popen([COMMAND, "--replace"], env=self._environment,
                                             stdin=subprocess.DEVNULL, stdout=log, stderr=log)
        self.listen(START_SECONDS)
        self._take()

    def stop(self):
        self._process.terminate()
        self._process.wait()
        os.close(self._pipe)

    def hear(self, is_expected):
        """What is said from now on: what is expected, or what else there is by the end."""
        try:
            wait_until(lambda: is_expected(self._said_since()), "what is expected is said")
        except AssertionError:
            pass  # who compares will see it
        self.listen()
        self.listen()
        return self._take()

    def listen(self, seconds=SECONDS):
        """Until all that has happened has been said."""
        self._questions += 1
        os.write(self._pipe, f"{self._questions}\n".encode())
        wait_until(lambda: {"answered": self._questions} in self._lines(),
                   "the screen reader has said all", seconds)

    def _take(self):
        said = self._said_since()
        self._heard += len(said)
        return said

    def _said_since(self):
        """Since it was last taken, in single lines."""
        lines = [" ".join(line["said"].split()) for line in self._lines() if "said" in line]
        return lines[self._heard:]

    def _lines(self):
        text = self._said.read_text(encoding="utf-8")
        return [json.loads(line) for line in text[:text.rfind("\n") + 1].splitlines()]
