#!/usr/bin/python3
"""Times the start and the memory of the program beside a bare window, run in turn."""

import os
import statistics
import subprocess
import sys
import tempfile
import time

RUNS = 15
STAY_MS = 5000


def run_once(command, widget, stay_ms, home):
    environment = dict(os.environ, BENCH_WIDGET=widget, BENCH_STAY=str(stay_ms), HOME=home,
                       XDG_CONFIG_HOME=home, XDG_RUNTIME_DIR=home, LANG="C.UTF-8")
    environment["BENCH_START"] = str(time.clock_gettime_ns(time.CLOCK_MONOTONIC))
    output = subprocess.run(command, env=environment, capture_output=True, text=True, check=True)
    return dict(line.split() for line in output.stdout.splitlines())


def measure(programs, home):
    starts = {name: [] for name in programs}
    for name, (command, widget) in programs.items():
        run_once(command, widget, 0, home)  # warm
    for _ in range(RUNS):
        for name, (command, widget) in programs.items():
            starts[name].append(float(run_once(command, widget, 0, home)["first_paint_ms"]))
    memory = {name: int(run_once(command, widget, STAY_MS, home)["resident_kb"])
              for name, (command, widget) in programs.items()}
    return starts, memory


def main():
    build = sys.argv[1]
    programs = {
        "bare window": ([f"{build}/bench_bare"], "bare"),
        "Tessara": ([f"{build}/bench_start", f"{build}/samples/capitals.tsr"], "NoteletCtl1"),
    }
    with tempfile.TemporaryDirectory() as home:
        os.chmod(home, 0o700)
        os.makedirs(f"{home}/.config", exist_ok=True)
        for folder in (home, f"{home}/.config"):
            with open(f"{folder}/Tessara.conf", "w", encoding="utf-8") as settings:
                settings.write("[Settings]\nShowSplash=0\nFirstLoad=False\n")
        starts, memory = measure(programs, home)
    floor = statistics.median(starts["bare window"])
    print(f"{'':14}{'start ms (min/median/max)':30}{'ratio':>6}   {'resident kB':>11}{'ratio':>7}")
    for name, times in starts.items():
        middle = statistics.median(times)
        figures = f"{min(times):.1f} / {middle:.1f} / {max(times):.1f}"
        print(f"{name:14}{figures:30}{middle / floor:6.2f}   {memory[name]:11}"
              f"{memory[name] / memory['bare window']:7.2f}")


main()
