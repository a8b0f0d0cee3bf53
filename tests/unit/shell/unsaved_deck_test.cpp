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
  UnsavedProgram desk;
  desk.Build(u"to be");
  CHECK(desk.copies.unsaved == FakeCopies::Deck{u"New Deck", FrontsOf({u"to be"})});
  desk.Build(u"to have");
  CHECK(desk.Kept() == FrontsOf({u"to be", u"to have"}));
  CHECK(desk.copies.unsavedWrites == 2);
}

TEST_CASE("a deck with a file is kept under its file's name, as a save would write it") {
  UnsavedProgram desk;
  desk.Open(kPath, 3);
  desk.Build(u"front 4");
  CHECK(desk.copies.unsaved->first == u"verbs.tsr");
  const std::string kept = desk.Kept();
  desk.Run([&] { desk.deck->SaveDeck(); });
  // But for the information, to which the save adds the blanks of its window.
  CHECK(kept.substr(kRecordSize) == desk.File(kPath).substr(kRecordSize));
}

TEST_CASE("an event is kept once, however often it has changed the table") {
  UnsavedProgram desk;
  desk.Run([&] {
    for (int card = 1; card <= 20; ++card) BuildCard(desk.state, {.text = DecimalText(card)});
  });
  CHECK(desk.copies.unsavedWrites == 1);
}

TEST_CASE("a deck without unsaved changes is not kept: loaded, moved through, looked at") {
  UnsavedProgram desk;
  desk.Open(kPath, 3);
  desk.deck->arrows[kNextCard].Press();
  desk.deck->flip.Press();
  desk.Run([&] { desk.deck->EnterQuizMode(); });
  desk.Run([&] { desk.deck->EnterStudyMode(); });
  CHECK(desk.copies.unsavedWrites == 0);
}

TEST_CASE("moving through a deck with unsaved changes writes nothing") {
  UnsavedProgram desk;
  desk.Open(kPath, 3);
  desk.Build(u"front 4");
  desk.deck->arrows[kPreviousCard].Press();
  desk.deck->arrows[kNextCard].Press();
  desk.deck->flip.Press();
  CHECK(desk.copies.unsavedWrites == 1);
}

TEST_CASE("before a box or a dialog comes up inside an event, what it has changed is kept") {
  struct Case {
    const char* name;
    Steps wait;
  };
  const Case cases[] = {
      {"message box", [](UnsavedProgram& desk) { desk.deck->DeleteCard(); }},
      {"file dialog", [](UnsavedProgram& desk) { desk.deck->SaveDeckAs(); }},
      {"input box", [](UnsavedProgram& desk) { desk.deck->AskForCard(); }},
      {"report of a run-time error",
       [](UnsavedProgram&) { throw RunTimeError(ErrorNumber::kSubscriptOutOfRange); }},
  };
  for (const Case& c : cases) {
    CAPTURE(c.name);
    UnsavedProgram desk;
    desk.Answer(kNo);
    desk.Choose(u"");
    desk.fakes.dialogs.texts.push_back(std::nullopt);
    int waited = 0;
    const auto look = [&] {
      ++waited;
      CHECK(desk.Kept() == FrontsOf({u"to be"}));
    };
    desk.fakes.messages.whileShown = [&](const FakeMessages::Shown&) { look(); };
    desk.fakes.dialogs.whileAsked = look;
    desk.Run([&] {
      BuildCard(desk.state, {.text = u"to be"});
      c.wait(desk);
    });
    CHECK(desk.Kept() == FrontsOf({u"to be"}));
    CHECK((waited > 0 || !desk.fakes.dialogs.textRequests.empty()));
  }
}

TEST_CASE("a change that counts as one only behind a box is kept when the event ends") {
  UnsavedProgram desk;
  desk.Open(kPath, 1);
  desk.fakes.dialogs.texts.push_back(std::nullopt);
  desk.Run([&] {
    desk.state.deck.cardGrid.Set(1, kCardText, u"told later");
    desk.deck->AskForCard();
    desk.state.deck.changed = true;
  });
  CHECK(desk.copies.unsavedWrites == 1);
  CHECK(desk.Kept().find("told later") != std::string::npos);
}

