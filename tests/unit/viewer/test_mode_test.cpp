#include <array>
#include <doctest/doctest.h>
#include <random>
#include <vector>

#include "tests/support/deck_fixture.h"

namespace tessara::test {

namespace {

enum Credit { kNone = 0, kFull = 1, kPartial = 2 };

void Grade(DeckFixture& fixture, Credit credit) {
  fixture.deck->flip.Press();
  fixture.deck->credits[credit].Press();
}

}  // namespace

TEST_CASE("a standard test opens grading with a flip and closes it with a grade") {
  DeckFixture fixture;
  fixture.OpenStandardDeck(2);
  fixture.deck->test.Press();
  CHECK(fixture.deck->creditPanel.Visible());
  CHECK_FALSE(fixture.deck->creditPanel.Enabled());
  CHECK_FALSE(fixture.deck->choicePanel.Visible());
  CHECK(fixture.deck->nextOrScore.Caption().empty());
  fixture.deck->credits[kFull].Press();
  CHECK(fixture.state.deck.testPoints == 0);
  fixture.deck->flip.Press();
  CHECK(fixture.deck->creditPanel.Enabled());
  CHECK(fixture.deck->card.CardText() == u"back 1");
  fixture.deck->flip.Press();
  CHECK(fixture.deck->creditPanel.Enabled());
  fixture.deck->credits[kPartial].Press();
  CHECK(fixture.state.deck.testPoints == 0.5);
  CHECK_FALSE(fixture.deck->creditPanel.Enabled());
  CHECK(fixture.deck->card.CardText() == u"front 2");
  CHECK(fixture.deck->flip.Caption() == u"&Show Back");
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
    DeckFixture fixture;
    fixture.OpenStandardDeck(static_cast<int>(c.credits.size()));
    fixture.deck->test.Press();
    for (const Credit credit : c.credits) Grade(fixture, credit);
    CHECK(fixture.deck->card.CardBanner() == c.banner);
    CHECK(fixture.fakes.messages.shown ==
          std::vector<FakeMessages::Shown>{
              {u"You have completed this test. After viewing your score at the top of the last "
               u"card, please return to STUDY mode.",
               0, u"Test Complete"}});
  }
}

TEST_CASE("the last card can't be graded twice, and its banner stays while it is turned") {
  DeckFixture fixture;
  fixture.OpenStandardDeck(1);
  fixture.deck->test.Press();
  Grade(fixture, kFull);
  const Text banner = fixture.deck->card.CardBanner();
  fixture.deck->flip.Press();
  CHECK_FALSE(fixture.deck->creditPanel.Enabled());
  CHECK(fixture.deck->card.CardBanner() == banner);
  SUBCASE("a new test clears the banner and grading opens again") {
    fixture.deck->test.Press();
    CHECK(fixture.deck->card.CardBanner().empty());
    fixture.deck->flip.Press();
    CHECK(fixture.deck->creditPanel.Enabled());
  }
}

TEST_CASE("choices are judged by the key") {
  DeckFixture fixture;
  fixture.OpenExtendedDeck(2);
  fixture.deck->test.Press();
  CHECK(fixture.deck->choicePanel.Visible());
  CHECK(fixture.deck->choices[0].Caption() == u"TRUE");
  CHECK(fixture.deck->choices[1].Caption() == u"FALSE");
  CHECK_FALSE(fixture.deck->choices[2].Visible());
  CHECK_FALSE(fixture.deck->nextOrScore.Enabled());
  fixture.deck->choices[0].Press();
  CHECK(fixture.deck->card.CardBanner() == u"CORRECT");
  CHECK_FALSE(fixture.deck->choicePanel.Enabled());
  CHECK(fixture.deck->nextOrScore.Caption() == u"Next Question");
  fixture.deck->nextOrScore.Press();
  CHECK(fixture.deck->card.CardBanner().empty());
  CHECK(fixture.deck->choicePanel.Enabled());
  CHECK_FALSE(fixture.deck->choices[0].Selected());
  CHECK(fixture.deck->choices[3].Caption() == u"four");
  fixture.deck->choices[2].Press();
  CHECK(fixture.deck->card.CardBanner() == u"WRONG");
  CHECK(fixture.deck->choices[1].ForeColor() == FixedColor(0, 0, 255));
  CHECK(fixture.deck->nextOrScore.Caption() == u"Show Score");
  fixture.deck->nextOrScore.Press();
  CHECK(fixture.deck->choices[1].ForeColor() == Color{});
  CHECK(fixture.deck->card.CardBanner() == u"SCORE: 50% ... RETURN TO STUDY MODE");
  CHECK(fixture.fakes.messages.shown ==
        std::vector<FakeMessages::Shown>{
            {u" Your score is 50% please return to STUDY mode.", 0, u"Test Complete"}});
  CHECK_FALSE(fixture.deck->nextOrScore.Enabled());
}

