#!/usr/bin/env python3
"""Makes the sample decks, capitals.tsr and so on, from the import texts beside this script.

usage: make_decks.py OUTPUT_FOLDER

The texts are held to a stricter form than the program's import asks for: one line to a side, one blank line
between cards. Whatever does not fit ends the script with a message and writes no deck of it.
docs/deck-format.md has the records. Twice the same texts give twice the same bytes.
"""

import re
import struct
import sys
import unicodedata
from dataclasses import dataclass
from pathlib import Path
from typing import Callable

HERE = Path(__file__).resolve().parent

CODE_PAGE = "cp1252"
# Before a text that the code page lacks.
SIGNATURE = b"\xef\xbb\xbf"
TEXT_WIDTH, SHORT_WIDTH, SHORT_FIELDS = 444, 75, 4
# Card type, text, number, four short fields, answer, long text.
RECORD = struct.Struct(f"<1s{TEXT_WIDTH}sh" + f"{SHORT_WIDTH}s" * SHORT_FIELDS + f"1s{TEXT_WIDTH}s")
assert RECORD.size == 1192

MOST_CARDS = 200
LETTERS = "ABCD"
# The lines of a card: number, front tag, front, back tag, back, blank line.
STANDARD_LINES = 6
# A standard import takes such a line for the number of a card.
NUMBER_LINE = re.compile(r"[-+]?\d*\.\d*")


@dataclass
class Card:
    type: str
    text: str
    choices: list[str]
    answer: str
    back: str


@dataclass
class Deck:
    name: str
    type: str
    title: str
    description: str
    read_cards: Callable[[list[str]], list[Card]]


def expect(condition, complaint):
    if not condition:
        raise ValueError(complaint)


def checked_text(text, number):
    """A load would take away blanks at the ends."""
    expect(text and text == text.strip(" "), f"card {number}: empty text, or blanks at its ends")
    return text


def checked_side(text, number):
    expect(not NUMBER_LINE.fullmatch(text), f"card {number}: {text!r} reads as the number of a card")
    return checked_text(text, number)


def standard_card(lines, number):
    match lines:
        case [head, "*>F", front, "*>B", back, ""] if head == f"{number}.":
            return Card("E", checked_side(front, number), [], "", checked_side(back, number))
    raise ValueError(f"card {number}: its lines are {lines}")


def standard_cards(lines):
    expect(lines[0] == "STD" and lines[-1] == "*END*", "STD does not begin the text, or *END* does not end it")
    body = lines[1:-1]
    starts = range(0, len(body), STANDARD_LINES)
    return [standard_card(body[start:start + STANDARD_LINES], number) for number, start in enumerate(starts, 1)]


def choice_text(line, letter, number):
    expect(line.startswith(f"{letter}."), f"card {number}: {line!r} is no choice {letter}")
    return checked_text(line[2:], number)


def extended_card(lines, number):
    expect(len(lines) == 2 or 4 <= len(lines) <= 6, f"card {number}: its lines are {lines}")
    head, *choice_lines, answer = lines
    expect(head.startswith(f"{number}."), f"card {number}: it begins with {head!r}")
    choices = [choice_text(line, letter, number) for line, letter in zip(choice_lines, LETTERS)]
    answers = LETTERS[:len(choices)] or "TF"
    expect(answer in [f"={letter}" for letter in answers], f"card {number}: its answer is {answer!r}")
    return Card("M" if choices else "T", checked_text(head.split(".", 1)[1], number), choices, answer[1], "")


def extended_cards(lines):
    expect(lines[0] == "EXT", "EXT does not begin the text")
    blocks = "\n".join(lines[1:]).split("\n\n")
    return [extended_card(block.split("\n"), number) for number, block in enumerate(blocks, 1)]


AUTHOR = "The Tessara developers"
# Month, day and year as the program writes them, without leading zeros.
DATE = "11/21/2026"

# The types begin with a blank, as the program's own do.
DECKS = [
    Deck("capitals", " Standard", "Capitals of the world",
         "The capitals of the 193 member states of the United Nations and of its two observer states, as they were "
         "in November 2026. Where a state has several, or its government sits elsewhere, the back says so.",
         standard_cards),
    Deck("science", " Extended", "General science",
         "True or false, and multiple choice: physics, chemistry, biology, the Earth and the sky.",
         extended_cards),
    Deck("words", " Standard", "Ten words in four scripts",
         "Greek, Russian, Japanese and Hebrew: Ελληνικά, русский, 日本語, עברית.",
         standard_cards),
    Deck("scripts", " Extended", "Languages and scripts",
         "True or false, and multiple choice: letters, words and sounds of the world's languages.",
         extended_cards),
]


def stored_text(text):
    try:
        return text.encode(CODE_PAGE)
    except UnicodeEncodeError:
        return SIGNATURE + unicodedata.normalize("NFC", text).encode()


def field(text, width):
    stored = stored_text(text)
    expect(not text.startswith("ï»¿"), f"{text!r} would read as another text")
    expect(len(stored) <= width, f"{text!r} is longer than {width} bytes")
    return stored.ljust(width)


def record(card_type, number, text="", short=(), answer="", long=""):
    shorts = [*short, *[""] * (SHORT_FIELDS - len(short))]
    return RECORD.pack(field(card_type, 1), field(text, TEXT_WIDTH), number,
                       *(field(each, SHORT_WIDTH) for each in shorts), field(answer, 1), field(long, TEXT_WIDTH))


def deck_bytes(deck, cards):
    expect(0 < len(cards) <= MOST_CARDS, f"{len(cards)} cards")
    information = record("I", 0, short=[DATE, deck.type, deck.title, AUTHOR], long=deck.description)
    records = [record(card.type, number, card.text, card.choices, card.answer, card.back)
               for number, card in enumerate(cards, 1)]
    return information + b"".join(records) + record("X", 0)


def lines_of(path):
    text = path.read_bytes().decode("utf-8")
    expect(text.endswith("\n"), "the last line does not end")
    return text[:-1].split("\n")


def main(output):
    output.mkdir(parents=True, exist_ok=True)
    for deck in DECKS:
        source = HERE / f"{deck.name}.txt"
        try:
            made = deck_bytes(deck, deck.read_cards(lines_of(source)))
        except ValueError as error:
            sys.exit(f"{source}: {error}")
        (output / f"{deck.name}.tsr").write_bytes(made)


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit("usage: make_decks.py OUTPUT_FOLDER")
    main(Path(sys.argv[1]))
