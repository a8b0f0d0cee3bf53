"""The real program on a display and an accessibility bus, as a screen reader and a keyboard have it."""
import functools
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402  after the version is chosen

import small_deck  # noqa: E402

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "scripts"))
import program_end  # noqa: E402  after the path is set

SECONDS_TO_WAIT = 30
SECONDS_BETWEEN_LOOKS = 0.01
# A key that moves nothing in this time is taken for one without effect.
SECONDS_FOR_A_KEY = 5

SETTINGS = "[Settings]\nShowSplash=0\nFirstLoad=False\n"
FOLDERS = ("XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME")


def found_by(look):
    """What `look` finds; nothing where something goes off the bus while it looks."""
    try:
        return look()
    except GLib.Error:
        return None


def wait_for(what, look, seconds=SECONDS_TO_WAIT):
    """What `look` finds, once it finds something."""
    deadline = time.monotonic() + seconds
    while not (found := found_by(look)):
        if time.monotonic() > deadline:
            raise AssertionError(f"{what} did not come within {seconds} seconds")
        time.sleep(SECONDS_BETWEEN_LOOKS)
    return found


class Node:
    """One place of the accessibility tree. What it says is read once, when it is asked for."""

    def __init__(self, accessible, parent=None):
        self._accessible = accessible
        self.parent = parent

    def __eq__(self, other):
        return other is not None and self._accessible == other._accessible

    def __hash__(self):
        return hash(self._accessible)

    def __str__(self):
        return f'{self.role} "{self.name}"'

    @functools.cached_property
    def role(self):
        return self._accessible.get_role_name()

    @functools.cached_property
    def name(self):
        return self._accessible.get_name() or ""

    @functools.cached_property
    def description(self):
        return self._accessible.get_description() or ""

    @functools.cached_property
    def _states(self):
        return self._accessible.get_state_set()

    def _has(self, state):
        return self._states.contains(state)

    showing = property(lambda self: self._has(Atspi.StateType.SHOWING))
    enabled = property(lambda self: self._has(Atspi.StateType.ENABLED))
    active = property(lambda self: self._has(Atspi.StateType.ACTIVE))
    focusable = property(lambda self: self._has(Atspi.StateType.FOCUSABLE))
    focused = property(lambda self: self._has(Atspi.StateType.FOCUSED))
    checked = property(lambda self: self._has(Atspi.StateType.CHECKED))

    @functools.cached_property
    def place(self):
        """Left, top, right and bottom on the screen."""
        place = Atspi.Component.get_extents(self._accessible, Atspi.CoordType.SCREEN)
        return place.x, place.y, place.x + place.width, place.y + place.height

    @property
    def text(self):
        """What stands in a box, read anew each time."""
        return Atspi.Text.get_text(self._accessible, 0, -1)

    def write(self, text):
        """Puts a text into a box at once, as an input method does."""
        Atspi.EditableText.set_text_contents(self._accessible, text)

    def children(self):
        for index in range(self._accessible.get_child_count()):
            child = self._accessible.get_child_at_index(index)
            if child is not None:
                yield Node(child, self)

    def below(self, wanted=lambda node: True):
        """All that is wanted inside, in the tree's order; not what stands in something unwanted."""
        for child in self.children():
            if wanted(child):
                yield child
                yield from child.below(wanted)

    def showing_below(self):
        return list(self.below(lambda node: node.showing))

    def ancestry(self):
        """From the root of the walk down to the node itself."""
        return (self.parent.ancestry() if self.parent else []) + [self]


