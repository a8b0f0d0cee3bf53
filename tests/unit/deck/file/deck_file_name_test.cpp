#include "deck/file/deck_file_name.h"

#include <doctest/doctest.h>

#include "tests/support/life_fixture.h"

namespace tessara::test {

TEST_CASE("a deck file is told by its last three characters") {
  struct Case {
    TextView path;
    bool accepted;
  };
  const Case cases[] = {
      {u"/decks/a.tsr", true},  {u"/decks/atsr", true},   {u"tsr", true},
      {u"/decks/a.TSR", false}, {u"/decks/a.Tsr", false}, {u"/decks/a.tsr ", false},
      {u"/decks/a.txt", false}, {u"sr", false},           {u"", false},
  };
  for (const Case& c : cases) {
    ProgramState state;
    state.deck.filePath = u"/decks/before.tsr";
    FakeMessages messages;
    CHECK(IsDeckFileName(Text(c.path), state, messages) == c.accepted);
    CHECK(messages.shown == (c.accepted ? Boxes{} : Boxes{kNotADeckBox}));
    CHECK(state.deck.filePath.empty() != c.accepted);
  }
}

TEST_CASE("a deck is open already where the window's caption has its name") {
  struct Case {
    TextView caption;
    TextView path;
    bool open;
  };
  const Case cases[] = {
      {u"Capitals  [STUDY]", u"/decks/Capitals.tsr", true},
      {u"Capitals  [STUDY]", u"/elsewhere/Capitals.old.tsr", true},
      {u"Capitals  [STUDY]", u"/decks/capitals.tsr", false},
      {u"New Deck", u"/decks/New Deck.tsr", true},
      {u" New Deck", u"/decks/New Deck.tsr", false},
      {u"  [STUDY]", u"/decks/.tsr", true},
      {u"a  [STUDY]", u"/decks/a [1].tsr", false},
      {u"a [1]  [STUDY]", u"/decks/a.tsr", true},
      {u"a [1]  [STUDY]", u"/decks/a [1].tsr", false},
  };
  for (const Case& c : cases) {
    FakeMessages messages;
    CHECK(DeckAlreadyOpen(Text(c.path), c.caption, messages) == c.open);
    CHECK(messages.shown.size() == (c.open ? 1 : 0));
  }
}

TEST_CASE("the box names the deck that is open already") {
  FakeMessages messages;
  CHECK(DeckAlreadyOpen(u"/decks/Capitals.tsr", u"Capitals  [QUIZ]", messages));
  CHECK(messages.shown ==
        Boxes{{u"Capitals Tessara is already open", 64, u"Open Existing Tessara"}});
}

TEST_CASE("a deck whose first card has no text is refused by the save") {
  ProgramState state;
  state.deck.cardCount = 3;
  state.deck.cardGrid.Set(2, kCardText, u"second");
  FakeMessages messages;
  CHECK(EmptyDeckRefused(state, messages));
  CHECK(messages.shown == Boxes{kEmptyDeckBox});
  state.deck.cardGrid.Set(1, kCardText, u"first");
  messages.shown.clear();
  CHECK_FALSE(EmptyDeckRefused(state, messages));
  CHECK(messages.shown.empty());
}

}  // namespace tessara::test
