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
