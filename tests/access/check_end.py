#!/usr/bin/python3
"""Closes the running program with a changed deck, on each road there is, and looks how it has ended.

usage: dbus-run-session -- check_end.py TESSARA SAMPLES [TEST...]

It needs the display that DISPLAY names, and a window manager that closes windows by Alt+F4
"""
import sys
import unittest

from accessible_program import Program, wait_for
from windows import BUILDER, FRAME, NEW_DECK, STUDY, Scene

CLOSE = "alt+F4"
INFORMATION = "Tessara Information"
SURE = "Close Tessara"
CHANGE = ((STUDY, "File", "Delete Card"), ("Delete Card # 1", "alt+y"))
SAVE_AND_LEAVE = (("Unsaved Changes: ", "Return"), ("Save", "Return"), (SURE, "Return"))

tessara = samples = ""


class Running(unittest.TestCase):
    def setUp(self):
        self.program = Program(tessara, samples)
        self.addCleanup(self.program.end)


class Ends(Running):
    def ends_well(self, *steps):
        """The last step ends the program."""
        *way, (title, key) = steps
        self.program.go_to(Scene("end", title, "capitals", tuple(way)))
        self.program.press(*key.split())
        self.assertEqual(self.program.status(), 0)

    def test_frame_in_front(self):
        self.ends_well(*CHANGE, (STUDY, CLOSE), *SAVE_AND_LEAVE)

    def test_builder_in_front(self):
        self.ends_well(*CHANGE, (STUDY, *BUILDER), ("Tessara", CLOSE), *SAVE_AND_LEAVE)

    def test_frame_after_its_deck(self):
        self.ends_well(*CHANGE, (STUDY, "File", "Close Tessara"), *SAVE_AND_LEAVE, (INFORMATION, CLOSE))

    def test_frame_after_its_deck_and_the_information(self):
        self.ends_well(*CHANGE, (STUDY, "File", "Close Tessara"), *SAVE_AND_LEAVE, (INFORMATION, "alt+c"),
                       (FRAME, "alt+f e"))


class Menus(Running):
    def bar(self, *menus):
        """Waits for the menu bar: each menu's name, and whether it is on."""
        def shown():
            return [(menu.name, menu.enabled) for menu in self.program.menu_bar().children() if menu.showing]
        wait_for(f"the bar {menus}", lambda: shown() == list(menus))

    def test_information_over_an_empty_deck(self):
        empty = (("File", True), ("Mode", False), ("Utility", True), ("Help", True))
        self.program.go_to(Scene("empty", NEW_DECK))
        self.bar(*empty)
        self.program.choose("Utility", INFORMATION)
        self.program.ready(INFORMATION)
        self.bar(("File", False), ("Help", True))
        self.program.press("alt+c")
        self.program.ready(NEW_DECK)
        self.bar(*empty)

    def test_builder_over_a_deck(self):
        self.program.go_to(Scene("builder", "Tessara", "capitals", ((STUDY, *BUILDER),)))
        self.bar(("File", False), ("Help", True))


if __name__ == "__main__":
    tessara, samples = sys.argv[1:3]
    unittest.main(argv=sys.argv[:1] + sys.argv[3:])
