#pragma once

#include <vector>

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
/// Down to this size no word is broken: a text with a long word gets smaller instead.
inline constexpr double kSmallestWithWholeWords = 12;

/// Of a hint, and of the ruling of a card without a text.
inline constexpr double kHintPoints = 14;

/// How a text is set in the body.
struct BodyLayout {
  TextStyle style;
  double lineHeight = 0;
  double ascent = 0;  ///< from the top of a line to the feet of its letters
  /// Of the whole text before scrolling: in the middle of the body where it fits, else from the
  /// body's top and higher than the body.
  Rect place;
  double scrollRange = 0;  ///< 0 where all of the text stands in the body
};

/// Takes the largest size at which all of the text stands in the body; the smallest where none
/// does.
[[nodiscard]] BodyLayout LayoutBody(Canvas& canvas, const Text& text, const Rect& body);
/// The same with letters of that size.
[[nodiscard]] BodyLayout LayoutBody(Canvas& canvas, const Text& text, const Rect& body,
                                    double points);

/// Heights of the ruled lines inside the body, from its top: their middles. They are a line of
/// text apart, and each line of the text has its feet on one, whatever its size and however far it
/// is scrolled.
[[nodiscard]] std::vector<double> RuledLines(const BodyLayout& layout, const Rect& body,
                                             double scroll);

}  // namespace tessara
