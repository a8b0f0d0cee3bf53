// The large card as it is seen, at the scalings of a screen.

#include <QScrollBar>
#include <cmath>
#include <doctest/doctest.h>

#include "tests/desktop/support/program_on_screen.h"
#include "tests/support/deck_bytes.h"
#include "viewer/card/card_layout.h"

using namespace tessara;
using namespace tessara::test;

namespace {

constexpr double kScalings[] = {1, 1.5, 2};
constexpr int kMostCharacters = 444;

/// 444 characters of prose, the last word of them given.
Text Prose(const Text& lastWord) {
  const Text sentence =
      u"A deck of cards is best learned a little at a time: look at the front, say the answer "
      u"aloud, turn the card over, and be honest about what you knew. ";
  Text text;
  while (text.size() < kMostCharacters) text += sentence;
  text.resize(kMostCharacters - lastWord.size() - 1);
  return text + u" " + lastWord;
}

struct CardFixture : ProgramOnScreen {
  explicit CardFixture(const Text& front) {
    folder.Write("deck.tsr", InfoBytes({}) + CardBytes(1, front, u"back") + EndBytes());
    Start(u"deck.tsr");
  }
  static QWidget& Widget() { return Of("NoteletCtl1"); }
  static Rect Size() {
    return {0, 0, static_cast<double>(Widget().width()), static_cast<double>(Widget().height())};
  }
  /// What a screen of that scaling shows.
  static QImage Picture(double scaling) {
    QImage picture(Widget().size() * scaling, QImage::Format_RGB32);
    picture.setDevicePixelRatio(scaling);
    picture.fill(Qt::white);
    Widget().render(&picture);
    return picture;
  }
};

bool IsInk(QRgb pixel) {
  constexpr int kDark = 140;
  return qGray(pixel) < kDark;
}

/// The smallest rectangle around the text's ink in the card's body, in pixels of the program.
QRectF InkIn(const QImage& picture, const Rect& body) {
  const double scaling = picture.devicePixelRatio();
  QRect ink;
  for (int y = qRound(body.top * scaling); y < std::floor(body.Bottom() * scaling); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (IsInk(picture.pixel(x, y))) ink |= QRect(x, y, 1, 1);
    }
  }
  return {ink.x() / scaling, ink.y() / scaling, ink.width() / scaling, ink.height() / scaling};
}

/// True where some 2 by 2 block of the picture, counted from its corner, is not of one colour.
bool IsFinerThanItsHalf(const QImage& picture) {
  for (int y = 0; y + 1 < picture.height(); y += 2) {
    for (int x = 0; x + 1 < picture.width(); x += 2) {
      if (picture.pixel(x, y) != picture.pixel(x + 1, y)) return true;
    }
  }
  return false;
}

/// The rows of the picture's middle that are of the heading rule's colour throughout.
int RowsOfHeadingRule(const QImage& picture) {
  const QRgb rule = qRgb(214, 140, 118);
  int rows = 0;
  for (int y = 0; y < picture.height(); ++y) {
    bool whole = true;
    for (int x = picture.width() / 4; x < picture.width() / 2; ++x) {
      whole = whole && picture.pixel(x, y) == rule;
    }
    rows += whole ? 1 : 0;
  }
  return rows;
}

}  // namespace

TEST_CASE("A card of 444 characters of prose is whole at every scaling, without scrolling") {
  const CardFixture fixture(Prose(u"knew."));
  REQUIRE(ProgramOnScreen::Card("CardText").size() == kMostCharacters);
  CHECK(CardFixture::Widget().findChild<QScrollBar*>() == nullptr);
  const Rect body = LayoutOf(CardFixture::Size()).body;
  for (const double scaling : kScalings) {
    CAPTURE(scaling);
    const QRectF ink = InkIn(CardFixture::Picture(scaling), body);
    // Nothing is cut off: the ink ends before the body does, on all four sides.
    CHECK(ink.top() > body.top + 1);
    CHECK(ink.bottom() < body.Bottom() - 1);
    CHECK(ink.left() > body.left - 1);
    CHECK(ink.right() < body.Right() + 1);
    CHECK(ink.width() > body.width * 0.8);
  }
}

TEST_CASE("The last word of 444 characters of prose can be seen at every scaling") {
  std::vector<QImage> pictures;
  for (const Text& word : {Text(u"knew."), Text(u"know.")}) {
    const CardFixture fixture(Prose(word));
    for (const double scaling : kScalings) pictures.push_back(CardFixture::Picture(scaling));
  }
  for (std::size_t at = 0; at < std::size(kScalings); ++at) {
    CHECK(pictures[at] != pictures[at + std::size(kScalings)]);
  }
}

TEST_CASE("A card is drawn for the screen's own pixels, its rules sharp") {
  const CardFixture fixture(u"What is the capital of Norway?");
  CHECK(IsFinerThanItsHalf(CardFixture::Picture(2)));
  for (const double scaling : kScalings) {
    CAPTURE(scaling);
    CHECK(RowsOfHeadingRule(CardFixture::Picture(scaling)) >= 2);
  }
}

TEST_CASE("A text too long even for the smallest letters is read to its end by scrolling") {
  Text many;
  while (many.size() < kMostCharacters - 6) many += u"a\r\n";
  std::vector<QImage> pictures;
  for (const Text& lastLine : {Text(u"end"), Text(u"and")}) {
    const CardFixture fixture(many + lastLine);
    auto* bar = CardFixture::Widget().findChild<QScrollBar*>();
    REQUIRE(bar != nullptr);
    CHECK(bar->isVisible());
    bar->setValue(bar->maximum());
    const QImage picture = CardFixture::Picture(1);
    const Rect body = LayoutOf(CardFixture::Size()).body;
    CHECK(InkIn(picture, body).bottom() < body.Bottom());
    pictures.push_back(picture);
  }
  CHECK(pictures[0] != pictures[1]);
}

TEST_CASE("The letters of a card stand on a ruled line, at every size and scaling") {
  constexpr int kBesideText = 6;
  const auto isRule = [](const QImage& picture, int x, int y) {
    const QColor color = picture.pixelColor(x, y);
    return color.blue() - color.red() > 15;
  };
  for (const int words : {1, 8, 20, 60}) {
    Text text;
    for (int word = 0; word < words; ++word) text += u"MHM ";
    const CardFixture fixture(text);
    const Rect body = LayoutOf(CardFixture::Size()).body;
    for (const double scaling : kScalings) {
      CAPTURE(words);
      CAPTURE(scaling);
      const QImage picture = CardFixture::Picture(scaling);
      const int below = qRound(InkIn(picture, body).bottom() * scaling);
      const int x = qRound(kBesideText * scaling);
      // A row of letters may be too pale to count as ink.
      CHECK((isRule(picture, x, below) || isRule(picture, x, below + 1)));
    }
  }
}
