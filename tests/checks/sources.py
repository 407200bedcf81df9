# SPDX-License-Identifier: MIT
"""The project's files without what is built from them."""

import pathlib
import shutil
import subprocess

ROOT = pathlib.Path(__file__).resolve().parents[2]

# A folder like those of people, not of programmers.
AWKWARD_NAME = "ä b"


def names():
    said = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
                          cwd=ROOT, text=True, check=True, stdout=subprocess.PIPE).stdout
    return [name for name in said.split("\0") if (ROOT / name).is_file()]


def copy(folder):
    for name in names():
        target = folder / name
        target.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(ROOT / name, target)
    return folder
