"""The colours that all pictures share."""

PAPER = "#fcfaf4"
PAPER_SHADE = "#efe9db"
PAPER_EDGE = "#cfc7b4"
YELLOW = "#f8eab4"
YELLOW_SHADE = "#efdc98"
YELLOW_EDGE = "#d3bd76"
HONEY = "#e0b44c"
INK = "#2b4876"
INK_DEEP = "#1d3152"
INK_SOFT = "#7f95b6"
RULE = "#c3d0e2"
CLAY = "#c26f55"
CLAY_SOFT = "#e3b9a8"
DESK = "#dde5ee"
DESK_EDGE = "#c2cede"
SHADOW = "#14233d"


def rgb(colour):
    """The three channels, 0 to 255, of a colour written as #rrggbb."""
    return tuple(int(colour[i:i + 2], 16) for i in (1, 3, 5))


def mix(first, second, share):
    """The colour that holds `share` (0 to 1) of the second colour; channel triples."""
    return tuple(a + (b - a) * share for a, b in zip(first, second))


def hexed(channels):
    return "#" + "".join(f"{round(max(0, min(255, c))):02x}" for c in channels)
