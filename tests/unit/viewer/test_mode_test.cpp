#include <array>
#include <doctest/doctest.h>
#include <random>

#include "tests/support/deck_desk.h"

namespace tessara::test {

namespace {

enum Credit { kNone = 0, kFull = 1, kPartial = 2 };

void Grade(DeckDesk& desk, Credit credit) {
  desk.deck->Command3[1].Press();
  desk.deck->Command1[credit].Press();
}

}  // namespace

TEST_CASE("a standard test opens grading with a flip and closes it with a grade") {
  DeckDesk desk;
  desk.OpenStandardDeck(2);
  desk.deck->mnuTest.Press();
  CHECK(desk.deck->Frame1.Visible());
  CHECK_FALSE(desk.deck->Frame1.Enabled());
  CHECK_FALSE(desk.deck->Frame2.Visible());
  CHECK(desk.deck->Command3[0].Caption().empty());
  desk.deck->Command1[kFull].Press();
  CHECK(desk.state.TestPoints == 0);
  desk.deck->Command3[1].Press();
  CHECK(desk.deck->Frame1.Enabled());
  CHECK(desk.deck->NoteletCtl1.CardText() == u"back 1");
  desk.deck->Command3[1].Press();
  CHECK(desk.deck->Frame1.Enabled());
  desk.deck->Command1[kPartial].Press();
  CHECK(desk.state.TestPoints == 0.5);
  CHECK_FALSE(desk.deck->Frame1.Enabled());
  CHECK(desk.deck->NoteletCtl1.CardText() == u"front 2");
  CHECK(desk.deck->Command3[1].Caption() == u"&Show Back");
}

TEST_CASE("the score of a standard test counts points in halves") {
  struct Case {
    std::vector<Credit> credits;
    TextView banner;
  };
  const Case cases[] = {
      {{kFull, kFull, kFull}, u"Complete: You scored 3 points out of a possible 3"},
      {{kPartial, kNone}, u"Complete: You scored 0.5 points out of a possible 2"},
      {{kFull, kPartial, kFull}, u"Complete: You scored 2.5 points out of a possible 3"},
      {{kNone}, u"Complete: You scored 0 points out of a possible 1"},
  };
  for (const Case& c : cases) {
    DeckDesk desk;
    desk.OpenStandardDeck(static_cast<int>(c.credits.size()));
    desk.deck->mnuTest.Press();
    for (const Credit credit : c.credits) Grade(desk, credit);
    CHECK(desk.deck->NoteletCtl1.CardBanner() == c.banner);
    CHECK(desk.fakes.messages.shown ==
          std::vector<FakeMessages::Shown>{
              {u"You have completed this test. After viewing your score at the top of the last "
               u"card, please return to STUDY mode.",
               0, u"Test Complete"}});
  }
}

TEST_CASE("the last card can't be graded twice, and its banner stays while it is turned") {
  DeckDesk desk;
  desk.OpenStandardDeck(1);
  desk.deck->mnuTest.Press();
  Grade(desk, kFull);
  const Text banner = desk.deck->NoteletCtl1.CardBanner();
  desk.deck->Command3[1].Press();
  CHECK_FALSE(desk.deck->Frame1.Enabled());
  CHECK(desk.deck->NoteletCtl1.CardBanner() == banner);
  SUBCASE("a new test clears the banner and grading opens again") {
    desk.deck->mnuTest.Press();
    CHECK(desk.deck->NoteletCtl1.CardBanner().empty());
    desk.deck->Command3[1].Press();
    CHECK(desk.deck->Frame1.Enabled());
  }
}

TEST_CASE("choices are judged by the key") {
  DeckDesk desk;
  desk.OpenExtendedDeck(2);
  desk.deck->mnuTest.Press();
  CHECK(desk.deck->Frame2.Visible());
  CHECK(desk.deck->Option1[0].Caption() == u"TRUE");
  CHECK(desk.deck->Option1[1].Caption() == u"FALSE");
  CHECK_FALSE(desk.deck->Option1[2].Visible());
  CHECK_FALSE(desk.deck->Command3[0].Enabled());
  desk.deck->Option1[0].Press();
  CHECK(desk.deck->NoteletCtl1.CardBanner() == u"CORRECT");
  CHECK_FALSE(desk.deck->Frame2.Enabled());
  CHECK(desk.deck->Command3[0].Caption() == u"Next Question");
  desk.deck->Command3[0].Press();
  CHECK(desk.deck->NoteletCtl1.CardBanner().empty());
  CHECK(desk.deck->Frame2.Enabled());
  CHECK_FALSE(desk.deck->Option1[0].Selected());
  CHECK(desk.deck->Option1[3].Caption() == u"four");
  desk.deck->Option1[2].Press();
  CHECK(desk.deck->NoteletCtl1.CardBanner() == u"WRONG");
  CHECK(desk.deck->Option1[1].ForeColor() == FixedColor(0, 0, 255));
  CHECK(desk.deck->Command3[0].Caption() == u"Show Score");
  desk.deck->Command3[0].Press();
  CHECK(desk.deck->Option1[1].ForeColor() == Color{});
  CHECK(desk.deck->NoteletCtl1.CardBanner() == u"SCORE: 50% ... RETURN TO STUDY MODE");
  CHECK(desk.fakes.messages.shown ==
        std::vector<FakeMessages::Shown>{
            {u" Your score is 50% please return to STUDY mode.", 0, u"Test Complete"}});
  CHECK_FALSE(desk.deck->Command3[0].Enabled());
}

TEST_CASE("percentages are whole, a half rounded up") {
  struct Case {
    int right;
    int cards;
    TextView text;
  };
  const Case cases[] = {{2, 3, u"67"}, {1, 3, u"33"}, {0, 4, u"0"}, {1, 8, u"13"}, {5, 5, u"100"}};
  for (const Case& c : cases) {
    DeckDesk desk;
    for (int card = 0; card < c.cards; ++card) desk.AddTrueFalse(u"?", u"T");
    desk.Open(kExtendedDeck);
    desk.deck->mnuTest.Press();
    for (int card = 0; card < c.cards; ++card) {
      desk.deck->Option1[card < c.right ? 0 : 1].Press();
      desk.deck->Command3[0].Press();
    }
    CHECK(desk.deck->NoteletCtl1.CardBanner() ==
          u"SCORE: " + Text(c.text) + u"% ... RETURN TO STUDY MODE");
  }
}

TEST_CASE("scores of random tests are those of a count by hand") {
  std::mt19937 random(7);
  const auto roll = [&random](unsigned sides) { return random() % sides; };
  for (int test = 0; test < 100; ++test) {
    const int cards = static_cast<int>(1 + roll(12));
    CAPTURE(test);
    DeckDesk text;
    text.OpenStandardDeck(cards);
    text.deck->mnuTest.Press();
    int halves = 0;
    DeckDesk questions;
    questions.OpenExtendedDeck(cards);
    questions.deck->mnuTest.Press();
    int right = 0;
    for (int card = 1; card <= cards; ++card) {
      const auto credit = static_cast<Credit>(roll(3));
      halves += credit == kFull ? 2 : credit == kPartial ? 1 : 0;
      Grade(text, credit);
      // Every key is TRUE or B.
      const int choice = static_cast<int>(roll(card % 2 == 1 ? 2 : 4));
      right += choice == (card % 2 == 1 ? 0 : 1) ? 1 : 0;
      questions.deck->Option1[choice].Press();
      questions.deck->Command3[0].Press();
    }
    const Text points = DecimalText(halves / 2) + (halves % 2 == 1 ? u".5" : u"");
    CHECK(text.deck->NoteletCtl1.CardBanner() ==
          u"Complete: You scored " + points + u" points out of a possible " + DecimalText(cards));
    const int percent = (200 * right + cards) / (2 * cards);
    CHECK(questions.deck->NoteletCtl1.CardBanner() ==
          u"SCORE: " + DecimalText(percent) + u"% ... RETURN TO STUDY MODE");
  }
}

TEST_CASE("a new test from an answered card leaves the next button on, and it skips card 1") {
  DeckDesk desk;
  desk.OpenExtendedDeck(3);
  desk.deck->mnuTest.Press();
  desk.deck->Option1[0].Press();
  desk.deck->mnuTest.Press();
  CHECK(desk.deck->Command3[0].Enabled());
  CHECK(desk.deck->Command3[0].Caption() == u"Next Question");
  desk.deck->Command3[0].Press();
  CHECK(desk.state.CurrentCard == 2);
  CHECK(desk.state.TestPoints == 0);
}

TEST_CASE("a key that fits no choice is always wrong, an empty key of a third type right") {
  DeckDesk desk;
  desk.AddChoice(u"?", {u"one", u"two"}, u"X");
  desk.Open(kExtendedDeck);
  desk.deck->mnuTest.Press();
  desk.deck->Option1[1].Press();
  CHECK(desk.deck->NoteletCtl1.CardBanner() == u"WRONG");
  CHECK(desk.deck->Option1[0].ForeColor() == FixedColor(0, 0, 255));
  DeckDesk third;
  third.AddTrueFalse(u"?", u"");
  third.Open(kExtendedDeck);
  third.deck->mnuTest.Press();
  third.state.CardGrid.Set(1, kCardType, u"Z");
  third.deck->Option1[1].Press();
  CHECK(third.deck->NoteletCtl1.CardBanner() == u"CORRECT");
}

TEST_CASE("choices with a gap show a gap, and their ampersands mark accelerators") {
  DeckDesk desk;
  desk.AddChoice(u"?", {u"salt & pepper", u"", u"three"}, u"A");
  desk.Open(kExtendedDeck);
  desk.deck->mnuTest.Press();
  CHECK(desk.deck->Option1[0].Caption() == u"salt & pepper");
  CHECK(desk.deck->Option1[0].Visible());
  CHECK_FALSE(desk.deck->Option1[1].Visible());
  CHECK(desk.deck->Option1[2].Visible());
  CHECK_FALSE(desk.deck->Option1[3].Visible());
}

TEST_CASE("choices mean nothing outside a test, arrows nothing inside one") {
  DeckDesk desk;
  desk.OpenExtendedDeck(3);
  desk.deck->Option1_Click(0);
  CHECK(desk.deck->NoteletCtl1.CardBanner().empty());
  desk.deck->mnuTest.Press();
  desk.deck->Hide();
  desk.deck->Show();
  CHECK(desk.deck->cmdMove[1].Enabled());
  desk.deck->cmdMove[1].Press();
  CHECK(desk.state.CurrentCard == 1);
}

TEST_CASE("a standard test makes all choices invisible") {
  DeckDesk desk;
  desk.OpenStandardDeck(1);
  desk.deck->mnuTest.Press();
  for (const OptionButton& option : desk.deck->Option1) CHECK_FALSE(option.Visible());
}

TEST_CASE("the states of a standard test, step by step") {
  enum Event { kStart, kFlip, kGrade };
  struct Step {
    Event event;
    int card;
    bool backOnShow;
    bool gradable;
    double points;
    bool finished;
  };
  constexpr Step kWalk[] = {
      {kStart, 1, false, false, 0, false}, {kGrade, 1, false, false, 0, false},
      {kFlip, 1, true, true, 0, false},    {kFlip, 1, false, true, 0, false},
      {kFlip, 1, true, true, 0, false},    {kGrade, 2, false, false, 1, false},
      {kFlip, 2, true, true, 1, false},    {kFlip, 2, false, true, 1, false},
      {kGrade, 2, false, false, 2, true},  {kFlip, 2, true, false, 2, true},
      {kGrade, 2, true, false, 2, true},   {kStart, 1, false, false, 0, false},
      {kFlip, 1, true, true, 0, false},
  };
  DeckDesk desk;
  desk.OpenStandardDeck(2);
  for (const Step& step : kWalk) {
    if (step.event == kStart) desk.deck->mnuTest.Press();
    if (step.event == kFlip) desk.deck->Command3[1].Press();
    if (step.event == kGrade) desk.deck->Command1[kFull].Press();
    CAPTURE(&step - kWalk);
    CHECK(desk.state.CurrentCard == step.card);
    CHECK(desk.deck->NoteletCtl1.CardText() ==
          (step.backOnShow ? u"back " : u"front ") + DecimalText(step.card));
    CHECK(desk.deck->Frame1.Visible());
    CHECK(desk.deck->Frame1.Enabled() == step.gradable);
    CHECK(desk.state.TestPoints == step.points);
    CHECK(desk.deck->Command3[1].Enabled());
    CHECK(desk.deck->NoteletCtl1.CardBanner().empty() != step.finished);
  }
  CHECK(desk.fakes.messages.shown.size() == 1);
}

TEST_CASE("the states of an extended test, step by step") {
  enum Event { kStart, kRight, kWrong, kNext };
  struct Step {
    Event event;
    int card;
    bool waiting;
    bool nextEnabled;
    TextView next;
    TextView banner;
    double points;
  };
  constexpr TextView kNextQuestion = u"Next Question";
  constexpr TextView kShowScore = u"Show Score";
  constexpr TextView kScore = u"SCORE: 50% ... RETURN TO STUDY MODE";
  constexpr Step kWalk[] = {
      {kStart, 1, true, false, kNextQuestion, u"", 0},
      {kNext, 1, true, false, kNextQuestion, u"", 0},
      {kRight, 1, false, true, kNextQuestion, u"CORRECT", 1},
      {kWrong, 1, false, true, kNextQuestion, u"CORRECT", 1},
      {kNext, 2, true, false, kNextQuestion, u"", 1},
      {kWrong, 2, false, true, kShowScore, u"WRONG", 1},
      {kRight, 2, false, true, kShowScore, u"WRONG", 1},
      {kNext, 2, false, false, kShowScore, kScore, 1},
      {kNext, 2, false, false, kShowScore, kScore, 1},
      {kStart, 1, true, false, kNextQuestion, u"", 0},
  };
  DeckDesk desk;
  desk.AddTrueFalse(u"?", u"T");
  desk.AddTrueFalse(u"?", u"T");
  desk.Open(kExtendedDeck);
  for (const Step& step : kWalk) {
    if (step.event == kStart) desk.deck->mnuTest.Press();
    if (step.event == kRight) desk.deck->Option1[0].Press();
    if (step.event == kWrong) desk.deck->Option1[1].Press();
    if (step.event == kNext) desk.deck->Command3[0].Press();
    CAPTURE(&step - kWalk);
    CHECK(desk.state.CurrentCard == step.card);
    CHECK(desk.deck->Frame2.Visible());
    CHECK(desk.deck->Frame2.Enabled() == step.waiting);
    CHECK(desk.deck->Command3[0].Enabled() == step.nextEnabled);
    CHECK(desk.deck->Command3[0].Caption() == step.next);
    CHECK(desk.deck->NoteletCtl1.CardBanner() == step.banner);
    CHECK(desk.state.TestPoints == step.points);
    const bool chosen = desk.deck->Option1[0].Selected() || desk.deck->Option1[1].Selected();
    CHECK(chosen != step.waiting);
  }
  CHECK(desk.fakes.messages.shown.size() == 1);
}

TEST_CASE("each choice of each type stands for a key") {
  struct Case {
    TextView type;
    std::array<TextView, 4> keys;
  };
  for (const Case& c : {Case{u"M", {u"A", u"B", u"C", u"D"}}, Case{u"T", {u"T", u"F", u"C", u"D"}},
                        Case{u"Z", {u"", u"", u"C", u"D"}}}) {
    for (int choice = 0; choice < 4; ++choice) {
      DeckDesk desk;
      desk.AddChoice(u"?", {u"one", u"two", u"three", u"four"}, u"A");
      desk.Open(kExtendedDeck);
      desk.deck->mnuTest.Press();
      desk.state.CardGrid.Set(1, kCardType, Text(c.type));
      desk.state.CardGrid.Set(1, kAnswer,
                              u" " + Text(c.keys[static_cast<std::size_t>(choice)]) + u" ");
      desk.deck->Option1_Click(choice);
      CHECK(desk.deck->NoteletCtl1.CardBanner() == u"CORRECT");
    }
  }
}

TEST_CASE("a grade of the last card counts before the test is said to be over") {
  DeckDesk desk;
  desk.OpenStandardDeck(1);
  desk.deck->mnuTest.Press();
  desk.fakes.messages.whileShown = [&desk](const FakeMessages::Shown&) {
    CHECK(desk.state.TestPoints == 0.5);
    CHECK(desk.deck->NoteletCtl1.CardBanner().empty());
  };
  Grade(desk, kPartial);
  CHECK(desk.fakes.messages.shown.size() == 1);
}

TEST_CASE("the mark of the right choice stays when a test is left, until the next one") {
  DeckDesk desk;
  desk.OpenExtendedDeck(2);
  desk.deck->mnuTest.Press();
  desk.deck->Option1[1].Press();
  desk.deck->mnuStudy.Press();
  CHECK(desk.deck->Option1[0].ForeColor() == FixedColor(0, 0, 255));
  CHECK(desk.deck->Option1[1].Selected());
  desk.deck->mnuTest.Press();
  CHECK(desk.deck->Option1[0].ForeColor() == Color{});
  CHECK_FALSE(desk.deck->Option1[1].Selected());
}

TEST_CASE("the focus of a question is on its first choice that is there") {
  DeckDesk desk;
  desk.AddChoice(u"?", {u"", u"two", u"three"}, u"B");
  desk.Open(kExtendedDeck);
  desk.deck->mnuTest.Press();
  CHECK(desk.deck->FocusedControl() == &desk.deck->Option1[1]);
}

TEST_CASE("after the score the focus is where the score can be read, or on what still works") {
  DeckDesk extended;
  extended.OpenExtendedDeck(1);
  extended.deck->mnuTest.Press();
  extended.deck->Option1[0].Press();
  extended.deck->Command3[0].Press();
  CHECK(extended.deck->FocusedControl() == &extended.deck->NoteletCtl1);
  DeckDesk standard;
  standard.OpenStandardDeck(2);
  standard.deck->mnuTest.Press();
  Grade(standard, kFull);
  Grade(standard, kFull);
  CHECK(standard.deck->FocusedControl() == &standard.deck->Command3[1]);
  standard.deck->mnuTest.Press();
  standard.deck->Command3[1].Press();
  standard.deck->mnuStudy.Press();
  CHECK(standard.deck->FocusedControl() == &standard.deck->cmdMove[1]);
}

TEST_CASE("the focus follows the steps of a test") {
  DeckDesk standard;
  standard.OpenStandardDeck(2);
  standard.deck->mnuTest.Press();
  CHECK(standard.deck->FocusedControl() == &standard.deck->Command3[1]);
  standard.deck->Command3[1].Press();
  CHECK(standard.deck->FocusedControl() == &standard.deck->Command1[1]);
  standard.deck->Command1[1].Press();
  CHECK(standard.deck->FocusedControl() == &standard.deck->Command3[1]);
  DeckDesk extended;
  extended.OpenExtendedDeck(2);
  extended.deck->mnuTest.Press();
  CHECK(extended.deck->FocusedControl() == &extended.deck->Option1[0]);
  extended.deck->Option1[1].Press();
  CHECK(extended.deck->FocusedControl() == &extended.deck->Command3[0]);
}

}  // namespace tessara::test
