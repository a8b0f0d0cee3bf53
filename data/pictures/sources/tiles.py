"""Backdrops that are patterns: drawn as vectors on a tile whose edges meet.

A tile is drawn nine times, moved by its own size each way, so that whatever leaves it on one side
comes in on the other.
"""

from . import noise
from .palette import hexed, mix, rgb
from .svg import blur, circle, document, group, line, path, polygon, rect


def repeating(width, height, ground, body, defs=""):
    copies = "".join(f'<use href="#tile" x="{dx * width}" y="{dy * height}"/>'
                     for dx in (-1, 0, 1) for dy in (-1, 0, 1))
    return document(width, height, f'<defs>{defs}<g id="tile">{body}</g></defs>'
                    + rect(-1, -1, width + 2, height + 2, fill=ground) + copies)


def mosaic():
    """Glazed stones in ink blue, told apart by little more than their joints: the program's own pattern."""
    stone, count, gap = 24, 4, 1.6
    body = ""
    for row in range(count):
        for column in range(count):
            x, y, side = column * stone + gap / 2, row * stone + gap / 2, stone - gap
            cool = mix(rgb("#7389a8"), rgb("#7d93b2"), noise.value(column, row, count, count, 7))
            fill = mix(cool, rgb("#8f9aa8"), 0.45 * noise.value(column, row, count, count, 19))
            body += rect(x + 0.3, y + 0.7, side, side, 3, fill="#5f7697", fill_opacity=0.6)
            body += rect(x, y, side, side, 3, fill=hexed(fill))
            body += path(f"M{x + 3:.2f} {y + 0.7:.2f}H{x + side - 3:.2f}", stroke="#ffffff", stroke_width=0.9,
                         stroke_opacity=0.13, stroke_linecap="round")
    return repeating(96, 96, "#6c83a4", body)


def digital():
    """Traces and pads of a circuit board, all but flat."""
    traces = ("M0 12H18L26 20V40L34 48H64", "M12 64V52L20 44V30", "M40 0V14L48 22H64",
              "M0 22H6L12 28V36", "M52 64V58L44 50", "M32 64V60L28 56", "M56 34V40", "M34 8V28L42 36H50")
    # Traces end where another one goes on beyond the edge of the tile.
    more = ("M64 12H58", "M12 0V6", "M40 64V58L36 54", "M0 48H4", "M52 0V6", "M32 0V4")
    pads = ((20, 30), (12, 36), (44, 50), (28, 56), (56, 34), (56, 40), (50, 36), (34, 8), (58, 12),
            (12, 6), (36, 54), (4, 48), (52, 6), (32, 4))
    body = group("".join(path(d) for d in traces + more), fill="none", stroke="#678f99",
                 stroke_width=1.4, stroke_linejoin="round")
    body += "".join(circle(x, y, 2, fill="#557d87", stroke="#789fa7", stroke_width=1.1)
                    for x, y in pads)
    return repeating(64, 64, "#557d87", body)


def strand(x1, y1, x2, y2):
    """A piece of round wire."""
    return "".join(line(x1, y1, x2, y2, stroke=colour, stroke_width=width)
                   for colour, width in (("#77828f", 5.6), ("#a3adb8", 4), ("#bac2cb", 1.4)))


def chain_link():
    """Two families of wires that pass over and under each other in turn."""
    corners = [(x, y) for x in (0, 32) for y in (0, 32)]
    shade = "".join(line(x + 1.5, y + 2.5, x + 33.5, y + 34.5) + line(x + 33.5, y + 2.5, x + 1.5, y + 34.5)
                    for x, y in corners)
    body = group(shade, stroke="#78838f", stroke_width=5, filter="url(#soft)")
    body += "".join(strand(x, y, x + 32, y + 32) for x, y in corners)
    body += "".join(strand(x + 32, y, x, y + 32) for x, y in corners)
    # Where the first family comes out on top again.
    body += "".join(strand(x - 5, y - 5, x + 5, y + 5) for x, y in corners)
    return repeating(64, 64, "#8792a0", body, blur("soft", 1))


def neon_grid():
    def lines(**more):
        return group(line(-8, 32, 72, 32) + line(32, -8, 32, 72), **more)
    body = lines(stroke="#7fb4d6", stroke_width=5, stroke_opacity=0.28, filter="url(#glow)")
    body += lines(stroke="#83b2d0", stroke_width=1.2, stroke_opacity=0.75)
    defs = '<filter id="glow" filterUnits="userSpaceOnUse" x="-32" y="-32" width="128" height="128">' \
           '<feGaussianBlur stdDeviation="3"/></filter>'
    # The lines stand still under the nine copies but for their ends, so one copy is enough.
    return document(64, 64, f"<defs>{defs}</defs>" + rect(0, 0, 64, 64, fill="#33486b") + body)


