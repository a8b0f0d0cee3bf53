#include "viewer/notelet/card_layout.h"

#include <algorithm>
#include <iterator>

namespace tessara {

namespace {

constexpr double kMargin = 22;
constexpr double kBannerTop = 9;
constexpr double kBannerHeight = 24;
constexpr double kRuleGap = 6;
constexpr double kNumberHeight = 24;
constexpr double kNumberWidth = 130;

/// Largest first.
constexpr double kBodySizes[] = {kLargestBody, 22, 19, 16, 14, 12, 10.5, 9, kSmallestBody};

TextStyle BodyStyle(double points) {
  TextStyle style;
  style.points = points;
  style.alignment = Alignment::kCenter;
  style.wrap = true;
  return style;
}

}  // namespace

CardLayout LayoutOf(const Rect& card) {
  const double inner = card.width - 2 * kMargin;
  const double left = card.left + kMargin;
  CardLayout layout;
  layout.banner = {left, card.top + kBannerTop, inner, kBannerHeight};
  layout.headingRule = layout.banner.Bottom() + kRuleGap;
  layout.number = {card.Right() - kMargin - kNumberWidth, card.Bottom() - kNumberHeight - 4,
                   kNumberWidth, kNumberHeight};
  const double bodyTop = layout.headingRule + kRuleGap;
  layout.body = {left, bodyTop, inner, layout.number.top - 2 - bodyTop};
  return layout;
}

TextStyle BodyStyleFor(Canvas& canvas, const Text& text, const Rect& body) {
  const auto tooLarge = [&](double points) {
    return canvas.TextHeight(text, body.width, BodyStyle(points)) > body.height;
  };
  const auto* const found =
      std::partition_point(std::begin(kBodySizes), std::end(kBodySizes), tooLarge);
  return BodyStyle(found == std::end(kBodySizes) ? kSmallestBody : *found);
}

Rect BodyTextPlace(Canvas& canvas, const Text& text, const TextStyle& style, const Rect& body) {
  const double height = canvas.TextHeight(text, body.width, style);
  const double top = body.top + std::max(0.0, (body.height - height) / 2);
  return {body.left, top, body.width, std::max(height, 1.0)};
}

}  // namespace tessara
