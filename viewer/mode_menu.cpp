// The mode menu: which modes are offered, which one is marked, and what entering one begins with.

#include "deck/card_type.h"
#include "viewer/deck_window.h"

namespace tessara {

void DeckWindow::SetModeMenu(DeckKind kind) {
  if (kind == kStandardDeck || kind == kExtendedDeck) ConfigModeMenu(true, true, true);
}

void DeckWindow::ConfigModeMenu(bool offersStudy, bool offersQuiz, bool offersTest) {
  study.SetVisible(offersStudy);
  quiz.SetVisible(offersQuiz);
  test.SetVisible(offersTest);
}

void DeckWindow::MarkModeInMenu(CardMode mode) {
  quiz.SetChecked(mode == kQuizMode);
  study.SetChecked(mode == kStudyMode);
  test.SetChecked(mode == kTestMode);
}

void DeckWindow::EnterMode(CardMode mode) {
  ProgramState& state = State();
  MarkModeInMenu(mode);
  state.deck.mode = mode;
  state.deck.currentCard = 1;
  state.deck.testPoints = 0;
  ShowCardNumber();
  ShowTitle(mode);
  card.SetCardBanner(u"");
  card.SetSpoken(u"");
  fileMenu.SetEnabled(mode == kStudyMode);
  utilityMenu.SetEnabled(mode == kStudyMode);
}

void DeckWindow::TurnNextOrScoreOff() {
  nextOrScore.SetEnabled(false);
  nextOrScore.SetCaption(u"");
}

void DeckWindow::AutoModeMenu() {
  const auto kind = DeckKindOf(State().deck.Cell(1, kCardType));
  if (!kind) return;
  SetModeMenu(*kind);
  modeMenu.SetEnabled(true);
  goToCard.SetEnabled(true);
}

}  // namespace tessara
