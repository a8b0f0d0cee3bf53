#!/usr/bin/python3
"""Checks who includes whom: see "Where things are" in README.md.

usage: check_layers.py [ROOT]     prints each wrong include; exits with 1 if there is one
"""
import collections
import pathlib
import posixpath
import re
import sys

LIST = pathlib.Path(__file__).resolve().parents[2] / "cmake" / "layers.txt"


def listed_layers():
    """Folder -> the folders that it may include besides itself."""
    lines = (line.split(":") for line in LIST.read_text(encoding="utf-8").splitlines() if re.match("[a-z]", line))
    return {folder: set(uses.split()) for folder, uses in lines}


MAY_INCLUDE = listed_layers()
# The adapters see the core but are seen by nobody in it.
ADAPTERS = {room for room in MAY_INCLUDE if room.startswith("adapters/")}

# Folders that only keep their room from filling up: one with it, each sees the other.
ALCOVES = {
    "adapters/posix/copies",
    "adapters/qt/views/boxes",
    "companion/formats/kvtml",
    "companion/formats/tables",
    "companion/formats/texts",
    "deck/file",
    "deck/life",
    "forms/controls",
}

# These put the pieces together, so they may include everything.
ASSEMBLERS = ("shell/main.cpp", "companion/main.cpp", "companion/print_job/", "tests/", "bench/", "fuzz/")

# A library's headers, and the rooms that may see them.
LIBRARIES = (
    ("Qt", re.compile(r"Q[A-Z]|Qt[A-Z]"), {"adapters/qt"}),
    ("UNO", re.compile(r"(com/sun|cppuhelper|osl|rtl|sal|uno)/"), {"adapters/libreoffice"}),
    ("printing system", re.compile(r"(cups|qpdf)/"), ADAPTERS),
    ("POSIX", re.compile(r"(unistd|fcntl|dlfcn|spawn|sys/\w+)\.h$"), ADAPTERS),
)

INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(["<])([^">]+)[">]', re.MULTILINE)
Include = collections.namedtuple("Include", "source system header")


def room_of(path):
    """The part of the program that a file belongs to: the longest folder of the list that holds it."""
    holding = [room for room in MAY_INCLUDE if path.startswith(room + "/")]
    return max(holding, key=len) if holding else path.split("/")[0]


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


def folder_of(path):
    folder = pathlib.PurePosixPath(path).parent.as_posix()
    return posixpath.dirname(folder) if folder in ALCOVES else folder


def folder_edges(includes):
    """Folder -> the folders it includes, subfolders counted as folders of their own but for alcoves."""
    edges = collections.defaultdict(set)
    for include in includes:
        source, target = folder_of(include.source), folder_of(include.header)
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


def unused_rights(includes):
    used = collections.defaultdict(set)
    for include in includes:
        used[room_of(include.source)].add(room_of(include.header))
    return [f"{room}: has no use for {right}" for room, uses in MAY_INCLUDE.items() for right in sorted(uses - used[room])]


def governed_includes(root):
    return [i for i in includes_below(root) if not i.source.startswith(ASSEMBLERS)]


def complaints(root, governed):
    own = [i for i in governed if not i.system]
    found = [complaint_about_library(i) for i in governed if i.system]
    found += [complaint_about_room(root, i) for i in own]
    edges = folder_edges(own)
    found += [f"{folder}: its includes lead back to it" for folder in sorted(edges) if reaches(edges, folder, folder)]
    return [c for c in found if c]


def complaints_about_program(root):
    """With those that a part of a program would have too."""
    governed = governed_includes(root)
    return complaints(root, governed) + unused_rights([i for i in governed if not i.system])


def main():
    default = pathlib.Path(__file__).resolve().parents[2]
    found = complaints_about_program(pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else default)
    print("\n".join(found))
    sys.exit(bool(found))


if __name__ == "__main__":
    main()
