#pragma once

#include "forms/canvas.h"

namespace tessara {

/// Where things stand on a card. Pixels of the program.
struct CardLayout {
  Rect banner;
  double headingRule = 0;  ///< y of the rule below the banner
  Rect body;
  Rect number;
};

[[nodiscard]] CardLayout LayoutOf(const Rect& card);

/// Sizes of the body's text, in points, from a single word down to the smallest that reads well.
inline constexpr double kLargestBody = 26;
inline constexpr double kSmallestBody = 8;

/// The style with the largest size at which all of the text stands in the body; the smallest
/// size where none does.
[[nodiscard]] TextStyle BodyStyleFor(Canvas& canvas, const Text& text, const Rect& body);

/// The place of the text in the body: in the middle where it fits, else from the top and higher
/// than the body.
[[nodiscard]] Rect BodyTextPlace(Canvas& canvas, const Text& text, const TextStyle& style,
                                 const Rect& body);

}  // namespace tessara
