// Study: paging both ways, turning cards over, and the buttons that all modes share.

#include "viewer/answer_text.h"
#include "viewer/deck_window.h"

namespace tessara {

void DeckWindow::Page(int arrow) {
  if (State().deck.mode == kStudyMode) {
    TurnStudyCard(arrow);
  } else if (State().deck.mode == kQuizMode) {
    TurnQuizCard();
  }
}

void DeckWindow::FlipCard() {
  if (State().deck.kind == kStandardDeck) {
    FlipTextCard();
    OfferCredit();
    if (State().deck.mode == kQuizMode) {
      NoteEndOfQuiz(u"This quiz is complete, please return to study mode");
    }
  } else if (State().deck.kind == kExtendedDeck) {
    FlipQuestionCard();
    NoteEndOfQuiz(u"You have completed this quiz, please return to study mode");
  }
}

void DeckWindow::TurnStudyCard(int arrow) {
  if (arrow != kPreviousCard && arrow != kNextCard) return;
  const int step = arrow == kPreviousCard ? -1 : 1;
  State().deck.currentCard = static_cast<std::int16_t>(State().deck.currentCard + step);
  ShowCardText(State().deck.currentCard, kCardText);
  ShowCardOfKind(State().deck.currentCard);
  UpdateMoveButtons();
  ShowCardNumber();
  // At an end of the deck the arrow just pressed goes off: the other one is the next step.
  OfferNext({&arrows[arrow], &arrows[1 - arrow]});
}

void DeckWindow::ShowCardOfKind(std::int16_t row) {
  if (State().deck.kind == kStandardDeck) {
    ShowTextCard(row);
  } else if (State().deck.kind == kExtendedDeck) {
    ShowQuestionCard(row);
  }
}

void DeckWindow::ShowTextCard(std::int16_t row) {
  if (OffersFlip(FlipAction::kShowFront)) {
    ShowCardBack(true);
    ShowCardText(row, kBackText);
  } else if (OffersFlip(FlipAction::kShowBack)) {
    ShowCardBack(false);
    ShowCardText(row, kCardText);
  }
}

void DeckWindow::ShowQuestionCard(std::int16_t row) {
  const bool answerOnShow = OffersFlip(FlipAction::kHideAnswer);
  if (!answerOnShow && !OffersFlip(FlipAction::kShowAnswer)) return;
  if (answerOnShow) answerCard.SetVisible(true);
  ShowCardText(row, kCardText);
  ShowAnswer(row);
}

void DeckWindow::FlipTextCard() {
  if (OffersFlip(FlipAction::kShowBack)) {
    ShowCardBack(true);
    ShowCardText(State().deck.currentCard, kBackText);
    OfferFlip(FlipAction::kShowFront);
  } else if (OffersFlip(FlipAction::kShowFront)) {
    ShowCardBack(false);
    ShowCardText(State().deck.currentCard, kCardText);
    OfferFlip(FlipAction::kShowBack);
  }
}

void DeckWindow::FlipQuestionCard() {
  ShowAnswer(State().deck.currentCard);
  if (OffersFlip(FlipAction::kHideAnswer)) {
    answerCard.SetVisible(false);
    OfferFlip(FlipAction::kShowAnswer);
  } else if (OffersFlip(FlipAction::kShowAnswer)) {
    answerCard.SetVisible(true);
    OfferFlip(FlipAction::kHideAnswer);
  }
}

void DeckWindow::EnterStudyMode() {
  const ProgramState& state = State();
  EnterMode(kStudyMode);
  if (state.deck.kind == kStandardDeck) {
    ShowFirstCard(kStandardDeck);
    ConfigureStandardCard(kStudyMode);
    ShowCardBack(false);
  } else if (state.deck.kind == kExtendedDeck) {
    ShowFirstCard(kExtendedDeck);
    ConfigureExtendedCard(kStudyMode);
  }
  UpdateMoveButtons();
  TurnNextOrScoreOff();
  // Undoubled: until the next move an ampersand in a choice marks an accelerator.
  answer.SetCaption(
      AnswerText(state.deck.Cell(state.deck.currentCard, kAnswer), state.deck.currentCard, state));
  KeepFocusInReach();
}

}  // namespace tessara
