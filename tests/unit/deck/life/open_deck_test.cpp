#include <doctest/doctest.h>

#include "deck/life/deck_life.h"
#include "tests/unit/deck/life/two_files.h"

namespace tessara::test {

TEST_CASE("opening shows the deck of the file on its first card") {
  TwoFiles desk;
  desk.OpenFile(kB);
  CHECK(desk.deck->Caption() == u"b  [STUDY]");
  CHECK(desk.state.deck.cardCount == 3);
  CHECK(desk.state.deck.currentCard == 1);
  CHECK(desk.state.deck.kind == kStandardDeck);
  CHECK(desk.state.deck.mode == kStudyMode);
  CHECK(desk.deck->card.CardText() == u"front 1");
  CHECK(desk.deck->card.CardNumber() == u"1");
  CHECK(desk.deck->card.CardTotal() == u"3");
  CHECK(desk.deck->card.FrontLines());
  CHECK(desk.deck->card.FrontRule());
  CHECK_FALSE(desk.deck->arrows[kPreviousCard].Enabled());
  CHECK(desk.deck->arrows[kNextCard].Enabled());
  CHECK(desk.deck->printDeck.Enabled());
  CHECK(desk.deck->clearDeck.Enabled());
  CHECK(desk.deck->saveDeckAs.Enabled());
  CHECK_FALSE(desk.deck->saveDeck.Enabled());
  CHECK(desk.TakeBoxes().empty());
}

TEST_CASE("opening a deck of questions shows the answer card") {
  LifeDesk desk;
  for (const char letter : {'T', 'M'}) {
    desk.fakes.files.Put(kA,
                         InfoBytes({}) + RecordText(letter, u"question", 1, {}, u"") + EndBytes());
    desk.NewDeck();
    desk.OpenFile(kA);
    CHECK(desk.state.deck.kind == kExtendedDeck);
    CHECK(desk.deck->flip.Caption() == u"&Hide Answer");
    CHECK(desk.deck->card.CardText() == u"question");
    desk.Clear();
  }
}

TEST_CASE("opening asks with the filter for decks, under an hourglass") {
  TwoFiles desk;
  desk.fakes.desktop.pointers.clear();
  desk.OpenFile(kA);
  REQUIRE(desk.fakes.dialogs.fileRequests.size() == 1);
  CHECK(desk.fakes.dialogs.fileRequests[0].mode == FileDialogMode::kOpen);
  CHECK(desk.fakes.dialogs.fileRequests[0].filter == u"Study Cards|*.tsr");
  CHECK(desk.fakes.desktop.pointers ==
        std::vector{MousePointer::kHourglass, MousePointer::kDefault});
}

TEST_CASE("an opening that was cancelled leaves the deck on show without a path") {
  for (const TextView answer : {u"", u"*.tsr"}) {
    TwoFiles desk;
    desk.OpenFile(kA);
    desk.OpenFile(Text(answer));
    CHECK(desk.state.deck.filePath == answer);
    CHECK(desk.deck->Caption() == u"a  [STUDY]");
    CHECK(desk.state.deck.cardCount == 2);
    CHECK(desk.TakeBoxes().empty());
  }
}

TEST_CASE("a save after a cancelled opening asks, writes nothing and reports no name") {
  TwoFiles desk;
  desk.OpenFile(kA);
  desk.OpenFile(u"");
  desk.Choose(u"/decks/chosen.tsr");
  desk.Save();
  CHECK(desk.TakeBoxes() == Boxes{SavedBox(u"")});
  CHECK(desk.File(kA) == DeckBytes(2));
  CHECK_FALSE(desk.fakes.files.Has(u"/decks/chosen.tsr"));
  CHECK(desk.FlagsNow() == DeckFlags{u"", false, false, true});
}

TEST_CASE("a file of another extension is refused and leaves the deck without a path") {
  for (const TextView path : {u"/decks/b.TSR", u"/decks/b.txt", u"/decks/b"}) {
    TwoFiles desk;
    desk.OpenFile(kA);
    desk.OpenFile(Text(path));
    CHECK(desk.TakeBoxes() == Boxes{kNotADeckBox});
    CHECK(desk.state.deck.filePath.empty());
    CHECK(desk.deck->Caption() == u"a  [STUDY]");
  }
}

TEST_CASE("a deck of the same name is open already, and the path is kept") {
  TwoFiles desk;
  desk.OpenFile(kA);
  desk.BuildCard(u"more", u"");
  desk.OpenFile(u"/elsewhere/a.tsr");
  CHECK(desk.TakeBoxes() == Boxes{{u"a Tessara is already open", 64, u"Open Existing Tessara"}});
  CHECK(desk.state.deck.filePath == u"/elsewhere/a.tsr");
  CHECK(desk.state.deck.cardCount == 3);
  CHECK(desk.state.deck.changed);
}

TEST_CASE("a Yes to saving while another deck is opened writes the old deck over the chosen file") {
  TwoFiles desk;
  desk.OpenFile(kA);
  desk.BuildCard(u"more", u"of it");
  desk.Answer(MessageAnswer::kYes);
  desk.OpenFile(kB);
  CHECK(desk.TakeBoxes() == Boxes{kChangesBox, SavedBox(kB)});
  CHECK(desk.File(kA) == DeckBytes(2));
  CHECK(desk.File(kB).substr(kRecordSize) == CardBytes(1, u"front 1", u"back 1") +
                                                 CardBytes(2, u"front 2", u"back 2") +
                                                 CardBytes(3, u"more", u"of it") + EndBytes());
  CHECK(desk.deck->Caption() == u"b  [STUDY]");
  CHECK(desk.state.deck.Cell(3, kCardText) == u"more");
  CHECK(desk.FlagsNow() == DeckFlags{kB, false, false, true});
}

TEST_CASE("a No to saving while another deck is opened drops the changes") {
  TwoFiles desk;
  desk.OpenFile(kA);
  desk.BuildCard(u"more", u"");
  desk.Answer(MessageAnswer::kNo);
  desk.OpenFile(kB);
  CHECK(desk.TakeBoxes() == Boxes{kChangesBox});
  CHECK(desk.File(kB) == DeckBytes(3));
  CHECK(desk.FlagsNow() == DeckFlags{kB, false, false, true});
}

TEST_CASE("a shorter deck leaves nothing of the longer one before it") {
  TwoFiles desk;
  desk.OpenFile(kB);
  desk.OpenFile(kA);
  CHECK(desk.state.deck.cardCount == 2);
  CHECK(desk.state.deck.Cell(3, kCardText).empty());
  CHECK(desk.state.deck.cardPresent.At(3) == 0);
}

TEST_CASE("a deck of unknown letter leaves the window and the deck's type as they were") {
  LifeDesk desk;
  desk.fakes.files.Put(kA, InfoBytes({}) + RecordText('Q', u"odd", 1, {}, u"") + EndBytes());
  desk.NewDeck();
  desk.deck->flip.SetCaption(u"&Show Front");
  desk.state.deck.kind = kStandardDeck;
  desk.OpenFile(kA);
  CHECK(desk.state.deck.kind == kStandardDeck);
  CHECK(desk.deck->flip.Caption() == u"&Show Front");
  CHECK(desk.deck->Caption() == u"a  [STUDY]");
  CHECK(desk.state.deck.onFile);
}

TEST_CASE("opening a file without cards offers neither to clear nor to save it") {
  LifeDesk desk;
  desk.fakes.files.Put(kA, InfoBytes({}) + EndBytes());
  desk.NewDeck();
  desk.OpenFile(kA);
  CHECK(desk.state.deck.cardCount == 0);
  CHECK(desk.state.deck.currentCard == 1);
  CHECK_FALSE(desk.deck->clearDeck.Enabled());
  CHECK_FALSE(desk.deck->saveDeckAs.Enabled());
  CHECK(desk.deck->printDeck.Enabled());
}

TEST_CASE("a file that can't be read ends the program with the error's number") {
  struct Case {
    ErrorNumber number;
    Text report;
  };
  const Case cases[] = {
      {ErrorNumber::kFileNotFound, u"Run-time error '53':\r\n\r\nFile not found"},
      {ErrorNumber::kPermissionDenied, u"Run-time error '70':\r\n\r\nPermission denied"},
  };
  for (const Case& c : cases) {
    TwoFiles desk;
    desk.fakes.files.fault = [&c](MemoryFiles::Operation, const Text&) {
      return std::optional(c.number);
    };
    desk.OpenFile(kA);
    CHECK(desk.TakeBoxes() == Boxes{{c.report, 16, u"Tessara"}});
    CHECK(desk.windows.ExitStatus() == 1);
  }
}

TEST_CASE("a card outside the table ends the program with a subscript error") {
  TwoFiles desk;
  desk.fakes.files.Put(kA, CardBytes(203, u"x", u""));
  desk.OpenFile(kA);
  CHECK(desk.TakeBoxes() ==
        Boxes{{u"Run-time error '9':\r\n\r\nSubscript out of range", 16, u"Tessara"}});
  CHECK(desk.windows.ExitStatus() == 1);
}

}  // namespace tessara::test
