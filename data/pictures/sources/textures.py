"""Backdrops that are materials: the colour of each point is worked out, with noise for the grain.

A painter gets a point of the tile in pixels of the plain size and returns three channels.
"""

from math import cos, pi, sin

from PIL import Image

from . import noise
from .palette import mix, rgb

TURN = 2 * pi


def paint(painter, width, height, scale):
    """The tile at `scale` times its plain size, each pixel the mean of a few points."""
    grid = 3 if scale == 1 else 2
    step = 1 / (scale * grid)
    rows = []
    for y in range(height * scale):
        for x in range(width * scale):
            points = [painter(x / scale + (i + 0.5) * step, y / scale + (j + 0.5) * step)
                      for i in range(grid) for j in range(grid)]
            rows.append(tuple(round(sum(c) / len(points)) for c in zip(*points)))
    image = Image.new("RGB", (width * scale, height * scale))
    image.putdata(rows)
    return image


def smooth(low, high, value):
    """0 below `low`, 1 above `high`, an S curve between."""
    t = max(0.0, min(1.0, (value - low) / (high - low)))
    return t * t * (3 - 2 * t)


def desert(x, y):
    """Rows of dunes, each with a lit crest that fades into shade."""
    u, v = x / 160, y / 120
    wave = (0.055 * sin(TURN * (u + 0.1)) + 0.03 * sin(TURN * (2 * u + v))
            + 0.02 * sin(TURN * (3 * u - v + 0.3)))
    depth = (3 * (v + wave)) % 1.0
    lit = smooth(0.0, 0.06, depth) * (1 - 0.9 * smooth(0.06, 1.0, depth))
    ripple = 0.5 + 0.5 * sin(TURN * (15 * v + 9 * wave + 2 * sin(TURN * u) * 0.25))
    grain = noise.value(x, y, 160, 120, 5)
    return mix(mix(rgb("#cdb083"), rgb("#e3cda4"), lit), rgb("#fff4d8"),
               0.10 * ripple * lit + 0.05 * grain)


def stucco(x, y):
    """Plaster lit from the upper left."""
    def height(a, b):
        return noise.layered(a / 100, b / 100, 12, 12, 21, 3)
    slope = height(x - 0.7, y - 0.7) - height(x + 0.7, y + 0.7)
    return mix(rgb("#d9d2c3"), rgb("#f3eee2"), max(0.0, min(1.0, 0.55 - 2.6 * slope)))


def granite(x, y):
    u, v = x / 64, y / 64
    cloud = noise.layered(u, v, 4, 4, 31, 3)
    crystal = noise.layered(u, v, 24, 24, 41, 2)
    dark = smooth(0.62, 0.78, noise.layered(u, v, 21, 21, 51, 2))
    light = smooth(0.64, 0.8, noise.layered(u, v, 19, 19, 61, 2))
    stone = mix(rgb("#8e949b"), rgb("#a9adb1"), 0.5 * cloud + 0.5 * crystal)
    return mix(mix(stone, rgb("#6d747d"), 0.7 * dark), rgb("#c9c8c4"), 0.7 * light)


def old_blue(x, y):
    """A blue cloth binding, worn in places."""
    u, v = x / 64, y / 64
    worn = smooth(0.2, 0.8, noise.layered(u, v, 8, 8, 71, 3))
    weave = 0.5 + 0.25 * sin(TURN * x / 4) + 0.25 * sin(TURN * y / 4)
    grain = noise.layered(u, v, 32, 32, 81, 1)
    return mix(mix(rgb("#546c92"), rgb("#617a9f"), worn), rgb("#8499b8"),
               0.12 * weave + 0.16 * grain)


def soft_noise(x, y):
    u, v = x / 64, y / 64
    return mix(rgb("#9aa6b4"), rgb("#b4bdc8"), noise.layered(u, v, 16, 16, 91, 3))


def curtain(x, y):
    """Folds of a heavy curtain: two wide ones to a tile, swaying a little."""
    sway = x + 0.9 * sin(TURN * y / 64)
    fold = 0.5 + 0.36 * cos(TURN * sway / 32) + 0.14 * cos(TURN * sway / 64 + 1.2)
    thread = noise.value(x, y / 4, 64, 16, 101)
    return mix(mix(rgb("#7d5560"), rgb("#a67a82"), fold), rgb("#c9a4a6"), 0.10 * thread)


BRICK_WIDTH, BRICK_HEIGHT, MORTAR = 32, 16, 1.5


def brick(x, y):
    row = int(y // BRICK_HEIGHT) % 4
    shifted = (x + (BRICK_WIDTH / 2 if row % 2 else 0)) % 64
    column = int(shifted // BRICK_WIDTH)
    inside_x, inside_y = shifted % BRICK_WIDTH, y % BRICK_HEIGHT
    edge = min(inside_x, BRICK_WIDTH - inside_x, inside_y, BRICK_HEIGHT - inside_y)
    tone = noise.value(column + 2 * row, 0, 8, 1, 112)
    grain = noise.layered(x / 64, y / 64, 24, 24, 121, 2)
    face = mix(mix(rgb("#a77264"), rgb("#b38172"), tone), rgb("#cf9c8a"), 0.35 * grain)
    lit = smooth(4.0, 0.5, inside_y) * 0.18
    return mix(rgb("#bfae9f"), mix(face, rgb("#e0b5a4"), lit), smooth(MORTAR - 0.7, MORTAR + 0.5, edge))


PLANK = 16
JOINTS = (10, 42, 26, 58)


def wood_floor(x, y):
    """Four planks to a tile, each with one joint and a grain of its own."""
    row = int(y // PLANK) % 4
    along = (x - JOINTS[row]) % 64
    inside = y % PLANK
    u, v = x / 64, y / 64
    bend = noise.layered(u, v, 2, 8, 131 + row, 2)
    grain = 0.5 + 0.5 * sin(TURN * (3.2 * inside / PLANK + 2.2 * bend + 0.3 * row))
    fibre = noise.layered(u, v, 6, 64, 141, 1)
    tone = noise.value(row, 0, 4, 1, 152)
    face = mix(mix(rgb("#b38a5d"), rgb("#c39b6d"), tone), rgb("#d3b084"), 0.28 * grain + 0.3 * fibre)
    gap = min(inside, PLANK - inside, along, 64 - along)
    return mix(rgb("#9a7751"), face, smooth(0.2, 1.1, gap))


def spheres(x, y):
    """Glass beads in two offset rows on a slightly darker ground."""
    ground = rgb("#6f89ae")
    for centre_x, centre_y in ((16, 16), (48, 48)):
        dx, dy = (x - centre_x) / 13, (y - centre_y) / 13
        inside = dx * dx + dy * dy
        if inside < 1:
            light = max(0.0, 1 - ((dx + 0.35) ** 2 + (dy + 0.4) ** 2) / 1.9)
            bead = mix(rgb("#5b769f"), rgb("#a3b9d6"), light)
            return mix(bead, ground, smooth(0.9, 1.0, inside))
        shade = ((x - centre_x - 2.5) / 15) ** 2 + ((y - centre_y - 3) / 15) ** 2
        ground = mix(ground, rgb("#5d769b"), 1 - smooth(0.5, 1.0, shade))
    return ground


def bars(x, y):
    """Rounded upright bars, two widths."""
    del y
    at = x % 32
    wide = at < 22
    within = at / 22 if wide else (at - 22) / 10
    roundness = sin(pi * within) ** 0.6
    low, high = ("#8595aa", "#b3bfcd") if wide else ("#8f98a2", "#c9c6b6")
    return mix(rgb(low), rgb(high), roundness)
