// How a deck leaves the window: cleared, or with the window itself.

#include "deck/deck_window.h"
#include "platform/message_box.h"

namespace tessara {

void DeckWindow::mnuNCD_Click() {
  ChkSave();
  NewTessara();
  ClearDeckInfo(State());
  MenuOp(false);
  State().DeckChanged = false;
  State().DeckOnFile = false;
  // No deck, no card on show: the first one that is built is card 1.
  State().CurrentCard = 0;
  mnuNCD.SetEnabled(false);
  mnuMode.SetEnabled(false);
  mnuGTP.SetEnabled(false);
}

void DeckWindow::mnuExit_Click() {
  if (State().HasCards()) ChkSave();
  State().DeckChanged = false;
  State().SaveOffered = false;
  Unload();
  if (questionBuilder_ != nullptr) questionBuilder_->Unload();
}

void DeckWindow::Form_Unload(bool& cancel) {
  ProgramState& state = State();
  MessageBoxes& messages = App().machine.messages;
  if (state.CardMode != kStudyMode) {
    messages.Show(u"Tessara must be in study mode before quiting.", kOkOnly, u"Quit");
    cancel = true;
    return;
  }
  ChkSave();
  if (state.HasCards()) {
    const MessageAnswer answer =
        messages.Show(u"ARE YOU SURE?", kQuestionIcon + kYesNo, u"Close Tessara");
    cancel = answer == MessageAnswer::kNo;
    if (cancel) return;
  }
  NewTessara();
  ClearDeckInfo(state);
  state.CurrentCard = 0;
  state.DeckOnFile = false;
}

}  // namespace tessara
