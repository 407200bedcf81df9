# SPDX-License-Identifier: MIT
"""What goes wrong around the program: it ends cleanly or works on."""

import os
import pathlib
import shutil
import signal
import tempfile

from desktop import Desktop
from picture import RED, SUBSTITUTE_MOON
from settings import position
from testcase import EndToEndTest
from waiting import wait_until
from windows import CALENDARS, MONTHLY_TITLE, YEAR_TITLES

NOBODY = 65534


class FaultTest(EndToEndTest):
    def setUp(self):
        super().setUp()
        self.temporary = self.program.config.with_name("temporary")
        self.temporary.mkdir()
        self.program.more_environment["TMPDIR"] = str(self.temporary)

    def assert_works(self, monthly):
        """A press chooses another day, the year windows open, and the close button ends it all."""
        marked = monthly.marked_cells()
        monthly.press_day("Gregorian", 3, 2 if marked["Gregorian"] == [(3, 3)] else 3)
        wait_until(lambda: monthly.marked_cells() != marked, "another day is marked")
        monthly.press("years")
        wait_until(lambda: len(self.program.titles()) >= 1 + len(CALENDARS),
                   "the year windows open", found=self.program.describe_windows)
        self.assertEqual(monthly.exit_by_right_press(), 0)
        self.assert_no_temporary_files()

    def assert_no_temporary_files(self):
        self.assertEqual(list(self.temporary.iterdir()), [])
        folder = self.settings.path.parent
        left = [path for path in folder.iterdir() if path != self.settings.path] \
            if folder.is_dir() else []
        self.assertEqual([path for path in left if not path.name.startswith(".")], [])


class SignalToEnd(FaultTest):
    def setUp(self):
        super().setUp()
        self.settings.write(position("Monthly", 100, 90))
        self.stored = self.settings.bytes()

    def test_it_ends_the_program_with_all_windows_without_saving(self):
        monthly = self.start_monthly()
        monthly.press_moon()
        self.program.moon_window().wait_until_in_front()
        monthly.open_all_years()["Jewish"].move_frame_to(420, 330)
        self._check_end()

    def test_it_ends_the_program_while_a_list_is_open(self):
        monthly = self.start_monthly()
        monthly.click((monthly.PANE_LEFTS[0] + 10, monthly.PANE_TOP + 10))
        wait_until(lambda: self.desktop.has_popup(self.program.pid()), "the list is open")
        self._check_end()

    def test_it_ends_the_program_while_a_message_waits(self):
        monthly = self.start_monthly()
        monthly.press("options")
        options = self.program.options_window()
        options.wait_until_in_front()
        options.choose_language("German")
        (self.program.folder / "German.lng").unlink()
        options.apply()
        self.program.message_box()
        self.stored = self.settings.bytes()  # the options were stored before
        self._check_end()

    def test_an_interrupt_does_the_same(self):
        self.start_monthly().move_frame_to(420, 330)
        self._check_end(signal.SIGINT)

    # By the system itself, which has nothing to save either.
    def _check_end(self, number=signal.SIGTERM):
        os.kill(self.program.pid(), number)
        self.assertEqual(self.program.wait_for_exit(), -number, "exit status")
        self.assertEqual(self.settings.bytes(), self.stored, "the settings file")
        self.assert_no_temporary_files()


