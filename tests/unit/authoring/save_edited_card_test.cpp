#include "authoring/save_edited_card.h"

#include <doctest/doctest.h>

#include "tests/unit/authoring/builder_fixture.h"

namespace tessara::test {

TEST_CASE("a builder whose add button is off is closed without a prompt") {
  BuilderFixture fixture;
  CHECK_FALSE(SaveEditedQuestion(fixture.OpenQuestion(1), fixture.app));
  BuilderFixture other;
  CHECK_FALSE(SaveEditedText(other.OpenEssay(1), other.app));
  CHECK(fixture.TakeBoxes().empty());
  CHECK(other.TakeBoxes().empty());
}

TEST_CASE("the prompt at close writes a text card and leaves the count") {
  BuilderFixture fixture;
  TextCardBuilder& window = fixture.OpenEssay();
  fixture.state.deck.currentCard = 0;
  Type(window.sides[kFrontSide], u"f");
  Type(window.sides[kBackSide], u"b");
  fixture.Answer(MessageAnswer::kNo);
  CHECK_FALSE(SaveEditedText(window, fixture.app));
  CHECK_FALSE(fixture.state.deck.changed);
  fixture.Answer(MessageAnswer::kYes);
  CHECK(SaveEditedText(window, fixture.app));
  CHECK(fixture.state.deck.currentCard == 1);
  CHECK(fixture.Cell(1, kCardType) == u"E");
  CHECK(fixture.Cell(1, kBackText) == u"b");
  CHECK(fixture.state.deck.cardCount == 0);
  CHECK(fixture.state.deck.changed);
  CHECK(fixture.state.deck.saveOffered);
}

TEST_CASE("the deck counts as changed before the box tells so") {
  BuilderFixture fixture;
  TextCardBuilder& window = fixture.OpenEssay(1);
  Type(window.sides[kBackSide], u"b");
  fixture.fakes.messages.whileShown = [&fixture](const FakeMessages::Shown& box) {
    CHECK(fixture.state.deck.changed == (box.text == u"Changes Saved!"));
  };
  fixture.Answer(MessageAnswer::kYes);
  CHECK(SaveEditedText(window, fixture.app));
}

TEST_CASE("the prompt at close counts a question only where it was a new one") {
  for (const bool isNew : {true, false}) {
    BuilderFixture fixture;
    QuestionBuilder& window = fixture.OpenQuestion(2);
    if (isNew) window.buttons[kNewButton].Press();
    Type(window.question, u"!");
    window.trueFalseMarks[kFalseMark].Press();
    fixture.Answer(MessageAnswer::kYes);
    CHECK(SaveEditedQuestion(window, fixture.app));
    CHECK(fixture.state.deck.cardCount == (isNew ? 3 : 2));
    CHECK(fixture.Cell(isNew ? 3 : 1, kAnswer) == u"F");
  }
}

}  // namespace tessara::test
