#include <doctest/doctest.h>

#include "tests/support/deck_fixture.h"

namespace tessara::test {

namespace {

constexpr TextView kStandardEnd = u"This quiz is complete, please return to study mode";
constexpr TextView kExtendedEnd = u"You have completed this quiz, please return to study mode";

}  // namespace

TEST_CASE("a quiz starts on the question of card 1, forward only") {
  for (const bool extended : {false, true}) {
    DeckFixture fixture;
    extended ? fixture.OpenExtendedDeck(3) : fixture.OpenStandardDeck(3);
    fixture.deck->arrows[kNextCard].Press();
    fixture.deck->quiz.Press();
    CHECK(fixture.state.deck.mode == kQuizMode);
    CHECK(fixture.state.deck.currentCard == 1);
    CHECK(fixture.deck->card.CardNumber() == u"1");
    CHECK_FALSE(fixture.deck->arrows[kPreviousCard].Enabled());
    CHECK(fixture.deck->arrows[kNextCard].Enabled());
    CHECK(fixture.deck->Caption() == u"  [QUIZ]");
    CHECK_FALSE(fixture.deck->fileMenu.Enabled());
    CHECK_FALSE(fixture.deck->utilityMenu.Enabled());
    CHECK(fixture.deck->modeMenu.Enabled());
    CHECK(fixture.deck->quiz.Checked());
    CHECK_FALSE(fixture.deck->study.Checked());
    CHECK_FALSE(fixture.deck->answerCard.Visible());
    CHECK(fixture.deck->flip.Caption() == (extended ? u"&Show Answer" : u"&Show Back"));
  }
}

TEST_CASE("each new card of a quiz starts on its question") {
  DeckFixture standard;
  standard.OpenStandardDeck(3);
  standard.deck->quiz.Press();
  standard.deck->flip.Press();
  CHECK(standard.deck->card.CardText() == u"back 1");
  standard.deck->arrows[kNextCard].Press();
  CHECK(standard.deck->card.CardText() == u"front 2");
  CHECK(standard.deck->card.FrontLines());
  DeckFixture extended;
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
    DeckFixture fixture;
    extended ? fixture.OpenExtendedDeck(2) : fixture.OpenStandardDeck(2);
    fixture.deck->quiz.Press();
    fixture.deck->flip.Press();
    CHECK(fixture.deck->card.CardBanner().empty());
    fixture.deck->arrows[kNextCard].Press();
    CHECK(fixture.deck->card.CardBanner().empty());
    CHECK_FALSE(fixture.deck->arrows[kNextCard].Enabled());
    for (int flip = 0; flip < 2; ++flip) {
      fixture.deck->flip.Press();
      CHECK(fixture.deck->card.CardBanner() == (extended ? kExtendedEnd : kStandardEnd));
    }
    CHECK(fixture.state.deck.mode == kQuizMode);
    fixture.deck->quiz.Press();
    CHECK(fixture.deck->card.CardBanner().empty());
    CHECK(fixture.state.deck.currentCard == 1);
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
    DeckFixture fixture;
    extended ? fixture.OpenExtendedDeck(3) : fixture.OpenStandardDeck(3);
    for (const Step& step : kWalk) {
      if (step.event == kStart) fixture.deck->quiz.Press();
      if (step.event == kFlip) fixture.deck->flip.Press();
      if (step.event == kNext) fixture.deck->arrows[kNextCard].Press();
      CAPTURE(&step - kWalk);
      CHECK(fixture.state.deck.currentCard == step.card);
      CHECK(fixture.deck->card.CardNumber() == DecimalText(step.card));
      const Text caption = fixture.deck->flip.Caption();
      CHECK((caption == u"&Show Front" || caption == u"&Hide Answer") == step.answerOnShow);
      CHECK(fixture.deck->arrows[kNextCard].Enabled() == step.nextEnabled);
      CHECK_FALSE(fixture.deck->arrows[kPreviousCard].Enabled());
      CHECK(fixture.deck->flip.Enabled());
      CHECK(fixture.deck->card.CardBanner().empty() != step.bannerShown);
    }
  }
}

TEST_CASE("a quiz of a deck whose first card is empty can't be flipped and has no end") {
  DeckFixture fixture;
  fixture.AddTextCard(u"", u"back 1");
  fixture.AddTextCard(u"front 2", u"back 2");
  fixture.Open(kStandardDeck);
  fixture.deck->EnterQuizMode();
  fixture.deck->arrows[kNextCard].Press();
  fixture.deck->flip.Press();
  CHECK(fixture.deck->card.CardText() == u"front 2");
  CHECK(fixture.deck->card.CardBanner().empty());
}

TEST_CASE("an answer is written when it is asked for, not before") {
  DeckFixture fixture;
  fixture.OpenExtendedDeck(2);
  fixture.deck->quiz.Press();
  fixture.deck->arrows[kNextCard].Press();
  CHECK(fixture.deck->answer.Caption() == u"TRUE");
  fixture.deck->flip.Press();
  CHECK(fixture.deck->answer.Caption() == u"two");
}

TEST_CASE("the focus follows the steps of a quiz") {
  for (const bool extended : {false, true}) {
    DeckFixture fixture;
    extended ? fixture.OpenExtendedDeck(2) : fixture.OpenStandardDeck(2);
    fixture.deck->quiz.Press();
    CHECK(fixture.deck->FocusedControl() == &fixture.deck->flip);
    fixture.deck->flip.Press();
    CHECK(fixture.deck->FocusedControl() == &fixture.deck->arrows[kNextCard]);
    fixture.deck->arrows[kNextCard].Press();
    CHECK(fixture.deck->FocusedControl() == &fixture.deck->flip);
    fixture.deck->flip.Press();
    CHECK(fixture.deck->FocusedControl() == &fixture.deck->flip);
  }
}

TEST_CASE("a deck of one card can be walked past its end before a flip") {
  DeckFixture fixture;
  fixture.OpenStandardDeck(1);
  fixture.deck->quiz.Press();
  CHECK(fixture.deck->arrows[kNextCard].Enabled());
  fixture.deck->arrows[kNextCard].Press();
  CHECK(fixture.state.deck.currentCard == 2);
  CHECK(fixture.deck->card.CardText().empty());
  CHECK(fixture.deck->card.CardNumber() == u"2");
  CHECK_FALSE(fixture.deck->arrows[kNextCard].Enabled());
  fixture.deck->flip.Press();
  CHECK(fixture.deck->card.CardBanner().empty());
}

TEST_CASE("an activation may enable the back arrow, which then moves forward") {
  DeckFixture fixture;
  fixture.OpenStandardDeck(4);
  fixture.deck->quiz.Press();
  fixture.deck->arrows[kNextCard].Press();
  fixture.deck->Hide();
  fixture.deck->Show();
  CHECK(fixture.deck->arrows[kPreviousCard].Enabled());
  fixture.deck->arrows[kPreviousCard].Press();
  CHECK(fixture.state.deck.currentCard == 3);
  CHECK_FALSE(fixture.deck->arrows[kPreviousCard].Enabled());
}

TEST_CASE("a quiz keeps no score") {
  DeckFixture fixture;
  fixture.OpenExtendedDeck(2);
  fixture.state.deck.testPoints = 7;
  fixture.deck->quiz.Press();
  fixture.deck->flip.Press();
  CHECK(fixture.state.deck.testPoints == 0);
}

}  // namespace tessara::test
