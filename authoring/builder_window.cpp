#include "authoring/builder_window.h"

#include <algorithm>
#include <utility>

#include "deck/delete_card_row.h"
#include "platform/message_box.h"

namespace tessara {

namespace {

constexpr TextView kAddCaption = u"&Add to deck";
constexpr TextView kCancelCaption = u"&Cancel";

}  // namespace

BuilderWindow::BuilderWindow(AppContext& app, std::string name, Window<frmMain> deck)
    : Form(app.windows, std::move(name), FormKind::kChild, u"Tessara"), app_(app), deck_(deck) {
  cmdMove.Wire(&Button::onClick, [this](int Index) { cmdMove_Click(Index); });
}

void BuilderWindow::Form_Unload(bool& /*cancel*/) {
  deck_->SetVisible(true);
  deck_->Show();
}

template <class Command>
void BuilderWindow::KeepFocus(const Button& pressed, const Command& command,
                              std::initializer_list<Button*> others) {
  const bool hadFocus = FocusedControl() == &pressed;
  command();
  const bool lost = hadFocus && !pressed.Enabled();
  // The command itself may have gone to a box.
  if (!lost || FocusedControl()->Kind() == ControlKind::kTextBox) return;
  const auto* next = std::find_if(others.begin(), others.end(),
                                  [](const Button* other) { return other->Reachable(); });
  if (next != others.end()) (*next)->SetFocus();
}

void BuilderWindow::cmdMove_Click(int Index) {
  ProgramState& state = State();
  const auto move = [&] {
    AskSaveChanged();
    state.CurrentCard = static_cast<std::int16_t>(state.CurrentCard + (Index == 1 ? 1 : -1));
    ShowBuilderCard(state.CurrentCard);
    SetMoveButtons(cmdMove, state);
  };
  KeepFocus(cmdMove[Index], [&] { UnderGuard(move); }, {&cmdMove[1 - Index]});
}

void BuilderWindow::Button_Click(int Index) {
  Buttons& buttons = ButtonsOf();
  switch (Index) {
    case kNewButton:
      StartNewCard();
      break;
    case kAddButton:
      KeepFocus(buttons[kAddButton], [this] { AddOrChange(); },
                {&buttons[kNewButton], &buttons[kCloseButton]});
      break;
    case kCancelButton:
      CancelOrDelete();
      break;
    default:
      Close();
  }
}

void BuilderWindow::SetBuilderState(BuilderState xState) {
  Buttons& buttons = ButtonsOf();
  buttons[kAddButton].SetEnabled(false);
  if (xState == BuilderState::kNew) {
    buttons[kNewButton].SetEnabled(false);
    buttons[kAddButton].SetCaption(Text(kAddCaption));
    buttons[kCancelButton].SetCaption(Text(kCancelCaption));
    for (Button& arrow : cmdMove) arrow.SetEnabled(false);
  } else {
    buttons[kNewButton].SetEnabled(State().CardCount < kMostCards);
    buttons[kAddButton].SetCaption(u"&Change");
    buttons[kCancelButton].SetEnabled(State().CardCount > 0);
    buttons[kCancelButton].SetCaption(u"&Delete form deck");
    SetMoveButtons(cmdMove, State());
  }
}

void BuilderWindow::PrepareNewCard() {
  ButtonsOf()[kNewButton].SetEnabled(false);
  ButtonsOf()[kAddButton].SetCaption(Text(kAddCaption));
  ClearForm();
  FirstBox().SetFocus();
  ShowNextNumber();
  State().CardChanged = false;
}

void BuilderWindow::StartNewCard() {
  State().CardChanged = true;
  AskSaveChanged();
  PrepareNewCard();
  SetBuilderState(BuilderState::kNew);
  ButtonsOf()[kCancelButton].SetEnabled(true);
  State().CurrentCard = static_cast<std::int16_t>(State().CardCount + 1);
}

void BuilderWindow::AddOrChange() {
  if (Adding()) {
    AddCard();
    ShowBuilderCard(State().CurrentCard);
    SetBuilderState(BuilderState::kOld);
    deck_->SetGoToMenu();
  } else {
    ChangeCard();
    ButtonsOf()[kAddButton].SetEnabled(false);
  }
  State().DeckChanged = true;
  State().SaveOffered = true;
}

void BuilderWindow::CancelOrDelete() {
  if (Cancelling()) {
    Cancel();
  } else {
    Delete();
  }
  ButtonsOf()[kAddButton].SetEnabled(false);
}

void BuilderWindow::Delete() {
  ProgramState& state = State();
  DeleteCardRow(state.CurrentCard, cmdMove, deck_->NoteletCtl1, state, app_.machine.messages);
  UnderGuard([this] { ClearForm(); });
  // Also where the user said no.
  state.DeckChanged = true;
  if (state.CardCount != 0) {
    UnderGuard([&] { ShowBuilderCard(state.CurrentCard); });
    SetBuilderState(BuilderState::kOld);
  } else {
    WaitForFirstCard();
  }
  deck_->SetGoToMenu();
}

void BuilderWindow::WaitForFirstCard() {
  SetBuilderState(BuilderState::kNew);
  ButtonsOf()[kCancelButton].SetEnabled(false);
  FirstBox().SetFocus();
}

bool BuilderWindow::Adding() {
  return ButtonsOf()[kAddButton].Caption() == kAddCaption;
}

bool BuilderWindow::Cancelling() {
  return ButtonsOf()[kCancelButton].Caption() == kCancelCaption;
}

bool BuilderWindow::AskYesNo(const Text& question, const Text& title) {
  return app_.machine.messages.Show(question, kQuestionIcon + kYesNo, title) == MessageAnswer::kYes;
}

bool BuilderWindow::AskAboutChangedCard() {
  return AskYesNo(u"You have changed this card, do you want to save changes?", u"Changed Card");
}

void BuilderWindow::EnsureCurrentCard() {
  if (State().CurrentCard == 0) State().CurrentCard = 1;
}

}  // namespace tessara
