#include "deck/card_display.h"

namespace tessara {

void SetMoveButtons(MoveButtons& owner, const ProgramState& state) {
  const bool hasCards = state.deck.cardCount != 0;
  owner[kPreviousCard].SetEnabled(hasCards && state.deck.currentCard != 1);
  owner[kNextCard].SetEnabled(hasCards && state.deck.currentCard < state.deck.cardCount);
}

Text DoubleAmps(TextView text) {
  Text doubled;
  for (const char16_t character : text) {
    doubled.append(character == u'&' ? 2 : 1, character);
  }
  return doubled;
}

}  // namespace tessara
