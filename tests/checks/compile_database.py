# SPDX-License-Identifier: MIT
"""The commands that compile a built tree, as tools built on clang can take them:
without the headers that were compiled beforehand, which are GCC's own."""

import json
import pathlib
import re

PRECOMPILED = re.compile(r' -Winvalid-pch -include ("[^"]*|\S+)/cmake_pch\.hxx\b"?')


def commands(tree):
    """The entries of the tree's compile_commands.json."""
    entries = json.loads((pathlib.Path(tree) / "compile_commands.json").read_text())
    for entry in entries:
        entry["command"] = PRECOMPILED.sub("", entry["command"])
    return [entry for entry in entries if not entry["file"].endswith("cmake_pch.hxx.cxx")]


def write(tree):
    """Writes them below the tree, and returns the folder for a tool's -p."""
    folder = pathlib.Path(tree) / "clang"
    folder.mkdir(exist_ok=True)
    (folder / "compile_commands.json").write_text(json.dumps(commands(tree), indent=1))
    return folder
