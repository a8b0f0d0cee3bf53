#include <doctest/doctest.h>

#include "deck/life/deck_life.h"
#include "tests/unit/deck/life/two_files.h"

namespace tessara::test {

TEST_CASE("opening shows the deck of the file on its first card") {
  TwoFiles fixture;
  fixture.OpenFile(kB);
  CHECK(fixture.deck->Caption() == u"b  [STUDY]");
  CHECK(fixture.state.deck.cardCount == 3);
  CHECK(fixture.state.deck.currentCard == 1);
  CHECK(fixture.state.deck.kind == kStandardDeck);
  CHECK(fixture.state.deck.mode == kStudyMode);
  CHECK(fixture.deck->card.CardText() == u"front 1");
  CHECK(fixture.deck->card.CardNumber() == u"1");
  CHECK(fixture.deck->card.CardTotal() == u"3");
  CHECK(fixture.deck->card.FrontLines());
  CHECK(fixture.deck->card.FrontRule());
  CHECK_FALSE(fixture.deck->arrows[kPreviousCard].Enabled());
  CHECK(fixture.deck->arrows[kNextCard].Enabled());
  CHECK(fixture.deck->printDeck.Enabled());
  CHECK(fixture.deck->clearDeck.Enabled());
  CHECK(fixture.deck->saveDeckAs.Enabled());
  CHECK_FALSE(fixture.deck->saveDeck.Enabled());
  CHECK(fixture.TakeBoxes().empty());
}

TEST_CASE("opening a deck of questions shows the answer card") {
  LifeFixture fixture;
  for (const char letter : {'T', 'M'}) {
    fixture.fakes.files.Put(
        kA, InfoBytes({}) + RecordText(letter, u"question", 1, {}, u"") + EndBytes());
    fixture.NewDeck();
    fixture.OpenFile(kA);
    CHECK(fixture.state.deck.kind == kExtendedDeck);
    CHECK(fixture.deck->flip.Caption() == u"&Hide Answer");
    CHECK(fixture.deck->card.CardText() == u"question");
    fixture.Clear();
  }
}

TEST_CASE("opening asks with the filter for decks, under an hourglass") {
  TwoFiles fixture;
  fixture.fakes.desktop.pointers.clear();
  fixture.OpenFile(kA);
  REQUIRE(fixture.fakes.dialogs.fileRequests.size() == 1);
  CHECK(fixture.fakes.dialogs.fileRequests[0].mode == FileDialogMode::kOpen);
  CHECK(fixture.fakes.dialogs.fileRequests[0].filter == u"Study Cards|*.tsr");
  CHECK(fixture.fakes.desktop.pointers ==
        std::vector{MousePointer::kHourglass, MousePointer::kDefault});
}

TEST_CASE("an opening that was cancelled leaves the deck on show without a path") {
  for (const TextView answer : {u"", u"*.tsr"}) {
    TwoFiles fixture;
    fixture.OpenFile(kA);
    fixture.OpenFile(Text(answer));
    CHECK(fixture.state.deck.filePath == answer);
    CHECK(fixture.deck->Caption() == u"a  [STUDY]");
    CHECK(fixture.state.deck.cardCount == 2);
    CHECK(fixture.TakeBoxes().empty());
  }
}

TEST_CASE("a save after a cancelled opening asks, writes nothing and reports no name") {
  TwoFiles fixture;
  fixture.OpenFile(kA);
  fixture.OpenFile(u"");
  fixture.Choose(u"/decks/chosen.tsr");
  fixture.Save();
  CHECK(fixture.TakeBoxes() == Boxes{SavedBox(u"")});
  CHECK(fixture.File(kA) == DeckBytes(2));
  CHECK_FALSE(fixture.fakes.files.Has(u"/decks/chosen.tsr"));
  CHECK(fixture.FlagsNow() == DeckFlags{u"", false, false, true});
}

TEST_CASE("a file of another extension is refused and leaves the deck without a path") {
  for (const TextView path : {u"/decks/b.TSR", u"/decks/b.txt", u"/decks/b"}) {
    TwoFiles fixture;
    fixture.OpenFile(kA);
    fixture.OpenFile(Text(path));
    CHECK(fixture.TakeBoxes() == Boxes{kNotADeckBox});
    CHECK(fixture.state.deck.filePath.empty());
    CHECK(fixture.deck->Caption() == u"a  [STUDY]");
  }
}

TEST_CASE("a deck of the same name is open already, and the path is kept") {
  TwoFiles fixture;
  fixture.OpenFile(kA);
  fixture.BuildCard(u"more", u"");
  fixture.OpenFile(u"/elsewhere/a.tsr");
  CHECK(fixture.TakeBoxes() == Boxes{{u"a Tessara is already open", 64, u"Open Existing Tessara"}});
  CHECK(fixture.state.deck.filePath == u"/elsewhere/a.tsr");
  CHECK(fixture.state.deck.cardCount == 3);
  CHECK(fixture.state.deck.changed);
}

TEST_CASE("a Yes to saving while another deck is opened writes the old deck over the chosen file") {
  TwoFiles fixture;
  fixture.OpenFile(kA);
  fixture.BuildCard(u"more", u"of it");
  fixture.Answer(MessageAnswer::kYes);
  fixture.OpenFile(kB);
  CHECK(fixture.TakeBoxes() == Boxes{kChangesBox, SavedBox(kB)});
  CHECK(fixture.File(kA) == DeckBytes(2));
  CHECK(fixture.File(kB).substr(kRecordSize) == CardBytes(1, u"front 1", u"back 1") +
                                                    CardBytes(2, u"front 2", u"back 2") +
                                                    CardBytes(3, u"more", u"of it") + EndBytes());
  CHECK(fixture.deck->Caption() == u"b  [STUDY]");
  CHECK(fixture.state.deck.Cell(3, kCardText) == u"more");
  CHECK(fixture.FlagsNow() == DeckFlags{kB, false, false, true});
}

TEST_CASE("a No to saving while another deck is opened drops the changes") {
  TwoFiles fixture;
  fixture.OpenFile(kA);
  fixture.BuildCard(u"more", u"");
  fixture.Answer(MessageAnswer::kNo);
  fixture.OpenFile(kB);
  CHECK(fixture.TakeBoxes() == Boxes{kChangesBox});
  CHECK(fixture.File(kB) == DeckBytes(3));
  CHECK(fixture.FlagsNow() == DeckFlags{kB, false, false, true});
}

TEST_CASE("a shorter deck leaves nothing of the longer one before it") {
  TwoFiles fixture;
  fixture.OpenFile(kB);
  fixture.OpenFile(kA);
  CHECK(fixture.state.deck.cardCount == 2);
  CHECK(fixture.state.deck.Cell(3, kCardText).empty());
  CHECK(fixture.state.deck.cardPresent.At(3) == 0);
}

TEST_CASE("a deck of unknown letter leaves the window and the deck's type as they were") {
  LifeFixture fixture;
  fixture.fakes.files.Put(kA, InfoBytes({}) + RecordText('Q', u"odd", 1, {}, u"") + EndBytes());
  fixture.NewDeck();
  fixture.deck->flip.SetCaption(u"&Show Front");
  fixture.state.deck.kind = kStandardDeck;
  fixture.OpenFile(kA);
  CHECK(fixture.state.deck.kind == kStandardDeck);
  CHECK(fixture.deck->flip.Caption() == u"&Show Front");
  CHECK(fixture.deck->Caption() == u"a  [STUDY]");
  CHECK(fixture.state.deck.onFile);
}

TEST_CASE("opening a file without cards offers neither to clear nor to save it") {
  LifeFixture fixture;
  fixture.fakes.files.Put(kA, InfoBytes({}) + EndBytes());
  fixture.NewDeck();
  fixture.OpenFile(kA);
  CHECK(fixture.state.deck.cardCount == 0);
  CHECK(fixture.state.deck.currentCard == 1);
  CHECK_FALSE(fixture.deck->clearDeck.Enabled());
  CHECK_FALSE(fixture.deck->saveDeckAs.Enabled());
  CHECK(fixture.deck->printDeck.Enabled());
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
    TwoFiles fixture;
    fixture.fakes.files.fault = [&c](MemoryFiles::Operation, const Text&) {
      return std::optional(c.number);
    };
    fixture.OpenFile(kA);
    CHECK(fixture.TakeBoxes() == Boxes{{c.report, 16, u"Tessara"}});
    CHECK(fixture.windows.ExitStatus() == 1);
  }
}

TEST_CASE("a card outside the table ends the program with a subscript error") {
  TwoFiles fixture;
  fixture.fakes.files.Put(kA, CardBytes(203, u"x", u""));
  fixture.OpenFile(kA);
  CHECK(fixture.TakeBoxes() ==
        Boxes{{u"Run-time error '9':\r\n\r\nSubscript out of range", 16, u"Tessara"}});
  CHECK(fixture.windows.ExitStatus() == 1);
}

}  // namespace tessara::test
