#!/usr/bin/python3
"""Saves over a deck in the running program, and takes the old deck back from the safety copies; ends it with a deck
that is not saved, and takes that back.

usage: dbus-run-session -- check_copies.py TESSARA SAMPLES

It needs the display that DISPLAY names
"""
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

from accessible_program import Program, wait_for
from notifications import Notifications
from windows import STUDY, Scene

DELETED = ((STUDY, "File", "Delete Card"), ("Delete Card # 1", "alt+y"))
SAVED = Scene("save", "Save", "capitals", (*DELETED, (STUDY, "File", "Save")))
CHANGED = Scene("changed", STUDY, "capitals", DELETED)
RECORD = 1192
OWN_LINE = "tessara: "
COPY = re.compile(r"^capitals \d{4}-\d\d-\d\d \d\d-\d\d-\d\d-\d{4}\.tsr$")
NOT_SAVED = re.compile(r"^capitals not saved \d{4}-\d\d-\d\d \d\d-\d\d-\d\d-\d{4}\.tsr$")
UNSAVED = re.compile(r"^capitals \(unsaved \d+-1\)\.tsr$")

tessara = samples = ""


class Copies(unittest.TestCase):
    def check(self, folder_of, **environment):
        program = Program(tessara, samples, **environment)
        try:
            program.go_to(SAVED)
            old = pathlib.Path(samples, "capitals.tsr").read_bytes()
            copies = list(folder_of(program.home).iterdir())
            self.assertEqual([copy.read_bytes() for copy in copies], [old])
            self.assertRegex(copies[0].name, COPY)
            self.assertNotEqual((program.home / "capitals.tsr").read_bytes(), old)
        finally:
            program.end()

    def test_copies_lie_in_the_home(self):
        self.check(lambda home: home / ".local/state/Tessara/copies")

    def test_copies_lie_in_the_state_folder_that_is_set(self):
        with tempfile.TemporaryDirectory() as state:
            self.check(lambda home: pathlib.Path(state, "Tessara/copies"), XDG_STATE_HOME=state)


class Unsaved(unittest.TestCase):
    def setUp(self):
        self.notifications = Notifications("body", "body-markup")
        self.addCleanup(self.notifications.end)
        self.program = Program(tessara, samples)
        self.addCleanup(self.program.end)

    def copies(self):
        return sorted((self.program.home / ".local/state/Tessara/copies").iterdir())

    def unsaved_deck(self):
        """The one copy, once the event that changed the table has ended."""
        return wait_for("the unsaved deck", lambda: next(
            (copy for copy in self.copies() if UNSAVED.match(copy.name)), None))

    def start_again(self):
        """Starts, waits until it is told of a deck, and kills the program: what was told, by both ways."""
        started = self.program.start(stderr=subprocess.PIPE, text=True)
        told = wait_for("the notification", self.notifications.told)
        line = next(line for line in started.stderr if line.startswith(OWN_LINE))
        self.program.kill()
        started.stderr.close()
        return told, line

    def test_a_killed_program_leaves_the_deck_and_the_next_start_tells_of_it_once(self):
        self.program.go_to(CHANGED)
        kept = self.unsaved_deck().read_bytes()
        self.program.kill()
        told, line = self.start_again()
        self.assertEqual(len(self.copies()), 1)
        path = self.copies()[0]
        self.assertRegex(path.name, NOT_SAVED)
        self.assertEqual(len(told), 1)
        self.assertIn("The deck capitals had changes", told[0][1])
        self.assertIn(str(path), told[0][1])
        self.assertIn(str(path), line)
        # All cards but the deleted one, as the deck's file has them.
        old = pathlib.Path(samples, "capitals.tsr").read_bytes()
        self.assertEqual(kept, path.read_bytes())
        self.assertEqual(len(kept), len(old) - RECORD)
        self.assertEqual(kept[2 * RECORD + 447:3 * RECORD], old[3 * RECORD + 447:4 * RECORD])
        # A third start has nothing to tell, and opens the deck.
        started = self.program.start(path, stderr=subprocess.PIPE, text=True)
        self.program.ready(f"{path.stem}  [STUDY]")
        self.program.kill()
        self.assertNotIn(OWN_LINE, started.stderr.read())
        started.stderr.close()
        self.assertEqual(len(self.notifications.told()), 1)

    def test_a_deck_that_is_saved_is_not_kept(self):
        self.program.go_to(SAVED)
        self.assertEqual([copy.name for copy in self.copies() if not COPY.match(copy.name)], [])

    def test_a_failed_save_keeps_the_new_deck_and_tells_of_it_at_once(self):
        self.program.go_to(CHANGED)
        self.unsaved_deck()
        deck = self.program.home / "capitals.tsr"
        deck.unlink()
        deck.mkdir()
        self.program.choose("File", "Save")
        told = wait_for("the notification", self.notifications.told)
        self.assertEqual([title for title, _ in told], ["A deck may not have been saved"])
        self.program.ready("Save")
        self.assertEqual(len(self.copies()), 1)
        self.assertRegex(self.copies()[0].name, NOT_SAVED)
        self.assertIn(str(self.copies()[0]), told[0][1])


if __name__ == "__main__":
    tessara, samples = sys.argv[1:3]
    unittest.main(argv=sys.argv[:1])
