# SPDX-License-Identifier: MIT
"""Fails unless sources in a folder whose name has a blank and a letter beyond ASCII
build, and install for everybody what a user with a strict umask has built: with a
link that leads to the program and a manual page that names its folder, wherever the
libraries' programs go."""

import os
import pathlib
import shlex
import shutil
import stat
import subprocess
import sys
import tempfile

import sources

NAME = "orvalen-years-calendar"
STRICT = 0o077
TARGETS = ["shared", "moon_picture", "languages", "icons"]


def copier(picture, folder):
    """A program that gives the picture of the moon without computing it."""
    program = folder / "make_moon"
    program.write_text(f'#!/bin/sh\nexec cp {shlex.quote(str(picture))} "$1"\n')
    program.chmod(0o755)
    return program


def cmake(*arguments):
    subprocess.run(["cmake", *arguments], check=True)


class Installation:
    """The built program, installed below a folder."""

    def __init__(self, programs, folder, programs_folder):
        build = folder / "build"
        self.prefix = folder / "prefix"
        self.folder = self.prefix / programs_folder / NAME
        cmake("-G", "Ninja", "-S", sources.copy(folder / "sources"), "-B", build,
              "-DCMAKE_BUILD_TYPE=Release", f"-DCMAKE_INSTALL_LIBEXECDIR={programs_folder}",
              f"-DORVALEN_MAKE_MOON={copier(pathlib.Path(programs) / 'Moon.bmp', folder)}")
        cmake("--build", build, "--target", *TARGETS)
        shutil.copy(pathlib.Path(programs) / NAME, build / "bin")
        cmake("--install", build, "--prefix", self.prefix)

    def faults(self):
        link, program = self.prefix / "bin" / NAME, self.folder / NAME
        if not (link.is_symlink() and program.is_file() and link.resolve() == program.resolve()):
            yield "the link does not lead to the program"
        page = (self.prefix / "share/man/man1" / f"{NAME}.1").read_text(encoding="utf-8")
        if f"\n.I {self.folder}/\n" not in page.replace("\\-", "-"):
            yield "the manual page names another folder"
        for path in [self.prefix, *self.prefix.rglob("*")]:
            if not path.is_symlink() and stat.S_IMODE(path.stat().st_mode) != usual_mode(path):
                yield f"{path.relative_to(self.prefix)} has the mode {path.stat().st_mode:o}"


def usual_mode(path):
    return 0o755 if path.is_dir() or path.name == NAME else 0o644


def faults(programs, programs_folder):
    with tempfile.TemporaryDirectory(prefix="orvalen-install-") as name:
        folder = pathlib.Path(name) / sources.AWKWARD_NAME
        folder.mkdir()
        installation = Installation(programs, folder, programs_folder.format(folder=folder))
        return [f"{programs_folder}: {fault}" for fault in installation.faults()]


def main(programs):
    os.umask(STRICT)
    found = [fault for programs_folder in ("libexec", "lib/one/more", "{folder}/elsewhere")
             for fault in faults(programs, programs_folder)]
    print("\n".join(found) or "everybody can use what is installed")
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main(*sys.argv[1:])
