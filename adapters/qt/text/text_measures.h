#pragma once

#include <QCache>
#include <QString>

#include "forms/canvas.h"

namespace tessara {

/// Sizes of texts, kept while the same card is painted and scrolled: laying out a long text is what
/// painting a card costs.
class TextMeasures {
 public:
  [[nodiscard]] double HeightOf(const Text& text, double width, const TextStyle& style);
  /// Width of the widest line of a text that is not wrapped.
  [[nodiscard]] double WidthOf(const Text& text, const TextStyle& style);
  /// Another font is on the desktop.
  void Forget();

 private:
  using Known = QCache<QString, double>;

  Known heights_{64};
  Known widths_{64};
};

}  // namespace tessara
