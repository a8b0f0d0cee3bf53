#include "tests/random_user/card_record.h"

#include <doctest/doctest.h>

#include "tests/support/deck_bytes.h"

using namespace tessara;
using namespace tessara::test;

TEST_CASE(
    "a card in the table and the same card in a deck's file are one, whatever their numbers") {
  ProgramState state;
  state.deck.cardGrid.Set(1, kCardType, u"E");
  state.deck.cardGrid.Set(1, kCardText, u"front");
  state.deck.cardGrid.Set(1, kRowNumber, u"1");
  state.deck.cardGrid.Set(1, kBackText, u"back");
  state.deck.cardPresent.Set(1, 1);
  const auto inFile = CardsIn(InfoBytes({}) + CardBytes(7, u"front", u"back") + EndBytes());
  CHECK(inFile.size() == 1);
  CHECK(CardsOf(state) == inFile);
  CHECK(CardsIn(CardBytes(1, u"front", u"other")) != inFile);
}
