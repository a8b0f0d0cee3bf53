#include "adapters/qt/text/text_measures.h"

#include "adapters/qt/text/qt_text.h"
#include "adapters/qt/text/text_layout.h"

namespace tessara {

namespace {

/// Everything that the height depends on; the text comes last, so that no two keys are alike.
QString KeyOf(const Text& text, double width, const TextStyle& style) {
  return QStringLiteral("%1 %2 %3 %4 %5\n")
             .arg(width)
             .arg(style.points)
             .arg(style.bold)
             .arg(style.wrap)
             .arg(ToQString(style.family)) +
         ToQString(text);
}

}  // namespace

double TextMeasures::HeightOf(const Text& text, double width, const TextStyle& style) {
  const QString key = KeyOf(text, width, style);
  if (const double* known = heights_.object(key)) return *known;
  const double height = LaidOutText(text, width, style).Height();
  heights_.insert(key, new double(height));
  return height;
}

}  // namespace tessara
