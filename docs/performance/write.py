# SPDX-License-Identifier: MIT
"""Writes docs/performance.md from measured results.

Measures first, unless --page asks for the page alone."""

import argparse
import json
import os
import pathlib
import statistics
import subprocess
import sys
import tempfile

import outside

ROOT = outside.ROOT
sys.path.append(str(ROOT / "docs"))

import machine  # noqa: E402  beside the folders of the pages

BIN = ROOT / "build/bench/bin"
HERE = pathlib.Path(__file__).resolve().parent
STARTS = 15


def build():
    for command in (["cmake", "--preset", "bench"], ["cmake", "--build", "--preset", "bench"]):
        subprocess.run(command, cwd=ROOT, check=True, stdout=subprocess.DEVNULL)


def benchmarks(name):
    """The processor's nanoseconds of each benchmark, the median of several runs. They take
    turns, since a machine is faster in one minute than in the next."""
    with tempfile.TemporaryDirectory() as folder:
        report = pathlib.Path(folder) / "report.json"
        environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "XDG_RUNTIME_DIR": folder}
        subprocess.run(
            [BIN / name, f"--benchmark_out={report}", "--benchmark_out_format=json",
             "--benchmark_repetitions=5", "--benchmark_enable_random_interleaving=true",
             "--benchmark_report_aggregates_only=true"],
            env=environment, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        rows = json.loads(report.read_text())["benchmarks"]
    unit = {"ns": 1, "us": 1e3, "ms": 1e6}
    return {row["run_name"]: row["cpu_time"] * unit[row["time_unit"]]
            for row in rows if row["aggregate_name"] == "median"}


def medians(runs):
    return [statistics.median(times) for times in zip(*runs)]


def kilobytes(runs, name):
    return statistics.median(run[name] for run in runs)


def measured():
    build()
    ours, empty = [], []
    for run in range(STARTS):  # by turns, so that a slow minute falls upon all
        ours.append(outside.measured(BIN / "orvalen-years-calendar", 2, run == 0))
        empty.append(outside.measured(BIN / "empty_window", 1))
    return {
        "system": machine.described(),
        "times": {**benchmarks("arithmetic_bench"), **benchmarks("windows_bench")},
        "windows": medians(run["milliseconds"] for run in ours),
        "empty_window": medians(run["milliseconds"] for run in empty),
        "kilobytes": kilobytes(ours, "kilobytes"),
        "empty_kilobytes": kilobytes(empty, "kilobytes"),
        "own_kilobytes": kilobytes(ours, "own_kilobytes"),
        "own_empty_kilobytes": kilobytes(empty, "own_kilobytes"),
        "idle_seconds": ours[0]["idle_seconds"],
        "wake_ups": ours[0]["wake_ups"],
    }


def table(head, rows):
    lines = ["| " + " | ".join(head) + " |", "|" + "---|" * len(head)]
    return "\n".join(lines + ["| " + " | ".join(map(str, row)) + " |" for row in rows])


def duration(nanoseconds):
    for size, unit in ((1e6, "ms"), (1e3, "µs")):
        if nanoseconds >= size:
            return f"{nanoseconds / size:.3g} {unit}"
    return f"{nanoseconds:.3g} ns"


class Times:
    def __init__(self, times):
        self._times = times

    def row(self, what, ours, other, theirs):
        return (what, duration(self._times[ours]), other, duration(self._times[theirs]),
                f"{self._times[theirs] / self._times[ours]:.2g}")

    def own(self, what, *names):
        return (what, *(duration(self._times[name]) for name in names))


HEAD = ("what", "here", "beside", "there", "there : here")


def days(times):
    rows = [
        times.row(f"{order} day in four calendars", f"ourFourCalendars/{name}", other, their + name)
        for order, name in (("the next", "next"), ("a scattered", "scattered"))
        for other, their in (("ICU, four calendars", "icuFourCalendars/"),
                             ("QCalendar, three without tables", "qtThreeCalendars/"),
                             ("std::chrono, the Gregorian date alone", "chronoGregorian/"))]
    return f"""## A day in four calendars

Here with the months, weekdays and weeks of its year in each, there the date, its day of the year and, by ICU,
its week.

{table(HEAD, rows)}
"""


def steps(times):
    beside = [times.row(f"a {step}, monthly window", f"steps/{step} of one",
                        "four `QCalendarWidget`s", f"fourCalendarWidgets/{step}")
              for step in ("day", "month", "year")]
    beside.append(times.row("a year, a year window", "steps/year of a year window",
                            "a `QTableWidget` of as many cells", "filledAndPaintedTableWidget"))
    own = [times.own(f"a {step}", *(f"steps/{step} of {count}" for count in ("one", "two", "six")))
           for step in ("day", "month", "year")]
    return f"""## A step, from the change to the painted windows

{table(HEAD, beside)}

{table(("step by", "one window", "two windows", "six windows"), own)}
"""


def start(results):
    def megabytes(name):
        return f"{results[name] / 1024:.1f} MB"

    splash, first = results["windows"]
    rows = [("splash window", f"{splash:.0f} ms"), ("first window", f"{first:.0f} ms"),
            ("an empty window of the toolkit", f"{results['empty_window'][0]:.0f} ms")]
    return f"""## Start and rest

From the start to the window manager's word that the window is there, under a virtual screen. The splash stays
its time before the first window comes. The splash is as large as its letters need, and the first letter makes
the toolkit list all fonts of the system; an empty window asks for none. The program has them listed while the
toolkit connects to the desktop.

{table(("window", "after"), rows)}

At its peak the program takes {megabytes("kilobytes")} of memory, an empty window of the toolkit
{megabytes("empty_kilobytes")}; at rest {megabytes("own_kilobytes")} of it are its own, shared with no file, and
{megabytes("own_empty_kilobytes")} of the window. Left alone for {results["idle_seconds"]} seconds it wakes up {results["wake_ups"]} times.
"""


def page(results):
    times, made = Times(results["times"]), results["system"]
    return "\n".join([
        f"""# Performance

Written by `docs/performance/write.py` from measured results. Compare within a row: what stands there was
measured in one run on one machine by turns, in time of the processor, as the median of five:
{made["processor"]}, {made["cores"]} cores, {made["memory"]} of memory, {made["system"]} ({made["machine"]}),
{made["compiler"]}, Qt {made["qt"]}, ICU {made["icu"]}, the program at commit {made["commit"]}.
""",
        days(times), steps(times), start(results),
        """## To make it again

    python3 docs/performance/write.py          # measures and writes this page
    python3 docs/performance/write.py --page   # this page alone, from what was measured last

The programs that measure are in `bench/`.
"""])


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("--page", action="store_true", help="measure nothing")
    if not parser.parse_args().page:
        (HERE / "measured.json").write_text(json.dumps(measured(), indent=1) + "\n")
    (ROOT / "docs/performance.md").write_text(page(json.loads((HERE / "measured.json").read_text())))


if __name__ == "__main__":
    main()