TEST_CASE("percentages are whole, a half rounded up") {
  struct Case {
    int right;
    int cards;
    TextView text;
  };
  const Case cases[] = {{2, 3, u"67"}, {1, 3, u"33"},  {0, 4, u"0"},
                        {1, 8, u"13"}, {5, 5, u"100"}, {23, 40, u"58"}};
  for (const Case& c : cases) {
    DeckFixture fixture;
    for (int card = 0; card < c.cards; ++card) fixture.AddTrueFalse(u"?", u"T");
    fixture.Open(kExtendedDeck);
    fixture.deck->test.Press();
    for (int card = 0; card < c.cards; ++card) {
      fixture.deck->choices[card < c.right ? 0 : 1].Press();
      fixture.deck->nextOrScore.Press();
    }
    CHECK(fixture.deck->card.CardBanner() ==
          u"SCORE: " + Text(c.text) + u"% ... RETURN TO STUDY MODE");
  }
}

TEST_CASE("scores of random tests are those of a count by hand") {
  std::mt19937 random(7);
  const auto roll = [&random](unsigned sides) { return random() % sides; };
  for (int test = 0; test < 100; ++test) {
    const int cards = static_cast<int>(1 + roll(12));
    CAPTURE(test);
    DeckFixture text;
    text.OpenStandardDeck(cards);
    text.deck->test.Press();
    int halves = 0;
    DeckFixture questions;
    questions.OpenExtendedDeck(cards);
    questions.deck->test.Press();
    int right = 0;
    for (int card = 1; card <= cards; ++card) {
      const auto credit = static_cast<Credit>(roll(3));
      halves += credit == kFull ? 2 : credit == kPartial ? 1 : 0;
      Grade(text, credit);
      // Every key is TRUE or B.
      const int choice = static_cast<int>(roll(card % 2 == 1 ? 2 : 4));
      right += choice == (card % 2 == 1 ? 0 : 1) ? 1 : 0;
      questions.deck->choices[choice].Press();
      questions.deck->nextOrScore.Press();
    }
    const Text points = DecimalText(halves / 2) + (halves % 2 == 1 ? u".5" : u"");
    CHECK(text.deck->card.CardBanner() ==
          u"Complete: You scored " + points + u" points out of a possible " + DecimalText(cards));
    const int percent = (200 * right + cards) / (2 * cards);
    CHECK(questions.deck->card.CardBanner() ==
          u"SCORE: " + DecimalText(percent) + u"% ... RETURN TO STUDY MODE");
  }
}

TEST_CASE("a new test from an answered card leaves the next button on, and it skips card 1") {
  DeckFixture fixture;
  fixture.OpenExtendedDeck(3);
  fixture.deck->test.Press();
  fixture.deck->choices[0].Press();
  fixture.deck->test.Press();
  CHECK(fixture.deck->nextOrScore.Enabled());
  CHECK(fixture.deck->nextOrScore.Caption() == u"Next Question");
  fixture.deck->nextOrScore.Press();
  CHECK(fixture.state.deck.currentCard == 2);
  CHECK(fixture.state.deck.testPoints == 0);
}

TEST_CASE("no mode that follows tells of the right choice of the last question") {
  for (const bool quiz : {false, true}) {
    DeckFixture fixture;
    fixture.AddChoice(u"?", {u"one", u"two"}, u"A");
    fixture.Open(kExtendedDeck);
    fixture.deck->test.Press();
    fixture.deck->choices[1].Press();
    REQUIRE(fixture.deck->card.Description().find(u"Right: one.") != Text::npos);
    (quiz ? fixture.deck->quiz : fixture.deck->study).Press();
    CHECK(fixture.deck->card.Description().find(u"Right") == Text::npos);
  }
}

TEST_CASE("a key that fits no choice is always wrong, an empty key of a third type right") {
  DeckFixture fixture;
  fixture.AddChoice(u"?", {u"one", u"two"}, u"X");
  fixture.Open(kExtendedDeck);
  fixture.deck->test.Press();
  fixture.deck->choices[1].Press();
  CHECK(fixture.deck->card.CardBanner() == u"WRONG");
  CHECK(fixture.deck->card.Description().find(u"WRONG. Right: one.") != Text::npos);
  CHECK(fixture.deck->choices[0].ForeColor() == FixedColor(0, 0, 255));
  DeckFixture third;
  third.AddTrueFalse(u"?", u"");
  third.Open(kExtendedDeck);
  third.deck->test.Press();
  third.state.deck.cardGrid.Set(1, kCardType, u"Z");
  third.deck->choices[1].Press();
  CHECK(third.deck->card.CardBanner() == u"CORRECT");
}

