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
    state.DeckType = before;
    fakes.dialogs.files = {kPath};
    Frame().mnuOPenExisting.Press();
  }

  /// The texts that only the design knows.
  bool ShowsDesignText() {
    const bool answer = Deck().Picture1.Visible() && Deck().Label2.Caption() == u"LABEL2";
    const bool choices = Deck().Frame2.Visible() && Deck().Option1[0].Caption() == u"Option1";
    return answer || choices || Deck().Frame1.Visible();
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
      CHECK(desk.Deck().NoteletCtl1.CardNumber() == u"1");
      CHECK(desk.Deck().NoteletCtl1.CardTotal() == DecimalText(odd.cards));
      CHECK(desk.Deck().NoteletCtl1.CardText() == (odd.cards == 0 ? u"" : u"front 1"));
      CHECK(desk.Deck().Command3[DeckWindow::kFlip].Enabled() == (odd.cards > 0));
      CHECK(desk.Deck().cmdMove[kNextCard].Enabled() == (odd.cards > 0));
      CHECK_FALSE(desk.ShowsDesignText());
      CHECK(desk.state.DeckType == kStandardDeck);
      CHECK(desk.state.CurrentCard == 1);
    }
  }
}

TEST_CASE("behind a deck of questions such a deck comes up as one of questions") {
  for (const OddDeck& odd : kOddDecks) {
    CAPTURE(odd.what);
    OddDesk desk(odd, true, kExtendedDeck);
    CHECK(desk.Deck().Visible());
    CHECK(desk.Deck().Picture1.Visible());
    CHECK_FALSE(desk.ShowsDesignText());
    CHECK(desk.state.DeckType == kExtendedDeck);
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
    desk.Deck().mnuOCD.Press();
    CHECK(desk.Deck().Caption() == u"odd  [STUDY]");
    CHECK(desk.Deck().Picture1.Visible());
    CHECK(desk.Deck().Command3[DeckWindow::kFlip].Caption() == u"&Hide Answer");
    CHECK(desk.state.DeckType == kExtendedDeck);
  }
}

}  // namespace tessara::test
