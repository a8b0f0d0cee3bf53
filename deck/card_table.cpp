#include "deck/card_table.h"

#include <utility>

#include "base/run_time_error.h"

namespace tessara {

namespace {

std::size_t RowOffset(int row) {
  if (row < 0 || row >= kRows) throw RunTimeError(ErrorNumber::kSubscriptOutOfRange);
  return static_cast<std::size_t>(row);
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

}  // namespace tessara
