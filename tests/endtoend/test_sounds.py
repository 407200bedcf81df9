# SPDX-License-Identifier: MIT
"""What a screen reader says while the program is used by keyboard alone."""

import unittest

import screenreader
import sounds
from testcase import EndToEndTest


class Sounds(unittest.TestCase):
    maxDiff = None

    def test_in_english(self):
        self._compare("English (Default)", sounds.ENGLISH)

    def test_in_hebrew(self):
        self._compare("Hebrew", sounds.HEBREW)

    def test_the_page_says_the_same(self):
        self.assertEqual(sounds.PAGE.read_text(encoding="utf-8"),
                         sounds.page(sounds.ENGLISH, sounds.HEBREW))

    def _compare(self, language, script):
        if not screenreader.is_installed():
            self.skipTest("there is no Orca")
        heard = sounds.hear(EndToEndTest.built, language, script)
        wrong = [step for step, expected in zip(heard, script) if step != expected]
        self.assertEqual(wrong, [])
