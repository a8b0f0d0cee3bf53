#!/usr/bin/python3
"""Checks the commands that README.md, CONTRIBUTING.md and docs/ tell: what they name is there, and the quick ones work.

usage: check_commands.py [ROOT [BUILD]]     prints each fault; exits with 1 if there is one

A command is a line of a fence marked sh, or a text in backticks that begins like one. Without BUILD, a folder
that has been built, no command is run and no built file is looked for.
"""
import json
import pathlib
import re
import shlex
import subprocess
import sys

PROGRAMS = {"cmake", "cp", "cpack", "env", "gdb"}
STARTS_A_COMMAND = re.compile(r"(\./|scripts/\w|build/\w+/|(cmake|gdb) -)")
FENCE = re.compile(r"^```sh\n(.*?)^```$", re.MULTILINE | re.DOTALL)
IN_BACKTICKS = re.compile(r"`([^`\n]+)`")
# A name in capitals, a part in brackets or dots stand for what the reader puts there.
PLACEHOLDER = re.compile(r"[A-Z]{2,}|\[|\.\.\.")
# Commands that are over in a moment, and what they are run as: {build} is the folder that has been built.
RUN_AS = {
    "build/release/tests/tests_unit -tc='*deck*'":
        "{build}/tests/tests_unit --count -tc='*deck*' | grep -q 'filters: [1-9]'",
    "scripts/with_display.sh COMMAND": "scripts/with_display.sh true",
    "./test quick": "bash -n test",
    "./run [deck]": "bash -n run",
}


def documents(root):
    return [path for path in (root / "README.md", root / "CONTRIBUTING.md", *sorted((root / "docs").glob("*.md")))
            if path.is_file()]


def commands_in(text):
    """The commands of a document, without their comments."""
    for block in FENCE.findall(text):
        for line in block.splitlines():
            yield from (part.strip() for part in line.split(" #")[0].split("&&"))
    without_fences = re.sub(r"^```.*?^```$", "", text, flags=re.MULTILINE | re.DOTALL)
    yield from (span for span in IN_BACKTICKS.findall(without_fences) if STARTS_A_COMMAND.match(span))


def preset_complaints(root, words):
    """A preset stands behind --preset, or is the folder of a built file."""
    presets = json.loads((root / "CMakePresets.json").read_text(encoding="utf-8"))
    kind = "buildPresets" if "--build" in words else "configurePresets"
    known = {preset["name"] for preset in presets[kind] if not preset.get("hidden")}
    named = {after for word, after in zip(words, words[1:]) if word == "--preset"}
    named |= {word.split("/")[1] for word in words if word.startswith("build/")}
    return [f"there is no preset {name}" for name in sorted(named - known)]


def built_file_complaints(build, words):
    """Every build makes the same files, but the fuzzers and what is told with a placeholder."""
    for word in words:
        path = pathlib.PurePosixPath(word)
        if not word.startswith("build/") or len(path.parts) < 3 or path.parts[1] == "fuzz" or PLACEHOLDER.search(word):
            continue
        written_later = path.suffix == ".png"
        if not written_later and not build.joinpath(*path.parts[2:]).exists():
            yield f"the build makes no {'/'.join(path.parts[2:])}"


def script_complaints(root, words):
    """A script is there, can be started and speaks of every word that it is given."""
    script = root / words[0]
    if not script.is_file() or not script.stat().st_mode & 0o100:
        yield f"there is no script {words[0]}"
        return
    text = script.read_text(encoding="utf-8")
    for word in words[1:]:
        given = PLACEHOLDER.search(word) or "/" in word
        if not given and not re.search(rf"(?<![\w-]){re.escape(word)}(?![\w-])", text):
            yield f"{words[0]} knows no {word}"


def complaints_about(command, root, build):
    try:
        words = shlex.split(command)
    except ValueError as fault:
        return [str(fault)]
    found = preset_complaints(root, words)
    if build:
        found += built_file_complaints(build, words)
    if words[0].startswith(("./", "scripts/")):
        found += script_complaints(root, words)
    elif not words[0].startswith("build/") and words[0] not in PROGRAMS:
        found.append(f"{words[0]} is no program that the documents speak of")
    if build and command in RUN_AS:
        found += run_complaints(RUN_AS[command].format(build=shlex.quote(str(build))), root)
    return found


def run_complaints(command, root):
    ended = subprocess.run(["bash", "-c", command], cwd=root, capture_output=True, text=True, timeout=120, check=False)
    return [] if ended.returncode == 0 else [f"`{command}` ends with {ended.returncode}: {ended.stderr.strip()}"]


def complaints(root, build=None):
    waiting = set(RUN_AS if build else ())
    for document in documents(root):
        for command in filter(None, commands_in(document.read_text(encoding="utf-8"))):
            waiting.discard(command)
            for complaint in complaints_about(command, root, build):
                yield f"{document.relative_to(root)}: `{command}`: {complaint}"
    yield from (f"no document tells `{command}` any more" for command in sorted(waiting))


def main():
    places = [pathlib.Path(argument).resolve() for argument in sys.argv[1:]]
    root = places[0] if places else pathlib.Path(__file__).resolve().parents[2]
    found = list(complaints(root, places[1] if len(places) > 1 else None))
    if found:
        print("\n".join(found))
    sys.exit(bool(found))


if __name__ == "__main__":
    main()
