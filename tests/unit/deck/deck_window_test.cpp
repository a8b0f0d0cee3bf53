#include "deck/deck_window.h"

#include <doctest/doctest.h>

#include "tests/support/life_desk.h"
#include "tests/support/sample_deck.h"

namespace tessara::test {

namespace {

const Text kA = u"/decks/a.tsr";
const Text kB = u"/decks/b.tsr";

/// What tells the states of the deck window apart.
struct Flags {
  Text path;
  bool changed = false;
  bool offered = false;
  bool onFile = false;
  friend bool operator==(const Flags&, const Flags&) = default;
};

Flags FlagsOf(const LifeDesk& desk) {
  return {desk.state.DeckFilePath, desk.state.DeckChanged, desk.state.SaveOffered,
          desk.state.DeckOnFile};
}

void Clear(LifeDesk& desk) {
  desk.Run([&] { desk.deck->mnuNCD_Click(); });
}
void Save(LifeDesk& desk) {
  desk.Run([&] { desk.deck->mnuSave_Click(); });
}
void SaveAs(LifeDesk& desk, const Text& path) {
  desk.Choose(path);
  desk.Run([&] { desk.deck->mnuSaveAs_Click(); });
}
void Exit(LifeDesk& desk) {
  desk.Run([&] { desk.deck->mnuExit_Click(); });
}
void Close(LifeDesk& desk) {
  desk.deck->Command3[2].Press();
}
/// Deletes the card on show.
void Delete(LifeDesk& desk) {
  desk.Answer(MessageAnswer::kYes);
  desk.Run([&] { desk.deck->mnuDelete_Click(); });
}

/// A desk with the files a.tsr of 2 cards and b.tsr of 3 and an empty new deck.
struct TwoFiles : LifeDesk {
  TwoFiles() {
    PutDeck(kA, 2);
    PutDeck(kB, 3);
    NewDeck();
  }
};

}  // namespace

TEST_CASE("the flags tell the states of the deck window apart") {
  struct Case {
    const char* state;
    std::function<void(LifeDesk&)> reach;
    Flags flags;
  };
  const Case cases[] = {
      {"no deck window, after a close",
       [](LifeDesk& desk) {
         desk.OpenFile(kA);
         desk.Answer(MessageAnswer::kYes);
         Exit(desk);
       },
       {u"", false, false, false}},
      {"new and empty", [](LifeDesk&) {}, {u"", false, false, false}},
      {"cleared",
       [](LifeDesk& desk) {
         desk.OpenFile(kA);
         Clear(desk);
       },
       {u"", false, false, false}},
      {"new with cards", [](LifeDesk& desk) { desk.BuildDeck(1); }, {u"", true, true, false}},
      {"opened", [](LifeDesk& desk) { desk.OpenFile(kA); }, {kA, false, false, true}},
      {"saved for the first time",
       [](LifeDesk& desk) {
         desk.BuildDeck(1);
         desk.Choose(kB);
         Save(desk);
       },
       {kB, false, false, true}},
      {"saved again",
       [](LifeDesk& desk) {
         desk.OpenFile(kA);
         desk.BuildCard(u"more", u"");
         Save(desk);
       },
       // A builder's card offers a save, and a save that needs no name leaves the offer.
       {kA, false, true, true}},
      {"saved under a name, new",
       [](LifeDesk& desk) {
         desk.BuildDeck(1);
         SaveAs(desk, kB);
       },
       {kB, false, false, false}},
      {"saved under a name, opened",
       [](LifeDesk& desk) {
         desk.OpenFile(kA);
         SaveAs(desk, kB);
       },
       {kB, false, false, true}},
      {"changed by a deletion",
       [](LifeDesk& desk) {
         desk.OpenFile(kA);
         Delete(desk);
       },
       {kA, true, false, true}},
      {"changed by a builder",
       [](LifeDesk& desk) {
         desk.OpenFile(kA);
         desk.BuildCard(u"more", u"");
       },
       {kA, true, true, true}},
  };
  for (const Case& c : cases) {
    CAPTURE(c.state);
    TwoFiles desk;
    c.reach(desk);
    CHECK(FlagsOf(desk) == c.flags);
  }
}

TEST_CASE("a deck from the command line is not on file until it is saved") {
  LifeDesk desk;
  desk.PutDeck(kA, 2);
  desk.OpenFromCommandLine(kA);
  CHECK(FlagsOf(desk) == Flags{kA, false, false, false});
  CHECK(desk.deck->Caption() == u"a  [STUDY]");
  Delete(desk);
  Save(desk);
  CHECK(FlagsOf(desk) == Flags{kA, false, false, true});
  CHECK(desk.File(kA).size() == 4 * kRecordSize);
  Save(desk);
  CHECK(desk.File(kA).size() == 3 * kRecordSize);
}

// Opening.

TEST_CASE("opening shows the deck of the file on its first card") {
  TwoFiles desk;
  desk.OpenFile(kB);
  CHECK(desk.deck->Caption() == u"b  [STUDY]");
  CHECK(desk.state.CardCount == 3);
  CHECK(desk.state.CurrentCard == 1);
  CHECK(desk.state.DeckType == kStandardDeck);
  CHECK(desk.state.CardMode == kStudyMode);
  CHECK(desk.deck->NoteletCtl1.CardText() == u"front 1");
  CHECK(desk.deck->NoteletCtl1.CardNumber() == u"1");
  CHECK(desk.deck->NoteletCtl1.CardTotal() == u"3");
  CHECK(desk.deck->NoteletCtl1.FrontLines());
  CHECK(desk.deck->NoteletCtl1.FrontRule());
  CHECK_FALSE(desk.deck->cmdMove[0].Enabled());
  CHECK(desk.deck->cmdMove[1].Enabled());
  CHECK(desk.deck->mnuPrint.Enabled());
  CHECK(desk.deck->mnuNCD.Enabled());
  CHECK(desk.deck->mnuSaveAs.Enabled());
  CHECK_FALSE(desk.deck->mnuSave.Enabled());
  CHECK(desk.TakeBoxes().empty());
}

TEST_CASE("opening a deck of questions shows the answer card") {
  LifeDesk desk;
  for (const char letter : {'T', 'M'}) {
    desk.fakes.files.Put(kA,
                         InfoBytes({}) + RecordText(letter, u"question", 1, {}, u"") + EndBytes());
    desk.NewDeck();
    desk.OpenFile(kA);
    CHECK(desk.state.DeckType == kExtendedDeck);
    CHECK(desk.deck->Command3[1].Caption() == u"&Hide Answer");
    CHECK(desk.deck->NoteletCtl1.CardText() == u"question");
    Clear(desk);
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
    CHECK(desk.state.DeckFilePath == answer);
    CHECK(desk.deck->Caption() == u"a  [STUDY]");
    CHECK(desk.state.CardCount == 2);
    CHECK(desk.TakeBoxes().empty());
  }
}

TEST_CASE("a save after a cancelled opening asks, writes nothing and reports no name") {
  TwoFiles desk;
  desk.OpenFile(kA);
  desk.OpenFile(u"");
  desk.Choose(u"/decks/chosen.tsr");
  Save(desk);
  CHECK(desk.TakeBoxes() == Boxes{SavedBox(u"")});
  CHECK(desk.File(kA) == DeckBytes(2));
  CHECK_FALSE(desk.fakes.files.Has(u"/decks/chosen.tsr"));
  CHECK(FlagsOf(desk) == Flags{u"", false, false, true});
}

TEST_CASE("a file of another extension is refused and leaves the deck without a path") {
  for (const TextView path : {u"/decks/b.TSR", u"/decks/b.txt", u"/decks/b"}) {
    TwoFiles desk;
    desk.OpenFile(kA);
    desk.OpenFile(Text(path));
    CHECK(desk.TakeBoxes() == Boxes{kNotADeckBox});
    CHECK(desk.state.DeckFilePath.empty());
    CHECK(desk.deck->Caption() == u"a  [STUDY]");
  }
}

TEST_CASE("a deck of the same name is open already, and the path is kept") {
  TwoFiles desk;
  desk.OpenFile(kA);
  desk.BuildCard(u"more", u"");
  desk.OpenFile(u"/elsewhere/a.tsr");
  CHECK(desk.TakeBoxes() == Boxes{{u"a Tessara is already open", 64, u"Open Existing Tessara"}});
  CHECK(desk.state.DeckFilePath == u"/elsewhere/a.tsr");
  CHECK(desk.state.CardCount == 3);
  CHECK(desk.state.DeckChanged);
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
  CHECK(desk.state.Cell(3, kCardText) == u"more");
  CHECK(FlagsOf(desk) == Flags{kB, false, false, true});
}

TEST_CASE("a No to saving while another deck is opened drops the changes") {
  TwoFiles desk;
  desk.OpenFile(kA);
  desk.BuildCard(u"more", u"");
  desk.Answer(MessageAnswer::kNo);
  desk.OpenFile(kB);
  CHECK(desk.TakeBoxes() == Boxes{kChangesBox});
  CHECK(desk.File(kB) == DeckBytes(3));
  CHECK(FlagsOf(desk) == Flags{kB, false, false, true});
}

TEST_CASE("a shorter deck leaves nothing of the longer one before it") {
  TwoFiles desk;
  desk.OpenFile(kB);
  desk.OpenFile(kA);
  CHECK(desk.state.CardCount == 2);
  CHECK(desk.state.Cell(3, kCardText).empty());
  CHECK(desk.state.CardPresent.At(3) == 0);
}

TEST_CASE("a deck of unknown letter leaves the window and the deck's type as they were") {
  LifeDesk desk;
  desk.fakes.files.Put(kA, InfoBytes({}) + RecordText('Q', u"odd", 1, {}, u"") + EndBytes());
  desk.NewDeck();
  desk.deck->Command3[1].SetCaption(u"&Show Front");
  desk.state.DeckType = kStandardDeck;
  desk.OpenFile(kA);
  CHECK(desk.state.DeckType == kStandardDeck);
  CHECK(desk.deck->Command3[1].Caption() == u"&Show Front");
  CHECK(desk.deck->Caption() == u"a  [STUDY]");
  CHECK(desk.state.DeckOnFile);
}

TEST_CASE("opening a file without cards offers neither to clear nor to save it") {
  LifeDesk desk;
  desk.fakes.files.Put(kA, InfoBytes({}) + EndBytes());
  desk.NewDeck();
  desk.OpenFile(kA);
  CHECK(desk.state.CardCount == 0);
  CHECK(desk.state.CurrentCard == 1);
  CHECK_FALSE(desk.deck->mnuNCD.Enabled());
  CHECK_FALSE(desk.deck->mnuSaveAs.Enabled());
  CHECK(desk.deck->mnuPrint.Enabled());
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

// Saving.

TEST_CASE("a new deck asks for its name at the first save only") {
  LifeDesk desk;
  desk.BuildDeck(1);
  desk.Choose(kA);
  Save(desk);
  Save(desk);
  CHECK(desk.fakes.dialogs.fileRequests.size() == 1);
  CHECK(desk.fakes.dialogs.fileRequests[0].mode == FileDialogMode::kSave);
  CHECK(desk.TakeBoxes() == Boxes{SavedBox(kA), SavedBox(kA)});
  CHECK(desk.File(kA) == DeckBytes(1));
}

TEST_CASE("a name typed without an extension is taken as it stands") {
  LifeDesk desk;
  desk.BuildDeck(1);
  desk.Choose(u"/decks/plain");
  Save(desk);
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
    Save(desk);
    SaveAs(desk, Text(answer));
    CHECK(desk.TakeBoxes() == Boxes{kNotSavedBox, kNotSavedBox});
    CHECK(FlagsOf(desk) == Flags{u"", true, true, false});
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
  Save(desk);
  CHECK(desk.TakeBoxes() == Boxes{kNotSavedBox});
}

TEST_CASE("a save of an empty new deck is refused, and the deck then counts as on file") {
  LifeDesk desk;
  desk.NewDeck();
  Save(desk);
  CHECK(desk.TakeBoxes() == Boxes{kEmptyDeckBox});
  CHECK(FlagsOf(desk) == Flags{u"", false, false, true});
}

TEST_CASE("a save under a name deletes the target first only if the deck is on file") {
  for (const bool onFile : {false, true}) {
    LifeDesk desk;
    desk.BuildDeck(1);
    desk.state.DeckOnFile = onFile;
    desk.PutDeck(kB, 9);
    SaveAs(desk, kB);
    CHECK(desk.File(kB).size() == (onFile ? 3 : 11) * kRecordSize);
  }
}

TEST_CASE("a save leaves the save command as it is until the window comes to the front again") {
  TwoFiles desk;
  desk.OpenFile(kA);
  Delete(desk);
  Save(desk);
  CHECK(desk.deck->mnuSave.Enabled());
  desk.info->Command1[0].Press();
  CHECK(desk.windows.ActiveForm() == &desk.deck.Loaded());
  CHECK_FALSE(desk.deck->mnuSave.Enabled());
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
    desk.state.DeckChanged = c.changed;
    desk.Answer(MessageAnswer::kNo);
    desk.Run([&] { desk.deck->ChkSave(); });
    CHECK(desk.TakeBoxes() == (c.asks ? Boxes{kChangesBox} : Boxes{}));
    CHECK(desk.state.DeckChanged == c.changed);
  }
}

TEST_CASE("a Yes saves to the deck's file, or asks for one, and the deck is unchanged after it") {
  LifeDesk withPath;
  withPath.BuildDeck(1);
  withPath.state.DeckFilePath = kA;
  withPath.Answer(MessageAnswer::kYes);
  withPath.Run([&] { withPath.deck->ChkSave(); });
  CHECK(withPath.TakeBoxes() == Boxes{kChangesBox, SavedBox(kA)});
  CHECK(withPath.File(kA) == DeckBytes(1));
  CHECK(FlagsOf(withPath) == Flags{kA, false, true, false});

  LifeDesk without;
  without.BuildDeck(1);
  without.Answer(MessageAnswer::kYes);
  without.Choose(kB);
  without.Run([&] { without.deck->ChkSave(); });
  CHECK(without.TakeBoxes() == Boxes{kChangesBox, SavedBox(kB)});
  CHECK(without.File(kB) == DeckBytes(1));
  CHECK(FlagsOf(without) == Flags{kB, false, true, false});
}

TEST_CASE("a Yes and then no name loses the changes") {
  for (const TextView answer : {u"", u"*.tsr"}) {
    LifeDesk desk;
    desk.BuildDeck(1);
    desk.Answer(MessageAnswer::kYes);
    desk.Choose(Text(answer));
    desk.Run([&] { desk.deck->ChkSave(); });
    CHECK(desk.TakeBoxes() ==
          Boxes{kChangesBox, {u"This file was not saved", 64, u"File Not Saved"}});
    CHECK(FlagsOf(desk) == Flags{Text(answer), false, true, false});
    CHECK(desk.fakes.files.files.empty());
  }
}

// Clearing.

TEST_CASE("clearing empties the deck, its information and the window") {
  TwoFiles desk;
  desk.OpenFile(kA);
  desk.state.TestPoints = 2;
  Clear(desk);
  CHECK(desk.deck->Caption() == u"New Deck");
  CHECK(desk.state.CardCount == 0);
  CHECK_FALSE(desk.state.HasCards());
  CHECK(desk.state.CardPresent.At(kInfoRow) == 0);
  CHECK(desk.state.DeckTitle.empty());
  CHECK(desk.state.TestPoints == 0);
  CHECK(desk.deck->NoteletCtl1.CardText().empty());
  CHECK(desk.deck->NoteletCtl1.CardTotal() == u"0");
  CHECK(desk.deck->Label2.Caption().empty());
  CHECK_FALSE(desk.deck->cmdMove[0].Enabled());
  CHECK_FALSE(desk.deck->cmdMove[1].Enabled());
  CHECK_FALSE(desk.deck->Command3[1].Enabled());
  for (const MenuEntry* entry : {&desk.deck->mnuNCD, &desk.deck->mnuMode, &desk.deck->mnuGTP,
                                 &desk.deck->mnuDelete, &desk.deck->mnuPrint}) {
    CHECK_FALSE(entry->Enabled());
  }
  CHECK(desk.File(kA) == DeckBytes(2));
}

TEST_CASE("clearing leaves the card on show to the caller") {
  TwoFiles desk;
  desk.OpenFile(kA);
  desk.state.CurrentCard = 2;
  Clear(desk);
  CHECK(desk.state.CurrentCard == 2);
}

TEST_CASE("clearing a changed deck asks first and goes on whatever the answer") {
  for (const MessageAnswer answer : {MessageAnswer::kYes, MessageAnswer::kNo}) {
    TwoFiles desk;
    desk.OpenFile(kA);
    Delete(desk);
    (void)desk.TakeBoxes();
    desk.Answer(answer);
    Clear(desk);
    const bool saved = answer == MessageAnswer::kYes;
    CHECK(desk.TakeBoxes() == (saved ? Boxes{kChangesBox, SavedBox(kA)} : Boxes{kChangesBox}));
    CHECK(desk.File(kA).size() == (saved ? 3 : 4) * kRecordSize);
    CHECK(FlagsOf(desk) == Flags{});
  }
}

TEST_CASE("a new deck can be cleared again once the window finds cards in it") {
  TwoFiles desk;
  desk.OpenFile(kA);
  Clear(desk);
  CHECK_FALSE(desk.deck->mnuNCD.Enabled());
  desk.BuildCard(u"front", u"");
  desk.deck->Hide();
  desk.deck->Show();
  CHECK(desk.deck->mnuNCD.Enabled());
}

// Closing.

TEST_CASE("an empty deck window closes without a question") {
  for (const auto& close : {Exit, Close}) {
    LifeDesk desk;
    desk.NewDeck();
    desk.state.DeckChanged = true;
    close(desk);
    CHECK_FALSE(desk.deck.IsLoaded());
    CHECK(desk.TakeBoxes().empty());
  }
}

TEST_CASE("a deck with cards closes after a Yes and stays after a No") {
  for (const auto& close : {Exit, Close}) {
    TwoFiles desk;
    desk.OpenFile(kA);
    desk.Answer(MessageAnswer::kNo);
    close(desk);
    CHECK(desk.deck.IsLoaded());
    CHECK(desk.state.CardCount == 2);
    CHECK(FlagsOf(desk) == Flags{kA, false, false, true});
    desk.Answer(MessageAnswer::kYes);
    close(desk);
    CHECK_FALSE(desk.deck.IsLoaded());
    CHECK(desk.TakeBoxes() == Boxes{kSureBox, kSureBox});
    CHECK(FlagsOf(desk) == Flags{});
    CHECK(desk.state.CurrentCard == 0);
    CHECK(desk.state.CardCount == 0);
    CHECK(desk.state.TestPoints == 0);
    CHECK(desk.state.DeckTitle.empty());
    CHECK_FALSE(desk.state.HasCards());
  }
}

TEST_CASE("the close command asks about changes once and forgets them") {
  TwoFiles desk;
  desk.OpenFile(kA);
  Delete(desk);
  (void)desk.TakeBoxes();
  desk.Answer(MessageAnswer::kNo);
  desk.Answer(MessageAnswer::kNo);
  Exit(desk);
  CHECK(desk.TakeBoxes() == Boxes{kChangesBox, kSureBox});
  CHECK(desk.deck.IsLoaded());
  CHECK_FALSE(desk.state.DeckChanged);
  CHECK(desk.state.CardCount == 1);
}

TEST_CASE("the close button asks about changes, and a No keeps them flagged") {
  TwoFiles desk;
  desk.OpenFile(kA);
  Delete(desk);
  (void)desk.TakeBoxes();
  desk.Answer(MessageAnswer::kNo);
  desk.Answer(MessageAnswer::kYes);
  Close(desk);
  CHECK(desk.TakeBoxes() == Boxes{kChangesBox, kSureBox});
  CHECK_FALSE(desk.deck.IsLoaded());
  CHECK(desk.state.DeckChanged);
}

TEST_CASE("a flag left by the close button speaks up when the next deck gets a card") {
  TwoFiles desk;
  desk.OpenFile(kA);
  Delete(desk);
  desk.Answer(MessageAnswer::kNo);
  desk.Answer(MessageAnswer::kYes);
  Close(desk);
  (void)desk.TakeBoxes();
  desk.NewDeck();
  desk.Run([&] { desk.deck->ChkSave(); });
  CHECK(desk.TakeBoxes().empty());
  desk.AddTextCard(u"front", u"");
  desk.Answer(MessageAnswer::kNo);
  desk.Run([&] { desk.deck->ChkSave(); });
  CHECK(desk.TakeBoxes() == Boxes{kChangesBox});
}

TEST_CASE("a save done while closing stands though the close is refused") {
  TwoFiles desk;
  desk.OpenFile(kA);
  Delete(desk);
  (void)desk.TakeBoxes();
  desk.Answer(MessageAnswer::kYes);
  desk.Answer(MessageAnswer::kNo);
  Close(desk);
  CHECK(desk.TakeBoxes() == Boxes{kChangesBox, SavedBox(kA), kSureBox});
  CHECK(desk.deck.IsLoaded());
  CHECK(desk.File(kA).size() == 3 * kRecordSize);
  CHECK(FlagsOf(desk) == Flags{kA, false, false, true});
}

TEST_CASE("outside study mode the close command asks about changes, refuses, and forgets them") {
  for (const Mode mode : {kQuizMode, kTestMode}) {
    TwoFiles desk;
    desk.OpenFile(kA);
    Delete(desk);
    (void)desk.TakeBoxes();
    desk.state.CardMode = mode;
    desk.Answer(MessageAnswer::kNo);
    Exit(desk);
    CHECK(desk.TakeBoxes() == Boxes{kChangesBox, kQuitBox});
    CHECK(desk.deck.IsLoaded());
    CHECK_FALSE(desk.state.DeckChanged);
    CHECK_FALSE(desk.state.SaveOffered);
    CHECK(desk.state.CardCount == 1);
  }
}

TEST_CASE("outside study mode the close button refuses at once and forgets nothing") {
  TwoFiles desk;
  desk.OpenFile(kA);
  Delete(desk);
  (void)desk.TakeBoxes();
  desk.Run([&] { desk.deck->mnuQuiz_Click(); });
  Close(desk);
  CHECK(desk.TakeBoxes() == Boxes{kQuitBox});
  CHECK(desk.deck.IsLoaded());
  CHECK(desk.state.DeckChanged);
}

TEST_CASE("the close command also closes the question builder") {
  for (const MessageAnswer answer : {MessageAnswer::kYes, MessageAnswer::kNo}) {
    TwoFiles desk;
    WindowSlot builder(desk.windows, [&] {
      return std::make_unique<Form>(desk.windows, "frmQuestion", FormKind::kChild, u"");
    });
    builder.Instance().EnsureLoaded();
    desk.deck->SetQuestionBuilder(builder);
    desk.OpenFile(kA);
    desk.Answer(answer);
    Exit(desk);
    CHECK_FALSE(builder.IsLoaded());
  }
}

TEST_CASE("a closed deck window comes back empty") {
  TwoFiles desk;
  desk.OpenFile(kA);
  desk.Answer(MessageAnswer::kYes);
  Exit(desk);
  desk.NewDeck();
  CHECK(desk.deck->Caption() == u"New Deck");
  CHECK(desk.deck->NoteletCtl1.CardText().empty());
  CHECK_FALSE(desk.deck->mnuSaveAs.Enabled());
  CHECK_FALSE(desk.deck->mnuNCD.Enabled());
}

// Small routines.

TEST_CASE("the arrows of the deck window look at the ends of the deck") {
  struct Case {
    std::int16_t current;
    std::int16_t count;
    bool back;
    bool on;
  };
  const Case cases[] = {{1, 0, false, false}, {1, 1, false, false}, {1, 2, false, true},
                        {2, 2, true, false},  {0, 2, true, true},   {3, 2, true, true}};
  for (const Case& c : cases) {
    LifeDesk desk;
    desk.state.CurrentCard = c.current;
    desk.state.CardCount = c.count;
    desk.deck->UpdateMoveButtons();
    CHECK(desk.deck->cmdMove[0].Enabled() == c.back);
    CHECK(desk.deck->cmdMove[1].Enabled() == c.on);
  }
}

TEST_CASE("going to a card needs more than one") {
  LifeDesk desk;
  for (const std::int16_t count : {std::int16_t{0}, std::int16_t{1}, std::int16_t{2}}) {
    desk.state.CardCount = count;
    desk.deck->SetGoToMenu();
    CHECK(desk.deck->mnuGTP.Enabled() == (count > 1));
  }
}

TEST_CASE("the first of two texts is taken unless it is empty") {
  CHECK(DeckWindow::SaveThisorThat(u"this", u"that") == u"this");
  CHECK(DeckWindow::SaveThisorThat(u"", u"that") == u"that");
  CHECK(DeckWindow::SaveThisorThat(u" ", u"that") == u" ");
}

TEST_CASE("the delete command is switched on and off") {
  LifeDesk desk;
  for (const bool on : {true, false}) {
    desk.deck->MenuOp(on);
    CHECK(desk.deck->mnuDelete.Enabled() == on);
  }
}

}  // namespace tessara::test
