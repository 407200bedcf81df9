# SPDX-License-Identifier: MIT
"""Which lines and branches of each room the tests ran, from gcov's records."""

import collections
import json
import pathlib
import subprocess
import tempfile


def forget(build):
    for record in build.rglob("*.gcda"):
        record.unlink()


def records(build):
    """What gcov says of each record, file by file."""
    with tempfile.TemporaryDirectory() as folder:
        for record in sorted(build.rglob("*.gcda")):
            said = subprocess.run(
                ["gcov", "--json-format", "--branch-probabilities", "--stdout", record],
                cwd=folder, check=True, capture_output=True, text=True).stdout
            yield from (file for line in said.splitlines() for file in json.loads(line)["files"])


class Room:
    def __init__(self):
        self.lines = collections.Counter()
        self.branches = collections.Counter()

    def add(self, name, line):
        """Counts a line of a file, which a header has in several records. Ways that
        an exception of the library takes are none of ours."""
        at = (name, line["line_number"])
        self.lines[at] += line["count"]
        for i, branch in enumerate(line["branches"]):
            if not branch["throw"]:
                self.branches[(*at, i)] += branch["count"]

    def figures(self):
        return {"lines": len(self.lines), "lines_run": sum(map(bool, self.lines.values())),
                "branches": len(self.branches),
                "branches_taken": sum(map(bool, self.branches.values()))}


def coverage(source, build):
    """By room; the build names sources as they lie in the project, whose folder it hides."""
    rooms = collections.defaultdict(Room)
    for file in records(build):
        path = pathlib.Path(source.parent, file["file"]).resolve()
        if source in path.parents and path.parent != source:
            for line in file["lines"]:
                rooms[path.parent.name].add(path.name, line)
    if not rooms:
        raise SystemExit(f"gcov knows no source of {source}.")
    return {name: room.figures() for name, room in sorted(rooms.items())}
