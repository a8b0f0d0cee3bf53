#!/usr/bin/python3
"""Puts sources together that can be compiled as one, because no two of them give the same name to different things.

usage: source_bundles.py MOST SOURCE...     prints a line "NUMBER SOURCE" for each, MOST sources at most to a number
"""
import pathlib
import re
import sys

# A name declared at the beginning of a line: of a constant, a type or a function that is no member.
DECLARED_NAME = re.compile(r"^(?!namespace|using namespace)\w[^=({;\n]*?(?<![:\w])(\w+)(?:\[\w*\])? *[=({;]", re.MULTILINE)
NO_NAMES = {"TEST_CASE", "TEST_CASE_FIXTURE", "TEST_SUITE", "TEST_CASE_TEMPLATE"}


def declared_names(path):
    return set(DECLARED_NAME.findall(pathlib.Path(path).read_text(encoding="utf-8"))) - NO_NAMES


def bundles(sources, most, path_of=lambda source: source):
    """Lists of sources, in their order."""
    found = []
    for source in sources:
        names = declared_names(path_of(source))
        for bundle, taken in found:
            if len(bundle) < most and not names & taken:
                bundle.append(source)
                taken |= names
                break
        else:
            found.append(([source], names))
    return [bundle for bundle, _ in found]


def main():
    most, sources = int(sys.argv[1]), sys.argv[2:]
    for number, bundle in enumerate(bundles(sources, most)):
        for source in bundle:
            print(number, source)


if __name__ == "__main__":
    main()
