#include "viewer/card/card_control.h"

#include "forms/assign.h"

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
constexpr Color kRuledLineOnYellow = FixedColor(199, 203, 190);
constexpr Color kInk = FixedColor(29, 49, 82);
constexpr Color kPaleInk = FixedColor(86, 88, 96);
constexpr Color kHintInk = FixedColor(100, 102, 110);
constexpr Color kRightInk = FixedColor(22, 104, 48);
constexpr Color kWrongInk = FixedColor(168, 28, 28);

Color BannerInk(const Text& banner) {
  if (banner == u"CORRECT") return kRightInk;
  return banner == u"WRONG" ? kWrongInk : kInk;
}

/// A line from edge to edge of the card.
void DrawAcross(Canvas& canvas, const Rect& card, double y, const Color& color) {
  canvas.DrawLine({card.left + 1, y}, {card.Right() - 1, y}, 1, color);
}

}  // namespace

template <class T>
void CardControl::Change(T& member, const T& value) {
  if (Assign(member, value)) Changed(Aspect::kContent);
}

void CardControl::SetCardBanner(const Text& banner) {
  Change(cardBanner_, banner);
}
void CardControl::SetCardColor(const Text& color) {
  Change(cardColor_, color);
}
void CardControl::SetFrontRule(bool on) {
  Change(frontRule_, on);
}
void CardControl::SetFrontLines(bool on) {
  Change(frontLines_, on);
}
void CardControl::SetCardText(const Text& text) {
  Change(cardText_, text);
}
void CardControl::SetCardNumber(const Text& number) {
  Change(cardNumber_, number);
}
void CardControl::SetCardTotal(const Text& total) {
  Change(cardTotal_, total);
}

void CardControl::SetHint(const Text& hint) {
  Change(hint_, hint);
}

void CardControl::SetSpoken(const Text& spoken) {
  Change(spoken_, spoken);
}

Text CardControl::DisplayedText() const {
  return PlainCaption(cardText_);
}

bool CardControl::Hints() const {
  return cardText_.empty() && cardTotal_ == u"0";
}

BodyLayout CardControl::LayoutOfBody(Canvas& canvas, const Rect& body) const {
  const Text text = ShownText();
  const bool large = !text.empty() && !Hints();
  return large ? LayoutBody(canvas, text, body) : LayoutBody(canvas, text, body, kHintPoints);
}

Text CardControl::NumberLine() const {
  if (cardTotal_.empty()) return cardNumber_;
  if (cardNumber_.empty() || cardTotal_ == u"0") return cardTotal_ + u" cards";
  return cardNumber_ + u" of " + cardTotal_;
}

void CardControl::Paint(Canvas& canvas, const Rect& size, double scroll) const {
  const CardLayout card = LayoutOf(size);
  const BodyLayout body = LayoutOfBody(canvas, card.body);
  PaintPaper(canvas, size);
  if (frontLines_) {
    for (const double y : RuledLines(body, card.body, scroll)) {
      DrawAcross(canvas, size, y, Yellow() ? kRuledLineOnYellow : kRuledLine);
    }
  }
  if (frontRule_) {
    DrawAcross(canvas, size, card.headingRule - kRuleSpacing, kHeadingRule);
    DrawAcross(canvas, size, card.headingRule, kHeadingRule);
  }
  PaintBanner(canvas, card.banner);
  PaintNumber(canvas, card.number);
  PaintBody(canvas, card.body, body, scroll);
}

void CardControl::PaintPaper(Canvas& canvas, const Rect& size) const {
  canvas.FillRoundedRect(size, kCornerRadius, Yellow() ? kYellowPaper : kWhitePaper,
                         Yellow() ? kYellowEdge : kWhiteEdge);
}

void CardControl::PaintBanner(Canvas& canvas, const Rect& place) const {
  if (cardBanner_.empty()) return;
  TextStyle style;
  style.points = kBannerPoints;
  style.bold = true;
  style.color = BannerInk(cardBanner_);
  style.alignment = Alignment::kCenter;
  // One line, however long: a banner that is too wide gets smaller.
  while (style.points > kSmallestBody && canvas.TextWidth(cardBanner_, style) > place.width) {
    style.points -= 1;
  }
  canvas.DrawText(place, cardBanner_, style);
}

void CardControl::PaintNumber(Canvas& canvas, const Rect& place) const {
  TextStyle style;
  style.points = kNumberPoints;
  style.color = kPaleInk;
  style.alignment = Alignment::kRight;
  canvas.DrawText(place, NumberLine(), style);
}

void CardControl::PaintBody(Canvas& canvas, const Rect& window, const BodyLayout& body,
                            double scroll) const {
  TextStyle style = body.style;
  style.color = Hints() ? kHintInk : kInk;
  Rect place = body.place;
  place.top -= scroll;
  canvas.Clip(window);
  canvas.DrawText(place, ShownText(), style);
  canvas.Unclip();
}

double CardControl::ScrollRange(Canvas& canvas, const Rect& size) const {
  return LayoutOfBody(canvas, LayoutOf(size).body).scrollRange;
}

Rect CardControl::ScrollArea(const Rect& size) const {
  return LayoutOf(size).body;
}

Text CardControl::Description() const {
  Text description = frontLines_ ? u"Front" : u"Back";
  for (const Text& part : {NumberLine(), cardBanner_, spoken_, ShownText()}) {
    if (!part.empty()) description += u". " + part;
  }
  return description;
}

std::vector<PaintedControl::Property> CardControl::Properties() const {
  return {{"CardBanner", cardBanner_}, {"CardColor", cardColor_}, {"FrontRule", frontRule_},
          {"FrontLines", frontLines_}, {"CardText", cardText_},   {"CardNumber", cardNumber_},
          {"CardTotal", cardTotal_}};
}

}  // namespace tessara
