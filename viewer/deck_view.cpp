// How a deck comes up in the window, and how the window is brought up to date.

#include "deck/double_amps.h"
#include "forms/place_in_frame.h"
#include "viewer/answer_text.h"
#include "viewer/frmMain.h"

namespace tessara {

namespace {

constexpr int kAskedHeight = 6000;
constexpr int kAskedWidth = 7320;

}  // namespace

void frmMain::CommandLineLoad(const Text& xFilename) {
  LoadAndShowDeck(xFilename);
}

void frmMain::ShowNewCard(std::int32_t Typecard) {
  if (Typecard == kStandardDeck) {
    ConfigureStandardCard(kStudyMode);
  } else if (Typecard == kExtendedDeck) {
    ConfigureExtendedCard(kStudyMode);
  }
  SetModeMenu(Typecard);
}

void frmMain::OpenStandardView() {
  ShowNewCard(kStandardDeck);
  PlaceInFrame(*this, kAskedHeight, kAskedWidth, App().frame);
  State().DeckType = kStandardDeck;
  SetFlipCaption(u"&Show Back");
  ChkModeMenu(kStudyMode);
  OfferNext({&Command3[kFlip]});
}

void frmMain::OpenExtendedView() {
  ShowNewCard(kExtendedDeck);
  PlaceInFrame(*this, kAskedHeight, kAskedWidth, App().frame);
  State().DeckType = kExtendedDeck;
  SetFlipCaption(u"&Show Answer");
  ChkModeMenu(kStudyMode);
  // Without a second card the arrow still works here, but not much longer.
  if (State().CardCount > 1) {
    OfferNext({&cmdMove[kNextCard]});
  } else {
    OfferNext({&NoteletCtl1});
  }
}

void frmMain::ShowFirstCard(std::int32_t xType) {
  ShowCardText(1, kCardText);
  if (xType != kExtendedDeck) return;
  // The key is that of card 1, the row that of the card on show.
  const Text& key = State().Cell(1, kAnswer);
  Label2.SetCaption(DoubleAmps(AnswerText(key, State().CurrentCard, State())));
}

void frmMain::AfterEditShow(std::int32_t Typecard) {
  ProgramState& state = State();
  if (Typecard == kStandardDeck) {
    if (FlipCaption() == u"&Show Front") {
      ShowCardText(state.CurrentCard, kBackText);
    } else if (FlipCaption() == u"&Show Back") {
      ShowCardText(state.CurrentCard, kCardText);
    }
  } else if (Typecard == kExtendedDeck) {
    ShowCardText(state.CurrentCard, kCardText);
    ShowAnswer(state.CurrentCard);
  }
  ShowCardNumber();
  NoteletCtl1.SetCardTotal(DecimalText(state.CardCount));
  MenuOp(state.CardCount >= 1);
  if (state.CardCount >= 1 && state.SaveOffered) mnuSave.SetEnabled(true);
}

void frmMain::ConfigSaveMenu() {
  mnuSave.SetEnabled(State().DeckChanged);
}

}  // namespace tessara
