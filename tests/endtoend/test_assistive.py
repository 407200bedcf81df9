# SPDX-License-Identifier: MIT
"""The whole work of the program through the interface of assistive tools alone."""

import datetime

import assistive
from testcase import EndToEndTest
from waiting import wait_until
from windows import CALENDARS, MONTHLY_TITLE, OPTIONS_TITLE

MONTH_GRID = "Monthly calendar"
YEAR_GRID = "Year calendar"

# What the calendars say of Julian Day 2451545.
MILLENNIUM = {
    "Julian": "Saturday, 19 December 1999, Julian calendar",
    "Gregorian": "Saturday, 1 January 2000, Gregorian calendar",
    "Jewish": "Saturday, 23 Tevet 5760, Jewish calendar",
    "Moslem": "Saturday, 25 Ramadan 1420, Moslem calendar",
}


class AssistiveTools(EndToEndTest):
    @classmethod
    def setUpClass(cls):
        cls.bus = assistive.start_bus(cls.desktop)

    def setUp(self):
        super().setUp()
        self.program.more_environment = self.bus.environment()
        self.focus = assistive.FocusWatch()
        self.addCleanup(self.focus.stop)

    def test_the_whole_work_is_done_through_them(self):
        self._start()
        self._read_today()
        for calendar in CALENDARS:
            self._choose_another_day(calendar)
        self._enter_julian_day()
        self._choose_a_day_in_a_year()
        self._change_first_weekday()
        self.monthly.find("push button", "Exit").press()
        self.assert_ends_well()

    def _start(self):
        self.start_monthly()
        self.reader = assistive.Reader(self.program.pid())
        self.monthly = self.reader.window(MONTHLY_TITLE)
        self.assertEqual(self.monthly.role, "frame")
        self._assert_told(self.monthly)
        self.holder = self._month_grid("Julian").name
        wait_until(self._month_grid("Julian").has_focus, "the first grid has the focus")
        self.focus.take()

    def _read_today(self):
        today = datetime.date.today()
        julian = today - datetime.timedelta(days=13)  # from 1900 to 2099
        for calendar, day in (("Gregorian", today), ("Julian", julian)):
            date = f"{day.day} {day:%B} {day.year}, {calendar} calendar"
            self.assertEqual(self._chosen(calendar), [f"{today:%A}, {date}, selected"])
        for calendar in ("Jewish", "Moslem"):
            self.assertRegex(self._chosen(calendar)[0],
                             rf"^{today:%A}, \d+ .* {calendar} calendar, selected$")

    def _choose_another_day(self, calendar):
        grid = self._month_grid(calendar)
        other = next(name for name in grid.cells() if name not in grid.selected())
        grid.press_cell(other)
        self._wait_for_chosen({calendar: other})
        wait_until(grid.has_focus, f"the grid of the {calendar} calendar has the focus")
        weekday = other.partition(",")[0]
        for name in CALENDARS:
            self.assertTrue(self._chosen(name)[0].startswith(weekday), self._chosen(name))
        self._assert_only_focus_of(grid.name)

    def _enter_julian_day(self):
        field = self.monthly.find("combo box", "Julian Day")
        field.take_focus()
        field.find("text", "Julian Day").type("2451545")
        field.press()
        self._wait_for_chosen(MILLENNIUM)
        self.assertEqual(field.text, "2451545")
        self._assert_only_focus_of(MONTHLY_TITLE, field.name)

    def _choose_a_day_in_a_year(self):
        self.monthly.find("push button", "Year calendars").press()
        years = {calendar: self.reader.window(f"{calendar} calendar") for calendar in CALENDARS}
        wait_until(years["Julian"].is_active, "the first pane's year window is active")
        self._assert_only_focus_of(f"Julian calendar, {YEAR_GRID}")
        for year in years.values():
            self._assert_told(year)
        grid = years["Gregorian"].find("list", "Gregorian calendar")
        self.assertEqual(len(grid.cells()), 366)
        grid.press_cell("Thursday, 15 June 2000, Gregorian calendar")
        self._wait_for_chosen({"Gregorian": "Thursday, 15 June 2000, Gregorian calendar",
                               "Julian": "Thursday, 2 June 2000, Julian calendar"})
        self._assert_only_focus_of()
        for calendar, year in years.items():
            year.find("push button", f"{calendar} calendar, Close").press()
            wait_until(lambda: not year.is_shown(), f"the {calendar} year window is closed")
        wait_until(self.monthly.is_active, "the monthly window is active")
        self.holder = "Julian Day"
        self.focus.take()

    def _change_first_weekday(self):
        self.assertEqual(self._first_weekday(), "Sunday")
        self.monthly.find("push button", "Options").press()
        options = self.reader.window(OPTIONS_TITLE)
        wait_until(options.is_active, "the options are active")
        self.assertEqual(options.role, "dialog")
        self._assert_told(options)
        weekday = options.find("combo box", "Gregorian calendar")
        self.assertEqual(weekday.text, "Sunday")
        weekday.take_focus()
        self.focus.take()
        assistive.press_key(assistive.KEY_UP)
        wait_until(lambda: weekday.text == "Saturday", "Saturday is chosen", found=lambda: weekday.text)
        self.holder = weekday.name
        self._assert_only_focus_of(OPTIONS_TITLE)
        options.find("push button", "Apply").press()
        wait_until(lambda: self._first_weekday() == "Saturday",
                   "the Gregorian week begins on Saturday", found=self._first_weekday)

    def _first_weekday(self):
        return self._month_grid("Gregorian").uppermost_cell().partition(",")[0]

    def _month_grid(self, calendar):
        return self.monthly.find("list", f"{calendar} calendar, {MONTH_GRID}")

    def _chosen(self, calendar):
        return self._month_grid(calendar).selected()

    def _wait_for_chosen(self, days):
        wait_until(lambda: all(self._chosen(calendar) == [f"{day}, selected"] for calendar, day in days.items()),
                   f"chosen is {days}", found=lambda: [self._chosen(name) for name in CALENDARS])

    # Nothing but these controls, and the one that had the focus before, has told
    # that it got the focus; an answer to what the user did is an entry of its window.
    def _assert_only_focus_of(self, *names):
        self.assertLessEqual(set(self.focus.take()), {*names, self.holder})
        if names:
            self.holder = names[-1]

    # Whatever is shown in a window has a role, and a name unless it is there for
    # what it holds.
    def _assert_told(self, window):
        for control in window.descendants():
            if not control.is_shown():
                continue
            self.assertNotIn(control.role, ("", "invalid", "unknown"), control.name)
            if control.role != "filler" or not control.children():
                self.assertNotEqual(control.name, "", control.role)
