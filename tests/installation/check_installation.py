#!/usr/bin/python3
"""Installs the program into a scratch root, starts it there, opens decks by the desktop; packs it.

usage: check_installation.py BUILD [TEST...]     on the display that DISPLAY names
"""
import fnmatch
import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "scripts"))
import program_end  # noqa: E402  after the path is set

SECONDS_TO_WAIT = 60
SECONDS_BETWEEN_LOOKS = 0.1
WINDOW_CLASS = '"tessara"'  # as the desktop entry tells it, which carries the program's icon to its window
DECK_TYPE = "application/x-tessara-deck"
METADATA = "io.github.tessara.tessara.metainfo.xml"
SOURCE = pathlib.Path(__file__).resolve().parents[2]

build = pathlib.Path()


def said(*command, **options):
    """What a command that must succeed writes, its errors included."""
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, **options)
    if done.returncode != 0:
        raise AssertionError(f"{command} ended with {done.returncode}:\n{done.stdout}")
    return done.stdout.strip()


def wait_for(what, look):
    """What `look` finds, once it finds something."""
    deadline = time.monotonic() + SECONDS_TO_WAIT
    while not (found := look()):
        if time.monotonic() > deadline:
            raise AssertionError(f"{what} did not come within {SECONDS_TO_WAIT} seconds")
        time.sleep(SECONDS_BETWEEN_LOOKS)
    return found


def remove(folder):
    """Until nothing is left: the desktop's tools, which a first start has started, may still write there."""
    def removed():
        shutil.rmtree(folder, ignore_errors=True)
        return not folder.exists()
    wait_for("The end of the scratch folder", removed)


def debian_patterns():
    """What the packages made of the source package take of an installation."""
    lists = (SOURCE / "packaging" / "debian").glob("*.install")
    return [pattern for path in lists for pattern in path.read_text(encoding="utf-8").split()]


def titles_on_screen():
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "^Tessara", "getwindowname", "%@"],
                           stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    return found.stdout.split("\n")[:-1]


def frame_property(name):
    """A property of the frame's window, as xprop writes it."""
    window = said("xdotool", "search", "--onlyvisible", "--name", "^Tessara 1\\.0$")
    return said("xprop", "-id", window, name).split(" = ")[-1]


class Scratch(unittest.TestCase):
    """A scratch root with the program installed, and a home in which it has never run."""

    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(tempfile.mkdtemp(prefix="tessara-installation-"))
        cls.addClassCleanup(remove, cls.folder)
        cls.root = cls.folder / "root"
        said("cmake", "--install", build, "--prefix", "/usr", env={**os.environ, "DESTDIR": str(cls.root)})
        cls.usr = cls.root / "usr"

    def setUp(self):
        home = pathlib.Path(tempfile.mkdtemp(dir=self.folder))
        self.settings = home / ".config" / "Tessara.conf"
        self.settings.parent.mkdir()
        self.settings.write_text("[Settings]\nShowSplash=0\n")
        self.data = home / ".local" / "share"
        self.deck = home / "my décks" / "two words.tsr"
        self.deck.parent.mkdir()
        shutil.copy(build / "samples" / "capitals.tsr", self.deck)
        self.environment = {name: value for name, value in os.environ.items()
                            if not name.startswith("XDG_") or name == "XDG_RUNTIME_DIR"}
        self.environment["HOME"] = str(home)

    def start(self, *command, deck=None):
        """Starts a command that shows the frame and nothing else, has the program got the deck; and ends all of it."""
        program = subprocess.Popen(command, env=self.environment, start_new_session=True)
        try:
            wait_for("The frame", titles_on_screen)
            self.assertEqual(titles_on_screen(), ["Tessara 1.0"])
            self.assertIn(WINDOW_CLASS, frame_property("WM_CLASS").split(", "))
            process = pathlib.Path("/proc", frame_property("_NET_WM_PID"))
            arguments = process.joinpath("cmdline").read_bytes().decode().split("\0")[1:-1]
            self.assertEqual(arguments, [str(deck)] if deck else [])
        finally:
            # What opens a deck may leave as soon as it has started the program.
            wanted = -signal.SIGTERM if program.poll() is None else 0
            os.killpg(program.pid, signal.SIGTERM)
            program_end.expect(program, wanted)
            wait_for("The end of the program", lambda: not titles_on_screen())

    def ask(self, *command):
        return subprocess.run(command, env=self.environment, stdout=subprocess.PIPE, text=True).stdout.strip()


