// How a deck comes up in the window, and how the window is brought up to date.

#include "deck/card_display.h"
#include "forms/place_in_frame.h"
#include "viewer/answer_text.h"
#include "viewer/deck_window.h"

namespace tessara {

namespace {

constexpr int kAskedHeight = 6000;
constexpr int kAskedWidth = 7320;

}  // namespace

void DeckWindow::CommandLineLoad(const Text& fileName) {
  LoadAndShowDeck(fileName);
}

void DeckWindow::ShowNewCard(DeckKind kind) {
  if (kind == kStandardDeck) {
    ConfigureStandardCard(kStudyMode);
  } else if (kind == kExtendedDeck) {
    ConfigureExtendedCard(kStudyMode);
  }
  SetModeMenu(kind);
}

void DeckWindow::OpenStandardView() {
  ShowNewCard(kStandardDeck);
  PlaceInFrame(*this, kAskedHeight, kAskedWidth);
  State().deck.kind = kStandardDeck;
  OfferFlip(FlipAction::kShowBack);
  MarkModeInMenu(kStudyMode);
  OfferNext({&flip});
}

void DeckWindow::OpenExtendedView() {
  ShowNewCard(kExtendedDeck);
  PlaceInFrame(*this, kAskedHeight, kAskedWidth);
  State().deck.kind = kExtendedDeck;
  OfferFlip(FlipAction::kShowAnswer);
  MarkModeInMenu(kStudyMode);
  // Without a second card the arrow still works here, but not much longer.
  if (State().deck.cardCount > 1) {
    OfferNext({&arrows[kNextCard]});
  } else {
    OfferNext({&card});
  }
}

void DeckWindow::ShowFirstCard(DeckKind kind) {
  ShowCardText(1, kCardText);
  if (kind != kExtendedDeck) return;
  // The key is that of card 1, the row that of the card on show.
  const Text& key = State().deck.Cell(1, kAnswer);
  answer.SetCaption(DoubleAmps(AnswerText(key, State().deck.currentCard, State())));
}

void DeckWindow::AfterEditShow(DeckKind kind) {
  ProgramState& state = State();
  if (kind == kStandardDeck) {
    if (OffersFlip(FlipAction::kShowFront)) {
      ShowCardText(state.deck.currentCard, kBackText);
    } else if (OffersFlip(FlipAction::kShowBack)) {
      ShowCardText(state.deck.currentCard, kCardText);
    }
  } else if (kind == kExtendedDeck) {
    ShowCardText(state.deck.currentCard, kCardText);
    ShowAnswer(state.deck.currentCard);
  }
  ShowCardNumber();
  card.SetCardTotal(DecimalText(state.deck.cardCount));
  EnableDelete(state.deck.cardCount >= 1);
  if (state.deck.cardCount >= 1 && state.deck.saveOffered) saveDeck.SetEnabled(true);
}

void DeckWindow::ConfigSaveMenu() {
  saveDeck.SetEnabled(State().deck.changed);
}

}  // namespace tessara
