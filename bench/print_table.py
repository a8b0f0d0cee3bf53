#!/usr/bin/python3
"""Times the printing of 200 cards into a PDF file beside LibreOffice converting the same pages,
already laid out, run in turn. The start of LibreOffice counts in both.

usage: print_table.py BUILD
"""
import os
import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "data/template"))

import figures  # noqa: E402
import sheet  # noqa: E402

RUNS = int(os.environ.get("BENCH_RUNS", 7))
CARDS = 200
CARDS_OF_SHEET = 8
EMPTY_CARD = '<table:table-cell table:style-name="card"/>'


def table_of(template, number, side):
    """One printed page: the template's table with eight texts."""
    table = template.replace("Cards", f"{side}{number}")
    for card in range(number * CARDS_OF_SHEET, (number + 1) * CARDS_OF_SHEET):
        text = f'<table:table-cell table:style-name="card"><text:p>{side} {card + 1}</text:p></table:table-cell>'
        table = table.replace(EMPTY_CARD, text, 1)
    return table


def spreadsheet():
    """All sheets of the job, fronts and then backs, as one flat OpenDocument spreadsheet."""
    before, rest = sheet.flat_document().split("<table:table ", 1)
    template, after = rest.split("</table:table>", 1)
    template = f"<table:table {template}</table:table>"
    sheets = range(CARDS // CARDS_OF_SHEET)
    return before + "".join(table_of(template, n, side) for side in ("Front", "Back") for n in sheets) + after


def listing():
    """Plain text, of a name by which Calc alone takes it."""
    cards = "".join(f"\nCard #{n}\nFront {n}\n\nBack {n}\n\n" for n in range(1, CARDS + 1))
    return f"TITLE: \nCREATED BY: \nDATE: \n\nTotal Cards: {CARDS}\n{cards}"


def convert(folder, name, target):
    start = time.monotonic()
    subprocess.run(["soffice", "--headless", f"-env:UserInstallation={(folder / 'profile').as_uri()}",
                    "--convert-to", target, "--outdir", str(folder), str(folder / name)],
                   check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return (time.monotonic() - start) * 1000


def pages(path):
    told = subprocess.run(["pdfinfo", str(path)], check=True, capture_output=True, text=True).stdout
    return next(int(line.split()[1]) for line in told.splitlines() if line.startswith("Pages:"))


def print_ours(build, way, path):
    told = subprocess.run([f"{build}/bench_print", way, str(path)], check=True, capture_output=True, text=True)
    return float(told.stdout)


def compare(build, folder, source, ways):
    """Ours in each of the ways, by their names in the document, in turn with the floor."""
    floor, ours = [], {name: [] for name in ways}
    for _ in range(RUNS):
        floor.append(convert(folder, source, "pdf"))
        for name, way in ways.items():
            ours[name].append(print_ours(build, way, folder / "ours.pdf"))
    converted = (folder / source).with_suffix(".pdf")
    least = statistics.median(floor)
    for name, times in ours.items():
        time_of_ours = statistics.median(times)
        figures.add(name, time_of_ours / least)
        print(f"{name:36}{time_of_ours:8.0f}{least:16.0f}{time_of_ours / least:8.3f}"
              f"{pages(folder / 'ours.pdf'):8}{pages(converted):8}")


def main():
    build = sys.argv[1]
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        (folder / "cards.fods").write_text(spreadsheet(), encoding="utf-8")
        (folder / "listing.csv").write_text(listing(), encoding="utf-8")
        convert(folder, "cards.fods", "ods")  # makes the profile too
        print(f"{'200 cards':36}{'ms':>8}{'LibreOffice ms':>16}{'ratio':>8}{'pages':>8}{'':>8}")
        compare(build, folder, "cards.ods", {"card sheets, Print pressed at once": "cards",
                                             "card sheets, the cards chosen before": "chosen"})
        compare(build, folder, "listing.csv", {"listing": "listing"})


main()
