# SPDX-License-Identifier: MIT
"""The commands that compile a built tree, as tools built on clang can take them:
without the headers that were compiled beforehand, which only the compiler that
compiled them can read."""

import json
import pathlib
import re

HEADER = r'("[^"]*|\S+)/cmake_pch\.hxx'
PRECOMPILED = re.compile(f' -Winvalid-pch( -Xclang -include-pch -Xclang {HEADER}\\.pch"?)?'
                         f'( -Xclang)? -include( -Xclang)? {HEADER}"?')


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
