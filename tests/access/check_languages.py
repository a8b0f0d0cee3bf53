#!/usr/bin/python3
"""Cards in twelve scripts in the running program, on a desktop of one language: typed, pasted, imported, studied, tested,
saved, read on the desktops of other languages, printed both ways; compared character by character.

usage: dbus-run-session -- check_languages.py TESSARA SAMPLES LOCALE

It needs the display that DISPLAY names, LOCALE is one of those below
"""
import os
import pathlib
import re
import shutil
import string
import subprocess
import sys
import tempfile
import typing
import unicodedata
import unittest

import small_deck
from accessible_program import Program, wait_for
from windows import FRAME, NEW_DECK

# Each types a quarter of the scripts, and is read on the desktop of the next one.
LOCALES = ["C.UTF-8", "en_US.UTF-8", "ru_RU.UTF-8", "ja_JP.UTF-8"]
CODE_PAGES = {"ru_RU.UTF-8": "cp1251"}
WESTERN = "cp1252"
SIGNATURE = b"\xef\xbb\xbf"
LONG_FIELDS = ((1, 445), (748, 1192))

# By script. These are searched for in the PDF files; where letters join into one sign, no reader finds them apart.
SEARCHED = {
    "Latin": [("café", "garçon"), ("źdźbło", "żółć"), ("tiếng", "Việt"), ("naïve", "façade")],
    "Greek": [("νερό", "θάλασσα"), ("ὁ λόγος", "ἀγάπη"), ("φῶς", "ἥλιος"), ("γλώσσα", "λέξη")],
    "Cyrillic": [("вода", "хлеб"), ("ёлка", "ёжик"), ("їжак", "ґанок"), ("ўсё", "мова")],
    "Han": [("水", "日本語"), ("山川", "𠮷野"), ("漢字", "中文")],
    "Kana": [("みず", "ミズ"), ("ガギグ", "ぱぴぷ"), ("ことば", "コトバ")],
    "Hebrew": [("מים", "שלום"), ("בית", "ספר"), ("שפה", "מילה")],
    "Arabic": [("ماء", "قمر"), ("كتاب", "بيت"), ("درس", "كلمة")],
}
SEEN = {
    "Devanagari": [("पानी", "हिन्दी"), ("किताब", "भाषा"), ("नमस्ते", "शब्द")],
    "Thai": [("น้ำ", "ภาษาไทย"), ("หนังสือ", "คำ"), ("บ้าน", "ดี")],
    "Georgian": [("წყალი", "ქართული"), ("წიგნი", "სიტყვა"), ("ენა", "სახლი")],
    "Hangul": [("물", "한국어"), ("책", "말"), ("집", "언어")],
    "Sounds": [("ʃɪp", "θɪŋk"), ("ˈwɔːtə", "ʒ"), ("😀", "👨‍👩‍👧"), ("🐀", "🇳🇴")],
}
SCRIPTS = SEARCHED | SEEN
CARDS = [card for cards in SCRIPTS.values() for card in cards]

IMPORTED = NEW_DECK
DIRECTIONS = re.compile("[\u200e\u200f\u202a-\u202e\u2066-\u2069]")


class Side(typing.NamedTuple):
    text: str
    signed: bool  # stored behind the signature


tessara = samples = locale = ""


def bring_keys(characters):
    """Puts the characters on keys of the display that no desktop needs. xdotool would do so for the moment of each
    press; a program that is late reads that key without it."""
    display = os.environ["DISPLAY"]
    keymap = subprocess.run(["xkbcomp", display, "-"], capture_output=True, text=True, check=True).stdout
    free = re.findall(r"<I\d+>(?= = \d+;)", keymap)
    assert len(free) >= len(characters)
    # What was on these keys goes.
    keymap = re.sub(r"\n\s*key (<I\d+>) \{[^}]*\};", "", keymap)
    keys = "".join(f"key {key} {{ [ U{ord(character):04X} ] }};\n" for key, character in zip(free, characters))
    keymap = re.sub(r'(xkb_symbols "[^"]*" \{\n)', lambda found: found[1] + keys, keymap, count=1)
    subprocess.run(["xkbcomp", "-w0", "-", display], input=keymap, text=True, check=True)


def composed(text):
    return unicodedata.normalize("NFC", text)


