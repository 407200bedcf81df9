# SPDX-License-Identifier: MIT
"""Fails when an include runs up a floor, across to another room of the same
floor, in a circle or to a source, and when the arithmetic uses anything of Qt."""

import pathlib
import re
import subprocess
import sys

# From the ground up. A room may include from itself and from the floors below.
FLOORS = [
    {"shared", "platform"},
    {"calc", "settings"},
    {"changecals"},
    {"controls"},
    {"monthly", "yearcals", "moon", "printing"},
    {"start"},
]
ROOMS = {room: set().union(*FLOORS[:floor])
         for floor, rooms in enumerate(FLOORS) for room in rooms}
ROOMS["calc"] = {"shared"}  # the arithmetic knows no desktop
WITHOUT_QT = {"shared", "calc"}
INCLUDE = re.compile(r'^\s*#\s*include\s*(["<])([^">]+)[">]', re.M)


def includes(path):
    return INCLUDE.findall(path.read_text(encoding="utf-8"))


def room_of(name):
    return name.split("/")[0]


def wrong_includes(source, path):
    room = room_of(path.relative_to(source).as_posix())
    for mark, name in includes(path):
        if mark == '"' and room_of(name) not in ROOMS[room] | {room}:
            yield f"{path}: {room}/ may not include {name}"
        if name.endswith(".cpp"):
            yield f"{path}: {name} is a source, which nobody includes"
        if mark == "<" and room in WITHOUT_QT and name.startswith("Q"):
            yield f"{path}: {room}/ may not include {name}"


def circle_from(graph, start, trail=()):
    """The first circle of includes that is met on the way from a file."""
    if start in trail:
        return trail[trail.index(start):] + (start,)
    for name in graph.get(start, ()):
        circle = circle_from(graph, name, trail + (start,))
        if circle:
            return circle
    return None


def unit_of(name):
    """A source and its header are one unit."""
    return name.rsplit(".", 1)[0]


def circles(source, files):
    graph = {}
    for path in files:
        unit = unit_of(path.relative_to(source).as_posix())
        others = {unit_of(name) for mark, name in includes(path) if mark == '"'} - {unit}
        graph.setdefault(unit, set()).update(others)
    for name in graph:
        circle = circle_from(graph, name)
        if circle:
            yield "circle: " + " -> ".join(circle)
            return


def linked_qt(program):
    libraries = subprocess.run(["ldd", program], capture_output=True, text=True, check=True)
    for line in libraries.stdout.splitlines():
        if "Qt" in line:
            yield f"{program} is linked with {line.strip()}"


def main(source, calc_program):
    source = pathlib.Path(source)
    files = [p for room in ROOMS for p in sorted((source / room).glob("*.[ch]*"))]
    if not files:
        sys.exit(f"no sources below {source}")
    faults = [fault for path in files for fault in wrong_includes(source, path)]
    faults += circles(source, files)
    faults += linked_qt(calc_program)
    print("\n".join(faults) or f"{len(files)} files stand on their floors")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main(*sys.argv[1:])
