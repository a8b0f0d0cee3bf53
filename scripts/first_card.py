#!/usr/bin/python3
"""Takes a picture of a program's window as soon as it is painted, and ends the program.

usage: first_card.py PICTURE PROGRAM [ARGUMENT...]     on the display that DISPLAY names
"""
import os
import re
import subprocess
import sys
import time

from PIL import ImageChops, ImageGrab

SECONDS_TO_PAINT = 60
SECONDS_BETWEEN_LOOKS = 0.1


def visible_window():
    """The box (left, top, right, bottom) of the program's window without its border, or None."""
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "^Tessara"], capture_output=True, text=True)
    if not found.stdout:
        return None
    told = subprocess.run(["xwininfo", "-id", found.stdout.split()[0]], capture_output=True, text=True).stdout
    try:
        left, top, width, height = (int(re.search(rf"{name}: +(-?\d+)", told)[1]) for name in
                                    ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
    except TypeError:  # the window went away meanwhile
        return None
    return left, top, left + width, top + height


def is_painted(picture):
    return any(low != high for low, high in picture.getextrema())


def wait_for_painted(program):
    """The first picture of the window that is not of one colour and no longer changes."""
    earlier = None
    deadline = time.monotonic() + SECONDS_TO_PAINT
    while time.monotonic() < deadline:
        if program.poll() is not None:
            sys.exit(f"The program ended with status {program.returncode} before its window was painted.")
        box = visible_window()
        if box:
            picture = ImageGrab.grab(xdisplay=os.environ["DISPLAY"]).crop(box)
            if (earlier and earlier.size == picture.size and is_painted(picture)
                    and not ImageChops.difference(earlier, picture).getbbox()):
                return picture
            earlier = picture
        time.sleep(SECONDS_BETWEEN_LOOKS)
    sys.exit(f"The program's window was not painted within {SECONDS_TO_PAINT} seconds.")


def main():
    path, *command = sys.argv[1:]
    program = subprocess.Popen(command)
    try:
        wait_for_painted(program).save(path)
    finally:
        program.terminate()
        program.wait()


if __name__ == "__main__":
    main()