TEST_CASE("choices with a gap show a gap, and their ampersands mark accelerators") {
  DeckFixture fixture;
  fixture.AddChoice(u"?", {u"salt & pepper", u"", u"three"}, u"A");
  fixture.Open(kExtendedDeck);
  fixture.deck->test.Press();
  CHECK(fixture.deck->choices[0].Caption() == u"salt & pepper");
  CHECK(fixture.deck->choices[0].Visible());
  CHECK_FALSE(fixture.deck->choices[1].Visible());
  CHECK(fixture.deck->choices[2].Visible());
  CHECK_FALSE(fixture.deck->choices[3].Visible());
}

TEST_CASE("choices in any script are judged, by the mouse and by their letters") {
  const std::vector<Text> choices = {u"&\u0436\u0443\u043A", u"&\u05DE\u05D9\u05DD", u"&\u6C34",
                                     u"\xD83D\xDE00"};
  const TextView letters = u"\u0416\u05DE\u6C34";
  for (int right = 0; right < 4; ++right) {
    const auto place = static_cast<std::size_t>(right);
    DeckFixture fixture;
    fixture.AddChoice(u"\u4EC0\u4E48?", choices, Text(1, TextView(u"ABCD")[place]));
    fixture.Open(kExtendedDeck);
    fixture.deck->test.Press();
    CHECK(fixture.deck->choices[right].Caption() == choices[place]);
    if (place < letters.size()) {
      CHECK(fixture.deck->UserAccelerator(letters[place]));
    } else {
      fixture.deck->choices[right].Press();
    }
    CHECK(fixture.deck->card.CardBanner() == u"CORRECT");
  }
}

TEST_CASE("choices mean nothing outside a test, arrows nothing inside one") {
  DeckFixture fixture;
  fixture.OpenExtendedDeck(3);
  fixture.deck->JudgeChoice(0);
  CHECK(fixture.deck->card.CardBanner().empty());
  fixture.deck->test.Press();
  fixture.deck->Hide();
  fixture.deck->Show();
  CHECK(fixture.deck->arrows[kNextCard].Enabled());
  fixture.deck->arrows[kNextCard].Press();
  CHECK(fixture.state.deck.currentCard == 1);
}

TEST_CASE("a standard test makes all choices invisible") {
  DeckFixture fixture;
  fixture.OpenStandardDeck(1);
  fixture.deck->test.Press();
  for (const OptionButton& option : fixture.deck->choices) CHECK_FALSE(option.Visible());
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
  DeckFixture fixture;
  fixture.OpenStandardDeck(2);
  for (const Step& step : kWalk) {
    if (step.event == kStart) fixture.deck->test.Press();
    if (step.event == kFlip) fixture.deck->flip.Press();
    if (step.event == kGrade) fixture.deck->credits[kFull].Press();
    CAPTURE(&step - kWalk);
    CHECK(fixture.state.deck.currentCard == step.card);
    CHECK(fixture.deck->card.CardText() ==
          (step.backOnShow ? u"back " : u"front ") + DecimalText(step.card));
    CHECK(fixture.deck->creditPanel.Visible());
    CHECK(fixture.deck->creditPanel.Enabled() == step.gradable);
    CHECK(fixture.state.deck.testPoints == step.points);
    CHECK(fixture.deck->flip.Enabled());
    CHECK(fixture.deck->card.CardBanner().empty() != step.finished);
  }
  CHECK(fixture.fakes.messages.shown.size() == 1);
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
  DeckFixture fixture;
  fixture.AddTrueFalse(u"?", u"T");
  fixture.AddTrueFalse(u"?", u"T");
  fixture.Open(kExtendedDeck);
  for (const Step& step : kWalk) {
    if (step.event == kStart) fixture.deck->test.Press();
    if (step.event == kRight) fixture.deck->choices[0].Press();
    if (step.event == kWrong) fixture.deck->choices[1].Press();
    if (step.event == kNext) fixture.deck->nextOrScore.Press();
    CAPTURE(&step - kWalk);
    CHECK(fixture.state.deck.currentCard == step.card);
    CHECK(fixture.deck->choicePanel.Visible());
    CHECK(fixture.deck->choicePanel.Enabled() == step.waiting);
    CHECK(fixture.deck->nextOrScore.Enabled() == step.nextEnabled);
    CHECK(fixture.deck->nextOrScore.Caption() == step.next);
    CHECK(fixture.deck->card.CardBanner() == step.banner);
    CHECK(fixture.state.deck.testPoints == step.points);
    const bool chosen = fixture.deck->choices[0].Selected() || fixture.deck->choices[1].Selected();
    CHECK(chosen != step.waiting);
  }
  CHECK(fixture.fakes.messages.shown.size() == 1);
}

