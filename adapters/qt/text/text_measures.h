#pragma once

#include <QCache>
#include <QString>

#include "forms/canvas.h"

namespace tessara {

/// Heights of wrapped texts, kept while the same card is painted and scrolled: laying out a long
/// text is what painting a card costs.
class TextMeasures {
 public:
  [[nodiscard]] double HeightOf(const Text& text, double width, const TextStyle& style);
  /// Another font is on the desktop.
  void Forget() { heights_.clear(); }

 private:
  QCache<QString, double> heights_{64};
};

}  // namespace tessara
