#!/usr/bin/python3
"""Runs the commands that README.md, CONTRIBUTING.md, SECURITY.md and docs/ tell.

usage: check_commands.py ROOT     prints each fault; exits with 1 if there is one

A command is a line of a fence marked sh, or a text in backticks that begins like one. Each has its place in
documented_commands.py, which says what runs it; build/release has been built.
"""
import concurrent.futures
import os
import pathlib
import re
import subprocess
import sys
import tempfile

from documented_commands import RUN_AS, RUN_BY

# A script, or a program and its words.
BEGINS_A_COMMAND = re.compile(r"(\./|(bench|fuzz)/run\b|(cmake|ionice|gdb|env) -{0,2}\w|(scripts|tests|build)/\S+ )")
FENCE = re.compile(r"^```sh\n(.*?)^```$", re.MULTILINE | re.DOTALL)
IN_BACKTICKS = re.compile(r"`([^`\n]+)`")
SECONDS = 800


def documents(root):
    named = [root / name for name in ("README.md", "CONTRIBUTING.md", "SECURITY.md")]
    return [path for path in (*named, *sorted((root / "docs").glob("*.md"))) if path.is_file()]


def commands_in(text):
    """The commands of a document, without their comments."""
    for block in FENCE.findall(text):
        for line in block.splitlines():
            yield from (part.strip() for part in line.split(" #")[0].split("&&"))
    without_fences = re.sub(r"^```.*?^```$", "", text, flags=re.MULTILINE | re.DOTALL)
    yield from (span for span in IN_BACKTICKS.findall(without_fences) if BEGINS_A_COMMAND.match(span))


def told_commands(root):
    """Command -> the first document that tells it."""
    told = {}
    for document in documents(root):
        for command in filter(None, commands_in(document.read_text(encoding="utf-8"))):
            told.setdefault(command, document.relative_to(root))
    return told


def run_complaint(command, root):
    """What is wrong with a command that is run here; None where nothing is."""
    # What a program of the desktop that the command has started still writes there is no fault of the command.
    with tempfile.TemporaryDirectory(prefix="tessara-commands-", ignore_cleanup_errors=True) as scratch:
        ended = subprocess.run(["bash", "-c", command.format(scratch=scratch)], cwd=root, capture_output=True,
                               text=True, timeout=SECONDS, stdin=subprocess.DEVNULL, check=False,
                               env={**os.environ, "HOME": scratch})
    return None if ended.returncode == 0 else f"ends with {ended.returncode}: {ended.stdout}{ended.stderr}".strip()


def complaint_about(command, root, run_as, run_by):
    if command in run_as:
        return run_complaint(run_as[command], root)
    if command not in run_by:
        return "no test runs it"
    runner, line = run_by[command]
    there = line in (root / runner).read_text(encoding="utf-8")
    return None if there else f"{runner} no longer runs it"


def complaints(root, run_as, run_by):
    told = told_commands(root)
    # Side by side, because most of them wait.
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        found = pool.map(lambda command: complaint_about(command, root, run_as, run_by), told)
        for (command, document), complaint in zip(told.items(), found):
            if complaint:
                yield f"{document}: `{command}`: {complaint}"
    yield from (f"no document tells `{command}` any more" for command in {**run_as, **run_by} if command not in told)


def main():
    found = list(complaints(pathlib.Path(sys.argv[1]).resolve(), RUN_AS, RUN_BY))
    if found:
        print("\n".join(found))
    sys.exit(bool(found))


if __name__ == "__main__":
    main()
