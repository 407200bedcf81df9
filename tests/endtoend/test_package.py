# SPDX-License-Identifier: MIT
"""The Debian package: made, looked at, installed into an empty root, used there
and removed."""

import datetime
import os
import pathlib
import platform
import shutil
import subprocess
import sys
import tempfile
import unittest

from picture import SUBSTITUTE_MOON
from program import EXECUTABLE
from testcase import EndToEndTest, monthly_title_of
from waiting import wait_until

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1]))
from checks import sources  # noqa: E402

PACKAGE = "orvalen-years-calendar"
PROGRAM_FOLDER = f"usr/libexec/{PACKAGE}"
LIBRARIES = {"libc6", "libfontconfig1", "libgcc-s1", "libqt6core6", "libqt6gui6",
             "libqt6printsupport6", "libqt6svg6", "libqt6widgets6", "libstdc++6"}
NEW_MOON = datetime.date(2000, 1, 6)
MONTH_OF_MOON = 29.530588  # days


STRICT = 0o077


def output_of(*command, **options):
    done = subprocess.run([str(part) for part in command], text=True, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, check=False, **options)
    if done.returncode != 0:
        raise AssertionError(f"{command[0]} failed: {done.stdout}")
    return done.stdout


def make_package(built, folder, umask=-1):
    """The Debian package of what lies in a build's folder of programs: all is done as
    dpkg-buildpackage does it but that nothing is compiled."""
    tree = sources.copy(folder / sources.AWKWARD_NAME)
    rules = ["make", "-C", tree, "-f", "debian/rules"]
    architecture = dict(line.split("=", 1) for line in output_of("dpkg-architecture").splitlines())
    environment = {**os.environ, **architecture, "DEB_RULES_REQUIRES_ROOT": "no"}
    options = {"umask": umask, "env": environment}
    output_of(*rules, "override_dh_auto_configure", **options)
    build, = tree.glob("obj-*")
    output_of("cmake", "--build", build, "--target", "icons", **options)
    shutil.copytree(built, build / "bin", dirs_exist_ok=True)
    (tree / "debian/debhelper-build-stamp").write_text(f"{PACKAGE}\n")
    output_of(*rules, "binary", **options)
    return next(folder.glob(f"{PACKAGE}_*.deb"))


class Root:
    """A root directory that holds nothing but dpkg's own records."""

    def __init__(self, folder):
        self.folder = folder
        records = folder / "var/lib/dpkg"
        for name in ("info", "updates", "triggers"):
            (records / name).mkdir(parents=True)
        (records / "status").touch()

    def dpkg(self, *arguments):
        # The libraries are those of the system that the tests run on.
        output_of("fakeroot", "dpkg", f"--root={self.folder}", "--log=/dev/null",
                  "--force-depends,bad-path", *arguments)

    def files(self):
        """All but dpkg's own."""
        return {path for path in self.folder.rglob("*")
                if path.relative_to(self.folder).parts[0] != "var"}


def setUpModule():  # noqa: N802, unittest's own name
    folder = pathlib.Path(tempfile.mkdtemp(prefix="orvalen-package-"))
    unittest.addModuleCleanup(shutil.rmtree, folder, ignore_errors=True)
    PackageTest.package = make_package(EndToEndTest.built, folder)


class PackageTest(EndToEndTest):
    package = None  # made once for all of them


class ThePackage(PackageTest):
    def test_lintian_has_nothing_to_say(self):
        self.assertEqual(output_of("lintian", "--allow-root", "--display-info", "--pedantic",
                                   self.package), "")

    def test_the_program_is_hardened(self):
        with tempfile.TemporaryDirectory() as folder:
            output_of("dpkg-deb", "--extract", self.package, folder)
            program = pathlib.Path(folder) / PROGRAM_FOLDER / EXECUTABLE
            described = output_of("readelf", "--wide", "--dynamic", "--dyn-syms", program)
            for mark in ("BIND_NOW", " PIE", "__stack_chk_fail"):
                self.assertIn(mark, described)
            if platform.machine() == "x86_64":
                self.assertIn("endbr64", output_of("objdump", "--disassemble", program))

    def test_it_names_every_library_that_it_needs(self):
        depends = output_of("dpkg-deb", "--field", self.package, "Depends")
        self.assertEqual({entry.split()[0] for entry in depends.split(",")}, LIBRARIES)

    def test_its_papers_are_in_it(self):
        listing = output_of("dpkg-deb", "--contents", self.package)
        for name in ("man/man1/orvalen-years-calendar.1.gz", f"doc/{PACKAGE}/copyright",
                     f"doc/{PACKAGE}/changelog.gz",
                     f"doc/{PACKAGE}/changelog.Debian.gz"):
            self.assertIn(f" ./usr/share/{name}\n", listing)

    def test_who_packs_it_makes_no_difference(self):
        with tempfile.TemporaryDirectory() as folder:
            again = make_package(self.built, pathlib.Path(folder), STRICT)
            self.assertEqual(again.read_bytes(), self.package.read_bytes())


class MainJob(EndToEndTest):
    """A user starts the installed program, chooses a language and looks at the moon."""

    def do_main_job(self, root):
        monthly = self.start_monthly()
        self._choose_german(monthly, root / PROGRAM_FOLDER)
        self._look_at_the_full_moon(monthly)
        self.assertEqual(self.program.message_boxes_seen(), 0)
        self.assertEqual(monthly.exit_by_right_press(), 0)

    def _choose_german(self, monthly, folder):
        title = monthly_title_of(folder / "German.lng")
        monthly.choose_language("German")
        self.program.monthly_window(title=title)

    def _look_at_the_full_moon(self, monthly):
        monthly.press_day("Gregorian", *cell_of(day_of_full_moon()))
        monthly.press_moon()
        moon = self.program.moon_window(title="Mond")
        moon.wait_until_in_front()
        wait_until(lambda: shows_lit_moon(moon), "the moon is lit")


class TheInstalledProgram(MainJob, PackageTest):
    def install(self, folder):
        self.root = Root(folder / "root")
        self.root.dpkg("--install", self.package)
        return self.root.folder / "usr/bin" / EXECUTABLE

    def test_it_is_used_and_removed_without_trace(self):
        self.do_main_job(self.root.folder)
        self.root.dpkg("--purge", PACKAGE)
        self.assertEqual(self.root.files(), set())


def shows_lit_moon(moon):
    """The lit picture, not the plain disc that stands for a missing one."""
    width, height = moon.size()
    inner = (width // 4, height // 4, width // 2, height // 2)
    picture = moon.picture()
    return (picture.count_lighter(60, *inner) > 0.8 * inner[2] * inner[3]
            and picture.count(SUBSTITUTE_MOON, *inner) == 0)


def day_of_full_moon():
    """The day of this month that is nearest to a full moon."""
    first = datetime.date.today().replace(day=1)
    days = [first + datetime.timedelta(days) for days in range(28)]
    return min(days, key=lambda day: abs((day - NEW_MOON).days % MONTH_OF_MOON
                                         - MONTH_OF_MOON / 2))


def cell_of(day):
    """Row and column in the Gregorian grid, whose weeks begin on Sunday."""
    before_first = day.replace(day=1).isoweekday() % 7
    return day.isoweekday() % 7, 1 + (day.day - 1 + before_first) // 7
