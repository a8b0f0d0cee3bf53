// Every file operation of a command fails once in turn, with every error that it can have: the
// program says what it must, and goes on where it must.

#include <doctest/doctest.h>

#include "tests/support/fakes/faulty_files.h"
#include "tests/support/limited_process.h"
#include "tests/support/program_desk.h"
#include "tests/unit/import/text_file.h"

namespace tessara::test {

namespace {

constexpr int kCards = 3;
const Text kDeck = u"/decks/birds.tsr";

constexpr ErrorNumber kErrors[] = {
    ErrorNumber::kFileNotFound,     ErrorNumber::kDeviceIo,     ErrorNumber::kDiskFull,
    ErrorNumber::kTooManyFiles,     ErrorNumber::kDiskNotReady, ErrorNumber::kPathFileAccess,
    ErrorNumber::kPermissionDenied, ErrorNumber::kPathNotFound,
};

/// The whole program over a disk in memory that can fail.
struct FaultDesk {
  FakeMachine fakes;
  FaultyFiles faulty{fakes.files};
  Machine machine = WithFaultyFiles();
  HeadlessRenderer renderer;
  Program program{machine};
  ProgramState& state = program.State();

  FaultDesk() {
    program.Windows().SetRenderer(renderer);
    fakes.settings.values = {{u"ShowSplash", u"0"}, {u"FirstLoad", u"False"}};
    fakes.files.Put(kDeck, ProgramDesk::DeckBytes(kCards));
    fakes.files.Put(u"/decks/std.txt",
                    Lines({"STD", "1.", "*>F", "front", "*>B", "back", "*END*"}));
    fakes.files.Put(u"/decks/ext.txt", Lines({"EXT", "1.Question", "=T"}));
  }

  DeckWindow& Deck() { return program.DeckWindowOf().Loaded(); }
  void Choose(const Text& path) { fakes.dialogs.files.push_back(path); }
  void Run(const std::function<void()>& command) { program.Windows().Run(command); }
  void OpenFromMenu() {
    Choose(kDeck);
    Run([this] { Deck().OpenDeck(); });
  }
  void CloseDeckWindow() {
    fakes.messages.answers = {MessageAnswer::kYes};
    Run([this] { Deck().Unload(); });
  }

  [[nodiscard]] bool HasEnded() const { return renderer.exitStatus != -1; }
  /// Every text of the table.
  [[nodiscard]] std::vector<Text> Table() const {
    std::vector<Text> cells;
    for (int row = 0; row < kRows; ++row) {
      for (int column = 0; column < kColumns; ++column)
        cells.push_back(state.deck.Cell(row, column));
    }
    return cells;
  }

