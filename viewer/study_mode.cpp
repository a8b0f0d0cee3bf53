// Study: paging both ways, turning cards over, and the buttons that all modes share.

#include "viewer/answer_text.h"
#include "viewer/frmMain.h"

namespace tessara {

void frmMain::cmdMove_Click(int Index) {
  if (State().CardMode == kStudyMode) {
    StudyModeScroll(Index);
  } else if (State().CardMode == kQuizMode) {
    QuizModeScroll();
  }
}

void frmMain::Command3_Click(int Index) {
  if (Index == 0) {
    NextQuestionOrScore();
  } else if (Index == 2) {
    Unload();
  } else if (State().DeckType == kStandardDeck) {
    StdCardOp_Flip();
    TestModeFlip();
    if (State().CardMode == kQuizMode) {
      NoteEndOfQuiz(u"This quiz is complete, please return to study mode");
    }
  } else if (State().DeckType == kExtendedDeck) {
    ExtCardOp_Flip();
    NoteEndOfQuiz(u"You have completed this quiz, please return to study mode");
  }
}

void frmMain::StudyModeScroll(int Index) {
  if (Index != 0 && Index != 1) return;
  State().CurrentCard = static_cast<std::int16_t>(State().CurrentCard + (Index == 0 ? -1 : 1));
  ShowCardText(State().CurrentCard, kCardText);
  SelectCardOp_Mode(State().CurrentCard);
  UpdateMoveButtons();
  ShowCardNumber();
  // At an end of the deck the arrow just pressed goes off: the other one is the next step.
  OfferNext({&cmdMove[Index], &cmdMove[1 - Index]});
}

void frmMain::SelectCardOp_Mode(std::int16_t ThisRecord) {
  if (State().DeckType == kStandardDeck) {
    StdCardOp_Scroll(ThisRecord);
  } else if (State().DeckType == kExtendedDeck) {
    ExtCardOp_Scroll(ThisRecord);
  }
}

void frmMain::StdCardOp_Scroll(std::int16_t xCurRec) {
  if (FlipCaption() == u"&Show Front") {
    ShowCardBack(true);
    ShowCardText(xCurRec, kBackText);
  } else if (FlipCaption() == u"&Show Back") {
    ShowCardBack(false);
    ShowCardText(xCurRec, kCardText);
  }
}

void frmMain::ExtCardOp_Scroll(std::int16_t xCurRec) {
  const bool answerOnShow = FlipCaption() == u"&Hide Answer";
  if (!answerOnShow && FlipCaption() != u"&Show Answer") return;
  if (answerOnShow) Picture1.SetVisible(true);
  ShowCardText(xCurRec, kCardText);
  ShowAnswer(xCurRec);
}

void frmMain::StdCardOp_Flip() {
  if (FlipCaption() == u"&Show Back") {
    ShowCardBack(true);
    ShowCardText(State().CurrentCard, kBackText);
    SetFlipCaption(u"&Show Front");
  } else if (FlipCaption() == u"&Show Front") {
    ShowCardBack(false);
    ShowCardText(State().CurrentCard, kCardText);
    SetFlipCaption(u"&Show Back");
  }
}

void frmMain::ExtCardOp_Flip() {
  ShowAnswer(State().CurrentCard);
  if (FlipCaption() == u"&Hide Answer") {
    Picture1.SetVisible(false);
    SetFlipCaption(u"&Show Answer");
  } else if (FlipCaption() == u"&Show Answer") {
    Picture1.SetVisible(true);
    SetFlipCaption(u"&Hide Answer");
  }
}

void frmMain::mnuStudy_Click() {
  const ProgramState& state = State();
  EnterMode(kStudyMode);
  if (state.DeckType == kStandardDeck) {
    ShowFirstCard(kStandardDeck);
    ConfigureStandardCard(kStudyMode);
    ShowCardBack(false);
  } else if (state.DeckType == kExtendedDeck) {
    ShowFirstCard(kExtendedDeck);
    ConfigureExtendedCard(kStudyMode);
  }
  UpdateMoveButtons();
  TurnNextOrScoreOff();
  // Undoubled: until the next move an ampersand in a choice marks an accelerator.
  Label2.SetCaption(AnswerText(state.Cell(state.CurrentCard, kAnswer), state.CurrentCard, state));
  KeepFocusInReach();
}

}  // namespace tessara
