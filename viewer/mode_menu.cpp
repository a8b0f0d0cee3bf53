// The mode menu: which modes are offered, and which one is marked.

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

void frmMain::AutoModeMenu() {
  const Text& cardType = State().Cell(1, kCardType);
  const bool extended = cardType == u"M" || cardType == u"T";
  if (!extended && cardType != u"E") return;
  SetModeMenu(extended ? kExtendedDeck : kStandardDeck);
  mnuMode.SetEnabled(true);
  mnuGTP.SetEnabled(true);
}

}  // namespace tessara
