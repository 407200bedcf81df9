# SPDX-License-Identifier: MIT
"""What the program sounds like: python3 sounds.py <folder of the built program>
writes docs/sounds.md as it is heard now."""

import pathlib
import sys
import tempfile

sys.dont_write_bytecode = True  # before the modules beside this file

from desktop import Desktop
from program import Program, copy_program
from screenreader import ScreenReader
from sessionbus import SessionBus

PAGE = pathlib.Path(__file__).resolve().parents[2] / "docs" / "sounds.md"
DAY = "2026-11-20"

# Before what Orca says of a text field while it is edited, which is its own affair.
ANYTHING = "\u2026"

MONTHLY = ["Monthly calendars frame."]
OPTIONS = ["Options dialog.", "Moslem calendar panel.",
           "This program version support two types of Moslem calendar with 30 years (Arab) cycle:",
           "Hegira — July 15, 622 A.D. "
           "Leap years of the cycle: 2, 5, 7, 10, 13, 15, 18, 21, 24, 26, 29.",
           "selected radio button"]
ABOUT = ["About Orvalen Years Calendar, Version 1.1.0 dialog This program grew out of the wish to "
         "have one day before one's eyes in four calendars at once. "
         "The Orvalen Years Calendar developers © 1998—2001 E-mail: calendar@example.org "
         "Home Page: https://example.org/calendar.",
         "OK push button.", "Close."]

# What is done; with which keys, as xdotool has them, or words that are typed; what is
# said.
ENGLISH = [
    ("The program starts", [],
     [*MONTHLY, "Julian calendar, Monthly calendar.", "List with 30 items.",
      "Friday, 7 November 2026, Julian calendar, selected."]),
    ("The day before", ["Up"], ["Thursday, 6 November 2026, Julian calendar."]),
    ("It is chosen", ["Return"], ["Thursday, 6 November 2026, Julian calendar, selected."]),
    ("The day after", ["Down"], ["Friday, 7 November 2026, Julian calendar."]),
    ("The week's last", ["Down"], ["Saturday, 8 November 2026, Julian calendar."]),
    ("The next week's first", ["Down"], ["Sunday, 9 November 2026, Julian calendar."]),
    ("The month after", ["Next"], ["Saturday, 6 December 2026, Julian calendar, selected."]),
    ("Its first day", ["Home"], ["Monday, 1 December 2026, Julian calendar, selected."]),
    ("Back to the list of months", ["shift+Tab"],
     ["Julian calendar, Month combo box.", "12/12 December."]),
    ("The month before", ["Up"], ["11/12 November."]),
    ("The fifth month", ["type 5"], ["5/12 May."]),
    ("Back to the list of years", ["shift+Tab"], ["Julian calendar, Year combo box.", "2026."]),
    ("Another year", ["type 2028"], ["2028."]),
    ("The year after", ["Down"], ["2029."]),
    ("Back to the calendar of the pane", ["shift+Tab"],
     ["Julian calendar, Calendar combo box.", "Julian calendar."]),
    ("The next pane", ["F6"],
     ["Gregorian calendar, Monthly calendar.", "List with 31 items.",
      "Monday, 14 May 2029, Gregorian calendar, selected."]),
    ("On to the day of the year", ["Tab"],
     ["Gregorian calendar, Year day number combo box.", "134/365."]),
    ("The day after", ["Down"], ["135/365."]),
    ("On to the week of the year", ["Tab"],
     ["Gregorian calendar, Year week number combo box.", "20/53."]),
    ("The week before", ["Up"], ["19/53."]),
    ("The pane before", ["shift+F6"],
     ["Julian calendar, Monthly calendar.", "List with 30 items.",
      "Tuesday, 25 April 2029, Julian calendar, selected."]),
    ("Today", ["ctrl+t"], ["Friday, 7 November 2026, Julian calendar, selected."]),
    ("The second pane", ["F6"],
     ["Gregorian calendar, Monthly calendar.", "List with 30 items.",
      "Friday, 20 November 2026, Gregorian calendar, selected."]),
    ("The third pane", ["F6"],
     ["Jewish calendar, Monthly calendar.", "List with 30 items.",
      "Friday, 10 Kislev 5787, Jewish calendar, selected."]),
    ("The last pane", ["F6"],
     ["Moslem calendar, Monthly calendar.", "List with 29 items.",
      "Friday, 10 Jumada II 1448, Moslem calendar, selected."]),
    ("Its list of months", ["shift+Tab"],
     ["Moslem calendar, Month combo box.", "6/12 Jumada II."]),
    ("The last month", ["End"], ["12/12 Dhul-Hijjah."]),
    ("What the calendars have in common", ["F6"], ["Week day combo box.", "Sunday."]),
    ("Another weekday", ["Up"], ["Saturday."]),
    ("On to the moon's age", ["Tab"], ["Moon age (in days) combo box.", "9.4."]),
    ("A day more", ["Down"], ["10.4."]),
    ("On to the moon", ["Tab"], ["Moon push button."]),
    ("On to the Julian Day", ["Tab"], [ANYTHING, "Julian Day editable combo box.", "2461542."]),
    ("Another", ["ctrl+a", "type 2451545", "Return"],
     [ANYTHING, "Saturday, 19 December 1999, Julian calendar."]),
    ("One out of the range", ["ctrl+a", "type 99", "Return"],
     [ANYTHING, "alert Orvalen Years Calendar.",
      "Julian Days admissible range: 1721319 — 2817404.", "OK push button."]),
    ("The message is closed", ["ctrl+w"],
     [ANYTHING, *MONTHLY, "Julian Day editable combo box.", "99."]),
    ("The number is taken back", ["Escape"],
     [ANYTHING, "Saturday, 19 December 1999, Julian calendar."]),
    ("Back to the moon", ["shift+Tab"], ["Moon push button."]),
    ("Its window", ["space"], ["Moon frame.", "Moon image.", "Moon age (in days) 24.3."]),
    ("Today", ["ctrl+t"], ["Moon age (in days) 10.6."]),
    ("The window is closed", ["Escape"], [*MONTHLY, "Moon push button."]),
    ("The year windows", ["ctrl+y"],
     ["Julian calendar frame.", "Julian calendar, Year calendar.", "List with 365 items.",
      "Friday, 7 November 2026, Julian calendar, selected."]),
    ("The week before", ["Left"], ["Friday, 31 October 2026, Julian calendar."]),
    ("It is chosen", ["Return"], ["Friday, 31 October 2026, Julian calendar, selected."]),
    ("The year before", ["Prior"], ["Thursday, 31 October 2025, Julian calendar, selected."]),
    ("On to the list of years", ["Tab"], ["Julian calendar, Year combo box.", "2025."]),
    ("The year after", ["Down"], ["2026."]),
    ("On to a button", ["Tab"], ["Julian calendar, Previous year push button."]),
    ("It is pressed", ["space"], ["Thursday, 31 October 2025, Julian calendar."]),
    ("The next button", ["Tab"], ["Julian calendar, Next year push button."]),
    ("It is pressed", ["space"], ["Friday, 31 October 2026, Julian calendar."]),
    ("The next button", ["Tab"], ["Julian calendar, Today push button."]),
    ("It is pressed", ["space"], ["Friday, 7 November 2026, Julian calendar."]),
    ("The window is closed", ["ctrl+w"], [*MONTHLY, "Moon push button."]),
    ("The options", ["ctrl+comma"], OPTIONS),
    ("On to the first days of weeks", ["Tab"],
     ["First day of the week panel.", "Julian calendar combo box.", "Sunday."]),
    ("Another weekday", ["Up"], ["Saturday."]),
    ("Another weekday", ["Up"], ["Friday."]),
    ("The options are left", ["Escape"], [*MONTHLY, "Moon push button."]),
    ("About the program", ["F1"], ABOUT),
    ("The box is closed", ["Escape"], [*MONTHLY, "Moon push button."]),
]

