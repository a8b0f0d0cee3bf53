#pragma once

#include <QCache>

#include "adapters/qt/text/text_layout.h"
#include "forms/canvas.h"

namespace tessara {

/// Texts as they were laid out, and their sizes, kept while the same card is painted and scrolled:
/// laying out a text is what painting a card costs.
class TextMeasures {
 public:
  /// To be drawn at once: the next call may throw it away.
  [[nodiscard]] const LaidOutText& LaidOut(const Text& text, double width, const TextStyle& style);
  [[nodiscard]] bool BreaksWords(const Text& text, double width, const TextStyle& style);
  [[nodiscard]] double HeightOf(const Text& text, double width, const TextStyle& style);
  /// Width of the widest line of a text that is not wrapped.
  [[nodiscard]] double WidthOf(const Text& text, const TextStyle& style);
  /// Another font is on the desktop.
  void Forget();

 private:
  /// Everything that a layout depends on.
  struct Key {
    Text text;
    double width;
    Text family;
    double points;
    bool bold;
    Alignment alignment;
    bool wrap;
    bool operator==(const Key&) const = default;
    friend std::size_t qHash(const Key& key, std::size_t seed) {
      return qHashMulti(seed, QStringView(key.text), key.width, key.points, key.bold);
    }
  };
  [[nodiscard]] static Key KeyOf(const Text& text, double width, const TextStyle& style);

  QCache<Key, double> heights_{64};
  QCache<Key, double> widths_{64};
  QCache<Key, LaidOutText> laidOut_{8};
};

}  // namespace tessara
