// Ctrl+Return in a builder: the card is kept, and after an addition a new one is begun.

#include <doctest/doctest.h>

#include "tests/unit/authoring/builder_fixture.h"

namespace tessara::test {

TEST_CASE("in the text builder the key adds the card and begins the next one") {
  BuilderFixture fixture;
  TextCardBuilder& window = fixture.OpenEssay();
  for (const int card : {1, 2}) {
    Type(window.sides[kFrontSide], u"front");
    Type(window.sides[kBackSide], u"back");
    window.UserFocus(window.sides[kBackSide]);
    CHECK(window.UserKey(WindowKey::kKeep));
    CHECK(fixture.state.deck.cardCount == card);
    CHECK(fixture.Cell(card, kBackText) == u"back");
    CHECK(window.number.Caption() == u"Card: " + DecimalText(card + 1));
    CHECK(window.sides[kFrontSide].TextOf().empty());
    CHECK(window.FocusedControl() == &window.sides[kFrontSide]);
  }
}

TEST_CASE("the key keeps a change, and stays on the card") {
  BuilderFixture fixture;
  TextCardBuilder& window = fixture.OpenEssay(2);
  Replace(window.sides[kFrontSide], u"other");
  CHECK(window.UserKey(WindowKey::kKeep));
  CHECK(fixture.Cell(1, kCardText) == u"other");
  CHECK(fixture.state.deck.cardCount == 2);
  CHECK(window.sides[kFrontSide].TextOf() == u"other");
}

TEST_CASE("the key does nothing where the button is off") {
  BuilderFixture fixture;
  TextCardBuilder& window = fixture.OpenEssay();
  Type(window.sides[kFrontSide], u"front");
  CHECK(window.UserKey(WindowKey::kKeep));
  CHECK(fixture.state.deck.cardCount == 0);
  CHECK(window.sides[kFrontSide].TextOf() == u"front");
}

TEST_CASE("card 200 is added, and no next one begun") {
  BuilderFixture fixture;
  TextCardBuilder& window = fixture.OpenEssay(199);
  window.buttons[kNewButton].Press();
  Type(window.sides[kFrontSide], u"front");
  Type(window.sides[kBackSide], u"back");
  window.UserKey(WindowKey::kKeep);
  CHECK(fixture.state.deck.cardCount == 200);
  CHECK(window.sides[kFrontSide].TextOf() == u"front");
}

TEST_CASE("in the question builder the key adds the card, unless its lines are refused") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion();
  Type(window.question, u"question");
  Type(window.answers[0], u"[TEXT MISSING HERE]");
  window.marks[0].Press();
  window.UserKey(WindowKey::kKeep);
  CHECK(fixture.TakeBoxes().size() == 1);
  CHECK(fixture.state.deck.cardCount == 0);
  CHECK(window.question.TextOf() == u"question");
  Replace(window.answers[0], u"answer");
  window.UserKey(WindowKey::kKeep);
  CHECK(fixture.Cell(1, kAnswer) == u"A");
  CHECK(window.question.TextOf().empty());
  CHECK(window.FocusedControl() == &window.question);
}

TEST_CASE("other keys are the builder's boxes' own") {
  BuilderFixture fixture;
  TextCardBuilder& window = fixture.OpenEssay(2);
  for (const WindowKey key : {WindowKey::kLeft, WindowKey::kRight, WindowKey::kSpace}) {
    CHECK_FALSE(window.UserKey(key));
  }
}

}  // namespace tessara::test
