// Decks that no window is made for: without a card, or with a first card of unknown letter.

#include <doctest/doctest.h>

#include "tests/support/program_fixture.h"

namespace tessara::test {

namespace {

struct OddDeck {
  const char* what;
  std::string bytes;
  std::int16_t cards;
};

const OddDeck kOddDecks[] = {
    {"an empty file", "", 0},
    {"no card", ProgramFixture::DeckBytes(0), 0},
    {"an unknown letter", ProgramFixture::DeckBytes(2, u"Q"), 2},
    {"no letter", ProgramFixture::DeckBytes(2, u""), 2},
};

const Text kPath = u"/decks/odd.tsr";

/// Comes up with the odd deck, on either road.
struct OddFixture : ProgramFixture {
  OddFixture(const OddDeck& odd, bool fromFrame, DeckKind before = kStandardDeck) {
    fakes.files.Put(kPath, odd.bytes);
    if (fromFrame) {
      OpenFromFrame(before);
    } else {
      Start(kPath);
    }
  }

  void OpenFromFrame(DeckKind before) {
    Start();
    program.DeckWindowOf().Unload();
    state.deck.kind = before;
    fakes.dialogs.files = {kPath};
    Frame().openExistingDeck.Press();
  }

  /// The texts that only the design knows.
  bool ShowsDesignText() {
    const bool answer = Deck().answerCard.Visible() && Deck().answer.Caption() == u"LABEL2";
    const bool choices = Deck().choicePanel.Visible() && Deck().choices[0].Caption() == u"Option1";
    return answer || choices || Deck().creditPanel.Visible();
  }
};

}  // namespace

TEST_CASE("a deck without a known first card comes up at the usual size with its title") {
  for (const OddDeck& odd : kOddDecks) {
    for (const bool fromFrame : {false, true}) {
      CAPTURE(odd.what);
      CAPTURE(fromFrame);
      OddFixture fixture(odd, fromFrame);
      CHECK(fixture.fakes.messages.shown.empty());
      CHECK(fixture.Deck().Visible());
      CHECK(fixture.Deck().Width() == 7230);
      CHECK(fixture.Deck().Height() == 6315);
      CHECK(fixture.Deck().Caption() == u"odd  [STUDY]");
      CHECK(fixture.Deck().card.CardNumber() == u"1");
      CHECK(fixture.Deck().card.CardTotal() == DecimalText(odd.cards));
      CHECK(fixture.Deck().card.CardText() == (odd.cards == 0 ? u"" : u"front 1"));
      CHECK(fixture.Deck().flip.Enabled() == (odd.cards > 0));
      CHECK(fixture.Deck().arrows[kNextCard].Enabled() == (odd.cards > 0));
      CHECK_FALSE(fixture.ShowsDesignText());
      CHECK(fixture.state.deck.kind == kStandardDeck);
      CHECK(fixture.state.deck.currentCard == 1);
    }
  }
}

TEST_CASE("behind a deck of questions such a deck comes up as one of questions") {
  for (const OddDeck& odd : kOddDecks) {
    CAPTURE(odd.what);
    OddFixture fixture(odd, true, kExtendedDeck);
    CHECK(fixture.Deck().Visible());
    CHECK(fixture.Deck().answerCard.Visible());
    CHECK_FALSE(fixture.ShowsDesignText());
    CHECK(fixture.state.deck.kind == kExtendedDeck);
  }
}

TEST_CASE("opened from the deck's own menu such a deck leaves the window's shape as it was") {
  for (const OddDeck& odd : kOddDecks) {
    CAPTURE(odd.what);
    ProgramFixture fixture;
    fixture.fakes.files.Put(kPath, odd.bytes);
    fixture.fakes.files.Put(u"/decks/questions.tsr", ProgramFixture::DeckBytes(3, u"T"));
    fixture.Start(u"/decks/questions.tsr");
    fixture.fakes.dialogs.files = {kPath};
    fixture.Deck().openDeck.Press();
    CHECK(fixture.Deck().Caption() == u"odd  [STUDY]");
    CHECK(fixture.Deck().answerCard.Visible());
    CHECK(fixture.Deck().flip.Caption() == u"&Hide Answer");
    CHECK(fixture.state.deck.kind == kExtendedDeck);
  }
}

}  // namespace tessara::test
