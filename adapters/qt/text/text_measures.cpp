#include "adapters/qt/text/text_measures.h"

#include "adapters/qt/text/qt_text.h"
#include "adapters/qt/text/text_layout.h"

namespace tessara {

namespace {

/// Everything that a size depends on; the text comes last, so that no two keys are alike.
QString KeyOf(const Text& text, double width, const TextStyle& style) {
  return QStringLiteral("%1 %2 %3 %4 %5\n")
             .arg(width)
             .arg(style.points)
             .arg(style.bold)
             .arg(style.wrap)
             .arg(ToQString(style.family)) +
         ToQString(text);
}

/// What is known by that key, or else what the measuring tells.
template <class Cache, class Measure>
double Remembered(Cache& known, const QString& key, const Measure& measure) {
  if (const double* size = known.object(key)) return *size;
  const double size = measure();
  known.insert(key, new double(size));
  return size;
}

}  // namespace

double TextMeasures::HeightOf(const Text& text, double width, const TextStyle& style) {
  return Remembered(heights_, KeyOf(text, width, style),
                    [&] { return LaidOutText(text, width, style).Height(); });
}

double TextMeasures::WidthOf(const Text& text, const TextStyle& style) {
  constexpr double kEndless = 1e6;
  TextStyle unwrapped = style;
  unwrapped.wrap = false;
  return Remembered(widths_, KeyOf(text, kEndless, unwrapped),
                    [&] { return LaidOutText(text, kEndless, unwrapped).Width(); });
}

void TextMeasures::Forget() {
  heights_.clear();
  widths_.clear();
}

}  // namespace tessara
