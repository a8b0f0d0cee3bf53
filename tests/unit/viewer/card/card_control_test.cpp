#include "viewer/card/card_control.h"

#include <algorithm>
#include <cmath>
#include <doctest/doctest.h>
#include <map>

#include "tests/support/fakes/fake_canvas.h"

namespace tessara::test {

namespace {

constexpr Rect kCard = {0, 0, 457, 241};

FakeCanvas Painted(const CardControl& card, double scroll = 0) {
  FakeCanvas canvas;
  card.Paint(canvas, kCard, scroll);
  return canvas;
}

const FakeCanvas::DrawnText* FindText(const FakeCanvas& canvas, TextView text) {
  const auto found = std::find_if(canvas.texts.begin(), canvas.texts.end(),
                                  [text](const auto& drawn) { return drawn.text == text; });
  return found == canvas.texts.end() ? nullptr : &*found;
}

bool Shows(const CardControl& card, TextView text) {
  return FindText(Painted(card), text) != nullptr;
}

double Channel(std::uint8_t value) {
  const double share = value / 255.0;
  return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double Luminance(const Color& color) {
  return 0.2126 * Channel(color.red) + 0.7152 * Channel(color.green) + 0.0722 * Channel(color.blue);
}

double Contrast(const Color& one, const Color& other) {
  const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
  return (light + 0.05) / (dark + 0.05);
}

bool Reddish(const Color& color) {
  return color.red > color.green + 40 && color.red > color.blue + 40;
}

long CountRules(const FakeCanvas& canvas, bool reddish) {
  return std::count_if(canvas.lines.begin(), canvas.lines.end(),
                       [reddish](const auto& line) { return Reddish(line.color) == reddish; });
}

}  // namespace

TEST_CASE("a card never written to is an empty white front") {
  const CardControl card{"NoteletCtl1"};
  const FakeCanvas canvas = Painted(card);
  CHECK(card.CardColor() == u"Q");
  CHECK(card.FrontRule());
  CHECK(card.FrontLines());
  CHECK(card.CardBanner().empty());
  REQUIRE(canvas.fills.size() == 1);
  CHECK(Contrast(canvas.fills[0].color, FixedColor(255, 255, 255)) < 1.1);
  CHECK(card.Description() == u"Front");
}

TEST_CASE("Q is white and A yellow, and the ink reads well on both") {
  for (const TextView color : {u"Q", u"A"}) {
    CardControl card{"NoteletCtl1"};
    card.SetCardColor(Text(color));
    card.SetCardText(u"body");
    card.SetCardBanner(u"banner");
    card.SetCardNumber(u"7");
    card.SetCardTotal(u"190");
    const FakeCanvas canvas = Painted(card);
    const Color paper = canvas.fills.at(0).color;
    CHECK((paper.blue < 220) == (color == u"A"));
    CHECK(paper.red > 240);
    CHECK(paper.green > 225);
    REQUIRE(canvas.texts.size() == 3);
    for (const auto& drawn : canvas.texts) {
      CHECK(drawn.style.color.role == Color::Role::kFixed);
      CHECK(Contrast(drawn.style.color, paper) >= 4.5);
      CHECK(drawn.style.points >= 8);
    }
  }
}

TEST_CASE("each decoration of the front is switched by itself") {
  for (const bool rule : {false, true}) {
    for (const bool ruledLines : {false, true}) {
      CardControl card{"NoteletCtl1"};
      card.SetFrontLines(ruledLines);
      card.SetFrontRule(rule);
      const FakeCanvas canvas = Painted(card);
      CHECK(CountRules(canvas, true) == (rule ? 2 : 0));
      CHECK((CountRules(canvas, false) > 3) == ruledLines);
      if (!ruledLines) CHECK(CountRules(canvas, false) == 0);
    }
  }
}

TEST_CASE("the banner is one line at the top, read back as written, apart from the text") {
  CardControl card{"NoteletCtl1"};
  const Text banner = u"This quiz is complete, please return to study mode & rest";
  card.SetCardBanner(banner);
  card.SetCardText(u"one");
  card.SetCardText(u"two");
  CHECK(card.CardBanner() == banner);
  FakeCanvas canvas = Painted(card);
  const auto* drawn = FindText(canvas, banner);
  REQUIRE(drawn != nullptr);
  CHECK_FALSE(drawn->style.wrap);
  CHECK(drawn->style.alignment == Alignment::kCenter);
  CHECK(drawn->place.Bottom() < kCard.height / 3);
  CHECK(canvas.TextWidth(banner, drawn->style) <= drawn->place.width);
  card.SetCardBanner(u"");
  CHECK(Painted(card).texts.size() == Painted(CardControl("NoteletCtl1")).texts.size());
}

TEST_CASE("number and total stand at the bottom right") {
  struct Case {
    TextView number, total, shown;
  };
  const Case cases[] = {{u"7", u"190", u"7 of 190"}, {u"1", u"1", u"1 of 1"},
                        {u"2", u"1", u"2 of 1"},     {u"7", u"", u"7"},
                        {u"", u"190", u"190 cards"}, {u"5", u"0", u"0 cards"}};
  for (const Case& c : cases) {
    CardControl card{"NoteletCtl1"};
    card.SetCardNumber(Text(c.number));
    card.SetCardTotal(Text(c.total));
    const FakeCanvas canvas = Painted(card);
    const auto* drawn = FindText(canvas, c.shown);
    REQUIRE(drawn != nullptr);
    CHECK(drawn->style.alignment == Alignment::kRight);
    CHECK(drawn->place.top > kCard.height * 3 / 4);
    CHECK(card.Description() == u"Front. " + Text(c.shown));
  }
}

TEST_CASE("a doubled ampersand displays as one") {
  CardControl card{"NoteletCtl1"};
  card.SetCardText(u"salt && pepper &&&& more");
  CHECK(Shows(card, u"salt & pepper && more"));
  CHECK(card.CardText() == u"salt && pepper &&&& more");
}

TEST_CASE("the body is clipped to its place, and scrolls by what does not fit") {
  CardControl card{"NoteletCtl1"};
  FakeCanvas measure;
  card.SetCardText(u"short");
  CHECK(card.ScrollRange(measure, kCard) == 0);
  Text lines;
  for (int line = 0; line < 60; ++line) lines += u"line\r\n";
  card.SetCardText(lines);
  const double range = card.ScrollRange(measure, kCard);
  const Rect area = card.ScrollArea(kCard);
  CHECK(range > 0);
  const auto bodyAt = [&](double scroll) { return Painted(card, scroll).texts.back(); };
  REQUIRE(bodyAt(0).clip);
  CHECK(bodyAt(0).clip->top == area.top);
  CHECK(bodyAt(0).clip->Bottom() == area.Bottom());
  CHECK(bodyAt(0).place.top == area.top);
  CHECK(bodyAt(range).place.Bottom() == doctest::Approx(area.Bottom()));
  CHECK_FALSE(Painted(card).clip);
}

TEST_CASE("a screen reader says side, number, banner and text") {
  CardControl card{"NoteletCtl1"};
  card.SetCardNumber(u"7");
  card.SetCardTotal(u"190");
  card.SetCardText(u"Bread && butter");
  CHECK(card.Description() == u"Front. 7 of 190. Bread & butter");
  card.SetFrontLines(false);
  card.SetFrontRule(false);
  card.SetCardBanner(u"CORRECT");
  CHECK(card.Description() == u"Back. 7 of 190. CORRECT. Bread & butter");
}

TEST_CASE("the seven properties can be read by name") {
  CardControl card{"NoteletCtl1"};
  card.SetCardBanner(u"banner");
  card.SetCardColor(u"A");
  card.SetFrontRule(false);
  card.SetCardText(u"a && b");
  card.SetCardNumber(u"3");
  card.SetCardTotal(u"4");
  std::map<std::string, std::variant<bool, Text>> values;
  for (const auto& property : card.Properties()) values[property.name] = property.value;
  const std::map<std::string, std::variant<bool, Text>> expected = {{"CardBanner", Text(u"banner")},
                                                                    {"CardColor", Text(u"A")},
                                                                    {"FrontRule", false},
                                                                    {"FrontLines", true},
                                                                    {"CardText", Text(u"a && b")},
                                                                    {"CardNumber", Text(u"3")},
                                                                    {"CardTotal", Text(u"4")}};
  CHECK(values == expected);
}

TEST_CASE("a right answer is told in green and a wrong one in red, and both read well") {
  for (const TextView paper : {u"Q", u"A"}) {
    for (const bool right : {true, false}) {
      CardControl card{"NoteletCtl1"};
      card.SetCardColor(Text(paper));
      card.SetCardBanner(right ? u"CORRECT" : u"WRONG");
      const FakeCanvas canvas = Painted(card);
      const Color ink = FindText(canvas, card.CardBanner())->style.color;
      CHECK(Contrast(ink, canvas.fills.at(0).color) >= 4.5);
      CHECK(Reddish(ink) == !right);
      CHECK((ink.green > ink.red + 40 && ink.green > ink.blue + 40) == right);
    }
  }
}

TEST_CASE("a deck without cards shows a faint hint, which is no text of the card") {
  CardControl card{"NoteletCtl1"};
  const Text hint = u"File > Create/Edit Card";
  card.SetHint(hint);
  CHECK_FALSE(Shows(card, hint));
  card.SetCardTotal(u"0");
  for (const TextView paper : {u"Q", u"A"}) {
    card.SetCardColor(Text(paper));
    const FakeCanvas canvas = Painted(card);
    const auto* drawn = FindText(canvas, hint);
    REQUIRE(drawn != nullptr);
    CHECK(Contrast(drawn->style.color, canvas.fills.at(0).color) >= 4.5);
    CHECK(Contrast(drawn->style.color, canvas.fills.at(0).color) < 6);
  }
  CHECK(card.CardText().empty());
  CHECK(card.Description() == u"Front. 0 cards. " + hint);
  card.SetCardText(u"front");
  CHECK_FALSE(Shows(card, hint));
  card.SetCardText(u"");
  card.SetCardTotal(u"1");
  CHECK_FALSE(Shows(card, hint));
  CHECK(card.Description() == u"Front. 1 cards");
}

}  // namespace tessara::test
