#pragma once

#include <QFont>
#include <QSizeF>
#include <QString>

namespace tessara {

/// A caption made to fit its control: narrower, smaller or on several lines, but whole.
struct FittedCaption {
  QString text;  ///< with line feeds where it wraps, accelerator marks in place
  QFont font;
};

/// `caption` holds "&" marks. `room` is what the control leaves for the text, in pixels.
[[nodiscard]] FittedCaption FitCaption(const QString& caption, const QFont& font, QSizeF room);

}  // namespace tessara