class Files(Scratch):
    def test_the_program_lives_whole_in_its_folder_with_a_link_in_bin(self):
        folder = self.usr / "lib" / "tessara"
        self.assertEqual((self.usr / "bin" / "tessara").resolve(), folder / "tessara")
        for name in ("Notelet.ico", "TessaraHelp.chm", "libtessara_qt_print.so", "libtessara_help.so", "tessara-notify",
                     "pictures/info.png", "pictures/backdrops/DEFAULT.jpg", "samples/capitals.tsr",
                     "icons/hicolor/48x48/apps/tessara.png"):
            self.assertTrue((folder / name).is_file(), name)

    def test_the_spreadsheet_module_and_its_template_go_along_where_they_were_built(self):
        for name in ("libtessara_libreoffice.so", "Notelet.xlt"):
            self.assertEqual((self.usr / "lib" / "tessara" / name).is_file(), (build / name).is_file(), name)

    def test_nothing_of_the_installation_tells_where_it_was_built(self):
        # A path begins there: a folder at the top may have a name that is part of an address, too.
        places = re.compile(b"|".join(rb"(?<![\w/-])" + re.escape(str(place).encode()) for place in (build, SOURCE)))
        for path in filter(pathlib.Path.is_file, self.root.rglob("*")):
            self.assertIsNone(places.search(path.read_bytes()), path)

    def test_the_manual_page_and_the_metadata_tell_the_version_of_the_program(self):
        version = re.search(r"^CMAKE_PROJECT_VERSION:STATIC=(.*)$", (build / "CMakeCache.txt").read_text(), re.MULTILINE)[1]
        share = self.usr / "share"
        self.assertIn(f'"Tessara {version}"', (share / "man" / "man1" / "tessara.1").read_text())
        self.assertIn(f'<release version="{version}"', (share / "metainfo" / METADATA).read_text())

    def test_the_help_is_the_same_to_the_byte_when_it_is_made_again(self):
        compiler = shutil.which("chmcmd") or shutil.which("chmcmd-3.2.2")
        again = self.folder / "again.chm"
        said(SOURCE / "scripts" / "make_help.py", compiler, again)
        self.assertEqual(again.read_bytes(), (self.usr / "lib" / "tessara" / "TessaraHelp.chm").read_bytes())

    def test_debians_source_package_takes_each_file_and_names_no_other(self):
        installed = {str(path.relative_to(self.root)) for path in self.root.rglob("*") if not path.is_dir()}
        taken, nowhere = set(), []
        for pattern in debian_patterns():
            # A folder is taken with all that is in it.
            found = set(fnmatch.filter(installed, pattern)) | set(fnmatch.filter(installed, f"{pattern}/*"))
            nowhere += [] if found else [pattern]
            taken |= found
        self.assertEqual((installed - taken, nowhere), (set(), []))

    def test_what_the_desktop_reads_stands_by_its_rules(self):
        share = self.usr / "share"
        said("desktop-file-validate", share / "applications" / "tessara.desktop")
        said("appstreamcli", "validate", "--no-net", share / "metainfo" / METADATA)
        said("update-mime-database", share / "mime")
        self.assertNotIn("SCREENSHOTS", (share / "metainfo" / METADATA).read_text())
        self.environment["XDG_DATA_DIRS"] = f"{share}:/usr/share"
        self.assertEqual(self.ask("gio", "info", "-a", "standard::content-type", self.deck).split()[-1], DECK_TYPE)


