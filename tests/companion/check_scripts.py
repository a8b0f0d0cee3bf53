#!/usr/bin/python3
"""Prints cards of many scripts both ways, and looks for their texts and their ink in the PDF files.

usage: check_scripts.py BUILD_FOLDER [unittest arguments]
"""
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import typing
import unicodedata
import unittest

PROGRAM = pathlib.Path(sys.argv.pop(1)).resolve() / "tessara-deck"

# Each is found in the files by its text.
SEARCHED = ["θάλασσα", "книга", "źdźbło", "日本語", "שלום", "العربية", "café", "Việt"]
# These are seen; a PDF file need not have their text in the order of reading.
SEEN = ["हिन्दी", "ภาษาไทย", "ქართული", "한국어", "😀", "🐀", "🇳🇴", "👨‍👩‍👧", "⚽", "θɪŋk"]
# Its words stand from right to left, whatever stands between them. They read the same both ways, as a PDF file may
# have their letters.
MIXED = ["צצצ", "zzz", "קקק"]
# The listing begins with the second card.
UNLISTED = "first"
DIRECTIONS = re.compile("[\u200e\u200f\u202a-\u202e\u2066-\u2069]")
DOTS_PER_INCH = 200
# Of 255; what is lighter is paper.
INK = 200
LEAST_INK = 20


class Rectangle(typing.NamedTuple):
    left: int
    top: int
    right: int
    bottom: int


def as_searched(text):
    """As the viewers' searches have it: a letter in another shape is the letter, directions do not count."""
    return unicodedata.normalize("NFKC", DIRECTIONS.sub("", text))


def output_of(*command):
    return subprocess.run(command, capture_output=True, check=True, timeout=60).stdout


def pixels_of(page, path):
    """The page in shades of grey: its width, and a byte for each dot."""
    image = output_of("pdftoppm", "-gray", "-r", str(DOTS_PER_INCH), "-f", str(page), "-l", str(page), path)
    kind, width, _, _, pixels = re.match(rb"(P5)\s+(\d+)\s+(\d+)\s+(\d+)\s(.*)", image, re.DOTALL).groups()
    assert kind == b"P5"
    return int(width), pixels


def ink_in(place, width, pixels):
    return sum(shade < INK for row in range(place.top, place.bottom)
               for shade in pixels[row * width + place.left:row * width + place.right])


class Printed(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        holder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(holder.cleanup)
        cls.folder = pathlib.Path(holder.name)
        cls.environment = {**os.environ, "LC_ALL": "C.UTF-8", "XDG_RUNTIME_DIR": holder.name}
        # A mark behind each text shows where it ends, whatever the text itself is found as.
        words = [UNLISTED, *SEARCHED, *SEEN]
        table = "".join(f"{word} end{number}\tb\n" for number, word in enumerate(words)) + " ".join(MIXED) + "\tb\n"
        (cls.folder / "words.tsv").write_text(table, encoding="utf-8")
        cls.files = {"cards": cls.printed("cards.pdf"), "listing": cls.printed("listing.pdf", "--listing")}

    @classmethod
    def printed(cls, name, *options):
        subprocess.run([PROGRAM, "print", "words.tsv", name, *options], cwd=cls.folder, env=cls.environment, check=True,
                       timeout=120)
        return cls.folder / name

    def test_the_texts_are_found_in_both_kinds_of_print(self):
        for way, path in self.files.items():
            text = as_searched(output_of("pdftotext", path, "-").decode())
            for word in SEARCHED:
                with self.subTest(way, word=word):
                    self.assertIn(word, text)

    def test_a_text_goes_by_its_first_letter_in_both_kinds_of_print(self):
        for way, path in self.files.items():
            with self.subTest(way):
                boxes = output_of("pdftotext", "-bbox", path, "-").decode()
                places = [float(re.search(rf'xMin="([\d.]+)"[^>]*>{word[0]}', boxes)[1]) for word in MIXED]
                self.assertEqual(places, sorted(places, reverse=True))

    def before_mark(self, path, number):
        """The page and the place in front of a mark, on its line; as wide as two of its letters."""
        boxes = output_of("pdftotext", "-bbox", path, "-").decode()
        for page, content in enumerate(boxes.split("<page ")[1:], 1):
            word = re.search(r'xMin="([\d.]+)" yMin="([\d.]+)" xMax="([\d.]+)" yMax="([\d.]+)">' + f"end{number}<", content)
            if word:
                left, top, right, bottom = (float(edge) * DOTS_PER_INCH / 72 for edge in word.groups())
                letter = (right - left) / len(f"end{number}")
                return page, Rectangle(round(left - 3.5 * letter), round(top), round(left - letter / 2), round(bottom))
        raise AssertionError(f"the mark {number} is not in {path}")

    def test_characters_of_every_script_leave_ink_in_both_kinds_of_print(self):
        first = 1 + len(SEARCHED)
        for way, path in self.files.items():
            for number, word in enumerate(SEEN, first):
                with self.subTest(way, word=word):
                    page, place = self.before_mark(path, number)
                    self.assertGreater(ink_in(place, *pixels_of(page, path)), LEAST_INK)


if __name__ == "__main__":
    unittest.main()
