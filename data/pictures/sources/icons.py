"""The icons of the program and of its decks, for an icon theme and as one .ico file."""

from . import emblem, output, palette as p, svg
from .svg import blur, document, path, rect

SIZES = (16, 22, 24, 32, 48, 64, 128, 256)
ICO_SIZES = (16, 32, 48, 256)
PROGRAM = "tessara"
DECK = "application-x-tessara-deck"


def program_large():
    return document(128, 128, emblem.stack())


def program_middle():
    return document(128, 128, emblem.stack(faint=False))


def program_small(size):
    """Two cards on whole pixels: below 32 pixels neither turned edges nor nine stones can be told apart."""
    unit = 2 if size < 22 else 3
    width, height = size - 2, size - 5
    top = size - height - 1
    body = rect(3, 1.5, size - 6, 8, 1.5, fill=p.INK, stroke=p.INK_DEEP, stroke_width=1)
    body += rect(2.5, 3 if size < 22 else 3.5, size - 5, 8, 1.5, fill=p.HONEY, stroke="#b98f2e", stroke_width=0.8)
    body += rect(1.5, top + 0.5, width - 1, height - 1, 1.5, fill=p.PAPER, stroke=p.INK_SOFT, stroke_width=1)
    left = (size - 3 * unit) // 2
    letter_top = top + (height - 3 * unit) // 2
    body += rect(left, letter_top, 3 * unit, unit, fill=p.INK)
    body += rect(left + unit, letter_top + unit, unit, unit, fill=p.INK)
    body += rect(left + unit, letter_top + 2 * unit, unit, unit, fill=p.HONEY)
    return document(size, size, body)


def program(size):
    return program_small(size) if size < 32 else program_middle() if size < 64 else program_large()


def deck(size):
    """A page with a turned corner and the emblem's letter."""
    thick = max(2.0, 128 / size)
    page = "M26 6H78L106 34V116Q106 122 100 122H26Q20 122 20 116V12Q20 6 26 6Z"
    body = f"<defs>{blur('soft', 2)}</defs>"
    body += path(page, fill=p.SHADOW, fill_opacity=0.35, transform="translate(1 2)", filter="url(#soft)")
    body += path(page, fill=p.PAPER, stroke=p.INK_SOFT, stroke_width=thick)
    body += path("M78 6V28Q78 34 84 34H106Z", fill=p.RULE, stroke=p.INK_SOFT, stroke_width=thick,
                 stroke_linejoin="round")
    side, gap = (16, 4) if size >= 48 else (19, 0 if size < 32 else 2)
    left = 63 - (3 * side + 2 * gap) / 2
    body += emblem.stones(left, 48, side, gap, faint=size >= 64)
    return document(128, 128, body)


def draw(data):
    theme = data / "icons/hicolor"
    small = {}
    for size in SIZES:
        small[size] = svg.render(program(size), size, size)
        output.png(small[size], theme / f"{size}x{size}/apps/{PROGRAM}.png")
        output.png(svg.render(deck(size), size, size), theme / f"{size}x{size}/mimetypes/{DECK}.png")
    output.text(program_large(), theme / f"scalable/apps/{PROGRAM}.svg")
    output.text(deck(128), theme / f"scalable/mimetypes/{DECK}.svg")
    output.ico([small[size] for size in ICO_SIZES], data / "Notelet.ico")
