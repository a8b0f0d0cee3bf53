#include <QGlyphRun>
#include <QRawFont>
#include <QTextLayout>
#include <doctest/doctest.h>

#include "adapters/qt/text/fonts_ahead.h"

using namespace tessara;

namespace {

QString FontOfFirst(const QString& text) {
  QTextLayout layout(text, QFont(QStringLiteral("Inter")));
  layout.beginLayout();
  layout.createLine();
  layout.endLayout();
  return layout.glyphRuns().first().rawFont().familyName();
}

}  // namespace

TEST_CASE("Emoji on screen are in colour, letters in their own font") {
  ReadFontConfiguration();
  CHECK(FontOfFirst(QStringLiteral("\U0001F400")) == "Noto Color Emoji");
  CHECK(FontOfFirst(QStringLiteral("word 7")) == "Inter");
}
