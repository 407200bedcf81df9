# SPDX-License-Identifier: MIT
"""Choosing a language, and language files of every condition."""

import os
import random
import time

from program import copy_program
from testcase import EndToEndTest, monthly_title_of
from windows import MONTHLY_TITLE

LONGEST_START = 10  # seconds
GIBIBYTE = 1 << 30


class German(EndToEndTest):
    def setUp(self):
        super().setUp()
        self.file = self.program.folder / "German.lng"
        self.title = monthly_title_of(self.file)

    def test_choosing_it_in_the_options_changes_the_titles(self):
        self.start_monthly().choose_language("German")
        self.program.monthly_window(title=self.title)
        self.assertEqual(self.settings.read()["Startup/Language"], "German")

    def test_it_is_kept_over_a_restart(self):
        self.start_monthly().choose_language("German")
        self.program.monthly_window(title=self.title).press("close")
        self.assert_ends_well()
        self.start_monthly(title=self.title)

    def test_without_its_file_a_message_comes_and_then_the_english_titles(self):
        self.settings.write({"Startup/Language": "German"})
        self.file.unlink()
        self.program.start()
        self.program.message_box().accept()
        self.program.monthly_window(title=MONTHLY_TITLE)
        self.assertEqual(self.program.message_boxes_seen(), 1)

    def test_without_its_file_it_stays_the_stored_language(self):
        self.settings.write({"Startup/Language": "German"})
        self.file.unlink()
        self.program.start()
        self.program.message_box().accept()
        self.program.monthly_window().press("close")
        self.assert_ends_well()
        self.assertEqual(self.settings.read()["Startup/Language"], "German")

    def test_a_file_with_an_upper_case_name_is_found_without_a_message(self):
        self.settings.write({"Startup/Language": "German"})
        self.file.rename(self.file.with_name("GERMAN.LNG"))
        self.start_monthly(title=self.title)
        self.assertEqual(self.program.message_boxes_seen(), 0)


class FolderOfAnotherEncoding(EndToEndTest):
    def install(self, folder):
        return copy_program(self.built, folder / os.fsdecode(b"kalend\xe4r"))

    def test_its_languages_and_its_moon_are_found(self):
        title = monthly_title_of(self.program.folder / "German.lng")
        self.settings.write({"Startup/Language": "German"})
        self.start_monthly(title=title)
        self.assertEqual(self.program.message_boxes_seen(), 0)


class UnusualLanguageFile(EndToEndTest):
    def setUp(self):
        super().setUp()
        self.file = self.program.folder / "Xyz.lng"
        self.settings.write({"Startup/Language": "Xyz", "Julian/FirstWeekDay": 3})

    def test_a_file_of_a_gibibyte(self):
        with open(self.file, "wb") as file:
            file.truncate(GIBIBYTE)
        self._check_start()

    def test_a_file_of_zeros(self):
        self.file.write_bytes(bytes(1 << 19))
        self._check_start()

    def test_a_file_of_random_bytes(self):
        self.file.write_bytes(random.Random(1).randbytes(1 << 19))
        self._check_start()

    def test_a_folder(self):
        self.file.mkdir()
        self._check_start()

    def test_a_dangling_link(self):
        self.file.symlink_to(self.program.folder / "nowhere")
        self._check_start()

    def _check_start(self):
        stored = self.settings.bytes()
        self._start_past_messages()
        self.assertEqual(self.settings.bytes(), stored, "the settings file")
        values = self.settings.read()
        self.program.monthly_window().press("close")
        self.assert_ends_well()
        self.assertEqual(self.settings.read() | values, self.settings.read(),
                         "what was stored is kept at exit")

    def _start_past_messages(self):
        deadline = time.monotonic() + LONGEST_START
        self.program.start()
        while MONTHLY_TITLE not in self.program.titles():
            self.assertLess(time.monotonic(), deadline, self.program.describe_windows())
            if self.program.message_boxes():
                self._accept_message()

    def _accept_message(self):
        box = self.program.message_box()
        box.accept()
        box.wait_until_gone()
