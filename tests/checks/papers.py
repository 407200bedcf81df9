# SPDX-License-Identifier: MIT
"""Fails when the manual page or the entry for software catalogues gets a remark
from its own reader, or when the front page tells another number of answers than
the page on verification."""

import os
import re
import subprocess
import sys

SUCCESS = "✔ Validation was successful."
CATALOGUE_ENTRY = ["appstreamcli", "validate", "--no-net", "--no-color", "--pedantic",
                   "packaging/org.example.orvalen_years_calendar.metainfo.xml"]
MANUAL_PAGE = ["man", "--warnings", "-EUTF-8", "-Tutf8", "-Z", "-l",
               "packaging/orvalen-years-calendar.1"]


def run(command):
    return subprocess.run(command, capture_output=True, encoding="utf-8", check=False,
                          env={**os.environ, "LC_ALL": "C.UTF-8"})


def remarks_on_catalogue_entry():
    done = run(CATALOGUE_ENTRY)
    return "" if done.stdout.strip() == SUCCESS else done.stdout + done.stderr


def remarks_on_manual_page():
    done = run(MANUAL_PAGE)
    return done.stderr if done.returncode == 0 else f"{done.stderr}\nman cannot read the page"


def number_in(path, pattern):
    with open(path, encoding="utf-8") as page:
        found = re.search(pattern, page.read())
    return float(found[1].replace(",", "")) if found else 0.0


def wrong_number_of_answers():
    measured = number_in("docs/verification.md", r"([\d,]+) answers in all")
    told = number_in("README.md", r"([\d.]+) million of its answers")
    if told and told == round(measured / 1e6, 1):
        return ""
    return f"README.md tells {told} million answers, docs/verification.md {measured:,.0f}\n"


def main():
    remarks = (remarks_on_catalogue_entry() + remarks_on_manual_page() +
               wrong_number_of_answers()).strip()
    print(remarks or "the papers are in order")
    sys.exit(1 if remarks else 0)


if __name__ == "__main__":
    main()
