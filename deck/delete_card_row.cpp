#include "deck/delete_card_row.h"

namespace tessara {

namespace {

/// Any answer but No agrees.
bool UserAgrees(std::int16_t row, MessageBoxes& messages) {
  return messages.Show(u"Deletion is permanent, are you sure?", kYesNo,
                       u"Delete Card # " + DecimalText(row)) != MessageAnswer::kNo;
}

}  // namespace

void DeleteCardRow(std::int16_t& xRecNbr, MoveButtons& owner, CardFace& card, ProgramState& state,
                   MessageBoxes& messages) {
  if (!UserAgrees(xRecNbr, messages)) return;
  EmptyCardRow(state, xRecNbr);
  if (xRecNbr == state.CardCount) {
    card.SetCardNumber(DecimalText(state.CardCount - 1));
    --xRecNbr;
  } else {
    CompactCards(state);
  }
  --state.CardCount;
  SetMoveButtons(owner, state);
  card.SetCardTotal(DecimalText(state.CardCount));
}

}  // namespace tessara
