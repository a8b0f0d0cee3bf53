// The real disk, where the system refuses one call on a file: each call of a save, a load, an
// import and an association in turn, with each error.

#include <algorithm>
#include <array>
#include <doctest/doctest.h>
#include <map>
#include <set>

#include "adapters/freedesktop/user_document_types.h"
#include "tests/support/disk_fixture.h"
#include "tests/support/packaged_type.h"
#include "tests/support/program_fixture.h"
#include "tests/support/refused_call.h"
#include "tests/unit/import/text_file.h"

namespace tessara::test {

namespace {

constexpr int kCards = 3;

const std::string& OldDeck() {
  static const std::string bytes = ProgramFixture::DeckBytes(kCards);
  return bytes;
}

void PutOldDeck(const ScratchFolder& folder) {
  std::filesystem::remove_all(folder / "copies");
  folder.Write(DiskFixture::kDeckName, OldDeck());
}

/// A program with the old deck changed. The deck was opened from the menu, where a save deletes its
/// file first, or came with the start.
struct ChangedFixture {
  ScratchFolder folder{kInMemory};
  DiskFixture fixture;

  explicit ChangedFixture(bool fromMenu) : fixture(OldDeckIn(folder)) {
    if (fromMenu) {
      fixture.StartAndOpenDeck();
    } else {
      fixture.StartWithDeck();
    }
    fixture.ChangeCards();
  }

