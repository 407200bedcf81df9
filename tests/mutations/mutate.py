# SPDX-License-Identifier: MIT
"""Changes the program one thing at a time and looks whether a test notices.

A seeded sample of all changes is judged by the tests of the changed room, of the
rooms above it, on several monitors, by a random walk through all windows and on a
screen. A change that none of them notices has survived, unless equivalents.json gives
a reason why nobody could. Results are kept as they come: what was found is found
again only where the changed file, or the tests that noticed, are no longer the same."""

import argparse
import collections
import concurrent.futures
import hashlib
import json
import os
import pathlib
import queue
import threading

from mutants import mutants_of
from workshop import ROOT, Workshop, judges_of, rooms

HERE = pathlib.Path(__file__).resolve().parent
PROGRAM = "main.cpp"


def digest(text):
    return hashlib.sha256(text.encode()).hexdigest()[:16]


def room_of(path):
    return pathlib.PurePath(path).parent.name if path != f"src/{PROGRAM}" else PROGRAM


def changes_of(room):
    """All changes of a room, but of what is compiled for Windows alone: no test here
    runs it."""
    paths = [ROOT / "src" / PROGRAM] if room == PROGRAM else sorted(
        [*(ROOT / "src" / room).glob("*.cpp"), *(ROOT / "src" / room).glob("*.h")])
    for path in [path for path in paths if not path.stem.endswith("_windows")]:
        name, source = path.relative_to(ROOT).as_posix(), path.read_text(encoding="utf-8")
        alike = {}
        for mutant in mutants_of(name, source):
            same = (mutant.kind, mutant.before, mutant.after)
            alike[same] = alike.get(same, 0) + 1
            # Where the change stands in its file must not decide which are drawn.
            mutant.name = digest(f"{name} {same} {alike[same]}")
            yield mutant


class Equivalents:
    """Changes that nobody could see, each with its reason."""

    def __init__(self):
        self._reasons = {(entry["file"], entry["before"], entry["after"]): entry["reason"]
                         for entry in json.loads((HERE / "equivalents.json").read_text())}

    def reason(self, row):
        return self._reasons.get((row["file"], row["before"], row["after"]))

    def of_no_change(self, changes):
        """Those whose line has been changed since."""
        return set(self._reasons) - {(one.path, one.before, one.after) for one in changes}


class Results:
    """What was found of the changes that a seed draws, by their names."""

    def __init__(self, path, head):
        self._path, self._head = path, head
        self._lock = threading.Lock()
        kept = json.loads(path.read_text()) if path.exists() else None
        rows = kept["changes"] if kept and kept["run"]["seed"] == head["seed"] else []
        self._rows = {row["name"]: row for row in rows}

    def get(self, name):
        return self._rows.get(name)

    def keep(self, row):
        """A change that was judged before keeps what was found of it at first."""
        with self._lock:
            former = self._rows.get(row["name"])
            row["first"] = former["first"] if former else row["result"]
            self._rows[row["name"]] = row
            self._write()

    def leave_others(self, room, drawn, possible):
        """Those of a room that are drawn no longer are forgotten; what was found of a
        line that is gone since stays."""
        with self._lock:
            for name, row in list(self._rows.items()):
                if room_of(row["file"]) == room and name not in drawn:
                    row["result"] = "gone"
                    if name in possible:
                        del self._rows[name]
            self._write()

    def _write(self):
        rows = sorted(self._rows.values(), key=lambda row: (row["file"], row["line"], row["after"]))
        lines = ",\n".join(json.dumps(row, ensure_ascii=False) for row in rows)
        self._path.write_text(f'{{"run": {json.dumps(self._head)},\n"changes": [\n{lines}\n]}}\n')


