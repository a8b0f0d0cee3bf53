#!/usr/bin/python3
"""Compiles the help pages of data/help into a help file; the same pages give the same bytes.

usage: make_help.py COMPILER FILE     COMPILER is Free Pascal's chmcmd
"""
import os
import pathlib
import shutil
import struct
import subprocess
import sys
import tempfile

PAGES = pathlib.Path(__file__).resolve().parent.parent / "data" / "help"
PROJECT = "TessaraHelp.hhp"
# The compiler writes the time of its run into the file's header, and into the first record of its entry #SYSTEM:
# version 3, then code 10, length 4.
HEADER_TIME_AT = 16
BEFORE_SYSTEM_TIME = struct.pack("<IHH", 3, 10, 4)


def compiled(compiler, folder):
    """What the compiler makes of a copy of the pages: it writes beside its sources."""
    pages = pathlib.Path(shutil.copytree(PAGES, folder / "help"))
    subprocess.run([compiler, "--verbosity", "0", PROJECT], cwd=pages, stdout=subprocess.DEVNULL, check=True)
    return bytearray((pages / PROJECT).with_suffix(".chm").read_bytes())


def set_times(content, seconds):
    """Replaces both times by one that is always the same."""
    if content.count(BEFORE_SYSTEM_TIME) != 1:
        raise ValueError("the help file does not begin its entry #SYSTEM as expected")
    struct.pack_into(">I", content, HEADER_TIME_AT, seconds)
    struct.pack_into("<I", content, content.index(BEFORE_SYSTEM_TIME) + len(BEFORE_SYSTEM_TIME), seconds)
    return content


def main():
    compiler, target = sys.argv[1:]
    with tempfile.TemporaryDirectory() as folder:
        content = compiled(compiler, pathlib.Path(folder))
    seconds = int(os.environ.get("SOURCE_DATE_EPOCH", 0))
    pathlib.Path(target).write_bytes(set_times(content, seconds))


if __name__ == "__main__":
    main()
