#include "viewer/card/card_layout.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "base/text.h"

namespace tessara {

namespace {

constexpr double kMargin = 22;
constexpr double kBannerTop = 9;
constexpr double kBannerHeight = 24;
constexpr double kRuleGap = 6;
constexpr double kNumberHeight = 24;
constexpr double kNumberWidth = 130;
constexpr double kNumberBottom = 4;

/// Largest first.
constexpr double kBodySizes[] = {kLargestBody, 22, 19,           16, 14, kSmallestWithWholeWords,
                                 10.5,         9,  kSmallestBody};

/// A ruled line is a pixel high.
constexpr double kHalfRule = 0.5;

TextStyle BodyStyle(double points) {
  TextStyle style;
  style.points = points;
  style.alignment = Alignment::kCenter;
  style.wrap = true;
  return style;
}

double WidestWord(Canvas& canvas, Text text, const TextStyle& style) {
  std::replace(text.begin(), text.end(), u' ', kLineFeed);
  return canvas.TextWidth(text, style);
}

TextStyle StyleThatFits(Canvas& canvas, const Text& text, const Rect& body) {
  const auto tooLarge = [&](double points) {
    const TextStyle style = BodyStyle(points);
    if (canvas.TextHeight(text, body.width, style) > body.height) return true;
    // Where all lines end between words, all words have room.
    return points > kSmallestWithWholeWords && canvas.BreaksWords(text, body.width, style) &&
           WidestWord(canvas, text, style) > body.width;
  };
  // Most cards are short, and a size that is not tried needs no font.
  if (!tooLarge(kLargestBody)) return BodyStyle(kLargestBody);
  const auto* const found =
      std::partition_point(std::begin(kBodySizes) + 1, std::end(kBodySizes), tooLarge);
  return BodyStyle(found == std::end(kBodySizes) ? kSmallestBody : *found);
}

}  // namespace

CardLayout LayoutOf(const Rect& card) {
  const double inner = card.width - 2 * kMargin;
  const double left = card.left + kMargin;
  CardLayout layout;
  layout.banner = {left, card.top + kBannerTop, inner, kBannerHeight};
  layout.headingRule = layout.banner.Bottom() + kRuleGap;
  layout.number = {card.Right() - kMargin - kNumberWidth,
                   card.Bottom() - kNumberHeight - kNumberBottom, kNumberWidth, kNumberHeight};
  const double bodyTop = layout.headingRule + kRuleGap;
  layout.body = {left, bodyTop, inner, layout.number.top - 2 - bodyTop};
  return layout;
}

BodyLayout LayoutBody(Canvas& canvas, const Text& text, const Rect& body) {
  return LayoutBody(canvas, text, body, StyleThatFits(canvas, text, body).points);
}

BodyLayout LayoutBody(Canvas& canvas, const Text& text, const Rect& body, double points) {
  BodyLayout layout;
  layout.style = BodyStyle(points);
  layout.lineHeight = canvas.LineHeight(layout.style);
  layout.ascent = canvas.Ascent(layout.style);
  const double height = canvas.TextHeight(text, body.width, layout.style);
  layout.place = {body.left, body.top + std::max(0.0, (body.height - height) / 2), body.width,
                  height};
  layout.scrollRange = std::max(0.0, height - body.height);
  return layout;
}

std::vector<double> RuledLines(const BodyLayout& layout, const Rect& body, double scroll) {
  const double ruling = std::max(layout.lineHeight, 1.0);
  const double underText = layout.place.top - scroll + layout.ascent + kHalfRule;
  // The first one leaves half a space below the heading.
  const double highest = body.top + ruling / 2;
  const double first = underText + std::ceil((highest - underText) / ruling) * ruling;
  std::vector<double> lines;
  for (int at = 0; first + at * ruling <= body.Bottom(); ++at) lines.push_back(first + at * ruling);
  return lines;
}

}  // namespace tessara
