#include "deck/life/deck_life.h"

#include "deck/file/deck_path.h"
#include "deck/life/ask_file_name.h"

namespace tessara {

DeckLife::DeckLife(AppContext& app, FileNumber& fileNumber, Window<DeckInfoWindow> info)
    : Form(app.windows, "frmMain", FormKind::kChild, Text(kNewDeckName)),
      app_(app),
      fileNumber_(fileNumber),
      info_(info) {}

void DeckLife::NewTessara() {
  ProgramState& state = State();
  App().unsaved.Leave();
  ClearAllCards(state.deck);
  Card().SetCardTotal(u"0");
  Card().SetCardText(u"");
  answer.SetCaption(u"");
  SetCaption(Text(kNewDeckName));
  state.deck.cardCount = 0;
  state.deck.filePath.clear();
  state.deck.saveOffered = false;
  state.deck.testPoints = 0;
  UpdateMoveButtons();
  printDeck.SetEnabled(false);
  flip.SetEnabled(false);
  App().unsaved.Follow(UnsavedDeck::Table::kAsInFile);
}

void DeckLife::ShowTitle(CardMode mode) {
  SetCaption(DeckNameOf(State().deck.filePath) + u"  " + Text(MarkOf(mode)));
}

void DeckLife::EnableDelete(bool enabled) {
  deleteCard.SetEnabled(enabled);
}

Text DeckLife::SaveThisorThat(const Text& first, const Text& second) {
  return first.empty() ? second : first;
}

void DeckLife::UpdateMoveButtons() {
  const ProgramState& state = State();
  const bool hasCards = state.deck.cardCount != 0;
  arrows[kPreviousCard].SetEnabled(hasCards && state.deck.currentCard != 1);
  arrows[kNextCard].SetEnabled(hasCards && state.deck.currentCard != state.deck.cardCount);
}

void DeckLife::SetGoToMenu() {
  goToCard.SetEnabled(State().deck.cardCount > 1);
}

Text DeckLife::AskDeckFile(FileDialogMode mode) {
  return AskFileName(mode, kDeckFilter, App());
}

}  // namespace tessara
