#!/usr/bin/python3
"""Saves in the running program where the system refuses: past a limit, and into an installed program's folder.

usage: dbus-run-session -- check_saving.py TESSARA SAMPLES

It needs the display that DISPLAY names
"""
import os
import pathlib
import shutil
import sys
import tempfile
import unittest

from accessible_program import Program
from check_copies import SAVED
from windows import STUDY, Scene

SAVE_AS = (STUDY, "File", "Save As")
# Room for the program's own files, and for less than the deck.
SIZE_LIMIT = 100_000
WITHOUT_RIGHTS = ("setpriv", "--bounding-set", "-dac_override,-dac_read_search") if os.geteuid() == 0 else ()

tessara = samples = ""


class Limits(unittest.TestCase):
    def test_a_file_that_may_not_grow_ends_neither_the_save_nor_the_program(self):
        program = Program(tessara, samples, prefix=("prlimit", f"--fsize={SIZE_LIMIT}"))
        try:
            program.go_to(SAVED)
            program.press("Return")
            program.ready("Tessara Information")
        finally:
            program.end()


class Installed(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.root = pathlib.Path(tempfile.mkdtemp(prefix="tessara-installed-"))
        cls.addClassCleanup(shutil.rmtree, cls.root)
        cls.folder = cls.root / "tessara"
        cls.folder.mkdir()
        shutil.copy(tessara, cls.folder)
        shutil.copytree(pathlib.Path(tessara).parent / "pictures", cls.folder / "pictures")
        cls.folder.chmod(0o555)
        cls.addClassCleanup(cls.folder.chmod, 0o755)

    def save_as(self, path):
        """Leaves the dialog with the path."""
        self.program.ready(STUDY)
        self.program.choose(*SAVE_AS[1:])
        self.program.ready("Save As")
        self.program.type(str(path))
        self.program.press("Return")

    def test_dialogs_begin_in_the_documents_and_take_no_place_that_can_not_be_written(self):
        self.program = Program(self.folder / "tessara", samples, prefix=WITHOUT_RIGHTS)
        self.addCleanup(self.program.end)
        documents = self.program.home / "Documents"
        documents.mkdir()
        self.program.go_to(Scene("study", STUDY, "capitals"))
        self.save_as(self.folder / "capitals.tsr")
        self.program.ready("Tessara")
        self.program.press("Return")
        self.program.ready("Save As")
        self.program.press("ctrl+a")
        self.program.type("capitals")
        self.program.press("Return")
        self.program.ready("Save")
        self.assertFalse((self.folder / "capitals.tsr").exists())
        self.assertEqual([path.name for path in documents.iterdir()], ["capitals"])


if __name__ == "__main__":
    tessara, samples = sys.argv[1:3]
    unittest.main(argv=sys.argv[:1])
