#include "deck/deck_window.h"

#include "deck/ask_file_name.h"
#include "deck/deck_name.h"

namespace tessara {

namespace {

constexpr TextView kNewDeck = u"New Deck";

}  // namespace

DeckWindow::DeckWindow(AppContext& app, FileNumber& fileNumber, Window<frmInfo> info)
    : Form(app.windows, "frmMain", FormKind::kChild, Text(kNewDeck)),
      app_(app),
      fileNumber_(fileNumber),
      info_(info) {}

void DeckWindow::NewTessara() {
  ProgramState& state = State();
  App().unsaved.Leave();
  ClearAllCards(state);
  Card().SetCardTotal(u"0");
  Card().SetCardText(u"");
  Label2.SetCaption(u"");
  SetCaption(Text(kNewDeck));
  state.CardCount = 0;
  state.DeckFilePath.clear();
  state.SaveOffered = false;
  state.TestPoints = 0;
  UpdateMoveButtons();
  mnuPrint.SetEnabled(false);
  Command3[kFlip].SetEnabled(false);
  App().unsaved.Follow(UnsavedDeck::Table::kAsInFile);
}

void DeckWindow::ShowTitle(Mode mode) {
  constexpr TextView kMarks[] = {u"[STUDY]", u"[QUIZ]", u"[TEST]"};
  SetCaption(DeckNameOf(State().DeckFilePath) + u"  " + Text(kMarks[mode]));
}

void DeckWindow::MenuOp(bool xState) {
  mnuDelete.SetEnabled(xState);
}

Text DeckWindow::SaveThisorThat(const Text& xStr1, const Text& xStr2) {
  return xStr1.empty() ? xStr2 : xStr1;
}

void DeckWindow::UpdateMoveButtons() {
  const ProgramState& state = State();
  const bool hasCards = state.CardCount != 0;
  cmdMove[kPreviousCard].SetEnabled(hasCards && state.CurrentCard != 1);
  cmdMove[kNextCard].SetEnabled(hasCards && state.CurrentCard != state.CardCount);
}

void DeckWindow::SetGoToMenu() {
  mnuGTP.SetEnabled(State().CardCount > 1);
}

Text DeckWindow::AskDeckFile(FileDialogMode mode) {
  return AskFileName(mode, kDeckFilter, App());
}

}  // namespace tessara
