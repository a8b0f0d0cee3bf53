#include "deck/card_table.h"

#include <doctest/doctest.h>

#include "tests/support/error_of.h"
#include "tests/support/sample_deck.h"

namespace tessara::test {

namespace {

bool RowIsBlank(const ProgramState& state, int row) {
  for (int column = 0; column < kColumns; ++column) {
    if (!state.Cell(row, column).empty()) return false;
  }
  return state.CardPresent.At(row) == 0;
}

}  // namespace

TEST_CASE("a cell outside the table is a subscript error") {
  CardTable grid;
  CHECK(grid.At(0, 0).empty());
  CHECK(grid.At(202, 9).empty());
  for (const auto& cell : {std::pair{-1, 0}, {203, 0}, {0, -1}, {0, 10}, {-32768, 3}}) {
    CHECK(ErrorOf([&] { (void)grid.At(cell.first, cell.second); }) == 9);
    CHECK(ErrorOf([&] { grid.Set(cell.first, cell.second, u"x"); }) == 9);
  }
}

TEST_CASE("a flag outside the table is a subscript error") {
  PresentFlags flags;
  CHECK(flags.At(202) == 0);
  for (const int row : {-1, 203}) {
    CHECK(ErrorOf([&] { (void)flags.At(row); }) == 9);
    CHECK(ErrorOf([&] { flags.Set(row, 1); }) == 9);
  }
}

TEST_CASE("a deck has cards when its first card has text, whatever the count says") {
  ProgramState state;
  state.CardCount = 3;
  CHECK_FALSE(state.HasCards());
  state.CardGrid.Set(1, kCardText, u"x");
  state.CardCount = 0;
  CHECK(state.HasCards());
}

TEST_CASE("clearing all cards empties the present rows down to 200 and keeps the rest") {
  ProgramState state;
  FillDeck(state, 200);
  state.CurrentCard = 7;
  state.DeckTitle = u"kept";
  state.CardGrid.Set(3, kStray, u"stray");
  state.CardGrid.Set(201, kCardText, u"beyond");
  state.CardPresent.Set(201, 1);
  ClearAllCards(state);
  for (int row = 0; row <= 200; ++row) CHECK(RowIsBlank(state, row));
  CHECK(state.Cell(201, kCardText) == u"beyond");
  CHECK(state.CardPresent.At(201) == 1);
  CHECK(state.CardCount == 200);
  CHECK(state.CurrentCard == 7);
  CHECK(state.DeckTitle == u"kept");
}

TEST_CASE("clearing all cards leaves rows alone whose flag is not 1") {
  ProgramState state;
  PutCard(state, 1, {.text = u"absent"});
  state.CardPresent.Set(1, 0);
  PutCard(state, 2, {.text = u"odd"});
  state.CardPresent.Set(2, -1);
  ClearAllCards(state);
  CHECK(state.Cell(1, kCardText) == u"absent");
  CHECK(state.Cell(2, kCardText) == u"odd");
}

TEST_CASE("clearing the deck information empties row 0 and the five strings") {
  ProgramState state;
  FillDeck(state, 1);
  state.CardGrid.Set(kInfoRow, kStray, u"stray");
  state.DeckTitle = state.DeckAuthor = state.DeckDate = u"x";
  state.DeckTypeName = state.DeckDescription = u"x";
  ClearDeckInfo(state);
  for (int column = kCardType; column < kColumns; ++column) {
    CHECK(state.Cell(kInfoRow, column) == (column == kRowNumber ? u"0" : u""));
  }
  CHECK(state.Cell(kInfoRow, kStray) == u"stray");
  CHECK(state.CardPresent.At(kInfoRow) == 0);
  CHECK((state.DeckTitle + state.DeckAuthor + state.DeckDate).empty());
  CHECK((state.DeckTypeName + state.DeckDescription).empty());
  CHECK(state.Cell(1, kCardText) == u"front 1");
}

TEST_CASE("compacting closes the first gap and renumbers what moves up") {
  ProgramState state;
  FillDeck(state, 5);
  EmptyCardRow(state, 2);
  CompactCards(state);
  const TextView fronts[] = {u"front 1", u"front 3", u"front 4", u"front 5"};
  for (int row = 1; row <= 4; ++row) {
    CHECK(state.Cell(row, kCardText) == fronts[row - 1]);
    CHECK(state.Cell(row, kRowNumber) == DecimalText(row));
    CHECK(state.CardPresent.At(row) == 1);
  }
  CHECK(RowIsBlank(state, 5));
}

TEST_CASE("compacting stops at the first absent row behind the gap") {
  ProgramState state;
  FillDeck(state, 5);
  EmptyCardRow(state, 2);
  EmptyCardRow(state, 4);
  CompactCards(state);
  CHECK(state.Cell(2, kCardText) == u"front 3");
  CHECK(RowIsBlank(state, 3));
  CHECK(state.Cell(5, kCardText) == u"front 5");
  CHECK(state.Cell(5, kRowNumber) == u"5");
}

TEST_CASE("compacting without a gap blanks the row behind the last card") {
  ProgramState state;
  FillDeck(state, 3);
  state.CardGrid.Set(4, kCardText, u"left over");
  CompactCards(state);
  CHECK(state.Cell(3, kCardText) == u"front 3");
  CHECK(RowIsBlank(state, 4));
}

TEST_CASE("compacting a full deck changes nothing") {
  ProgramState state;
  FillDeck(state, 200);
  state.CardGrid.Set(201, kCardText, u"beyond");
  CompactCards(state);
  CHECK(state.Cell(200, kCardText) == u"front 200");
  CHECK(state.Cell(201, kCardText) == u"beyond");
}

TEST_CASE("compacting keeps the stray column in its row") {
  ProgramState state;
  FillDeck(state, 3);
  state.CardGrid.Set(1, kStray, u"one");
  state.CardGrid.Set(2, kStray, u"two");
  EmptyCardRow(state, 1);
  CompactCards(state);
  CHECK(state.Cell(1, kStray) == u"one");
  CHECK(state.Cell(1, kCardText) == u"front 2");
}

}  // namespace tessara::test
