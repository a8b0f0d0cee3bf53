#include "deck/card_rows.h"

#include <doctest/doctest.h>

#include "tests/support/cards.h"

namespace tessara::test {

namespace {

using Rows = std::vector<int>;

}  // namespace

TEST_CASE("the rows of a deck's cards are the present ones") {
  ProgramState state;
  state.deck.cardPresent.Set(kInfoRow, 1);
  for (const int row : {1, 2, 5, kRows - 1}) PutCard(state, row, {.text = u"front"});
  CHECK(CardRows(state.deck) == Rows{1, 2, 5, kRows - 1});
  EmptyCardRow(state.deck, 2);
  CHECK(CardRows(state.deck) == Rows{1, 5, kRows - 1});
}

TEST_CASE("a row with a text that nothing has made present holds a card") {
  for (const Column column : {kCardText, kBackText, kChoiceA, kChoiceD}) {
    CAPTURE(column);
    ProgramState state;
    PutCard(state, 1, {.text = u"front"});
    state.deck.cardGrid.Set(3, column, u"text");
    CHECK(CardRows(state.deck) == Rows{1, 3});
  }
  ProgramState state;
  state.deck.cardGrid.Set(3, kRowNumber, u"3");
  CHECK(CardRows(state.deck).empty());
}

TEST_CASE("what a clear does not reach is no card of the next deck") {
  ProgramState state;
  for (const int row : {1, kMostCards, kMostCards + 1, kRows - 1})
    PutCard(state, row, {.text = u"front"});
  state.deck.cardGrid.Set(3, kCardText, u"never made present");
  ClearAllCards(state.deck);
  CHECK(CardRows(state.deck).empty());
  PutCard(state, kMostCards + 1, {.text = u"of the next deck"});
  CHECK(CardRows(state.deck) == Rows{kMostCards + 1});
}

}  // namespace tessara::test
