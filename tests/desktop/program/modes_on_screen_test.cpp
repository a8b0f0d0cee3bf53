// Whole quizzes and tests in the whole program, taken by the mouse and by the keyboard alone.

#include <doctest/doctest.h>

#include "tests/desktop/support/program_on_screen.h"
#include "tests/support/deck_bytes.h"

using namespace tessara;
using namespace tessara::test;

namespace {

/// Two true/false questions and two of four choices, in turn. The keys are T, C, F, A.
std::string QuestionDeckBytes() {
  const std::array<Text, 4> choices = {u"one", u"two", u"three", u"four"};
  return InfoBytes({}) + QuestionBytes('T', u"question 1", 1, {}, 'T') +
         QuestionBytes('M', u"question 2", 2, choices, 'C') +
         QuestionBytes('T', u"question 3", 3, {}, 'F') +
         QuestionBytes('M', u"question 4", 4, choices, 'A') + EndBytes();
}

/// A user with one way to press things.
class Hand {
 public:
  explicit Hand(bool byKeys) : byKeys_(byKeys) {}

  void Enter(const char* mode) const {
    byKeys_ ? ProgramOnScreen::ChooseByKeys("mnuMode", mode)
            : ProgramOnScreen::ChooseByMouse("mnuMode", mode);
  }
  /// The button of the next step: it has the focus already.
  void PressNext(const char* control) const {
    if (byKeys_) CHECK(ProgramOnScreen::Focus() == control);
    Press(control);
  }
  /// Any other: Tab gets there.
  void Press(const char* control) const {
    if (!byKeys_) return ProgramOnScreen::Click(control);
    constexpr int kMostTabs = 12;
    for (int tabs = 0; ProgramOnScreen::Focus() != control && tabs < kMostTabs; ++tabs) {
      ProgramOnScreen::Key(Qt::Key_Tab);
    }
    REQUIRE(ProgramOnScreen::Focus() == control);
    // A blank turns the card, also from here.
    const bool pages = std::string(control) == "cmdMove(1)";
    ProgramOnScreen::Key(pages ? Qt::Key_Right : Qt::Key_Space);
  }

 private:
  bool byKeys_;
};

std::string Banner() {
  return ProgramOnScreen::Card("CardBanner");
}

/// Turns a page in study mode, forwards (1) or backwards (0).
void Page(bool byKeys, int index) {
  if (byKeys) return ProgramOnScreen::Key(index == 1 ? Qt::Key_PageDown : Qt::Key_PageUp);
  ProgramOnScreen::Click(index == 1 ? "cmdMove(1)" : "cmdMove(0)");
}

bool CanPage(int index) {
  return ProgramOnScreen::Of(index == 1 ? "cmdMove(1)" : "cmdMove(0)").isEnabled();
}

std::string AnswerShown() {
  return ProgramOnScreen::Of("Label2").property("text").toString().toStdString();
}

/// On the card with the number: the text on show.
std::string TextOnCard(const char* number) {
  CHECK(ProgramOnScreen::Card("CardNumber") == number);
  return ProgramOnScreen::Card("CardText");
}

/// A menu used by the mouse stays the active window here: the focus comes back to this behind it.
std::string FocusInFrame() {
  ProgramOnScreen::Settle();
  const QWidget* focused = ProgramOnScreen::Of("NoteletCtl1").window()->focusWidget();
  REQUIRE(focused != nullptr);
  return focused->objectName().toStdString();
}

bool Shown(const char* control) {
  return ProgramOnScreen::Of(control).isVisible();
}

}  // namespace

