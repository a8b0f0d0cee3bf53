"""The ratios that a run has measured: each table adds its own to the file that BENCH_FIGURES names, and
check_figures.py compares them with the document's. Their names are those of the document's rows."""
import os


def add(name, ratio):
    path = os.environ.get("BENCH_FIGURES")
    if path:
        with open(path, "a", encoding="utf-8") as figures:
            figures.write(f"{name}\t{ratio:.4f}\n")