class Program:
    """Tessara with a home of its own, started by the prefix. The window in front is the last that came."""

    def __init__(self, executable, samples, prefix=(), **environment):
        self._command = (*prefix, executable)
        self._samples = samples
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="tessara-access-"))
        (self.home / ".config").mkdir()
        (self.home / "runtime").mkdir(mode=0o700)
        (self.home / ".config" / "Tessara.conf").write_text(SETTINGS, encoding="ascii")
        inherited = {name: value for name, value in os.environ.items() if name not in FOLDERS}
        self._environment = inherited | environment | {
            "HOME": str(self.home), "XDG_RUNTIME_DIR": str(self.home / "runtime"),
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
        self._process = self._root = None

    def go_to(self, scene):
        """Starts with the scene's deck and takes its steps."""
        self.start(*([self._deck(scene.deck)] if scene.deck else []))
        for title, *keys in scene.steps:
            self.ready(title)
            self.press(*keys[0].split()) if len(keys) == 1 else self.choose(*keys)
        self.ready(scene.title)

    def _deck(self, name):
        if name == small_deck.NAME:
            return small_deck.write(self.home)
        return shutil.copy(f"{self._samples}/{name}.tsr", self.home)

    def start(self, *arguments, **options):
        """Starts, and waits until the program is on the accessibility bus."""
        self._process = subprocess.Popen([*self._command, *arguments], env=self._environment, **options)
        self._root = wait_for("the program on the bus", self._application)
        return self._process

    def kill(self):
        """A program that has ended by itself is a failure."""
        process, self._process = self._process, None
        program_end.end(process, signal.SIGKILL)

    def ready(self, title):
        """Waits until a window is in front and takes keys."""
        self._wait(f'"{title}" in front', lambda: (front := self.windows()[-1:]) and front[0].name == title
                   and front[0].ancestry()[0].active)

    def _wait(self, what, look):
        try:
            return wait_for(what, look)
        except AssertionError as missed:
            raise AssertionError(f"{missed}; there: {', '.join(map(str, self.windows()))}") from missed

    def status(self):
        """How the program ends: what it returns, or a signal's number below zero."""
        process, self._process = self._process, None
        return process.wait(SECONDS_TO_WAIT)

    def end(self):
        try:
            if self._process:
                self.kill()
        finally:
            shutil.rmtree(self.home)

    def _application(self):
        desktop = Atspi.get_desktop(0)
        for index in range(desktop.get_child_count()):
            found = desktop.get_child_at_index(index)
            try:
                if found is not None and found.get_process_id() == self._process.pid:
                    found.set_cache_mask(Atspi.Cache.NONE)
                    return found
            except GLib.Error:
                continue  # on its way off the bus
        return None

    # What is on screen.

    def windows(self):
        """The top windows of the program and the windows inside its frame, outermost first."""
        found = []
        for index in range(self._root.get_child_count()):
            window = self._root.get_child_at_index(index)
            top = window and Node(window)
            if not top or not top.showing:
                continue
            found.append(top)
            for area in top.children():
                if area.role == "layered pane":
                    found += [child for child in area.children() if child.showing]
        return found

    def window(self, title):
        """The window with the title, once it shows."""
        return self._wait(f'the window "{title}"', lambda: self._window(title))

    def _window(self, title):
        return next((window for window in self.windows() if window.name == title), None)

    def focused(self, title):
        """What has the focus in a window: the innermost place that says so."""
        window = self._window(title)
        # A list that has not the focus has an item that would have it.
        path = window.below(lambda node: node.showing and (node.focused or not node.focusable)) if window else ()
        return next((node for node in reversed(list(path)) if node.focused and node.focusable), None)

    def find(self, title, name):
        """What shows in a window by that name."""
        return wait_for(f'"{name}" in "{title}"', lambda: self._find(title, name))

    def _find(self, title, name):
        window = self._window(title)
        return next((node for node in window.showing_below() if node.name == name), None) if window else None

    # The keyboard and the mouse.

    @staticmethod
    def press(*keys):
        subprocess.run(["xdotool", "key", "--delay", "15", *keys], check=True)

    @staticmethod
    def click(button, node):
        left, top, right, bottom = node.place
        place = map(str, ((left + right) // 2, (top + bottom) // 2))
        subprocess.run(["xdotool", "mousemove", *place, "click", str(button)], check=True)

    @staticmethod
    def type(text):
        subprocess.run(["xdotool", "type", "--delay", "15", text], check=True)

    def menu_bar(self):
        return next(node for node in self.windows()[0].children() if node.role == "menu bar")

    def entry_in_menus(self):
        """The entry of the menu bar or of an open menu that the keys have come to."""
        entries = self.menu_bar().below(lambda node: node.showing or node.role == "popup menu")
        return next((entry for entry in reversed(list(entries)) if entry.focused), None)

    def choose(self, menu, entry):
        """Alt into the menu bar, right to the menu, down to the entry."""
        self.press("Alt_L")
        wait_for("the focus of the menu bar", self.entry_in_menus)
        for name, step in ((menu, "Right"), (entry, "Down")):
            self._step_to(name, step)
            self.press("Down" if name == menu else "Return")

    def _step_to(self, name, step):
        met = set()
        while (now := wait_for("a menu entry", self.entry_in_menus)).name != name:
            if now in met:
                raise AssertionError(f'the keys never get to the menu entry "{name}"')
            met.add(now)
            self.press(step)
            wait_for("the next menu entry", lambda: self.entry_in_menus() not in (None, now))
