// Every file operation of a command fails once in turn, with every error that it can have: the
// program says what it must, and goes on where it must.

#include <doctest/doctest.h>

#include "tests/support/fakes/faulty_files.h"
#include "tests/support/limited_process.h"
#include "tests/support/program_fixture.h"
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
struct FaultFixture {
  FakeMachine fakes;
  FaultyFiles faulty{fakes.files};
  Machine machine = WithFaultyFiles();
  HeadlessRenderer renderer;
  Program program{machine};
  ProgramState& state = program.State();

  FaultFixture() {
    program.Windows().SetRenderer(renderer);
    fakes.settings.values = {{u"ShowSplash", u"0"}, {u"FirstLoad", u"False"}};
    fakes.files.Put(kDeck, ProgramFixture::DeckBytes(kCards));
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

using Action = std::function<void(FaultFixture&)>;

/// Runs the command on a fresh fixture for each fault, until it has no operation that could fail,
/// and returns how many it has.
int FailEachInTurn(const Action& prepare, const Action& command,
                   const std::function<void(FaultFixture&, const Fault&)>& check) {
  for (int failing = 1;; ++failing) {
    for (const ErrorNumber error : kErrors) {
      FaultFixture fixture;
      prepare(fixture);
      fixture.fakes.messages.shown.clear();
      fixture.faulty.operations = fixture.faulty.opens = 0;
      fixture.faulty.fault = [&](int operation) {
        return operation == failing ? std::optional(error) : std::nullopt;
      };
      command(fixture);
      fixture.faulty.fault = nullptr;
      if (fixture.faulty.operations < failing) return failing - 1;
      CAPTURE(failing);
      CAPTURE(static_cast<int>(error));
      check(fixture, {failing, error});
    }
  }
}

void CheckEndedWith(const FaultFixture& fixture, ErrorNumber error) {
  REQUIRE(fixture.fakes.messages.shown.size() == 1);
  CHECK(fixture.fakes.messages.shown[0].text.starts_with(
      u"Run-time error '" + DecimalText(static_cast<long>(error)) + u"':"));
  CHECK(fixture.renderer.exitStatus == 1);
}

const Action kNothing = [](FaultFixture&) {};
const Action kPlainStart = [](FaultFixture& fixture) { fixture.program.Main(u""); };

}  // namespace

TEST_CASE("whatever fails in the load of the start ends the program with its report") {
  constexpr int kLookUps = 2;
  const int operations = FailEachInTurn(
      kNothing, [](FaultFixture& fixture) { fixture.program.Main(kDeck); },
      [](FaultFixture& fixture, const Fault& fault) {
        const bool lookUp = fault.operation <= kLookUps;
        CheckEndedWith(fixture, lookUp ? ErrorNumber::kPathFileAccess : fault.error);
      });
  CHECK(operations == kLookUps + 1 + kCards + 2);
}

TEST_CASE("whatever fails in a load from the menus ends the program with its report") {
  const Action opens[] = {
      [](FaultFixture& fixture) { fixture.OpenFromMenu(); },
      [](FaultFixture& fixture) {
        fixture.CloseDeckWindow();
        fixture.Choose(kDeck);
        fixture.Run([&fixture] { fixture.program.FrameWindow()->OpenExistingDeck(); });
      },
  };
  for (const Action& open : opens) {
    const int operations = FailEachInTurn(
        kPlainStart, open,
        [](FaultFixture& fixture, const Fault& fault) { CheckEndedWith(fixture, fault.error); });
    CHECK(operations == 1 + kCards + 2);
  }
}

TEST_CASE(
    "whatever fails in a save, success is told, the table stays, and the next save is whole") {
  const Action prepares[] = {
      [](FaultFixture& fixture) { fixture.program.Main(kDeck); },
      [](FaultFixture& fixture) {
        kPlainStart(fixture);
        fixture.OpenFromMenu();
      },
  };
  for (const Action& prepare : prepares) {
    std::vector<Text> table;
    const auto save = [](FaultFixture& fixture) {
      fixture.Run([&] { fixture.Deck().SaveDeck(); });
    };
    FailEachInTurn(
        prepare,
        [&](FaultFixture& fixture) {
          fixture.state.deck.cardGrid.Set(1, kCardText, u"changed");
          fixture.state.deck.cardGrid.Set(kCards, kBackText, Text(500, u'x'));
          save(fixture);
          table = fixture.Table();
        },
        [&](FaultFixture& fixture, const Fault&) {
          CHECK_FALSE(fixture.HasEnded());
          CHECK(fixture.fakes.messages.shown.size() == 1);
          CHECK(fixture.fakes.messages.shown[0].title == u"Save");
          CHECK(fixture.state.deck.Cell(1, kCardText) == u"changed");
          CHECK(fixture.state.deck.Cell(kCards, kBackText) == Text(500, u'x'));
          save(fixture);
          CHECK(fixture.Table() == table);
          CHECK(fixture.fakes.files.Bytes(kDeck).size() == (kCards + 2) * kRecordSize);
          FaultFixture next;
          next.fakes.files.Put(kDeck, fixture.fakes.files.Bytes(kDeck));
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
       [](FaultFixture& fixture) {
         fixture.Choose(u"/decks/other.tsr");
         fixture.Run([&fixture] { fixture.Deck().SaveDeckAs(); });
       },
       true},
      {"Yes to the question of a deck without a file",
       [](FaultFixture& fixture) {
         fixture.state.deck.filePath.clear();
         fixture.fakes.messages.answers = {MessageAnswer::kYes};
         fixture.Choose(u"/decks/other.tsr");
         fixture.Choose(u"/decks/other.tsr");
         fixture.Run([&fixture] { fixture.Deck().ClearDeck(); });
       },
       false},
      {"Yes to the question of a deck with a file",
       [](FaultFixture& fixture) {
         fixture.fakes.messages.answers = {MessageAnswer::kYes};
         fixture.Run([&fixture] { fixture.Deck().ClearDeck(); });
       },
       false},
  };
  const Action changedDeck = [](FaultFixture& fixture) {
    kPlainStart(fixture);
    fixture.OpenFromMenu();
    fixture.state.deck.changed = true;
    fixture.state.deck.saveOffered = true;
  };
  for (const Case& c : cases) {
    CAPTURE(c.name);
    const int operations =
        FailEachInTurn(changedDeck, c.command, [&c](FaultFixture& fixture, const Fault&) {
          CHECK_FALSE(fixture.HasEnded());
          REQUIRE_FALSE(fixture.fakes.messages.shown.empty());
          CHECK(fixture.fakes.messages.shown.back().title == u"Save");
          CHECK(fixture.state.deck.HasCards() == c.keepsCards);
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
        [path](FaultFixture& fixture) {
          fixture.CloseDeckWindow();
          fixture.Choose(Text(path));
          fixture.Run([&fixture] { fixture.program.FrameWindow()->ImportDeck(); });
        },
        [](FaultFixture& fixture, const Fault& fault) {
          const bool firstLook = fixture.faulty.opens == 1;
          if (firstLook) {
            CheckEndedWith(fixture, fault.error);
            return;
          }
          CHECK_FALSE(fixture.HasEnded());
          REQUIRE_FALSE(fixture.fakes.messages.shown.empty());
          CHECK(fixture.fakes.messages.shown[0].title == u"Import Error");
          for (int row = 0; row < kRows; ++row) CHECK(fixture.state.deck.cardPresent.At(row) == 0);
          fixture.program.FrameWindow()->newStandardDeck.Press();
          CHECK(fixture.Deck().Visible());
        });
    CHECK(operations >= 4);
  }
}

}  // namespace tessara::test
