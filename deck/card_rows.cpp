#include "deck/card_rows.h"

#include <algorithm>

namespace tessara {

namespace {

bool HasText(const Deck& deck, int row) {
  constexpr Column kTexts[] = {kCardText, kChoiceA, kChoiceB, kChoiceC, kChoiceD, kBackText};
  return std::ranges::any_of(kTexts,
                             [&](Column column) { return !deck.Cell(row, column).empty(); });
}

bool IsCard(const Deck& deck, int row) {
  const bool present = deck.cardPresent.At(row) != 0;
  if (present && row <= kMostCards) return true;
  const bool written = deck.cardGrid.Changes().Of(row) > deck.changesAtClear;
  return written && (present || HasText(deck, row));
}

}  // namespace

std::vector<int> CardRows(const Deck& deck) {
  std::vector<int> rows;
  for (int row = kInfoRow + 1; row < kRows; ++row) {
    if (IsCard(deck, row)) rows.push_back(row);
  }
  return rows;
}

}  // namespace tessara