class Language(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.locales = pathlib.Path(tempfile.mkdtemp(prefix="tessara-locales-"))
        cls.addClassCleanup(shutil.rmtree, cls.locales)
        cls.following = LOCALES[(LOCALES.index(locale) + 1) % len(LOCALES)]
        for name in {locale, cls.following} - {"C.UTF-8"}:
            language, charset = name.split(".")
            subprocess.run(["localedef", "-i", language, "-f", charset, cls.locales / name], check=True)

    def program(self, name):
        program = Program(tessara, samples, LC_ALL=name, LOCPATH=str(self.locales))
        self.addCleanup(program.end)
        return program

    def says(self, program, title, side, number, text):
        wanted = f"{side}. {number} of {len(CARDS)}. {text}"
        wait_for(f'"{wanted}"', lambda: composed(program.find(title, "Card").description) == composed(wanted))

    # What a user does.

    @staticmethod
    def type_into(program, box, text):
        """One by one: a key that the keyboard lacks is on it for that long."""
        typed = ""
        for character in text:
            program.type(character)
            typed += character
            wait_for(f'"{typed}" in {box}', lambda typed=typed: program.find("Tessara", box).text == typed)

    def write_cards(self, program, cards):
        """Each front typed, each back typed on the front, cut there and pasted."""
        program.ready(NEW_DECK)
        program.choose("File", "Create/Edit Card")
        program.ready("Tessara")
        for number, (front, back) in enumerate(cards):
            if number > 0:
                program.press("alt+n")
            wait_for("an empty front", lambda: program.find("Tessara", "Front").text == "")
            self.type_into(program, "Front", back)
            program.press("ctrl+a", "ctrl+x")
            wait_for("an empty front", lambda: program.find("Tessara", "Front").text == "")
            self.type_into(program, "Front", front)
            program.press("Tab", "ctrl+v")
            wait_for(f'"{back}" pasted', lambda back=back: program.find("Tessara", "Back").text == back)
            program.press("alt+a")
        program.press("alt+c")

    @staticmethod
    def leave_dialog(program, dialog, path):
        program.ready(dialog)
        program.type(str(path))
        program.press("Return")

    def save(self, program, title, path):
        program.ready(title)
        program.choose("File", "Save")
        self.leave_dialog(program, "Save As", path)
        program.ready("Save")
        program.press("Return")

    def import_cards(self, program, path):
        lines = [f"{number}.\n*>F\n{front}\n*>B\n{back}\n" for number, (front, back) in enumerate(CARDS, 1)]
        path.write_text("STD\n" + "\n".join(lines), encoding="utf-8")
        program.ready(NEW_DECK)
        program.press("alt+c")
        program.ready(FRAME)
        program.choose("File", "Import Text File")
        self.leave_dialog(program, "Open", path)

    def study(self, program, title):
        for number, (front, back) in enumerate(CARDS, 1):
            self.says(program, title, "Front", number, front)
            program.press("space")
            self.says(program, title, "Back", number, back)
            program.press("space", "Right")

    def be_tested(self, program, cards):
        """Each card turned over, and full credit taken."""
        program.choose("Mode", "Test")
        title = "cards  [TEST]"
        program.ready(title)
        for number, (front, back) in enumerate(cards, 1):
            self.says(program, title, "Front", number, front)
            program.press("space")
            self.says(program, title, "Back", number, back)
            program.press("space")

    # What is in the file, by its documentation.

    def stored(self, deck):
        """The sides of each card."""
        for at in range(small_deck.RECORD.size, len(deck) - small_deck.RECORD.size, small_deck.RECORD.size):
            yield [self.side(deck[at + first:at + last].strip(b" ")) for first, last in LONG_FIELDS]

    def side(self, field):
        signed = field.startswith(SIGNATURE)
        return Side(field[3:].decode() if signed else field.decode(CODE_PAGES.get(locale, WESTERN)), signed)

    def check_stored(self, path, cards):
        self.assertEqual([tuple(composed(side.text) for side in card) for card in self.stored(path.read_bytes())],
                         [tuple(map(composed, card)) for card in cards])

    # The behaviours.

    def test_typed_and_pasted_cards_are_in_the_file(self):
        for script, cards in list(SCRIPTS.items())[LOCALES.index(locale)::len(LOCALES)]:
            with self.subTest(script):
                bring_keys(sorted(set("".join(map("".join, cards))) - set(string.ascii_letters + " ")))
                program = self.program(locale)
                program.start()
                self.write_cards(program, cards)
                path = program.home / "typed.tsr"
                self.save(program, NEW_DECK, path)
                self.check_stored(path, cards)
                program.kill()

    def test_imported_cards_are_studied_tested_printed_and_read_elsewhere(self):
        program = self.program(locale)
        program.start()
        self.import_cards(program, program.home / "cards.txt")
        program.ready(IMPORTED)
        self.study(program, IMPORTED)
        path = program.home / "cards.tsr"
        self.save(program, IMPORTED, path)
        self.check_stored(path, CARDS)
        program.kill()
        self.check_printed(path)
        self.check_read(locale, path, CARDS)
        # The file does not say which code page it was; what is behind a signature reads everywhere.
        self.check_read(self.following, path, list(self.shown_elsewhere(path)))

    def check_read(self, name, path, cards):
        """Reopened and tested, by the language of that name."""
        program = self.program(name)
        program.start(shutil.copy(path, program.home))
        program.ready("cards  [STUDY]")
        self.be_tested(program, cards)
        program.kill()

    def shown_elsewhere(self, path):
        here, there = (CODE_PAGES.get(name, WESTERN) for name in (locale, self.following))
        for card in self.stored(path.read_bytes()):
            yield tuple(side.text if side.signed else side.text.encode(here).decode(there) for side in card)

    def check_printed(self, path):
        environment = {**os.environ, "LC_ALL": locale, "LOCPATH": str(self.locales)}
        for way in ("cards", "listing"):
            pdf = path.with_name(f"{way}.pdf")
            options = ["--listing"] if way == "listing" else []
            subprocess.run([pathlib.Path(tessara).with_name("tessara-deck"), "print", path, pdf, *options], check=True,
                           env=environment)
            text = subprocess.run(["pdftotext", pdf, "-"], capture_output=True, check=True).stdout.decode()
            text = DIRECTIONS.sub("", unicodedata.normalize("NFKC", text))
            # The backs of a listing are in italics, and it begins with card 2.
            for front, back in [card for cards in SEARCHED.values() for card in cards][1:]:
                for side in (front, back) if way == "cards" else (front,):
                    with self.subTest(way, side=side):
                        self.assertIn(unicodedata.normalize("NFKC", side), text)


if __name__ == "__main__":
    tessara, samples, locale = sys.argv[1:4]
    unittest.main(argv=sys.argv[:1])
