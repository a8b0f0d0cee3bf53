#include <doctest/doctest.h>

#include "companion/cards/complaints.h"
#include "tests/unit/companion/formats/format_fixture.h"

namespace tessara::test {

TEST_CASE("what the fields of a deck can't hold is told") {
  FormatFixture fixture;
  CardSet set = SetOf(kStandardDeck, {TextCard(Text(445, u'x'), u" b ")});
  set.info.title = Text(76, u'x');
  static_cast<void>(fixture.Written(FileFormat::kDeck, set));
  CHECK(fixture.Told() == Lines{"deck: the title is cut behind 75 characters",
                                "deck:1: the front is cut behind 444 characters",
                                "deck:1: blanks at the ends of the back are not kept"});
}

TEST_CASE("a text that is cut is told in characters as a reader sees them") {
  struct Case {
    Text front;
    std::string told;
  };
  const auto times = [](std::size_t count, TextView character) {
    Text text;
    for (; count > 0; --count) text += character;
    return text;
  };
  const Case cases[] = {
      {times(220, u"\u0416"), ""},
      {times(221, u"\u0416"), "deck:1: the front is cut behind 220 characters"},
      {times(148, u"\u4E2D"), "deck:1: the front is cut behind 147 characters"},
      {times(111, u"\xD83D\xDC00"), "deck:1: the front is cut behind 110 characters"},
      // A letter and its mark, which have no form in one.
      {times(111, u"\u0436\u0301"), "deck:1: the front is cut behind 110 characters"},
      // Four pictures in one character, 25 bytes.
      {times(18, u"\xD83D\xDC68\u200D\xD83D\xDC69\u200D\xD83D\xDC67\u200D\xD83D\xDC66"),
       "deck:1: the front is cut behind 17 characters"},
      {u"  " + times(221, u"\u0416"), "deck:1: the front is cut behind 220 characters"},
      {times(444, u"e\u0301"), ""},
      {times(445, u"e\u0301"), "deck:1: the front is cut behind 444 characters"},
  };
  for (const Case& one : cases) {
    CAPTURE(one.told);
    FormatFixture fixture;
    static_cast<void>(
        fixture.Written(FileFormat::kDeck, SetOf(kStandardDeck, {TextCard(one.front, u"b")})));
    CHECK(fixture.Told() == (one.told.empty() ? Lines() : Lines{one.told}));
  }
}

TEST_CASE("a card of unknown type is taken as one of its deck") {
  FormatFixture fixture;
  DeckRecord odd = TextCard(u"a", u"b");
  odd.cardType = u"Z";
  const CardSet set = SetOf(kStandardDeck, {odd, TextCard(u"c", u"d")});
  CHECK(CardsOf(fixture.Read(FileFormat::kDeck, fixture.Written(FileFormat::kDeck, set))) ==
        Lines{"E|a|b", "E|c|d"});
  CHECK(fixture.Told() == Lines{"file:1: its unknown type is not kept"});
}

TEST_CASE("a deck that the program can't load is refused") {
  FormatFixture fixture;
  CardSet set = SetOf(kStandardDeck, {TextCard(u"a", u"b")});
  std::string bytes = fixture.Written(FileFormat::kDeck, set);
  bytes[kRecordSize + 446] = '\x7F';
  CHECK_THROWS_AS(static_cast<void>(fixture.Read(FileFormat::kDeck, bytes)), Refused);
}

}  // namespace tessara::test
