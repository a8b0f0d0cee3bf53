#!/usr/bin/python3
"""Takes a picture of every window as one user's desktop shows it, to be looked at.

usage: SCREEN=WIDTHxHEIGHT scripts/with_display.sh dbus-run-session -- tests/access/take_windows.py BUILD FOLDER
           [dark] [large-fonts] [NAME=VALUE...] [SCENE...]

"dark" and "large-fonts" are a Plasma desktop's colour scheme and font; NAME=VALUE goes into the
environment, for example QT_SCALE_FACTOR=2. Without scenes all are taken.
"""
import pathlib
import sys
import time

from accessible_program import Program
from windows import SCENES

import screen_picture  # from scripts/, where accessible_program has looked too

FONT = "[General]\nfont=DejaVu Sans,12,-1,5,50,0,0,0,0,0\n"
# Red, green, blue: the dark scheme that Plasma brings.
GROUNDS = {"Window": "49,54,59", "View": "35,38,41", "Button": "49,54,59", "Tooltip": "49,54,59",
           "Selection": "61,174,233"}
TEXT, DIM_TEXT = "239,240,241", "161,169,177"


def dark_scheme():
    for part, ground in GROUNDS.items():
        yield f"[Colors:{part}]\nBackgroundNormal={ground}\nBackgroundAlternate={ground}\n"
        yield f"ForegroundNormal={TEXT}\nForegroundInactive={DIM_TEXT}\nForegroundLink=29,153,243\n"
        yield "DecorationFocus=61,174,233\nDecorationHover=61,174,233\n"


def take(picture):
    # The window is there; nothing tells when all of it is painted.
    time.sleep(0.5)
    screen_picture.trimmed(screen_picture.of_screen()).save(picture)


def main():
    build, folder, *rest = sys.argv[1:]
    folder = pathlib.Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    environment = dict(word.split("=", 1) for word in rest if "=" in word)
    plasma = (FONT if "large-fonts" in rest else "") + ("".join(dark_scheme()) if "dark" in rest else "")
    if plasma:
        environment |= {"XDG_CURRENT_DESKTOP": "KDE", "KDE_SESSION_VERSION": "5", "KDE_FULL_SESSION": "true"}
    wanted = {scene.name for scene in SCENES}.intersection(rest)
    for scene in SCENES:
        if wanted and scene.name not in wanted:
            continue
        program = Program(f"{build}/tessara", f"{build}/samples", **environment)
        try:
            (program.home / ".config" / "kdeglobals").write_text(plasma, encoding="ascii")
            program.go_to(scene)
            take(folder / f"{scene.name}.png")
        finally:
            program.end()


if __name__ == "__main__":
    main()
