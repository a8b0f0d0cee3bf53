"""Short ways to write SVG, and its rendering."""

import io
import subprocess

from PIL import Image

from . import palette


def document(width, height, body):
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
            f'viewBox="0 0 {width} {height}">\n{body}\n</svg>\n')


def render(text, width, height):
    """The document as an RGBA image of exactly this many pixels."""
    done = subprocess.run(
        ["rsvg-convert", "--width", str(width), "--height", str(height), "--format", "png"],
        input=text.encode(), stdout=subprocess.PIPE, check=True)
    return Image.open(io.BytesIO(done.stdout)).convert("RGBA")


def number(value):
    """Two decimals at most, so that the text does not depend on the last bits of a float."""
    return f"{value:.2f}".rstrip("0").rstrip(".") if abs(value) >= 0.005 else "0"


def attributes(given):
    return "".join(f' {name.replace("_", "-")}="{value}"' for name, value in given.items())


def rect(x, y, width, height, radius=0, **more):
    return (f'<rect x="{number(x)}" y="{number(y)}" width="{number(width)}" '
            f'height="{number(height)}" rx="{number(radius)}"{attributes(more)}/>')


def circle(x, y, radius, **more):
    return f'<circle cx="{number(x)}" cy="{number(y)}" r="{number(radius)}"{attributes(more)}/>'


def line(x1, y1, x2, y2, **more):
    return (f'<line x1="{number(x1)}" y1="{number(y1)}" x2="{number(x2)}" '
            f'y2="{number(y2)}"{attributes(more)}/>')


def path(d, **more):
    return f'<path d="{d}"{attributes(more)}/>'


def polygon(points, **more):
    joined = " ".join(f"{number(x)},{number(y)}" for x, y in points)
    return f'<polygon points="{joined}"{attributes(more)}/>'


def group(body, **more):
    return f"<g{attributes(more)}>{body}</g>"


def blur(name, deviation):
    """A filter definition; its region is wide enough for any shape of these pictures."""
    return (f'<filter id="{name}" x="-50%" y="-50%" width="200%" height="200%">'
            f'<feGaussianBlur stdDeviation="{deviation}"/></filter>')


def shade(shape_of, deviation_filter, opacity, dx, dy):
    """A soft shadow: the shape that `shape_of(**attributes)` writes, moved and blurred."""
    return group(shape_of(fill=palette.SHADOW, fill_opacity=opacity,
                          filter=f"url(#{deviation_filter})"),
                 transform=f"translate({dx} {dy})")
