#!/usr/bin/python3
"""Prints lines and branches by folder, and the sources of which least is covered.

usage: coverage_by_folder.py SUMMARY     SUMMARY is what gcovr writes with --json-summary
"""
import collections
import json
import pathlib
import sys

LEAST_COVERED = 15


def share(covered, total):
    return f"{100 * covered / total:6.1f} %" if total else "      - "


def main():
    files = json.loads(pathlib.Path(sys.argv[1]).read_text(encoding="utf-8"))["files"]
    folders = collections.defaultdict(lambda: [0, 0, 0, 0])
    for file in files:
        figures = [file[name] for name in ("line_covered", "line_total", "branch_covered", "branch_total")]
        for folder in (str(pathlib.Path(file["filename"]).parent), "all"):
            folders[folder] = [sum(pair) for pair in zip(folders[folder], figures)]
    print(f"{'folder':32} {'lines':>8} {'branches':>9}")
    for folder, (lines, all_lines, branches, all_branches) in sorted(folders.items(), key=lambda f: (f[0] == "all", f)):
        print(f"{folder:32} {share(lines, all_lines)}  {share(branches, all_branches)}")
    print("\nlines that no test runs")
    missed = sorted(files, key=lambda file: file["line_covered"] - file["line_total"])
    for file in missed[:LEAST_COVERED]:
        if left := file["line_total"] - file["line_covered"]:
            print(f"{left:5} {file['filename']}")


if __name__ == "__main__":
    main()
