#pragma once

#include <QFont>
#include <QSizeF>
#include <QString>

namespace tessara {

/// Where a caption stands in its room: from the top of it, or in the middle of its height.
enum class CaptionPlace { kFromTop, kInMiddle };

/// A caption made to fit its control: on several lines, narrower or smaller, but whole.
struct FittedCaption {
  QString text;  ///< with line feeds where it wraps, accelerator marks in place
  QFont font;
  /// How far above its place it is to be drawn, in pixels: a font with much room above its letters
  /// and below needs not all of that.
  double rise = 0;
  /// How far its ink goes on below the room, in pixels.
  double overhang = 0;
};

/// `caption` holds "&" marks. `room` is what the control leaves for the text, in pixels. Letters
/// get narrower only where the width is short, and smaller only where nothing else helps. One that
/// stands at the top may go on below the room by `mostOverhang`.
[[nodiscard]] FittedCaption FitCaption(const QString& caption, const QFont& font, QSizeF room,
                                       CaptionPlace place, double mostOverhang = 0);

}  // namespace tessara
