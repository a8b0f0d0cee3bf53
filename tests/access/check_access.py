#!/usr/bin/python3
"""Walks the accessibility tree of every window of the running program, on a bus of its own.

usage: dbus-run-session -- check_access.py TESSARA SAMPLES [TEST...]

It needs the display that DISPLAY names

In each window, whatever shows has a name and a role that a screen reader can say, the keyboard gets
to whatever takes the focus, in an order that the eye follows, and the card says its side, its number,
its banner and its text.
"""
import contextlib
import sys
import time
import unittest

from accessible_program import Program, SECONDS_FOR_A_KEY, wait_for
from windows import SCENES

# What holds or parts other things, and says nothing itself.
SILENT = {"filler", "panel", "layered pane", "separator", "scroll bar", "frame"}
TEXTS = {"label"}
# A list has cells without a text; the file dialog's folders have no size.
CELLS = {"table cell"}
WINDOWS = {"frame", "dialog", "alert"}
# By so many pixels neighbours may overlap.
SLACK = 10

tessara = samples = ""


def comes_after(first, second):
    """True where the second place stands below the first or on its right."""
    return second[0] >= first[2] - SLACK or second[1] >= first[3] - SLACK


def in_order(first, second):
    """Compares two places where their ways from the root part."""
    for one, other in zip(first.ancestry(), second.ancestry()):
        if one != other:
            return comes_after(one.place, other.place)
    return True


class Windows(unittest.TestCase):
    @contextlib.contextmanager
    def showing(self, scene):
        self.program = Program(tessara, samples)
        try:
            self.program.go_to(scene)
            yield
        finally:
            self.program.end()

    def stands(self, scene):
        """Checks the window, which is in front."""
        if scene.says:
            wait_for(f"the card to say {scene.says}", lambda: all(
                part in self.program.find(scene.title, "Card").description for part in scene.says))
        self.assertEqual(self.faults(self.program.window(scene.title)), [])
        if not scene.tabs:
            return
        stops = self.tab_stops(scene.title)
        self.assertEqual(self.missed(scene.title, stops), [], "not reached by Tab")
        self.assertEqual(self.against_the_eye(stops), [], "Tab jumps back")

    @staticmethod
    def faults(window):
        found = [] if window.role in WINDOWS else [f"a window without a role: {window}"]
        for node in [window, *window.showing_below()]:
            where = " / ".join(map(str, node.ancestry()))
            silent = node.role in SILENT and node is not window
            if silent and node.focusable and node.role != "frame":
                found.append(f"takes the focus without a role: {where}")
            if not node.name and (node.focusable or not silent) and node.role not in TEXTS | CELLS:
                found.append(f"nameless: {where}")
        return found

    @staticmethod
    def focusable_in(window):
        """What takes the focus; a part of something that does belongs to it, and a box's text is
        there to be copied by the mouse."""
        found = []
        for node in window.showing_below():
            inner = any(outer in found for outer in node.ancestry())
            copied = node.role == "label" and window.role == "alert"
            if node.focusable and node.enabled and not inner and not copied:
                found.append(node)
        return found

    def tab_stops(self, title):
        """Where Tab goes, once round, from what has the focus."""
        wanted = self.focusable_in(self.program.window(title))
        if not wanted:
            return []

        def focused():
            inner = self.program.focused(title)
            return inner and next((node for node in inner.ancestry() if node in wanted), None)

        stops = [wait_for(f'the focus in "{title}"', focused)]
        while len(wanted) > 1:
            self.program.press("Tab")
            deadline = time.monotonic() + SECONDS_FOR_A_KEY
            while (now := focused()) in (None, stops[-1]):
                self.assertLess(time.monotonic(), deadline, f"Tab does not leave {stops[-1]}")
            if now in stops:
                break
            stops.append(now)
        return stops

    def missed(self, title, stops):
        """What Tab passes over. In a group of options it stops once; the arrows do the rest."""
        window = self.program.window(title)
        groups = {stop.parent for stop in stops if stop.role == "radio button"}
        return [str(node) for node in self.focusable_in(window)
                if node not in stops and not (node.role == "radio button" and node.parent in groups)]

    @staticmethod
    def against_the_eye(stops):
        """The steps back but one: from the last place Tab goes round to the first."""
        steps = list(zip(stops, stops[1:] + stops[:1]))
        back = [f"{first} to {second}" for first, second in steps if not in_order(first, second)]
        return back if len(back) > 1 else []

    def test_every_window(self):
        for scene in SCENES:
            with self.subTest(scene=scene.name):
                with self.showing(scene):
                    self.stands(scene)

    def test_a_text_that_a_save_would_cut_is_told(self):
        scene = next(scene for scene in SCENES if scene.name == "builder-text-new")
        with self.showing(scene):
            for length, told in ((444, ""), (450, "6 characters too long: a save cuts them off."), (3, "")):
                self.program.find(scene.title, "Front").write("x" * length)
                wait_for(f"{length} letters to be told", lambda told=told: self.program.find(
                    scene.title, "Front").description == told)


def main():
    global tessara, samples
    tessara, samples = sys.argv[1:3]
    unittest.main(argv=sys.argv[:1] + sys.argv[3:])


if __name__ == "__main__":
    main()