TEST_CASE("A text deck is studied, by the mouse and by the keyboard alone") {
  for (const bool byKeys : {false, true}) {
    CAPTURE(byKeys);
    ProgramOnScreen fixture;
    fixture.folder.Write("birds.tsr", DeckBytes(3));
    fixture.Start(u"birds.tsr");
    const auto flip = [byKeys] {
      byKeys ? ProgramOnScreen::Alt(Qt::Key_S) : ProgramOnScreen::Click("Command3(1)");
    };
    CHECK(TextOnCard("1") == "front 1");
    CHECK(ProgramOnScreen::Card("CardTotal") == "3");
    CHECK_FALSE(CanPage(0));
    Page(byKeys, 0);
    CHECK(TextOnCard("1") == "front 1");
    flip();
    CHECK(TextOnCard("1") == "back 1");
    // The side stays.
    Page(byKeys, 1);
    CHECK(TextOnCard("2") == "back 2");
    CHECK(CanPage(0));
    CHECK(CanPage(1));
    Page(byKeys, 1);
    CHECK(TextOnCard("3") == "back 3");
    CHECK_FALSE(CanPage(1));
    Page(byKeys, 1);
    CHECK(TextOnCard("3") == "back 3");
    flip();
    CHECK(TextOnCard("3") == "front 3");
    Page(byKeys, 0);
    Page(byKeys, 0);
    CHECK(TextOnCard("1") == "front 1");
    CHECK_FALSE(CanPage(0));
    CHECK(fixture.TakeAsked().empty());
  }
}

TEST_CASE("Questions are studied with their answers, by the mouse and by the keyboard alone") {
  const char* const answers[] = {"TRUE", "three", "FALSE", "one"};
  for (const bool byKeys : {false, true}) {
    CAPTURE(byKeys);
    ProgramOnScreen fixture;
    fixture.folder.Write("sky.tsr", QuestionDeckBytes());
    fixture.Start(u"sky.tsr");
    CHECK_FALSE(ProgramOnScreen::Of("Command3(1)").isEnabled());
    const auto check = [&answers](int card) {
      const std::string number = std::to_string(card);
      CHECK(TextOnCard(number.c_str()) == "question " + number);
      CHECK(Shown("Picture1"));
      CHECK(AnswerShown() == answers[card - 1]);
      CHECK(CanPage(0) == (card != 1));
      CHECK(CanPage(1) == (card != 4));
    };
    for (const int card : {1, 2, 3, 4}) {
      check(card);
      Page(byKeys, 1);
    }
    for (const int card : {4, 3, 2, 1}) {
      check(card);
      Page(byKeys, 0);
    }
    check(1);
    CHECK(fixture.TakeAsked().empty());
  }
}

TEST_CASE("A quiz of a text deck is taken whole, by the mouse and by the keyboard alone") {
  for (const bool byKeys : {false, true}) {
    CAPTURE(byKeys);
    ProgramOnScreen fixture;
    fixture.folder.Write("birds.tsr", DeckBytes(3));
    fixture.Start(u"birds.tsr");
    const Hand hand(byKeys);
    hand.Enter("mnuQuiz");
    CHECK(ProgramOnScreen::TitleOf("frmMain") == "birds  [QUIZ]");
    for (const char* number : {"1", "2", "3"}) {
      CHECK(TextOnCard(number) == std::string("front ") + number);
      CHECK(Banner().empty());
      hand.PressNext("Command3(1)");
      CHECK(TextOnCard(number) == std::string("back ") + number);
      if (number != std::string("3")) hand.PressNext("cmdMove(1)");
    }
    CHECK(Banner() == "This quiz is complete, please return to study mode");
    CHECK_FALSE(ProgramOnScreen::Of("cmdMove(1)").isEnabled());
    hand.Enter("mnuStudy");
    CHECK(TextOnCard("1") == "front 1");
    CHECK(ProgramOnScreen::TitleOf("frmMain") == "birds  [STUDY]");
    CHECK(fixture.TakeAsked().empty());
  }
}

