// Quiz: forward only, the user judges, no score.

#include "viewer/frmMain.h"

namespace tessara {

void frmMain::mnuQuiz_Click() {
  EnterMode(kQuizMode);
  if (State().DeckType == kExtendedDeck) {
    ConfigureExtendedCard(kQuizMode);
  } else if (State().DeckType == kStandardDeck) {
    ConfigureStandardCard(kQuizMode);
  }
  ShowCardText(1, kCardText);
  cmdMove[kPreviousCard].SetEnabled(false);
  cmdMove[kNextCard].SetEnabled(true);
  TurnNextOrScoreOff();
  OfferNext({&Command3[kFlip]});
}

void frmMain::QuizModeScroll() {
  if (State().DeckType == kExtendedDeck) {
    QuizModeScroll_Ext();
  } else if (State().DeckType == kStandardDeck) {
    QuizModeScroll_Std();
  }
}

void frmMain::QuizModeScroll_Std() {
  ShowCardBack(false);
  SetFlipCaption(u"&Show Back");
  QuizNextCard();
}

void frmMain::QuizModeScroll_Ext() {
  Picture1.SetVisible(false);
  SetFlipCaption(u"&Show Answer");
  QuizNextCard();
}

void frmMain::QuizNextCard() {
  ProgramState& state = State();
  cmdMove[kPreviousCard].SetEnabled(false);
  ++state.CurrentCard;
  ShowCardText(state.CurrentCard, kCardText);
  ShowCardNumber();
  cmdMove[kNextCard].SetEnabled(state.CurrentCard < state.CardCount);
  OfferNext({&Command3[kFlip]});
}

void frmMain::NoteEndOfQuiz(TextView banner) {
  if (State().CurrentCard != State().CardCount) {
    OfferNext({&cmdMove[kNextCard]});
    return;
  }
  cmdMove[kNextCard].SetEnabled(false);
  NoteletCtl1.SetCardBanner(Text(banner));
}

}  // namespace tessara
