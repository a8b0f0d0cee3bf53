#include <doctest/doctest.h>

#include "tests/unit/authoring/builder_fixture.h"

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
    BuilderFixture fixture;
    fixture.Open(c.kind);
    fixture.OpenBuilder();
    const Form& builder = *fixture.windows.ActiveForm();
    CHECK(builder.Name() == c.name);
    CHECK(builder.Caption() == u"Tessara");
    CHECK(builder.Kind() == FormKind::kChild);
    CHECK(builder.Height() == c.height);
    CHECK(builder.Width() == c.width);
    CHECK(builder.Top() == (9000 - c.height) / 2);
    CHECK(builder.Left() == (12000 - c.width) / 2);
    CHECK_FALSE(fixture.deck->Visible());
    CHECK_FALSE(fixture.state.building.fillingBoxes);
  }
}

TEST_CASE("the deck window is hidden for as long as a builder is open") {
  for (const DeckKind kind : {kStandardDeck, kExtendedDeck}) {
    BuilderFixture fixture;
    fixture.Open(kind);
    fixture.renderer.activated.clear();
    fixture.OpenBuilder();
    CHECK_FALSE(fixture.deck->Visible());
    fixture.windows.ActiveForm()->UserClose();
    CHECK(fixture.deck->Visible());
    CHECK(fixture.windows.ActiveForm() == &fixture.deck.Loaded());
    CHECK_FALSE(fixture.essay.IsLoaded());
    CHECK_FALSE(fixture.question.IsLoaded());
  }
}

TEST_CASE("behind a builder the focus is where a blank closes no deck") {
  struct Case {
    const char* what;
    bool questions;
    int cards;
    bool arrow;  ///< ">>", else the card
  };
  const Case cases[] = {{"the only text", false, 1, false},
                        {"the first text of three", false, 3, true},
                        {"the last question of three", true, 3, false}};
  for (const Case& c : cases) {
    CAPTURE(c.what);
    BuilderFixture fixture;
    c.questions ? fixture.OpenExtendedDeck(c.cards) : fixture.OpenStandardDeck(c.cards);
    DeckWindow& deck = fixture.deck.Loaded();
    deck.UserFocus(deck.closeDeck);
    fixture.OpenBuilder();
    fixture.windows.ActiveForm()->UserAccelerator(u'c');
    CHECK(fixture.windows.ActiveForm() == &deck);
    const Control* next = &deck.card;
    if (c.arrow) next = &deck.arrows[kNextCard];
    CHECK(deck.FocusedControl() == next);
  }
}

TEST_CASE("behind a builder the focus is on what had it, where that still works") {
  BuilderFixture fixture;
  fixture.OpenStandardDeck(3);
  DeckWindow& deck = fixture.deck.Loaded();
  deck.UserFocus(deck.flip);
  fixture.OpenBuilder();
  fixture.essay->UserClose();
  CHECK(deck.FocusedControl() == &deck.flip);
}

TEST_CASE("a builder opened again while it is open keeps the guard on") {
  BuilderFixture fixture;
  TextCardBuilder& window = fixture.OpenEssay(2);
  fixture.OpenBuilder();
  CHECK(fixture.state.building.fillingBoxes);
  Replace(window.sides[kFrontSide], u"other");
  CHECK_FALSE(window.buttons[kAddButton].Enabled());
}

TEST_CASE("a click on a builder closes the About box") {
  for (const DeckKind kind : {kStandardDeck, kExtendedDeck}) {
    BuilderFixture fixture;
    fixture.Open(kind);
    fixture.OpenBuilder();
    fixture.windows.ActiveForm()->UserClick();
    CHECK(fixture.frame.aboutClosed == 1);
  }
}

TEST_CASE("the label of the card's number is read out with the number") {
  BuilderFixture essayFixture;
  CHECK(essayFixture.OpenEssay().number.AccessibleName().empty());
  BuilderFixture questionFixture;
  CHECK(questionFixture.OpenQuestion().number.AccessibleName().empty());
}

TEST_CASE("in a builder the letter C drops and closes nothing while two buttons carry it") {
  struct Case {
    const char* what;
    bool fresh;
    BuilderButton next;  ///< the one to which the letter goes first
  };
  const Case cases[] = {{"a new card", true, kCancelButton}, {"a changed card", false, kAddButton}};
  for (const Case& c : cases) {
    CAPTURE(c.what);
    BuilderFixture fixture;
    TextCardBuilder& window = fixture.OpenEssay(2);
    if (c.fresh) window.buttons[kNewButton].Press();
    for (TextBox& box : window.sides) Type(box, u"typed");
    const Text typed = window.sides[kBackSide].TextOf();
    window.UserFocus(window.sides[kBackSide]);
    for (const BuilderButton button : {c.next, kCloseButton, c.next}) {
      CHECK(window.UserAccelerator(u'c'));
      CHECK(window.FocusedControl() == &window.buttons[button]);
    }
    CHECK(fixture.essay.IsLoaded());
    CHECK(window.sides[kBackSide].TextOf() == typed);
    CHECK(window.buttons[kAddButton].Enabled());
    CHECK(fixture.TakeBoxes().empty());
  }
}

TEST_CASE("in a builder the letter C closes where no other button carries it") {
  BuilderFixture fixture;
  SUBCASE("texts") {
    CHECK(fixture.OpenEssay(2).UserAccelerator(u'c'));
    CHECK_FALSE(fixture.essay.IsLoaded());
  }
  SUBCASE("questions") {
    CHECK(fixture.OpenQuestion(2).UserAccelerator(u'c'));
    CHECK_FALSE(fixture.question.IsLoaded());
  }
}

}  // namespace tessara::test
