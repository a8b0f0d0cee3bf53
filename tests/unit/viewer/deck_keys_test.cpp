// The keys that page and turn in the deck window.

#include <doctest/doctest.h>

#include "tests/support/program_fixture.h"

namespace tessara::test {

namespace {

const Text kDeckPath = u"/decks/birds.tsr";

struct KeyFixture : ProgramFixture {
  explicit KeyFixture(TextView type = u"E") {
    fakes.files.Put(kDeckPath, DeckBytes(3, type));
    Start(kDeckPath);
  }
  /// The card on show and the face of it, behind the key; empty where the key was not taken.
  std::string After(WindowKey key) {
    return Deck().UserKey(key) ? ToUtf8(Deck().card.CardText()) : "";
  }
};

}  // namespace

TEST_CASE("Left and Right page and the blank turns, wherever the focus is among what pages") {
  const std::vector<Control* (*)(DeckWindow&)> places = {
      [](DeckWindow& deck) -> Control* { return &deck.card; },
      [](DeckWindow& deck) -> Control* { return &deck.arrows[kNextCard]; },
  };
  for (const auto& place : places) {
    KeyFixture fixture;
    place(fixture.Deck())->SetFocus();
    CHECK(fixture.After(WindowKey::kSpace) == "back 1");
    CHECK(fixture.After(WindowKey::kRight) == "back 2");
    CHECK(fixture.After(WindowKey::kSpace) == "front 2");
    CHECK(fixture.After(WindowKey::kRight) == "front 3");
    CHECK(fixture.After(WindowKey::kRight) == "front 3");
    CHECK(fixture.After(WindowKey::kLeft) == "front 2");
    CHECK(fixture.After(WindowKey::kLeft) == "front 1");
    CHECK(fixture.After(WindowKey::kLeft) == "front 1");
  }
}

TEST_CASE("with the focus on the button that turns, the arrows page and the blank is its own") {
  KeyFixture fixture;
  fixture.Deck().flip.SetFocus();
  CHECK(fixture.After(WindowKey::kSpace).empty());
  CHECK(fixture.After(WindowKey::kRight) == "front 2");
}

TEST_CASE("where nothing can be turned, the blank is the paging button's") {
  KeyFixture fixture(u"T");
  REQUIRE_FALSE(fixture.Deck().flip.Enabled());
  fixture.Deck().arrows[kNextCard].SetFocus();
  CHECK(fixture.After(WindowKey::kSpace).empty());
  CHECK(fixture.After(WindowKey::kRight) == "front 2");
}

TEST_CASE("with the focus on another button or a choice, the keys are that control's") {
  KeyFixture fixture;
  fixture.Deck().closeDeck.SetFocus();
  for (const WindowKey key : {WindowKey::kLeft, WindowKey::kRight, WindowKey::kSpace}) {
    CHECK(fixture.After(key).empty());
  }
  KeyFixture questions(u"T");
  questions.Deck().test.Press();
  REQUIRE(questions.Deck().FocusedControl() == &questions.Deck().choices[0]);
  for (const WindowKey key : {WindowKey::kLeft, WindowKey::kRight, WindowKey::kSpace}) {
    CHECK(questions.After(key).empty());
  }
}

}  // namespace tessara::test
