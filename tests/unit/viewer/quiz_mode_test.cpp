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
    desk.deck->cmdMove[1].Press();
    desk.deck->mnuQuiz.Press();
    CHECK(desk.state.CardMode == kQuizMode);
    CHECK(desk.state.CurrentCard == 1);
    CHECK(desk.deck->NoteletCtl1.CardNumber() == u"1");
    CHECK_FALSE(desk.deck->cmdMove[0].Enabled());
    CHECK(desk.deck->cmdMove[1].Enabled());
    CHECK(desk.deck->Caption() == u"  [QUIZ]");
    CHECK_FALSE(desk.deck->mnuFile.Enabled());
    CHECK_FALSE(desk.deck->mnuUtility.Enabled());
    CHECK(desk.deck->mnuMode.Enabled());
    CHECK(desk.deck->mnuQuiz.Checked());
    CHECK_FALSE(desk.deck->mnuStudy.Checked());
    CHECK_FALSE(desk.deck->Picture1.Visible());
    CHECK(desk.deck->Command3[1].Caption() == (extended ? u"&Show Answer" : u"&Show Back"));
  }
}

TEST_CASE("each new card of a quiz starts on its question") {
  DeckDesk standard;
  standard.OpenStandardDeck(3);
  standard.deck->mnuQuiz.Press();
  standard.deck->Command3[1].Press();
  CHECK(standard.deck->NoteletCtl1.CardText() == u"back 1");
  standard.deck->cmdMove[1].Press();
  CHECK(standard.deck->NoteletCtl1.CardText() == u"front 2");
  CHECK(standard.deck->NoteletCtl1.FrontLines());
  DeckDesk extended;
  extended.OpenExtendedDeck(3);
  extended.deck->mnuQuiz.Press();
  extended.deck->Command3[1].Press();
  CHECK(extended.deck->Picture1.Visible());
  CHECK(extended.deck->Command3[1].Caption() == u"&Hide Answer");
  extended.deck->cmdMove[1].Press();
  CHECK_FALSE(extended.deck->Picture1.Visible());
  CHECK(extended.deck->NoteletCtl1.CardText() == u"question 2");
}

TEST_CASE("the end of a quiz is noticed by a flip of the last card, worded by deck type") {
  for (const bool extended : {false, true}) {
    DeckDesk desk;
    extended ? desk.OpenExtendedDeck(2) : desk.OpenStandardDeck(2);
    desk.deck->mnuQuiz.Press();
    desk.deck->Command3[1].Press();
    CHECK(desk.deck->NoteletCtl1.CardBanner().empty());
    desk.deck->cmdMove[1].Press();
    CHECK(desk.deck->NoteletCtl1.CardBanner().empty());
    CHECK_FALSE(desk.deck->cmdMove[1].Enabled());
    for (int flip = 0; flip < 2; ++flip) {
      desk.deck->Command3[1].Press();
      CHECK(desk.deck->NoteletCtl1.CardBanner() == (extended ? kExtendedEnd : kStandardEnd));
    }
    CHECK(desk.state.CardMode == kQuizMode);
    desk.deck->mnuQuiz.Press();
    CHECK(desk.deck->NoteletCtl1.CardBanner().empty());
    CHECK(desk.state.CurrentCard == 1);
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
      if (step.event == kStart) desk.deck->mnuQuiz.Press();
      if (step.event == kFlip) desk.deck->Command3[1].Press();
      if (step.event == kNext) desk.deck->cmdMove[1].Press();
      CAPTURE(&step - kWalk);
      CHECK(desk.state.CurrentCard == step.card);
      CHECK(desk.deck->NoteletCtl1.CardNumber() == DecimalText(step.card));
      const Text caption = desk.deck->Command3[1].Caption();
      CHECK((caption == u"&Show Front" || caption == u"&Hide Answer") == step.answerOnShow);
      CHECK(desk.deck->cmdMove[1].Enabled() == step.nextEnabled);
      CHECK_FALSE(desk.deck->cmdMove[0].Enabled());
      CHECK(desk.deck->Command3[1].Enabled());
      CHECK(desk.deck->NoteletCtl1.CardBanner().empty() != step.bannerShown);
    }
  }
}

TEST_CASE("a quiz of a deck whose first card is empty can't be flipped and has no end") {
  DeckDesk desk;
  desk.AddTextCard(u"", u"back 1");
  desk.AddTextCard(u"front 2", u"back 2");
  desk.Open(kStandardDeck);
  desk.deck->mnuQuiz_Click();
  desk.deck->cmdMove[1].Press();
  desk.deck->Command3[1].Press();
  CHECK(desk.deck->NoteletCtl1.CardText() == u"front 2");
  CHECK(desk.deck->NoteletCtl1.CardBanner().empty());
}

TEST_CASE("an answer is written when it is asked for, not before") {
  DeckDesk desk;
  desk.OpenExtendedDeck(2);
  desk.deck->mnuQuiz.Press();
  desk.deck->cmdMove[1].Press();
  CHECK(desk.deck->Label2.Caption() == u"TRUE");
  desk.deck->Command3[1].Press();
  CHECK(desk.deck->Label2.Caption() == u"two");
}

TEST_CASE("the focus follows the steps of a quiz") {
  for (const bool extended : {false, true}) {
    DeckDesk desk;
    extended ? desk.OpenExtendedDeck(2) : desk.OpenStandardDeck(2);
    desk.deck->mnuQuiz.Press();
    CHECK(desk.deck->FocusedControl() == &desk.deck->Command3[1]);
    desk.deck->Command3[1].Press();
    CHECK(desk.deck->FocusedControl() == &desk.deck->cmdMove[1]);
    desk.deck->cmdMove[1].Press();
    CHECK(desk.deck->FocusedControl() == &desk.deck->Command3[1]);
    desk.deck->Command3[1].Press();
    CHECK(desk.deck->FocusedControl() == &desk.deck->Command3[1]);
  }
}

TEST_CASE("a deck of one card can be walked past its end before a flip") {
  DeckDesk desk;
  desk.OpenStandardDeck(1);
  desk.deck->mnuQuiz.Press();
  CHECK(desk.deck->cmdMove[1].Enabled());
  desk.deck->cmdMove[1].Press();
  CHECK(desk.state.CurrentCard == 2);
  CHECK(desk.deck->NoteletCtl1.CardText().empty());
  CHECK(desk.deck->NoteletCtl1.CardNumber() == u"2");
  CHECK_FALSE(desk.deck->cmdMove[1].Enabled());
  desk.deck->Command3[1].Press();
  CHECK(desk.deck->NoteletCtl1.CardBanner().empty());
}

TEST_CASE("an activation may enable the back arrow, which then moves forward") {
  DeckDesk desk;
  desk.OpenStandardDeck(4);
  desk.deck->mnuQuiz.Press();
  desk.deck->cmdMove[1].Press();
  desk.deck->Hide();
  desk.deck->Show();
  CHECK(desk.deck->cmdMove[0].Enabled());
  desk.deck->cmdMove[0].Press();
  CHECK(desk.state.CurrentCard == 3);
  CHECK_FALSE(desk.deck->cmdMove[0].Enabled());
}

TEST_CASE("a quiz keeps no score") {
  DeckDesk desk;
  desk.OpenExtendedDeck(2);
  desk.state.TestPoints = 7;
  desk.deck->mnuQuiz.Press();
  desk.deck->Command3[1].Press();
  CHECK(desk.state.TestPoints == 0);
}

}  // namespace tessara::test
