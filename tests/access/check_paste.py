#!/usr/bin/python3
"""Pastes into the boxes of the running program where the clipboard and the selection offer nothing.

usage: dbus-run-session -- check_paste.py TESSARA SAMPLES

It needs the display that DISPLAY names, on which nothing has been copied
"""
import sys
import unittest

from accessible_program import Program, wait_for
from windows import SCENES

MIDDLE = 2

tessara = samples = ""


class Pastes(unittest.TestCase):
    def check(self, name, box):
        scene = next(scene for scene in SCENES if scene.name == name)
        program = Program(tessara, samples)
        try:
            program.go_to(scene)
            program.press("ctrl+v", "shift+Insert")
            program.click(MIDDLE, program.find(scene.title, box))
            program.press("ctrl+v", "x")
            wait_for("the letter alone", lambda: program.find(scene.title, box).text == "x")
        finally:
            program.end()

    def test_a_text_card_takes_nothing_and_the_program_goes_on(self):
        self.check("builder-text-new", "Front")

    def test_a_question_takes_nothing_and_the_program_goes_on(self):
        self.check("builder-question-new", "Question")


if __name__ == "__main__":
    tessara, samples = sys.argv[1:3]
    unittest.main(argv=sys.argv[:1])
