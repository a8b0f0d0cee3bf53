#include <doctest/doctest.h>

#include "deck/program_state.h"
#include "tests/support/error_of.h"
#include "tests/support/sample_deck.h"

namespace tessara::test {

namespace {

bool RowIsBlank(const ProgramState& state, int row) {
  for (int column = 0; column < kColumns; ++column) {
    if (!state.deck.Cell(row, column).empty()) return false;
  }
  return state.deck.cardPresent.At(row) == 0;
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
  state.deck.cardCount = 3;
  CHECK_FALSE(state.deck.HasCards());
  state.deck.cardGrid.Set(1, kCardText, u"x");
  state.deck.cardCount = 0;
  CHECK(state.deck.HasCards());
}

TEST_CASE("clearing all cards empties the present rows down to 200 and keeps the rest") {
  ProgramState state;
  FillDeck(state, 200);
  state.deck.currentCard = 7;
  state.deck.title = u"kept";
  state.deck.cardGrid.Set(3, kStray, u"stray");
  state.deck.cardGrid.Set(201, kCardText, u"beyond");
  state.deck.cardPresent.Set(201, 1);
  ClearAllCards(state.deck);
  for (int row = 0; row <= 200; ++row) CHECK(RowIsBlank(state, row));
  CHECK(state.deck.Cell(201, kCardText) == u"beyond");
  CHECK(state.deck.cardPresent.At(201) == 1);
  CHECK(state.deck.cardCount == 200);
  CHECK(state.deck.currentCard == 7);
  CHECK(state.deck.title == u"kept");
}

TEST_CASE("clearing all cards leaves rows alone whose flag is not 1") {
  ProgramState state;
  PutCard(state, 1, {.text = u"absent"});
  state.deck.cardPresent.Set(1, 0);
  PutCard(state, 2, {.text = u"odd"});
  state.deck.cardPresent.Set(2, -1);
  ClearAllCards(state.deck);
  CHECK(state.deck.Cell(1, kCardText) == u"absent");
  CHECK(state.deck.Cell(2, kCardText) == u"odd");
}

TEST_CASE("clearing the deck information empties row 0 and the five strings") {
  ProgramState state;
  FillDeck(state, 1);
  state.deck.cardGrid.Set(kInfoRow, kStray, u"stray");
  state.deck.title = state.deck.author = state.deck.date = u"x";
  state.deck.typeName = state.deck.description = u"x";
  ClearDeckInfo(state.deck);
  for (int column = kCardType; column < kColumns; ++column) {
    CHECK(state.deck.Cell(kInfoRow, column) == (column == kRowNumber ? u"0" : u""));
  }
  CHECK(state.deck.Cell(kInfoRow, kStray) == u"stray");
  CHECK(state.deck.cardPresent.At(kInfoRow) == 0);
  CHECK((state.deck.title + state.deck.author + state.deck.date).empty());
  CHECK((state.deck.typeName + state.deck.description).empty());
  CHECK(state.deck.Cell(1, kCardText) == u"front 1");
}

TEST_CASE("compacting closes the first gap and renumbers what moves up") {
  ProgramState state;
  FillDeck(state, 5);
  EmptyCardRow(state.deck, 2);
  CompactCards(state.deck);
  const TextView fronts[] = {u"front 1", u"front 3", u"front 4", u"front 5"};
  for (int row = 1; row <= 4; ++row) {
    CHECK(state.deck.Cell(row, kCardText) == fronts[row - 1]);
    CHECK(state.deck.Cell(row, kRowNumber) == DecimalText(row));
    CHECK(state.deck.cardPresent.At(row) == 1);
  }
  CHECK(RowIsBlank(state, 5));
}

TEST_CASE("compacting stops at the first absent row behind the gap") {
  ProgramState state;
  FillDeck(state, 5);
  EmptyCardRow(state.deck, 2);
  EmptyCardRow(state.deck, 4);
  CompactCards(state.deck);
  CHECK(state.deck.Cell(2, kCardText) == u"front 3");
  CHECK(RowIsBlank(state, 3));
  CHECK(state.deck.Cell(5, kCardText) == u"front 5");
  CHECK(state.deck.Cell(5, kRowNumber) == u"5");
}

TEST_CASE("compacting without a gap blanks the row behind the last card") {
  ProgramState state;
  FillDeck(state, 3);
  state.deck.cardGrid.Set(4, kCardText, u"left over");
  CompactCards(state.deck);
  CHECK(state.deck.Cell(3, kCardText) == u"front 3");
  CHECK(RowIsBlank(state, 4));
}

TEST_CASE("compacting a full deck changes nothing") {
  ProgramState state;
  FillDeck(state, 200);
  state.deck.cardGrid.Set(201, kCardText, u"beyond");
  CompactCards(state.deck);
  CHECK(state.deck.Cell(200, kCardText) == u"front 200");
  CHECK(state.deck.Cell(201, kCardText) == u"beyond");
}

TEST_CASE("compacting keeps the stray column in its row") {
  ProgramState state;
  FillDeck(state, 3);
  state.deck.cardGrid.Set(1, kStray, u"one");
  state.deck.cardGrid.Set(2, kStray, u"two");
  EmptyCardRow(state.deck, 1);
  CompactCards(state.deck);
  CHECK(state.deck.Cell(1, kStray) == u"one");
  CHECK(state.deck.Cell(1, kCardText) == u"front 2");
}

}  // namespace tessara::test
