#include "viewer/notelet/NoteletCtl.h"

#include <algorithm>

#include "viewer/notelet/card_layout.h"

namespace tessara {

namespace {

constexpr double kCornerRadius = 7;
constexpr double kRuleSpacing = 3;
constexpr double kBannerPoints = 10;
constexpr double kNumberPoints = 9;

// Paper and ink. Ink on either paper has a contrast well above 7 to 1.
constexpr Color kWhitePaper = FixedColor(252, 250, 244);
constexpr Color kWhiteEdge = FixedColor(207, 199, 180);
constexpr Color kYellowPaper = FixedColor(248, 234, 180);
constexpr Color kYellowEdge = FixedColor(211, 189, 118);
constexpr Color kHeadingRule = FixedColor(214, 140, 118);
constexpr Color kRuledLine = FixedColor(205, 217, 233);
constexpr Color kRuledLineOnYellow = FixedColor(216, 211, 190);
constexpr Color kInk = FixedColor(29, 49, 82);
constexpr Color kPaleInk = FixedColor(86, 88, 96);
constexpr Color kBannerInk = FixedColor(158, 42, 28);

}  // namespace

template <class T>
void NoteletCtl::Assign(T& member, const T& value) {
  if (member == value) return;
  member = value;
  Changed(Aspect::kContent);
}

void NoteletCtl::SetCardBanner(const Text& banner) {
  Assign(cardBanner_, banner);
}
void NoteletCtl::SetCardColor(const Text& color) {
  Assign(cardColor_, color);
}
void NoteletCtl::SetFrontRule(bool on) {
  Assign(frontRule_, on);
}
void NoteletCtl::SetFrontLines(bool on) {
  Assign(frontLines_, on);
}
void NoteletCtl::SetCardText(const Text& text) {
  Assign(cardText_, text);
}
void NoteletCtl::SetCardNumber(const Text& number) {
  Assign(cardNumber_, number);
}
void NoteletCtl::SetCardTotal(const Text& total) {
  Assign(cardTotal_, total);
}

Text NoteletCtl::DisplayedText() const {
  return PlainCaption(cardText_);
}

Text NoteletCtl::NumberLine() const {
  const bool none = cardNumber_.empty() || cardTotal_.empty() || cardTotal_ == u"0";
  return none ? Text() : cardNumber_ + u" of " + cardTotal_;
}

void NoteletCtl::Paint(Canvas& canvas, const Rect& size, double scroll) const {
  PaintPaper(canvas, size);
  PaintDecorations(canvas, size);
  PaintBanner(canvas, size);
  PaintNumber(canvas, size);
  PaintBody(canvas, size, scroll);
}

void NoteletCtl::PaintPaper(Canvas& canvas, const Rect& size) const {
  const bool yellow = cardColor_ == u"A";
  canvas.FillRoundedRect(size, kCornerRadius, yellow ? kYellowPaper : kWhitePaper,
                         yellow ? kYellowEdge : kWhiteEdge);
}

void NoteletCtl::PaintDecorations(Canvas& canvas, const Rect& size) const {
  const CardLayout layout = LayoutOf(size);
  const auto line = [&](double y, double width, const Color& color) {
    canvas.DrawLine({size.left + 1, y}, {size.Right() - 1, y}, width, color);
  };
  if (frontLines_) {
    // The lines run under the lines of the text, so that it stands on them at every size.
    const Text text = DisplayedText();
    const TextStyle style = BodyStyleFor(canvas, text, layout.body);
    const double pitch = std::max(canvas.LineHeight(style), 4.0);
    const double first = BodyTextPlace(canvas, text, style, layout.body).top;
    const double above = static_cast<int>((first - layout.body.top) / pitch) * pitch;
    for (double y = first - above + pitch - 1; y < layout.body.Bottom() + 1; y += pitch) {
      line(y, 1, cardColor_ == u"A" ? kRuledLineOnYellow : kRuledLine);
    }
  }
  if (frontRule_) {
    line(layout.headingRule - kRuleSpacing, 1, kHeadingRule);
    line(layout.headingRule, 1, kHeadingRule);
  }
}

void NoteletCtl::PaintBanner(Canvas& canvas, const Rect& size) const {
  if (cardBanner_.empty()) return;
  TextStyle style;
  style.points = kBannerPoints;
  style.bold = true;
  style.color = kBannerInk;
  style.alignment = Alignment::kCenter;
  const Rect place = LayoutOf(size).banner;
  // One line, however long: a banner that is too wide gets smaller.
  while (style.points > kSmallestBody && canvas.TextWidth(cardBanner_, style) > place.width) {
    style.points -= 1;
  }
  canvas.DrawText(place, cardBanner_, style);
}

void NoteletCtl::PaintNumber(Canvas& canvas, const Rect& size) const {
  TextStyle style;
  style.points = kNumberPoints;
  style.color = kPaleInk;
  style.alignment = Alignment::kRight;
  canvas.DrawText(LayoutOf(size).number, NumberLine(), style);
}

void NoteletCtl::PaintBody(Canvas& canvas, const Rect& size, double scroll) const {
  const Rect body = LayoutOf(size).body;
  const Text text = DisplayedText();
  TextStyle style = BodyStyleFor(canvas, text, body);
  Rect place = BodyTextPlace(canvas, text, style, body);
  style.color = kInk;
  place.top -= scroll;
  canvas.Clip(body);
  canvas.DrawText(place, text, style);
  canvas.Unclip();
}

double NoteletCtl::ScrollRange(Canvas& canvas, const Rect& size) const {
  const Rect body = LayoutOf(size).body;
  const Text text = DisplayedText();
  const TextStyle style = BodyStyleFor(canvas, text, body);
  return std::max(0.0, canvas.TextHeight(text, body.width, style) - body.height);
}

Rect NoteletCtl::ScrollArea(const Rect& size) const {
  return LayoutOf(size).body;
}

Text NoteletCtl::Description() const {
  Text description = frontLines_ ? u"Front" : u"Back";
  if (!NumberLine().empty()) description += u" of card " + NumberLine();
  if (!cardBanner_.empty()) description += u". " + cardBanner_;
  if (!cardText_.empty()) description += u". " + DisplayedText();
  return description;
}

std::vector<PaintedControl::Property> NoteletCtl::Properties() const {
  return {{"CardBanner", cardBanner_}, {"CardColor", cardColor_}, {"FrontRule", frontRule_},
          {"FrontLines", frontLines_}, {"CardText", cardText_},   {"CardNumber", cardNumber_},
          {"CardTotal", cardTotal_}};
}

}  // namespace tessara
