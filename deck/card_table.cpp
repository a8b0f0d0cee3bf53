#include "deck/card_table.h"

#include <utility>

#include "platform/run_time_error.h"

namespace tessara {

namespace {

constexpr int kFirstCard = 1;
/// The column that neither a move nor an emptied card touches is the one before this.
constexpr int kFirstCardColumn = kCardType;

std::size_t RowOffset(int row) {
  if (row < 0 || row >= kRows) throw RunTimeError(ErrorNumber::kSubscriptOutOfRange);
  return static_cast<std::size_t>(row);
}

void EmptyCells(CardTable& grid, int row, int firstColumn) {
  for (int column = firstColumn; column < kColumns; ++column) grid.Set(row, column, u"");
}

/// The number in the row is its own afterwards.
void MoveUp(ProgramState& state, int toRow) {
  for (int column = kFirstCardColumn; column < kColumns; ++column) {
    state.CardGrid.Set(toRow, column, state.Cell(toRow + 1, column));
  }
  state.CardGrid.Set(toRow, kRowNumber, DecimalText(toRow));
  state.CardPresent.Set(toRow, state.CardPresent.At(toRow + 1));
}

/// The first row of a card that is absent; 0 where all 200 are there.
int FirstGap(const PresentFlags& present) {
  for (int row = kFirstCard; row <= kMostCards; ++row) {
    if (present.At(row) == 0) return row;
  }
  return 0;
}

}  // namespace

std::size_t CardTable::Offset(int row, int column) {
  if (column < 0 || column >= kColumns) throw RunTimeError(ErrorNumber::kSubscriptOutOfRange);
  return RowOffset(row) * kColumns + static_cast<std::size_t>(column);
}

const Text& CardTable::At(int row, int column) const {
  return cells_[Offset(row, column)];
}

void CardTable::Set(int row, int column, Text value) {
  cells_[Offset(row, column)] = std::move(value);
  changes_.Note(static_cast<std::size_t>(row));
}

CardTable::RowCells CardTable::Row(int row) {
  Text* const first = &cells_[Offset(row, 0)];
  changes_.Note(static_cast<std::size_t>(row));
  return RowCells(first, kColumns);
}

std::int16_t PresentFlags::At(int row) const {
  return flags_[RowOffset(row)];
}

void PresentFlags::Set(int row, std::int16_t flag) {
  flags_[RowOffset(row)] = flag;
  changes_.Note(RowOffset(row));
}

void ClearAllCards(ProgramState& state) {
  for (int row = kInfoRow; row <= kMostCards; ++row) {
    if (state.CardPresent.At(row) != 1) continue;
    EmptyCells(state.CardGrid, row, kStray);
    state.CardPresent.Set(row, 0);
  }
}

void ClearDeckInfo(ProgramState& state) {
  EmptyCells(state.CardGrid, kInfoRow, kFirstCardColumn);
  state.CardGrid.Set(kInfoRow, kRowNumber, u"0");
  state.CardPresent.Set(kInfoRow, 0);
  for (Text* text : {&state.DeckTitle, &state.DeckAuthor, &state.DeckDate, &state.DeckTypeName,
                     &state.DeckDescription}) {
    text->clear();
  }
}

void EmptyCardRow(ProgramState& state, int row) {
  EmptyCells(state.CardGrid, row, kFirstCardColumn);
  state.CardPresent.Set(row, 0);
}

void CompactCards(ProgramState& state) {
  int row = FirstGap(state.CardPresent);
  if (row == 0) return;
  for (; state.CardPresent.At(row + 1) == 1; ++row) MoveUp(state, row);
  EmptyCardRow(state, row);
}

}  // namespace tessara
