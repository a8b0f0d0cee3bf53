// The keys of everybody's fingers in the whole program, as a user presses them.

#include <doctest/doctest.h>

#include "tests/desktop/support/writing_by_keys.h"
#include "tests/support/deck_bytes.h"

using namespace tessara;
using namespace tessara::test;

namespace {

void WithCtrl(Qt::Key key, Qt::KeyboardModifiers more = Qt::NoModifier) {
  ProgramOnScreen::Key(key, Qt::ControlModifier | more);
}

/// A question of four choices, the third one right.
std::string OneQuestion() {
  return InfoBytes({}) +
         QuestionBytes('M', u"question", 1, {u"one", u"two", u"three", u"four"}, 'C') + EndBytes();
}

/// The frame alone; its own menu then makes a deck of questions and opens the builder.
void StartQuestions(ProgramOnScreen& fixture) {
  fixture.Start();
  WithCtrl(Qt::Key_W);
  ProgramOnScreen::Alt(Qt::Key_F);
  ProgramOnScreen::Keys({Qt::Key_N, Qt::Key_X});
  WithCtrl(Qt::Key_E);
}

}  // namespace

TEST_CASE("Ten text cards are written with two keys each beside their text") {
  ProgramOnScreen fixture;
  fixture.Start();
  WithCtrl(Qt::Key_E);
  for (int card = 1; card <= 10; ++card) {
    CHECK(ProgramOnScreen::Focus() == "Text1(0)");
    ProgramOnScreen::Type(u"front " + DecimalText(card));
    ProgramOnScreen::Key(Qt::Key_Tab);
    ProgramOnScreen::Type(u"back " + DecimalText(card));
    WithCtrl(Qt::Key_Return);
  }
  CHECK(fixture.state.deck.cardCount == 10);
  CHECK(fixture.state.deck.Cell(10, kBackText) == u"back 10");
  CHECK(fixture.TakeAsked().empty());
}

TEST_CASE("Ten questions are written with their marks and tabs and one key more") {
  ProgramOnScreen fixture;
  StartQuestions(fixture);
  for (int card = 1; card <= 10; ++card) {
    CHECK(ProgramOnScreen::Focus() == "Text2");
    ProgramOnScreen::Type(u"question " + DecimalText(card));
    for (const TextView answer : {u"one", u"two", u"three", u"four"}) {
      ProgramOnScreen::Key(Qt::Key_Tab);
      ProgramOnScreen::Type(answer);
    }
    ProgramOnScreen::Key(Qt::Key_Tab);
    CHECK(ProgramOnScreen::Focus() == "Option1(0)");
    ProgramOnScreen::Key(Qt::Key_Down);
    WithCtrl(Qt::Key_Return);
  }
  CHECK(fixture.state.deck.cardCount == 10);
  CHECK(fixture.state.deck.Cell(10, kAnswer) == u"B");
  CHECK(fixture.state.deck.Cell(10, kChoiceA + 3) == u"four");
  CHECK(fixture.TakeAsked().empty());
}

TEST_CASE("A deck is studied by arrows and blanks from the start") {
  ProgramOnScreen fixture;
  fixture.folder.Write("birds.tsr", DeckBytes(3));
  fixture.Start(u"birds.tsr");
  const std::pair<Qt::Key, const char*> steps[] = {
      {Qt::Key_Space, "back 1"},  {Qt::Key_Right, "back 2"}, {Qt::Key_Space, "front 2"},
      {Qt::Key_Right, "front 3"}, {Qt::Key_Space, "back 3"}, {Qt::Key_Right, "back 3"},
      {Qt::Key_Left, "back 2"},   {Qt::Key_Left, "back 1"},  {Qt::Key_Left, "back 1"},
      {Qt::Key_Space, "front 1"}};
  for (const auto& [key, shown] : steps) {
    ProgramOnScreen::Key(key);
    CHECK(ProgramOnScreen::Card("CardText") == shown);
  }
}

TEST_CASE("In a menu that has been opened by the keyboard the arrows are the menu's") {
  ProgramOnScreen fixture;
  fixture.folder.Write("birds.tsr", DeckBytes(3));
  fixture.Start(u"birds.tsr");
  ProgramOnScreen::Key(Qt::Key_Alt, Qt::AltModifier);
  ProgramOnScreen::Key(Qt::Key_Right);
  CHECK(ProgramOnScreen::Card("CardText") == "front 1");
}

TEST_CASE("In a test the arrows go round all four choices, and a blank answers") {
  ProgramOnScreen fixture;
  fixture.folder.Write("one.tsr", OneQuestion());
  fixture.Start(u"one.tsr");
  ProgramOnScreen::ChooseByKeys("mnuMode", "mnuTest");
  for (const char* choice : {"Option1(0)", "Option1(1)", "Option1(2)", "Option1(3)"}) {
    CHECK(ProgramOnScreen::Focus() == choice);
    CHECK(ProgramOnScreen::Card("CardBanner").empty());
    ProgramOnScreen::Key(Qt::Key_Down);
  }
  CHECK(ProgramOnScreen::Focus() == "Option1(0)");
  ProgramOnScreen::Keys({Qt::Key_Up, Qt::Key_Left, Qt::Key_Space});
  CHECK(ProgramOnScreen::Card("CardBanner") == "CORRECT");
}

TEST_CASE("Save, save as, go to and close go by their keys") {
  ProgramOnScreen fixture;
  fixture.folder.Write("birds.tsr", DeckBytes(3));
  fixture.Start(u"birds.tsr");
  fixture.WhenAsked([](QWidget&) {
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("3"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  });
  WithCtrl(Qt::Key_G);
  CHECK(ProgramOnScreen::Card("CardText") == "front 3");
  TypePathWhenAsked(fixture, "other.tsr");
  fixture.AnswerByKey(Qt::Key_Return);
  WithCtrl(Qt::Key_S, Qt::ShiftModifier);
  CHECK(fixture.folder.Read("other.tsr").size() == fixture.folder.Read("birds.tsr").size());
  fixture.TakeAsked();
  WithCtrl(Qt::Key_S);
  CHECK(fixture.TakeAsked().empty());
  // The information of the saved deck is in front, and has the keys.
  ProgramOnScreen::Key(Qt::Key_Escape);
  fixture.state.deck.changed = true;
  fixture.AnswerByKey(Qt::Key_Y);
  fixture.AnswerByKey(Qt::Key_Return);
  fixture.AnswerByKey(Qt::Key_Y);
  WithCtrl(Qt::Key_W);
  CHECK(fixture.TakeAsked().size() == 3);
  CHECK_FALSE(fixture.program.DeckWindowOf().IsLoaded());
}
