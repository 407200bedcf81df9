# SPDX-License-Identifier: MIT
"""Runs a command on a large screen of its own with a window manager:
python3 on_screen.py COMMAND [ARGUMENTS]"""

import os
import subprocess
import sys
import tempfile

sys.dont_write_bytecode = True  # before the module beside this file

import desktop

SIDE = 3600  # room for all windows side by side, at 150 % too


def main(command):
    with tempfile.TemporaryDirectory(prefix="orvalen-desktop-") as folder:
        screen = desktop.Desktop(folder, SIDE, SIDE)
        try:
            screen.start()
            environment = screen.environment() | os.environ | {
                "DISPLAY": screen.environment()["DISPLAY"], "QT_QPA_PLATFORM": "xcb"}
            return subprocess.run(command, env=environment, check=False).returncode
        finally:
            screen.stop()


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
