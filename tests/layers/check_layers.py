#!/usr/bin/python3
"""Checks who includes whom: see "Where things are" in README.md.

usage: check_layers.py [ROOT]     prints each wrong include; exits with 1 if there is one
"""
import collections
import pathlib
import re
import sys

BASE = {"platform", "forms"}
VIEWER = BASE | {"deck"}
BESIDE = VIEWER | {"viewer"}
SHELL = BESIDE | {"authoring", "import", "printing"}

# What each room may include besides itself. The adapters see the core but are seen by nobody in it.
MAY_INCLUDE = {
    "platform": set(),
    "forms": {"platform"},
    "deck": BASE,
    "viewer": VIEWER,
    "authoring": BESIDE,
    "import": BESIDE,
    "printing": BESIDE,
    "shell": SHELL,
    "platform/posix": BASE,
    "platform/cups": BASE,
    "platform/qt": BASE | {"viewer", "platform/cups", "platform/posix"},
    "platform/libreoffice": BASE | {"platform/posix", "platform/cups"},
    "platform/freedesktop": BASE | {"platform/posix"},
}
ADAPTERS = {room for room in MAY_INCLUDE if room.startswith("platform/")}

# These put the pieces together, so they may include everything.
ASSEMBLERS = ("shell/main.cpp", "tests/", "bench/", "fuzz/")

# A library's headers, and the rooms that may see them.
LIBRARIES = (
    ("Qt", re.compile(r"Q[A-Z]|Qt[A-Z]"), {"platform/qt"}),
    ("UNO", re.compile(r"(com/sun|cppuhelper|osl|rtl|sal|uno)/"), {"platform/libreoffice"}),
    ("printing system", re.compile(r"(cups|qpdf)/"), ADAPTERS),
    ("POSIX", re.compile(r"(unistd|fcntl|dlfcn|spawn|sys/\w+)\.h$"), ADAPTERS),
)

INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(["<])([^">]+)[">]', re.MULTILINE)
Include = collections.namedtuple("Include", "source system header")


def room_of(path):
    """The part of the program that a file belongs to: its top folder, or the adapter it is in."""
    parts = path.split("/")
    adapter = "/".join(parts[:2])
    return adapter if adapter in ADAPTERS else parts[0]


def includes_below(root):
    folders = sorted({room.split("/")[0] for room in MAY_INCLUDE} | {"tests", "bench", "fuzz"})
    for folder in folders:
        for path in sorted((root / folder).rglob("*")):
            if path.suffix in (".h", ".cpp"):
                text = path.read_text(encoding="utf-8")
                for bracket, header in INCLUDE.findall(text):
                    yield Include(path.relative_to(root).as_posix(), bracket == "<", header)


def complaint_about_library(include):
    for name, pattern, rooms in LIBRARIES:
        if pattern.match(include.header) and room_of(include.source) not in rooms:
            return f"{include.source}: {name} header <{include.header}> outside {', '.join(sorted(rooms))}"
    return None


def complaint_about_room(root, include):
    if not (root / include.header).is_file():
        return f'{include.source}: "{include.header}" is not a path from the top folder'
    source, target = room_of(include.source), room_of(include.header)
    if target != source and target not in MAY_INCLUDE[source]:
        return f'{include.source}: {source} may not include "{include.header}"'
    return None


def folder_edges(includes):
    """Folder -> the folders it includes, subfolders counted as folders of their own."""
    edges = collections.defaultdict(set)
    for include in includes:
        source, target = (pathlib.PurePosixPath(p).parent.as_posix() for p in (include.source, include.header))
        if source != target:
            edges[source].add(target)
    return edges


def reaches(edges, start, goal):
    seen, waiting = set(), [start]
    while waiting:
        for folder in edges.get(waiting.pop(), ()):
            if folder == goal:
                return True
            if folder not in seen:
                seen.add(folder)
                waiting.append(folder)
    return False


def complaints(root):
    governed = [i for i in includes_below(root) if not i.source.startswith(ASSEMBLERS)]
    own = [i for i in governed if not i.system]
    found = [complaint_about_library(i) for i in governed if i.system]
    found += [complaint_about_room(root, i) for i in own]
    edges = folder_edges(own)
    found += [f"{folder}: its includes lead back to it" for folder in sorted(edges) if reaches(edges, folder, folder)]
    return [c for c in found if c]


def main():
    default = pathlib.Path(__file__).resolve().parents[2]
    found = complaints(pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else default)
    print("\n".join(found))
    sys.exit(bool(found))


if __name__ == "__main__":
    main()
