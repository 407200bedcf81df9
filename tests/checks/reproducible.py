# SPDX-License-Identifier: MIT
"""Fails when the last commit, built and packed in two folders, gives two different
packages."""

import pathlib
import subprocess
import sys
import tempfile


def run(folder, *command):
    subprocess.run(command, cwd=folder, check=True, stdout=subprocess.DEVNULL)


def package(folder):
    run(".", "git", "clone", "--quiet", ".", folder)
    run(folder, "cmake", "--preset", "release")
    run(folder, "cmake", "--build", "--preset", "release")
    run(folder / "build/release", "cpack")
    made, = folder.glob("build/release/*.deb")
    return made.read_bytes()


def main():
    with tempfile.TemporaryDirectory(prefix="orvalen-reproducible-") as name:
        folder = pathlib.Path(name)
        same = package(folder / "here") == package(folder / "another/deeper/place")
    print("both packages are the same" if same else "the packages differ")
    sys.exit(0 if same else 1)


if __name__ == "__main__":
    main()
