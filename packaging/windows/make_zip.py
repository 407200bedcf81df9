# SPDX-License-Identifier: MIT
"""Packs a folder, always into the same bytes: make_zip.py <folder> <archive.zip>
<seconds>, the time of all its files."""

import pathlib
import sys
import time
import zipfile


def main(folder, archive, seconds):
    folder = pathlib.Path(folder)
    moment = time.gmtime(int(seconds))[:6]
    with zipfile.ZipFile(archive, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as packed:
        for path in sorted(path for path in folder.rglob("*") if path.is_file()):
            entry = zipfile.ZipInfo(path.relative_to(folder.parent).as_posix(), moment)
            entry.create_system = 0  # as packed on Windows: no owner and no mode
            entry.compress_type = zipfile.ZIP_DEFLATED
            packed.writestr(entry, path.read_bytes())


if __name__ == "__main__":
    main(*sys.argv[1:])
