// Study: paging both ways, turning cards over, and the buttons that all modes share.

#include "viewer/answer_text.h"
#include "viewer/deck_window.h"

namespace tessara {

void DeckWindow::Page(int arrow) {
  if (State().deck.mode == kStudyMode) {
    StudyModeScroll(arrow);
  } else if (State().deck.mode == kQuizMode) {
    QuizModeScroll();
  }
}

void DeckWindow::FlipCard() {
  if (State().deck.kind == kStandardDeck) {
    StdCardOp_Flip();
    TestModeFlip();
    if (State().deck.mode == kQuizMode) {
      NoteEndOfQuiz(u"This quiz is complete, please return to study mode");
    }
  } else if (State().deck.kind == kExtendedDeck) {
    ExtCardOp_Flip();
    NoteEndOfQuiz(u"You have completed this quiz, please return to study mode");
  }
}

void DeckWindow::StudyModeScroll(int arrow) {
  if (arrow != kPreviousCard && arrow != kNextCard) return;
  const int step = arrow == kPreviousCard ? -1 : 1;
  State().deck.currentCard = static_cast<std::int16_t>(State().deck.currentCard + step);
  ShowCardText(State().deck.currentCard, kCardText);
  SelectCardOp_Mode(State().deck.currentCard);
  UpdateMoveButtons();
  ShowCardNumber();
  // At an end of the deck the arrow just pressed goes off: the other one is the next step.
  OfferNext({&arrows[arrow], &arrows[1 - arrow]});
}

void DeckWindow::SelectCardOp_Mode(std::int16_t row) {
  if (State().deck.kind == kStandardDeck) {
    StdCardOp_Scroll(row);
  } else if (State().deck.kind == kExtendedDeck) {
    ExtCardOp_Scroll(row);
  }
}

void DeckWindow::StdCardOp_Scroll(std::int16_t row) {
  if (OffersFlip(FlipAction::kShowFront)) {
    ShowCardBack(true);
    ShowCardText(row, kBackText);
  } else if (OffersFlip(FlipAction::kShowBack)) {
    ShowCardBack(false);
    ShowCardText(row, kCardText);
  }
}

void DeckWindow::ExtCardOp_Scroll(std::int16_t row) {
  const bool answerOnShow = OffersFlip(FlipAction::kHideAnswer);
  if (!answerOnShow && !OffersFlip(FlipAction::kShowAnswer)) return;
  if (answerOnShow) answerCard.SetVisible(true);
  ShowCardText(row, kCardText);
  ShowAnswer(row);
}

void DeckWindow::StdCardOp_Flip() {
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

void DeckWindow::ExtCardOp_Flip() {
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
