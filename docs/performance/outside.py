# SPDX-License-Identifier: MIT
"""What a program takes, measured from outside: time to its windows, memory, wake-ups."""

import pathlib
import re
import select
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests/endtoend"))

from desktop import Desktop  # noqa: E402  the desktop of the end-to-end tests

IDLE_SECONDS = 30
WINDOW_SECONDS = 20
SETTLED_SECONDS = 3


class Windows:
    """Follows which windows the window manager has."""

    def __init__(self, desktop):
        self._spy = subprocess.Popen(
            ["xprop", "-root", "-spy", "_NET_CLIENT_LIST"], env=desktop.environment(),
            stdout=subprocess.PIPE, text=True, bufsize=1)
        self.next()

    def next(self):
        """The windows after their next change, and when that was."""
        ready, _, _ = select.select([self._spy.stdout], [], [], WINDOW_SECONDS)
        if not ready:
            raise SystemExit("No window came or went.")
        return set(re.findall(r"0x[0-9a-f]+", self._spy.stdout.readline())), time.monotonic()

    def close(self):
        self._spy.terminate()
        self._spy.wait()
        self._spy.stdout.close()


def status(pid, name):
    text = pathlib.Path(f"/proc/{pid}/status").read_text()
    return int(re.search(rf"^{name}:\s+(\d+)", text, re.M)[1])


def wake_ups(pid):
    """Of each thread, some of which end."""
    return {task.name: status(f"{pid}/task/{task.name}", "voluntary_ctxt_switches")
            for task in pathlib.Path(f"/proc/{pid}/task").iterdir()}


class Started:
    """A program on a desktop of its own, from its start to its end."""

    def __init__(self, desktop, program, folder):
        environment = desktop.environment() | {
            "QT_QPA_PLATFORM": "xcb", "XDG_CONFIG_HOME": folder, "XDG_RUNTIME_DIR": folder}
        self.windows = Windows(desktop)
        self.began = time.monotonic()
        self.process = subprocess.Popen([program], env=environment, cwd=folder,
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def milliseconds_to_windows(self, count):
        """Times at which a window came that was not there before."""
        known, times = set(), []
        while len(times) < count:
            shown, when = self.windows.next()
            if shown - known:
                times.append(1000 * (when - self.began))
            known |= shown
        return times

    def peak_kilobytes(self):
        return status(self.process.pid, "VmHWM")

    def own_kilobytes(self):
        """What it shares with no file."""
        return status(self.process.pid, "RssAnon")

    def idle_wake_ups(self):
        before = wake_ups(self.process.pid)
        time.sleep(IDLE_SECONDS)
        return sum(count - before.get(thread, 0)
                   for thread, count in wake_ups(self.process.pid).items())

    def end(self):
        self.windows.close()
        self.process.terminate()
        self.process.wait()


def measured(program, windows, idle=False):
    """Times to the first windows, memory at its peak and at rest, and wake-ups while idle."""
    with tempfile.TemporaryDirectory() as folder:
        desktop = Desktop(folder)
        desktop.start()
        try:
            started = Started(desktop, program, folder)
            result = {"milliseconds": started.milliseconds_to_windows(windows)}
            time.sleep(SETTLED_SECONDS)
            result["kilobytes"] = started.peak_kilobytes()
            result["own_kilobytes"] = started.own_kilobytes()
            if idle:
                result["idle_seconds"] = IDLE_SECONDS
                result["wake_ups"] = started.idle_wake_ups()
            started.end()
        finally:
            desktop.stop()
    return result
