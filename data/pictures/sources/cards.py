"""The skins of the answer card and the three pictures of the print window."""

from . import letters, output, palette as p
from .svg import blur, document, group, line, rect, shade

FLAT = (323, 90)
RAISED = (327, 93)
PRINT = (117, 37)


def ruled(width, height, heading, rules, edge):
    """The lines of a card's front: one heading rule, then fainter ones."""
    body = line(edge, heading, width - edge, heading, stroke=p.CLAY_SOFT, stroke_width=1)
    for y in rules:
        body += line(edge, y, width - edge, y, stroke=p.RULE, stroke_width=1)
    return body


def card_face(width, height, fill, edge):
    return (rect(0.5, 0.5, width - 1, height - 1, 4, fill=fill, stroke=edge, stroke_width=1)
            + ruled(width, height, 21.5, (45.5, 69.5), 1))


def skin(size, card_size, fill, edge, raised):
    width, height = card_size
    body = ""
    if raised:
        def shape(**more):
            return rect(0, 0, width, height, 4, **more)
        body = f"<defs>{blur('soft', 1.4)}</defs>" + shade(shape, "soft", 0.42, 3, 2.6)
    return document(*size, body + card_face(width, height, fill, edge))


def print_card(x, ruled_face, upside_down, colours):
    """One card of 54 by 33 pixels with a large letter P."""
    fill, edge, heading, rule, ink = colours
    body = group(rect(0, 0, 54, 33, 2.5, fill=p.SHADOW, fill_opacity=0.3, filter="url(#soft)"),
                 transform="translate(1.6 1.6)")
    body += rect(0.5, 0.5, 53, 32, 2.5, fill=fill, stroke=edge, stroke_width=1)
    if ruled_face:
        body += line(1, 7.5, 53, 7.5, stroke=heading, stroke_width=1)
        body += "".join(line(1, y, 53, y, stroke=rule, stroke_width=1) for y in (13.5, 19.5, 25.5))
    letter = letters.word("P", 27 - letters.width("P", 20) / 2, 26.5, 20, 3.4, ink)
    turn = "rotate(180 27 16.5)" if upside_down else "rotate(0)"
    return group(body + group(letter, transform=turn), transform=f"translate({x} 1)")


def print_picture(upside_down, colours):
    return document(*PRINT, f"<defs>{blur('soft', 0.9)}</defs>" + print_card(1, True, False, colours)
                    + print_card(60, False, upside_down, colours))


def draw(folder):
    for name, fill, edge in (("white", p.PAPER, p.PAPER_EDGE), ("yellow", p.YELLOW, p.YELLOW_EDGE)):
        output.vector(skin(FLAT, FLAT, fill, edge, False), *FLAT, folder / f"skins/{name}_flat.png")
        output.vector(skin(RAISED, (321, 88), fill, edge, True), *RAISED,
                      folder / f"skins/{name}_3d.png")
    lively = (p.PAPER, p.PAPER_EDGE, p.CLAY, p.RULE, p.INK)
    grey = ("#eeeeee", "#c4c4c4", "#bcbcbc", "#d2d2d2", "#9a9a9a")
    output.vector(print_picture(False, lively), *PRINT, folder / "print/nonflip.png")
    output.vector(print_picture(True, lively), *PRINT, folder / "print/flip.png")
    output.vector(print_picture(False, grey), *PRINT, folder / "print/flip_disabled.png")