HEBREW = [
    ("The program starts", [],
     ["לוחות חודשיים frame.", "הלוח היוליאני, לוח חודשי.", "List with 30 items.",
      "יום שישי, 7 נובמבר 2026, הלוח היוליאני, נבחר."]),
    ("The day before", ["Up"], ["יום חמישי, 6 נובמבר 2026, הלוח היוליאני."]),
    ("It is chosen", ["Return"], ["יום חמישי, 6 נובמבר 2026, הלוח היוליאני, נבחר."]),
    ("The month after", ["Next"], ["יום שבת, 6 דצמבר 2026, הלוח היוליאני, נבחר."]),
    ("Back to the list of months", ["shift+Tab"],
     ["הלוח היוליאני, חודש combo box.", "12/12 דצמבר."]),
    ("The month before", ["Up"], ["11/12 נובמבר."]),
    ("The next pane", ["F6"],
     ["הלוח הגרגוריאני, לוח חודשי.", "List with 30 items.",
      "יום חמישי, 19 נובמבר 2026, הלוח הגרגוריאני, נבחר."]),
    ("On to the day of the year", ["Tab"],
     ["הלוח הגרגוריאני, מספר היום בשנה combo box.", "323/365."]),
    ("The day after", ["Down"], ["324/365."]),
    ("The year windows", ["ctrl+y"],
     ["הלוח היוליאני frame.", "הלוח היוליאני, לוח שנתי.", "List with 365 items.",
      "יום שישי, 7 נובמבר 2026, הלוח היוליאני, נבחר."]),
    ("The year before", ["Prior"], ["יום חמישי, 7 נובמבר 2025, הלוח היוליאני, נבחר."]),
    ("On to the list of years", ["Tab"], ["הלוח היוליאני, שנה combo box.", "2025."]),
    ("On to a button", ["Tab"], ["הלוח היוליאני, השנה הקודמת push button."]),
    ("It is pressed", ["space"], ["יום רביעי, 7 נובמבר 2024, הלוח היוליאני."]),
    ("The window is closed", ["ctrl+w"],
     ["לוחות חודשיים frame.", "הלוח הגרגוריאני, מספר היום בשנה combo box.", "325/366."]),
    ("The options", ["ctrl+comma"],
     ["אפשרויות dialog.", "הלוח המוסלמי panel.",
      "גרסה זו של התוכנה תומכת בשני סוגים של הלוח המוסלמי בעל מחזור (ערבי) של 30 שנה:",
      "ההיג׳רה – 15 ביולי 622 לספירה שנים מעוברות במחזור: "
      "2, 5, 7, 10, 13, 15, 18, 21, 24, 26, 29.", "selected radio button"]),
    ("On to the first days of weeks", ["Tab"],
     ["היום הראשון בשבוע panel.", "הלוח היוליאני combo box.", "יום ראשון."]),
    ("Another weekday", ["Up"], ["יום שבת."]),
]

