#include <doctest/doctest.h>

#include "tests/unit/authoring/builder_desk.h"

namespace tessara::test {

TEST_CASE("the deck's type decides which builder opens, at its size in the middle of the frame") {
  struct Case {
    DeckKind kind;
    const char* name;
    int height, width;
  };
  const Case cases[] = {{kStandardDeck, "frmEssay", 5730, 5565},
                        {kExtendedDeck, "frmQuestion", 6000, 5535}};
  for (const Case& c : cases) {
    BuilderDesk desk;
    desk.Open(c.kind);
    desk.OpenBuilder();
    const Form& builder = *desk.windows.ActiveForm();
    CHECK(builder.Name() == c.name);
    CHECK(builder.Caption() == u"Tessara");
    CHECK(builder.Kind() == FormKind::kChild);
    CHECK(builder.Height() == c.height);
    CHECK(builder.Width() == c.width);
    CHECK(builder.Top() == (9000 - c.height) / 2);
    CHECK(builder.Left() == (12000 - c.width) / 2);
    CHECK_FALSE(desk.deck->Visible());
    CHECK_FALSE(desk.state.building.fillingBoxes);
  }
}

TEST_CASE("the deck window is hidden for as long as a builder is open") {
  for (const DeckKind kind : {kStandardDeck, kExtendedDeck}) {
    BuilderDesk desk;
    desk.Open(kind);
    desk.renderer.activated.clear();
    desk.OpenBuilder();
    CHECK_FALSE(desk.deck->Visible());
    desk.windows.ActiveForm()->UserClose();
    CHECK(desk.deck->Visible());
    CHECK(desk.windows.ActiveForm() == &desk.deck.Loaded());
    CHECK_FALSE(desk.essay.IsLoaded());
    CHECK_FALSE(desk.question.IsLoaded());
  }
}

TEST_CASE("a builder opened again while it is open keeps the guard on") {
  BuilderDesk desk;
  TextCardBuilder& window = desk.OpenEssay(2);
  desk.OpenBuilder();
  CHECK(desk.state.building.fillingBoxes);
  Replace(window.sides[kFrontSide], u"other");
  CHECK_FALSE(window.buttons[kAddButton].Enabled());
}

TEST_CASE("a click on a builder closes the About box") {
  for (const DeckKind kind : {kStandardDeck, kExtendedDeck}) {
    BuilderDesk desk;
    desk.Open(kind);
    desk.OpenBuilder();
    desk.windows.ActiveForm()->UserClick();
    CHECK(desk.frame.aboutClosed == 1);
  }
}

TEST_CASE("the label of the card's number is read out with the number") {
  BuilderDesk essayDesk;
  CHECK(essayDesk.OpenEssay().number.AccessibleName().empty());
  BuilderDesk questionDesk;
  CHECK(questionDesk.OpenQuestion().number.AccessibleName().empty());
}

}  // namespace tessara::test