def network():
    nodes = ((10, 12), (38, 6), (56, 28), (26, 32), (8, 46), (44, 52))
    links = ((0, 1, 0, 0), (1, 2, 0, 0), (0, 3, 0, 0), (1, 3, 0, 0), (2, 3, 0, 0), (3, 4, 0, 0), (3, 5, 0, 0),
             (2, 5, 0, 0), (4, 5, 0, 0), (4, 0, 0, 64), (5, 1, 0, 64), (5, 4, 64, 0), (2, 0, 64, 0),
             (5, 0, 64, 64))
    body = ""
    for first, second, dx, dy in links:
        (x1, y1), (x2, y2) = nodes[first], nodes[second]
        body += line(x1, y1, x2 + dx, y2 + dy, stroke="#98a9bf", stroke_width=1)
    body += "".join(circle(x, y, 2.8, fill="#aebccf", stroke="#7f94b0", stroke_width=1) for x, y in nodes)
    return repeating(64, 64, "#8599b3", body)


def ohio_star():
    """The quilt block of that name: nine patches, four of them quartered, with a border between blocks."""
    cloth, star, heart = "#e2d8c2", "#a3afc2", "#d8c697"
    body = rect(8, 8, 48, 48, fill=cloth)
    for column, row in ((1, 0), (0, 1), (2, 1), (1, 2)):
        x, y = 8 + 16 * column, 8 + 16 * row
        middle = (x + 8, y + 8)
        if column == 1:
            pairs = (((x, y), (x, y + 16)), ((x + 16, y), (x + 16, y + 16)))
        else:
            pairs = (((x, y), (x + 16, y)), ((x, y + 16), (x + 16, y + 16)))
        body += "".join(polygon((first, second, middle), fill=star) for first, second in pairs)
    body += rect(24, 24, 16, 16, fill=heart)
    stitches = "".join(line(8, at, 56, at) + line(at, 8, at, 56) for at in (8, 24, 40, 56))
    body += group(stitches, stroke="#b8ab8e", stroke_width=0.7, stroke_dasharray="2 2")
    return repeating(64, 64, "#d4c9b2", body)


def paper_grid():
    fine = "".join(line(at, -8, at, 72) + line(-8, at, 72, at) for at in range(4, 64, 8))
    bold = "".join(line(at, -8, at, 72) + line(-8, at, 72, at) for at in (12.5, 44.5))
    return document(64, 64, rect(0, 0, 64, 64, fill="#f2ede0")
                    + group(fine, stroke="#c9d3df", stroke_width=1, transform="translate(0.5 0.5)")
                    + group(bold, stroke="#b7c3d3", stroke_width=1))


def stripes():
    """Slanting stripes; the smallest tile."""
    body = "".join(polygon(((at, -2), (at + 8, -2), (at - 12, 18), (at - 20, 18)), fill="#a3b3c6")
                   for at in (2, 18, 34))
    return document(16, 16, rect(0, 0, 16, 16, fill="#94a6bc") + body)


def threads():
    """Plain weave: threads of 8 pixels, each going over one and under the next."""
    def thread(x, y, across, tone):
        dark, pale = ("#a59f92", "#b2ac9f") if across else ("#9aa2ab", "#a7afb8")
        width, height = (9.4, 7) if across else (7, 9.4)
        left, top = x + 4 - width / 2, y + 4 - height / 2
        body = rect(left, top, width, height, 2.4, fill=hexed(mix(rgb(dark), rgb(pale), tone)), stroke="none")
        for share in (0.33, 0.66):
            if across:
                body += line(left + 1.5, top + height * share, left + width - 1.5, top + height * share)
            else:
                body += line(left + width * share, top + 1.5, left + width * share, top + height - 1.5)
        return group(body, stroke="#6f747a", stroke_width=0.5, stroke_opacity=0.3)

    body = ""
    for row in range(8):
        for column in range(8):
            across = (row + column) % 2 == 0
            tone = noise.value(row if across else column, 3 * across, 8, 8, 17)
            body += thread(8 * column, 8 * row, across, tone)
    return repeating(64, 64, "#868a8e", body)


def soft_grid():
    """Cushions with a light upper and a shaded lower edge."""
    body = ""
    for x in (0, 32):
        for y in (0, 32):
            body += rect(x + 2.5, y + 3.5, 28, 28, 5, fill="#8c9bae", filter="url(#soft)")
            body += rect(x + 1.5, y + 1.5, 28, 28, 5, fill="#dde4ec", filter="url(#soft)")
            body += rect(x + 2, y + 2, 28, 28, 5, fill="#b7c3d1")
    return repeating(64, 64, "#a9b6c6", body, blur("soft", 1.4))
