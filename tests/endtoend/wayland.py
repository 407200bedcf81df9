# SPDX-License-Identifier: MIT
"""A Wayland desktop of its own for the tests: Weston, drawn on an X server without
a screen, from which it has its keys and its pointer. It serves programs natively
and, through a server of its own, as X clients."""

import re

from desktop import START_SECONDS, Desktop
from waiting import wait_until

SOCKET = "wayland-test"
SETTINGS = """[core]
backend=x11-backend.so
xwayland=true
idle-time=0
[shell]
locking=false
panel-position=none
animation=none
startup-animation=none
close-animation=none
background-image=none
background-color=0xff336699
[output]
name=screen0
mode={size}
"""
FRAME_LEFT = 6  # of the frames that Weston gives to X clients, in pixels
FRAME_TOP = 27


class WaylandDesktop(Desktop):
    def start(self):
        super().start()
        self._clients = Desktop(self._folder)
        self._clients._display = self._x_display()

    def native_session(self):
        """What a program needs that shall know nothing of X."""
        return {"QT_QPA_PLATFORM": None, "XDG_SESSION_TYPE": "wayland", "DISPLAY": None,
                "WAYLAND_DISPLAY": str(self._runtime_folder() / SOCKET)}

    def usual_session(self):
        """What a program has that may choose between Wayland and X."""
        return self.native_session() | self._clients.environment()

    def x_windows(self, title):
        """The numbers of the windows of X clients that have this title."""
        return self._clients.run("xdotool", "search", "--onlyvisible", "--name", f"^{title}$",
                                 check=False).split()

    def frame_position(self, number):
        left, top, _, _ = self._clients.contents_rectangle(number)
        return left - FRAME_LEFT, top - FRAME_TOP

    def copied_text(self):
        """What a program has copied, as X clients are told."""
        return self._clients.copied_text()

    def _start_window_manager(self):
        self._runtime_folder().mkdir(mode=0o700)
        settings = self._folder / "weston.ini"
        settings.write_text(SETTINGS.format(size=self._screen.rpartition("x")[0]),
                            encoding="utf-8")
        self._launch(["weston", f"--config={settings}", "--use-pixman", f"--socket={SOCKET}"],
                     env=self.environment() | {"XDG_RUNTIME_DIR": str(self._runtime_folder())})
        wait_until(self._x_display, "Weston is ready", START_SECONDS)

    def _runtime_folder(self):
        return self._folder / "runtime"

    def _x_display(self):
        log = (self._folder / "weston.log").read_text(encoding="utf-8", errors="replace")
        found = re.search(r"xserver listening on display (:\d+)", log)
        return found and found.group(1)
