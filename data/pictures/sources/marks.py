"""Small pictures inside windows: the envelope of the About box, the decoration of the deck information."""

from . import output, palette as p
from .svg import blur, circle, document, group, line, path, rect


def envelope():
    shape = rect(3, 7.5, 26, 18, 2.5, fill=p.SHADOW, fill_opacity=0.35, filter="url(#soft)",
                 transform="translate(0.6 1.2)")
    shape += rect(3, 7.5, 26, 18, 2.5, fill=p.PAPER, stroke=p.INK, stroke_width=1.4)
    shape += path("M4 24.8L13 16.6M28 24.8L19 16.6", stroke=p.INK_SOFT, stroke_width=1.2, fill="none")
    shape += path("M3.6 8.8L14.2 17.6Q16 19 17.8 17.6L28.4 8.8", fill=p.YELLOW, stroke=p.INK, stroke_width=1.4,
                  stroke_linejoin="round", stroke_linecap="round")
    return document(32, 32, f"<defs>{blur('soft', 0.9)}</defs>" + shape)


def information():
    def card(x, y, turn, fill, edge):
        shade = rect(x + 0.6, y + 1.4, 46, 33, 3.5, fill=p.SHADOW, fill_opacity=0.3, filter="url(#soft)")
        return group(shade + rect(x, y, 46, 33, 3.5, fill=fill, stroke=edge), transform=f"rotate({turn} 32 32)")

    body = f"<defs>{blur('soft', 1.2)}</defs>"
    body += card(8, 13, -9, p.INK, p.INK_DEEP) + card(8, 15, 5, p.HONEY, "#b98f2e")
    body += card(6, 19, 0, p.PAPER, p.PAPER_EDGE)
    body += "".join(line(12, y, right, y, stroke=p.RULE, stroke_width=2, stroke_linecap="round")
                    for y, right in ((28, 40), (35, 36), (42, 32)))
    body += circle(47, 45, 11.5, fill=p.INK, stroke=p.PAPER, stroke_width=2)
    body += circle(47, 39.6, 1.8, fill="#ffffff") + rect(45.5, 43, 3, 8.6, 1.5, fill="#ffffff")
    return document(64, 64, body)


def draw(folder):
    output.vector(envelope(), 32, 32, folder / "about_mail.png")
    output.vector(information(), 64, 64, folder / "info.png")
