#include "adapters/qt/text/text_measures.h"

namespace tessara {

namespace {

/// What is known by that key, or else what the measuring tells.
template <class Cache, class Key, class Measure>
double Remembered(Cache& known, const Key& key, const Measure& measure) {
  if (const double* size = known.object(key)) return *size;
  const double size = measure();
  known.insert(key, new double(size));
  return size;
}

}  // namespace

TextMeasures::Key TextMeasures::KeyOf(const Text& text, double width, const TextStyle& style) {
  return {text, width, style.family, style.points, style.bold, style.alignment, style.wrap};
}

const LaidOutText& TextMeasures::LaidOut(const Text& text, double width, const TextStyle& style) {
  const Key key = KeyOf(text, width, style);
  if (!laidOut_.contains(key)) laidOut_.insert(key, new LaidOutText(text, width, style));
  return *laidOut_.object(key);
}

bool TextMeasures::BreaksWords(const Text& text, double width, const TextStyle& style) {
  return LaidOut(text, width, style).BreaksWords();
}

double TextMeasures::HeightOf(const Text& text, double width, const TextStyle& style) {
  return Remembered(heights_, KeyOf(text, width, style),
                    [&] { return LaidOut(text, width, style).Height(); });
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
  laidOut_.clear();
}

}  // namespace tessara
