# SPDX-License-Identifier: MIT
"""Fails unless all papers speak of the same release, and of the same day where they
name one."""

import email.utils
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
VERSION = r"(\d+\.\d+\.\d+)"
VERSIONS = {
    "CMakeLists.txt": rf"^project\(\S+ VERSION {VERSION} ",
    "CHANGELOG.md": rf"^## {VERSION}$",
    "CONTRIBUTING.md": rf"_{VERSION}\.orig\.tar",
    "debian/changelog": rf"^\S+ \({VERSION}-\d+\) ",
    "packaging/org.example.orvalen_years_calendar.metainfo.xml": rf'<release version="{VERSION}" ',
    "tests/start/frmabout_test.cpp": rf'"Version {VERSION}"',
}
DAYS = {
    "packaging/org.example.orvalen_years_calendar.metainfo.xml": r'<release .* date="([\d-]+)"',
    "packaging/orvalen-years-calendar.1": r"^\.TH \S+ 1 ([\d-]+) ",
}


def first(name, pattern):
    found = re.search(pattern, (ROOT / name).read_text(encoding="utf-8"), re.MULTILINE)
    return found[1] if found else "nothing"


def day_of_package():
    written = first("debian/changelog", r"^ -- .*>  (.*)$")
    return email.utils.parsedate_to_datetime(written).date().isoformat()


def main():
    versions = {name: first(name, pattern) for name, pattern in VERSIONS.items()}
    days = {name: first(name, pattern) for name, pattern in DAYS.items()}
    days["debian/changelog"] = day_of_package()
    agreed = len(set(versions.values())) == 1 and len(set(days.values())) == 1
    for said in [] if agreed else (versions, days):
        print("\n".join(f"{name}: {what}" for name, what in said.items()))
    sys.exit(0 if agreed else 1)


if __name__ == "__main__":
    main()
