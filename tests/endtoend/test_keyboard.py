# SPDX-License-Identifier: MIT
"""The whole work of a day by keyboard alone; what was chosen is read from the copy
that Ctrl+C makes of it."""

import datetime

from testcase import EndToEndTest
from waiting import wait_until

TABS_FROM_FIRST_GRID_TO_JULIAN_DAY = 24
TABS_FROM_JULIAN_DAY_TO_FIRST_GRID = 9
STOPS_OF_A_PANE = 6
LEAP_DAY_OF_2024 = "2460370"
MONTHS = ("January", "February", "March", "April", "May", "June", "July", "August",
          "September", "October", "November", "December")


def in_words(date):
    return f"{date.day} {MONTHS[date.month - 1]} {date.year}"


class ByKeyboardAlone(EndToEndTest):
    def setUp(self):
        super().setUp()
        self.settings.write({"Moslem/Type": 2})

    def test_the_whole_work_of_a_day(self):
        before = datetime.date.today()
        self.start_monthly().wait_until_in_front()
        self._wait_for_day_of_today(before)
        self._enter_julian_day()
        self._choose_in_each_grid()
        self._choose_in_a_year_and_come_back()
        self._change_a_first_weekday()
        self._press("ctrl+q")
        self.assert_ends_well()

    def test_a_hidden_monthly_window_is_reached_by_a_key(self):
        year = self.start_year("Jewish")
        year.wait_until_in_front()
        self._press("ctrl+m")
        self.program.monthly_window().wait_until_in_front()
        self._press("ctrl+w")
        year.wait_until_in_front()
        self._press("ctrl+w")
        self.assert_ends_well()

    def test_a_typed_number_waits_for_nothing(self):
        before = datetime.date.today()
        self.start_monthly().wait_until_in_front()
        self._type_julian_day(LEAP_DAY_OF_2024)
        self._press(*["Tab"] * (TABS_FROM_JULIAN_DAY_TO_FIRST_GRID + STOPS_OF_A_PANE),
                    "shift+Tab", "shift+Tab", "2", "0", "2", "8")
        self._wait_for("Gregorian calendar: 29 February 2028")
        self._press("Tab", "1")
        self._wait_for("Gregorian calendar: 29 January 2028")
        self._press("1", "ctrl+t")
        self._wait_for_day_of_today(before)

    def test_a_typed_julian_day_is_taken_on_the_way_to_the_options(self):
        self.start_monthly().wait_until_in_front()
        self._type_julian_day("2451545")
        self._press("ctrl+comma")
        options = self.program.options_window()
        options.wait_until_in_front()
        self._press("Return")
        options.wait_until_gone()
        self._wait_for("Gregorian calendar: 1 January 2000", "Julian Day: 2451545")

    def _type_julian_day(self, number):
        self._press(*["Tab"] * TABS_FROM_FIRST_GRID_TO_JULIAN_DAY, "ctrl+a")
        self.desktop.xdotool("type", number)

    def _enter_julian_day(self):
        self._type_julian_day("2451545")
        self._press("Return")
        self._wait_for("Gregorian calendar: 1 January 2000", "Julian Day: 2451545")

    def _choose_in_each_grid(self):
        self._press(*["Tab"] * TABS_FROM_JULIAN_DAY_TO_FIRST_GRID)
        self._press("Up", "Return")
        self._wait_for("Julian calendar: 18 December 1999")
        for key, day in (("Home", "Gregorian calendar: 1 December 1999"),
                         ("Home", "Jewish calendar: 1 Kislev 5760"),
                         ("End", "Moslem calendar: 29 Sha‘ban 1420")):
            self._press(*["Tab"] * STOPS_OF_A_PANE, key)
            self._wait_for(day)

    def _choose_in_a_year_and_come_back(self):
        self._press("ctrl+y")
        self.program.year_window("Julian").wait_until_in_front()
        self._press("Home")
        self._wait_for("Julian calendar: 1 January 1999")
        self._press("ctrl+Return")
        self.program.monthly_window().wait_until_in_front()

    def _change_a_first_weekday(self):
        self._press("ctrl+comma")
        options = self.program.options_window()
        options.wait_until_in_front()
        self._press("Tab", "Home", "Return")
        options.wait_until_gone()
        wait_until(lambda: self.settings.read().get("Julian/FirstWeekDay") == "1",
                   "weeks begin on Mondays", found=self.settings.read)

    def _wait_for_day_of_today(self, before):
        def shown():
            days = {before, datetime.date.today()}
            return any(f"Gregorian calendar: {in_words(day)}" in self._copied() for day in days)
        wait_until(shown, "today is chosen", found=self._copied)

    def _press(self, *keys):
        self.desktop.xdotool("key", *keys)

    def _wait_for(self, *texts):
        wait_until(lambda: all(text in self._copied().splitlines() for text in texts),
                   f"the chosen day is {texts}", found=self._copied)

    def _copied(self):
        """The chosen day as Ctrl+C copies it."""
        self._press("ctrl+c")
        return self.desktop.copied_text()
