#include <algorithm>
#include <doctest/doctest.h>

#include "companion/cards/complaints.h"
#include "tests/support/deck_bytes.h"
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

TEST_CASE("what is lost where a deck is read is told, and nothing else") {
  struct Case {
    std::string title;
    std::string bytes;
    Lines cards;
    Lines told;
  };
  const std::string info = InfoBytes({});
  const std::string card = CardBytes(1, u"a", u"b");
  const Case cases[] = {
      {"in order", info + card + EndBytes(), {"E|a|b"}, {}},
      {"a number twice",
       info + card + CardBytes(1, u"c", u"d") + EndBytes(),
       {"E|c|d"},
       {"file:1: a record of the same number stands before it"}},
      {"cut off", info + card, {"E|a|b"}, {"file: it ends without the record of the end"}},
      {"a hole is none",
       info + card + CardBytes(3, u"c", u"d") + EndBytes(),
       {"E|a|b", "E|c|d"},
       {}},
      {"an empty first card is none", info + CardBytes(1, u"", u"b") + EndBytes(), {"E||b"}, {}},
  };
  for (const Case& one : cases) {
    CAPTURE(one.title);
    FormatFixture fixture;
    CHECK(CardsOf(fixture.Read(FileFormat::kDeck, one.bytes)) == one.cards);
    CHECK(fixture.Told() == one.told);
  }
  FormatFixture fixture;
  std::string crowd = info;
  for (int row = 1; row <= 202; ++row) crowd += CardBytes(row, u"a", u"b");
  CHECK(fixture.Read(FileFormat::kDeck, crowd + EndBytes()).cards.size() == 200);
  CHECK(fixture.Told().size() == 1);
}

TEST_CASE("a file that the program would take for empty is told") {
  const CardSet set = SetOf(kStandardDeck, {TextCard(u" ", u"a"), TextCard(u"", u"b")});
  for (const FileFormat format : {FileFormat::kDeck, FileFormat::kText}) {
    FormatFixture fixture;
    static_cast<void>(fixture.Written(format, set));
    const Lines told = fixture.Told();
    CHECK(std::count(told.begin(), told.end(),
                     "deck:1: its text is empty: the program takes the deck for empty") == 1);
  }
}

TEST_CASE("what a card of the other kind loses is told, but not of a deck, which keeps it") {
  DeckRecord surplus = Question(u"q", {u"x", u"", u"", u""}, u"A");
  surplus.longText = u"long";
  const FileFormat without[] = {FileFormat::kText, FileFormat::kCsv, FileFormat::kTsv,
                                FileFormat::kKvtml};
  for (const FileFormat format : without) {
    FormatFixture fixture;
    static_cast<void>(fixture.Written(format, SetOf(kStandardDeck, {surplus})));
    CHECK(fixture.Told() == Lines{"deck:1: its choices and its answer are not kept"});
    if (format == FileFormat::kKvtml) continue;
    static_cast<void>(fixture.Written(format, SetOf(kExtendedDeck, {surplus})));
    CHECK(fixture.Told() == Lines{"deck:1: its long text is not kept"});
  }
  FormatFixture fixture;
  static_cast<void>(fixture.Written(FileFormat::kDeck, SetOf(kStandardDeck, {surplus})));
  CHECK(fixture.Told() == Lines());
}

TEST_CASE("a deck that the program can't load is refused") {
  FormatFixture fixture;
  CardSet set = SetOf(kStandardDeck, {TextCard(u"a", u"b")});
  std::string bytes = fixture.Written(FileFormat::kDeck, set);
  bytes[kRecordSize + 446] = '\x7F';
  CHECK_THROWS_AS(static_cast<void>(fixture.Read(FileFormat::kDeck, bytes)), Refused);
}

}  // namespace tessara::test
