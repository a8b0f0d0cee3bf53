// The shapes that the deck window takes for a deck type and a mode.

#include "viewer/deck_window.h"

namespace tessara {

void DeckWindow::HideAllFrames() {
  creditPanel.SetVisible(false);
  choicePanel.SetVisible(false);
  answerCard.SetVisible(false);
}

void DeckWindow::ConfigureStandardCard(CardMode mode) {
  if (mode == kStudyMode || mode == kQuizMode) {
    HideAllFrames();
    OfferFlip(FlipAction::kShowBack);
  }
  if (mode == kQuizMode) {
    arrows[kPreviousCard].SetEnabled(false);
    card.SetCardText(State().deck.Cell(1, kCardText));
    ShowCardBack(false);
  } else if (mode == kTestMode) {
    creditPanel.SetVisible(true);
  }
  flip.SetEnabled(State().deck.HasCards());
}

void DeckWindow::ConfigureExtendedCard(CardMode mode) {
  const auto enableMoves = [this](bool enabled) {
    for (Button& button : arrows) button.SetEnabled(enabled);
  };
  HideAllFrames();
  switch (mode) {
    case kStudyMode:
      answerCard.SetVisible(true);
      flip.SetEnabled(false);
      OfferFlip(FlipAction::kHideAnswer);
      enableMoves(true);
      break;
    case kQuizMode:
      answerCard.SetVisible(false);
      OfferFlip(FlipAction::kShowAnswer);
      flip.SetEnabled(true);
      enableMoves(true);
      break;
    case kTestMode:
      choicePanel.SetVisible(true);
      flip.SetEnabled(false);
      enableMoves(false);
      break;
    default:
      break;
  }
}

void DeckWindow::ShowCardBack(bool back) {
  card.SetFrontLines(!back);
  card.SetFrontRule(!back);
}

}  // namespace tessara
