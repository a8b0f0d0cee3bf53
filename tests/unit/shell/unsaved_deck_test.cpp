// The deck with unsaved changes is kept, through the whole program: when, for how long, and what is
// told of it.

#include <doctest/doctest.h>

#include "tests/support/cards.h"
#include "tests/support/deck_bytes.h"
#include "tests/support/fakes/faulty_files.h"
#include "tests/support/life_program.h"

namespace tessara::test {

namespace {

const Text kPath = u"/decks/verbs.tsr";

/// The bytes of text cards with a front alone, under an information that nobody has filled in.
std::string FrontsOf(const std::vector<Text>& fronts) {
  std::string bytes = RecordText('I', u"", 0, {}, u"");
  int row = 0;
  for (const Text& front : fronts) bytes += CardBytes(++row, front, u"");
  return bytes + EndBytes();
}

/// The program with a new deck in its window, to which a builder adds cards.
struct UnsavedProgram : LifeProgram {
  FakeCopies& copies = fakes.copies;

  void Build(const Text& front) {
    Run([&] { BuildCard(state, {.text = front}); });
  }
  void Choose(const Text& path) { fakes.dialogs.files.push_back(path); }
  void Answer(MessageAnswer answer) { fakes.messages.answers.push_back(answer); }
  void Open(const Text& path, int cards) {
    fakes.files.Put(path, DeckBytes(cards));
    Choose(path);
    Run([this] { deck->OpenDeck(); });
  }
  /// As a change in a builder leaves it, behind three cards.
  void OpenWithTextInRowWithoutCard() {
    Open(kPath, 3);
    Run([this] {
      state.deck.cardGrid.Set(4, kCardText, u"changed in a row without a card");
      state.deck.changed = true;
    });
  }
  void Close() {
    Run([this] { deck->Unload(); });
  }
  [[nodiscard]] std::string Kept() const { return copies.unsaved ? copies.unsaved->second : ""; }
};

using Steps = std::function<void(UnsavedProgram&)>;

constexpr MessageAnswer kYes = MessageAnswer::kYes;
constexpr MessageAnswer kNo = MessageAnswer::kNo;

}  // namespace

TEST_CASE("at the end of an event that changed the table the deck is kept whole") {
  UnsavedProgram fixture;
  fixture.Build(u"to be");
  CHECK(fixture.copies.unsaved == FakeCopies::Deck{u"New Deck", FrontsOf({u"to be"})});
  fixture.Build(u"to have");
  CHECK(fixture.Kept() == FrontsOf({u"to be", u"to have"}));
  CHECK(fixture.copies.unsavedWrites == 2);
}

TEST_CASE("a deck with a file is kept under its file's name, as a save would write it") {
  UnsavedProgram fixture;
  fixture.Open(kPath, 3);
  fixture.Build(u"front 4");
  CHECK(fixture.copies.unsaved->first == u"verbs.tsr");
  const std::string kept = fixture.Kept();
  fixture.Run([&] { fixture.deck->SaveDeck(); });
  // But for the information, to which the save adds the blanks of its window.
  CHECK(kept.substr(kRecordSize) == fixture.File(kPath).substr(kRecordSize));
}

TEST_CASE("an event is kept once, however often it has changed the table") {
  UnsavedProgram fixture;
  fixture.Run([&] {
    for (int card = 1; card <= 20; ++card) BuildCard(fixture.state, {.text = DecimalText(card)});
  });
  CHECK(fixture.copies.unsavedWrites == 1);
}

TEST_CASE("a deck without unsaved changes is not kept: loaded, moved through, looked at") {
  UnsavedProgram fixture;
  fixture.Open(kPath, 3);
  fixture.deck->arrows[kNextCard].Press();
  fixture.deck->flip.Press();
  fixture.Run([&] { fixture.deck->EnterQuizMode(); });
  fixture.Run([&] { fixture.deck->EnterStudyMode(); });
  CHECK(fixture.copies.unsavedWrites == 0);
}

TEST_CASE("moving through a deck with unsaved changes writes nothing") {
  UnsavedProgram fixture;
  fixture.Open(kPath, 3);
  fixture.Build(u"front 4");
  fixture.deck->arrows[kPreviousCard].Press();
  fixture.deck->arrows[kNextCard].Press();
  fixture.deck->flip.Press();
  CHECK(fixture.copies.unsavedWrites == 1);
}

TEST_CASE("before a box or a dialog comes up inside an event, what it has changed is kept") {
  struct Case {
    const char* name;
    Steps wait;
  };
  const Case cases[] = {
      {"message box", [](UnsavedProgram& fixture) { fixture.deck->DeleteCard(); }},
      {"file dialog", [](UnsavedProgram& fixture) { fixture.deck->SaveDeckAs(); }},
      {"input box", [](UnsavedProgram& fixture) { fixture.deck->AskForCard(); }},
      {"report of a run-time error",
       [](UnsavedProgram&) { throw RunTimeError(ErrorNumber::kSubscriptOutOfRange); }},
  };
  for (const Case& c : cases) {
    CAPTURE(c.name);
    UnsavedProgram fixture;
    fixture.Answer(kNo);
    fixture.Choose(u"");
    fixture.fakes.dialogs.texts.push_back(std::nullopt);
    int waited = 0;
    const auto look = [&] {
      ++waited;
      CHECK(fixture.Kept() == FrontsOf({u"to be"}));
    };
    fixture.fakes.messages.whileShown = [&](const FakeMessages::Shown&) { look(); };
    fixture.fakes.dialogs.whileAsked = look;
    fixture.Run([&] {
      BuildCard(fixture.state, {.text = u"to be"});
      c.wait(fixture);
    });
    CHECK(fixture.Kept() == FrontsOf({u"to be"}));
    CHECK((waited > 0 || !fixture.fakes.dialogs.textRequests.empty()));
  }
}

TEST_CASE("a change that counts as one only behind a box is kept when the event ends") {
  UnsavedProgram fixture;
  fixture.Open(kPath, 1);
  fixture.fakes.dialogs.texts.push_back(std::nullopt);
  fixture.Run([&] {
    fixture.state.deck.cardGrid.Set(1, kCardText, u"told later");
    fixture.deck->AskForCard();
    fixture.state.deck.changed = true;
  });
  CHECK(fixture.copies.unsavedWrites == 1);
  CHECK(fixture.Kept().find("told later") != std::string::npos);
}

TEST_CASE("what is kept goes when the deck is saved or given up, and stays otherwise") {
  struct Case {
    const char* name;
    Steps steps;
    bool stays;  ///< for the next start
  };
  const Case cases[] = {
      {"Save", [](UnsavedProgram& fixture) { fixture.Run([&] { fixture.deck->SaveDeck(); }); },
       false},
      {"Save As", [](UnsavedProgram& fixture) { fixture.Run([&] { fixture.deck->SaveDeckAs(); }); },
       false},
      {"closed, Yes", [](UnsavedProgram& fixture) { fixture.Close(); }, false},
      {"closed, No",
       [](UnsavedProgram& fixture) {
         fixture.fakes.messages.answers = {kNo, kYes};
         fixture.Close();
       },
       false},
      {"cleared, No",
       [](UnsavedProgram& fixture) {
         fixture.fakes.messages.answers = {kNo};
         fixture.Run([&] { fixture.deck->ClearDeck(); });
       },
       false},
      {"closed by the menu, No",
       [](UnsavedProgram& fixture) {
         fixture.fakes.messages.answers = {kNo, kYes};
         fixture.Run([&] { fixture.deck->CloseTessara(); });
       },
       false},
      {"another opened, No",
       [](UnsavedProgram& fixture) {
         fixture.fakes.messages.answers = {kNo};
         fixture.fakes.dialogs.files.clear();
         fixture.Open(u"/decks/other.tsr", 2);
       },
       false},
      {"closed, Yes, no name",
       [](UnsavedProgram& fixture) {
         fixture.fakes.dialogs.files = {u""};
         fixture.Close();
       },
       true},
      {"cleared, Yes, no name",
       [](UnsavedProgram& fixture) {
         fixture.fakes.dialogs.files = {u""};
         fixture.Run([&] { fixture.deck->ClearDeck(); });
       },
       true},
      {"a first card without a text, cleared",
       [](UnsavedProgram& fixture) {
         fixture.Run([&] { fixture.state.deck.cardGrid.Set(1, kCardText, u""); });
         fixture.Run([&] { fixture.deck->ClearDeck(); });
       },
       true},
      {"a first card without a text, refused by the save",
       [](UnsavedProgram& fixture) {
         fixture.Run([&] { fixture.state.deck.cardGrid.Set(1, kCardText, u""); });
         fixture.Run([&] { fixture.deck->SaveDeck(); });
       },
       true},
  };
  for (const Case& c : cases) {
    CAPTURE(c.name);
    UnsavedProgram fixture;
    fixture.Build(u"to be");
    fixture.Build(u"to have");
    fixture.fakes.messages.answers = {kYes, kYes};
    fixture.Choose(kPath);
    c.steps(fixture);
    CHECK_FALSE(fixture.copies.unsaved.has_value());
    CHECK(fixture.copies.leftUnsaved.size() == (c.stays ? 1 : 0));
    CHECK(fixture.copies.notSaved.empty());
    CHECK(fixture.fakes.desktop.notices.empty());
  }
}

TEST_CASE("a save whose dialog was cancelled leaves the deck kept") {
  UnsavedProgram fixture;
  fixture.Build(u"to be");
  fixture.Choose(u"");
  fixture.Run([&] { fixture.deck->SaveDeck(); });
  CHECK(fixture.Kept() == FrontsOf({u"to be"}));
}

TEST_CASE("a deck that was given up is kept again where its window stays") {
  struct Way {
    const char* name;
    Steps close;
  };
  const Way ways[] = {{"window", [](UnsavedProgram& fixture) { fixture.Close(); }},
                      {"command", [](UnsavedProgram& fixture) {
                         fixture.Run([&] { fixture.deck->CloseTessara(); });
                       }}};
  for (const Way& way : ways) {
    CAPTURE(way.name);
    UnsavedProgram fixture;
    fixture.Build(u"to be");
    fixture.fakes.messages.answers = {kNo, kNo};
    fixture.fakes.messages.whileShown = [&](const FakeMessages::Shown& box) {
      const bool answered = box.title == u"Close Tessara";
      CHECK(fixture.copies.unsaved.has_value() == !answered);
    };
    way.close(fixture);
    CHECK(fixture.Kept() == FrontsOf({u"to be"}));
  }
}

TEST_CASE("a deck whose last card has been deleted is not kept") {
  UnsavedProgram fixture;
  fixture.Build(u"to be");
  fixture.Answer(kYes);
  fixture.Run([&] { fixture.deck->DeleteCard(); });
  CHECK_FALSE(fixture.copies.unsaved.has_value());
}

TEST_CASE("changes behind a save are kept anew, and so is the next deck") {
  UnsavedProgram fixture;
  fixture.Build(u"to be");
  fixture.Choose(kPath);
  fixture.Run([&] { fixture.deck->SaveDeckAs(); });
  fixture.Build(u"to have");
  CHECK(fixture.copies.unsaved->first == u"verbs.tsr");
  fixture.fakes.messages.answers = {kNo};
  fixture.Run([&] { fixture.deck->ClearDeck(); });
  fixture.Build(u"to do");
  CHECK(fixture.copies.unsaved == FakeCopies::Deck{u"New Deck", FrontsOf({u"to do"})});
}

TEST_CASE("a deck that can't be read to its end is nobody's work") {
  UnsavedProgram fixture;
  fixture.Build(u"to be");
  fixture.fakes.files.Put(kPath, CardBytes(1, u"front", u"") + CardBytes(300, u"far", u""));
  fixture.Choose(kPath);
  fixture.Answer(kNo);
  fixture.Run([&] { fixture.deck->OpenDeck(); });
  CHECK(fixture.program.Windows().ExitStatus() == 1);
  CHECK_FALSE(fixture.copies.unsaved.has_value());
}

TEST_CASE("an imported deck is kept") {
  UnsavedProgram fixture;
  fixture.Close();
  fixture.fakes.files.Put(u"/decks/text.txt",
                          "STD\r\n1.\r\n*>F\r\nto be\r\n*>B\r\nsein\r\n*END*\r\n");
  fixture.Choose(u"/decks/text.txt");
  fixture.Run([&] { fixture.Frame().ImportDeck(); });
  CHECK(fixture.copies.unsaved->first == u"New Deck");
  CHECK(fixture.Kept().substr(kRecordSize) == CardBytes(1, u"to be", u"sein") + EndBytes());
}

TEST_CASE("an import that failed is not kept, whatever happened to the deck before") {
  UnsavedProgram fixture;
  fixture.Build(u"to be");
  fixture.fakes.messages.answers = {kNo, kYes};
  fixture.Close();
  fixture.fakes.files.Put(u"/decks/text.txt",
                          "EXT\r\n1.Question\r\n=T\r\n\r\n7.Question\r\n=T\r\n");
  fixture.Choose(u"/decks/text.txt");
  const int writes = fixture.copies.unsavedWrites;
  fixture.Run([&] { fixture.Frame().ImportDeck(); });
  CHECK(fixture.copies.unsavedWrites == writes);
}

TEST_CASE("a save of which any step failed keeps the new deck, and tells the user once") {
  struct Case {
    const char* name;
    MemoryFiles::Operation operation;
  };
  const Case cases[] = {
      {"deletion", MemoryFiles::Operation::kDelete},
      {"opening", MemoryFiles::Operation::kOpen},
      {"writing", MemoryFiles::Operation::kWrite},
  };
  for (const Case& c : cases) {
    CAPTURE(c.name);
    UnsavedProgram fixture;
    fixture.Open(kPath, 2);
    fixture.Build(u"front 3");
    fixture.TakeBoxes();
    fixture.fakes.files.fault = [&](MemoryFiles::Operation operation, const Text&) {
      return operation == c.operation ? std::optional(ErrorNumber::kDiskFull) : std::nullopt;
    };
    fixture.Run([&] { fixture.deck->SaveDeck(); });
    CHECK(fixture.TakeBoxes() == Boxes{SavedBox(kPath)});
    REQUIRE(fixture.copies.notSaved.size() == 1);
    CHECK(fixture.copies.notSaved[0].first == u"verbs.tsr");
    CHECK(fixture.copies.notSaved[0].second.size() == kRecordSize * 5);
    CHECK(fixture.copies.notSaved[0].second.find("front 3") != std::string::npos);
    CHECK_FALSE(fixture.copies.unsaved.has_value());
    REQUIRE(fixture.fakes.desktop.notices.size() == 1);
    CHECK(fixture.fakes.desktop.notices[0].second ==
          u"Not all of the deck verbs may be in its file. It is kept as /copies/verbs.tsr and can "
          u"be opened there.");
  }
}

TEST_CASE("a save that ends at a gap before other cards keeps the whole deck") {
  UnsavedProgram fixture;
  fixture.Open(kPath, 3);
  fixture.Run([&] {
    PutCard(fixture.state, 5, {.text = u"behind"});
    fixture.state.deck.changed = true;
  });
  fixture.TakeBoxes();
  fixture.Run([&] { fixture.deck->SaveDeck(); });
  CHECK(fixture.TakeBoxes() == Boxes{SavedBox(kPath)});
  CHECK(fixture.File(kPath).size() == kRecordSize * 5);
  CHECK(fixture.File(kPath).find("behind") == std::string::npos);
  REQUIRE(fixture.copies.notSaved.size() == 1);
  CHECK(fixture.copies.notSaved[0].second.find("behind") != std::string::npos);
  CHECK(fixture.fakes.desktop.notices.size() == 1);
}

TEST_CASE("a text that a save leaves out, for nothing has made its row present, is kept") {
  UnsavedProgram fixture;
  fixture.OpenWithTextInRowWithoutCard();
  CHECK(fixture.Kept().find("without a card") != std::string::npos);
  fixture.Run([&] { fixture.deck->SaveDeck(); });
  CHECK(fixture.File(kPath).size() == kRecordSize * 5);
  REQUIRE(fixture.copies.notSaved.size() == 1);
  CHECK(fixture.copies.notSaved[0].second.find("without a card") != std::string::npos);
  CHECK(fixture.fakes.desktop.notices.size() == 1);
}

TEST_CASE(
    "a text in a row without a card is left to the next start when a new card takes the row") {
  UnsavedProgram fixture;
  fixture.OpenWithTextInRowWithoutCard();
  fixture.Run([&] { fixture.state.deck.cardGrid.Set(4, kBackText, u"and changed again"); });
  CHECK(fixture.copies.leftUnsaved.empty());
  fixture.Build(u"new");
  REQUIRE(fixture.copies.leftUnsaved.size() == 1);
  CHECK(fixture.copies.leftUnsaved[0].second.find("and changed again") != std::string::npos);
  CHECK(fixture.Kept().find("new") != std::string::npos);
}

TEST_CASE("a text in a row without a card is left to the next start when a deletion is refused") {
  UnsavedProgram fixture;
  fixture.OpenWithTextInRowWithoutCard();
  fixture.Answer(kNo);
  fixture.Run([&] { fixture.deck->DeleteCard(); });
  REQUIRE(fixture.state.deck.Cell(4, kCardText).empty());
  REQUIRE(fixture.copies.leftUnsaved.size() == 1);
  CHECK(fixture.copies.leftUnsaved[0].second.find("without a card") != std::string::npos);
}

TEST_CASE("a card behind the count is left to the next start when a new card takes its row") {
  UnsavedProgram fixture;
  fixture.Open(kPath, 3);
  fixture.Run([&] {
    fixture.state.deck.cardCount = 2;
    fixture.state.deck.changed = true;
    fixture.state.deck.cardGrid.Set(2, kBackText, u"saved as an older one");
  });
  CHECK(fixture.copies.leftUnsaved.empty());
  fixture.Build(u"new");
  REQUIRE(fixture.copies.leftUnsaved.size() == 1);
  CHECK(fixture.copies.leftUnsaved[0].second.find("front 3") != std::string::npos);
}

TEST_CASE("in a kept deck, opened, each card is reached, also those that a save left out") {
  UnsavedProgram fixture;
  fixture.Open(kPath, 3);
  fixture.Run([&] {
    PutCard(fixture.state, 5, {.text = u"behind"});
    fixture.state.deck.changed = true;
  });
  UnsavedProgram next;
  next.fakes.files.Put(u"/copies/verbs.tsr", fixture.Kept());
  next.Choose(u"/copies/verbs.tsr");
  next.Run([&] { next.deck->OpenDeck(); });
  CHECK(next.state.deck.cardCount == 4);
  CHECK(next.state.deck.Cell(4, kCardText) == u"behind");
}

TEST_CASE("what an import has left behind row 200 is no loss of the decks that follow") {
  UnsavedProgram fixture;
  fixture.Run([&] { PutCard(fixture.state, kMostCards + 1, {.text = u"left"}); });
  fixture.Open(kPath, 3);
  fixture.Build(u"front 4");
  CHECK(fixture.Kept().find("left") == std::string::npos);
  fixture.Run([&] { fixture.deck->SaveDeck(); });
  CHECK(fixture.copies.notSaved.empty());
  CHECK(fixture.fakes.desktop.notices.empty());
}

TEST_CASE("a failed close of the file is a failed step of the save") {
  FakeMachine fakes;
  FaultyFiles faulty(fakes.files);
  fakes.fileSystem = &faulty;
  fakes.files.Put(kPath, DeckBytes(2));
  fakes.settings.values = {{u"ShowSplash", u"0"}, {u"FirstLoad", u"False"}};
  Machine machine = fakes.Get();
  HeadlessRenderer renderer;
  Program program(machine);
  program.Windows().SetRenderer(renderer);
  program.Main(kPath);
  constexpr int kOpenAndRecords = 1 + 4;
  faulty.operations = 0;
  faulty.fault = [](int operation) {
    return operation == kOpenAndRecords + 1 ? std::optional(ErrorNumber::kDiskFull) : std::nullopt;
  };
  program.Windows().Run([&] { program.DeckWindowOf()->SaveDeck(); });
  CHECK(faulty.operations == kOpenAndRecords + 1);
  CHECK(fakes.copies.notSaved.size() == 1);
}

TEST_CASE("where a deck can't be deleted, the old one is kept for being written over") {
  UnsavedProgram fixture;
  fixture.Open(kPath, 2);
  fixture.fakes.files.fault = [&](MemoryFiles::Operation operation, const Text&) {
    const bool deletes = operation == MemoryFiles::Operation::kDelete;
    return deletes ? std::optional(ErrorNumber::kPermissionDenied) : std::nullopt;
  };
  fixture.Run([&] { fixture.deck->SaveDeck(); });
  CHECK(fixture.copies.losses == std::vector{Loss::kDeleted, Loss::kWrittenOver});
}

TEST_CASE("a deck that is missing when it is to be deleted is no failure") {
  UnsavedProgram fixture;
  fixture.Open(kPath, 2);
  fixture.fakes.files.files.erase(kPath);
  fixture.Run([&] { fixture.deck->SaveDeck(); });
  CHECK(fixture.copies.notSaved.empty());
  CHECK(fixture.copies.losses == std::vector{Loss::kDeleted});
}

TEST_CASE("a deck that a failed save could not keep either stays as it was kept") {
  UnsavedProgram fixture;
  fixture.Open(kPath, 2);
  fixture.Build(u"front 3");
  fixture.fakes.files.fault = [](MemoryFiles::Operation, const Text&) {
    return std::optional(ErrorNumber::kDiskFull);
  };
  fixture.copies.full = true;
  fixture.Run([&] { fixture.deck->SaveDeck(); });
  CHECK(fixture.copies.unsaved.has_value());
  CHECK(fixture.fakes.desktop.notices.empty());
}

TEST_CASE("a start tells of each deck that an earlier program left") {
  ProgramFixture fixture;
  fixture.fakes.copies.leftBefore = {
      {u"verbs", u"/copies/verbs (unsaved 1-1).tsr", u"/copies/a.tsr"},
      {u"nouns", u"/copies/nouns (unsaved 1-2).tsr", u"/copies/b.tsr"}};
  fixture.Start();
  const auto& notices = fixture.fakes.desktop.notices;
  REQUIRE(notices.size() == 2);
  CHECK(notices[0].second ==
        u"The deck verbs had changes that were not saved. It is kept as /copies/a.tsr and can be "
        u"opened there.");
  CHECK(notices[1].second.starts_with(u"The deck nouns"));
  CHECK(fixture.fakes.messages.shown.empty());
}

TEST_CASE("a start with a deck that was left opens it by its new name") {
  ProgramFixture fixture;
  fixture.fakes.files.Put(u"/copies/a.tsr", DeckBytes(2));
  fixture.fakes.copies.leftBefore = {
      {u"verbs", u"/copies/verbs (unsaved 1-1).tsr", u"/copies/a.tsr"}};
  fixture.Start(u"/copies/verbs (unsaved 1-1).tsr");
  CHECK(fixture.state.deck.cardCount == 2);
  CHECK(fixture.state.deck.filePath == u"/copies/a.tsr");
}

TEST_CASE("a second program of the session leaves the kept decks alone") {
  ProgramFixture fixture;
  fixture.fakes.desktop.previousInstance = true;
  fixture.fakes.copies.leftBefore = {{u"verbs", u"old", u"new"}};
  fixture.Start();
  CHECK(fixture.fakes.copies.leftBefore.size() == 1);
  CHECK(fixture.fakes.desktop.notices.empty());
}

}  // namespace tessara::test
