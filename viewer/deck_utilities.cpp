// The commands on single cards: delete, and go to a card by its number.

#include <optional>

#include "deck/delete_card_row.h"
#include "platform/conversion.h"
#include "platform/dialogs.h"
#include "platform/message_box.h"
#include "platform/run_time_error.h"
#include "viewer/frmMain.h"

namespace tessara {

void frmMain::mnuDelete_Click() {
  ProgramState& state = State();
  DeleteCardRow(state.CurrentCard, cmdMove, NoteletCtl1, state, App().machine.messages);
  CompactCards(state);
  ShowCardText(state.CurrentCard, kCardText);
  ShowAnswer(state.CurrentCard);
  state.DeckChanged = true;
  mnuSave.SetEnabled(true);
  if (state.CardCount < 1) {
    MenuOp(false);
    Command3[1].SetEnabled(false);
    ShowCardBack(false);
    mnuGTP.SetEnabled(false);
  } else {
    MenuOp(true);
    Command3[1].SetEnabled(true);
    SetGoToMenu();
  }
  mnuPrint.SetEnabled(state.CardCount >= 1);
  if (state.DeckType == kExtendedDeck) Command3[1].SetEnabled(state.CardMode != kStudyMode);
  KeepFocusInReach();
}

void frmMain::CardDel_Std() {
  const bool hasCards = State().CardCount >= 1;
  MenuOp(hasCards);
  Command3[1].SetEnabled(false);
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
  ProgramState& state = State();
  MessageBoxes& messages = App().machine.messages;
  const std::int16_t number = IntegerOf(answer);
  if (number > state.CardCount) {
    if (state.CardCount < 1) return;
    const bool one = state.CardCount == 1;
    messages.Show(
        u"Card # " + answer +
            (one ? u" does not exist there is only " : u" does not exist there are only ") +
            DecimalText(state.CardCount) +
            (one ? u" card in this deck. Please try again"
                 : u" cards in this deck. Please try again"),
        kStopIcon, u"Go To card # " + answer);
  } else if (number >= 1) {
    state.CurrentCard = number;
    ShowCardText(number, kCardText);
    SelectCardOp_Mode(number);
    UpdateMoveButtons();
    NoteletCtl1.SetCardTotal(DecimalText(state.CardCount));
    ShowCardNumber();
    KeepFocusInReach();
  } else {
    messages.Show(answer + u" is not a valid card number.", kStopIcon, u"Invalid Entry");
  }
}

}  // namespace tessara
