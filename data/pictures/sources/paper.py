"""A printed sheet in space: strips of two cards, seen from above at a slant.

x runs along a strip from 0 to 2, y away from the viewer, z up; a card is 1 by DEPTH.
The front of the sheet is white, its back yellow, so that a fold shows which side is up.
"""

from math import atan2, cos, hypot, pi, radians, sin

from . import noise, palette as p
from .svg import group, number, path, polygon

DEPTH = 0.707


class View:
    """Turns points in space into points of the picture."""

    def __init__(self, origin, unit, turn=-9.0, pitch=52.0):
        self.origin, self.unit = origin, unit
        self.turn, self.pitch = radians(turn), radians(pitch)

    @classmethod
    def centred(cls, points, unit, centre, **angles):
        """A view in which the given points lie round the centre."""
        seen = [cls((0, 0), unit, **angles)(*point) for point in points]
        xs, ys = [x for x, _ in seen], [y for _, y in seen]
        return cls((centre[0] - (min(xs) + max(xs)) / 2, centre[1] - (min(ys) + max(ys)) / 2), unit, **angles)

    def __call__(self, x, y, z=0.0):
        across = x * cos(self.turn) - y * sin(self.turn)
        away = x * sin(self.turn) + y * cos(self.turn)
        up = away * sin(self.pitch) + z * cos(self.pitch)
        return self.origin[0] + self.unit * across, self.origin[1] - self.unit * up


def between(first, second, share):
    return tuple(a + (b - a) * share for a, b in zip(first, second))


class Patch:
    """A flat piece of the sheet: corners in space, top left and right, then bottom left and right,
    as they lie when the front is read."""

    def __init__(self, top_left, top_right, bottom_left, bottom_right):
        self.corners = top_left, top_right, bottom_left, bottom_right

    def at(self, u, v):
        top = between(self.corners[0], self.corners[1], u)
        return between(top, between(self.corners[2], self.corners[3], u), v)

    def outline(self, view):
        return [view(*self.at(u, v)) for u, v in ((0, 0), (1, 0), (1, 1), (0, 1))]


def area(points):
    return sum(x1 * y2 - x2 * y1 for (x1, y1), (x2, y2) in zip(points, points[1:] + points[:1]))


def writing(patch, view, cards, seed, colour):
    """A few bars for each card's text."""
    body = ""
    (x1, y1), (x2, y2) = view(*patch.at(0.5, 0)), view(*patch.at(0.5, 1))
    stroke = min(0.055 * view.unit, 0.1 * hypot(x2 - x1, y2 - y1))
    for card in range(cards):
        for row in range(3):
            reach = 0.42 + 0.36 * noise.value(card, row, 8, 8, seed) if row < 2 else 0.3
            v = 0.3 + 0.2 * row
            x1, y1 = view(*patch.at((card + 0.14) / cards, v))
            x2, y2 = view(*patch.at((card + 0.14 + reach) / cards, v))
            body += path(f"M{number(x1)} {number(y1)}L{number(x2)} {number(y2)}")
    return group(body, stroke=colour, stroke_width=number(stroke), stroke_linecap="round",
                 fill="none")


def torn(patch, view, start, end, seed):
    """Points along an edge of the patch, uneven as torn paper is; start and end in its own measure."""
    points = []
    for i in range(25):
        off = 0.05 * (noise.value(i, 0, 64, 1, seed) - 0.5) if 0 < i < 24 else 0
        u, v = between(start, end, i / 24)
        points.append(view(*patch.at(u + (off if start[0] == end[0] else 0),
                                     v + (off if start[1] == end[1] else 0))))
    return points


SIDES = {"top": ((0, 0), (1, 0)), "right": ((1, 0), (1, 1)),
         "bottom": ((1, 1), (0, 1)), "left": ((0, 1), (0, 0))}


def rim(patch, view, torn_sides, seed):
    """The outline of the patch, with the named sides torn."""
    points = []
    for side, (start, end) in SIDES.items():
        points += torn(patch, view, start, end, seed + len(side)) if side in torn_sides else \
            [view(*patch.at(*start)), view(*patch.at(*end))]
    return points


def shown(patch, view, cards=2, seed=1, shaded=0.0, torn_sides=()):
    """The patch as it is seen, with its writing and the line between its cards."""
    outline = rim(patch, view, torn_sides, seed * 7 + 3)
    front = area(patch.outline(view)) > 0
    fill, edge = (p.PAPER, p.PAPER_EDGE) if front else (p.YELLOW, p.YELLOW_EDGE)
    if shaded:
        fill = p.hexed(p.mix(p.rgb(fill), p.rgb(p.SHADOW), shaded))
    body = polygon(outline, fill=fill, stroke=edge, stroke_width=0.9, stroke_linejoin="round")
    for card in range(1, cards):
        (x1, y1), (x2, y2) = view(*patch.at(card / cards, 0)), view(*patch.at(card / cards, 1))
        body += path(f"M{number(x1)} {number(y1)}L{number(x2)} {number(y2)}", stroke=edge, stroke_width=0.9,
                     stroke_dasharray="2.5 2")
    return body + writing(patch, view, cards, seed, p.INK_SOFT if front else "#bda45c")


def strip(far, near, left=0.0, right=2.0):
    """The patch between two edges, each given as (y, z)."""
    return Patch((left, *far), (right, *far), (left, *near), (right, *near))


def shadow(view, points, grow=3.0):
    """A soft shadow on the table under the given outline."""
    moved = [(x + grow, y + grow) for x, y in (view(*point) for point in points)]
    return polygon(moved, fill=p.SHADOW, fill_opacity=0.26, filter="url(#soft)")


def dashed(view, points):
    """Where the paper lay before."""
    flat = [view(*point) for point in points]
    return polygon(flat, fill="none", stroke=p.INK_SOFT, stroke_width=1, stroke_dasharray="3 3",
                   stroke_linejoin="round")


def arrow(points, width=3.2):
    """A curve through the given points of the picture that ends in a head."""
    joined = "L".join(f"{number(x)} {number(y)}" for x, y in points)
    (x1, y1), (x2, y2) = points[-2], points[-1]
    way = atan2(y2 - y1, x2 - x1)
    size = width * 2.5

    def corner(angle, reach):
        return x2 + reach * cos(way + angle), y2 + reach * sin(way + angle)

    head = (corner(0, size), corner(pi * 0.68, size * 0.85), corner(-pi * 0.68, size * 0.85))
    return (path("M" + joined, fill="none", stroke=p.CLAY, stroke_width=width, stroke_linecap="round",
                 stroke_linejoin="round")
            + polygon(head, fill=p.CLAY, stroke=p.CLAY, stroke_width=1, stroke_linejoin="round"))


def curve(start, end, bulge):
    """Points of a bow from one place of the picture to another; a positive bulge goes to the left of the way."""
    (x1, y1), (x2, y2) = start, end
    middle = (x1 + x2) / 2 + bulge * (y2 - y1), (y1 + y2) / 2 - bulge * (x2 - x1)
    points = []
    for i in range(17):
        t = i / 16
        points.append(tuple((1 - t) ** 2 * a + 2 * t * (1 - t) * m + t * t * b
                            for a, m, b in zip(start, middle, end)))
    return points


def lifted(hinge, length, degrees):
    """The free edge (y, z) of a flap that stands at an angle, 0 pointing away from the viewer."""
    return hinge + length * cos(radians(degrees)), length * sin(radians(degrees))
