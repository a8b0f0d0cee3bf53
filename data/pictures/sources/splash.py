"""The start-up picture: emblem, name and version on warm paper, with a strewn edge of stones."""

from . import emblem, letters, noise, output, palette as p, version
from .svg import document, group, rect

SIZE = (414, 196)
STONE = 14


def strewn_stones():
    """Stones along the lower edge, fewer and paler further up."""
    body = ""
    columns, rows = SIZE[0] // STONE + 1, SIZE[1] // STONE
    for row in range(rows):
        for column in range(columns):
            nearness = (row - rows + 3.6 + 2.2 * (column / columns) ** 3) / 4
            chance = noise.value(column, row, 64, 64, 3)
            if nearness <= 0 or chance > nearness:
                continue
            fill = p.HONEY if noise.value(column, row, 64, 64, 8) > 0.84 else p.INK
            body += rect(column * STONE + 1, row * STONE + 1, STONE - 2, STONE - 2, 2.2, fill=fill,
                         fill_opacity=f"{0.05 + 0.2 * nearness * (0.5 + chance / 2):.3f}")
    return body


def draw(folder):
    width, height = SIZE
    body = rect(0, 0, width, height, fill=p.PAPER) + strewn_stones()
    body += group(emblem.stack(), transform="translate(26 24) scale(1.08)")
    body += letters.word("TESSARA", 184, 96, 30, 4.2, p.INK, 1.1)
    body += letters.word(f"version {version.SHORT}", 186, 124, 13, 1.5, "#5b7094", 0.5)
    body += rect(0.5, 0.5, width - 1, height - 1, fill="none", stroke=p.PAPER_EDGE)
    output.vector(document(width, height, body), width, height, folder / "splash.png")
