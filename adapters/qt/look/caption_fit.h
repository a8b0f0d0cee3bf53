#pragma once

#include <QFont>
#include <QSizeF>
#include <QString>

#include "forms/controls/control.h"

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

/// How much of the control's width controls in front of it cover, in twips from its right edge, at
/// half its height: a caption that goes on would be cut there.
[[nodiscard]] int CoveredWidth(const Control& control);

/// How much room is free below the control, in twips, up to 45: the ink of a high font may hang
/// down there where nothing is in its way.
[[nodiscard]] int FreeHeightBelow(const Control& control);

}  // namespace tessara
