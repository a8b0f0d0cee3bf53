// The mode menu: which modes are offered, which one is marked, and what entering one begins with.

#include "viewer/frmMain.h"

namespace tessara {

void frmMain::SetModeMenu(std::int32_t Typecard) {
  if (Typecard == kStandardDeck || Typecard == kExtendedDeck) ConfigModeMenu(true, true, true);
}

void frmMain::ConfigModeMenu(bool zStudy, bool zQuiz, bool zTest) {
  mnuStudy.SetVisible(zStudy);
  mnuQuiz.SetVisible(zQuiz);
  mnuTest.SetVisible(zTest);
}

void frmMain::ChkModeMenu(std::int32_t xMode) {
  mnuQuiz.SetChecked(xMode == kQuizMode);
  mnuStudy.SetChecked(xMode == kStudyMode);
  mnuTest.SetChecked(xMode == kTestMode);
}

void frmMain::EnterMode(Mode mode) {
  ProgramState& state = State();
  ChkModeMenu(mode);
  state.CardMode = mode;
  state.CurrentCard = 1;
  state.TestPoints = 0;
  ShowCardNumber();
  ShowTitle(mode);
  NoteletCtl1.SetCardBanner(u"");
  mnuFile.SetEnabled(mode == kStudyMode);
  mnuUtility.SetEnabled(mode == kStudyMode);
}

void frmMain::TurnNextOrScoreOff() {
  Command3[kNextOrScore].SetEnabled(false);
  Command3[kNextOrScore].SetCaption(u"");
}

void frmMain::AutoModeMenu() {
  const Text& cardType = State().Cell(1, kCardType);
  const bool extended = cardType == u"M" || cardType == u"T";
  if (!extended && cardType != u"E") return;
  SetModeMenu(extended ? kExtendedDeck : kStandardDeck);
  mnuMode.SetEnabled(true);
  mnuGTP.SetEnabled(true);
}

}  // namespace tessara
