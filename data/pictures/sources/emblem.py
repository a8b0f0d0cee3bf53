"""The program's emblem: a T laid of small square stones on a card, with two cards behind it."""

from . import palette as p
from .svg import blur, group, rect

T_STONES = {(0, 0), (1, 0), (2, 0), (1, 1), (1, 2)}
WARM_STONE = (1, 2)


def stones(x, y, side, gap, faint=True):
    """Three by three stones from (x, y) on; those outside the T are faint or left out."""
    body = ""
    for row in range(3):
        for column in range(3):
            in_letter = (column, row) in T_STONES
            if not in_letter and not faint:
                continue
            fill = p.RULE if not in_letter else p.HONEY if (column, row) == WARM_STONE else p.INK
            body += rect(x + column * (side + gap), y + row * (side + gap), side, side, side * 0.16,
                         fill=fill, fill_opacity=1 if in_letter else 0.6)
    return body


def card(x, y, width, height, turn, fill, edge):
    middle = f"{x + width / 2} {y + height / 2}"
    shade = rect(x + 1, y + 3, width, height, 7, fill=p.SHADOW, fill_opacity=0.32, filter="url(#soft)")
    return group(shade + rect(x, y, width, height, 7, fill=fill, stroke=edge, stroke_width=1.4),
                 transform=f"rotate({turn} {middle})")


def stack(faint=True):
    """The whole emblem on a ground of 128 by 128."""
    side, gap = (17, 3.5) if faint else (18, 3)
    left = 64 - (3 * side + 2 * gap) / 2
    return (f"<defs>{blur('soft', 2.4)}</defs>"
            + card(15, 20, 98, 74, -11, p.INK, p.INK_DEEP)
            + card(15, 26, 98, 74, 7, p.HONEY, "#b98f2e")
            + card(11, 34, 106, 80, 0, p.PAPER, p.PAPER_EDGE)
            + stones(left, 74 - (3 * side + 2 * gap) / 2, side, gap, faint))
