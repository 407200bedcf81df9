# SPDX-License-Identifier: MIT
"""Changes the program one operator, constant, pair of arguments or statement at a
time and looks whether a test notices.

A seeded sample of all changes is judged by the tests of the changed room and of the
rooms above it. Results are kept as they come; a run that was broken off goes on
where it stopped, a first one where the published one did, and results of files that
have changed since are taken again."""

import argparse
import collections
import hashlib
import json
import pathlib
import random
import shutil

from mutants import mutants_of
from workshop import ROOT, Workshop, rooms_above

ROOMS = ["calc", "changecals", "controls", "yearcals", "monthly", "moon"]
HERE = pathlib.Path(__file__).resolve().parent


def digest(text):
    return hashlib.sha256(text.encode()).hexdigest()[:16]


class Equivalents:
    """Changes that change nothing that anybody could see, each with its reason."""

    def __init__(self):
        self._entries = json.loads((HERE / "equivalents.json").read_text())

    def reason(self, mutant):
        for entry in self._entries:
            if (entry["file"], entry["before"], entry["after"]) == \
                    (mutant.path, mutant.before, mutant.after):
                return entry["reason"]
        return None


class Results:
    def __init__(self, path, published):
        self._path = path
        former = next((one for one in (path, published) if one.exists()), None)
        rows = json.loads(former.read_text())["changes"] if former else []
        self._rows = {row["key"]: row for row in rows}

    @staticmethod
    def key(mutant, source):
        return digest(f"{mutant.path} {mutant.start} {mutant.end} {mutant.text} {digest(source)}")

    def get(self, key):
        return self._rows.get(key)

    def keep(self, row):
        self._rows[row["key"]] = row

    def write(self, head):
        rows = sorted(self._rows.values(), key=lambda row: (row["file"], row["line"], row["after"]))
        lines = ",\n".join(json.dumps(row, ensure_ascii=False) for row in rows)
        self._path.parent.mkdir(parents=True, exist_ok=True)
        self._path.write_text(f'{{"run": {json.dumps(head)},\n"changes": [\n{lines}\n]}}\n')

    def drop_others(self, room, keys):
        """Forgets what was found of a room before it changed."""
        self._rows = {key: row for key, row in self._rows.items()
                      if key in keys or not row["file"].startswith(f"src/{room}/")}


def sources_of(room):
    folder = ROOT / "src" / room
    for path in sorted([*folder.glob("*.cpp"), *folder.glob("*.h")]):
        yield path.relative_to(ROOT).as_posix(), path.read_text(encoding="utf-8")


class Run:
    def __init__(self, options):
        self.options = options
        self.results = Results(options.folder / "results.json", options.output)
        self.equivalents = Equivalents()
        self.above = rooms_above()
        self.rooms = [room for room in options.rooms if room in self.above]
        self.sources = {room: dict(sources_of(room)) for room in ROOMS if room in self.above}
        self.workshop = None
        self.counts = collections.Counter()

    def drawn(self, room):
        """All changes of a room in the order in which the seed draws them."""
        changes = [mutant for path, source in self.sources[room].items()
                   for mutant in mutants_of(path, source)]
        random.Random(f"{self.options.seed} {room}").shuffle(changes)
        return changes

    def share(self, room):
        sizes = {name: len(self.drawn(name)) for name in self.sources}
        return -(-self.options.count * sizes[room] // sum(sizes.values()))

    def verdict(self, mutant, room):
        reason = self.equivalents.reason(mutant)
        if reason:
            return {"result": "equivalent", "reason": reason}
        for tested in [room, *self.above[room]]:
            if not self.workshop.builds(tested):
                return {"result": "does not build"}
            failed = self.workshop.first_failure(tested)
            if failed:
                return {"result": "noticed", "by": f"{tested}: {failed}"}
        return {"result": "survived"}

    def judge(self, mutant, room):
        source = self.sources[room][mutant.path]
        key = self.results.key(mutant, source)
        kept = self.results.get(key)
        if kept and kept["result"] in ("noticed", "does not build"):
            return kept
        self.workshop.put(mutant.path, mutant.applied_to(source))
        verdict = self.verdict(mutant, room)
        self.workshop.put(mutant.path, source)
        row = {"key": key, "file": mutant.path, "line": mutant.line, "kind": mutant.kind,
               "before": mutant.before, "after": mutant.after, **verdict}
        self.results.keep(row)
        return row

    def judge_room(self, room):
        wanted, waiting, keys = self.share(room), self.drawn(room), set()
        while wanted and waiting:
            batch, waiting = waiting[:wanted], waiting[wanted:]
            for mutant in sorted(batch, key=lambda one: (one.path, one.start)):
                row = self.judge(mutant, room)
                keys.add(row["key"])
                self.tell(row)
                wanted -= row["result"] != "does not build"
        self.results.drop_others(room, keys)
        self.write()

    def write(self):
        self.results.write({"seed": self.options.seed, "count": self.options.count})

    def tell(self, row):
        self.counts[row["result"]] += 1
        self.write()
        if row["result"] == "survived":
            print(f"survived: {row['file']}:{row['line']}\n  - {row['before']}\n  + {row['after']}",
                  flush=True)
        elif sum(self.counts.values()) % 20 == 0:
            print(dict(self.counts), flush=True)

    def everything(self):
        self.workshop = Workshop(self.options.folder)
        tested = [room for room in self.above if any(
            room == changed or room in self.above[changed] for changed in self.rooms)]
        self.workshop.measure(tested)
        for room in self.rooms:
            self.judge_room(room)
        shutil.copyfile(self.options.folder / "results.json", self.options.output)
        print(dict(self.counts))
        return int(self.counts["survived"] > 0)


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("--seed", type=int, default=1582)
    parser.add_argument("--count", type=int, default=420, help="changes in all rooms together")
    parser.add_argument("--rooms", nargs="+", default=ROOMS, choices=ROOMS)
    parser.add_argument("--folder", type=pathlib.Path, default=ROOT / "build/mutations")
    parser.add_argument("--output", type=pathlib.Path, help="where the results are published",
                        default=ROOT / "docs/verification/mutations.json")
    return Run(parser.parse_args()).everything()


if __name__ == "__main__":
    raise SystemExit(main())
