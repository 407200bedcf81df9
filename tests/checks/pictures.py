# SPDX-License-Identifier: MIT
"""Fails unless the pictures of the documentation show the program as it is: drawn
again by the program named, they are the same but for a few pixels, by which
letters differ from one computer to another."""

import pathlib
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
PICTURES = ROOT / "docs" / "pictures"
DIFFERENT = "15%"  # of a channel's range
TOLERATED = 20  # pixels


def draw(program, folder):
    subprocess.run([program, folder], env={"QT_LOGGING_RULES": "default.warning=false"}, check=True)


def differing_pixels(ours, drawn):
    """None where the pictures cannot be compared."""
    done = subprocess.run(["compare", "-metric", "AE", "-fuzz", DIFFERENT, ours, drawn, "null:"],
                          capture_output=True, text=True, check=False)
    count = re.match(r"[\d.e+]+", done.stderr)
    return float(count[0]) if count and done.returncode < 2 else None


def faults(drawn):
    ours = {path.name for path in PICTURES.glob("*.png")}
    made = {path.name for path in drawn.glob("*.png")}
    for name in sorted(ours ^ made):
        yield f"{name} is {'drawn by nobody' if name in ours else 'not in docs/pictures'}"
    for name in sorted(ours & made):
        pixels = differing_pixels(PICTURES / name, drawn / name)
        if pixels is None or pixels > TOLERATED:
            yield f"{name} shows what is no longer so"


def main():
    with tempfile.TemporaryDirectory() as folder:
        draw(sys.argv[1], folder)
        found = list(faults(pathlib.Path(folder)))
    if found:
        found.append("docs/make_pictures.sh draws them again")
    print("\n".join(found) or "the pictures show the program as it is")
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
