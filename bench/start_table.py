#!/usr/bin/python3
"""Times the start and the memory of the program beside a bare window, run in turn; for root also the
start with nothing in the page cache."""

import os
import statistics
import subprocess
import sys
import tempfile
import time

sys.dont_write_bytecode = True

import figures  # noqa: E402

RUNS = int(os.environ.get("BENCH_RUNS", 15))
COLD_RUNS = min(RUNS, 5)
STAY_MS = 5000
PAGE_CACHE = "/proc/sys/vm/drop_caches"


def run_once(command, widget, stay_ms, home):
    environment = dict(os.environ, BENCH_WIDGET=widget, BENCH_STAY=str(stay_ms), HOME=home,
                       XDG_CONFIG_HOME=home, XDG_RUNTIME_DIR=home, LANG="C.UTF-8")
    environment["BENCH_START"] = str(time.clock_gettime_ns(time.CLOCK_MONOTONIC))
    output = subprocess.run(command, env=environment, capture_output=True, text=True, check=True)
    return dict(line.split() for line in output.stdout.splitlines())


def drop_page_cache():
    os.sync()
    with open(PAGE_CACHE, "w", encoding="ascii") as cache:
        cache.write("3")


def starts_of(programs, home, runs, prepare):
    starts = {name: [] for name in programs}
    for _ in range(runs):
        for name, (command, widget) in programs.items():
            prepare()
            starts[name].append(float(run_once(command, widget, 0, home)["first_paint_ms"]))
    return starts


def measure(programs, home):
    for command, widget in programs.values():
        run_once(command, widget, 0, home)  # warm
    starts = starts_of(programs, home, RUNS, lambda: None)
    memory = {name: int(run_once(command, widget, STAY_MS, home)["resident_kb"])
              for name, (command, widget) in programs.items()}
    return starts, memory


def start_lines(title, starts):
    yield f"{title:20}{'ms (min/median/max)':24}{'ratio':>6}"
    floor = statistics.median(starts["bare window"])
    figures.add(title, statistics.median(starts["Tessara"]) / floor)
    for name, times in starts.items():
        middle = statistics.median(times)
        yield f"  {name:18}{f'{min(times):.1f} / {middle:.1f} / {max(times):.1f}':24}{middle / floor:6.2f}"


def memory_lines(memory):
    yield f"{'resident memory':20}{'kB':24}{'ratio':>6}"
    figures.add("resident memory", memory["Tessara"] / memory["bare window"])
    for name, kilobytes in memory.items():
        yield f"  {name:18}{kilobytes:<24}{kilobytes / memory['bare window']:6.2f}"


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
        lines = [*start_lines("start", starts)]
        if os.access(PAGE_CACHE, os.W_OK):
            lines += start_lines("start, cold", starts_of(programs, home, COLD_RUNS, drop_page_cache))
    print("\n".join([*lines, *memory_lines(memory)]))


main()
