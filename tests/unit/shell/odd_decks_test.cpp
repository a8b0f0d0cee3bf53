// Decks that no window is made for: without a card, or with a first card of unknown letter.

#include <doctest/doctest.h>

#include "tests/support/program_desk.h"

namespace tessara::test {

namespace {

struct OddDeck {
  const char* what;
  std::string bytes;
  std::int16_t cards;
};

const OddDeck kOddDecks[] = {
    {"an empty file", "", 0},
    {"no card", ProgramDesk::DeckBytes(0), 0},
    {"an unknown letter", ProgramDesk::DeckBytes(2, u"Q"), 2},
    {"no letter", ProgramDesk::DeckBytes(2, u""), 2},
};

const Text kPath = u"/decks/odd.tsr";

/// Comes up with the odd deck, on either road.
struct OddDesk : ProgramDesk {
  OddDesk(const OddDeck& odd, bool fromFrame, DeckKind before = kStandardDeck) {
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
      OddDesk desk(odd, fromFrame);
      CHECK(desk.fakes.messages.shown.empty());
      CHECK(desk.Deck().Visible());
      CHECK(desk.Deck().Width() == 7230);
      CHECK(desk.Deck().Height() == 6315);
      CHECK(desk.Deck().Caption() == u"odd  [STUDY]");
      CHECK(desk.Deck().card.CardNumber() == u"1");
      CHECK(desk.Deck().card.CardTotal() == DecimalText(odd.cards));
      CHECK(desk.Deck().card.CardText() == (odd.cards == 0 ? u"" : u"front 1"));
      CHECK(desk.Deck().flip.Enabled() == (odd.cards > 0));
      CHECK(desk.Deck().arrows[kNextCard].Enabled() == (odd.cards > 0));
      CHECK_FALSE(desk.ShowsDesignText());
      CHECK(desk.state.deck.kind == kStandardDeck);
      CHECK(desk.state.deck.currentCard == 1);
    }
  }
}

TEST_CASE("behind a deck of questions such a deck comes up as one of questions") {
  for (const OddDeck& odd : kOddDecks) {
    CAPTURE(odd.what);
    OddDesk desk(odd, true, kExtendedDeck);
    CHECK(desk.Deck().Visible());
    CHECK(desk.Deck().answerCard.Visible());
    CHECK_FALSE(desk.ShowsDesignText());
    CHECK(desk.state.deck.kind == kExtendedDeck);
  }
}

TEST_CASE("opened from the deck's own menu such a deck leaves the window's shape as it was") {
  for (const OddDeck& odd : kOddDecks) {
    CAPTURE(odd.what);
    ProgramDesk desk;
    desk.fakes.files.Put(kPath, odd.bytes);
    desk.fakes.files.Put(u"/decks/questions.tsr", ProgramDesk::DeckBytes(3, u"T"));
    desk.Start(u"/decks/questions.tsr");
    desk.fakes.dialogs.files = {kPath};
    desk.Deck().openDeck.Press();
    CHECK(desk.Deck().Caption() == u"odd  [STUDY]");
    CHECK(desk.Deck().answerCard.Visible());
    CHECK(desk.Deck().flip.Caption() == u"&Hide Answer");
    CHECK(desk.state.deck.kind == kExtendedDeck);
  }
}

}  // namespace tessara::test