BEGINNING = """# How it sounds

What the screen reader Orca says while the program is used by keyboard alone, on 20 November 2026. This page is
written by a command, `/usr/bin/python3 tests/endtoend/sounds.py build/quick/bin`, which listens; `./test` listens
again and fails when anything else is said. Orca has its usual settings and its English words; an ellipsis stands
for what it tells by itself of a text field that is edited.
"""


class Hearing:
    """The program, with a screen reader that writes down, on a desktop of their own."""

    def __init__(self, built, language):
        self._folder = tempfile.TemporaryDirectory(prefix="orvalen-hearing-")
        folder = pathlib.Path(self._folder.name)
        for name in ("desktop", "reader"):
            (folder / name).mkdir()
        self._desktop = Desktop(folder / "desktop")
        self._desktop.start()
        self._bus = SessionBus(self._desktop)
        self._bus.start()
        self._reader = ScreenReader(self._desktop, self._bus, folder / "reader")
        self.program = Program(self._desktop, copy_program(built, folder / "program"), folder)
        self.program.settings.write({"Startup/Language": language})
        self.program.more_environment = self._bus.environment() | at_day(DAY)

    def start(self):
        self._reader.start()

    def stop(self):
        self.program.kill()
        self._reader.stop()
        self._bus.stop()
        self._desktop.stop()
        self._folder.cleanup()

    def do(self, keys, expected):
        """What is said then."""
        if not keys:
            self.program.start()
        for number, key in enumerate(keys):
            if number > 0:  # a quick one keeps the reader from what came before
                self._reader.listen()
            if key.startswith("type "):
                self._desktop.xdotool("type", key.removeprefix("type "))
            else:
                self._desktop.xdotool("key", key)
        said = self._reader.hear(lambda said: is_as_expected(said, expected))
        return expected if is_as_expected(said, expected) else said


def is_as_expected(said, expected):
    if expected[0] != ANYTHING:
        return said == expected
    return said[1 - len(expected):] == expected[1:]


def at_day(date):
    libraries = list(pathlib.Path("/usr/lib").glob("*/faketime/libfaketime.so.1"))
    return {"LD_PRELOAD": str(libraries[0]), "FAKETIME": f"@{date} 12:00:00",
            "FAKETIME_DONT_FAKE_MONOTONIC": "1", "TZ": "UTC"}


def in_page(script):
    """The table of a script of which is known what was said."""
    rows = ["| what is done | what is said |", "|---|---|"]
    for what, keys, said in script:
        keyed = ", ".join(f"`{key}`" for key in keys)
        done = f"{what}: {keyed}" if keyed else what
        rows.append(f"| {done} | {'<br>'.join(said)} |")
    return "\n".join(rows) + "\n"


def page(english, hebrew):
    return "\n".join([BEGINNING, "## In English\n", in_page(english), "## In Hebrew\n",
                      in_page(hebrew)])


def hear(built, language, script):
    """The script with what is really said."""
    hearing = Hearing(built, language)
    try:
        hearing.start()
        return [(what, keys, hearing.do(keys, said)) for what, keys, said in script]
    finally:
        hearing.stop()


def main(arguments):
    built = pathlib.Path(arguments[0]).resolve()
    PAGE.write_text(page(hear(built, "English (Default)", ENGLISH), hear(built, "Hebrew", HEBREW)),
                    encoding="utf-8")


if __name__ == "__main__":
    main(sys.argv[1:])
