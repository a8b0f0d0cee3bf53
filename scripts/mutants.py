#!/usr/bin/python3
"""Puts small faults into the core, one at a time, and tells how many the unit tests catch.

usage: mutants.py [COUNT [SEED]]     200 faults, and those of seed 1, where nothing is told

A fault is a condition turned round, a bound moved, a constant changed, or a call left out. Each is tried on a copy of
the sources in build/mutants, one for each processor, which stays for the next time. One that does not compile is
replaced by another. What the tests let live is printed: each wants a test, or a reason why nobody can see it.
"""
import concurrent.futures
import os
import pathlib
import random
import re
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
COPIES = ROOT / "build" / "mutants"
FOLDERS = ("base", "deck", "forms", "viewer", "authoring", "import", "printing", "shell")
SECONDS_FOR_THE_TESTS = 300
# Most of the tests' time; only what the others let live has to pass them too.
LONG_TESTS = "whichever call*,wherever *,*without end*,any byte*,*random steps*,*whatever the user does*,a paste beyond*"

# What is replaced, and by what. Blanks keep templates, includes and streams out of it.
FAULTS = [
    (r" == ", " != "), (r" != ", " == "), (r" < ", " <= "), (r" <= ", " < "), (r" > ", " >= "), (r" >= ", " > "),
    (r" && ", " || "), (r" \|\| ", " && "), (r" \+ 1\b", " + 2"), (r" - 1\b", " - 0"), (r"\btrue\b", "false"),
    (r"\bfalse\b", "true"), (r"(?<=if \()(?!const|auto)(?=[^;{]*\) )", "!"), (r"(?<== )(\d+)(?=;)", r"1\1"),
    (r"(?m)^(\s+)(?!return|throw|delete)[\w.:>-]+\([^;{}]*\);$", r"\1;"),
]
SKIPPED_LINE = re.compile(r"^\s*(//|#|static_assert|using|template)")


def sources():
    listed = subprocess.run(["git", "-C", ROOT, "ls-files", *(f"{folder}/*.cpp" for folder in FOLDERS)],
                            capture_output=True, text=True, check=True).stdout.split()
    return [name for name in listed if name != "shell/main.cpp"]


def faults_in(name):
    """(source, place, replaced text, new text) of each fault that a source can have."""
    text = (ROOT / name).read_text(encoding="utf-8")
    for pattern, replacement in FAULTS:
        for match in re.finditer(pattern, text):
            line = text[text.rfind("\n", 0, match.start()) + 1:match.end()].lstrip("\n")
            if not SKIPPED_LINE.match(line):
                yield name, match.start(), match.group(), match.expand(replacement)


def run(*command, **options):
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, **options)


class Copy:
    """A copy of the tracked sources, whose tests are built once and pass."""

    def __init__(self, number):
        self.root = COPIES / str(number)
        self.build = self.root / "build"
        self.build.mkdir(parents=True, exist_ok=True)
        listed = subprocess.run(["git", "-C", ROOT, "ls-files", "-z"], capture_output=True, check=True).stdout
        for name in listed.decode().split("\0")[:-1]:
            source, copy = ROOT / name, self.root / name
            if source.is_file() and (not copy.is_file() or copy.read_bytes() != source.read_bytes()):
                copy.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(source, copy)
        configured = run("cmake", "-G", "Ninja", "-S", self.root, "-B", self.build, "-DTESSARA_DESKTOP=OFF",
                         "-DCMAKE_BUILD_TYPE=None", "-DCMAKE_CXX_COMPILER_LAUNCHER=ccache")
        if configured.returncode or not self.built() or not self.caught_nothing():
            sys.exit("the tests do not pass before there is a fault")

    def built(self):
        return run("nice", "ninja", "-C", self.build, "-j", "1", "tests_unit").returncode == 0

    def passes(self, *options):
        """A program that breaks down or hangs has been caught too."""
        home = self.root / "home"
        shutil.rmtree(home, ignore_errors=True)
        home.mkdir()
        environment = {name: value for name, value in os.environ.items() if not name.startswith("XDG_")}
        try:
            return run("nice", self.build / "tests" / "tests_unit", "--abort-after=1", *options, cwd=self.root,
                       timeout=SECONDS_FOR_THE_TESTS,
                       env={**environment, "HOME": str(home), "LC_ALL": "C.UTF-8"}).returncode == 0
        except subprocess.TimeoutExpired:
            return False

    def caught_nothing(self):
        return self.passes(f"--test-case-exclude={LONG_TESTS}") and self.passes(f"--test-case={LONG_TESTS}")

    def catches(self, fault):
        """None where it does not compile."""
        name, place, replaced, new = fault
        text = (ROOT / name).read_text(encoding="utf-8")
        (self.root / name).write_text(text[:place] + new + text[place + len(replaced):], encoding="utf-8")
        try:
            return not self.caught_nothing() if self.built() else None
        finally:
            (self.root / name).write_text(text, encoding="utf-8")


def told(fault):
    name, place, replaced, new = fault
    line = (ROOT / name).read_text(encoding="utf-8").count("\n", 0, place) + 1
    what = f"{replaced.strip()!r} becomes {new.strip()!r}" if replaced else "a condition is turned round"
    return f"{name}:{line}: {what}"


def main():
    count, seed = (int(value) for value in (sys.argv[1:] + ["200", "1"][len(sys.argv) - 1:]))
    faults = [fault for name in sources() for fault in faults_in(name)]
    random.Random(seed).shuffle(faults)
    results = []

    def try_faults(number):
        copy = Copy(number)
        while len(results) < count and faults:
            fault = faults.pop()
            caught = copy.catches(fault)
            if caught is not None:
                results.append(caught)
            if caught is False:
                print(f"lives: {told(fault)}", flush=True)

    with concurrent.futures.ThreadPoolExecutor() as pool:
        # The list is gone through to the end, so that what a thread raises is raised here.
        list(pool.map(try_faults, range(os.cpu_count())))
    print(f"{sum(results)} of {len(results)} faults caught")


if __name__ == "__main__":
    main()
