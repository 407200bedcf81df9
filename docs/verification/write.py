# SPDX-License-Identifier: MIT
"""Writes docs/verification.md from measured results.

Measures first, unless --page asks for the page alone. The results of the mutations
and of ./test come from their own commands."""

import argparse
import collections
import datetime
import json
import pathlib
import shutil

from measure import ROOT, measured

HERE = pathlib.Path(__file__).resolve().parent
FIRST_ORDINAL = 1721425  # Julian Day of the day before 1 January 1 Gregorian


def number(value):
    return f"{value:,}"


def percent(part, whole):
    return f"{100 * part / whole:.1f} %" if whole else "none"


def table(head, rows):
    lines = ["| " + " | ".join(head) + " |", "|" + "---|" * len(head)]
    return "\n".join(lines + ["| " + " | ".join(map(str, row)) + " |" for row in rows])


def read(name):
    path = HERE / name
    return json.loads(path.read_text()) if path.exists() else None


def judges(results):
    rows = [(row["judge"], row["asked"], number(row["answers"]), "none")
            for row in results["judgements"]]
    answers = sum(row["answers"] for row in results["judgements"])
    return f"""## Judges

Every answer below was compared with the program's own; a single difference would have failed the test and
left no figure here. {number(answers)} answers in all.

{table(("judge", "asked", "answers", "differences"), rows)}
"""


def civil(julian_day):
    return datetime.date.fromordinal(julian_day - FIRST_ORDINAL).isoformat()


def known_faults(results):
    rows = [(year, f"{ours} ({civil(ours)})", rule, icus)
            for year, ours, rule, icus in results["late"]]
    return f"""## Faults of the judges

ICU, as Debian 12 has it, begins {len(rows)} Jewish years of the range a day late. The new moon of each is on
a Sunday after 15 h 589 p; a Sunday cannot begin a year, so the Monday does, and ICU puts that Monday off once
more. The rule of the new moons is a reckoning in whole numbers, written for the tests from the rule itself:
29 d 12 h 793 p from the first new moon on, then the four postponements. The table of new years comes from
later releases that have mended it. The Moslem calendars of ICU have their long year in place 16 of the cycle
in both eras; for the era from Thursday its answers are moved by the day that this makes in years 15 and 16.

{table(("year", "first day here", "by the rule", "by ICU"), rows)}
"""


def coverage_of(results):
    rows = [(room, number(row["lines"]), percent(row["lines_run"], row["lines"]),
             number(row["branches"]), percent(row["branches_taken"], row["branches"]))
            for room, row in results["coverage"].items()]
    tests = sum(results["tests"].values())
    return f"""## Coverage

The {number(tests)} tests of the rooms, without those on a real screen, ran:

{table(("room", "lines", "run", "branches", "taken"), rows)}
"""


def endured(results):
    rows = [(row["what"], number(row["times"])) for row in results["withstood"]]
    return f"""## Chance and malice

What the tests put the program through, and how often, without a wrong state, a wrong date or a file lost:

{table(("what", "times"), rows)}
"""


def counts_by_room(changes, when):
    """What became of the changes, "first" or as a "result" in the end."""
    counts = collections.defaultdict(collections.Counter)
    for change in changes:
        counts[room_of(change["file"])][change[when]] += 1
    return counts


def room_of(file):
    folders = file.split("/")
    return folders[1] if len(folders) > 2 else "the program itself"


def share_noticed(counts):
    total = sum(counts.values(), collections.Counter())
    judged = total["noticed"] + total["survived"]
    return f"{number(total['noticed'])} of {number(judged)}, {percent(total['noticed'], judged)}"


def mutations():
    run = read("mutations.json")
    if run is None:
        return ""
    population = run["run"]["population"]
    judged = [change for change in run["changes"] if change["result"] != "does not build"]
    first = counts_by_room((one for one in judged if one["result"] != "without effect"), "first")
    now = counts_by_room(judged, "result")
    kinds = ("noticed", "no end", "without effect", "gone", "survived")
    rows = [(room, number(population.get(room, population["main.cpp"])), now[room].total(),
             first[room]["noticed"], *(now[room][kind] for kind in kinds)) for room in now]
    return f"""## Changes that tests must notice

The sources of all rooms, but for what is compiled for Windows alone, can be changed in
{number(sum(population.values()))} ways by one thing: an operator, a constant, a pair of arguments, a call or a statement left out, two
statements exchanged, a guard without its object, the enumerator beside, another signal.
The seed {run["run"]["seed"]}, never used before, drew the sample below. Each was built and judged by the tests of its
room, of the rooms above, on several monitors, by the walk through all windows and on a screen; the program's own
file by the tests of its start. Of this sample the tests as they were noticed
{share_noticed(first)}; since then, what lived got its test or is gone: {share_noticed(now)}.
A change that makes the program run without end is not counted among either. One without effect was built and run like
all others and noticed by none; its reason is in `tests/mutations/equivalents.json`.

{table(("room", "possible", "judged", "noticed at first", "noticed now", "without end", "without effect", "gone", "survived"), rows)}
"""


def failed_in(run):
    return [row["name"] for row in run["results"] if row["failed"]]


def take_run():
    """Keeps the results of the last ./test; a page tells of nothing that failed."""
    path = ROOT / "build/results.json"
    if not path.exists():
        raise SystemExit("No results of ./test: run it first.")
    failed = failed_in(json.loads(path.read_text()))
    if failed:
        raise SystemExit(f"The last ./test failed in: {', '.join(failed)}. No page is made of it.")
    shutil.copyfile(path, HERE / "run.json")


def run_of_everything():
    run = read("run.json")
    rows = [(row["name"], number(row["passed"]), row["skipped"], f"{row['seconds']} s")
            for row in run["results"]]
    command = "`./test --long`, with the long runs" if run["long"] else "`./test`"
    return f"""## One run of everything

{command} at commit {run["commit"]}: {number(sum(row["passed"] for row in run["results"]))} passed, none failed.

{table(("what", "passed", "skipped", "took"), rows)}
"""


def page(results):
    made = results["system"]
    parts = [
        f"""# Verification

How far this program can be trusted, in figures that anybody can make again. Written by
`docs/verification/write.py` from measured results; nothing here is typed by hand. Measured on
{made["system"]} ({made["machine"]}, {made["processor"]}, {made["cores"]} cores) with {made["compiler"]} and
Qt {made["qt"]}.
""",
        judges(results), known_faults(results), coverage_of(results), endured(results), mutations(),
        run_of_everything(),
        """## To make it again

    python3 docs/verification/write.py          # judges, coverage, chance and malice, and this page
    python3 tests/mutations/mutate.py           # the changes, some hours; it goes on where it stopped
    ./test                                      # everything; --long adds the long runs
    python3 docs/verification/write.py --page   # this page alone, from what was measured last
"""]
    return "\n".join(filter(None, parts))


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("--page", action="store_true", help="measure nothing")
    take_run()
    if not parser.parse_args().page:
        (HERE / "measured.json").write_text(json.dumps(measured(), indent=1) + "\n")
    (ROOT / "docs/verification.md").write_text(page(read("measured.json")))


if __name__ == "__main__":
    main()
