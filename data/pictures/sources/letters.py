"""Letters drawn as strokes of one width, so that no picture depends on an installed font.

A glyph stands on the base line y = 0, capitals reach y = -10; its advance includes its own margin.
"""

from .svg import group, path

GLYPHS = {
    "T": (8.6, "M0.6 -10H8M4.3 -10V0"),
    "E": (8.2, "M7 -10H1V0H7M1 -5.1H6.2"),
    "S": (8.2, "M7 -8.3C6.5 -9.4 5.4 -10 4 -10C2.1 -10 0.9 -9 0.9 -7.6C0.9 -4.4 7.2 -5.8 7.2 -2.5"
               "C7.2 -1 5.9 0 4 0C2.3 0 1 -0.7 0.6 -2"),
    "A": (9.2, "M0.5 0L4.6 -10L8.7 0M2 -3.4H7.2"),
    "R": (8.6, "M1 0V-10H4.4C6.4 -10 7.5 -8.9 7.5 -7.3C7.5 -5.7 6.4 -4.6 4.4 -4.6H1M4.5 -4.6L7.9 0"),
    "P": (8.2, "M1 0V-10H4.4C6.4 -10 7.5 -8.9 7.5 -7.2C7.5 -5.5 6.4 -4.4 4.4 -4.4H1"),
    "v": (6.4, "M0.4 -6.6L3.1 0L5.8 -6.6"),
    "e": (6.8, "M0.9 -3.5H5.9C5.9 -5.4 4.9 -6.7 3.4 -6.7C1.8 -6.7 0.8 -5.3 0.8 -3.3"
               "C0.8 -1.3 1.9 0.1 3.5 0.1C4.5 0.1 5.3 -0.3 5.8 -1.2"),
    "r": (4.6, "M1 0V-6.6M1 -4C1.3 -5.8 2.5 -6.8 4.2 -6.5"),
    "s": (5.8, "M4.9 -5.6C4.5 -6.4 3.8 -6.7 2.9 -6.7C1.7 -6.7 0.9 -6.1 0.9 -5.1C0.9 -2.9 5.1 -4 5.1 -1.7"
               "C5.1 -0.6 4.2 0.1 2.9 0.1C1.8 0.1 0.9 -0.4 0.5 -1.3"),
    "i": (3, "M1.4 0V-6.6M1.4 -9.2V-9.1"),
    "o": (7, "M3.5 -6.7C1.9 -6.7 0.8 -5.3 0.8 -3.3C0.8 -1.3 1.9 0.1 3.5 0.1"
             "C5.1 0.1 6.2 -1.3 6.2 -3.3C6.2 -5.3 5.1 -6.7 3.5 -6.7Z"),
    "n": (6.6, "M1 0V-6.6M1 -3.9C1.2 -5.6 2.1 -6.7 3.5 -6.7C4.9 -6.7 5.6 -5.8 5.6 -4.3V0"),
    "1": (5.4, "M1 -8L3.4 -10V0"),
    "0": (7.6, "M3.8 -10C2 -10 0.9 -8 0.9 -5C0.9 -2 2 0 3.8 0C5.6 0 6.7 -2 6.7 -5C6.7 -8 5.6 -10 3.8 -10Z"),
    ".": (2.8, "M1.3 -0.1V0"),
    " ": (4, ""),
}


def word(text, x, y, height, stroke, colour, spacing=0.0):
    """The text with its left end at x on the base line y; `height` is that of a capital."""
    scale = height / 10
    parts, at = [], 0.0
    for letter in text:
        advance, strokes = GLYPHS[letter]
        parts.append(path(strokes, transform=f"translate({at:.2f} 0)"))
        at += advance + spacing
    return group("".join(parts), fill="none", stroke=colour, stroke_width=f"{stroke / scale:.3f}",
                 stroke_linecap="round", stroke_linejoin="round",
                 transform=f"translate({x} {y}) scale({scale})")


def width(text, height, spacing=0.0):
    """How far the text reaches, in the unit of `height`."""
    return (sum(GLYPHS[letter][0] + spacing for letter in text) - spacing) * height / 10
