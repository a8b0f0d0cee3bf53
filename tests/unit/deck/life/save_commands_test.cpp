#include <doctest/doctest.h>

#include "deck/life/deck_life.h"
#include "tests/unit/deck/life/two_files.h"

namespace tessara::test {

TEST_CASE("a new deck asks for its name at the first save only") {
  LifeDesk desk;
  desk.BuildDeck(1);
  desk.Choose(kA);
  desk.Save();
  desk.Save();
  CHECK(desk.fakes.dialogs.fileRequests.size() == 1);
  CHECK(desk.fakes.dialogs.fileRequests[0].mode == FileDialogMode::kSave);
  CHECK(desk.TakeBoxes() == Boxes{SavedBox(kA), SavedBox(kA)});
  CHECK(desk.File(kA) == DeckBytes(1));
}

TEST_CASE("a name typed without an extension is taken as it stands") {
  LifeDesk desk;
  desk.BuildDeck(1);
  desk.Choose(u"/decks/plain");
  desk.Save();
  CHECK(desk.File(u"/decks/plain") == DeckBytes(1));
  CHECK(desk.deck->Caption() == u"  [STUDY]");
  desk.OpenFile(u"/decks/plain");
  CHECK(desk.TakeBoxes() == Boxes{SavedBox(u"/decks/plain"), kNotADeckBox});
}

TEST_CASE("a save that gets no name changes nothing") {
  for (const TextView answer : {u"", u"*.tsr"}) {
    LifeDesk desk;
    desk.BuildDeck(1);
    desk.Choose(Text(answer));
    desk.Save();
    desk.SaveAs(Text(answer));
    CHECK(desk.TakeBoxes() == Boxes{kNotSavedBox, kNotSavedBox});
    CHECK(desk.FlagsNow() == DeckFlags{u"", true, true, false});
    CHECK(desk.fakes.files.files.empty());
  }
}

TEST_CASE("a deck whose name begins with New is asked for a name again after a builder's card") {
  LifeDesk desk;
  desk.PutDeck(u"/decks/Newts.tsr", 1);
  desk.NewDeck();
  desk.OpenFile(u"/decks/Newts.tsr");
  desk.BuildCard(u"more", u"");
  desk.Cancel();
  desk.Save();
  CHECK(desk.TakeBoxes() == Boxes{kNotSavedBox});
}

TEST_CASE("a save of an empty new deck is refused, and the deck then counts as on file") {
  LifeDesk desk;
  desk.NewDeck();
  desk.Save();
  CHECK(desk.TakeBoxes() == Boxes{kEmptyDeckBox});
  CHECK(desk.FlagsNow() == DeckFlags{u"", false, false, true});
}

TEST_CASE("a save under a name deletes the target first only if the deck is on file") {
  for (const bool onFile : {false, true}) {
    LifeDesk desk;
    desk.BuildDeck(1);
    desk.state.deck.onFile = onFile;
    desk.PutDeck(kB, 9);
    desk.SaveAs(kB);
    CHECK(desk.File(kB).size() == (onFile ? 3 : 11) * kRecordSize);
  }
}

TEST_CASE("a save leaves the save command as it is until the window comes to the front again") {
  TwoFiles desk;
  desk.OpenFile(kA);
  desk.DeleteCard();
  desk.Save();
  CHECK(desk.deck->saveDeck.Enabled());
  desk.info->close.Press();
  CHECK(desk.windows.ActiveForm() == &desk.deck.Loaded());
  CHECK_FALSE(desk.deck->saveDeck.Enabled());
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
    LifeDesk desk;
    desk.NewDeck();
    if (c.cards) desk.AddTextCard(u"front", u"");
    if (!c.cards) desk.AddTextCard(u"", u"back");
    desk.state.deck.changed = c.changed;
    desk.Answer(MessageAnswer::kNo);
    desk.CheckSave();
    CHECK(desk.TakeBoxes() == (c.asks ? Boxes{kChangesBox} : Boxes{}));
    CHECK(desk.state.deck.changed == c.changed);
  }
}

TEST_CASE("a Yes saves to the deck's file, or asks for one, and the deck is unchanged after it") {
  for (const bool hasPath : {false, true}) {
    LifeDesk desk;
    desk.BuildDeck(1);
    if (hasPath) desk.state.deck.filePath = kA;
    if (!hasPath) desk.Choose(kA);
    desk.Answer(MessageAnswer::kYes);
    desk.CheckSave();
    CHECK(desk.TakeBoxes() == Boxes{kChangesBox, SavedBox(kA)});
    CHECK(desk.File(kA) == DeckBytes(1));
    CHECK(desk.FlagsNow() == DeckFlags{kA, false, true, false});
  }
}

TEST_CASE("a Yes and then no name loses the changes") {
  for (const TextView answer : {u"", u"*.tsr"}) {
    LifeDesk desk;
    desk.BuildDeck(1);
    desk.Answer(MessageAnswer::kYes);
    desk.Choose(Text(answer));
    desk.CheckSave();
    CHECK(desk.TakeBoxes() ==
          Boxes{kChangesBox, {u"This file was not saved", 64, u"File Not Saved"}});
    CHECK(desk.FlagsNow() == DeckFlags{Text(answer), false, true, false});
    CHECK(desk.fakes.files.files.empty());
  }
}

}  // namespace tessara::test
