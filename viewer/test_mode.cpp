// Test: forward only, with points. A standard card is graded by the user, a question by its key.

#include "platform/conversion.h"
#include "platform/message_box.h"
#include "viewer/answer_text.h"
#include "viewer/frmMain.h"

namespace tessara {

namespace {

/// The head of the score line is what keeps the last card from being graded twice.
constexpr TextView kComplete = u"Complete";
constexpr Color kRightChoiceBlue = FixedColor(0, 0, 255);

}  // namespace

void frmMain::mnuTest_Click() {
  EnterMode(kTestMode);
  OpDefaultForeColor();
  ShowCardText(1, kCardText);
  ClrAnsOptions();
  if (State().DeckType == kStandardDeck) {
    ConfigureStandardCard(kTestMode);
    Frame1.SetEnabled(false);
    Command3[kNextOrScore].SetCaption(u"");
    SetFlipCaption(u"&Show Back");
    cmdMove[kNextCard].SetEnabled(false);
    cmdMove[kPreviousCard].SetEnabled(false);
    ShowCardBack(false);
  } else if (State().DeckType == kExtendedDeck) {
    ConfigureExtendedCard(kTestMode);
    Frame2.SetEnabled(true);
    Command3[kNextOrScore].SetCaption(u"Next Question");
  }
  FillChoices(1);
  OfferNext({&Command3[kFlip]});
  OfferChoices();
}

void frmMain::OfferChoices() {
  OfferNext({&Option1[0], &Option1[1], &Option1[2], &Option1[3]});
}

void frmMain::OpDefaultForeColor() {
  for (OptionButton& option : Option1) {
    option.SetForeColor({});  // black, or what a dark desktop has in its place
    option.SetBold(false);
  }
}

void frmMain::ClrAnsOptions() {
  for (OptionButton& option : Option1) option.SetSelected(false);
}

void frmMain::FillChoices(int xRec) {
  const Text& cardType = State().Cell(xRec, kCardType);
  for (OptionButton& option : Option1) option.SetCaption(u"");
  if (cardType == u"M") {
    for (int choice = 0; choice < 4; ++choice) {
      Option1[choice].SetCaption(State().Cell(xRec, kChoiceA + choice));
    }
  } else if (cardType == u"T") {
    Option1[0].SetCaption(u"TRUE");
    Option1[1].SetCaption(u"FALSE");
  }
  for (OptionButton& option : Option1) option.SetVisible(!option.Caption().empty());
}

void frmMain::TestModeFlip() {
  if (State().CardMode != kTestMode) return;
  if (NoteletCtl1.CardBanner().starts_with(kComplete)) return;
  Frame1.SetEnabled(true);
  OfferNext({&Command1[kFullCredit]});
}

void frmMain::Command1_Click(int Index) {
  ProgramState& state = State();
  if (Index == kFullCredit) state.TestPoints += 1;
  if (Index == kPartialCredit) state.TestPoints += 0.5;
  Frame1.SetEnabled(false);
  if (state.CurrentCard >= state.CardCount) {
    EndStandardTest();
  } else {
    NextStandardTestCard();
  }
}

void frmMain::EndStandardTest() {
  App().machine.messages.Show(
      u"You have completed this test. After viewing your score at the top of the last card, "
      u"please return to STUDY mode.",
      kOkOnly, u"Test Complete");
  NoteletCtl1.SetCardBanner(u"Complete: You scored " + PointsText(State().TestPoints) +
                            u" points out of a possible " + DecimalText(State().CardCount));
  OfferNext({&Command3[kFlip]});
}

void frmMain::NextStandardTestCard() {
  ++State().CurrentCard;
  ShowCardBack(false);
  SetFlipCaption(u"&Show Back");
  ShowCardText(State().CurrentCard, kCardText);
  ShowCardNumber();
  OfferNext({&Command3[kFlip]});
}

void frmMain::Option1_Click(int Index) {
  ProgramState& state = State();
  if (state.CardMode != kTestMode) return;
  const TextView key = Trimmed(state.Cell(state.CurrentCard, kAnswer));
  const bool right = KeyOfChoice(Index, state.Cell(state.CurrentCard, kCardType)) == key;
  if (state.CardCount > 0) {
    NoteletCtl1.SetCardBanner(right ? u"CORRECT" : u"WRONG");
    Frame2.SetEnabled(false);
    if (right) {
      state.TestPoints += 1;
    } else {
      Option1[AnswerIndex(key)].SetForeColor(kRightChoiceBlue);
    }
  }
  Command3[kNextOrScore].SetEnabled(true);
  if (state.CurrentCard == state.CardCount) Command3[kNextOrScore].SetCaption(u"Show Score");
  OfferNext({&Command3[kNextOrScore]});
}

void frmMain::NextQuestionOrScore() {
  OpDefaultForeColor();
  if (State().CurrentCard != State().CardCount || State().CardCount < 1) {
    NextQuestion();
  } else {
    ShowPercentage();
  }
}

void frmMain::NextQuestion() {
  ++State().CurrentCard;
  Command3[kNextOrScore].SetEnabled(false);
  ShowCardText(State().CurrentCard, kCardText);
  ShowCardNumber();
  FillChoices(State().CurrentCard);
  ClrAnsOptions();
  NoteletCtl1.SetCardBanner(u"");
  Frame2.SetEnabled(true);
  OfferChoices();
}

void frmMain::ShowPercentage() {
  const Text score = WholeNumberText(State().TestPoints / State().CardCount * 100);
  App().machine.messages.Show(u" Your score is " + score + u"% please return to STUDY mode.",
                              kOkOnly, u"Test Complete");
  Command3[kNextOrScore].SetEnabled(false);
  NoteletCtl1.SetCardBanner(u"SCORE: " + score + u"% ... RETURN TO STUDY MODE");
  OfferNext({&NoteletCtl1});  // to be read
}

}  // namespace tessara
