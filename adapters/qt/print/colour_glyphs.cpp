#include "adapters/qt/print/colour_glyphs.h"

#include <QGlyphRun>
#include <QRawFont>
#include <QTextLayout>
#include <algorithm>
#include <iterator>

namespace tessara {

namespace {

/// The tables by which a font of OpenType has colours: bitmaps, pictures, layers.
constexpr const char* kColourTables[] = {"CBDT", "sbix", "COLR"};

bool HasColours(const QRawFont& font) {
  return std::any_of(std::begin(kColourTables), std::end(kColourTables),
                     [&font](const char* table) { return !font.fontTable(table).isEmpty(); });
}

/// The run on a ground of no colour, in the dots of the printer.
QImage PictureOf(const QGlyphRun& run, const QRectF& bounds) {
  QImage picture(bounds.size().toSize(), QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawGlyphRun(-bounds.topLeft(), run);
  return picture;
}

}  // namespace

void DrawColourGlyphs(QPainter& painter, QPointF start, const QString& line) {
  QTextLayout layout(line, painter.font(), painter.device());
  layout.beginLayout();
  const QTextLine whole = layout.createLine();
  layout.endLayout();
  const QPointF origin = start - QPointF(0, whole.ascent());
  for (const QGlyphRun& run : layout.glyphRuns()) {
    const QRectF bounds = run.boundingRect().toAlignedRect();
    if (bounds.isEmpty() || !HasColours(run.rawFont())) continue;
    painter.drawImage(bounds.translated(origin), PictureOf(run, bounds));
  }
}

}  // namespace tessara
