#include "authoring/save_edited_card.h"

#include <doctest/doctest.h>

#include "tests/unit/authoring/builder_desk.h"

namespace tessara::test {

TEST_CASE("a builder whose add button is off is closed without a prompt") {
  BuilderDesk desk;
  CHECK_FALSE(SaveEditedQuestion(desk.OpenQuestion(1), desk.app));
  BuilderDesk other;
  CHECK_FALSE(SaveEditedText(other.OpenEssay(1), other.app));
  CHECK(desk.TakeBoxes().empty());
  CHECK(other.TakeBoxes().empty());
}

TEST_CASE("the prompt at close writes a text card and leaves the count") {
  BuilderDesk desk;
  TextCardBuilder& window = desk.OpenEssay();
  desk.state.deck.currentCard = 0;
  Type(window.sides[kFrontSide], u"f");
  Type(window.sides[kBackSide], u"b");
  desk.Answer(MessageAnswer::kNo);
  CHECK_FALSE(SaveEditedText(window, desk.app));
  CHECK_FALSE(desk.state.deck.changed);
  desk.Answer(MessageAnswer::kYes);
  CHECK(SaveEditedText(window, desk.app));
  CHECK(desk.state.deck.currentCard == 1);
  CHECK(desk.Cell(1, kCardType) == u"E");
  CHECK(desk.Cell(1, kBackText) == u"b");
  CHECK(desk.state.deck.cardCount == 0);
  CHECK(desk.state.deck.changed);
  CHECK(desk.state.deck.saveOffered);
}

TEST_CASE("the deck counts as changed before the box tells so") {
  BuilderDesk desk;
  TextCardBuilder& window = desk.OpenEssay(1);
  Type(window.sides[kBackSide], u"b");
  desk.fakes.messages.whileShown = [&desk](const FakeMessages::Shown& box) {
    CHECK(desk.state.deck.changed == (box.text == u"Changes Saved!"));
  };
  desk.Answer(MessageAnswer::kYes);
  CHECK(SaveEditedText(window, desk.app));
}

TEST_CASE("the prompt at close counts a question only where it was a new one") {
  for (const bool isNew : {true, false}) {
    BuilderDesk desk;
    QuestionBuilder& window = desk.OpenQuestion(2);
    if (isNew) window.buttons[kNewButton].Press();
    Type(window.question, u"!");
    window.trueFalseMarks[kFalseMark].Press();
    desk.Answer(MessageAnswer::kYes);
    CHECK(SaveEditedQuestion(window, desk.app));
    CHECK(desk.state.deck.cardCount == (isNew ? 3 : 2));
    CHECK(desk.Cell(isNew ? 3 : 1, kAnswer) == u"F");
  }
}

}  // namespace tessara::test
