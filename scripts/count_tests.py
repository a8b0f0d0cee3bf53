#!/usr/bin/python3
"""Counts the test cases of a ctest run from its JUnit file.

usage: count_tests.py RESULTS     prints "PASSED FAILED"; names and output of failed tests go to stderr

A doctest program counts with its own cases, any other test as one.
"""
import itertools
import re
import sys
import xml.etree.ElementTree

# Of each window the offscreen platform tells what it can't do.
NOISE = "This plugin does not support "
DOCTEST_SUMMARY = re.compile(r"\[doctest\] test cases: +\d+ \| +(\d+) passed \| +(\d+) failed")


def count(test):
    """(passed, failed) of one ctest test."""
    succeeded = test.get("status") == "run"
    summary = DOCTEST_SUMMARY.search(test.findtext("system-out") or "")
    if not summary:
        return int(succeeded), int(not succeeded)
    passed, failed = map(int, summary.groups())
    # A program can fail after its last case, for example with a leak.
    return passed, failed if succeeded or failed else 1


def output(test):
    """What the test has written; a line that comes again and again, once."""
    lines = (line for line in (test.findtext("system-out") or "").splitlines() if not line.startswith(NOISE))
    return "\n".join(line for line, _ in itertools.groupby(lines))


def failed_cases(test):
    """The names of the doctest cases that failed, as far as the output tells them."""
    cases = re.findall(r"^TEST CASE:\s+(.+)$", output(test), re.MULTILINE)
    return list(dict.fromkeys(cases))


def main():
    passed = failed = 0
    for test in xml.etree.ElementTree.parse(sys.argv[1]).iter("testcase"):
        good, bad = count(test)
        passed += good
        failed += bad
        if bad:
            name = ": ".join([test.get("name"), *failed_cases(test)])
            print(f"   FAILED: {name}\n{output(test)}", file=sys.stderr)
    print(passed, failed)


if __name__ == "__main__":
    main()
