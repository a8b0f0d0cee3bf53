#include <doctest/doctest.h>

#include "companion/cards/refused.h"
#include "tests/unit/companion/formats/format_desk.h"

namespace tessara::test {

TEST_CASE("what the fields of a deck can't hold is told") {
  FormatDesk desk;
  CardSet set = SetOf(kStandardDeck, {TextCard(Text(445, u'x'), u" b ")});
  set.info.title = Text(76, u'x');
  static_cast<void>(desk.Written(FileFormat::kDeck, set));
  CHECK(desk.Told() == Lines{"deck: the title is cut behind 75 characters",
                             "deck:1: the front is cut behind 444 characters",
                             "deck:1: blanks at the ends of the back are not kept"});
}

TEST_CASE("a card of unknown type is taken as one of its deck") {
  FormatDesk desk;
  DeckRecord odd = TextCard(u"a", u"b");
  odd.cardType = u"Z";
  const CardSet set = SetOf(kStandardDeck, {odd, TextCard(u"c", u"d")});
  CHECK(CardsOf(desk.Read(FileFormat::kDeck, desk.Written(FileFormat::kDeck, set))) ==
        Lines{"E|a|b", "E|c|d"});
  CHECK(desk.Told() == Lines{"file:1: its unknown type is not kept"});
}

TEST_CASE("a deck that the program can't load is refused") {
  FormatDesk desk;
  CardSet set = SetOf(kStandardDeck, {TextCard(u"a", u"b")});
  std::string bytes = desk.Written(FileFormat::kDeck, set);
  bytes[kRecordSize + 446] = '\x7F';
  CHECK_THROWS_AS(static_cast<void>(desk.Read(FileFormat::kDeck, bytes)), Refused);
}

}  // namespace tessara::test
