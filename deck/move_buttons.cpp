#include "deck/move_buttons.h"

namespace tessara {

void SetMoveButtons(MoveButtons& owner, const ProgramState& state) {
  const bool hasCards = state.deck.cardCount != 0;
  owner[kPreviousCard].SetEnabled(hasCards && state.deck.currentCard != 1);
  owner[kNextCard].SetEnabled(hasCards && state.deck.currentCard < state.deck.cardCount);
}

}  // namespace tessara