TEST_CASE("A quiz of questions is taken whole, by the mouse and by the keyboard alone") {
  for (const bool byKeys : {false, true}) {
    CAPTURE(byKeys);
    ProgramOnScreen fixture;
    fixture.folder.Write("sky.tsr", QuestionDeckBytes());
    fixture.Start(u"sky.tsr");
    CHECK(Shown("Picture1"));
    const Hand hand(byKeys);
    hand.Enter("mnuQuiz");
    const char* const answers[] = {"TRUE", "three", "FALSE", "one"};
    for (int card = 1; card <= 4; ++card) {
      const std::string number = std::to_string(card);
      CHECK(TextOnCard(number.c_str()) == "question " + number);
      CHECK_FALSE(Shown("Picture1"));
      CHECK(Banner().empty());
      hand.PressNext("Command3(1)");
      CHECK(Shown("Picture1"));
      CHECK(ProgramOnScreen::Of("Label2").property("text") == answers[card - 1]);
      if (card < 4) hand.PressNext("cmdMove(1)");
    }
    CHECK(Banner() == "You have completed this quiz, please return to study mode");
    hand.Enter("mnuStudy");
    CHECK(FocusInFrame() == "cmdMove(1)");
    CHECK(Shown("Picture1"));
    CHECK(TextOnCard("1") == "question 1");
  }
}

TEST_CASE("A test of a text deck is graded whole, by the mouse and by the keyboard alone") {
  for (const bool byKeys : {false, true}) {
    CAPTURE(byKeys);
    ProgramOnScreen fixture;
    fixture.folder.Write("birds.tsr", DeckBytes(3));
    fixture.Start(u"birds.tsr");
    const Hand hand(byKeys);
    hand.Enter("mnuTest");
    CHECK(Shown("Frame1"));
    hand.PressNext("Command3(1)");
    CHECK(TextOnCard("1") == "back 1");
    hand.PressNext("Command1(1)");
    CHECK(TextOnCard("2") == "front 2");
    hand.PressNext("Command3(1)");
    hand.Press("Command1(2)");
    CHECK(TextOnCard("3") == "front 3");
    hand.PressNext("Command3(1)");
    fixture.AnswerByKey(Qt::Key_Return);
    hand.Press("Command1(0)");
    CHECK(fixture.TakeAsked() ==
          std::vector<std::string>{"You have completed this test. After viewing your score at the "
                                   "top of the last card, please return to STUDY mode."});
    CHECK(Banner() == "Complete: You scored 1.5 points out of a possible 3");
    hand.PressNext("Command3(1)");
    CHECK_FALSE(ProgramOnScreen::Of("Frame1").isEnabled());
    hand.Enter("mnuStudy");
    CHECK(Banner().empty());
    CHECK_FALSE(Shown("Frame1"));
  }
}

TEST_CASE("A test of questions is judged whole, by the mouse and by the keyboard alone") {
  for (const bool byKeys : {false, true}) {
    CAPTURE(byKeys);
    ProgramOnScreen fixture;
    fixture.folder.Write("sky.tsr", QuestionDeckBytes());
    fixture.Start(u"sky.tsr");
    const Hand hand(byKeys);
    hand.Enter("mnuTest");
    CHECK(Shown("Frame2"));
    struct Choice {
      const char* option;
      const char* banner;
    };
    const Choice choices[] = {{"Option1(0)", "CORRECT"},
                              {"Option1(3)", "WRONG"},
                              {"Option1(1)", "CORRECT"},
                              {"Option1(0)", "CORRECT"}};
    for (const Choice& choice : choices) {
      CHECK_FALSE(ProgramOnScreen::Of("Command3(0)").isEnabled());
      hand.Press(choice.option);
      CHECK(Banner() == choice.banner);
      if (&choice == &choices[3]) fixture.AnswerByKey(Qt::Key_Return);
      hand.PressNext("Command3(0)");
    }
    CHECK(fixture.TakeAsked() ==
          std::vector<std::string>{" Your score is 75% please return to STUDY mode."});
    CHECK(Banner() == "SCORE: 75% ... RETURN TO STUDY MODE");
    hand.Enter("mnuStudy");
    CHECK(FocusInFrame() != "Command3(2)");
    CHECK(TextOnCard("1") == "question 1");
    CHECK(ProgramOnScreen::TitleOf("frmMain") == "sky  [STUDY]");
  }
}