class FilesGoneWhileItRuns(FaultTest):
    def test_without_its_picture_the_moon_window_opens_again_with_a_plain_disc(self):
        monthly = self.start_monthly()
        self._open_moon(monthly).close_by_frame()
        self._remove("Moon.bmp")
        monthly.press_moon()
        self.program.message_box().accept()
        moon = self.program.moon_window()
        moon.wait_until_in_front()
        wait_until(lambda: self._count_disc(moon) > 0, "the plain disc is painted")
        monthly.bring_to_front()
        self.assert_works(monthly)

    def test_a_window_that_is_open_needs_no_file_any_more(self):
        monthly = self.start_monthly()
        moon = self._open_moon(monthly)
        self._remove("Moon.bmp", *[file.name for file in self.program.folder.glob("*.lng")])
        moon.press_key("Escape")
        moon.wait_until_gone()
        self.assertEqual(self._count_disc(self._open_moon(monthly)), 0)
        self.assertEqual(self.program.message_boxes_seen(), 0)
        self.assert_works(monthly)

    def test_a_language_that_has_gone_is_told_and_english_stays(self):
        monthly = self.start_monthly()
        monthly.press("options")
        options = self.program.options_window()
        options.wait_until_in_front()
        options.choose_language("German")
        self._remove(*[file.name for file in self.program.folder.glob("*.lng")])
        options.apply()
        self.program.message_box().accept()
        options.wait_until_gone()
        self.assert_titles([MONTHLY_TITLE])
        self.assert_works(monthly)

    def _open_moon(self, monthly):
        monthly.press_moon()
        moon = self.program.moon_window()
        moon.wait_until_in_front()
        return moon

    def _remove(self, *names):
        for name in names:
            (self.program.folder / name).unlink()

    def _count_disc(self, moon):
        return moon.picture().count(SUBSTITUTE_MOON, 0, 0, *moon.size())


class PoorSystem(FaultTest):
    def test_with_no_font_but_one_it_works_in_every_script(self):
        self._leave_one_font()
        for language in ("English (Default)", "Russian", "Hebrew", "Arabic"):
            with self.subTest(language):
                self.settings.write({"Startup/Language": language})
                self.program.start()
                self.program.wait_until_started()
                (title,) = wait_until(self.program.titles, "the monthly window appears")
                self.assert_works(self.program.monthly_window(title=title))

    def test_without_a_session_bus_it_works(self):
        self.program.more_environment |= {
            "DBUS_SESSION_BUS_ADDRESS": f"unix:path={self.temporary}/none",
            "DBUS_SYSTEM_BUS_ADDRESS": f"unix:path={self.temporary}/none",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
        }
        self.assert_works(self.start_monthly())

    # The font that the program's package asks for.
    def _leave_one_font(self):
        fonts = self.temporary.with_name("fonts")
        fonts.mkdir()
        shutil.copy("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf", fonts)
        configuration = fonts / "fonts.conf"
        configuration.write_text(
            f"<fontconfig><dir>{fonts}</dir><cachedir>{fonts}/cache</cachedir></fontconfig>",
            encoding="utf-8")
        self.program.more_environment["FONTCONFIG_FILE"] = str(configuration)


class UnreadableSettings(FaultTest):
    """Not the program's to read: told at the start and at the end, and left alone."""

    def setUp(self):
        super().setUp()
        if os.getuid() == 0:
            self._become_nobody()
        self.settings.write({"Startup/Window": 2})
        self.stored = self.settings.bytes()
        self.settings.path.chmod(0)

    def test_it_is_told_and_the_program_works_with_the_standard_settings(self):
        self.program.start()
        self.program.message_box().accept()
        monthly = self.program.monthly_window()
        monthly.press("close")
        self.program.message_box().accept()
        self.assert_ends_well()
        self.settings.path.chmod(0o600)
        self.assertEqual(self.settings.bytes(), self.stored, "the settings file")
        self.assert_no_temporary_files()

    # Root may read everything.
    def _become_nobody(self):
        self.program.run_by(["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups"])
        folder = self.temporary.parent
        for path in [folder, *folder.rglob("*")]:
            os.chown(path, NOBODY, NOBODY)


