#!/usr/bin/python3
"""Takes a picture of a program's window as soon as it is painted, and ends the program.

usage: first_card.py PICTURE PROGRAM [ARGUMENT...]     on the display that DISPLAY names
"""
import subprocess
import sys
import time

from PIL import ImageChops

import program_end
import screen_picture

SECONDS_TO_PAINT = 60
SECONDS_BETWEEN_LOOKS = 0.1
FRAME = "Tessara 1.0"


class NotShown(Exception):
    """The program's window does not come up, or not alone."""


def windows_of(program):
    """Numbers and titles of the windows of a process that are on screen."""
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--all", "--pid", str(program.pid), "--name", "."],
                           capture_output=True, text=True)
    numbers = found.stdout.split()
    titles = (subprocess.run(["xdotool", "getwindowname", number], capture_output=True, text=True).stdout.strip()
              for number in numbers)
    return dict(zip(numbers, titles))


def frame_box(program):
    """The frame's place on screen, None while it is not there."""
    return next((screen_picture.box_of(number) for number, title in windows_of(program).items() if title == FRAME), None)


def refuse_boxes(program):
    """A window beside the frame, once that is painted, is a box that keeps the card away."""
    others = {title for title in windows_of(program).values() if title not in ("", FRAME)}
    if others:
        raise NotShown(f"The program shows a box instead of a card: {', '.join(sorted(others))}.")


def is_painted(picture):
    return any(low != high for low, high in picture.getextrema())


def wait_for_painted(program):
    """The first picture of the frame that is not of one colour and no longer changes."""
    earlier = None
    deadline = time.monotonic() + SECONDS_TO_PAINT
    while time.monotonic() < deadline:
        if program.poll() is not None:
            raise NotShown(f"The program ended with {program_end.name_of(program.returncode)} before its window was painted.")
        picture = None
        box = frame_box(program)
        if box:
            picture = screen_picture.of_screen().crop(box)
            if (earlier and earlier.size == picture.size and is_painted(picture)
                    and not ImageChops.difference(earlier, picture).getbbox()):
                refuse_boxes(program)
                return picture
        earlier = picture
        time.sleep(SECONDS_BETWEEN_LOOKS)
    raise NotShown(f"The program's window was not painted within {SECONDS_TO_PAINT} seconds.")


def main():
    path, *command = sys.argv[1:]
    program = subprocess.Popen(command)
    try:
        wait_for_painted(program).save(path)
        program_end.end(program)
    except (NotShown, program_end.WrongEnd) as missed:
        sys.exit(str(missed))
    finally:
        program.kill()
        program.wait()


if __name__ == "__main__":
    main()
