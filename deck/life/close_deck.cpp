// How a deck leaves the window: cleared, or with the window itself.

#include "deck/life/deck_life.h"
#include "machine/message_box.h"

namespace tessara {

void DeckLife::ClearDeck() {
  OfferToSave();
  NewTessara();
  ClearDeckInfo(State().deck);
  EnableDelete(false);
  State().deck.changed = false;
  State().deck.onFile = false;
  // No deck, no card on show: the first one that is built is card 1.
  State().deck.currentCard = 0;
  clearDeck.SetEnabled(false);
  modeMenu.SetEnabled(false);
  goToCard.SetEnabled(false);
}

void DeckLife::CloseTessara() {
  if (State().deck.HasCards()) OfferToSave();
  State().deck.changed = false;
  State().deck.saveOffered = false;
  Unload();
  if (questionBuilder_ != nullptr) questionBuilder_->Unload();
}

void DeckLife::OnUnload(bool& cancel) {
  ProgramState& state = State();
  MessageBoxes& messages = App().machine.messages;
  if (state.deck.mode != kStudyMode) {
    messages.Show(u"Tessara must be in study mode before quiting.", kOkOnly, u"Quit");
    cancel = true;
    return;
  }
  OfferToSave();
  if (state.deck.HasCards()) {
    const MessageAnswer reply =
        messages.Show(u"ARE YOU SURE?", kQuestionIcon + kYesNo, u"Close Tessara");
    cancel = reply == MessageAnswer::kNo;
    if (cancel) return;
  }
  NewTessara();
  ClearDeckInfo(state.deck);
  state.deck.currentCard = 0;
  state.deck.onFile = false;
}

}  // namespace tessara
