# SPDX-License-Identifier: MIT
"""Fails when the last commit, made into a package by different people in different
folders, gives two different packages."""

import os
import pathlib
import subprocess
import sys
import tempfile

import sources

MAKERS = {
    "here": ({"TZ": "Pacific/Kiritimati", "LC_ALL": "C"}, 0o022),
    f"another/deeper/{sources.AWKWARD_NAME}/place":
        ({"TZ": "Etc/GMT+12", "LC_ALL": "C.UTF-8"}, 0o077),
}


def package(folder, variables, umask):
    options = {"check": True, "env": {**os.environ, **variables}, "umask": umask}
    subprocess.run(["git", "clone", "--quiet", sources.ROOT, folder], **options)
    subprocess.run(["dpkg-buildpackage", "--build=binary", "--no-sign"], cwd=folder,
                   stdout=subprocess.DEVNULL, **options)
    made, = folder.parent.glob("orvalen-years-calendar_*.deb")
    return made.read_bytes()


def main():
    with tempfile.TemporaryDirectory(prefix="orvalen-reproducible-") as name:
        made = {package(pathlib.Path(name) / folder / "calendar", *maker)
                for folder, maker in MAKERS.items()}
    print("both packages are the same" if len(made) == 1 else "the packages differ")
    sys.exit(0 if len(made) == 1 else 1)


if __name__ == "__main__":
    main()