TEST_CASE("what is kept goes when the deck is saved or given up, and stays otherwise") {
  struct Case {
    const char* name;
    Steps steps;
    bool stays;  ///< for the next start
  };
  const Case cases[] = {
      {"Save", [](UnsavedProgram& desk) { desk.Run([&] { desk.deck->SaveDeck(); }); }, false},
      {"Save As", [](UnsavedProgram& desk) { desk.Run([&] { desk.deck->SaveDeckAs(); }); }, false},
      {"closed, Yes", [](UnsavedProgram& desk) { desk.Close(); }, false},
      {"closed, No",
       [](UnsavedProgram& desk) {
         desk.fakes.messages.answers = {kNo, kYes};
         desk.Close();
       },
       false},
      {"cleared, No",
       [](UnsavedProgram& desk) {
         desk.fakes.messages.answers = {kNo};
         desk.Run([&] { desk.deck->ClearDeck(); });
       },
       false},
      {"closed by the menu, No",
       [](UnsavedProgram& desk) {
         desk.fakes.messages.answers = {kNo, kYes};
         desk.Run([&] { desk.deck->CloseTessara(); });
       },
       false},
      {"another opened, No",
       [](UnsavedProgram& desk) {
         desk.fakes.messages.answers = {kNo};
         desk.fakes.dialogs.files.clear();
         desk.Open(u"/decks/other.tsr", 2);
       },
       false},
      {"closed, Yes, no name",
       [](UnsavedProgram& desk) {
         desk.fakes.dialogs.files = {u""};
         desk.Close();
       },
       true},
      {"cleared, Yes, no name",
       [](UnsavedProgram& desk) {
         desk.fakes.dialogs.files = {u""};
         desk.Run([&] { desk.deck->ClearDeck(); });
       },
       true},
      {"a first card without a text, cleared",
       [](UnsavedProgram& desk) {
         desk.Run([&] { desk.state.deck.cardGrid.Set(1, kCardText, u""); });
         desk.Run([&] { desk.deck->ClearDeck(); });
       },
       true},
      {"a first card without a text, refused by the save",
       [](UnsavedProgram& desk) {
         desk.Run([&] { desk.state.deck.cardGrid.Set(1, kCardText, u""); });
         desk.Run([&] { desk.deck->SaveDeck(); });
       },
       true},
  };
  for (const Case& c : cases) {
    CAPTURE(c.name);
    UnsavedProgram desk;
    desk.Build(u"to be");
    desk.Build(u"to have");
    desk.fakes.messages.answers = {kYes, kYes};
    desk.Choose(kPath);
    c.steps(desk);
    CHECK_FALSE(desk.copies.unsaved.has_value());
    CHECK(desk.copies.leftUnsaved.size() == (c.stays ? 1 : 0));
    CHECK(desk.copies.notSaved.empty());
    CHECK(desk.fakes.desktop.notices.empty());
  }
}

TEST_CASE("a save whose dialog was cancelled leaves the deck kept") {
  UnsavedProgram desk;
  desk.Build(u"to be");
  desk.Choose(u"");
  desk.Run([&] { desk.deck->SaveDeck(); });
  CHECK(desk.Kept() == FrontsOf({u"to be"}));
}

TEST_CASE("a deck that was given up is kept again where its window stays") {
  UnsavedProgram desk;
  desk.Build(u"to be");
  desk.fakes.messages.answers = {kNo, kNo};
  desk.fakes.messages.whileShown = [&](const FakeMessages::Shown& box) {
    const bool answered = box.title == u"Close Tessara";
    CHECK(desk.copies.unsaved.has_value() == !answered);
  };
  desk.Close();
  CHECK(desk.Kept() == FrontsOf({u"to be"}));
}

TEST_CASE("a deck whose last card has been deleted is not kept") {
  UnsavedProgram desk;
  desk.Build(u"to be");
  desk.Answer(kYes);
  desk.Run([&] { desk.deck->DeleteCard(); });
  CHECK_FALSE(desk.copies.unsaved.has_value());
}

TEST_CASE("changes behind a save are kept anew, and so is the next deck") {
  UnsavedProgram desk;
  desk.Build(u"to be");
  desk.Choose(kPath);
  desk.Run([&] { desk.deck->SaveDeckAs(); });
  desk.Build(u"to have");
  CHECK(desk.copies.unsaved->first == u"verbs.tsr");
  desk.fakes.messages.answers = {kNo};
  desk.Run([&] { desk.deck->ClearDeck(); });
  desk.Build(u"to do");
  CHECK(desk.copies.unsaved == FakeCopies::Deck{u"New Deck", FrontsOf({u"to do"})});
}

TEST_CASE("a deck that can't be read to its end is nobody's work") {
  UnsavedProgram desk;
  desk.Build(u"to be");
  desk.fakes.files.Put(kPath, CardBytes(1, u"front", u"") + CardBytes(300, u"far", u""));
  desk.Choose(kPath);
  desk.Answer(kNo);
  desk.Run([&] { desk.deck->OpenDeck(); });
  CHECK(desk.program.Windows().ExitStatus() == 1);
  CHECK_FALSE(desk.copies.unsaved.has_value());
}

TEST_CASE("an imported deck is kept") {
  UnsavedProgram desk;
  desk.Close();
  desk.fakes.files.Put(u"/decks/text.txt", "STD\r\n1.\r\n*>F\r\nto be\r\n*>B\r\nsein\r\n*END*\r\n");
  desk.Choose(u"/decks/text.txt");
  desk.Run([&] { desk.Frame().ImportDeck(); });
  CHECK(desk.copies.unsaved->first == u"New Deck");
  CHECK(desk.Kept().substr(kRecordSize) == CardBytes(1, u"to be", u"sein") + EndBytes());
}

