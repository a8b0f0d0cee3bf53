"""The six pictures of how a printed sheet becomes eight cards.

Only the top left 257 by 176 pixels of each picture are seen; the subject stands on a panel inside that part.
"""

from math import cos, pi, radians, sin

from . import output, palette as p
from .paper import (DEPTH as D, Patch, View, arrow, curve, dashed, lifted, shadow, shown, strip)
from .svg import blur, document, polygon, rect

SIZE = 360
PANEL = (2, 2, 204, 170)
PANEL_AND_EDGE = (208, 174)
CENTRE = (104, 87)
HALF = 2 * D
THICKNESS = 0.045


def scene(body):
    x, y, width, height = PANEL
    table = rect(x, y, width, height, 9, fill=p.DESK, stroke=p.DESK_EDGE, stroke_width=1)
    return document(SIZE, SIZE, f"<defs>{blur('soft', 2.2)}</defs>" + table + body)


def lying(near, far, left=0.0, right=2.0, z=0.0):
    """The four corners of paper that lies flat."""
    return (left, far, z), (right, far, z), (right, near, z), (left, near, z)


def rows(view, lowest, count, first):
    """Strips that lie flat side by side, from far to near."""
    return "".join(shown(strip(((lowest + count - k) * D, 0), ((lowest + count - k - 1) * D, 0)), view,
                         seed=first + k) for k in range(count))


def dim(view, points):
    """The shade that a flap casts on the paper under it."""
    return polygon([view(*point) for point in points], fill=p.SHADOW, fill_opacity=0.12)


def the_sheet():
    view = View.centred(lying(0, 4 * D), 57, CENTRE)
    return scene(shadow(view, lying(0, 4 * D)) + rows(view, 0, 4, 0))


def fold_in_half():
    view = View.centred(lying(0, 4 * D), 55, (98, 88))
    crease, middle, end = (HALF, 0), lifted(HALF, D, 142), lifted(HALF, 2 * D, 150)
    flap = shown(strip(middle, crease), view, seed=1, shaded=0.03) + shown(strip(end, middle), view, seed=0)
    way = curve(view(2.05, 3.9 * D), view(2.05, 0.25 * D), 0.28)
    return scene(dashed(view, lying(HALF, 4 * D)) + shadow(view, lying(0, HALF)) + rows(view, 0, 2, 2)
                 + dim(view, lying(0.45 * D, HALF)) + flap + arrow(way))


def fold_first_quarter():
    view = View.centred(lying(0, HALF), 72, (98, 98))
    above = shown(strip((D, THICKNESS), (HALF, THICKNESS)), view, seed=1)
    flap = shown(strip(lifted(D, D, 96), (D, THICKNESS)), view, seed=0)
    way = curve(view(2.06, 0.12 * D), view(2.04, 1.95 * D, 0.2), -0.3)
    return scene(shadow(view, lying(0, HALF)) + rows(view, 0, 2, 2) + above
                 + dim(view, lying(D, 1.7 * D, z=THICKNESS)) + flap + arrow(way))


def fold_other_quarter():
    view = View.centred(lying(0, HALF), 72, (98, 98))
    pile = "".join(shown(strip((D, layer * THICKNESS), (HALF, layer * THICKNESS)), view, seed=2)
                   for layer in range(3))
    top = 2 * THICKNESS
    flap = shown(strip(lifted(D, D, 96), (D, top)), view, seed=3)
    way = curve(view(2.06, 0.12 * D), view(2.04, 1.95 * D, 0.2), -0.3)
    return scene(shadow(view, lying(D, HALF)) + dashed(view, lying(0, D)) + pile
                 + dim(view, lying(D, 1.7 * D, z=top)) + flap + arrow(way) + turned_over(18, 34))


def turned_over(x, y):
    """The sign for turning the paper over: an arrow with a loop."""
    loop = [(x, y)]
    for i in range(25):
        angle = pi / 2 - 2 * pi * i / 24
        loop.append((x + 18 + i / 4 - 3 + 10 * cos(angle), y - 10 + 10 * sin(angle)))
    return arrow(loop + [(x + 40, y)], 3)


def tear_strips():
    gap = 0.17
    view = View.centred(lying(0, 4 * D + 3 * gap), 50, CENTRE)
    body = ""
    for k, sideways in enumerate((0.05, -0.04, 0.04, -0.05)):
        near = (3 - k) * (D + gap)
        patch = strip((near + D, 0), (near, 0), sideways, 2 + sideways)
        sides = [side for side, is_torn in (("top", k > 0), ("bottom", k < 3)) if is_torn]
        body += shadow(view, lying(near, near + D, sideways, 2 + sideways), 2)
        body += shown(patch, view, seed=k, torn_sides=sides)
    for k in range(3):
        seam = (3 - k) * (D + gap) - gap / 2
        x, y = view(2.32, seam)
        body += arrow(((x, y - 2), (x + 1, y - 10)), 2.6) + arrow(((x, y + 2), (x - 1, y + 10)), 2.6)
    return scene(body)


def leaf(view, degrees):
    """The right card of a strip, turned up round the line between the two cards."""
    x, z = 1 + cos(radians(degrees)), sin(radians(degrees))
    return Patch((1, D, 0), (x, D, z), (1, 0, 0), (x, 0, z))


def folded_strip():
    view = View.centred(lying(0, D), 43, (60, 60))
    way = curve(view(1.8, 1.1 * D), view(0.28, 1.1 * D, 0.3), -0.42)
    return (shadow(view, lying(0, D, 0, 1)) + dashed(view, lying(0, D, 1, 2))
            + shown(strip((D, 0), (0, 0), 0, 1), view, 1, seed=1)
            + dim(view, lying(0, D, 0.45, 1)) + shown(leaf(view, 128), view, 1, seed=2)
            + arrow(way, 2.6))


def parted_cards():
    body = ""
    for centre, side, left in (((132, 58), "right", 0), ((180, 62), "left", 1)):
        view = View.centred(lying(0, D, 0, 1), 38, centre, turn=-13 if left else -3)
        patch = strip((D, 0), (0, 0), 0, 1)
        body += shadow(view, lying(0, D, 0, 1), 2)
        body += shown(patch, view, 1, seed=1 + left, torn_sides=(side,))
    return body + arrow(((150, 34), (138, 33)), 2.6) + arrow(((162, 35), (174, 37)), 2.6)


def card_set():
    body = ""
    for k in range(8):
        view = View.centred(lying(0, D, 0, 1), 56, (104, 145 - 2.8 * k), turn=-9 + 4 * ((k * 5) % 3 - 1))
        body += shadow(view, lying(0, D, 0, 1), 1.6) if k in (0, 7) else ""
        body += shown(strip((D, 0), (0, 0), 0, 1), view, 1, seed=k)
    return body


def halve_strips():
    return scene(folded_strip() + parted_cards() + card_set()
                 + arrow(curve((164, 88), (146, 118), -0.3), 2.6))


STEPS = (the_sheet, fold_in_half, fold_first_quarter, fold_other_quarter, tear_strips, halve_strips)


def draw(folder):
    for count, step in enumerate(STEPS, start=1):
        output.vector(step(), SIZE, SIZE, folder / f"{count}.png")


def draw_for_help(folder):
    """The same six, without the empty part."""
    for count, step in enumerate(STEPS, start=1):
        output.vector_part(step(), SIZE, SIZE, PANEL_AND_EDGE, folder / f"step{count}.png")
