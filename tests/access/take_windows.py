#!/usr/bin/python3
"""Takes a picture of every window as one user's desktop shows it, to be looked at.

usage: SCREEN=WIDTHxHEIGHT scripts/with_display.sh dbus-run-session -- tests/access/take_windows.py BUILD FOLDER
           [dark|yellow-on-black|white-on-black] [FONT=FACE,POINTS] [NAME=VALUE...] [SCENE...]

The colours and the font are those of a Plasma desktop; NAME=VALUE goes into the environment, for
example QT_SCALE_FACTOR=2. Without scenes all are taken.
"""
import pathlib
import sys
import time

from accessible_program import Program
from windows import SCENES

import screen_picture  # from scripts/, where accessible_program has looked too

# Red, green, blue: the dark scheme that Plasma brings, and two of high contrast.
BREEZE = {"Window": "49,54,59", "View": "35,38,41", "Button": "49,54,59", "Tooltip": "49,54,59",
          "Selection": "61,174,233"}
BLACK = dict.fromkeys(["Window", "View", "Button", "Tooltip"], "0,0,0")
# Name: grounds, text, dimmed text, focus, selected text.
SCHEMES = {"dark": (BREEZE, "239,240,241", "161,169,177", "61,174,233", "239,240,241"),
           "yellow-on-black": (BLACK | {"Selection": "0,128,0"}, "255,255,0", "200,200,0", "0,255,0", "255,255,255"),
           "white-on-black": (BLACK | {"Selection": "26,235,255"}, "255,255,255", "200,200,200", "26,235,255", "0,0,0")}


def scheme_of(name):
    grounds, text, dim_text, focus, selected_text = SCHEMES[name]
    for part, ground in grounds.items():
        yield f"[Colors:{part}]\nBackgroundNormal={ground}\nBackgroundAlternate={ground}\n"
        yield f"ForegroundNormal={selected_text if part == 'Selection' else text}\n"
        yield f"ForegroundInactive={dim_text}\nForegroundLink={focus}\n"
        yield f"DecorationFocus={focus}\nDecorationHover={focus}\n"


def take(picture):
    # The window is there; nothing tells when all of it is painted.
    time.sleep(0.5)
    screen_picture.trimmed(screen_picture.of_screen()).save(picture)


def main():
    build, folder, *rest = sys.argv[1:]
    folder = pathlib.Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    environment = dict(word.split("=", 1) for word in rest if "=" in word)
    font = environment.pop("FONT", None)
    plasma = f"[General]\nfont={font},-1,5,50,0,0,0,0,0\n" if font else ""
    plasma += "".join("".join(scheme_of(name)) for name in SCHEMES if name in rest)
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
