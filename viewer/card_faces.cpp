// The shapes that the deck window takes for a deck type and a mode.

#include "platform/conversion.h"
#include "viewer/card_picture.h"
#include "viewer/frmMain.h"

namespace tessara {

void frmMain::SetUpDeck() {
  const ProgramState& state = State();
  Shape1.SetVisible(NumberOf(state.LargeCard3D) == 1);
  NoteletCtl1.SetCardColor(NumberOf(state.LargeCardColor) == 1 ? u"A" : u"Q");
  const auto show = [&](TextView relief, TextView flat) {
    const TextView key = NumberOf(state.SmallCard3D) == 1 ? relief : flat;
    Picture1.SetPicture(CardPicture(key, kWallPaperList, App().frame));
  };
  if (state.SmallCardColor == u"0") {
    show(u"White 3D", u"White Flat");
  } else if (state.SmallCardColor == u"1") {
    show(u"Yellow 3D", u"Yellow Flat");
  }
}

void frmMain::HideAllFrames() {
  Frame1.SetVisible(false);
  Frame2.SetVisible(false);
  Picture1.SetVisible(false);
}

void frmMain::ConfigureStandardCard(std::int32_t xMode) {
  if (xMode == kStudyMode || xMode == kQuizMode) {
    HideAllFrames();
    SetFlipCaption(u"&Show Back");
  }
  if (xMode == kQuizMode) {
    cmdMove[kPreviousCard].SetEnabled(false);
    NoteletCtl1.SetCardText(State().Cell(1, kCardText));
    ShowCardBack(false);
  } else if (xMode == kTestMode) {
    Frame1.SetVisible(true);
  }
  Command3[kFlip].SetEnabled(State().HasCards());
}

void frmMain::ConfigureExtendedCard(std::int32_t xMode) {
  const auto enableMoves = [this](bool enabled) {
    for (Button& button : cmdMove) button.SetEnabled(enabled);
  };
  HideAllFrames();
  switch (xMode) {
    case kStudyMode:
      Picture1.SetVisible(true);
      Command3[kFlip].SetEnabled(false);
      SetFlipCaption(u"&Hide Answer");
      enableMoves(true);
      break;
    case kQuizMode:
      Picture1.SetVisible(false);
      SetFlipCaption(u"&Show Answer");
      Command3[kFlip].SetEnabled(true);
      enableMoves(true);
      break;
    case kTestMode:
      Frame2.SetVisible(true);
      Command3[kFlip].SetEnabled(false);
      enableMoves(false);
      break;
    default:
      break;
  }
}

void frmMain::ShowCardBack(bool xState) {
  NoteletCtl1.SetFrontLines(!xState);
  NoteletCtl1.SetFrontRule(!xState);
}

}  // namespace tessara
