#!/usr/bin/python3
"""Are figures that have got worse told from those that have not?

usage: figures_check_test.py
"""
import pathlib
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "bench"))
import check_figures  # noqa: E402  after the path is set

DOCUMENT = """
| | time | plain | ratio |
| --- | --- | --- | --- |
| bare window | 34 ms | 34 ms | 1 |
| load a deck | 0.1 ms | 0.05 ms | 2.0 |
| listing, 19 pages | 0.03 s | 1 s | 0.03 |

| | told in words |
| --- | --- |
| the rest | much |
"""


class Figures(unittest.TestCase):
    def complaints(self, figures):
        with tempfile.NamedTemporaryFile("w", suffix=".md") as document:
            document.write(DOCUMENT)
            document.flush()
            return list(check_figures.complaints(check_figures.told(document.name), figures))

    def test_figures_within_a_fifth_are_good(self):
        self.assertEqual(self.complaints({"load a deck": 2.39, "listing, 19 pages": 0.01}), [])

    def test_a_figure_that_is_worse_is_told(self):
        self.assertEqual(self.complaints({"load a deck": 2.41, "listing, 19 pages": 0.03}),
                         ["load a deck: 2.41 measured, 2 told"])

    def test_figures_that_only_one_of_both_has_are_told(self):
        self.assertEqual(self.complaints({"load a deck": 2.0, "save a deck": 3.0}),
                         ["listing, 19 pages: told, not measured", "save a deck: measured, not told"])

    def test_what_a_run_has_added_is_read(self):
        with tempfile.NamedTemporaryFile("w", suffix=".figures") as figures:
            figures.write("load a deck\t2.0000\nlisting, 19 pages\t0.0300\n")
            figures.flush()
            self.assertEqual(check_figures.measured(figures.name), {"load a deck": 2.0, "listing, 19 pages": 0.03})

    def test_the_document_tells_figures(self):
        self.assertGreater(len(check_figures.told(ROOT / "docs/performance.md")), 20)


if __name__ == "__main__":
    unittest.main()
