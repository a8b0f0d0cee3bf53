#!/usr/bin/python3
"""Times the work on files beside plain reads and writes of the same bytes, and what a hand at the
keyboard waits for.

usage: work_table.py BUILD
"""
import os
import subprocess
import sys
import tempfile

sys.dont_write_bytecode = True

import figures  # noqa: E402

# What the benchmarks measure, as the document tells it.
NAMES = {
    "deck-load": "load a deck",
    "deck-save": "save a deck",
    "deck-save-calls": "the same, beside as many plain writes of a record each",
    "safety-copy": "keep the safety copy before a save, beside a plain copy that is forced to the disk",
    "unsaved-change": "keep a deck of which a card has changed, beside a plain write of the deck",
    "unsaved-all-rows": "the same where all cards have changed",
    "import-standard": "import a standard text",
    "import-extended": "import an extended text",
    "standard-tenfold": "a standard text ten times as long",
    "extended-tenfold": "an extended text ten times as long",
    "card-move": "move to the next card",
    "frmEssay": "card builder",
    "frmQuestion": "question builder",
    "frmInfo": "deck information",
    "PrintCard": "print window",
    "FrmSetUp": "set-up",
    "frmAbout": "About",
    "frmInstruct": "separating the cards",
    "HelpViewer": "help",
    "QInputDialog": "go to a card",
    "QFileDialog": "open a deck",
    "QMessageBox": "a question before a deletion",
}


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
        figures.add(NAMES[name], float(ours) / float(floor))
        print(f"{name:18}{ours:>10}{floor:>10}{float(ours) / float(floor):8.1f}")
    print(f"\n{'':18}{'first ms':>10}{'median':>10}{'longest':>10}{'plain':>10}{'ratio':>8}")
    for name, *times in session:
        line = f"{name:18}" + "".join(f"{time:>10}" for time in times)
        if name in NAMES:
            ratio = float(times[1]) / float(times[3])
            figures.add(NAMES[name], ratio)
            line += f"{ratio:8.2f}"
        print(line)


main()
