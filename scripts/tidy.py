#!/usr/bin/python3
"""Runs clang-tidy over the program's sources, in parallel, and remembers what was clean.

usage: tidy.py BUILD     BUILD has been built, so that ninja knows what each object depends on

Of the tests, the sanitizers run every line, and two compilers give their warnings.

A source is looked at again only when its command, its content, a header it includes or the rules
have changed. The memory is a file per clean state in build/tidy-cache.
"""
import collections
import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
CACHE = ROOT / "build" / "tidy-cache"
TIDY = "clang-tidy-14"


def dependencies(build):
    """Object path (relative to the build folder) -> the files it was made from."""
    listing = subprocess.run(["ninja", "-C", build, "-t", "deps"], capture_output=True, text=True, check=True)
    found = collections.defaultdict(list)
    target = None
    for line in listing.stdout.splitlines():
        if line.startswith("    "):
            found[target].append(line.strip())
        elif ":" in line:
            target = line.split(":")[0]
    return found


def own_commands(build):
    """The compile commands of tracked sources; those that pull in Qt, the slow ones, last."""
    tracked = set(subprocess.run(["git", "-C", ROOT, "ls-files", "*.cpp", ":!tests"], capture_output=True, text=True,
                                 check=True).stdout.splitlines())
    commands = json.loads((build / "compile_commands.json").read_text())
    own = {c["file"]: c for c in commands if os.path.relpath(c["file"], ROOT) in tracked}
    return sorted(own.values(), key=lambda c: ("qt6" in c["command"], c["file"]))


class States:
    """The state of a source: a hash of everything that its result depends on."""

    def __init__(self, build):
        self._build = build
        self._dependencies = dependencies(build)
        self._hashes = {}
        version = subprocess.run([TIDY, "--version"], capture_output=True, check=True).stdout
        self._rules = version + (ROOT / ".clang-tidy").read_bytes()

    def of(self, command):
        made_from = self._dependencies[self._object_of(command)]
        if not made_from:
            sys.exit(f"{command['file']} has not been built in {self._build}")
        whole = hashlib.sha256(self._rules + command["command"].encode())
        for path in sorted({command["file"], *made_from}):
            whole.update(self._hash(path))
        return whole.hexdigest()

    def _object_of(self, command):
        return re.search(r" -o (\S+)", command["command"])[1]

    def _hash(self, path):
        path = self._build / path
        if path not in self._hashes:
            # A header of the system changes with its package only; its size tells.
            is_ours = path.is_relative_to(ROOT)
            content = path.read_bytes() if is_ours else str(path.stat().st_size).encode()
            self._hashes[path] = hashlib.sha256(str(path).encode() + content).digest()
        return self._hashes[path]


def tidy(build, command):
    """The complaints about one source, or None."""
    run = subprocess.run([TIDY, "--quiet", "-p", build, command["file"]], capture_output=True, text=True)
    return None if run.returncode == 0 else run.stdout + run.stderr


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    CACHE.mkdir(parents=True, exist_ok=True)
    states = States(build)
    pending = [(c, CACHE / states.of(c)) for c in own_commands(build)]
    pending = [(c, clean) for c, clean in pending if not clean.exists()]
    failed = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = pool.map(lambda p: tidy(build, p[0]), pending)
        for (command, clean), complaints in zip(pending, results):
            if complaints is None:
                clean.touch()
            else:
                failed += 1
                print(complaints)
    print(f"   {len(pending)} sources looked at, {failed} with complaints")
    sys.exit(failed > 0)


if __name__ == "__main__":
    main()