TEST_CASE("each choice of each type stands for a key") {
  struct Case {
    TextView type;
    std::array<TextView, 4> keys;
  };
  for (const Case& c : {Case{u"M", {u"A", u"B", u"C", u"D"}}, Case{u"T", {u"T", u"F", u"C", u"D"}},
                        Case{u"Z", {u"", u"", u"C", u"D"}}}) {
    for (int choice = 0; choice < 4; ++choice) {
      DeckFixture fixture;
      fixture.AddChoice(u"?", {u"one", u"two", u"three", u"four"}, u"A");
      fixture.Open(kExtendedDeck);
      fixture.deck->test.Press();
      fixture.state.deck.cardGrid.Set(1, kCardType, Text(c.type));
      fixture.state.deck.cardGrid.Set(1, kAnswer,
                                      u" " + Text(c.keys[static_cast<std::size_t>(choice)]) + u" ");
      fixture.deck->JudgeChoice(choice);
      CHECK(fixture.deck->card.CardBanner() == u"CORRECT");
    }
  }
}

TEST_CASE("a grade of the last card counts before the test is said to be over") {
  DeckFixture fixture;
  fixture.OpenStandardDeck(1);
  fixture.deck->test.Press();
  fixture.fakes.messages.whileShown = [&fixture](const FakeMessages::Shown&) {
    CHECK(fixture.state.deck.testPoints == 0.5);
    CHECK(fixture.deck->card.CardBanner().empty());
  };
  Grade(fixture, kPartial);
  CHECK(fixture.fakes.messages.shown.size() == 1);
}

TEST_CASE("the mark of the right choice stays when a test is left, until the next one") {
  DeckFixture fixture;
  fixture.OpenExtendedDeck(2);
  fixture.deck->test.Press();
  fixture.deck->choices[1].Press();
  fixture.deck->study.Press();
  CHECK(fixture.deck->choices[0].ForeColor() == FixedColor(0, 0, 255));
  CHECK(fixture.deck->choices[1].Selected());
  fixture.deck->test.Press();
  CHECK(fixture.deck->choices[0].ForeColor() == Color{});
  CHECK_FALSE(fixture.deck->choices[1].Selected());
}

TEST_CASE("the focus of a question is on its first choice that is there") {
  DeckFixture fixture;
  fixture.AddChoice(u"?", {u"", u"two", u"three"}, u"B");
  fixture.Open(kExtendedDeck);
  fixture.deck->test.Press();
  CHECK(fixture.deck->FocusedControl() == &fixture.deck->choices[1]);
}

TEST_CASE("after the score the focus is where the score can be read, or on what still works") {
  DeckFixture extended;
  extended.OpenExtendedDeck(1);
  extended.deck->test.Press();
  extended.deck->choices[0].Press();
  extended.deck->nextOrScore.Press();
  CHECK(extended.deck->FocusedControl() == &extended.deck->card);
  DeckFixture standard;
  standard.OpenStandardDeck(2);
  standard.deck->test.Press();
  Grade(standard, kFull);
  Grade(standard, kFull);
  CHECK(standard.deck->FocusedControl() == &standard.deck->flip);
  standard.deck->test.Press();
  standard.deck->flip.Press();
  standard.deck->study.Press();
  CHECK(standard.deck->FocusedControl() == &standard.deck->arrows[kNextCard]);
}

TEST_CASE("the focus follows the steps of a test") {
  DeckFixture standard;
  standard.OpenStandardDeck(2);
  standard.deck->test.Press();
  CHECK(standard.deck->FocusedControl() == &standard.deck->flip);
  standard.deck->flip.Press();
  CHECK(standard.deck->FocusedControl() == &standard.deck->credits[kFullCredit]);
  standard.deck->credits[kFullCredit].Press();
  CHECK(standard.deck->FocusedControl() == &standard.deck->flip);
  DeckFixture extended;
  extended.OpenExtendedDeck(2);
  extended.deck->test.Press();
  CHECK(extended.deck->FocusedControl() == &extended.deck->choices[0]);
  extended.deck->choices[1].Press();
  CHECK(extended.deck->FocusedControl() == &extended.deck->nextOrScore);
}

}  // namespace tessara::test
