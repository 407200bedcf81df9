# SPDX-License-Identifier: MIT
"""The program as an assistive tool has it: a session bus with the assistive
interface, and what can be read and done through it."""

import atexit
import contextlib
import functools
import os

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

from sessionbus import SessionBus
from waiting import wait_until

KEY_UP = 0xff52


class Bus(SessionBus):
    """The bus as this process joins it too."""

    def start(self):
        super().start()
        os.environ["DISPLAY"] = self._environment["DISPLAY"]
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = self.address
        Atspi.init()

    def stop(self):
        Atspi.exit()
        super().stop()


@functools.cache
def start_bus(desktop):
    """The one of this run: who has left it once cannot join another."""
    bus = Bus(desktop)
    bus.start()
    atexit.register(bus.stop)
    return bus


class FocusWatch:
    """Keeps what has said that it got the focus."""

    def __init__(self):
        self._told = []
        self._listener = Atspi.EventListener.new(self._keep)
        self._listener.register("object:state-changed:focused")

    def stop(self):
        self._listener.deregister("object:state-changed:focused")

    def take(self):
        """The names of the controls that have told it since the last call, of an
        entry its list's."""
        run_events()
        told, self._told = self._told, []
        return told

    def _keep(self, event):
        if event.detail1:
            with contextlib.suppress(GLib.GError):  # an answer that a later one replaced
                self._told.append(self._name(event.source))

    @staticmethod
    def _name(control):
        while control.get_role() == Atspi.Role.LIST_ITEM:
            control = control.get_parent()
        return control.get_name()


class Control:
    """A window or control of the program."""

    def __init__(self, accessible):
        self._accessible = accessible

    @property
    def name(self):
        return self._accessible.get_name()

    @property
    def role(self):
        return self._accessible.get_role_name()

    @property
    def text(self):
        return Atspi.Text.get_text(self._accessible, 0, -1)

    def children(self):
        count = self._accessible.get_child_count()
        found = [self._accessible.get_child_at_index(index) for index in range(count)]
        return [Control(accessible) for accessible in found if accessible is not None]

    def descendants(self):
        for child in self.children():
            yield child
            yield from child.descendants()

    def is_shown(self):
        return self._has(Atspi.StateType.SHOWING)

    def is_active(self):
        return self._has(Atspi.StateType.ACTIVE)

    def has_focus(self):
        return self._has(Atspi.StateType.FOCUSED)

    def find(self, role, beginning):
        """The control of a role whose name begins so, None when there is none."""
        for child in self.children():
            if child.role == role and child.name.startswith(beginning):
                return child
            found = child.find(role, beginning) if child.role != "list" else None
            if found:
                return found
        return None

    def cells(self):
        """The names of a grid's days that are shown."""
        return [cell.name for cell in self.children() if cell.is_shown()]

    def uppermost_cell(self):
        """The name of the first of the days that stand highest."""
        return min(self.children(), key=Control._top).name

    def selected(self):
        return [cell.name for cell in self.children()
                if cell._has(Atspi.StateType.SELECTED)]

    def press_cell(self, name):
        next(cell for cell in self.children() if cell.name == name).press()

    def press(self):
        self._act("Press")

    def take_focus(self):
        self._act("SetFocus")
        wait_until(self.has_focus, f"“{self.name}” has the focus")

    def type(self, text):
        Atspi.EditableText.set_text_contents(self._accessible, text)

    def _top(self):
        return Atspi.Component.get_extents(self._accessible, Atspi.CoordType.SCREEN).y

    def _act(self, name):
        names = [self._accessible.get_action_name(index)
                 for index in range(self._accessible.get_n_actions())]
        self._accessible.do_action(names.index(name))

    def _has(self, state):
        return self._accessible.get_state_set().contains(state)


class Reader:
    """Reads the program of a process."""

    def __init__(self, pid):
        self._pid = pid
        self._application = wait_until(self._find, "the program is told to assistive tools")

    def window(self, title):
        """Waits for it."""
        return wait_until(lambda: self._window(title), f"the window “{title}” is told",
                          found=self.titles)

    def titles(self):
        return [window.name for window in self.windows()]

    def _window(self, title):
        shown = [window for window in self.windows()
                 if window.name == title and window.is_shown()]
        return shown[0] if shown else None

    def windows(self):
        return Control(self._application).children()

    # What is asked is asked of the program each time, not of a memory.
    def _find(self):
        run_events()
        desktop = Atspi.get_desktop(0)
        for index in range(desktop.get_child_count()):
            application = desktop.get_child_at_index(index)
            if application is not None and application.get_process_id() == self._pid:
                application.set_cache_mask(Atspi.Cache.NONE)
                return application
        return None


def press_key(key):
    Atspi.generate_keyboard_event(key, None, Atspi.KeySynthType.SYM)


def run_events():
    context = GLib.MainContext.default()
    while context.iteration(False):
        pass
