#!/usr/bin/python3
"""Runs clang-tidy over the program's sources, in parallel, and remembers what was clean.

usage: tidy.py BUILD     BUILD has been built, so that ninja knows what each object depends on

Of the tests, the sanitizers run every line, and two compilers give their warnings.

A source is looked at again only when its command, its content, a header it includes or the rules
have changed. The memory is a file per clean state in build/tidy-cache.

Most of the work is the headers of others. So sources with the same compiler options are looked at in bundles, as
one translation unit; two that give the same name to different things come into different bundles, and where a bundle
does not compile after all, each of its sources is looked at alone.
"""
import collections
import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

import source_bundles

ROOT = pathlib.Path(__file__).resolve().parent.parent
CACHE = ROOT / "build" / "tidy-cache"
TIDY = "clang-tidy-14"
OWN_FILES = f"{re.escape(str(ROOT))}/.*\\.(h|cpp)$"
OWN_RULES = [f"--config-file={ROOT / '.clang-tidy'}"]
# The analyser leaves out what is included, but for the sources that a file of this name includes.
BUNDLE_NAME = "UnifiedSource.cpp"
# More of them save little and leave one processor waiting at the end.
SOURCES_IN_A_BUNDLE = 16
# The linter cannot read the headers that another compiler has precompiled. The sources name what they use.
PRECOMPILED = re.compile(r" -Winvalid-pch| -include \S+/cmake_pch\.hxx")


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
    """The compile commands of tracked sources; those that pull in Qt, the slow ones, first."""
    tracked = set(subprocess.run(["git", "-C", ROOT, "ls-files", "*.cpp", ":!tests"], capture_output=True, text=True,
                                 check=True).stdout.splitlines())
    commands = json.loads((build / "compile_commands.json").read_text())
    own = {c["file"]: {**c, "command": PRECOMPILED.sub("", c["command"])} for c in commands
           if os.path.relpath(c["file"], ROOT) in tracked}
    return sorted(own.values(), key=lambda c: ("qt6" not in c["command"], c["file"]))


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


def options_of(command):
    """What the compiler is told, but for the names of the files and the kind of optimisation."""
    words = shlex.split(command["command"])
    without_files = words[:words.index("-o")] if "-o" in words else words
    return tuple(word for word in without_files[1:] if not word.startswith("-O") and word != "/usr/bin/ccache")


def bundles(commands):
    """Lists of commands that have the same options and can be compiled as one."""
    with_same_options = collections.defaultdict(list)
    for command in commands:
        with_same_options[options_of(command)].append(command)
    return [bundle for same in with_same_options.values()
            for bundle in source_bundles.bundles(same, SOURCES_IN_A_BUNDLE, lambda command: command["file"])]


def run_tidy(folder, command, *options):
    """The complaints about a source, or None. The folder takes the command's file."""
    (folder / "compile_commands.json").write_text(json.dumps([command]), encoding="utf-8")
    run = subprocess.run([TIDY, "--quiet", "-p", folder, *options, command["file"]], capture_output=True, text=True)
    return None if run.returncode == 0 else run.stdout + run.stderr


def tidy_alone(command):
    with tempfile.TemporaryDirectory() as folder:
        return run_tidy(pathlib.Path(folder), command)


def tidy_as_one(bundle):
    """The complaints about sources that are compiled as one, or None."""
    with tempfile.TemporaryDirectory() as folder:
        one = pathlib.Path(folder) / BUNDLE_NAME
        lines = (f'#include "{command["file"]}"  // NOLINT' for command in bundle)
        one.write_text("\n".join(lines), encoding="utf-8")
        words = shlex.split(bundle[0]["command"])
        words[words.index("-c") + 1] = str(one)
        command = {**bundle[0], "file": str(one), "command": shlex.join(words)}
        return run_tidy(pathlib.Path(folder), command, *OWN_RULES, f"--header-filter={OWN_FILES}")


def complaints_about(bundle):
    """What there is to say of the sources of a bundle: (command, complaints or None) of each."""
    if len(bundle) > 1 and tidy_as_one(bundle) is None:
        return [(command, None) for command in bundle]
    # Alone, a complaint is its source's own.
    return [(command, tidy_alone(command)) for command in bundle]


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    CACHE.mkdir(parents=True, exist_ok=True)
    states = States(build)
    clean = {command["file"]: CACHE / states.of(command) for command in own_commands(build)}
    pending = [command for command in own_commands(build) if not clean[command["file"]].exists()]
    failed = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for results in pool.map(complaints_about, bundles(pending)):
            for command, complaints in results:
                if complaints is None:
                    clean[command["file"]].touch()
                else:
                    failed += 1
                    print(complaints)
    print(f"   {len(pending)} sources looked at, {failed} with complaints")
    sys.exit(failed > 0)


if __name__ == "__main__":
    main()
