// Quiz: forward only, the user judges, no score.

#include "viewer/deck_window.h"

namespace tessara {

void DeckWindow::EnterQuizMode() {
  EnterMode(kQuizMode);
  if (State().deck.kind == kExtendedDeck) {
    ConfigureExtendedCard(kQuizMode);
  } else if (State().deck.kind == kStandardDeck) {
    ConfigureStandardCard(kQuizMode);
  }
  ShowCardText(1, kCardText);
  arrows[kPreviousCard].SetEnabled(false);
  arrows[kNextCard].SetEnabled(true);
  TurnNextOrScoreOff();
  OfferNext({&flip});
}

void DeckWindow::TurnQuizCard() {
  if (State().deck.kind == kExtendedDeck) {
    TurnQuizQuestion();
  } else if (State().deck.kind == kStandardDeck) {
    TurnQuizTextCard();
  }
}

void DeckWindow::TurnQuizTextCard() {
  ShowCardBack(false);
  OfferFlip(FlipAction::kShowBack);
  QuizNextCard();
}

void DeckWindow::TurnQuizQuestion() {
  answerCard.SetVisible(false);
  OfferFlip(FlipAction::kShowAnswer);
  QuizNextCard();
}

void DeckWindow::QuizNextCard() {
  ProgramState& state = State();
  arrows[kPreviousCard].SetEnabled(false);
  ++state.deck.currentCard;
  ShowCardText(state.deck.currentCard, kCardText);
  ShowCardNumber();
  arrows[kNextCard].SetEnabled(state.deck.currentCard < state.deck.cardCount);
  OfferNext({&flip});
}

void DeckWindow::NoteEndOfQuiz(TextView banner) {
  if (State().deck.currentCard != State().deck.cardCount) {
    OfferNext({&arrows[kNextCard]});
    return;
  }
  arrows[kNextCard].SetEnabled(false);
  card.SetCardBanner(Text(banner));
}

}  // namespace tessara
