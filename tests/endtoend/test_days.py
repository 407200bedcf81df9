# SPDX-License-Identifier: MIT
"""Choosing a day."""

from testcase import EndToEndTest
from waiting import wait_until
from windows import CALENDARS

FULL_COLUMN = 3  # all of its days belong to the month, whatever the month


class ChoosingADay(EndToEndTest):
    def test_a_press_in_the_gregorian_grid_moves_the_mark_in_all_four(self):
        monthly = self.start_monthly()
        before = self._wait_for_one_mark_each(monthly)
        row = self._another_weekday(before)
        monthly.press_day("Gregorian", row, FULL_COLUMN)
        wait_until(lambda: monthly.marked_cells()["Gregorian"] == [(row, FULL_COLUMN)],
                   f"the Gregorian mark is at {(row, FULL_COLUMN)}", found=monthly.marked_cells)
        after = self._wait_for_one_mark_each(monthly)
        self.assertEqual(self._weekdays(after), {calendar: row for calendar in CALENDARS})

    def test_a_press_in_a_year_window_moves_the_mark_in_the_monthly_one(self):
        monthly = self.start_monthly()
        before = self._wait_for_one_mark_each(monthly)
        row = self._another_weekday(before)
        monthly.open_year_by_double_click("Gregorian")
        self.program.year_window("Gregorian").press_day(row + 1, FULL_COLUMN)
        wait_until(lambda: self._weekdays(monthly.marked_cells()) ==
                   {calendar: row for calendar in CALENDARS},
                   f"all marks are in row {row}", found=monthly.marked_cells)

    def _wait_for_one_mark_each(self, monthly):
        wait_until(lambda: all(len(cells) == 1 for cells in monthly.marked_cells().values()),
                   "one day is marked in each grid", found=monthly.marked_cells)
        return monthly.marked_cells()

    # The week begins on the same day in all calendars, so that a day is in the
    # same row of every grid.
    def _another_weekday(self, marks):
        return (marks["Gregorian"][0][0] + 2) % 7

    def _weekdays(self, marks):
        return {calendar: cells[0][0] for calendar, cells in marks.items() if cells}
