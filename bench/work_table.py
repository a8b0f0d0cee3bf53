#!/usr/bin/python3
"""Times the work on files beside plain reads and writes of the same bytes, and what a hand at the
keyboard waits for.

usage: work_table.py BUILD
"""
import os
import subprocess
import sys
import tempfile


def lines_of(command, **environment):
    output = subprocess.run(command, env=dict(os.environ, **environment), capture_output=True, text=True, check=True)
    return [line.split() for line in output.stdout.splitlines()]


def main():
    build = sys.argv[1]
    with tempfile.TemporaryDirectory() as home:
        os.makedirs(f"{home}/.config")
        with open(f"{home}/.config/Tessara.conf", "w", encoding="utf-8") as settings:
            settings.write("[Settings]\nShowSplash=0\nFirstLoad=False\n")
        files = lines_of([f"{build}/bench_files", home])
        session = []
        for deck, sample in ("standard", "capitals"), ("extended", "science"):
            session += lines_of([f"{build}/bench_session", f"{build}/samples/{sample}.tsr"], HOME=home, BENCH_DECK=deck,
                                XDG_CONFIG_HOME=f"{home}/.config", XDG_RUNTIME_DIR=home, LANG="C.UTF-8")
    print(f"{'200 cards':18}{'us':>10}{'plain us':>10}{'ratio':>8}")
    for name, ours, floor in files:
        print(f"{name:18}{ours:>10}{floor:>10}{float(ours) / float(floor):8.1f}")
    print(f"\n{'':18}{'first ms':>10}{'median':>10}{'longest':>10}{'plain':>10}{'ratio':>8}")
    for name, *figures in session:
        ratio = f"{float(figures[1]) / float(figures[3]):8.1f}" if len(figures) > 1 else ""
        print(f"{name:18}" + "".join(f"{figure:>10}" for figure in figures) + ratio)


main()
