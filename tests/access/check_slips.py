#!/usr/bin/python3
"""Makes the slips that fingers make in the running program, and looks that nothing is lost by them.

usage: dbus-run-session -- check_slips.py TESSARA SAMPLES [TEST...]

It needs the display that DISPLAY names
"""
import sys
import unittest

import small_deck
from accessible_program import Program, wait_for
from windows import BUILDER, FRAME, NEW_DECK, SCENES, STUDY, Scene

BUILDER_TITLE = "Tessara"
UNKNOWN_LETTER = small_deck.record("I", "Verbs") + small_deck.record("Q", "a text", 1) + small_deck.record("X")
NO_CARDS = small_deck.record("I", "Verbs") + small_deck.record("X")

tessara = samples = ""


def scene(name):
    return next(scene for scene in SCENES if scene.name == name)


class Running(unittest.TestCase):
    def setUp(self):
        self.program = Program(tessara, samples)
        self.addCleanup(self.program.end)

    def has_focus(self, title, *names):
        wait_for(f"the focus on one of {names}",
                 lambda: (focused := self.program.focused(title)) and focused.name in names)

    def alive(self, title):
        self.program.ready(title)


class Builders(Running):
    def test_a_letter_that_two_buttons_share_presses_none(self):
        for name, box in (("builder-text-new", "Front"), ("builder-question-new", "Question")):
            with self.subTest(name):
                self.program.go_to(scene(name))
                self.program.type("kept")
                for button in ("Cancel", "Close", "Cancel"):
                    self.program.press("alt+c")
                    # Cancel is off over an empty deck; over a deck both are met.
                    self.has_focus(BUILDER_TITLE, button, "Close")
                self.assertEqual(self.program.find(BUILDER_TITLE, box).text, "kept")
                self.program.kill()

    def test_cancel_over_one_card_leaves_no_way_before_it(self):
        self.program.go_to(Scene("one", BUILDER_TITLE, small_deck.NAME, (("one  [STUDY]", *BUILDER),)))
        self.program.press("alt+n")
        cancel = wait_for("Cancel", lambda: (found := self.program.find(BUILDER_TITLE, "Cancel")).enabled and found)
        self.program.click(1, cancel)
        wait_for("the card", lambda: self.program.find(BUILDER_TITLE, "Question").text == "Is water wet?")
        self.assertFalse(self.program.find(BUILDER_TITLE, "Previous card").enabled)
        self.program.press("ctrl+Prior", "ctrl+Prior")
        self.assertEqual(self.program.find(BUILDER_TITLE, "Question").text, "Is water wet?")
        self.alive(BUILDER_TITLE)

    def test_a_builder_that_closes_leaves_the_focus_on_the_deck(self):
        self.program.go_to(Scene("closed", BUILDER_TITLE, "capitals", ((STUDY, *BUILDER),)))
        self.program.click(1, self.program.find(BUILDER_TITLE, "Close"))
        self.program.ready(STUDY)
        self.has_focus(STUDY, "Card", "Next card", ">>")
        self.program.press("space")
        self.alive(STUDY)


class Menus(Running):
    def test_a_letter_that_two_entries_share_goes_from_one_to_the_next(self):
        self.program.go_to(scene("empty"))
        self.program.press("alt+f")
        for entry in ("Create/Edit Card", "Close Tessara", "Create/Edit Card"):
            self.program.press("c")
            wait_for(entry, lambda entry=entry: (now := self.program.entry_in_menus()) and now.name == entry)
        self.program.press("Return")
        self.program.ready(BUILDER_TITLE)


class SetUp(Running):
    def list_is_open(self):
        box = self.program.find("Set-Up", "DEFAULT")
        return any(node.role == "list" and node.showing for node in box.children())

    def test_a_key_on_the_closed_list_of_backdrops_opens_it_and_chooses_none(self):
        self.program.go_to(scene("set-up"))
        self.program.press("shift+Tab", "shift+Tab")
        self.has_focus("Set-Up", "DEFAULT")
        for key in ("Up", "Down", "Home", "End", "Prior", "Next", "n"):
            with self.subTest(key):
                self.program.press(key)
                wait_for("the open list", self.list_is_open)
                self.program.press("Escape")
                self.has_focus("Set-Up", "DEFAULT")


class Decks(Running):
    def test_a_deck_that_shows_no_card_comes_up_by_its_title_and_without_design_text(self):
        for name, deck in (("none", NO_CARDS), ("letter", UNKNOWN_LETTER)):
            with self.subTest(name):
                path = self.program.home / f"{name}.tsr"
                path.write_bytes(deck)
                self.program.start(str(path))
                title = f"{name}  [STUDY]"
                self.program.ready(title)
                said = " ".join(node.name for node in self.program.window(title).showing_below())
                self.assertNotIn("LABEL", said.upper())
                self.program.kill()


if __name__ == "__main__":
    tessara, samples = sys.argv[1:3]
    unittest.main(argv=sys.argv[:1] + sys.argv[3:])