class Sample:
    """The changes of each room in the order in which a seed draws them, and how many
    of those that build are wanted."""

    def __init__(self, seed, count):
        self.changes = {room: sorted(changes_of(room), key=lambda one: digest(f"{seed} {one.name}"))
                        for room in [*rooms(), PROGRAM]}
        self.population = sum(map(len, self.changes.values()))
        self.wanted = {room: -(-count * len(changes) // self.population)
                       for room, changes in self.changes.items()}


class Judge:
    """Judges changes in a workshop of its own."""

    def __init__(self, workshop, results, equivalents):
        self._workshop, self._results, self._equivalents = workshop, results, equivalents

    def row(self, mutant):
        """What is found, or was when nothing that decides it has changed since."""
        source = (ROOT / mutant.path).read_text(encoding="utf-8")
        row = {"name": mutant.name, "file": mutant.path, "line": mutant.line, "kind": mutant.kind,
               "before": mutant.before, "after": mutant.after, "source": digest(source)}
        former = self._results.get(mutant.name)
        if former and self._is_still_so(former, row["source"]):
            return former
        self._workshop.put(mutant.path, mutant.applied_to(source))
        row |= self._verdict(row)
        self._workshop.put(mutant.path, source)
        self._results.keep(row)
        return row

    def _is_still_so(self, former, source):
        if former["source"] != source:
            return False
        if former["result"] == "does not build":
            return True
        return former["result"] in ("noticed", "no end") and \
            former["tests"] == self._workshop.digest_of_tests(former["judge"])

    def _verdict(self, row):
        for judge in judges_of(room_of(row["file"])):
            if not self._workshop.builds(judge):
                return {"result": "does not build"}
            failed = self._workshop.first_failure(judge)
            if failed:
                return {"result": "no end" if failed == Workshop.NO_END else "noticed", "by": failed,
                        "judge": judge, "tests": self._workshop.digest_of_tests(judge)}
        reason = self._equivalents.reason(row)
        return {"result": "without effect", "reason": reason} if reason else {"result": "survived"}


def tell(row):
    print(f"{row['result']}: {row['file']}:{row['line']} ({row['kind']})", flush=True)
    if row["result"] in ("survived", "no end"):
        print(f"  - {row['before']}\n  + {row['after']}", flush=True)


class Run:
    def __init__(self, options):
        self._options = options
        self._sample = Sample(options.seed, options.count)
        self._results = Results(options.output, self._head())
        self._equivalents = Equivalents()
        self._free = queue.Queue()
        old = self._equivalents.of_no_change(one for room in self._sample.changes.values() for one in room)
        if old:
            raise SystemExit(f"equivalents.json speaks of lines that are no more: {sorted(old)}")

    def _head(self):
        return {"seed": self._options.seed, "count": self._options.count,
                "population": {room: len(changes) for room, changes in self._sample.changes.items()}}

    def _row_of(self, mutant):
        workshop = self._free.get()
        try:
            row = Judge(workshop, self._results, self._equivalents).row(mutant)
        finally:
            self._free.put(workshop)
        tell(row)
        return row

    def _judge_room(self, room, pool):
        wanted, waiting, rows = self._sample.wanted[room], self._sample.changes[room], []
        while wanted and waiting:
            batch, waiting = waiting[:wanted], waiting[wanted:]
            # One file after the other, so that few are compiled.
            batch.sort(key=lambda one: (one.path, one.start))
            found = list(pool.map(self._row_of, batch))
            wanted = sum(row["result"] == "does not build" for row in found)
            rows += found
        self._results.leave_others(room, {row["name"] for row in rows},
                                   {one.name for one in self._sample.changes[room]})
        return rows

    def everything(self):
        folders = [self._options.folder / str(i) for i in range(self._options.jobs)]
        asked = [room for room in self._sample.changes if room in self._options.rooms]
        with concurrent.futures.ThreadPoolExecutor(len(folders)) as pool:
            judges = list(dict.fromkeys(judge for room in asked for judge in judges_of(room)))
            for workshop in pool.map(lambda folder: Workshop(folder, judges), folders):
                self._free.put(workshop)
            rows = [row for room in asked for row in self._judge_room(room, pool)]
        counts = collections.Counter(row["result"] for row in rows)
        print(dict(counts))
        untrue = [row for row in rows if row["result"] == "noticed" and self._equivalents.reason(row)]
        for row in untrue:
            print(f"{row['file']}:{row['line']} is said to be without effect, and {row['by']} noticed it")
        return int(counts["survived"] + len(untrue) > 0)


def main():
    everywhere = [*rooms(), PROGRAM]
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("--seed", type=int, default=4669)
    parser.add_argument("--count", type=int, default=160, help="changes in all rooms together")
    parser.add_argument("--rooms", nargs="+", default=everywhere, choices=everywhere)
    parser.add_argument("--jobs", type=int, default=os.cpu_count(), help="changes judged at a time")
    parser.add_argument("--folder", type=pathlib.Path, default=ROOT / "build/mutations")
    parser.add_argument("--output", type=pathlib.Path, help="where the results are published",
                        default=ROOT / "docs/verification/mutations.json")
    return Run(parser.parse_args()).everything()


if __name__ == "__main__":
    raise SystemExit(main())
