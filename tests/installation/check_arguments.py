#!/usr/bin/python3
"""Starts the program with every kind of argument and looks at what comes up on screen.

usage: check_arguments.py BUILD [TEST...]     on the display that DISPLAY names
"""
import contextlib
import os
import pathlib
import random
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "scripts"))
import first_card  # noqa: E402  after the path is set
import program_end  # noqa: E402

SECONDS_TO_WAIT = 30
SECONDS_BETWEEN_LOOKS = 0.02
ERROR_BOX = "Tessara"
SETTINGS = "[Settings]\nShowSplash=0\nFirstLoad=False\n"
WITHOUT_RIGHTS = ("setpriv", "--bounding-set", "-dac_override,-dac_read_search")

build = pathlib.Path()


def wait_for(what, look):
    """What `look` finds, once it finds something."""
    deadline = time.monotonic() + SECONDS_TO_WAIT
    while not (found := look()):
        if time.monotonic() > deadline:
            raise AssertionError(f"{what} did not come within {SECONDS_TO_WAIT} seconds")
        time.sleep(SECONDS_BETWEEN_LOOKS)
    return found


class Scratch(unittest.TestCase):
    """A home of its own, and a folder with a deck to start from."""

    def setUp(self):
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="tessara-arguments-"))
        self.addCleanup(shutil.rmtree, self.home)
        self.settings = self.home / ".config" / "Tessara.conf"
        self.settings.parent.mkdir()
        self.settings.write_text(SETTINGS)
        self.environment = {name: value for name, value in os.environ.items()
                            if not name.startswith("XDG_") or name == "XDG_RUNTIME_DIR"}
        self.environment["HOME"] = str(self.home)
        self.folder = self.home / "my décks"
        self.folder.mkdir()

    @contextlib.contextmanager
    def started(self, *arguments, prefix=()):
        """The program, which the test sees to its end. Whatever becomes of it, the next one has the screen for itself."""
        program = subprocess.Popen((*prefix, build / "tessara", *arguments), env=self.environment, cwd=self.folder)
        try:
            yield program
        finally:
            program.kill()
            program.wait(SECONDS_TO_WAIT)
            wait_for("The end of the program's windows", lambda: not first_card.windows_of(program))


class Paths(Scratch):
    """Which deck comes up."""

    def setUp(self):
        super().setUp()
        self.deck = self.folder / "two words.tsr"
        shutil.copy(build / "samples" / "capitals.tsr", self.deck)

    def picture(self, *arguments):
        with self.started(*arguments) as program:
            painted = first_card.wait_for_painted(program)
            program_end.end(program)
            return painted

    def test_a_path_names_the_deck_however_it_is_written(self):
        plain, wanted = self.picture(), self.picture(self.deck)
        self.assertNotEqual(plain, wanted)
        for arguments in (("two", "words.tsr"), ("two words.tsr",), ("../my décks/./two words.tsr",),
                          (*str(self.deck).split(" "),)):
            with self.subTest(arguments=arguments):
                self.assertEqual(self.picture(*arguments), wanted)
        with self.subTest("an argument without a letter"):
            self.assertEqual(self.picture(""), plain)
        with self.subTest("up from behind a link"):
            folder = self.home / "elsewhere" / "folder"
            folder.mkdir(parents=True)
            self.deck.rename(folder.parent / self.deck.name)
            (self.folder / "link").symlink_to(folder)
            self.assertEqual(self.picture("link/../two words.tsr"), wanted)


class BadInput(Scratch):
    """What is no deck gets a start or the error box, at once, and a status that tells."""

    def box_or_frame(self, program):
        """The title of what comes up to stay: the error box, or the frame, painted and alone."""
        def look():
            self.assertIsNone(program.poll(), "The program ended by itself")
            titles = first_card.windows_of(program).values()
            if ERROR_BOX in titles:
                return ERROR_BOX
            return first_card.FRAME in titles and self.painted_alone(program)
        return wait_for("The frame or the error box", look)

    @staticmethod
    def painted_alone(program):
        try:
            first_card.wait_for_painted(program)
        except first_card.NotShown:
            return None
        return first_card.FRAME

    @staticmethod
    def press_return(program):
        box, = (number for number, title in first_card.windows_of(program).items() if title == ERROR_BOX)
        subprocess.run(["xdotool", "windowactivate", "--sync", box, "key", "Return"], check=True)

    def check(self, what, wanted, *arguments, prefix=()):
        with self.subTest(what), self.started(*arguments, prefix=prefix) as program:
            self.assertEqual(self.box_or_frame(program), wanted)
            if wanted == ERROR_BOX:
                self.press_return(program)
                program_end.expect(program, 1)
            else:
                program_end.end(program)

    def make(self, name, content=b""):
        path = self.folder / name
        path.write_bytes(content)
        return path

    def test_what_is_no_deck_comes_up_or_is_reported(self):
        folder = self.folder / "folder.tsr"
        folder.mkdir()
        pipe = self.folder / "pipe.tsr"
        os.mkfifo(pipe)
        huge = self.make("huge.tsr")
        os.truncate(huge, 10 * 1024 ** 3)
        noise = self.make("noise.tsr", random.Random(1).randbytes(5 * 1192))
        self.check("missing", ERROR_BOX, "none.tsr")
        self.check("one blank", ERROR_BOX, " ")
        self.check("a folder", ERROR_BOX, folder)
        self.check("a pipe that nobody writes to", ERROR_BOX, pipe)
        self.check("random bytes", ERROR_BOX, noise)
        self.check("empty", first_card.FRAME, self.make("empty.tsr"))
        self.check("ten gigabytes of zeros", first_card.FRAME, huge)

    def test_a_deck_without_permission_is_reported(self):
        deck = self.make("secret.tsr")
        deck.chmod(0)
        self.check("without permission", ERROR_BOX, deck, prefix=WITHOUT_RIGHTS if os.geteuid() == 0 else ())

    def test_nonsense_in_the_settings_is_reported(self):
        self.settings.write_text(SETTINGS.replace("FirstLoad=False", "FirstLoad=maybe"))
        self.check("a word for a truth", ERROR_BOX)


if __name__ == "__main__":
    build = pathlib.Path(sys.argv.pop(1)).resolve()
    unittest.main()
