// The commands on single cards: delete, and go to a card by its number.

#include <optional>

#include "base/conversion.h"
#include "base/run_time_error.h"
#include "deck/delete_card_row.h"
#include "machine/dialogs.h"
#include "machine/message_box.h"
#include "viewer/deck_window.h"

namespace tessara {

namespace {

Text NoSuchCard(const Text& answer, int cards) {
  const bool one = cards == 1;
  return u"Card # " + answer + u" does not exist there " + (one ? u"is only " : u"are only ") +
         DecimalText(cards) + (one ? u" card" : u" cards") + u" in this deck. Please try again";
}

}  // namespace

void DeckWindow::DeleteCard() {
  ProgramState& state = State();
  DeleteCardRow(state.deck.currentCard, arrows, card, state, App().machine.messages);
  CompactCards(state.deck);
  ShowCardText(state.deck.currentCard, kCardText);
  ShowAnswer(state.deck.currentCard);
  state.deck.changed = true;
  saveDeck.SetEnabled(true);
  if (state.deck.cardCount < 1) {
    FollowCardCount();
  } else {
    EnableDelete(true);
    flip.SetEnabled(true);
    SetGoToMenu();
  }
  printDeck.SetEnabled(state.deck.cardCount >= 1);
  if (state.deck.kind == kExtendedDeck) flip.SetEnabled(state.deck.mode != kStudyMode);
  KeepFocusInReach();
}

void DeckWindow::FollowCardCount() {
  const bool hasCards = State().deck.cardCount >= 1;
  EnableDelete(hasCards);
  flip.SetEnabled(false);
  if (!hasCards) ShowCardBack(false);
  goToCard.SetEnabled(hasCards);
}

void DeckWindow::AskForCard() {
  const std::optional<Text> entered = App().machine.dialogs.AskText(
      u"Please enter a card number.", u"Go To Card", DecimalText(State().deck.currentCard));
  if (!entered || entered->empty()) return;
  try {
    GoToCard(*entered);
  } catch (const RunTimeError& error) {
    if (error.Number() != ErrorNumber::kTypeMismatch) return;
    App().machine.messages.Show(u"Please enter numbers only!!!", kStopIcon, u"Invalid Entry");
  }
}

void DeckWindow::GoToCard(const Text& entered) {
  const int cards = State().deck.cardCount;
  MessageBoxes& messages = App().machine.messages;
  const std::int16_t number = IntegerOf(entered);
  if (number > cards) {
    if (cards >= 1)
      messages.Show(NoSuchCard(entered, cards), kStopIcon, u"Go To card # " + entered);
  } else if (number < 1) {
    messages.Show(entered + u" is not a valid card number.", kStopIcon, u"Invalid Entry");
  } else {
    ShowCard(number);
  }
}

void DeckWindow::ShowCard(std::int16_t number) {
  State().deck.currentCard = number;
  ShowCardText(number, kCardText);
  ShowCardOfKind(number);
  UpdateMoveButtons();
  card.SetCardTotal(DecimalText(State().deck.cardCount));
  ShowCardNumber();
  KeepFocusInReach();
}

}  // namespace tessara
