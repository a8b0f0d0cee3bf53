#!/usr/bin/python3
"""Takes a picture of what a window shows on the display that DISPLAY names.

usage: screen_picture.py PICTURE WINDOW     WINDOW is the number that xdotool tells
"""
import os
import re
import subprocess
import sys

from PIL import Image, ImageChops, ImageGrab


def of_screen():
    return ImageGrab.grab(xdisplay=os.environ["DISPLAY"])


def box_of(window):
    """Left, top, right and bottom of a window without its border; None once it has gone away."""
    told = subprocess.run(["xwininfo", "-id", window], capture_output=True, text=True).stdout
    try:
        left, top, width, height = (int(re.search(rf"{name}: +(-?\d+)", told)[1]) for name in
                                    ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
    except TypeError:
        return None
    return left, top, left + width, top + height


def trimmed(picture):
    """Without the edges that have the colour of the upper left corner."""
    ground = Image.new(picture.mode, picture.size, picture.getpixel((0, 0)))
    return picture.crop(ImageChops.difference(picture, ground).getbbox())


def main():
    path, window = sys.argv[1:]
    box = box_of(window)
    if not box:
        sys.exit(f"There is no window {window}.")
    # A palette halves the file; the eye finds no difference.
    palette = of_screen().crop(box).quantize(256, Image.Quantize.LIBIMAGEQUANT, dither=Image.Dither.NONE)
    palette.save(path, optimize=True)


if __name__ == "__main__":
    main()
