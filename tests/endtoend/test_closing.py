# SPDX-License-Identifier: MIT
"""Closing windows and ending the program."""

from settings import position
from testcase import EndToEndTest
from windows import MONTHLY_TITLE, YEAR_TITLES


class RightPressOnTheCloseButton(EndToEndTest):
    def test_in_the_monthly_window_it_ends_everything(self):
        monthly = self.start_monthly()
        monthly.press_moon()
        self.program.moon_window().wait_until_in_front()
        years = monthly.open_all_years()
        years["Jewish"].move_frame_to(500, 300)
        self.assertEqual(monthly.exit_by_right_press(), 0)
        self.assertEqual(self.settings.position("Jewish"), (500, 300))

    def test_in_a_year_window_it_ends_everything(self):
        monthly = self.start_monthly()
        years = monthly.open_all_years()
        monthly.move_frame_to(400, 350)
        self.assertEqual(years["Moslem"].exit_by_right_press(), 0)
        self.assertEqual(self.settings.position("Monthly"), (400, 350))


class CloseButton(EndToEndTest):
    def test_it_hides_the_monthly_window_beside_a_year_window(self):
        self._hide_monthly_beside_gregorian()
        self.assert_titles([YEAR_TITLES["Gregorian"]])
        self.assertTrue(self.program.is_running())
        self.assertIsNone(self.settings.bytes(), "nothing is stored")

    def test_double_click_on_the_year_grid_brings_the_monthly_window_back(self):
        gregorian = self._hide_monthly_beside_gregorian()
        gregorian.open_monthly_by_double_click()
        self.program.monthly_window().wait_until_in_front()
        self.assert_titles([MONTHLY_TITLE, YEAR_TITLES["Gregorian"]])

    def test_with_only_the_moon_window_beside_it_saves_and_ends(self):
        monthly = self.start_monthly()
        monthly.press_moon()
        moon = self.program.moon_window()
        moon.wait_until_in_front()
        moon.move_frame_to(800, 300)
        monthly.press("close")
        self.assert_ends_well()
        self.assertEqual(self.settings.position("Moon"), (800, 300))

    def _hide_monthly_beside_gregorian(self):
        monthly = self.start_monthly()
        monthly.open_year_by_double_click("Gregorian")
        gregorian = self.program.year_window("Gregorian")
        gregorian.wait_until_in_front()
        monthly.press("close")
        monthly.wait_until_gone()
        return gregorian


class FrameCloseOfTheLastCalendarWindow(EndToEndTest):
    def setUp(self):
        super().setUp()
        self.settings.write(position("Monthly", 100, 90) | position("Gregorian", 120, 110))
        self.stored = self.settings.bytes()

    def test_it_ends_the_program_without_saving(self):
        self._close_moved(self.start_monthly())

    def test_it_ends_the_program_while_the_moon_window_is_open(self):
        monthly = self.start_monthly()
        monthly.press_moon()
        self.program.moon_window().wait_until_in_front()
        self._close_moved(monthly)

    def test_it_ends_the_program_while_the_options_are_open(self):
        monthly = self.start_monthly()
        monthly.press("options")
        self.program.options_window().wait_until_in_front()
        self._close_moved(monthly)

    def test_it_ends_the_program_while_the_about_box_is_open(self):
        monthly = self.start_monthly()
        monthly.press("about")
        self.program.about_window().wait_until_in_front()
        self._close_moved(monthly)

    def test_it_ends_the_program_when_another_was_closed_by_its_frame_before(self):
        monthly = self.start_monthly()
        monthly.open_year_by_double_click("Gregorian")
        gregorian = self.program.year_window("Gregorian")
        gregorian.wait_until_in_front()
        monthly.close_by_frame()
        monthly.wait_until_gone()
        self._close_moved(gregorian)

    def test_it_ends_the_program_when_another_was_hidden_before(self):
        monthly = self.start_monthly()
        monthly.open_year_by_double_click("Gregorian")
        gregorian = self.program.year_window("Gregorian")
        gregorian.wait_until_in_front()
        monthly.press("close")
        monthly.wait_until_gone()
        self._close_moved(gregorian)

    def _close_moved(self, window):
        self.assertTrue(self.program.is_running())
        window.move_frame_to(420, 330)
        window.close_by_frame()
        self.assert_ends_well()
        self.assertEqual(self.settings.bytes(), self.stored, "the settings file")


class FrameCloseOfOneOfSeveralCalendarWindows(EndToEndTest):
    def test_the_others_stay(self):
        monthly = self.start_monthly()
        years = monthly.open_all_years()
        years["Jewish"].close_by_frame()
        years["Jewish"].wait_until_gone()
        self.assert_titles([MONTHLY_TITLE, *[title for calendar, title in YEAR_TITLES.items()
                                             if calendar != "Jewish"]])
        self.assertEqual(monthly.exit_by_right_press(), 0)


class UnwritableSettings(EndToEndTest):
    """A file stands where the folder of the settings would have to be made."""

    def setUp(self):
        super().setUp()
        self.program.config.rmdir()
        self.program.config.write_text("in the way", encoding="utf-8")
        self.program.config = self.program.config / "below"

    def test_the_exit_tells_and_then_ends(self):
        self.start_monthly().press("close")
        self.program.message_box().accept()
        self.assert_ends_well()
        self.assertEqual(self.program.message_boxes_seen(), 1)

    def test_starting_and_frame_closing_tell_nothing(self):
        self.start_monthly().close_by_frame()
        self.assert_ends_well()
        self.assertEqual(self.program.message_boxes_seen(), 0)
