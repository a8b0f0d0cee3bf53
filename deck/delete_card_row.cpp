#include "deck/delete_card_row.h"

namespace tessara {

namespace {

/// Any answer but No agrees.
bool UserAgrees(std::int16_t row, MessageBoxes& messages) {
  return messages.Show(u"Deletion is permanent, are you sure?", kYesNo,
                       u"Delete Card # " + DecimalText(row)) != MessageAnswer::kNo;
}

}  // namespace

void DeleteCardRow(std::int16_t& row, MoveButtons& owner, CardDisplay& card, ProgramState& state,
                   MessageBoxes& messages) {
  if (!UserAgrees(row, messages)) return;
  EmptyCardRow(state.deck, row);
  if (row == state.deck.cardCount) {
    card.SetCardNumber(DecimalText(state.deck.cardCount - 1));
    --row;
  } else {
    CompactCards(state.deck);
  }
  --state.deck.cardCount;
  SetMoveButtons(owner, state);
  card.SetCardTotal(DecimalText(state.deck.cardCount));
}

}  // namespace tessara
