#include <doctest/doctest.h>

#include "deck/life/deck_life.h"
#include "tests/unit/deck/life/two_files.h"

namespace tessara::test {

TEST_CASE("a new deck asks for its name at the first save only") {
  LifeFixture fixture;
  fixture.BuildDeck(1);
  fixture.Choose(kA);
  fixture.Save();
  fixture.Save();
  CHECK(fixture.fakes.dialogs.fileRequests.size() == 1);
  CHECK(fixture.fakes.dialogs.fileRequests[0].mode == FileDialogMode::kSave);
  CHECK(fixture.TakeBoxes() == Boxes{SavedBox(kA), SavedBox(kA)});
  CHECK(fixture.File(kA) == DeckBytes(1));
}

TEST_CASE("a name typed without an extension is taken as it stands") {
  LifeFixture fixture;
  fixture.BuildDeck(1);
  fixture.Choose(u"/decks/plain");
  fixture.Save();
  CHECK(fixture.File(u"/decks/plain") == DeckBytes(1));
  CHECK(fixture.deck->Caption() == u"  [STUDY]");
  fixture.OpenFile(u"/decks/plain");
  CHECK(fixture.TakeBoxes() == Boxes{SavedBox(u"/decks/plain"), kNotADeckBox});
}

TEST_CASE("a save that gets no name changes nothing") {
  for (const TextView answer : {u"", u"*.tsr"}) {
    LifeFixture fixture;
    fixture.BuildDeck(1);
    fixture.Choose(Text(answer));
    fixture.Save();
    fixture.SaveAs(Text(answer));
    CHECK(fixture.TakeBoxes() == Boxes{kNotSavedBox, kNotSavedBox});
    CHECK(fixture.FlagsNow() == DeckFlags{u"", true, true, false});
    CHECK(fixture.fakes.files.files.empty());
  }
}

TEST_CASE("a deck whose name begins with New is asked for a name again after a builder's card") {
  LifeFixture fixture;
  fixture.PutDeck(u"/decks/Newts.tsr", 1);
  fixture.NewDeck();
  fixture.OpenFile(u"/decks/Newts.tsr");
  fixture.BuildCard(u"more", u"");
  fixture.Cancel();
  fixture.Save();
  CHECK(fixture.TakeBoxes() == Boxes{kNotSavedBox});
}

TEST_CASE("a save of an empty new deck is refused, and the deck then counts as on file") {
  LifeFixture fixture;
  fixture.NewDeck();
  fixture.Save();
  CHECK(fixture.TakeBoxes() == Boxes{kEmptyDeckBox});
  CHECK(fixture.FlagsNow() == DeckFlags{u"", false, false, true});
}

TEST_CASE("a save under a name deletes the target first only if the deck is on file") {
  for (const bool onFile : {false, true}) {
    LifeFixture fixture;
    fixture.BuildDeck(1);
    fixture.state.deck.onFile = onFile;
    fixture.PutDeck(kB, 9);
    fixture.SaveAs(kB);
    CHECK(fixture.File(kB).size() == (onFile ? 3 : 11) * kRecordSize);
  }
}

TEST_CASE("a save leaves the save command as it is until the window comes to the front again") {
  TwoFiles fixture;
  fixture.OpenFile(kA);
  fixture.DeleteCard();
  fixture.Save();
  CHECK(fixture.deck->saveDeck.Enabled());
  fixture.info->close.Press();
  CHECK(fixture.windows.ActiveForm() == &fixture.deck.Loaded());
  CHECK_FALSE(fixture.deck->saveDeck.Enabled());
}

// The question about unsaved changes.

TEST_CASE("unsaved changes are asked about only where there are cards and changes") {
  struct Case {
    bool changed;
    bool cards;
    bool asks;
  };
  for (const Case& c : {Case{false, false, false},
                        {true, false, false},
                        {false, true, false},
                        {true, true, true}}) {
    LifeFixture fixture;
    fixture.NewDeck();
    if (c.cards) fixture.AddTextCard(u"front", u"");
    if (!c.cards) fixture.AddTextCard(u"", u"back");
    fixture.state.deck.changed = c.changed;
    fixture.Answer(MessageAnswer::kNo);
    fixture.CheckSave();
    CHECK(fixture.TakeBoxes() == (c.asks ? Boxes{kChangesBox} : Boxes{}));
    CHECK(fixture.state.deck.changed == c.changed);
  }
}

TEST_CASE("a Yes saves to the deck's file, or asks for one, and the deck is unchanged after it") {
  for (const bool hasPath : {false, true}) {
    LifeFixture fixture;
    fixture.BuildDeck(1);
    if (hasPath) fixture.state.deck.filePath = kA;
    if (!hasPath) fixture.Choose(kA);
    fixture.Answer(MessageAnswer::kYes);
    fixture.CheckSave();
    CHECK(fixture.TakeBoxes() == Boxes{kChangesBox, SavedBox(kA)});
    CHECK(fixture.File(kA) == DeckBytes(1));
    CHECK(fixture.FlagsNow() == DeckFlags{kA, false, true, false});
  }
}

TEST_CASE("a Yes and then no name loses the changes") {
  for (const TextView answer : {u"", u"*.tsr"}) {
    LifeFixture fixture;
    fixture.BuildDeck(1);
    fixture.Answer(MessageAnswer::kYes);
    fixture.Choose(Text(answer));
    fixture.CheckSave();
    CHECK(fixture.TakeBoxes() ==
          Boxes{kChangesBox, {u"This file was not saved", 64, u"File Not Saved"}});
    CHECK(fixture.FlagsNow() == DeckFlags{Text(answer), false, true, false});
    CHECK(fixture.fakes.files.files.empty());
  }
}

}  // namespace tessara::test
