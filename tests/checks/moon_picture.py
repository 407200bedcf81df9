# SPDX-License-Identifier: MIT
"""Fails when the program that computes the moon's picture does not write the
known bytes, now as in the build, or writes nothing of a fault."""

import hashlib
import pathlib
import subprocess
import sys
import tempfile

KNOWN = "56bea244e4827f341ed4a2f6ecfada901b3e08f71b18e56483b41955f2241c97"


def digest(picture):
    return hashlib.sha256(picture.read_bytes()).hexdigest()


def computed(program, folder):
    picture = pathlib.Path(folder) / "Moon.bmp"
    subprocess.run([program, picture], check=True)
    return picture


def refuses(program, *arguments):
    done = subprocess.run([program, *arguments], capture_output=True, text=True, check=False)
    return done.returncode == 1 and bool(done.stderr)


def main(program):
    with tempfile.TemporaryDirectory() as folder:
        built = pathlib.Path(program).with_name("Moon.bmp")
        sums = {digest(built), digest(computed(program, folder))}
        missing = str(pathlib.Path(folder) / "no such folder" / "Moon.bmp")
        faults = [] if sums == {KNOWN} else [f"other bytes: {sums}"]
        if not refuses(program) or not refuses(program, missing):
            faults.append("a fault is not told")
    print("\n".join(faults) or "the picture is the known one")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main(*sys.argv[1:])
