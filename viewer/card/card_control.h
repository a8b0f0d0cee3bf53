#pragma once

#include "deck/card_display.h"
#include "forms/controls/painted_control.h"
#include "viewer/card/card_layout.h"

namespace tessara {

/// What the card's colour is by its property.
inline constexpr TextView kWhiteCard = u"Q";
inline constexpr TextView kYellowCard = u"A";

/// The large card: a ruled index card that shows a text, a banner line, its number and the total.
/// Long texts shrink to a smallest readable size and beyond that scroll. Its colours are those of
/// paper and ink, whatever the desktop's palette.
class CardControl : public PaintedControl, public CardDisplay {
 public:
  using PaintedControl::PaintedControl;
  [[nodiscard]] const Text& CardBanner() const override { return cardBanner_; }
  void SetCardBanner(const Text& banner) override;
  void SetCardColor(const Text& color) override;
  void SetFrontRule(bool on) override;
  void SetFrontLines(bool on) override;
  void SetCardText(const Text& text) override;
  void SetCardNumber(const Text& number) override;
  void SetCardTotal(const Text& total) override;
  // What was written last. Only tests ask; the program itself asks for the banner alone.
  [[nodiscard]] const Text& CardColor() const { return cardColor_; }
  [[nodiscard]] bool FrontRule() const { return frontRule_; }
  [[nodiscard]] bool FrontLines() const { return frontLines_; }
  [[nodiscard]] const Text& CardText() const { return cardText_; }
  [[nodiscard]] const Text& CardNumber() const { return cardNumber_; }
  [[nodiscard]] const Text& CardTotal() const { return cardTotal_; }
  /// What a card of a deck without cards says instead of a text, as a text that is to be shown
  /// literally: faintly, and to a screen reader.
  void SetHint(const Text& hint);
  /// What only a screen reader says, behind the banner, as a text that is to be shown literally.
  void SetSpoken(const Text& spoken);
  /// The body as it reads: doubled ampersands single.
  [[nodiscard]] Text DisplayedText() const;

  [[nodiscard]] bool TakesFocus() const override { return true; }
  void Paint(Canvas& canvas, const Rect& size, double scroll) const override;
  [[nodiscard]] double ScrollRange(Canvas& canvas, const Rect& size) const override;
  [[nodiscard]] Rect ScrollArea(const Rect& size) const override;
  [[nodiscard]] Text Description() const override;
  [[nodiscard]] std::vector<Property> Properties() const override;

 private:
  template <class T>
  void Change(T& member, const T& value);
  void PaintPaper(Canvas& canvas, const Rect& size) const;
  void PaintBanner(Canvas& canvas, const Rect& place) const;
  void PaintNumber(Canvas& canvas, const Rect& place) const;
  void PaintBody(Canvas& canvas, const Rect& window, const BodyLayout& body, double scroll) const;
  [[nodiscard]] bool Hints() const;
  [[nodiscard]] Text ShownText() const { return Hints() ? hint_ : DisplayedText(); }
  [[nodiscard]] BodyLayout LayoutOfBody(Canvas& canvas, const Rect& body) const;
  [[nodiscard]] bool Yellow() const { return cardColor_ == kYellowCard; }
  [[nodiscard]] Text NumberLine() const;

  Text cardBanner_;
  Text spoken_;
  Text cardColor_{kWhiteCard};
  bool frontRule_ = true;
  bool frontLines_ = true;
  Text cardText_;
  Text cardNumber_;
  Text cardTotal_;
  Text hint_;
};

}  // namespace tessara
