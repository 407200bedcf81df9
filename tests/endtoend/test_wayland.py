# SPDX-License-Identifier: MIT
"""The work of a day on a Wayland desktop, natively and as an X client."""

import tempfile

import assistive
from picture import RED
from test_keyboard import TABS_FROM_FIRST_GRID_TO_JULIAN_DAY
from test_positions import PLACES, stored_places
from testcase import EndToEndTest
from waiting import wait_until
from wayland import WaylandDesktop
from windows import (CALENDARS, MONTHLY_TITLE, OPTIONS_TITLE, SPOKEN_ABOUT_TITLE,
                     YEAR_TITLES, MonthlyWindow)

FALL_OF_ROME = "1895164"


class OnWayland(EndToEndTest):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory(prefix="orvalen-wayland-")
        cls.addClassCleanup(folder.cleanup)
        cls.desktop = WaylandDesktop(folder.name)
        cls.addClassCleanup(cls.desktop.stop)
        cls.desktop.start()
        cls.bus = assistive.start_bus(EndToEndTest.desktop)

    def setUp(self):
        super().setUp()
        self.settings.write(stored_places())

    def test_the_work_of_a_day_is_done_natively(self):
        self._start_in(self.desktop.native_session())
        self.assertEqual(self._frames(MONTHLY_TITLE), [], "windows of X clients")
        self._do_work_of_a_day()
        self._end_with_places_as_they_were()

    def test_the_work_of_a_day_is_done_as_an_x_client(self):
        self._start_in(self.desktop.usual_session())
        self._assert_stands(MONTHLY_TITLE, "Monthly")
        self._do_work_of_a_day()
        self._end_with_places_as_they_were()

    def test_an_x_client_has_its_year_windows_where_they_were_stored(self):
        self._start_in(self.desktop.usual_session())
        self._press_until("ctrl+y", lambda: self._frames(YEAR_TITLES["Moslem"]))
        for calendar, title in YEAR_TITLES.items():
            self._assert_stands(title, calendar)
        self._end_with_places_as_they_were()

    def _start_in(self, session):
        before = self.desktop.copied_text()
        self.program.more_environment = session | self.bus.environment()
        self.program.start()
        self.reader = assistive.Reader(self.program.pid())
        self._wait_until_active(MONTHLY_TITLE)
        self._press_until("ctrl+c", lambda: self.desktop.copied_text() not in ("", before))

    def _do_work_of_a_day(self):
        self._enter_julian_day()
        self._choose_by_pointer()
        self._choose_in_a_year_and_come_back()
        self._change_a_first_weekday()
        self._read_about()

    def _end_with_places_as_they_were(self):
        self._press_until("ctrl+q", lambda: not self.program.is_running())
        self.assert_ends_well()
        stored = self.settings.read()
        for name, value in stored_places().items():
            self.assertEqual(stored[name], str(value), name)

    # On that day the Moslem calendar has not begun: a grid less has a mark than
    # today, by which the new picture can be told from the one before.
    def _enter_julian_day(self):
        self._press(*["Tab"] * TABS_FROM_FIRST_GRID_TO_JULIAN_DAY, "ctrl+a")
        self.desktop.xdotool("type", FALL_OF_ROME)
        self._press("Return")
        self._wait_for_copy("Julian calendar: 4 September 476")

    # The day above the Julian mark.
    def _choose_by_pointer(self):
        wait_until(lambda: len(self._marks()) == len(CALENDARS) - 1, "three days are marked",
                   found=self._marks)
        left, top = self._marks()[0]
        self.desktop.xdotool("mousemove", left + MonthlyWindow.COLUMN_WIDTH // 2,
                             top - MonthlyWindow.ROW_HEIGHT // 2, "click", 1)
        self._wait_for_copy("Julian calendar: 3 September 476")

    def _marks(self):
        return self.desktop.picture_of("root").runs(RED, MonthlyWindow.COLUMN_WIDTH)

    def _choose_in_a_year_and_come_back(self):
        self._press("ctrl+Return")
        self._wait_until_active(YEAR_TITLES["Julian"])
        self._press_until("Home", lambda: self._has_copied("Julian calendar: 1 January 476"))
        self._press("ctrl+w")
        self._wait_until_active(MONTHLY_TITLE)

    def _change_a_first_weekday(self):
        self._press_until("ctrl+comma", lambda: OPTIONS_TITLE in self.reader.titles())
        self._wait_until_active(OPTIONS_TITLE)
        weekday = self.reader.window(OPTIONS_TITLE).find("combo box", "Julian calendar")
        weekday.take_focus()
        self._press_until("Home", lambda: weekday.text == "Monday")
        self._press_until("Return", lambda: "Julian/FirstWeekDay" in self.settings.read())
        self._wait_until_active(MONTHLY_TITLE)
        self.assertEqual(self.settings.read()["Julian/FirstWeekDay"], "1")

    def _read_about(self):
        self._press_until("F1", lambda: SPOKEN_ABOUT_TITLE in self.reader.titles())
        self._wait_until_active(SPOKEN_ABOUT_TITLE)
        self._press_until("Escape", self.reader.window(MONTHLY_TITLE).is_active)

    def _wait_until_active(self, title):
        wait_until(self.reader.window(title).is_active, f"“{title}” has the keyboard",
                   found=self._describe)

    def _describe(self):
        active = [window.name for window in self.reader.windows() if window.is_active()]
        return f"{active} of {self.reader.titles()}; {self.program.output()}"

    def _wait_for_copy(self, line):
        wait_until(lambda: self._has_copied(line), f"what is copied has “{line}”",
                   found=self.desktop.copied_text)

    def _has_copied(self, line):
        self._press("ctrl+c")
        return line in self.desktop.copied_text().splitlines()

    def _assert_stands(self, title, section):
        wait_until(lambda: self._frames(title) == [PLACES[section]],
                   f"“{title}” stands at {PLACES[section]}", found=lambda: self._frames(title))

    # Where the frames of the windows of X clients with this title stand.
    def _frames(self, title):
        return [self.desktop.frame_position(number) for number in self.desktop.x_windows(title)]

    # Again where nobody had the keyboard: as X client a window is active before its
    # keys arrive.
    def _press_until(self, key, condition):
        def press_and_look():
            self._press(key)
            return condition()
        wait_until(press_and_look, f"{key} does its work", found=self._describe)

    def _press(self, *keys):
        self.desktop.xdotool("key", *keys)
