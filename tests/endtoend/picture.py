# SPDX-License-Identifier: MIT
"""Pictures of the screen as pixels."""

import re

RED = b"\xff\x00\x00"
SUBSTITUTE_MOON = b"\xff\xff\xc0"


class Picture:
    def __init__(self, width, pixels):
        self._width = width
        self._pixels = pixels

    def count(self, color, left, top, width, height):
        """The number of pixels of exactly this colour in a rectangle."""
        return sum(self._row(y, left, width).count(color) for y in range(top, top + height))

    def runs(self, color, width):
        """In the first line that has so many pixels of exactly this colour in a row,
        left and top of each of these rows."""
        for y in range(len(self._pixels) // (3 * self._width)):
            line = self._row(y, 0, self._width)
            lefts = [x for x in range(self._width - width + 1)
                     if line[x] == color and line[x:x + width] == [color] * width]
            if lefts:
                return [(x, y) for x in lefts]
        return []

    def count_lighter(self, level, left, top, width, height):
        """The number of pixels in a rectangle of which each colour is above a level."""
        return sum(min(pixel) > level
                   for y in range(top, top + height) for pixel in self._row(y, left, width))

    def _row(self, y, left, width):
        start = 3 * (y * self._width + left)
        row = self._pixels[start:start + 3 * width]
        return [row[at:at + 3] for at in range(0, len(row), 3)]


def read_ppm(path):
    data = path.read_bytes()
    header = re.match(rb"P6\s+(\d+)\s+\d+\s+255\s", data)
    if not header:
        raise AssertionError("the picture of the screen cannot be read")
    return Picture(int(header.group(1)), data[header.end():])
