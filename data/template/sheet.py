"""The card sheet: its lengths in millimetres, and the sheet as a flat OpenDocument spreadsheet.

The grid stands in the middle of the page, so a cell falls on the spot of its mirror image when
the sheet is turned over, whatever the paper. A printed sheet is folded at the quarters of its
height and torn there; no card cell crosses a fold of A4 or of Letter.
"""

A4 = (210.0, 297.0)
LETTER = (215.9, 279.4)
PAPER = A4

# What no printer of ours can print on, at each edge.
UNPRINTABLE = 6.0

CARD_WIDTH = 96.0
CARD_HEIGHT = 58.5
MIDDLE_COLUMN = 6.0  # between the two cards of a row
MIDDLE_ROW = 16.0  # at the first fold
OUTER_ROW = 8.0  # at the other two; holds the page line

COLUMNS = (CARD_WIDTH, MIDDLE_COLUMN, CARD_WIDTH)
ROWS = (CARD_HEIGHT, OUTER_ROW, CARD_HEIGHT, MIDDLE_ROW, CARD_HEIGHT, OUTER_ROW, CARD_HEIGHT)

PAGE_LINE = (5, 2)  # row and column, counted from 0


def is_card(row, column):
    return row % 2 == 0 and column % 2 == 0


def style_of(row, column):
    if (row, column) == PAGE_LINE:
        return "pageline"
    return "card" if is_card(row, column) else "gutter"


def cell(row, column):
    return f'<table:table-cell table:style-name="{style_of(row, column)}"/>'


def row_of_cells(row):
    cells = "".join(cell(row, column) for column in range(len(COLUMNS)))
    return f'<table:table-row table:style-name="row{ROWS[row]}">{cells}</table:table-row>'


def column_style(width):
    return (f'<style:style style:name="column{width}" style:family="table-column">'
            f'<style:table-column-properties style:column-width="{width}mm"/></style:style>')


def row_style(height):
    return (f'<style:style style:name="row{height}" style:family="table-row"><style:table-row-properties '
            f'style:row-height="{height}mm" style:use-optimal-row-height="false"/></style:style>')


def cell_style(name, vertical, points):
    return (f'<style:style style:name="{name}" style:family="table-cell" style:parent-style-name="Default">'
            f'<style:table-cell-properties fo:wrap-option="wrap" style:vertical-align="{vertical}" '
            f'style:text-align-source="fix"/><style:paragraph-properties fo:text-align="center"/>'
            f'<style:text-properties fo:font-size="{points}pt"/></style:style>')


def automatic_styles():
    widths = "".join(column_style(width) for width in sorted(set(COLUMNS)))
    heights = "".join(row_style(height) for height in sorted(set(ROWS)))
    cells = cell_style("card", "middle", 12) + cell_style("pageline", "middle", 10) + cell_style("gutter", "middle", 10)
    width, height = PAPER
    page = (f'<style:page-layout style:name="paper"><style:page-layout-properties '
            f'fo:page-width="{width}mm" fo:page-height="{height}mm" style:print-orientation="portrait" '
            f'fo:margin="5mm" style:table-centering="both" style:scale-to="100%" '
            f'style:print="objects charts drawings zero-values"/></style:page-layout>')
    table = ('<style:style style:name="sheet" style:family="table" style:master-page-name="Default">'
             '<style:table-properties table:display="true"/></style:style>')
    return widths + heights + cells + page + table


def flat_document():
    """The whole spreadsheet as text."""
    columns = "".join(f'<table:table-column table:style-name="column{width}"/>' for width in COLUMNS)
    rows = "".join(row_of_cells(row) for row in range(len(ROWS)))
    return f"""<?xml version="1.0" encoding="UTF-8"?>
<office:document office:version="1.2"
    office:mimetype="application/vnd.oasis.opendocument.spreadsheet"
    xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
    xmlns:style="urn:oasis:names:tc:opendocument:xmlns:style:1.0"
    xmlns:fo="urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0"
    xmlns:table="urn:oasis:names:tc:opendocument:xmlns:table:1.0"
    xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0">
<office:styles><style:style style:name="Default" style:family="table-cell">
<style:text-properties style:font-name="Arial" fo:font-family="Arial" fo:font-size="10pt"/></style:style></office:styles>
<office:automatic-styles>{automatic_styles()}</office:automatic-styles>
<office:master-styles><style:master-page style:name="Default" style:page-layout-name="paper">
<style:header style:display="false"/><style:footer style:display="false"/></style:master-page></office:master-styles>
<office:body><office:spreadsheet><table:table table:name="Cards" table:style-name="sheet"
    table:print-ranges="Cards.A1:Cards.C7">{columns}{rows}</table:table></office:spreadsheet></office:body>
</office:document>
"""


def check_lengths():
    """Raises where the grid would leave a paper, or a card cross one of its folds."""
    for paper_width, paper_height in (A4, LETTER):
        assert sum(COLUMNS) <= paper_width - 2 * UNPRINTABLE, "wider than the printable area"
        assert sum(ROWS) <= paper_height - 2 * UNPRINTABLE, "higher than the printable area"
        assert MIDDLE_ROW / 2 + CARD_HEIGHT <= paper_height / 4 <= MIDDLE_ROW / 2 + CARD_HEIGHT + OUTER_ROW, \
            "a card crosses a fold"
