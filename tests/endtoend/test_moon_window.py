# SPDX-License-Identifier: MIT
"""The moon window."""

import pathlib
import re

from testcase import EndToEndTest


class MoonWindow(EndToEndTest):
    def test_the_monthly_windows_button_opens_it(self):
        self._open(self.start_monthly().press_moon)

    def test_a_year_windows_button_opens_it(self):
        julian = self.start_year("Julian")
        self._open(lambda: julian.press("moon"))

    def test_escape_hides_it(self):
        moon = self._open(self.start_monthly().press_moon)
        moon.press_key("Escape")
        moon.wait_until_gone()
        self.assertTrue(self.program.is_running())

    def test_it_opens_again_after_escape(self):
        monthly = self.start_monthly()
        moon = self._open(monthly.press_moon)
        moon.press_key("Escape")
        moon.wait_until_gone()
        self._open(monthly.press_moon)

    def test_it_opens_again_after_a_frame_close(self):
        monthly = self.start_monthly()
        moon = self._open(monthly.press_moon)
        moon.close_by_frame()
        moon.wait_until_gone()
        again = self._open(monthly.press_moon)
        again.press_key("Escape")
        again.wait_until_gone()

    def test_double_click_on_the_picture_brings_the_hidden_monthly_window_back(self):
        julian = self.start_year("Julian")
        julian.open_monthly_by_double_click()
        monthly = self.program.monthly_window()
        monthly.wait_until_in_front()
        monthly.press("close")
        monthly.wait_until_gone()
        moon = self._open(lambda: julian.press("moon"))
        moon.double_click(moon.middle())
        self.program.monthly_window().wait_until_in_front()

    def test_its_picture_is_read_without_asking_for_memory_by_the_hundred_megabytes(self):
        self.start_monthly()
        status = pathlib.Path(f"/proc/{self.program.pid()}/status").read_text()
        kilobytes = {name: int(count) for name, count in re.findall(r"(\w+):\s+(\d+) kB", status)}
        self.assertLess(kilobytes["VmPeak"] - kilobytes["VmSize"], 100_000)

    def _open(self, press):
        press()
        moon = self.program.moon_window()
        moon.wait_until_in_front()
        return moon
