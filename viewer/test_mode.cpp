// Test: forward only, with points. A standard card is graded by the user, a question by its key.

#include "base/conversion.h"
#include "deck/card_type.h"
#include "machine/message_box.h"
#include "viewer/answer_text.h"
#include "viewer/deck_window.h"

namespace tessara {

namespace {

/// The head of the score line is what keeps the last card from being graded twice.
constexpr TextView kComplete = u"Complete";
constexpr Color kRightChoiceBlue = FixedColor(0, 0, 255);

}  // namespace

void DeckWindow::EnterTestMode() {
  EnterMode(kTestMode);
  ResetChoiceColors();
  ShowCardText(1, kCardText);
  ClearChoices();
  if (State().deck.kind == kStandardDeck) {
    ConfigureStandardCard(kTestMode);
    creditPanel.SetEnabled(false);
    nextOrScore.SetCaption(u"");
    OfferFlip(FlipAction::kShowBack);
    arrows[kNextCard].SetEnabled(false);
    arrows[kPreviousCard].SetEnabled(false);
    ShowCardBack(false);
  } else if (State().deck.kind == kExtendedDeck) {
    ConfigureExtendedCard(kTestMode);
    choicePanel.SetEnabled(true);
    nextOrScore.SetCaption(u"Next Question");
  }
  FillChoices(1);
  OfferNext({&flip});
  OfferChoices();
}

void DeckWindow::OfferChoices() {
  OfferNext({&choices[0], &choices[1], &choices[2], &choices[3]});
}

void DeckWindow::ResetChoiceColors() {
  card.SetSpoken(u"");
  for (OptionButton& option : choices) {
    option.SetForeColor({});  // black, or what a dark desktop has in its place
    option.SetBold(false);
  }
}

void DeckWindow::ClearChoices() {
  for (OptionButton& option : choices) option.SetSelected(false);
}

void DeckWindow::FillChoices(int row) {
  const Text& cardType = State().deck.Cell(row, kCardType);
  for (OptionButton& option : choices) option.SetCaption(u"");
  if (IsType(cardType, CardType::kMultipleChoice)) {
    for (int choice = 0; choice < 4; ++choice) {
      choices[choice].SetCaption(State().deck.Cell(row, kChoiceA + choice));
    }
  } else if (IsType(cardType, CardType::kTrueFalse)) {
    choices[0].SetCaption(u"TRUE");
    choices[1].SetCaption(u"FALSE");
  }
  for (OptionButton& option : choices) option.SetVisible(!option.Caption().empty());
}

void DeckWindow::OfferCredit() {
  if (State().deck.mode != kTestMode) return;
  if (card.CardBanner().starts_with(kComplete)) return;
  creditPanel.SetEnabled(true);
  OfferNext({&credits[kFullCredit]});
}

void DeckWindow::GiveCredit(int credit) {
  ProgramState& state = State();
  if (credit == kFullCredit) state.deck.testPoints += 1;
  if (credit == kPartialCredit) state.deck.testPoints += 0.5;
  creditPanel.SetEnabled(false);
  if (state.deck.currentCard >= state.deck.cardCount) {
    EndStandardTest();
  } else {
    NextStandardTestCard();
  }
}

void DeckWindow::EndStandardTest() {
  App().machine.messages.Show(
      u"You have completed this test. After viewing your score at the top of the last card, "
      u"please return to STUDY mode.",
      kOkOnly, u"Test Complete");
  card.SetCardBanner(u"Complete: You scored " + PointsText(State().deck.testPoints) +
                     u" points out of a possible " + DecimalText(State().deck.cardCount));
  OfferNext({&flip});
}

void DeckWindow::NextStandardTestCard() {
  ++State().deck.currentCard;
  ShowCardBack(false);
  OfferFlip(FlipAction::kShowBack);
  ShowCardText(State().deck.currentCard, kCardText);
  ShowCardNumber();
  OfferNext({&flip});
}

void DeckWindow::JudgeChoice(int choice) {
  ProgramState& state = State();
  if (state.deck.mode != kTestMode) return;
  const TextView key = Trimmed(state.deck.Cell(state.deck.currentCard, kAnswer));
  const bool right = KeyOfChoice(choice, state.deck.Cell(state.deck.currentCard, kCardType)) == key;
  if (state.deck.cardCount > 0) {
    card.SetCardBanner(right ? u"CORRECT" : u"WRONG");
    choicePanel.SetEnabled(false);
    if (right) {
      state.deck.testPoints += 1;
    } else {
      OptionButton& rightChoice = choices[AnswerIndex(key)];
      rightChoice.SetForeColor(kRightChoiceBlue);
      card.SetSpoken(u"Right: " + PlainCaption(rightChoice.Caption()));
    }
  }
  nextOrScore.SetEnabled(true);
  if (state.deck.currentCard == state.deck.cardCount) nextOrScore.SetCaption(u"Show Score");
  OfferNext({&nextOrScore});
}

void DeckWindow::NextQuestionOrScore() {
  ResetChoiceColors();
  if (State().deck.currentCard != State().deck.cardCount || State().deck.cardCount < 1) {
    NextQuestion();
  } else {
    ShowPercentage();
  }
}

void DeckWindow::NextQuestion() {
  ++State().deck.currentCard;
  nextOrScore.SetEnabled(false);
  ShowCardText(State().deck.currentCard, kCardText);
  ShowCardNumber();
  FillChoices(State().deck.currentCard);
  ClearChoices();
  card.SetCardBanner(u"");
  choicePanel.SetEnabled(true);
  OfferChoices();
}

void DeckWindow::ShowPercentage() {
  const Text score = WholeNumberText(State().deck.testPoints / State().deck.cardCount * 100);
  App().machine.messages.Show(u" Your score is " + score + u"% please return to STUDY mode.",
                              kOkOnly, u"Test Complete");
  nextOrScore.SetEnabled(false);
  card.SetCardBanner(u"SCORE: " + score + u"% ... RETURN TO STUDY MODE");
  OfferNext({&card});  // to be read
}

}  // namespace tessara
