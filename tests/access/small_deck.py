"""A deck of one question, for ways that are short."""
import struct

NAME = "one"
# Card type, text, number, four short fields, answer, long text: docs/deck-format.md has the records.
RECORD = struct.Struct("<1s444sh75s75s75s75s1s444s")


def record(kind, text="", number=0, answer=" "):
    def field(value, width):
        return value.encode("ascii").ljust(width)

    return RECORD.pack(field(kind, 1), field(text, 444), number, *[field("", 75)] * 4, field(answer, 1), field("", 444))


def write(folder):
    """Returns the path of the deck file that it has written."""
    path = folder / f"{NAME}.tsr"
    path.write_bytes(record("I") + record("T", "Is water wet?", 1, "T") + record("X"))
    return path
