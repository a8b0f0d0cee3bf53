// How the cards look by the settings.

#include "viewer/card_skins.h"

#include "base/conversion.h"
#include "viewer/deck_window.h"

namespace tessara {

namespace {

/// A relief that is none is looked at for a known colour only. Null for an unknown colour.
const CardSkin* AnswerCardSkin(const Settings& settings) {
  for (const CardSkin& skin : kCardSkins) {
    if (skin.color != settings.smallCardColor) continue;
    if (skin.raised == (NumberOf(settings.smallCard3D) == 1)) return &skin;
  }
  return nullptr;
}

}  // namespace

void DeckWindow::SetUpDeck() {
  const Settings& settings = State().settings;
  cardShadow.SetVisible(NumberOf(settings.largeCard3D) == 1);
  card.SetCardColor(Text(NumberOf(settings.largeCardColor) == 1 ? kYellowCard : kWhiteCard));
  if (const CardSkin* skin = AnswerCardSkin(settings)) {
    answerCard.SetPicture(App().frame.CardPictures().At(skin->key).picture);
  }
}

}  // namespace tessara
