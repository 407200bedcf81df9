# SPDX-License-Identifier: MIT
"""Windows that open each other."""

import itertools

from testcase import EndToEndTest
from waiting import wait_until
from windows import CALENDARS, MONTHLY_TITLE, YEAR_TITLES


class YearCalendarsCommand(EndToEndTest):
    def test_it_opens_all_four_year_windows(self):
        self.start_monthly().open_all_years()
        self.assert_titles([MONTHLY_TITLE, *YEAR_TITLES.values()])

    def test_given_again_it_raises_those_that_are_open_in_the_same_order(self):
        monthly = self.start_monthly()
        years = monthly.open_all_years()
        for window in (years["Jewish"], years["Julian"], years["Moslem"], monthly):
            window.bring_to_front()
        monthly.press_key("ctrl+y")
        years["Julian"].wait_until_in_front()
        stack = [years[calendar].number for calendar in reversed(CALENDARS)]
        wait_until(lambda: self.desktop.stack()[-5:] == [monthly.number, *stack],
                   "the year windows are above the monthly one", found=self.desktop.stack)


class TwoWindows(EndToEndTest):
    """One window opens another and is closed; the other one remains, and its
    close button ends the program. The tests are made below, one for each pair."""

    def check_year_opens_year(self, first, second):
        window = self.start_year(first)
        window.press_other_calendar(second)
        other = self.program.year_window(second)
        other.wait_until_in_front()
        self._check_second_remains(window, other, YEAR_TITLES[second])

    def check_monthly_opens_year(self, calendar):
        monthly = self.start_monthly()
        monthly.open_year_by_double_click(calendar)
        year = self.program.year_window(calendar)
        year.wait_until_in_front()
        self._check_second_remains(monthly, year, YEAR_TITLES[calendar])

    def check_year_opens_monthly(self, calendar):
        year = self.start_year(calendar)
        year.open_monthly_by_double_click()
        monthly = self.program.monthly_window()
        monthly.wait_until_in_front()
        self._check_second_remains(year, monthly, MONTHLY_TITLE)

    def _check_second_remains(self, first, second, title):
        first.press("close")
        first.wait_until_gone()
        self.assert_titles([title])
        second.press("close")
        self.assert_ends_well()


def _add_test(name, check, *arguments):
    setattr(TwoWindows, f"test_{name}", lambda self: getattr(self, check)(*arguments))


for _first, _second in itertools.permutations(CALENDARS, 2):
    _add_test(f"{_first.lower()}_opens_{_second.lower()}_and_goes", "check_year_opens_year",
              _first, _second)
for _calendar in CALENDARS:
    _add_test(f"monthly_opens_{_calendar.lower()}_and_goes", "check_monthly_opens_year",
              _calendar)
    _add_test(f"{_calendar.lower()}_opens_monthly_and_goes", "check_year_opens_monthly",
              _calendar)


class MinimisedWindowOpenedAgain(EndToEndTest):
    def test_a_year_window_comes_back_by_another_year_windows_button(self):
        julian = self.start_year("Julian")
        julian.press_other_calendar("Gregorian")
        gregorian = self.program.year_window("Gregorian")
        gregorian.wait_until_in_front()
        gregorian.minimise()
        julian.press_other_calendar("Gregorian")
        self._check_back(gregorian)

    def test_a_year_window_comes_back_by_the_year_calendars_command(self):
        monthly = self.start_monthly()
        jewish = monthly.open_all_years()["Jewish"]
        jewish.minimise()
        monthly.press("years")
        wait_until(jewish.is_shown, "the year window is back",
                   found=self.program.describe_windows)

    def test_the_first_panes_year_window_ends_in_front_when_another_comes_back(self):
        monthly = self.start_monthly()
        years = monthly.open_all_years()
        years["Jewish"].minimise()
        monthly.press("years")
        self._check_back(years["Julian"])

    def test_the_monthly_window_comes_back_by_double_click_on_a_year_grid(self):
        monthly = self.start_monthly()
        monthly.open_year_by_double_click("Moslem")
        moslem = self.program.year_window("Moslem")
        moslem.wait_until_in_front()
        monthly.minimise()
        moslem.open_monthly_by_double_click()
        self._check_back(monthly)

    def test_the_moon_window_comes_back_by_the_moon_button(self):
        monthly = self.start_monthly()
        monthly.press_moon()
        moon = self.program.moon_window()
        moon.wait_until_in_front()
        moon.minimise()
        monthly.press_moon()
        self._check_back(moon)

    def _check_back(self, window):
        window.wait_until_in_front()
        self.assertTrue(window.is_shown(), self.program.describe_windows())