class Start(Scratch):
    def test_the_first_start_declares_the_deck_type_and_xdg_open_then_starts_the_program(self):
        program = self.usr / "bin" / "tessara"
        self.start(program)
        self.assertIn("FirstLoad=False", self.settings.read_text())
        wait_for("The deck type", lambda: self.ask("xdg-mime", "query", "default", DECK_TYPE) == "tessara.desktop")
        for desktop in ("", "GNOME"):
            with self.subTest(desktop=desktop):
                self.environment["XDG_CURRENT_DESKTOP"] = desktop
                self.assertEqual(self.ask("xdg-mime", "query", "filetype", self.deck), DECK_TYPE)
                self.start("xdg-open", self.deck, deck=self.deck)

    def test_a_deck_is_opened_by_its_path_and_the_second_start_declares_nothing(self):
        self.settings.write_text("[Settings]\nFirstLoad=False\nShowSplash=0\n")
        self.start(self.usr / "bin" / "tessara", self.deck, deck=self.deck)
        self.assertFalse((self.data / "applications").exists())
        self.assertFalse((self.data / "mime").exists())


class Package(Scratch):
    """The Debian package."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        said("cpack", "--config", build / "CPackConfig.cmake", "-G", "DEB", "-B", cls.folder)
        cls.package, = cls.folder.glob("tessara_*.deb")
        cls.deck_package, = cls.folder.glob("tessara-deck_*.deb")

    def field(self, name):
        return said("dpkg-deb", "--field", self.package, name)

    @staticmethod
    def entries(package):
        told = said("dpkg-deb", "--contents", package)
        return {line.split(" ./", 1)[1].split(" -> ")[0].rstrip("/") for line in told.splitlines() if " ./" in line}

    def test_it_needs_libraries_and_no_office(self):
        needed = [part.split()[0] for part in self.field("Depends").split(", ")]
        self.assertIn("libqt6widgets6", needed)
        self.assertFalse([name for name in needed if name.startswith("libreoffice") or name.endswith("-dev")], needed)
        recommended = self.field("Recommends").split(", ")
        for name in ("fonts-dejavu-core", "fonts-liberation", "libreoffice-calc", "qt6-wayland", "xdg-utils",
                     "shared-mime-info", "desktop-file-utils"):
            self.assertIn(name, recommended)

    def test_it_holds_all_that_an_installation_has(self):
        packed = self.entries(self.package)
        installed = {str(path.relative_to(self.root)) for path in self.root.rglob("*")}
        # Debian packs manual pages.
        installed = {f"{path}.gz" if path.endswith(".1") else path for path in installed}
        self.assertLessEqual(installed, packed | self.entries(self.deck_package))
        for name in ("bin/tessara", "lib/tessara/tessara", "lib/tessara/tessara-notify",
                     "lib/tessara/TessaraHelp.chm", "lib/tessara/samples/science.tsr",
                     "share/applications/tessara.desktop", "share/mime/packages/tessara.xml",
                     "share/icons/hicolor/48x48/apps/tessara.png",
                     "share/metainfo/io.github.tessara.tessara.metainfo.xml", "share/man/man1/tessara.1.gz"):
            self.assertIn(f"usr/{name}", packed)

    def test_the_program_starts_from_what_is_unpacked(self):
        unpacked = self.folder / "unpacked"
        said("dpkg-deb", "--extract", self.package, unpacked)
        self.start(unpacked / "usr" / "bin" / "tessara", self.deck, deck=self.deck)

    def test_lintian_finds_nothing(self):
        said("lintian", "--fail-on", "error,warning", "--allow-root", self.package, self.deck_package)

    def test_the_command_is_a_package_of_its_own_without_qt(self):
        needed = said("dpkg-deb", "--field", self.deck_package, "Depends")
        self.assertIn("libpugixml", needed)
        for library in ("qt", "fonts", "libreoffice"):
            self.assertNotIn(library, needed.lower())
        packed = self.entries(self.deck_package)
        for name in ("bin/tessara-deck", "lib/tessara/tessara-deck", "share/man/man1/tessara-deck.1.gz",
                     "share/bash-completion/completions/tessara-deck", "share/doc/tessara-deck/copyright"):
            self.assertIn(f"usr/{name}", packed)
        unpacked = self.folder / "unpacked-deck"
        said("dpkg-deb", "--extract", self.deck_package, unpacked)
        said(unpacked / "usr" / "bin" / "tessara-deck", "--version")
        self.assertNotIn("usr/bin/tessara-deck", self.entries(self.package))


if __name__ == "__main__":
    build = pathlib.Path(sys.argv.pop(1)).resolve()
    unittest.main()
