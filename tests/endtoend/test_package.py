# SPDX-License-Identifier: MIT
"""The Debian package: made, looked at, installed into an empty root, used there
and removed."""

import datetime
import pathlib
import shutil
import subprocess
import tempfile

from picture import SUBSTITUTE_MOON
from program import EXECUTABLE
from testcase import EndToEndTest, monthly_title_of
from waiting import wait_until

PACKAGE = "orvalen-years-calendar"
LIBRARIES = {"libc6", "libgcc-s1", "libqt6core6", "libqt6gui6", "libqt6svg6", "libqt6widgets6",
             "libstdc++6"}
NEW_MOON = datetime.date(2000, 1, 6)
MONTH_OF_MOON = 29.530588  # days


def output_of(*command):
    done = subprocess.run([str(part) for part in command], text=True, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, check=False)
    if done.returncode != 0:
        raise AssertionError(f"{command[0]} failed: {done.stdout}")
    return done.stdout


def make_package(built, folder):
    """Packs what lies in a build's folder of programs."""
    output_of("cpack", "--config", built.parent / "CPackConfig.cmake", "-B", folder)
    package, = folder.glob("*.deb")
    return package


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


class PackageTest(EndToEndTest):
    @classmethod
    def setUpClass(cls):
        folder = pathlib.Path(tempfile.mkdtemp(prefix="orvalen-package-"))
        cls.addClassCleanup(shutil.rmtree, folder, ignore_errors=True)
        cls.package = make_package(cls.built, folder)


class ThePackage(PackageTest):
    def test_lintian_has_nothing_to_say(self):
        self.assertEqual(output_of("lintian", "--allow-root", "--fail-on", "error,warning",
                                   self.package), "")

    def test_it_names_every_library_that_it_needs(self):
        depends = output_of("dpkg-deb", "--field", self.package, "Depends")
        self.assertEqual({entry.split()[0] for entry in depends.split(",")}, LIBRARIES)

    def test_its_papers_are_in_it(self):
        listing = output_of("dpkg-deb", "--contents", self.package)
        for name in ("man/man1/orvalen-years-calendar.1.gz", f"doc/{PACKAGE}/copyright",
                     f"doc/{PACKAGE}/LICENSE", f"doc/{PACKAGE}/changelog.gz",
                     f"doc/{PACKAGE}/changelog.Debian.gz"):
            self.assertIn(f" ./usr/share/{name}\n", listing)

    def test_packing_again_gives_the_same_bytes(self):
        with tempfile.TemporaryDirectory() as folder:
            again = make_package(self.built, pathlib.Path(folder))
            self.assertEqual(again.read_bytes(), self.package.read_bytes())


class TheInstalledProgram(PackageTest):
    def install(self, folder):
        self.root = Root(folder / "root")
        self.root.dpkg("--install", self.package)
        return self.root.folder / "usr/bin" / EXECUTABLE

    def test_it_is_used_and_removed_without_trace(self):
        monthly = self.start_monthly()
        self._choose_german(monthly)
        self._look_at_the_full_moon(monthly)
        self.assertEqual(self.program.message_boxes_seen(), 0)
        self.assertEqual(monthly.exit_by_right_press(), 0)
        self.root.dpkg("--purge", PACKAGE)
        self.assertEqual(self.root.files(), set())

    def _choose_german(self, monthly):
        title = monthly_title_of(self.root.folder / "usr/lib" / PACKAGE / "German.lng")
        monthly.choose_language("German")
        self.program.monthly_window(title=title)

    def _look_at_the_full_moon(self, monthly):
        monthly.press_day("Gregorian", *cell_of(day_of_full_moon()))
        monthly.press_moon()
        moon = self.program.moon_window(title="Mond")
        moon.wait_until_in_front()
        wait_until(lambda: shows_lit_moon(moon), "the moon is lit")


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
