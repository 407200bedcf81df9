# SPDX-License-Identifier: MIT
"""A desktop of its own for the tests: an X server without a screen and a window
manager, and the questions that can be asked of them."""

import collections
import os
import pathlib
import re
import select
import subprocess
import time

import picture
from waiting import wait_until

SCREEN_WIDTH = 1600
SCREEN_HEIGHT = 1200
START_SECONDS = 20
TOOL_SECONDS = 30
FONTS = pathlib.Path(__file__).resolve().parent.parent / "data" / "fonts.conf"

# A window as the window manager has it; `kind` and `state` are names such as
# "NORMAL", "DIALOG" and "Normal", "Iconic".
ManagedWindow = collections.namedtuple("ManagedWindow", "number title kind state")


class Desktop:
    def __init__(self, folder, width=SCREEN_WIDTH, height=SCREEN_HEIGHT):
        self._folder = pathlib.Path(folder)
        self._screen = f"{width}x{height}x24"
        self._display = None
        self._processes = []

    def start(self):
        self._start_server()
        self._start_window_manager()

    def stop(self):
        for process in reversed(self._processes):
            process.terminate()
            process.wait()
        self._processes = []

    def kill_server(self):
        """Takes the screen from everybody who uses it."""
        self._processes[0].kill()

    def environment(self):
        """What a program on this desktop needs, nothing of the user's own."""
        kept = ("PATH", "LD_LIBRARY_PATH", "QT_PLUGIN_PATH", "ASAN_OPTIONS", "LSAN_OPTIONS",
                "UBSAN_OPTIONS")
        environment = {name: os.environ[name] for name in kept if name in os.environ}
        return environment | {"DISPLAY": self._display, "LC_ALL": "C.UTF-8",
                              "HOME": str(self._folder), "FONTCONFIG_FILE": str(FONTS)}

    def managed_windows(self, pid):
        """The windows of a process that the window manager has on the screen or
        minimised, oldest first."""
        windows = [self._managed_window(number, pid) for number in self._window_list()]
        return [window for window in windows if window]

    def front_window(self):
        """The window that is uppermost and has the keyboard, 0 when none is both."""
        text = self._xprop("-root", "_NET_ACTIVE_WINDOW", "_NET_CLIENT_LIST_STACKING")
        active = _window_numbers(_line(text, "_NET_ACTIVE_WINDOW"))
        stack = _window_numbers(_line(text, "_NET_CLIENT_LIST_STACKING"))
        return stack[-1] if stack and active == stack[-1:] else 0

    def stack(self):
        """The numbers of all windows, the lowest first."""
        return _window_numbers(self._xprop("-root", "_NET_CLIENT_LIST_STACKING"))

    def allowed_actions(self, number):
        """What the window manager offers to do with a window, as "MOVE" and "CLOSE"."""
        text = self._xprop("-id", str(number), "_NET_WM_ALLOWED_ACTIONS")
        return set(re.findall(r"_NET_WM_ACTION_(\w+)", text))

    def icon_sides(self, number):
        """Of a window's icon in pixels. One that has none is given 48 by the window manager."""
        text = self._xprop("-id", str(number), "_NET_WM_ICON")
        return {int(side) for side in re.findall(r"Icon \((\d+) x \1\)", text)}

    def has_popup(self, pid):
        """Whether a process has the list of a drop-down control open."""
        found = self.run("xdotool", "search", "--onlyvisible", "--pid", str(pid), check=False)
        return any(self._is_popup(number) for number in found.split())

    def contents_rectangle(self, number):
        """Left, top, width and height of a window's contents on the screen."""
        text = self.run("xwininfo", "-id", str(number))
        names = ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")
        return tuple(int(re.search(rf"{name}: +(-?\d+)", text).group(1)) for name in names)

    def frame_position(self, number):
        """Left and top of a window's frame on the screen."""
        left, top, _, _ = self.contents_rectangle(number)
        borders = re.findall(r"\d+", self._xprop("-id", str(number), "-notype",
                                                 "_NET_FRAME_EXTENTS"))
        return left - int(borders[0]), top - int(borders[2])

    def picture_of(self, number):
        """The screen where a window stands, with what covers it."""
        path = self._folder / "window.ppm"
        self.run("import", "-silent", "-window", str(number), "-depth", "8", str(path))
        return picture.read_ppm(path)

    def save_screenshot(self, path):
        self.run("import", "-silent", "-window", "root", str(path))

    def xdotool(self, *arguments):
        self.run("xdotool", *[str(argument) for argument in arguments])

    def copied_text(self):
        """What a program has copied, "" while nobody has or the text is not to be had yet."""
        return self.run("xclip", "-out", "-selection", "clipboard", check=False)

    def run(self, *command, check=True):
        """The output of a tool run on this desktop."""
        done = subprocess.run(command, env=self.environment(), text=True, capture_output=True,
                              timeout=TOOL_SECONDS)
        if check and done.returncode != 0:
            raise AssertionError(f"{' '.join(command)} failed: {done.stderr.strip()}")
        return done.stdout

    def _start_server(self):
        reading, writing = os.pipe()
        self._launch(["Xvfb", "-displayfd", str(writing), "-screen", "0", self._screen,
                      "-dpi", "96", "-nolisten", "tcp", "-noreset"], pass_fds=[writing])
        os.close(writing)
        with open(reading, "rb", buffering=0) as pipe:
            self._display = f":{_read_line(pipe, START_SECONDS)}"

    def _start_window_manager(self):
        settings = pathlib.Path(__file__).with_name("openbox.xml")
        self._launch(["openbox", "--sm-disable", "--config-file", str(settings)],
                     env=self.environment())
        wait_until(lambda: "window id #" in self._xprop("-root", "_NET_SUPPORTING_WM_CHECK"),
                   "the window manager is ready", START_SECONDS)

    def _launch(self, command, **options):
        with open(self._folder / f"{command[0]}.log", "wb") as log:
            self._processes.append(subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=log,
                                                    stderr=log, **options))

    def _window_list(self):
        return _window_numbers(self._xprop("-root", "_NET_CLIENT_LIST"))

    def _managed_window(self, number, pid):
        text = self._xprop("-id", str(number), "_NET_WM_PID", "_NET_WM_NAME",
                           "_NET_WM_WINDOW_TYPE", "WM_STATE")
        state = re.search(r"window state: (Normal|Iconic)", text)
        if not state or _line(text, "_NET_WM_PID") != str(pid):
            return None
        title = _line(text, "_NET_WM_NAME")[1:-1]
        kind = _line(text, "_NET_WM_WINDOW_TYPE").split(",")[0].rpartition("_")[2]
        return ManagedWindow(number, title, kind, state.group(1))

    # On the screen without the window manager, and no tool tip.
    def _is_popup(self, number):
        text = self._xprop("-id", number, "_NET_WM_WINDOW_TYPE", "WM_STATE")
        return "WM_STATE:  not found" in text and "_TYPE_TOOLTIP" not in text

    # Empty for a window that has gone meanwhile.
    def _xprop(self, *arguments):
        return self.run("xprop", *arguments, check=False)


# The server writes the line in parts, and gives up when it cannot end it.
def _read_line(pipe, seconds):
    deadline = time.monotonic() + seconds
    line = b""
    while not line.endswith(b"\n"):
        ready, _, _ = select.select([pipe], [], [], max(0, deadline - time.monotonic()))
        part = pipe.read(16) if ready else b""
        if not part:
            raise RuntimeError("the X server does not start")
        line += part
    return line.decode().strip()


def _line(text, name):
    found = re.search(rf"^{name}\S* ?[:=] ?(.*)$", text, re.MULTILINE)
    return found.group(1).strip() if found else ""


def _window_numbers(text):
    return [int(number, 16) for number in re.findall(r"0x[0-9a-f]+", text)]
