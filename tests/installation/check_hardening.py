#!/usr/bin/python3
"""Asks readelf whether the programs and modules of a build are hardened.

usage: check_hardening.py PROGRAM-OR-MODULE...     prints what each one lacks; exits with 1 if there is something
"""
import pathlib
import platform
import re
import subprocess
import sys

# The compiler's options, by the line that it leaves in the debug information. What it makes of the last has no other
# mark: the notes of control-flow protection are lost where the system's own start files lack them.
OPTIONS = ("-fstack-protector-strong", "-fstack-clash-protection")
CONTROL_FLOW = {"x86_64": "-fcf-protection", "aarch64": "-mbranch-protection"}
# The C library's functions that always have a checked form.
CHECKED = ("printf", "fprintf", "snprintf", "vsnprintf", "sprintf")


def readelf(path, *options):
    return subprocess.run(["readelf", "--wide", *options, path], check=True, capture_output=True, text=True).stdout


def imported(path):
    """Names of the functions that other libraries supply."""
    return set(re.findall(r"FUNC.* UND (\w+)", readelf(path, "--dyn-syms")))


def lacks_of_link(path, is_program):
    dynamic = readelf(path, "--dynamic")
    if "GNU_RELRO" not in readelf(path, "--segments"):
        yield "no read-only relocations"
    if not re.search(r"\(FLAGS(_1)?\).*\b(BIND_NOW|NOW)\b", dynamic):
        yield "no immediate binding"
    if is_program and not re.search(r"\(FLAGS_1\).*\bPIE\b", dynamic):
        yield "not position-independent"


def lacks_of_code(path):
    names = imported(path)
    if "__stack_chk_fail" not in names:
        yield "no stack protector"
    unchecked = names.intersection(CHECKED)
    if unchecked:
        yield f"unchecked: {', '.join(sorted(unchecked))}"
    compiled = re.findall(r"DW_AT_producer.*: (GNU C\+\+.*)", readelf(path, "--debug-dump=info", "--dwarf-depth=1"))
    if not compiled:
        yield "no debug information"
    for wanted in (*OPTIONS, CONTROL_FLOW.get(platform.machine(), "")):
        if not all(wanted in line for line in compiled):
            yield f"compiled without {wanted}"


def main():
    lacks = [f"{path.name}: {lack}" for path in map(pathlib.Path, sys.argv[1:])
             for lack in (*lacks_of_link(path, path.suffix != ".so"), *lacks_of_code(path))]
    print("\n".join(lacks))
    sys.exit(bool(lacks))


if __name__ == "__main__":
    main()
