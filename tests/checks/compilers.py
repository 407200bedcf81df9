# SPDX-License-Identifier: MIT
"""Fails when the program does not build without a warning by another compiler, or
with the flags of a distribution."""

import os
import subprocess
import sys
import tempfile

import sources

PROGRAM = "orvalen-years-calendar"


def debian_flags():
    said = subprocess.run(["dpkg-buildflags", "--export=cmdline"], text=True, check=True,
                          stdout=subprocess.PIPE, env={**os.environ, "DEB_BUILD_OPTIONS": ""}).stdout
    return subprocess.run(["sh", "-c", f'env -0 {said}'], text=True, check=True,
                          stdout=subprocess.PIPE).stdout.split("\0")


# A level of its own, as some distributions have it, and in the words of others.
FORTIFIED = {"CXXFLAGS": "-O2 -Wp,-U_FORTIFY_SOURCE,-D_FORTIFY_SOURCE=3"}


def environments():
    debian = dict(line.split("=", 1) for line in debian_flags() if "=" in line)
    return {"clang": {"CXX": "clang++"}, "Debian's flags": debian, "another level": FORTIFIED}


def builds(variables):
    with tempfile.TemporaryDirectory(prefix="orvalen-compiler-") as folder:
        for command in (["-G", "Ninja", "-S", sources.ROOT, "-B", folder,
                         "-DCMAKE_COMPILE_WARNING_AS_ERROR=ON"],
                        ["--build", folder, "--target", PROGRAM]):
            if subprocess.run(["cmake", *command], env={**os.environ, **variables},
                              check=False).returncode:
                return False
    return True


def main():
    faults = [name for name, variables in environments().items() if not builds(variables)]
    print("\n".join(f"{name}: the build is not clean" for name in faults) or "all builds are clean")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
