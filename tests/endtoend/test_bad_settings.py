# SPDX-License-Identifier: MIT
"""Stored settings that are no numbers."""

from testcase import EndToEndTest
from windows import PROGRAM_TITLE


class BadSettings(EndToEndTest):
    def test_a_word_as_the_startup_window(self):
        self._check_refused({"Startup/Window": "abc"})

    def test_a_position_beyond_16_bits(self):
        self._check_refused({"Moslem/Top": 40000})

    def test_an_empty_calendar_of_a_pane(self):
        self._check_refused({"Startup/Calendar1": ""})

    def test_only_the_first_of_two_bad_settings_is_told(self):
        self._check_refused({"Startup/Calendar1": "", "Startup/Window": "abc"})

    def _check_refused(self, values):
        self.settings.write(values)
        stored = self.settings.bytes()
        self.program.start()
        box = self.program.message_box()
        self.assert_titles([PROGRAM_TITLE], "nothing but the message")
        box.accept()
        self.assertEqual(self.program.wait_for_exit(), 1, "exit status")
        self.assertEqual(self.program.message_boxes_seen(), 1)
        self.assertEqual(self.settings.bytes(), stored, "the settings file")
