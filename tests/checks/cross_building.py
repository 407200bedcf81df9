# SPDX-License-Identifier: MIT
"""Fails when a build for another machine does not compute the same picture of the
moon with a make_moon of its own, or takes another picture than that of one that it is
given."""

import pathlib
import subprocess
import sys
import tempfile

# Another machine by name only, so that no other compiler is needed.
ANOTHER_MACHINE = ["-DCMAKE_SYSTEM_NAME=Linux", "-DQT_HOST_PATH=/usr"]


def picture_of_build(*options):
    with tempfile.TemporaryDirectory(prefix="orvalen-cross-") as folder:
        for command in (["-G", "Ninja", "-S", ".", "-B", folder, *ANOTHER_MACHINE, *options],
                        ["--build", folder, "--target", "moon_picture"]):
            subprocess.run(["cmake", *command], check=True)
        return (pathlib.Path(folder) / "bin" / "Moon.bmp").read_bytes()


def main(programs):
    usual = (pathlib.Path(programs) / "Moon.bmp").read_bytes()
    own = picture_of_build()
    with tempfile.TemporaryDirectory() as folder:
        painter = pathlib.Path(folder) / "make_moon"
        painter.write_text('#!/bin/sh\nprintf "a moon" > "$1"\n')
        painter.chmod(0o755)
        given = picture_of_build(f"-DORVALEN_MAKE_MOON={painter}")
    same = own == usual and given == b"a moon"
    print("the pictures are those expected" if same else "another picture")
    sys.exit(0 if same else 1)


if __name__ == "__main__":
    main(*sys.argv[1:])
