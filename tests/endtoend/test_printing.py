# SPDX-License-Identifier: MIT
"""A page is printed into a file through the desktop's print dialog, where there is
no printer."""

import datetime
import subprocess

from testcase import EndToEndTest
from waiting import wait_until

DIALOG_TITLE = "Print"


class OnPaper(EndToEndTest):
    def test_a_year_into_the_file_that_is_proposed(self):
        year = self.start_year("Jewish")
        self._open_dialog(year)
        self._press_until_gone("Return")
        (printed,) = self._wait_for_pages()
        self.assertRegex(printed.name, r"^Jewish calendar \d{4}\.pdf$")
        self.assertEqual(self._text_of(printed).splitlines()[0], printed.stem)
        year.press_key("ctrl+q")
        self.assert_ends_well()

    def test_a_cancelled_month_leaves_the_day_and_no_file(self):
        monthly = self.start_monthly()
        today = f"Gregorian calendar: {datetime.date.today():%-d %B %Y}\n"
        self._open_dialog(monthly)
        self._press_until_gone("Escape")
        monthly.wait_until_in_front()
        monthly.press_key("ctrl+c")
        wait_until(lambda: today in self.desktop.copied_text(), "the day is copied",
                   found=self.desktop.copied_text)
        self.assertEqual(self._pages(), [])
        monthly.press_key("ctrl+q")
        self.assert_ends_well()

    def test_a_full_disk_is_told_and_leaves_no_file(self):
        self.program.run_by(["sh", "-c", "trap '' XFSZ; ulimit -f 4; exec \"$@\"", "sh"])
        year = self.start_year("Moslem")
        self._open_dialog(year)
        self._press_until_gone("Return")
        self.program.message_box().accept()
        wait_until(lambda: not self.program.message_boxes(), "the message is gone",
                   found=self.program.describe_windows)
        year.wait_until_in_front()
        self.assertEqual(list(self.program.home.iterdir()), [])
        year.press_key("ctrl+q")
        self.assert_ends_well()

    def _open_dialog(self, window):
        window.wait_until_in_front()
        window.press_key("ctrl+p")
        wait_until(lambda: self._dialog() and self.desktop.front_window() == self._dialog(),
                   "the print dialog is in front", found=self.program.describe_windows)

    def _press_until_gone(self, key):
        self.desktop.xdotool("key", key)
        wait_until(lambda: not self._dialog(), "the print dialog is gone",
                   found=self.program.describe_windows)

    def _dialog(self):
        return next((window.number for window in self.program.managed_windows()
                     if window.title == DIALOG_TITLE), None)

    def _pages(self):
        return sorted(self.program.home.glob("**/*.pdf"))

    def _wait_for_pages(self):
        wait_until(self._pages, "a page is printed", found=self.program.describe_windows)
        return self._pages()

    @staticmethod
    def _text_of(page):
        done = subprocess.run(["pdftotext", "-layout", str(page), "-"], text=True,
                              capture_output=True, check=True)
        return done.stdout
