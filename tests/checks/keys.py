# SPDX-License-Identifier: MIT
"""Fails unless the front page, the user guide and the manual page name the same
keys, and among them every key of a command."""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
COMMAND = re.compile(r"\{Command::\w+, ((?:Qt::CTRL \| )?)Qt::Key_(\w+)[,}]")


def text_of(path):
    return (ROOT / path).read_text(encoding="utf-8")


def in_tables(path):
    """The first column of the tables that begin with the title `key`."""
    keys = []
    for table in re.findall(r"^\| key \|.*\n((?:\|.*\n)+)", text_of(path), re.MULTILINE):
        rows = table.splitlines()[1:]  # without the line below the title
        keys += [row.split("|")[1] for row in rows]
    return keys


def in_manual_page(path):
    chapter = re.search(r"^\.SH KEYS\n(.*?)^\.SH ", text_of(path), re.MULTILINE | re.DOTALL)
    return re.findall(r"^\.TP\n\.B (.*)", chapter[1], re.MULTILINE)


def of_commands(path):
    return [("Ctrl+" if modifier else "") + key.replace("Comma", "comma")
            for modifier, key in COMMAND.findall(text_of(path))]


def single(entries):
    """Of "Home, End" two keys."""
    return {key.strip() for entry in entries for key in entry.split(",")}


def main():
    named = {path: single(in_tables(path)) for path in ("README.md", "docs/user-guide.md")}
    page = "packaging/orvalen-years-calendar.1"
    named[page] = single(in_manual_page(page))
    commands = single(of_commands("src/controls/commands.cpp"))
    every = commands.union(*named.values())
    faults = [f"{path} does not name {key}"
              for path, keys in named.items() for key in sorted(every - keys)]
    if not commands:
        faults.append("no command has a key")
    print("\n".join(faults) or f"{len(every)} keys are named everywhere")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
