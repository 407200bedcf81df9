# SPDX-License-Identifier: MIT
"""The start: what appears, and when."""

import time

from settings import position_names
from testcase import EndToEndTest
from waiting import wait_until
from windows import MONTHLY_TITLE, YEAR_TITLES

SHORTEST_SPLASH = 1.03  # seconds
QUIET_SECONDS = 1


class FirstStart(EndToEndTest):
    def test_monthly_window_appears_alone(self):
        self.start_monthly()
        self.assert_titles([MONTHLY_TITLE])

    def test_starting_writes_no_settings(self):
        self.start_monthly()
        self.assertEqual(list(self.program.config.iterdir()), [])

    def test_close_button_ends_the_program(self):
        self.start_monthly().press("close")
        self.assert_ends_well()

    def test_close_button_stores_every_position_and_nothing_else(self):
        self.start_monthly().press("close")
        self.assert_ends_well()
        self.assertEqual(set(self.settings.read()), position_names())


class Splash(EndToEndTest):
    def test_splash_is_shown_long_enough_before_the_monthly_window(self):
        self.program.start()
        shown_after = self._last_moment_without(self.program.has_splash)
        self._last_moment_without(self._has_monthly)
        seconds = time.monotonic() - shown_after
        self.assertGreaterEqual(seconds, SHORTEST_SPLASH)

    # The beginning of the last look at which it was not there: what the end of that
    # look saw no more may have been there already.
    def _last_moment_without(self, condition):
        deadline = time.monotonic() + 10
        last = look = time.monotonic()
        while not condition():
            self.assertLess(look, deadline, self.program.describe_windows())
            last, look = look, time.monotonic()
        return last

    def _has_monthly(self):
        return MONTHLY_TITLE in self.program.titles()


class StartupWindow(EndToEndTest):
    def test_window_1_shows_the_julian_year_alone(self):
        self._check_year_alone("Julian")

    def test_window_2_shows_the_gregorian_year_alone(self):
        self._check_year_alone("Gregorian")

    def test_window_3_shows_the_jewish_year_alone(self):
        self._check_year_alone("Jewish")

    def test_window_4_shows_the_moslem_year_alone(self):
        self._check_year_alone("Moslem")

    def test_window_9_shows_no_window_and_the_program_runs_on(self):
        self.settings.write({"Startup/Window": 9})
        self.program.start()
        self.program.wait_until_started()
        self._check_nothing_appears()
        self.program.terminate()

    def _check_year_alone(self, calendar):
        window = self.start_year(calendar)
        self.assert_titles([YEAR_TITLES[calendar]])
        window.press("close")
        self.assert_ends_well()

    def _check_nothing_appears(self):
        end = time.monotonic() + QUIET_SECONDS
        while time.monotonic() < end:
            self.assertEqual(self.program.titles(), [])
            self.assertTrue(self.program.is_running(), self.program.describe_windows())


class Session(EndToEndTest):
    def test_where_x11_can_be_had_nothing_else_is_tried(self):
        for name, value in {"XDG_SESSION_TYPE": "wayland", "WAYLAND_DISPLAY": "none"}.items():
            self.program.more_environment = {"QT_QPA_PLATFORM": None, name: value}
            self.start_monthly().press("close")
            self.assert_ends_well()
            self.assertNotIn("wayland", self.program.output(), name)

    def test_lists_have_outlines_on_a_black_ground(self):
        colours = "BackgroundNormal=0,0,0\nForegroundNormal=255,255,255\n"
        groups = "".join(f"[Colors:{name}]\n{colours}" for name in ("Window", "View", "Button"))
        (self.program.config / "kdeglobals").write_text(
            f"{groups}[KDE]\nwidgetStyle=fusion\n", encoding="utf-8")
        self.program.more_environment |= {"XDG_CURRENT_DESKTOP": "KDE", "KDE_FULL_SESSION": "true",
                                          "KDE_SESSION_VERSION": "5"}
        monthly = self.start_monthly()
        edge = (monthly.PANE_LEFTS[0] - 2, monthly.PANE_TOP + 6, 6, 8)
        wait_until(lambda: monthly.picture().count_lighter(100, *edge) >= 8,
                   "the first list has an outline")


class WindowsOfOneSize(EndToEndTest):
    """Window managers that draw a button for it all the same draw it as disabled."""

    def test_no_window_can_be_maximised(self):
        monthly = self.start_monthly()
        windows = [monthly, *monthly.open_all_years().values()]
        monthly.press_moon()
        windows.append(self.program.moon_window())
        monthly.press("options")
        windows.append(self.program.options_window())
        for window in windows:
            self._check_actions(window)

    def _check_actions(self, window):
        wait_until(lambda: {"MOVE", "CLOSE"} <= self.desktop.allowed_actions(window.number),
                   "the window manager has the window")
        actions = self.desktop.allowed_actions(window.number)
        self.assertEqual(actions & {"RESIZE", "MAXIMIZE_HORZ", "MAXIMIZE_VERT"}, set())


class MissingMoonPicture(EndToEndTest):
    def setUp(self):
        super().setUp()
        (self.program.folder / "Moon.bmp").unlink()

    def test_one_message_comes_before_the_monthly_window(self):
        self.program.start()
        box = self.program.message_box()
        self.assertNotIn(MONTHLY_TITLE, self.program.titles())
        box.accept()
        self.program.monthly_window()
        self.assertEqual(self.program.message_boxes_seen(), 1)

    def test_program_works_after_the_message(self):
        self.program.start()
        self.program.message_box().accept()
        monthly = self.program.monthly_window()
        monthly.press_moon()
        self.program.moon_window()
        monthly.press("close")
        self.assert_ends_well()
        self.assertEqual(self.program.message_boxes_seen(), 1)


class Icon(EndToEndTest):
    def test_the_windows_have_the_programs_icon(self):
        monthly = self.start_monthly()
        for window in [monthly, *monthly.open_all_years().values()]:
            wait_until(lambda number=window.number: self.desktop.icon_sides(number) >= {16, 128},
                       "the window manager is told of the icon")
