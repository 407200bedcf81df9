# SPDX-License-Identifier: MIT
"""A session bus of its own, on which assistive tools and programs meet."""

import os
import subprocess


class SessionBus:
    def __init__(self, desktop):
        self._environment = desktop.environment()

    def start(self):
        reading, writing = os.pipe()
        self._process = subprocess.Popen(
            ["dbus-daemon", "--session", "--nofork", f"--print-address={writing}"],
            env=self._environment, pass_fds=[writing], stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL)
        os.close(writing)
        with open(reading, encoding="ascii") as pipe:
            self.address = pipe.readline().strip()

    def stop(self):
        self._process.terminate()
        self._process.wait()

    def environment(self):
        """What a program needs that shall be met here."""
        return {"DBUS_SESSION_BUS_ADDRESS": self.address, "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
