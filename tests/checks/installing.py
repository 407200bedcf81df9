# SPDX-License-Identifier: MIT
"""Fails when the link in the folder of programs does not lead to the installed
program, whether the folder of libraries goes along with the prefix or not."""

import pathlib
import shutil
import subprocess
import sys
import tempfile

NAME = "orvalen-years-calendar"


def cmake(*arguments):
    subprocess.run(["cmake", *arguments], check=True, stdout=subprocess.DEVNULL)


def installed(programs, folder, libraries):
    """Installs the built program; returns its link and the program itself."""
    build, prefix = folder / "build", folder / "prefix"
    cmake("-G", "Ninja", "-S", ".", "-B", build, f"-DCMAKE_INSTALL_LIBDIR={libraries}",
          f"-DCMAKE_INSTALL_PREFIX={prefix}", f"-DORVALEN_MAKE_MOON={programs}/make_moon")
    cmake("--build", build, "--target", "moon_picture", "languages", "documents", "icons")
    shutil.copy(pathlib.Path(programs) / NAME, build / "bin")
    cmake("--install", build)
    return prefix / "bin" / NAME, prefix / libraries / NAME / NAME


def leads_to_program(programs, libraries):
    with tempfile.TemporaryDirectory(prefix="orvalen-install-") as name:
        folder = pathlib.Path(name)
        link, program = installed(programs, folder, str(libraries).format(folder=folder))
        return link.is_symlink() and program.is_file() and link.resolve() == program.resolve()


def main(programs):
    faults = [libraries for libraries in ("lib", "lib/one/more", "{folder}/elsewhere/lib")
              if not leads_to_program(programs, libraries)]
    print("\n".join(faults) or "the links lead to the program")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main(*sys.argv[1:])
