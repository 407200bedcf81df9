# SPDX-License-Identifier: MIT
"""The machine, the system and the versions on which the figures of a page were made."""

import os
import pathlib
import platform
import re
import subprocess

ROOT = pathlib.Path(__file__).resolve().parents[1]


def said_by(*command):
    return subprocess.run(command, cwd=ROOT, check=True, capture_output=True, text=True).stdout


def first_in(path, pattern):
    found = re.search(pattern, pathlib.Path(path).read_text())
    return found[1] if found else "unknown"


def described():
    gigabytes = int(first_in("/proc/meminfo", r"MemTotal: +(\d+) kB")) / 1024 ** 2
    return {
        "system": platform.freedesktop_os_release()["PRETTY_NAME"],
        "machine": platform.machine(),
        "processor": first_in("/proc/cpuinfo", r"model name\s*: (.+)"),
        "cores": os.cpu_count(),
        "memory": f"{gigabytes:.0f} GB",
        "compiler": said_by("c++", "--version").splitlines()[0],
        "gcov": said_by("gcov", "--version").splitlines()[0],
        "qt": said_by("pkg-config", "--modversion", "Qt6Core").strip(),
        "icu": said_by("pkg-config", "--modversion", "icu-i18n").strip(),
        "commit": said_by("git", "rev-parse", "--short", "HEAD").strip(),
    }
