#!/usr/bin/python3
"""Counts the test cases of a ctest run from its JUnit file.

usage: count_tests.py RESULTS     prints "PASSED FAILED"; the output of failed tests goes to stderr

A doctest program counts with its own cases, any other test as one.
"""
import re
import sys
import xml.etree.ElementTree

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


def main():
    passed = failed = 0
    for test in xml.etree.ElementTree.parse(sys.argv[1]).iter("testcase"):
        good, bad = count(test)
        passed += good
        failed += bad
        if bad:
            print(f"   FAILED: {test.get('name')}\n{test.findtext('system-out')}", file=sys.stderr)
    print(passed, failed)


if __name__ == "__main__":
    main()