 private:
  Machine WithFaultyFiles() {
    fakes.fileSystem = &faulty;
    return fakes.Get();
  }
};

/// One failure: the operation and what it failed with.
struct Fault {
  int operation;
  ErrorNumber error;
};

using Action = std::function<void(FaultDesk&)>;

/// Runs the command on a fresh desk for each fault, until it has no operation that could fail, and
/// returns how many it has.
int FailEachInTurn(const Action& prepare, const Action& command,
                   const std::function<void(FaultDesk&, const Fault&)>& check) {
  for (int failing = 1;; ++failing) {
    for (const ErrorNumber error : kErrors) {
      FaultDesk desk;
      prepare(desk);
      desk.fakes.messages.shown.clear();
      desk.faulty.operations = desk.faulty.opens = 0;
      desk.faulty.fault = [&](int operation) {
        return operation == failing ? std::optional(error) : std::nullopt;
      };
      command(desk);
      desk.faulty.fault = nullptr;
      if (desk.faulty.operations < failing) return failing - 1;
      CAPTURE(failing);
      CAPTURE(static_cast<int>(error));
      check(desk, {failing, error});
    }
  }
}

void CheckEndedWith(const FaultDesk& desk, ErrorNumber error) {
  REQUIRE(desk.fakes.messages.shown.size() == 1);
  CHECK(desk.fakes.messages.shown[0].text.starts_with(
      u"Run-time error '" + DecimalText(static_cast<long>(error)) + u"':"));
  CHECK(desk.renderer.exitStatus == 1);
}

const Action kNothing = [](FaultDesk&) {};
const Action kPlainStart = [](FaultDesk& desk) { desk.program.Main(u""); };

}  // namespace

TEST_CASE("whatever fails in the load of the start ends the program with its report") {
  constexpr int kLookUps = 2;
  const int operations = FailEachInTurn(
      kNothing, [](FaultDesk& desk) { desk.program.Main(kDeck); },
      [](FaultDesk& desk, const Fault& fault) {
        const bool lookUp = fault.operation <= kLookUps;
        CheckEndedWith(desk, lookUp ? ErrorNumber::kPathFileAccess : fault.error);
      });
  CHECK(operations == kLookUps + 1 + kCards + 2);
}

TEST_CASE("whatever fails in a load from the menus ends the program with its report") {
  const Action opens[] = {
      [](FaultDesk& desk) { desk.OpenFromMenu(); },
      [](FaultDesk& desk) {
        desk.CloseDeckWindow();
        desk.Choose(kDeck);
        desk.Run([&desk] { desk.program.FrameWindow()->OpenExistingDeck(); });
      },
  };
  for (const Action& open : opens) {
    const int operations = FailEachInTurn(
        kPlainStart, open,
        [](FaultDesk& desk, const Fault& fault) { CheckEndedWith(desk, fault.error); });
    CHECK(operations == 1 + kCards + 2);
  }
}

TEST_CASE(
    "whatever fails in a save, success is told, the table stays, and the next save is whole") {
  const Action prepares[] = {
      [](FaultDesk& desk) { desk.program.Main(kDeck); },
      [](FaultDesk& desk) {
        kPlainStart(desk);
        desk.OpenFromMenu();
      },
  };
  for (const Action& prepare : prepares) {
    std::vector<Text> table;
    const auto save = [](FaultDesk& desk) { desk.Run([&] { desk.Deck().SaveDeck(); }); };
    FailEachInTurn(
        prepare,
        [&](FaultDesk& desk) {
          desk.state.deck.cardGrid.Set(1, kCardText, u"changed");
          desk.state.deck.cardGrid.Set(kCards, kBackText, Text(500, u'x'));
          save(desk);
          table = desk.Table();
        },
        [&](FaultDesk& desk, const Fault&) {
          CHECK_FALSE(desk.HasEnded());
          CHECK(desk.fakes.messages.shown.size() == 1);
          CHECK(desk.fakes.messages.shown[0].title == u"Save");
          CHECK(desk.state.deck.Cell(1, kCardText) == u"changed");
          CHECK(desk.state.deck.Cell(kCards, kBackText) == Text(500, u'x'));
          save(desk);
          CHECK(desk.Table() == table);
          CHECK(desk.fakes.files.Bytes(kDeck).size() == (kCards + 2) * kRecordSize);
          FaultDesk next;
          next.fakes.files.Put(kDeck, desk.fakes.files.Bytes(kDeck));
          next.program.Main(kDeck);
          CHECK(next.state.deck.cardCount == kCards);
          CHECK(next.state.deck.Cell(1, kCardText) == u"changed");
        });
  }
}

TEST_CASE(
    "whatever fails in the save of any other command, success is told and the command goes on") {
  struct Case {
    const char* name;
    Action command;
    bool keepsCards;
  };
  const Case cases[] = {
      {"Save As",
       [](FaultDesk& desk) {
         desk.Choose(u"/decks/other.tsr");
         desk.Run([&desk] { desk.Deck().SaveDeckAs(); });
       },
       true},
      {"Yes to the question of a deck without a file",
       [](FaultDesk& desk) {
         desk.state.deck.filePath.clear();
         desk.fakes.messages.answers = {MessageAnswer::kYes};
         desk.Choose(u"/decks/other.tsr");
         desk.Choose(u"/decks/other.tsr");
         desk.Run([&desk] { desk.Deck().ClearDeck(); });
       },
       false},
      {"Yes to the question of a deck with a file",
       [](FaultDesk& desk) {
         desk.fakes.messages.answers = {MessageAnswer::kYes};
         desk.Run([&desk] { desk.Deck().ClearDeck(); });
       },
       false},
  };
  const Action changedDeck = [](FaultDesk& desk) {
    kPlainStart(desk);
    desk.OpenFromMenu();
    desk.state.deck.changed = true;
    desk.state.deck.saveOffered = true;
  };
  for (const Case& c : cases) {
    CAPTURE(c.name);
    const int operations =
        FailEachInTurn(changedDeck, c.command, [&c](FaultDesk& desk, const Fault&) {
          CHECK_FALSE(desk.HasEnded());
          REQUIRE_FALSE(desk.fakes.messages.shown.empty());
          CHECK(desk.fakes.messages.shown.back().title == u"Save");
          CHECK(desk.state.deck.HasCards() == c.keepsCards);
        });
    CHECK(operations >= 1 + kCards + 2);
  }
}

TEST_CASE(
    "what fails in an import's look at the first line ends the program, what fails behind it "
    "the import") {
  for (const TextView path : {TextView(u"/decks/std.txt"), TextView(u"/decks/ext.txt")}) {
    const int operations = FailEachInTurn(
        kPlainStart,
        [path](FaultDesk& desk) {
          desk.CloseDeckWindow();
          desk.Choose(Text(path));
          desk.Run([&desk] { desk.program.FrameWindow()->ImportDeck(); });
        },
        [](FaultDesk& desk, const Fault& fault) {
          const bool firstLook = desk.faulty.opens == 1;
          if (firstLook) {
            CheckEndedWith(desk, fault.error);
            return;
          }
          CHECK_FALSE(desk.HasEnded());
          REQUIRE_FALSE(desk.fakes.messages.shown.empty());
          CHECK(desk.fakes.messages.shown[0].title == u"Import Error");
          for (int row = 0; row < kRows; ++row) CHECK(desk.state.deck.cardPresent.At(row) == 0);
          desk.program.FrameWindow()->newStandardDeck.Press();
          CHECK(desk.Deck().Visible());
        });
    CHECK(operations >= 4);
  }
}

}  // namespace tessara::test
