// The commands on single cards: delete, and go to a card by its number.

#include <optional>

#include "deck/delete_card_row.h"
#include "platform/conversion.h"
#include "platform/dialogs.h"
#include "platform/message_box.h"
#include "platform/run_time_error.h"
#include "viewer/frmMain.h"

namespace tessara {

namespace {

Text NoSuchCard(const Text& answer, int cards) {
  const bool one = cards == 1;
  return u"Card # " + answer + u" does not exist there " + (one ? u"is only " : u"are only ") +
         DecimalText(cards) + (one ? u" card" : u" cards") + u" in this deck. Please try again";
}

}  // namespace

void frmMain::mnuDelete_Click() {
  ProgramState& state = State();
  DeleteCardRow(state.CurrentCard, cmdMove, NoteletCtl1, state, App().machine.messages);
  CompactCards(state);
  ShowCardText(state.CurrentCard, kCardText);
  ShowAnswer(state.CurrentCard);
  state.DeckChanged = true;
  mnuSave.SetEnabled(true);
  if (state.CardCount < 1) {
    CardDel_Std();
  } else {
    MenuOp(true);
    Command3[kFlip].SetEnabled(true);
    SetGoToMenu();
  }
  mnuPrint.SetEnabled(state.CardCount >= 1);
  if (state.DeckType == kExtendedDeck) Command3[kFlip].SetEnabled(state.CardMode != kStudyMode);
  KeepFocusInReach();
}

void frmMain::CardDel_Std() {
  const bool hasCards = State().CardCount >= 1;
  MenuOp(hasCards);
  Command3[kFlip].SetEnabled(false);
  if (!hasCards) ShowCardBack(false);
  mnuGTP.SetEnabled(hasCards);
}

void frmMain::mnuGTP_Click() {
  const std::optional<Text> answer = App().machine.dialogs.AskText(
      u"Please enter a card number.", u"Go To Card", DecimalText(State().CurrentCard));
  if (!answer || answer->empty()) return;
  try {
    GoToCard(*answer);
  } catch (const RunTimeError& error) {
    if (error.Number() != ErrorNumber::kTypeMismatch) return;
    App().machine.messages.Show(u"Please enter numbers only!!!", kStopIcon, u"Invalid Entry");
  }
}

void frmMain::GoToCard(const Text& answer) {
  const int cards = State().CardCount;
  MessageBoxes& messages = App().machine.messages;
  const std::int16_t number = IntegerOf(answer);
  if (number > cards) {
    if (cards >= 1) messages.Show(NoSuchCard(answer, cards), kStopIcon, u"Go To card # " + answer);
  } else if (number < 1) {
    messages.Show(answer + u" is not a valid card number.", kStopIcon, u"Invalid Entry");
  } else {
    ShowCard(number);
  }
}

void frmMain::ShowCard(std::int16_t number) {
  State().CurrentCard = number;
  ShowCardText(number, kCardText);
  SelectCardOp_Mode(number);
  UpdateMoveButtons();
  NoteletCtl1.SetCardTotal(DecimalText(State().CardCount));
  ShowCardNumber();
  KeepFocusInReach();
}

}  // namespace tessara
