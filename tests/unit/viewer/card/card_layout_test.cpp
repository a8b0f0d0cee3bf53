#include "viewer/card/card_layout.h"

#include <cmath>
#include <doctest/doctest.h>
#include <random>

#include "base/utf8.h"
#include "tests/support/fakes/fake_canvas.h"

namespace tessara::test {

namespace {

constexpr Rect kCard = {0, 0, 457, 241};
constexpr int kMostCharacters = 444;

/// Words of one to twenty letters, now and then a line break, cut at the length.
Text RandomText(std::mt19937& random, std::size_t length) {
  Text text;
  while (text.size() < length) {
    for (auto letters = 1 + random() % 20; letters > 0; --letters) {
      text += static_cast<char16_t>(u'a' + random() % 26);
    }
    text += random() % 12 == 0 ? Text(kLineBreak) : u" ";
  }
  text.resize(length);
  return text;
}

Text Repeated(TextView part, int times) {
  Text text;
  for (int at = 0; at < times; ++at) text += part;
  return text;
}

/// All of the text is on show, or can be scrolled into sight, and is never too small.
void CheckCanBeRead(const Text& text) {
  FakeCanvas canvas;
  const Rect body = LayoutOf(kCard).body;
  const BodyLayout layout = LayoutBody(canvas, text, body);
  CAPTURE(ToUtf8(text));
  CHECK(layout.style.points >= kSmallestBody);
  CHECK(layout.style.points <= kLargestBody);
  CHECK(layout.place.height == canvas.TextHeight(text, body.width, layout.style));
  CHECK(layout.place.top >= body.top);
  CHECK(layout.place.Bottom() - layout.scrollRange <= body.Bottom() + 0.001);
  if (layout.scrollRange > 0) {
    CHECK(layout.style.points == kSmallestBody);
    CHECK(layout.place.top == body.top);
  }
}

/// Counts how often it is asked for a text's width.
class CountingCanvas : public FakeCanvas {
 public:
  int widths = 0;
  double TextWidth(const Text& text, const TextStyle& style) override {
    ++widths;
    return FakeCanvas::TextWidth(text, style);
  }
  bool BreaksWords(const Text& text, double width, const TextStyle& style) override {
    const int before = widths;
    const bool breaks = FakeCanvas::BreaksWords(text, width, style);
    widths = before;
    return breaks;
  }
};

}  // namespace

TEST_CASE("banner, body and number have places of their own on the card") {
  const CardLayout layout = LayoutOf(kCard);
  CHECK(layout.banner.top >= 0);
  CHECK(layout.banner.Bottom() < layout.headingRule);
  CHECK(layout.headingRule < layout.body.top);
  CHECK(layout.body.Bottom() <= layout.number.top);
  CHECK(layout.number.Bottom() <= kCard.Bottom());
  CHECK(layout.number.Right() == layout.body.Right());
  CHECK(layout.body.width > 400);
  CHECK(layout.body.height > 150);
}

TEST_CASE("a card elsewhere is laid out in the same way") {
  const CardLayout here = LayoutOf(kCard);
  const CardLayout there = LayoutOf({100, 50, kCard.width, kCard.height});
  CHECK(there.banner.left == here.banner.left + 100);
  CHECK(there.body.top == here.body.top + 50);
  CHECK(there.headingRule == here.headingRule + 50);
  CHECK(there.number.Right() == here.number.Right() + 100);
}

TEST_CASE("words are measured one by one only where a line ends inside one") {
  CountingCanvas canvas;
  const Rect body = LayoutOf(kCard).body;
  CHECK(LayoutBody(canvas, Repeated(u"word ", 12), body).style.points == kLargestBody);
  CHECK(canvas.widths == 0);
  CHECK(LayoutBody(canvas, Repeated(u"W", 40), body).style.points < kLargestBody);
  CHECK(canvas.widths > 0);
}

TEST_CASE("any text of up to 444 characters can be read whole, at 8 points or more") {
  for (const Text& text :
       {Text(), Text(u"a"), Repeated(u"W", kMostCharacters), Repeated(u" ", kMostCharacters),
        Repeated(u"\r\n", kMostCharacters / 2), Repeated(u"a\r\n", kMostCharacters / 3)}) {
    CheckCanBeRead(text);
  }
  std::mt19937 random(1);
  for (int length = 1; length <= kMostCharacters; ++length) {
    CheckCanBeRead(RandomText(random, static_cast<std::size_t>(length)));
  }
}

TEST_CASE("text gets smaller with its length, and scrolls only at the smallest size") {
  FakeCanvas canvas;
  const Rect body = LayoutOf(kCard).body;
  double before = kLargestBody;
  for (int words = 1; words <= 60; ++words) {
    const double points = LayoutBody(canvas, Repeated(u"seventh ", words), body).style.points;
    CHECK(points <= before);
    before = points;
  }
  CHECK(LayoutBody(canvas, u"Paris", body).style.points == kLargestBody);
  CHECK(before < 14);
  CHECK(LayoutBody(canvas, Repeated(u"a\r\n", 100), body).scrollRange > 0);
}

TEST_CASE("a word wider than the card makes the text smaller before it is broken") {
  FakeCanvas canvas;
  const Rect body = LayoutOf(kCard).body;
  const Text fitting = u"of " + Repeated(u"e", 45);
  const BodyLayout whole = LayoutBody(canvas, fitting, body);
  CHECK(whole.style.points < kLargestBody);
  CHECK(canvas.TextWidth(Repeated(u"e", 45), whole.style) <= body.width);
  const BodyLayout broken = LayoutBody(canvas, Repeated(u"e", 100), body);
  CHECK(broken.style.points == kSmallestWithWholeWords);
}

TEST_CASE("short text stands in the middle of the body") {
  FakeCanvas canvas;
  const Rect body = LayoutOf(kCard).body;
  const BodyLayout layout = LayoutBody(canvas, u"Paris", body);
  CHECK(layout.place.top - body.top == doctest::Approx(body.Bottom() - layout.place.Bottom()));
  CHECK(layout.style.alignment == Alignment::kCenter);
}

TEST_CASE("ruled lines are a line of text apart, inside the body, and the text stands on them") {
  FakeCanvas canvas;
  const Rect body = LayoutOf(kCard).body;
  for (const int words : {0, 1, 8, 20, 30, 40, 60}) {
    const BodyLayout layout = LayoutBody(canvas, Repeated(u"seventh ", words), body);
    for (const double scroll : {0.0, 7.0, 400.0}) {
      CAPTURE(words);
      CAPTURE(scroll);
      const std::vector<double> lines = RuledLines(layout, body, scroll);
      REQUIRE(lines.size() >= 3);
      const double ruling = lines[1] - lines[0];
      CHECK(ruling == doctest::Approx(canvas.LineHeight(layout.style)));
      CHECK(lines.front() >= body.top);
      CHECK(lines.back() <= body.Bottom());
      CHECK(lines.back() + ruling > body.Bottom());
      CHECK(lines.back() - lines.front() ==
            doctest::Approx(ruling * static_cast<double>(lines.size() - 1)));
      // The upper edge of a line, a pixel high, is where the feet of the letters are.
      const double feet = layout.place.top - scroll + canvas.Ascent(layout.style);
      const double between = (feet - (lines.front() - 0.5)) / ruling;
      CHECK(std::abs(between - std::round(between)) < 0.001);
    }
  }
}

TEST_CASE("the ruling of a surface without letters ends") {
  const BodyLayout none;
  CHECK(RuledLines(none, LayoutOf(kCard).body, 0).size() >= 4);
}

}  // namespace tessara::test
