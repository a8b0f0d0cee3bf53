#include "authoring/builder_window.h"

#include <algorithm>
#include <utility>

#include "deck/delete_card_row.h"
#include "machine/message_box.h"

namespace tessara {

namespace {

constexpr Color kBlue = FixedColor(0, 0, 255);
constexpr TextView kAddCaption = u"&Add to deck";
constexpr TextView kCancelCaption = u"&Cancel";

}  // namespace

BuilderWindow::BuilderWindow(AppContext& app, std::string name, Window<DeckWindow> deck)
    : Form(app.windows, std::move(name), FormKind::kChild, u"Tessara"), app_(app), deck_(deck) {
  heading.SetFont({u"MS Sans Serif", 9.75});
  heading.SetForeColor(kBlue);
  arrows.Wire(&Button::onClick, [this](int arrow) { Page(arrow); });
  SetPageButtons(arrows[kPreviousCard], arrows[kNextCard]);
}

void BuilderWindow::OnUnload(bool& /*cancel*/) {
  deck_->SetVisible(true);
  deck_->Show();
}

bool BuilderWindow::HoldsUnkeptText() {
  const int row = State().deck.currentCard;
  const auto differs = [&](const auto& box) {
    const Text& text = box.first->TextOf();
    return Adding() ? !text.empty() : text != State().deck.Cell(row, box.second);
  };
  const auto boxes = Boxes();
  return ButtonsOf()[kAddButton].Enabled() || std::any_of(boxes.begin(), boxes.end(), differs);
}

bool BuilderWindow::OnKey(WindowKey key) {
  if (key != WindowKey::kKeep) return false;
  Keep();
  return true;
}

void BuilderWindow::Keep() {
  const bool wasNew = Adding();
  ButtonsOf()[kAddButton].Press();
  if (wasNew && !Adding()) ButtonsOf()[kNewButton].Press();
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

void BuilderWindow::Page(int arrow) {
  ProgramState& state = State();
  const auto move = [&] {
    AskSaveChanged();
    state.deck.currentCard =
        static_cast<std::int16_t>(state.deck.currentCard + (arrow == kNextCard ? 1 : -1));
    ShowBuilderCard(state.deck.currentCard);
    SetMoveButtons(arrows, state);
  };
  KeepFocus(arrows[arrow], [&] { UnderGuard(move); }, {&arrows[1 - arrow]});
}

void BuilderWindow::PressButton(int button) {
  Buttons& buttons = ButtonsOf();
  switch (button) {
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

void BuilderWindow::SetBuilderState(BuilderState state) {
  Buttons& buttons = ButtonsOf();
  buttons[kAddButton].SetEnabled(false);
  if (state == BuilderState::kNew) {
    buttons[kNewButton].SetEnabled(false);
    buttons[kAddButton].SetCaption(Text(kAddCaption));
    buttons[kCancelButton].SetCaption(Text(kCancelCaption));
    for (Button& arrow : arrows) arrow.SetEnabled(false);
  } else {
    buttons[kNewButton].SetEnabled(State().deck.cardCount < kMostCards);
    buttons[kAddButton].SetCaption(u"&Change");
    buttons[kCancelButton].SetEnabled(State().deck.cardCount > 0);
    buttons[kCancelButton].SetCaption(u"&Delete form deck");
    SetMoveButtons(arrows, State());
  }
}

void BuilderWindow::PrepareNewCard() {
  ButtonsOf()[kNewButton].SetEnabled(false);
  ButtonsOf()[kAddButton].SetCaption(Text(kAddCaption));
  ClearForm();
  FirstBox().SetFocus();
  ShowNextNumber();
  State().building.fillingBoxes = false;
}

void BuilderWindow::StartNewCard() {
  State().building.fillingBoxes = true;
  AskSaveChanged();
  PrepareNewCard();
  SetBuilderState(BuilderState::kNew);
  ButtonsOf()[kCancelButton].SetEnabled(true);
  State().deck.currentCard = static_cast<std::int16_t>(State().deck.cardCount + 1);
}

void BuilderWindow::AddOrChange() {
  if (Adding()) {
    AddCard();
    ShowBuilderCard(State().deck.currentCard);
    SetBuilderState(BuilderState::kOld);
    deck_->SetGoToMenu();
  } else {
    ChangeCard();
    ButtonsOf()[kAddButton].SetEnabled(false);
  }
  State().deck.changed = true;
  State().deck.saveOffered = true;
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
  DeleteCardRow(state.deck.currentCard, arrows, deck_->card, state, app_.machine.messages);
  UnderGuard([this] { ClearForm(); });
  // Also where the user said no.
  state.deck.changed = true;
  if (state.deck.cardCount != 0) {
    UnderGuard([&] { ShowBuilderCard(state.deck.currentCard); });
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
  if (State().deck.currentCard == 0) State().deck.currentCard = 1;
}

}  // namespace tessara
