# SPDX-License-Identifier: MIT
"""Fails on an include or a forward declaration that a file does not use, as
include-what-you-use judges. What that tool would add is not asked: it counts what
comes with a base class or a library's own header as missing."""

import json
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

import compile_database

ROOT = pathlib.Path(__file__).resolve().parents[2]
OURS = re.compile(r"/(src|tests|bench|docs|assets)/(?!.*_autogen/|\.rcc/).*\.cpp$")

# Headers of GCC 12's library that the tool does not know yet.
STANDARD = {"bits/chrono.h": "chrono", "bits/std_abs.h": "cmath", "bits/ranges_algo.h": "algorithm",
            "bits/utility.h": "utility", "bits/ranges_util.h": "algorithm"}


def qt_headers(commands):
    """Each of Qt's headers with the one that it is asked by."""
    folders = {folder for command in commands
               for folder in re.findall(r"-isystem (\S*/Qt[A-Z]\w+)", command)}
    for folder in folders:
        for header in pathlib.Path(folder).glob("Q*"):
            asked = header.is_file() and re.match(r'#include "(\w+\.h)"', header.read_text())
            if asked:
                yield asked[1], header.name


def mapping(commands):
    pairs = [*STANDARD.items(), *sorted(set(qt_headers(commands)))]
    rows = [{"include": [f"<{inner}>", "private", f"<{outer}>", "public"]} for inner, outer in pairs]
    return json.dumps(rows)


def is_used_by_name(path, line):
    """Several of Qt's names stand for one header; the one that is asked is the
    one whose name is used."""
    name = re.search(r"<(Q\w+)>", line)
    return name and len(re.findall(rf"\b{name[1]}\b", path.read_text(encoding="utf-8"))) > 1


def idle(entry, mappings):
    words = [word for word in shlex.split(entry["command"]) if word not in ("ccache", "-Werror")]
    said = subprocess.run(
        ["include-what-you-use", "-Xiwyu", f"--mapping_file={mappings}", *words[1:]],
        cwd=entry["directory"], text=True, capture_output=True, check=False).stderr
    if not re.search("should remove|has correct", said):
        yield f"{entry['file']} could not be read:\n{said}"
    for path, lines in re.findall(r"^(.+) should remove these lines:\n((?:- .*\n)*)", said, re.M):
        for line in lines.splitlines():
            if not is_used_by_name(pathlib.Path(path), line):
                yield f"{pathlib.Path(path).relative_to(ROOT)}: {line[2:]}"


def main(part):
    # A tree in which each source is compiled by itself.
    subprocess.run(["cmake", "--preset", "dev"], cwd=ROOT, check=True, stdout=subprocess.DEVNULL)
    tree = ROOT / "build/dev"
    entries = [entry for entry in compile_database.commands(tree)
               if OURS.search(entry["file"]) and f"/{part}/" in entry["file"]]
    with tempfile.NamedTemporaryFile("w", suffix=".imp") as mappings:
        mappings.write(mapping([entry["command"] for entry in entries]))
        mappings.flush()
        found = sorted({line for entry in entries for line in idle(entry, mappings.name)})
    print("\n".join(found))
    return int(bool(found))


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
