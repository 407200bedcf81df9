# SPDX-License-Identifier: MIT
"""Fails when the tests do not build without a warning by the compiler of the program,
or the program by the one of the tests or with the flags of a distribution."""

import os
import subprocess
import sys
import tempfile

import sources

PROGRAM = "orvalen-years-calendar"


def debian(flags):
    return subprocess.run(["dpkg-buildflags", "--get", flags], text=True, check=True,
                          stdout=subprocess.PIPE).stdout.strip()


def builds(target, variables, *options):
    with tempfile.TemporaryDirectory(prefix="orvalen-compiler-") as folder:
        for command in (["-G", "Ninja", "-S", sources.ROOT, "-B", folder,
                         "-DCMAKE_COMPILE_WARNING_AS_ERROR=ON", *options],
                        ["--build", folder, "--target", target]):
            if subprocess.run(["cmake", *command], env={**os.environ, **variables},
                              check=False).returncode:
                return False
    return True


def main():
    debians = {"CXXFLAGS": f"{debian('CXXFLAGS')} {debian('CPPFLAGS')}", "LDFLAGS": debian("LDFLAGS")}
    environments = {"tests by GCC": ("all", {"CXX": "g++"}, "-DORVALEN_TESTS=ON"),
                    "clang": (PROGRAM, {"CXX": "clang++-22"}), "Debian's flags": (PROGRAM, debians),
                    # The same hardening at another level and in other words.
                    "another level": ("shared", {"CXXFLAGS": "-O2 -Wp,-D_FORTIFY_SOURCE=3"})}
    faults = [name for name, environment in environments.items() if not builds(*environment)]
    print("\n".join(f"{name}: the build is not clean" for name in faults) or "all builds are clean")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
