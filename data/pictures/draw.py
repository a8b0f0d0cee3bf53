#!/usr/bin/python3
"""Draws every picture of the program anew: data/pictures/generated, data/help/pictures, data/icons
and data/Notelet.ico.

Needs the Debian packages python3-pil and librsvg2-bin. Twice the same command gives twice the same bytes.
"""

import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path.insert(0, str(HERE))
sys.dont_write_bytecode = True

from sources import backdrops, cards, icons, marks, splash, steps  # noqa: E402


def main():
    generated = HERE / "generated"
    backdrops.draw(generated / "backdrops")
    cards.draw(generated)
    steps.draw(generated / "steps")
    steps.draw_for_help(HERE.parent / "help" / "pictures")
    splash.draw(generated)
    marks.draw(generated)
    icons.draw(HERE.parent)


if __name__ == "__main__":
    main()
