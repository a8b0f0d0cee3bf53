// Quiz: forward only, the user judges, no score.

#include "viewer/frmMain.h"

namespace tessara {

void frmMain::mnuQuiz_Click() {
  ProgramState& state = State();
  ChkModeMenu(kQuizMode);
  if (state.DeckType == kExtendedDeck) {
    ConfigureExtendedCard(kQuizMode);
  } else if (state.DeckType == kStandardDeck) {
    ConfigureStandardCard(kQuizMode);
  }
  state.CardMode = kQuizMode;
  UpdateMoveButtons();
  state.CurrentCard = 1;
  ShowCardText(1, kCardText);
  NoteletCtl1.SetCardNumber(u"1");
  cmdMove[0].SetEnabled(false);
  cmdMove[1].SetEnabled(true);
  ShowTitle(u"[QUIZ]");
  Command3[0].SetEnabled(false);
  Command3[0].SetCaption(u"");
  state.TestPoints = 0;
  mnuFile.SetEnabled(false);
  mnuUtility.SetEnabled(false);
  NoteletCtl1.SetCardBanner(u"");
  OfferNext({&Command3[1]});
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
  cmdMove[0].SetEnabled(false);
  ++state.CurrentCard;
  ShowCardText(state.CurrentCard, kCardText);
  ShowCardNumber();
  cmdMove[1].SetEnabled(state.CurrentCard < state.CardCount);
  OfferNext({&Command3[1]});
}

void frmMain::NoteEndOfQuiz(TextView banner) {
  if (State().CurrentCard != State().CardCount) {
    OfferNext({&cmdMove[1]});
    return;
  }
  cmdMove[1].SetEnabled(false);
  NoteletCtl1.SetCardBanner(Text(banner));
}

}  // namespace tessara
