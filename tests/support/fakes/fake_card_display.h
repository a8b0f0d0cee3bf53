#pragma once

#include <string>
#include <vector>

#include "deck/card_display.h"

namespace tessara::test {

/// A card that remembers what was written to it, and in which order.
class FakeCardFace : public CardDisplay {
 public:
  Text banner;
  Text CardColor;
  Text CardText;
  Text CardNumber;
  Text CardTotal;
  bool FrontRule = false;
  bool FrontLines = false;
  std::vector<std::string> writes;  ///< names of the properties

  [[nodiscard]] const Text& CardBanner() const override { return banner; }
  void SetCardBanner(const Text& value) override { Write("CardBanner", banner, value); }
  void SetCardColor(const Text& value) override { Write("CardColor", CardColor, value); }
  void SetFrontRule(bool on) override { Write("FrontRule", FrontRule, on); }
  void SetFrontLines(bool on) override { Write("FrontLines", FrontLines, on); }
  void SetCardText(const Text& value) override { Write("CardText", CardText, value); }
  void SetCardNumber(const Text& value) override { Write("CardNumber", CardNumber, value); }
  void SetCardTotal(const Text& value) override { Write("CardTotal", CardTotal, value); }

 private:
  template <class T>
  void Write(const char* property, T& value, const T& written) {
    writes.emplace_back(property);
    value = written;
  }
};

}  // namespace tessara::test