TEST_CASE("an import that failed is not kept, whatever happened to the deck before") {
  UnsavedProgram desk;
  desk.Build(u"to be");
  desk.fakes.messages.answers = {kNo, kYes};
  desk.Close();
  desk.fakes.files.Put(u"/decks/text.txt", "EXT\r\n1.Question\r\n=T\r\n\r\n7.Question\r\n=T\r\n");
  desk.Choose(u"/decks/text.txt");
  const int writes = desk.copies.unsavedWrites;
  desk.Run([&] { desk.Frame().ImportDeck(); });
  CHECK(desk.copies.unsavedWrites == writes);
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
    UnsavedProgram desk;
    desk.Open(kPath, 2);
    desk.Build(u"front 3");
    desk.TakeBoxes();
    desk.fakes.files.fault = [&](MemoryFiles::Operation operation, const Text&) {
      return operation == c.operation ? std::optional(ErrorNumber::kDiskFull) : std::nullopt;
    };
    desk.Run([&] { desk.deck->SaveDeck(); });
    CHECK(desk.TakeBoxes() == Boxes{SavedBox(kPath)});
    REQUIRE(desk.copies.notSaved.size() == 1);
    CHECK(desk.copies.notSaved[0].first == u"verbs.tsr");
    CHECK(desk.copies.notSaved[0].second.size() == kRecordSize * 5);
    CHECK(desk.copies.notSaved[0].second.find("front 3") != std::string::npos);
    CHECK_FALSE(desk.copies.unsaved.has_value());
    REQUIRE(desk.fakes.desktop.notices.size() == 1);
    CHECK(desk.fakes.desktop.notices[0].second ==
          u"Saving the deck verbs met an error. The deck is kept as /copies/verbs.tsr and can be "
          u"opened there.");
  }
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
  UnsavedProgram desk;
  desk.Open(kPath, 2);
  desk.fakes.files.fault = [&](MemoryFiles::Operation operation, const Text&) {
    const bool deletes = operation == MemoryFiles::Operation::kDelete;
    return deletes ? std::optional(ErrorNumber::kPermissionDenied) : std::nullopt;
  };
  desk.Run([&] { desk.deck->SaveDeck(); });
  CHECK(desk.copies.losses == std::vector{Loss::kDeleted, Loss::kWrittenOver});
}

TEST_CASE("a deck that is missing when it is to be deleted is no failure") {
  UnsavedProgram desk;
  desk.Open(kPath, 2);
  desk.fakes.files.files.erase(kPath);
  desk.Run([&] { desk.deck->SaveDeck(); });
  CHECK(desk.copies.notSaved.empty());
  CHECK(desk.copies.losses == std::vector{Loss::kDeleted});
}

TEST_CASE("a deck that a failed save could not keep either stays as it was kept") {
  UnsavedProgram desk;
  desk.Open(kPath, 2);
  desk.Build(u"front 3");
  desk.fakes.files.fault = [](MemoryFiles::Operation, const Text&) {
    return std::optional(ErrorNumber::kDiskFull);
  };
  desk.copies.full = true;
  desk.Run([&] { desk.deck->SaveDeck(); });
  CHECK(desk.copies.unsaved.has_value());
  CHECK(desk.fakes.desktop.notices.empty());
}

TEST_CASE("a start tells of each deck that an earlier program left") {
  ProgramDesk desk;
  desk.fakes.copies.leftBefore = {{u"verbs", u"/copies/verbs (unsaved 1-1).tsr", u"/copies/a.tsr"},
                                  {u"nouns", u"/copies/nouns (unsaved 1-2).tsr", u"/copies/b.tsr"}};
  desk.Start();
  const auto& notices = desk.fakes.desktop.notices;
  REQUIRE(notices.size() == 2);
  CHECK(notices[0].second ==
        u"The deck verbs had changes that were not saved. It is kept as /copies/a.tsr and can be "
        u"opened there.");
  CHECK(notices[1].second.starts_with(u"The deck nouns"));
  CHECK(desk.fakes.messages.shown.empty());
}

TEST_CASE("a start with a deck that was left opens it by its new name") {
  ProgramDesk desk;
  desk.fakes.files.Put(u"/copies/a.tsr", DeckBytes(2));
  desk.fakes.copies.leftBefore = {{u"verbs", u"/copies/verbs (unsaved 1-1).tsr", u"/copies/a.tsr"}};
  desk.Start(u"/copies/verbs (unsaved 1-1).tsr");
  CHECK(desk.state.deck.cardCount == 2);
  CHECK(desk.state.deck.filePath == u"/copies/a.tsr");
}

TEST_CASE("a second program of the session leaves the kept decks alone") {
  ProgramDesk desk;
  desk.fakes.desktop.previousInstance = true;
  desk.fakes.copies.leftBefore = {{u"verbs", u"old", u"new"}};
  desk.Start();
  CHECK(desk.fakes.copies.leftBefore.size() == 1);
  CHECK(desk.fakes.desktop.notices.empty());
}

}  // namespace tessara::test
