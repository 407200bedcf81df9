# SPDX-License-Identifier: MIT
"""The program's settings file."""

import configparser

TWIPS_PER_PIXEL = 15
WINDOW_SECTIONS = ("Julian", "Gregorian", "Jewish", "Moslem", "Monthly", "Moon")


class SettingsFile:
    def __init__(self, path):
        self.path = path

    def write(self, values):
        """Makes a file of these values; their names are "Section/Key"."""
        sections = {}
        for name, value in values.items():
            section, key = name.split("/")
            sections.setdefault(section, []).append(f"{key}={value}\n")
        text = "\n".join(f"[{section}]\n{''.join(lines)}" for section, lines in sections.items())
        self.path.parent.mkdir(parents=True, exist_ok=True)
        self.path.write_text(text, encoding="utf-8")

    def read(self):
        """All values by "Section/Key"."""
        parser = configparser.RawConfigParser(delimiters=["="], strict=True)
        parser.optionxform = str
        parser.read_string(self.path.read_text(encoding="utf-8"))
        return {f"{section}/{key}": value
                for section in parser.sections() for key, value in parser.items(section)}

    def bytes(self):
        """What the file holds; None when there is none."""
        return self.path.read_bytes() if self.path.exists() else None

    def position(self, section):
        """The stored place of a window's frame in pixels, left and top."""
        values = self.read()
        twips = [int(values[f"{section}/{key}"]) for key in ("Left", "Top")]
        return tuple(twip / TWIPS_PER_PIXEL for twip in twips)


def position(section, left, top):
    """The values that store a window's place, given in pixels."""
    return {f"{section}/Top": TWIPS_PER_PIXEL * top, f"{section}/Left": TWIPS_PER_PIXEL * left}


def position_names():
    return {f"{section}/{key}" for section in WINDOW_SECTIONS for key in ("Top", "Left")}
