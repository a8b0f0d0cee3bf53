#include "deck/move_buttons.h"

namespace tessara {

void SetMoveButtons(MoveButtons& owner, const ProgramState& state) {
  const bool hasCards = state.CardCount != 0;
  owner[kPreviousCard].SetEnabled(hasCards && state.CurrentCard != 1);
  owner[kNextCard].SetEnabled(hasCards && state.CurrentCard < state.CardCount);
}

}  // namespace tessara
