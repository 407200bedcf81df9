# SPDX-License-Identifier: MIT
"""Where the windows stand, and what is stored of it."""

from settings import WINDOW_SECTIONS, position
from testcase import EndToEndTest

CYCLES = 2
SCALES = ("1.2", "1.25", "1.33", "1.5", "1.75")
PLACES = {section: (60 + 110 * number, 40 + 70 * number)
          for number, section in enumerate(WINDOW_SECTIONS)}


def stored_places():
    values = {}
    for section, place in PLACES.items():
        values |= position(section, *place)
    return values


class KeepingPositions(EndToEndTest):
    def test_a_moved_window_is_stored_where_its_frame_stands(self):
        self._move_and_close(300, 250)
        self.assertEqual(self.settings.position("Monthly"), (300, 250))

    def test_the_second_start_puts_a_moved_window_where_it_was(self):
        self._move_and_close(300, 250)
        self.assertEqual(self.start_monthly().frame_position(), (300, 250))

    def test_positions_do_not_drift_over_starts(self):
        self._move_and_close(317, 211)
        stored = self.settings.read()
        for _ in range(CYCLES):
            monthly = self.start_monthly()
            self.assertEqual(monthly.frame_position(), (317, 211))
            monthly.press("close")
            self.assert_ends_well()
            self.assertEqual(self.settings.read(), stored)

    def test_all_six_windows_appear_where_they_were_stored(self):
        windows = self._open_all_six()
        for section, window in windows.items():
            with self.subTest(section):
                self.assertEqual(window.frame_position(), PLACES[section])

    def test_windows_left_in_place_are_stored_unchanged(self):
        windows = self._open_all_six()
        before = self.settings.read()
        self.assertEqual(windows["Monthly"].exit_by_right_press(), 0)
        self.assertEqual(self.settings.read(), before)

    def _move_and_close(self, left, top):
        monthly = self.start_monthly()
        monthly.move_frame_to(left, top)
        monthly.press("close")
        self.assert_ends_well()

    def _open_all_six(self):
        self.settings.write(stored_places())
        monthly = self.start_monthly()
        monthly.press_moon()
        moon = self.program.moon_window()
        moon.wait_until_in_front()
        return {"Monthly": monthly, "Moon": moon} | monthly.open_all_years()


class FractionalScales(EndToEndTest):
    """Nobody moves a window, and it stays where it was stored, or where it stood first.
    The tests are made below, one for each scale."""

    def check_that_places_stay(self, scale):
        self.program.more_environment = {"QT_SCALE_FACTOR": scale}
        self.settings.write(position("Monthly", 31, 22) | position("Julian", 56, 21))
        self._open_all_years_and_end()
        self.assertEqual(self.settings.position("Monthly"), (31, 22))
        self.assertEqual(self.settings.position("Julian"), (56, 21))
        stored = self.settings.bytes()
        for _ in range(CYCLES):
            self._open_all_years_and_end()
            self.assertEqual(self.settings.bytes(), stored, "the settings file")

    def _open_all_years_and_end(self):
        self.start_monthly().press_key("ctrl+y")
        self.program.year_window("Julian").wait_until_in_front()
        self.desktop.xdotool("key", "ctrl+q")
        self.assert_ends_well()


for _scale in SCALES:
    setattr(FractionalScales, f"test_places_stay_at_a_scale_of_{_scale.replace('.', '_')}",
            lambda self, scale=_scale: self.check_that_places_stay(scale))


class MinimisedAtExit(EndToEndTest):
    def setUp(self):
        super().setUp()
        self.settings.write(stored_places())

    def test_a_minimised_year_window_keeps_the_stored_position(self):
        monthly = self.start_monthly()
        monthly.open_year_by_double_click("Gregorian")
        gregorian = self.program.year_window("Gregorian")
        gregorian.wait_until_in_front()
        self._move_and_minimise(gregorian)
        self._check_stored(monthly.exit_by_right_press(), "Gregorian")

    def test_a_minimised_moon_window_keeps_the_stored_position(self):
        monthly = self.start_monthly()
        monthly.press_moon()
        moon = self.program.moon_window()
        moon.wait_until_in_front()
        self._move_and_minimise(moon)
        self._check_stored(monthly.exit_by_right_press(), "Moon")

    def test_the_minimised_monthly_window_keeps_the_stored_position(self):
        monthly = self.start_monthly()
        monthly.open_year_by_double_click("Gregorian")
        gregorian = self.program.year_window("Gregorian")
        gregorian.wait_until_in_front()
        self._move_and_minimise(monthly)
        self._check_stored(gregorian.exit_by_right_press(), "Monthly")

    def _move_and_minimise(self, window):
        window.bring_to_front()
        window.move_frame_to(700, 500)
        window.minimise()

    def _check_stored(self, status, section):
        self.assertEqual(status, 0)
        self.assertEqual(self.settings.position(section), PLACES[section])


class ReopenedYearWindow(EndToEndTest):
    def setUp(self):
        super().setUp()
        self.settings.write(stored_places())
        self.monthly = self.start_monthly()
        window = self._open()
        window.move_frame_to(700, 400)
        window.close_by_frame()
        window.wait_until_gone()

    def test_a_year_window_closed_by_its_frame_comes_back_at_its_start_position(self):
        self._open().wait_until_frame_is_at(*PLACES["Gregorian"])

    def test_a_year_window_closed_by_its_frame_works_when_opened_again(self):
        window = self._open()
        window.press_other_calendar("Jewish")
        self.program.year_window("Jewish").wait_until_in_front()
        self.monthly.press("close")
        self.monthly.wait_until_gone()
        window.open_monthly_by_double_click()
        self.program.monthly_window().wait_until_in_front()

    def test_a_year_window_closed_by_its_frame_shows_the_chosen_day_when_opened_again(self):
        marks = self._open().marked_cells()
        self.assertEqual(len(marks), 1, f"marked cells: {marks}")

    def _open(self):
        self.monthly.open_year_by_double_click("Gregorian")
        window = self.program.year_window("Gregorian")
        window.wait_until_in_front()
        return window
