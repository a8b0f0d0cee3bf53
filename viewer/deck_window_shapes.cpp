// The shapes that the deck window takes for a deck type and a mode.

#include "base/conversion.h"
#include "viewer/card_picture.h"
#include "viewer/deck_window.h"

namespace tessara {

void DeckWindow::SetUpDeck() {
  const ProgramState& state = State();
  cardShadow.SetVisible(NumberOf(state.settings.largeCard3D) == 1);
  card.SetCardColor(NumberOf(state.settings.largeCardColor) == 1 ? u"A" : u"Q");
  const auto show = [&](TextView relief, TextView flat) {
    const TextView key = NumberOf(state.settings.smallCard3D) == 1 ? relief : flat;
    answerCard.SetPicture(CardPicture(key, kWallPaperList, App().frame));
  };
  if (state.settings.smallCardColor == u"0") {
    show(u"White 3D", u"White Flat");
  } else if (state.settings.smallCardColor == u"1") {
    show(u"Yellow 3D", u"Yellow Flat");
  }
}

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
