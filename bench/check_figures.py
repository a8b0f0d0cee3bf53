#!/usr/bin/python3
"""Holds measured ratios against those of the document: a row of a table there whose last cell is a
number tells a ratio by the name in its first cell. One that is worse by more than a fifth fails, and so
does one that is told and not measured, or measured and not told.

usage: check_figures.py DOCUMENT FIGURES
"""
import re
import sys

WORSE = 1.2
ROW = re.compile(r"^\| ([^|]+) \|.*\| ([0-9.]+) \|$")


def told(path):
    with open(path, encoding="utf-8") as document:
        rows = (ROW.match(line.rstrip("\n")) for line in document)
        return {row[1]: float(row[2]) for row in rows if row and row[2] != "1"}


def measured(path):
    with open(path, encoding="utf-8") as figures:
        return {name: float(ratio) for name, ratio in (line.rstrip("\n").split("\t") for line in figures)}


def complaints(document, figures):
    for name in sorted(document.keys() | figures.keys()):
        if name not in figures:
            yield f"{name}: told, not measured"
        elif name not in document:
            yield f"{name}: measured, not told"
        elif figures[name] > WORSE * document[name]:
            yield f"{name}: {figures[name]:.3g} measured, {document[name]:.3g} told"


def main():
    found = list(complaints(told(sys.argv[1]), measured(sys.argv[2])))
    print("\n".join(found) or "no figure is worse than the document's by more than a fifth")
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
