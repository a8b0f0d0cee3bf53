#include "deck/deck.h"

namespace tessara {

namespace {

constexpr int kFirstCard = 1;
/// The column that neither a move nor an emptied card touches is the one before this.
constexpr int kFirstCardColumn = kCardType;

void EmptyCells(CardTable& grid, int row, int firstColumn) {
  for (int column = firstColumn; column < kColumns; ++column) grid.Set(row, column, u"");
}

/// The number in the row is its own afterwards.
void MoveUp(Deck& deck, int toRow) {
  for (int column = kFirstCardColumn; column < kColumns; ++column) {
    deck.cardGrid.Set(toRow, column, deck.Cell(toRow + 1, column));
  }
  deck.cardGrid.Set(toRow, kRowNumber, DecimalText(toRow));
  deck.cardPresent.Set(toRow, deck.cardPresent.At(toRow + 1));
}

/// The first row of a card that is absent; 0 where all 200 are there.
int FirstGap(const PresentFlags& present) {
  for (int row = kFirstCard; row <= kMostCards; ++row) {
    if (present.At(row) == 0) return row;
  }
  return 0;
}

}  // namespace

void ClearAllCards(Deck& deck) {
  for (int row = kInfoRow; row <= kMostCards; ++row) {
    if (deck.cardPresent.At(row) != 1) continue;
    EmptyCells(deck.cardGrid, row, kStray);
    deck.cardPresent.Set(row, 0);
  }
  deck.changesAtClear = deck.cardGrid.Changes().Count();
}

void ClearDeckInfo(Deck& deck) {
  EmptyCells(deck.cardGrid, kInfoRow, kFirstCardColumn);
  deck.cardGrid.Set(kInfoRow, kRowNumber, u"0");
  deck.cardPresent.Set(kInfoRow, 0);
  for (Text* text : {&deck.title, &deck.author, &deck.date, &deck.typeName, &deck.description}) {
    text->clear();
  }
}

void EmptyCardRow(Deck& deck, int row) {
  EmptyCells(deck.cardGrid, row, kFirstCardColumn);
  deck.cardPresent.Set(row, 0);
}

void CompactCards(Deck& deck) {
  int row = FirstGap(deck.cardPresent);
  if (row == 0) return;
  for (; deck.cardPresent.At(row + 1) == 1; ++row) MoveUp(deck, row);
  EmptyCardRow(deck, row);
}

}  // namespace tessara
