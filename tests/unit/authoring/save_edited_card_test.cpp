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
  frmEssay& window = desk.OpenEssay();
  desk.state.CurrentCard = 0;
  Type(window.Text1[0], u"f");
  Type(window.Text1[1], u"b");
  desk.Answer(MessageAnswer::kNo);
  CHECK_FALSE(SaveEditedText(window, desk.app));
  CHECK_FALSE(desk.state.DeckChanged);
  desk.Answer(MessageAnswer::kYes);
  CHECK(SaveEditedText(window, desk.app));
  CHECK(desk.state.CurrentCard == 1);
  CHECK(desk.Cell(1, kCardType) == u"E");
  CHECK(desk.Cell(1, kBackText) == u"b");
  CHECK(desk.state.CardCount == 0);
  CHECK(desk.state.DeckChanged);
  CHECK(desk.state.SaveOffered);
}

TEST_CASE("the prompt at close counts a question only where it was a new one") {
  for (const bool isNew : {true, false}) {
    BuilderDesk desk;
    frmQuestion& window = desk.OpenQuestion(2);
    if (isNew) window.Command2[kNewButton].Press();
    Type(window.Text2, u"!");
    window.Option2[1].Press();
    desk.Answer(MessageAnswer::kYes);
    CHECK(SaveEditedQuestion(window, desk.app));
    CHECK(desk.state.CardCount == (isNew ? 3 : 2));
    CHECK(desk.Cell(isNew ? 3 : 1, kAnswer) == u"F");
  }
}

}  // namespace tessara::test
