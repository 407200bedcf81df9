# SPDX-License-Identifier: MIT
"""Fails when the package, installed on this system, does not do its main job there.
Where it was not installed before, it is removed again."""

import pathlib
import subprocess
import sys
import tempfile

import sources

sys.path.insert(0, str(sources.ROOT / "tests/endtoend"))
from test_package import PACKAGE, make_package  # noqa: E402


def main(programs):
    there = subprocess.run(["dpkg-query", "--status", PACKAGE], capture_output=True, check=False)
    if there.returncode == 0:
        sys.exit(f"{PACKAGE} is installed already, and is left alone")
    with tempfile.TemporaryDirectory(prefix="orvalen-autopkgtest-") as name:
        folder = pathlib.Path(name)
        package = make_package(pathlib.Path(programs).resolve(), folder)
        tree = sources.copy(folder / "tree")
        done = subprocess.run(["autopkgtest", "--output-dir", folder / "out", package, tree, "--",
                               "null"], check=False)
    subprocess.run(["dpkg", "--purge", PACKAGE], check=False)
    sys.exit(done.returncode)


if __name__ == "__main__":
    main(*sys.argv[1:])
