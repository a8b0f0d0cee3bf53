#!/usr/bin/env python3
"""Reads the sample decks back and looks whether they are what they should be.

usage: check_samples.py FOLDER     the folder that make_decks.py wrote to

Prints what is wrong and ends with status 1, or ends silently with 0. It knows the records by its own table, not by
the one that wrote them, and counts the cards in the texts.
"""

import re
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent

RECORD_SIZE = 1192
# Before a text in UTF-8; the others are in the code page.
SIGNATURE = b"\xef\xbb\xbf"
# Offset and width of each text of a record; the number is the two bytes at NUMBER.
TYPE, TEXT, ANSWER, LONG = (0, 1), (1, 444), (747, 1), (748, 444)
SHORTS = [(447, 75), (522, 75), (597, 75), (672, 75)]
NUMBER = 445

# What the program's own windows let a user type.
LONGEST_QUESTION, LONGEST_CHOICE, LONGEST_DESCRIPTION = 300, 48, 400

# Name, type text, the types of its cards, fewest cards.
DECKS = [("capitals", " Standard", {"E"}, 193), ("science", " Extended", {"T", "M"}, 48),
         ("words", " Standard", {"E"}, 40), ("scripts", " Extended", {"T", "M"}, 28)]
MOST_CARDS = 200


def text_at(record, where):
    offset, width = where
    stored = record[offset:offset + width].rstrip(b" ")
    return stored.removeprefix(SIGNATURE).decode("utf-8" if stored.startswith(SIGNATURE) else "cp1252")


def number_at(record):
    return int.from_bytes(record[NUMBER:NUMBER + 2], "little", signed=True)


def records_of(path):
    data = path.read_bytes()
    return [data[start:start + RECORD_SIZE] for start in range(0, len(data), RECORD_SIZE)]


def short_texts(record):
    return [text_at(record, where) for where in SHORTS]


def cards_in_text(name):
    return len(re.findall(r"^\d+\.", (HERE / f"{name}.txt").read_text(encoding="utf-8"), re.MULTILINE))


def information_faults(record, type_text):
    date, kind, title, author = short_texts(record)
    description = text_at(record, LONG)
    if text_at(record, TYPE) != "I" or number_at(record) != 0 or text_at(record, TEXT) or text_at(record, ANSWER):
        yield "the first record holds no deck information"
    if not re.fullmatch(r"[1-9]\d?/[1-9]\d?/\d{4}", date):
        yield f"the date is {date!r}"
    if kind != type_text:
        yield f"the type is {kind!r}"
    for text in (title, author, description):
        if not text or text != text.strip(" "):
            yield f"the information {text!r} is empty, or blanks begin it"
    if len(description) > LONGEST_DESCRIPTION:
        yield "the description is too long for its window"


def terminator_faults(record):
    blank = b"X" + b" " * 444 + b"\0\0" + b" " * 745
    if record != blank:
        yield "the last record is no terminator"


def text_card_faults(record):
    if not text_at(record, LONG):
        yield "nothing on the back"
    if any(short_texts(record)) or text_at(record, ANSWER):
        yield "choices or an answer on a text card"


def question_faults(record):
    if len(text_at(record, TEXT)) > LONGEST_QUESTION:
        yield "the question is too long"
    if text_at(record, LONG):
        yield "a back on a question card"


def true_false_faults(record):
    yield from question_faults(record)
    if any(short_texts(record)):
        yield "choices on a true/false card"
    if text_at(record, ANSWER) not in ("T", "F"):
        yield "the answer is neither T nor F"


def multiple_choice_faults(record):
    yield from question_faults(record)
    choices = short_texts(record)
    given = [choice for choice in choices if choice]
    if len(given) < 3 or choices[:len(given)] != given:
        yield "fewer than three choices, or a gap between them"
    if len(set(given)) != len(given):
        yield "two choices are the same"
    if max(map(len, choices)) > LONGEST_CHOICE:
        yield "a choice is too long"
    if text_at(record, ANSWER) not in list("ABCD"[:len(given)]):
        yield "the answer is none of the choices"


CARD_FAULTS = {"E": text_card_faults, "T": true_false_faults, "M": multiple_choice_faults}


def card_faults(record, number, types):
    card_type, text = text_at(record, TYPE), text_at(record, TEXT)
    if number_at(record) != number:
        yield f"the number is {number_at(record)}"
    if not text or any(each != each.strip(" ") for each in [text, *short_texts(record), text_at(record, LONG)]):
        yield "no text, or blanks at the ends of one"
    if card_type not in types:
        yield f"the type is {card_type!r}"
        return
    yield from CARD_FAULTS[card_type](record)


def deck_faults(path, type_text, types, fewest):
    records = records_of(path)
    if len(records) < 3 or len(records[-1]) != RECORD_SIZE:
        yield "not whole records, or too few"
        return
    information, *cards, terminator = records
    yield from information_faults(information, type_text)
    for number, record in enumerate(cards, 1):
        yield from (f"card {number}: {fault}" for fault in card_faults(record, number, types))
    yield from terminator_faults(terminator)
    if not fewest <= len(cards) <= MOST_CARDS or len(cards) != cards_in_text(path.stem):
        yield f"{len(cards)} cards, {cards_in_text(path.stem)} of them in the text"
    if len({text_at(record, TEXT) for record in cards}) != len(cards):
        yield "two cards have the same front"
    if {text_at(record, TYPE) for record in cards} != types:
        yield "a type of card is missing"


def main(folder):
    faults = [f"{name}: {fault}" for name, *wanted in DECKS for fault in deck_faults(folder / f"{name}.tsr", *wanted)]
    print(*faults, sep="\n", end="\n" if faults else "")
    return 1 if faults else 0


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit("usage: check_samples.py FOLDER")
    sys.exit(main(Path(sys.argv[1])))
