#!/usr/bin/python3
"""Saves over a deck in the running program, and takes the old deck back from the safety copies.

usage: dbus-run-session -- check_copies.py TESSARA SAMPLES

It needs the display that DISPLAY names
"""
import pathlib
import sys
import tempfile
import unittest

from accessible_program import Program
from windows import STUDY, Scene

SAVED = Scene("save", "Save", "capitals", ((STUDY, "File", "Delete Card"), ("Delete Card # 1", "alt+y"),
                                           (STUDY, "File", "Save")))

tessara = samples = ""


class Copies(unittest.TestCase):
    def check(self, folder_of, **environment):
        program = Program(tessara, samples, **environment)
        try:
            program.go_to(SAVED)
            old = pathlib.Path(samples, "capitals.tsr").read_bytes()
            copies = list(folder_of(program.home).iterdir())
            self.assertEqual([copy.read_bytes() for copy in copies], [old])
            self.assertRegex(copies[0].name, r"^capitals \d{4}-\d\d-\d\d \d\d-\d\d-\d\d-\d{3}\.tsr$")
            self.assertNotEqual((program.home / "capitals.tsr").read_bytes(), old)
        finally:
            program.end()

    def test_copies_lie_in_the_home(self):
        self.check(lambda home: home / ".local/state/Tessara/copies")

    def test_copies_lie_in_the_state_folder_that_is_set(self):
        with tempfile.TemporaryDirectory() as state:
            self.check(lambda home: pathlib.Path(state, "Tessara/copies"), XDG_STATE_HOME=state)


if __name__ == "__main__":
    tessara, samples = sys.argv[1:3]
    unittest.main(argv=sys.argv[:1])
