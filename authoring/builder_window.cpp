#include "authoring/builder_window.h"

#include <utility>

#include "deck/delete_card_row.h"
#include "platform/message_box.h"

namespace tessara {

BuilderWindow::BuilderWindow(AppContext& app, std::string name, Window<frmMain> deck)
    : Form(app.windows, std::move(name), FormKind::kChild, u"Tessara"), app_(app), deck_(deck) {
  cmdMove.Wire(&Button::onClick, [this](int Index) { cmdMove_Click(Index); });
}

void BuilderWindow::Form_Unload(bool& /*cancel*/) {
  deck_->SetVisible(true);
  deck_->Show();
}

void BuilderWindow::cmdMove_Click(int Index) {
  ProgramState& state = State();
  UnderGuard([&] {
    AskSaveChanged();
    state.CurrentCard = static_cast<std::int16_t>(state.CurrentCard + (Index == 1 ? 1 : -1));
    ShowBuilderCard(state.CurrentCard);
    SetMoveButtons(cmdMove, state);
  });
}

void BuilderWindow::ShowState(BuilderState xState) {
  Buttons& buttons = ButtonsOf();
  buttons[kAddButton].SetEnabled(false);
  if (xState == BuilderState::kNew) {
    buttons[kNewButton].SetEnabled(false);
    buttons[kAddButton].SetCaption(u"&Add to deck");
    buttons[kCancelButton].SetCaption(u"&Cancel");
    for (Button& arrow : cmdMove) arrow.SetEnabled(false);
  } else {
    buttons[kNewButton].SetEnabled(State().CardCount < kMostCards);
    buttons[kAddButton].SetCaption(u"&Change");
    buttons[kCancelButton].SetEnabled(State().CardCount > 0);
    buttons[kCancelButton].SetCaption(u"&Delete form deck");
    SetMoveButtons(cmdMove, State());
  }
}

bool BuilderWindow::AskYesNo(const Text& question, int flags, const Text& title) {
  return app_.machine.messages.Show(question, flags + kYesNo, title) == MessageAnswer::kYes;
}

bool BuilderWindow::AskAboutChangedCard() {
  return AskYesNo(u"You have changed this card, do you want to save changes?", kQuestionIcon,
                  u"Changed Card");
}

void BuilderWindow::EnsureCurrentCard() {
  if (State().CurrentCard == 0) State().CurrentCard = 1;
}

void BuilderWindow::DeleteCurrentCard() {
  DeleteCardRow(State().CurrentCard, cmdMove, deck_->NoteletCtl1, State(), app_.machine.messages);
}

}  // namespace tessara
