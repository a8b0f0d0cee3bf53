#!/usr/bin/python3
"""Prints how full each folder of C++ sources is, and which headers are very short.

usage: folder_sizes.py [MOST]     MOST files a folder may hold (30); exits with 1 where one holds more
"""
import collections
import pathlib
import subprocess
import sys

SHORT_HEADER = 16


def sources():
    listing = subprocess.run(["git", "ls-files", "*.h", "*.cpp"], capture_output=True, text=True, check=True)
    return [pathlib.Path(line) for line in listing.stdout.splitlines()]


def lines_of(path):
    return len(path.read_text(encoding="utf-8").splitlines())


def main():
    most = int(sys.argv[1]) if len(sys.argv) > 1 else 30
    files = sources()
    folders = collections.Counter(str(path.parent) for path in files)
    for folder, count in sorted(folders.items(), key=lambda item: (-item[1], item[0])):
        print(f"{count:4} {folder}{'   too many' if count > most else ''}")
    short = [(lines_of(path), path) for path in files if path.suffix == ".h" and lines_of(path) <= SHORT_HEADER]
    print(f"\n{len(short)} headers of {SHORT_HEADER} lines or fewer:")
    for count, path in sorted(short):
        print(f"{count:4} {path}")
    return max(folders.values()) > most


if __name__ == "__main__":
    sys.exit(main())
