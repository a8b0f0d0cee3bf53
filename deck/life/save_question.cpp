// Whether changes are to be saved before the deck leaves the window.

#include "deck/life/ask_file_name.h"
#include "deck/life/deck_life.h"
#include "machine/message_box.h"

namespace tessara {

void DeckLife::OfferToSave() {
  ProgramState& state = State();
  MessageBoxes& messages = App().machine.messages;
  if (!state.deck.changed || !state.deck.HasCards()) return;
  const MessageAnswer reply =
      messages.Show(u"There have been changes to this Tessara.Do you want to save them?",
                    kQuestionIcon + kYesNo, u"Unsaved Changes: ");
  if (reply != MessageAnswer::kYes) return App().unsaved.GivenUp();
  const bool asks = state.deck.filePath.empty();
  if (asks) state.deck.filePath = AskDeckFile(FileDialogMode::kSave);
  if (asks && NoAnswer(state.deck.filePath)) {
    messages.Show(u"This file was not saved", kInformationIcon, u"File Not Saved");
  } else {
    SaveTessaraToFile(state.deck.filePath);
  }
  state.deck.changed = false;
}

}  // namespace tessara