class OtherScreen(FaultTest):
    """On a desktop of its own."""

    def setUp(self):
        folder = tempfile.mkdtemp(prefix="orvalen-desktop-")
        self.addCleanup(shutil.rmtree, folder, ignore_errors=True)
        self.desktop = Desktop(folder, *self.size)
        self.addCleanup(self.desktop.stop)
        self.desktop.start()
        super().setUp()

    def check_windows_stand_on_the_screen(self, monthly):
        monthly.press_key("ctrl+y")
        years = [self.program.year_window(calendar) for calendar in CALENDARS]
        years[0].wait_until_in_front()
        years[0].press("moon")
        windows = [monthly, *years, self.program.moon_window()]
        for window in windows:
            left, top = window.frame_position()
            self.assertTrue(0 <= left < self.size[0] - 100 and 0 <= top < self.size[1] - 30,
                            f"{(left, top)}")


class SmallScreen(OtherScreen):
    size = (640, 480)

    def test_every_window_can_be_reached(self):
        monthly = self.start_monthly()
        self.check_windows_stand_on_the_screen(monthly)
        monthly.press_key("ctrl+q")
        self.assert_ends_well()


class LargeScreen(OtherScreen):
    size = (7680, 4320)

    def test_every_window_can_be_reached(self):
        monthly = self.start_monthly()
        self.check_windows_stand_on_the_screen(monthly)
        monthly.press_key("ctrl+q")
        self.assert_ends_well()


class LostDisplay(OtherScreen):
    size = (1024, 768)

    def test_the_program_ends(self):
        self.start_monthly().open_all_years()
        self._lose_display()

    def test_the_program_ends_while_a_list_is_open(self):
        monthly = self.start_monthly()
        monthly.click((monthly.PANE_LEFTS[0] + 10, monthly.PANE_TOP + 10))
        wait_until(lambda: self.desktop.has_popup(self.program.pid()), "the list is open")
        self._lose_display()

    # By itself: a status above 0, not killed by a signal.
    def _lose_display(self):
        self.desktop.kill_server()
        self.program.describe_windows = lambda: "no display"
        self.assertGreater(self.program.wait_for_exit(), 0, "exit status")
        self.assert_no_temporary_files()


class Scales(OtherScreen):
    size = (3840, 2160)

    def test_from_one_to_three(self):
        self._see_marks(1, lambda red: 0 < red == self._red_pixels())
        usual = self.red
        for scale in (1.25, 1.5, 2, 3):
            with self.subTest(scale):
                self._see_marks(scale, lambda red: abs(red / usual / scale ** 2 - 1) < 0.15)

    def _red_pixels(self):
        self.red = self.monthly.picture().count(RED, 0, 0, *self.monthly.size())
        return self.red

    # A window is there before all of it is painted.
    def _see_marks(self, scale, are_as_large_as_they_should):
        self.program.more_environment["QT_SCALE_FACTOR"] = str(scale)
        self.monthly = monthly = self.start_monthly()
        wait_until(lambda: are_as_large_as_they_should(self._red_pixels()),
                   f"the marks grow with the scale of {scale}", found=lambda: self.red)
        monthly.press_key("ctrl+y")
        for calendar in CALENDARS:
            self.program.year_window(calendar)
        monthly.press_key("ctrl+q")
        self.assert_ends_well()
        self.settings.path.unlink()


class Clocks(FaultTest):
    """The computer's clock at the ends of what the calendars show, and beyond."""

    def test_year_1(self):
        self._check("0001-01-01")

    def test_year_3000(self):
        self._check("3000-12-31")

    def test_year_3001(self):
        self._check("3001-01-01")

    def test_year_9999(self):
        self._check("9999-12-31")

    def _check(self, date):
        libraries = list(pathlib.Path("/usr/lib").glob("*/faketime/libfaketime.so.1"))
        self.program.more_environment |= {
            "LD_PRELOAD": str(libraries[0]), "FAKETIME": f"@{date} 12:00:00",
            "FAKETIME_DONT_FAKE_MONOTONIC": "1", "TZ": "UTC"}
        monthly = self.start_monthly()
        monthly.press_key("ctrl+y")
        for calendar in CALENDARS:
            self.program.year_window(calendar)
        self.assert_titles([MONTHLY_TITLE, *YEAR_TITLES.values()])
        monthly.press_key("ctrl+q")
        self.assert_ends_well()
