# SPDX-License-Identifier: MIT
"""Puts pictures of an icon, PNG files of rising size, into one file as Windows reads
it: make_icon.py <icon.ico> <picture>..."""

import pathlib
import struct
import sys

HEADER = struct.Struct("<HHH")
ENTRY = struct.Struct("<BBBBHHII")
ICONS = 1
BITS = 32


def side_of(picture):
    width, height = struct.unpack_from(">II", picture, 16)  # of the chunk that comes first
    if not picture.startswith(b"\x89PNG") or width != height or width > 256:
        raise ValueError("no picture for an icon")
    return width


def icon_of(pictures):
    directory = HEADER.pack(0, ICONS, len(pictures))
    offset = HEADER.size + ENTRY.size * len(pictures)
    for picture in pictures:
        side = side_of(picture) % 256  # 0 stands for 256
        directory += ENTRY.pack(side, side, 0, 0, 1, BITS, len(picture), offset)
        offset += len(picture)
    return directory + b"".join(pictures)


def main(icon, *names):
    pathlib.Path(icon).write_bytes(icon_of([pathlib.Path(name).read_bytes() for name in names]))


if __name__ == "__main__":
    main(*sys.argv[1:])