 private:
  static const ScratchFolder& OldDeckIn(const ScratchFolder& folder) {
    PutOldDeck(folder);
    return folder;
  }
};

/// How a command has ended, as a number that a process can return.
enum Outcome { kWhole = 0, kReported = 1, kWrong = 2 };

bool HasReported(const DiskFixture& fixture) {
  return fixture.renderer.exitStatus == 1 && fixture.fakes.messages.shown.size() == 1 &&
         fixture.fakes.messages.shown[0].text.starts_with(u"Run-time error '");
}

/// All cards are there and nothing has been told, or the program has ended with its report.
Outcome OutcomeOfLoad(const DiskFixture& fixture) {
  if (HasReported(fixture)) return kReported;
  bool whole = fixture.fakes.messages.shown.empty() && fixture.renderer.exitStatus == -1 &&
               fixture.state.deck.cardCount == kCards;
  for (int row = 1; row <= kCards; ++row) {
    whole = whole && fixture.state.deck.Cell(row, kCardText) == u"front " + DecimalText(row);
  }
  return whole ? kWhole : kWrong;
}

/// Like a load; or the import has told that it failed, and left no card.
Outcome OutcomeOfImport(const DiskFixture& fixture) {
  const auto& shown = fixture.fakes.messages.shown;
  const bool failed = !shown.empty() && shown[0].title == u"Import Error";
  if (!failed) return OutcomeOfLoad(fixture);
  return fixture.renderer.exitStatus == -1 && fixture.state.deck.cardPresent.At(1) == 0 ? kReported
                                                                                        : kWrong;
}

}  // namespace

TEST_CASE("whichever call of a save is refused, success is told, and neither deck is lost") {
  for (const bool fromMenu : {true, false}) {
    ChangedFixture changed(fromMenu);
    changed.fixture.Save();
    const std::string newDeck = changed.folder.Read(DiskFixture::kDeckName);
    ChangedFixture again(fromMenu);
    const ScratchFolder& folder = again.folder;
    const int calls = RefuseEachInTurn(
        [&] { PutOldDeck(folder); },
        [&] {
          again.fixture.Save();
          const auto& shown = again.fixture.fakes.messages.shown;
          const bool told = shown.size() == 1 && shown[0].title == u"Save";
          return told && again.fixture.renderer.exitStatus == -1 ? kReported : kWrong;
        },
        [&](int result) {
          CHECK(result == kReported);
          const std::vector<std::string> kept = KeptIn(folder);
          const std::string deck = folder.Read(DiskFixture::kDeckName);
          const auto isKept = [&](const std::string& bytes) {
            return std::count(kept.begin(), kept.end(), bytes) > 0;
          };
          CHECK((deck == newDeck || deck == OldDeck() || isKept(OldDeck())));
          CHECK((deck == newDeck || isKept(newDeck)));
          // A copy is whole or not there.
          CHECK(std::all_of(kept.begin(), kept.end(), [&](const std::string& bytes) {
            return bytes == OldDeck() || bytes == newDeck;
          }));
        });
    CHECK(calls > 2 * (kCards + 2));
  }
}

TEST_CASE("a call of a save that a signal cuts short is made again") {
  ChangedFixture changed(false);
  const auto save = [&] {
    changed.fixture.Save();
    return 0;
  };
  constexpr std::array kCutShort = {SYS_pread64, SYS_write, SYS_pwrite64, SYS_fsync};
  std::set<long> met;
  const std::vector<long> calls = FileCallsOf(save);
  const std::string newDeck = changed.folder.Read(DiskFixture::kDeckName);
  for (std::size_t at = 0; at < calls.size(); ++at) {
    if (std::count(kCutShort.begin(), kCutShort.end(), calls[at]) == 0) continue;
    CAPTURE(at);
    met.insert(calls[at]);
    PutOldDeck(changed.folder);
    CHECK(ResultWithRefusal(static_cast<int>(at) + 1, EINTR, save) == 0);
    CHECK(changed.folder.Read(DiskFixture::kDeckName) == newDeck);
    CHECK(KeptIn(changed.folder) == std::vector<std::string>{OldDeck()});
  }
  CHECK(met.size() == kCutShort.size());
}

TEST_CASE("whichever call of a load is refused, the deck is there whole or its end is reported") {
  const ScratchFolder folder(kInMemory);
  PutOldDeck(folder);
  for (const bool fromMenu : {true, false}) {
    DiskFixture fixture(folder);
    const int calls =
        RefuseEachInTurn([] {},
                         [&] {
                           if (fromMenu) {
                             fixture.StartAndOpenDeck();
                           } else {
                             fixture.StartWithDeck();
                           }
                           return OutcomeOfLoad(fixture);
                         },
                         [&](int result) { CHECK((result == kWhole || result == kReported)); });
    CHECK(calls >= 3);
    CHECK(folder.Read(DiskFixture::kDeckName) == OldDeck());
  }
}

TEST_CASE("whichever call of an import is refused, all cards are there or none, as it is told") {
  const std::string texts[] = {
      Lines({"STD", "1.", "*>F", "front 1", "*>B", "b", "", "2.", "*>F", "front 2", "*>B", "b", "",
             "3.", "*>F", "front 3", "*>B", "b", "*END*"}),
      Lines({"EXT", "1.front 1", "=T", "", "2.front 2", "=T", "", "3.front 3", "=T", ""}),
  };
  for (const std::string& text : texts) {
    const ScratchFolder folder(kInMemory);
    folder.Write("text.txt", text);
    DiskFixture fixture(folder);
    fixture.program.Main(u"");
    fixture.fakes.messages.answers = {MessageAnswer::kYes};
    fixture.Run([&] { fixture.Deck().Unload(); });
    fixture.fakes.messages.shown.clear();
    fixture.fakes.dialogs.files.push_back(folder.TextPath(u"text.txt"));
    const auto import = [&] {
      fixture.Run([&] { fixture.program.FrameWindow()->ImportDeck(); });
      return OutcomeOfImport(fixture);
    };
    // Each run leaves the copy of its unsaved deck, and looks through those that are there.
    const auto prepare = [&] { std::filesystem::remove_all(folder / "copies"); };
    const int calls = RefuseEachInTurn(
        prepare, import, [&](int result) { CHECK((result == kWhole || result == kReported)); });
    CHECK(calls >= 4);
    CHECK(import() == kWhole);
  }
}

TEST_CASE("whichever call of an association is refused, what is declared is whole") {
  const std::vector<std::string> kFiles = {
      "mime/packages/tessara.xml", "applications/tessara.desktop",
      "icons/hicolor/16x16/apps/tessara.png", "icons/hicolor/32x32/apps/tessara.png"};
  const ScratchFolder folder(kInMemory);
  for (const char* const size : {"16x16", "32x32"}) {
    const std::string icons = std::string("program/icons/hicolor/") + size + "/apps";
    std::filesystem::create_directories(folder / icons);
    folder.Write(icons + "/tessara.png", std::string("icon of ") + size);
  }
  const auto declare = [&] {
    bool told = false;
    UserDocumentTypes(folder / "data", [&](const auto&) {
      told = true;
    }).Declare(PackagedType(folder / "program"));
    return told ? kWhole : kWrong;
  };
  declare();
  std::map<std::string, std::string> whole;
  for (const std::string& file : kFiles) whole[file] = folder.Read("data/" + file);
  CHECK(whole[kFiles.back()] == "icon of 32x32");

  const auto prepare = [&] { std::filesystem::remove_all(folder / "data"); };
  const int calls = RefuseEachInTurn(prepare, declare, [&](int result) {
    CHECK(result == kWhole);
    for (const auto& [file, bytes] : whole) {
      const bool there = std::filesystem::exists(folder / ("data/" + file));
      CHECK((!there || folder.Read("data/" + file) == bytes));
    }
  });
  CHECK(calls > 20);
}

}  // namespace tessara::test
