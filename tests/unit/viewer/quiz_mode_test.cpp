#include <doctest/doctest.h>

#include "tests/support/deck_desk.h"

namespace tessara::test {

namespace {

constexpr TextView kStandardEnd = u"This quiz is complete, please return to study mode";
constexpr TextView kExtendedEnd = u"You have completed this quiz, please return to study mode";

}  // namespace

TEST_CASE("a quiz starts on the question of card 1, forward only") {
  for (const bool extended : {false, true}) {
    DeckDesk desk;
    extended ? desk.OpenExtendedDeck(3) : desk.OpenStandardDeck(3);
    desk.deck->arrows[kNextCard].Press();
    desk.deck->quiz.Press();
    CHECK(desk.state.deck.mode == kQuizMode);
    CHECK(desk.state.deck.currentCard == 1);
    CHECK(desk.deck->card.CardNumber() == u"1");
    CHECK_FALSE(desk.deck->arrows[kPreviousCard].Enabled());
    CHECK(desk.deck->arrows[kNextCard].Enabled());
    CHECK(desk.deck->Caption() == u"  [QUIZ]");
    CHECK_FALSE(desk.deck->fileMenu.Enabled());
    CHECK_FALSE(desk.deck->utilityMenu.Enabled());
    CHECK(desk.deck->modeMenu.Enabled());
    CHECK(desk.deck->quiz.Checked());
    CHECK_FALSE(desk.deck->study.Checked());
    CHECK_FALSE(desk.deck->answerCard.Visible());
    CHECK(desk.deck->flip.Caption() == (extended ? u"&Show Answer" : u"&Show Back"));
  }
}

TEST_CASE("each new card of a quiz starts on its question") {
  DeckDesk standard;
  standard.OpenStandardDeck(3);
  standard.deck->quiz.Press();
  standard.deck->flip.Press();
  CHECK(standard.deck->card.CardText() == u"back 1");
  standard.deck->arrows[kNextCard].Press();
  CHECK(standard.deck->card.CardText() == u"front 2");
  CHECK(standard.deck->card.FrontLines());
  DeckDesk extended;
  extended.OpenExtendedDeck(3);
  extended.deck->quiz.Press();
  extended.deck->flip.Press();
  CHECK(extended.deck->answerCard.Visible());
  CHECK(extended.deck->flip.Caption() == u"&Hide Answer");
  extended.deck->arrows[kNextCard].Press();
  CHECK_FALSE(extended.deck->answerCard.Visible());
  CHECK(extended.deck->card.CardText() == u"question 2");
}

TEST_CASE("the end of a quiz is noticed by a flip of the last card, worded by deck type") {
  for (const bool extended : {false, true}) {
    DeckDesk desk;
    extended ? desk.OpenExtendedDeck(2) : desk.OpenStandardDeck(2);
    desk.deck->quiz.Press();
    desk.deck->flip.Press();
    CHECK(desk.deck->card.CardBanner().empty());
    desk.deck->arrows[kNextCard].Press();
    CHECK(desk.deck->card.CardBanner().empty());
    CHECK_FALSE(desk.deck->arrows[kNextCard].Enabled());
    for (int flip = 0; flip < 2; ++flip) {
      desk.deck->flip.Press();
      CHECK(desk.deck->card.CardBanner() == (extended ? kExtendedEnd : kStandardEnd));
    }
    CHECK(desk.state.deck.mode == kQuizMode);
    desk.deck->quiz.Press();
    CHECK(desk.deck->card.CardBanner().empty());
    CHECK(desk.state.deck.currentCard == 1);
  }
}

TEST_CASE("the states of a quiz, step by step") {
  enum Event { kStart, kFlip, kNext };
  struct Step {
    Event event;
    int card;
    bool answerOnShow;
    bool nextEnabled;
    bool bannerShown;
  };
  constexpr Step kWalk[] = {
      {kStart, 1, false, true, false}, {kFlip, 1, true, true, false},
      {kFlip, 1, false, true, false},  {kNext, 2, false, true, false},
      {kFlip, 2, true, true, false},   {kNext, 3, false, false, false},
      {kNext, 3, false, false, false}, {kFlip, 3, true, false, true},
      {kFlip, 3, false, false, true},  {kNext, 3, false, false, true},
      {kStart, 1, false, true, false},
  };
  for (const bool extended : {false, true}) {
    DeckDesk desk;
    extended ? desk.OpenExtendedDeck(3) : desk.OpenStandardDeck(3);
    for (const Step& step : kWalk) {
      if (step.event == kStart) desk.deck->quiz.Press();
      if (step.event == kFlip) desk.deck->flip.Press();
      if (step.event == kNext) desk.deck->arrows[kNextCard].Press();
      CAPTURE(&step - kWalk);
      CHECK(desk.state.deck.currentCard == step.card);
      CHECK(desk.deck->card.CardNumber() == DecimalText(step.card));
      const Text caption = desk.deck->flip.Caption();
      CHECK((caption == u"&Show Front" || caption == u"&Hide Answer") == step.answerOnShow);
      CHECK(desk.deck->arrows[kNextCard].Enabled() == step.nextEnabled);
      CHECK_FALSE(desk.deck->arrows[kPreviousCard].Enabled());
      CHECK(desk.deck->flip.Enabled());
      CHECK(desk.deck->card.CardBanner().empty() != step.bannerShown);
    }
  }
}

TEST_CASE("a quiz of a deck whose first card is empty can't be flipped and has no end") {
  DeckDesk desk;
  desk.AddTextCard(u"", u"back 1");
  desk.AddTextCard(u"front 2", u"back 2");
  desk.Open(kStandardDeck);
  desk.deck->EnterQuizMode();
  desk.deck->arrows[kNextCard].Press();
  desk.deck->flip.Press();
  CHECK(desk.deck->card.CardText() == u"front 2");
  CHECK(desk.deck->card.CardBanner().empty());
}

TEST_CASE("an answer is written when it is asked for, not before") {
  DeckDesk desk;
  desk.OpenExtendedDeck(2);
  desk.deck->quiz.Press();
  desk.deck->arrows[kNextCard].Press();
  CHECK(desk.deck->answer.Caption() == u"TRUE");
  desk.deck->flip.Press();
  CHECK(desk.deck->answer.Caption() == u"two");
}

TEST_CASE("the focus follows the steps of a quiz") {
  for (const bool extended : {false, true}) {
    DeckDesk desk;
    extended ? desk.OpenExtendedDeck(2) : desk.OpenStandardDeck(2);
    desk.deck->quiz.Press();
    CHECK(desk.deck->FocusedControl() == &desk.deck->flip);
    desk.deck->flip.Press();
    CHECK(desk.deck->FocusedControl() == &desk.deck->arrows[kNextCard]);
    desk.deck->arrows[kNextCard].Press();
    CHECK(desk.deck->FocusedControl() == &desk.deck->flip);
    desk.deck->flip.Press();
    CHECK(desk.deck->FocusedControl() == &desk.deck->flip);
  }
}

TEST_CASE("a deck of one card can be walked past its end before a flip") {
  DeckDesk desk;
  desk.OpenStandardDeck(1);
  desk.deck->quiz.Press();
  CHECK(desk.deck->arrows[kNextCard].Enabled());
  desk.deck->arrows[kNextCard].Press();
  CHECK(desk.state.deck.currentCard == 2);
  CHECK(desk.deck->card.CardText().empty());
  CHECK(desk.deck->card.CardNumber() == u"2");
  CHECK_FALSE(desk.deck->arrows[kNextCard].Enabled());
  desk.deck->flip.Press();
  CHECK(desk.deck->card.CardBanner().empty());
}

TEST_CASE("an activation may enable the back arrow, which then moves forward") {
  DeckDesk desk;
  desk.OpenStandardDeck(4);
  desk.deck->quiz.Press();
  desk.deck->arrows[kNextCard].Press();
  desk.deck->Hide();
  desk.deck->Show();
  CHECK(desk.deck->arrows[kPreviousCard].Enabled());
  desk.deck->arrows[kPreviousCard].Press();
  CHECK(desk.state.deck.currentCard == 3);
  CHECK_FALSE(desk.deck->arrows[kPreviousCard].Enabled());
}

TEST_CASE("a quiz keeps no score") {
  DeckDesk desk;
  desk.OpenExtendedDeck(2);
  desk.state.deck.testPoints = 7;
  desk.deck->quiz.Press();
  desk.deck->flip.Press();
  CHECK(desk.state.deck.testPoints == 0);
}

}  // namespace tessara::test
