# SPDX-License-Identifier: MIT
"""Fails when a file of ours says nothing of its licence."""

import pathlib
import subprocess
import sys

# Data, prose, and files whose form has no place for a comment.
WITHOUT_COMMENTS = {".md", ".csv", ".json", ".png"}
EXEMPT = {"LICENSE", ".gitignore", "debian/changelog", "debian/source/format"}


def main():
    listed = subprocess.run(["git", "ls-files", "-z"], capture_output=True, text=True, check=True)
    faults = []
    for name in filter(None, listed.stdout.split("\0")):
        path = pathlib.Path(name)
        if path.suffix in WITHOUT_COMMENTS or name in EXEMPT:
            continue
        head = path.read_text(encoding="utf-8", errors="replace")[:300]
        if "SPDX-License-Identifier: MIT" not in head:
            faults.append(name)
    print("\n".join(faults) or "every file names its licence")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
