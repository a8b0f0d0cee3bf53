#include <doctest/doctest.h>

#include "tests/support/life_fixture.h"
#include "tests/support/sample_deck.h"

namespace tessara::test {

namespace {

const Text kPath = u"/decks/a.tsr";

using Kept = std::vector<std::pair<Text, std::string>>;

void SaveTo(LifeFixture& fixture, const Text& path) {
  fixture.state.deck.filePath = path;
  fixture.Run([&] { fixture.deck->SaveTessaraToFile(path); });
}

}  // namespace

TEST_CASE("a save writes the deck with the default information and says so") {
  for (const int cards : {1, 10, 200}) {
    LifeFixture fixture;
    fixture.BuildDeck(cards);
    SaveTo(fixture, kPath);
    CHECK(fixture.File(kPath) == DeckBytes(cards));
    CHECK(fixture.File(kPath).size() == static_cast<std::size_t>(cards + 2) * 1192);
    CHECK(fixture.TakeBoxes() == Boxes{SavedBox(kPath)});
    CHECK(fixture.deck->Caption() == u"a  [STUDY]");
    CHECK_FALSE(fixture.fileNumber.IsOpen());
  }
}

TEST_CASE("a save leaves the flags to its callers") {
  for (const bool flag : {false, true}) {
    LifeFixture fixture;
    fixture.BuildDeck(1);
    fixture.state.deck.changed = fixture.state.deck.onFile = fixture.state.deck.saveOffered = flag;
    SaveTo(fixture, kPath);
    CHECK(fixture.state.deck.changed == flag);
    CHECK(fixture.state.deck.onFile == flag);
    CHECK(fixture.state.deck.saveOffered == flag);
  }
}

TEST_CASE("the box and the caption name the deck's path, not the one that was written") {
  LifeFixture fixture;
  fixture.BuildDeck(1);
  fixture.state.deck.filePath = u"/decks/named.tsr";
  fixture.Run([&] { fixture.deck->SaveTessaraToFile(kPath); });
  CHECK(fixture.File(kPath) == DeckBytes(1));
  CHECK(fixture.TakeBoxes() == Boxes{SavedBox(u"/decks/named.tsr")});
  CHECK(fixture.deck->Caption() == u"named  [STUDY]");
}

TEST_CASE(
    "an empty deck is refused: the table and its information are emptied, no file is touched") {
  LifeFixture fixture;
  fixture.NewDeck();
  fixture.fakes.files.Put(kPath, "old");
  fixture.state.deck.onFile = true;
  fixture.state.deck.title = u"title";
  fixture.AddTextCard(u"", u"back");
  SaveTo(fixture, kPath);
  CHECK(fixture.TakeBoxes() == Boxes{kEmptyDeckBox});
  CHECK(fixture.File(kPath) == "old");
  CHECK(fixture.state.deck.title.empty());
  CHECK(fixture.state.deck.Cell(1, kBackText).empty());
  CHECK(fixture.state.deck.cardPresent.At(1) == 0);
  CHECK(fixture.state.deck.cardCount == 1);
  CHECK(fixture.deck->Caption() == u"New Deck");
  CHECK_FALSE(fixture.info.IsLoaded());
}

TEST_CASE("a save without a path asks for one, does not use it, and reports no name") {
  for (const TextView chosen : {u"/decks/chosen.tsr", u""}) {
    LifeFixture fixture;
    fixture.BuildDeck(1);
    fixture.Choose(Text(chosen));
    SaveTo(fixture, u"");
    REQUIRE(fixture.fakes.dialogs.fileRequests.size() == 1);
    CHECK(fixture.fakes.dialogs.fileRequests[0].mode == FileDialogMode::kSave);
    CHECK(fixture.fakes.dialogs.fileRequests[0].filter == u"Study Cards|*.tsr");
    CHECK(fixture.fakes.files.files.empty());
    CHECK(fixture.TakeBoxes() == Boxes{SavedBox(u"")});
    CHECK(fixture.deck->Caption() == u"  [STUDY]");
    CHECK(fixture.info.IsLoaded());
  }
}

TEST_CASE("a deck that is on file is deleted before it is written") {
  LifeFixture fixture;
  fixture.BuildDeck(3);
  fixture.state.deck.onFile = true;
  fixture.fakes.files.Put(kPath, DeckBytes(10));
  SaveTo(fixture, kPath);
  CHECK(fixture.File(kPath) == DeckBytes(3));
}

TEST_CASE("a deck that is not on file is written over the old one, whose end stays") {
  LifeFixture fixture;
  fixture.BuildDeck(3);
  fixture.fakes.files.Put(kPath, DeckBytes(10));
  SaveTo(fixture, kPath);
  const std::string expected = DeckBytes(3);
  CHECK(fixture.File(kPath) == expected + DeckBytes(10).substr(expected.size()));
}

TEST_CASE("a missing file does not stop a save that deletes it first") {
  LifeFixture fixture;
  fixture.BuildDeck(1);
  fixture.state.deck.onFile = true;
  SaveTo(fixture, kPath);
  CHECK(fixture.File(kPath) == DeckBytes(1));
}

TEST_CASE("the information on screen goes into the file, whatever deck it was loaded for") {
  LifeFixture fixture;
  fixture.PutDeck(u"/decks/first.tsr", 1, {.title = u"first title"});
  fixture.PutDeck(u"/decks/second.tsr", 2, {.title = u"second title"});
  fixture.NewDeck();
  fixture.OpenFile(u"/decks/first.tsr");
  fixture.info.Loaded();
  fixture.OpenFile(u"/decks/second.tsr");
  CHECK(fixture.state.deck.title == u"second title");
  fixture.Save();
  const InfoTexts blankBefore = {u" 1/5/2026", u" Standard", u" first title", u" Your Name Here",
                                 u" Deck Description Here"};
  CHECK(fixture.File(u"/decks/second.tsr") == DeckBytes(2, blankBefore));
}

TEST_CASE("a save keeps the date that the file had") {
  LifeFixture fixture;
  fixture.PutDeck(kPath, 1, {.date = u"7/8/1999"});
  fixture.NewDeck();
  fixture.OpenFile(kPath);
  fixture.Save();
  CHECK(fixture.File(kPath).substr(447, 10) == " 7/8/1999 ");
}

// What a save is about to lose is kept.

TEST_CASE("a file is kept as it was before a save deletes it or writes over it") {
  for (const bool onFile : {false, true}) {
    LifeFixture fixture;
    fixture.BuildDeck(3);
    fixture.state.deck.onFile = onFile;
    fixture.fakes.files.Put(kPath, DeckBytes(10));
    SaveTo(fixture, kPath);
    CHECK(fixture.fakes.copies.kept == Kept{{kPath, DeckBytes(10)}});
  }
}

TEST_CASE("a save that writes no file keeps none") {
  LifeFixture fixture;
  fixture.NewDeck();
  fixture.fakes.files.Put(kPath, DeckBytes(10));
  fixture.state.deck.onFile = true;
  SaveTo(fixture, kPath);
  CHECK(fixture.fakes.copies.kept.empty());
}

TEST_CASE("a save to a new file keeps none") {
  LifeFixture fixture;
  fixture.BuildDeck(3);
  SaveTo(fixture, kPath);
  CHECK(fixture.fakes.copies.kept.empty());
}

TEST_CASE("the deck that a Yes to the save question writes over is kept") {
  LifeFixture fixture;
  fixture.PutDeck(kPath, 9);
  fixture.BuildDeck(2);
  fixture.Answer(MessageAnswer::kYes);
  fixture.OpenFile(kPath);
  CHECK(fixture.File(kPath).starts_with(DeckBytes(2)));
  CHECK(fixture.fakes.copies.kept == Kept{{kPath, DeckBytes(9)}});
}

TEST_CASE("the file that a save under another name deletes is kept") {
  LifeFixture fixture;
  fixture.PutDeck(u"/decks/mine.tsr", 2);
  fixture.fakes.files.Put(u"/decks/letter.txt", "a letter");
  fixture.NewDeck();
  fixture.OpenFile(u"/decks/mine.tsr");
  fixture.SaveAs(u"/decks/letter.txt");
  CHECK(fixture.fakes.copies.kept == Kept{{u"/decks/letter.txt", "a letter"}});
}

// Errors on the way skip the statement that failed, and nobody is told.

namespace {

/// Fails one operation on a file, counted from 1 from now on.
struct OneFault {
  int operation = 0;
  int count = 0;

  OneFault(LifeFixture& fixture, int failing) : operation(failing) {
    fixture.fakes.files.fault = [this](MemoryFiles::Operation, const Text&) {
      return ++count == operation ? std::optional(ErrorNumber::kDeviceIo) : std::nullopt;
    };
  }
};

/// What the file holds after a save over DeckBytes(9) of a deck of 2 cards that is on file, whose
/// operations are: delete, open, four records.
std::string ExpectedAfterFault(int operation) {
  constexpr int kDelete = 1;
  constexpr int kOpen = 2;
  std::string expected = DeckBytes(2);
  if (operation == kDelete) return expected + DeckBytes(9).substr(expected.size());
  if (operation == kOpen) return "";
  const auto record = static_cast<std::size_t>(operation - kOpen - 1);
  const bool last = record == 3;
  if (last) return expected.substr(0, record * 1192);
  return expected.replace(record * 1192, 1192, 1192, '\0');
}

}  // namespace

TEST_CASE("whichever operation of a save fails, the others are done and success is reported") {
  constexpr int kOperations = 6;
  for (int failing = 1; failing <= kOperations; ++failing) {
    CAPTURE(failing);
    LifeFixture fixture;
    fixture.BuildDeck(2);
    fixture.state.deck.onFile = true;
    fixture.fakes.files.Put(kPath, DeckBytes(9));
    const OneFault fault(fixture, failing);
    SaveTo(fixture, kPath);
    CHECK(fixture.TakeBoxes() == Boxes{SavedBox(kPath)});
    CHECK(fixture.deck->Caption() == u"a  [STUDY]");
    CHECK(fixture.File(kPath) == ExpectedAfterFault(failing));
    CHECK_FALSE(fixture.fileNumber.IsOpen());
  }
}

TEST_CASE("every number that an operation can fail with is skipped") {
  for (const ErrorNumber number :
       {ErrorNumber::kFileNotFound, ErrorNumber::kDeviceIo, ErrorNumber::kDiskFull,
        ErrorNumber::kTooManyFiles, ErrorNumber::kPermissionDenied, ErrorNumber::kDiskNotReady,
        ErrorNumber::kPathFileAccess, ErrorNumber::kPathNotFound}) {
    LifeFixture fixture;
    fixture.BuildDeck(2);
    fixture.state.deck.onFile = true;
    fixture.fakes.files.fault = [number](MemoryFiles::Operation, const Text&) {
      return std::optional(number);
    };
    SaveTo(fixture, kPath);
    CHECK(fixture.TakeBoxes() == Boxes{SavedBox(kPath)});
    CHECK_FALSE(fixture.fakes.files.Has(kPath));
  }
}

TEST_CASE("a save into a folder that is missing reports success all the same") {
  LifeFixture fixture;
  fixture.BuildDeck(1);
  SaveTo(fixture, u"/nowhere/a.tsr");
  CHECK(fixture.TakeBoxes() == Boxes{SavedBox(u"/nowhere/a.tsr")});
  CHECK_FALSE(fixture.fakes.files.Has(u"/nowhere/a.tsr"));
}

TEST_CASE("a save to a name that is or becomes a folder's reports success, and the next is whole") {
  for (const bool onlyAfterDelete : {false, true}) {
    CAPTURE(onlyAfterDelete);
    LifeFixture fixture;
    fixture.BuildDeck(2);
    fixture.state.deck.onFile = true;
    auto& files = fixture.fakes.files;
    if (onlyAfterDelete) {
      files.Put(kPath, DeckBytes(9));
      files.fault = [&files](MemoryFiles::Operation operation, const Text& path) {
        if (operation == MemoryFiles::Operation::kOpen) files.folders.insert(path);
        return std::optional<ErrorNumber>();
      };
    } else {
      files.folders.insert(kPath);
    }
    SaveTo(fixture, kPath);
    CHECK(fixture.TakeBoxes() == Boxes{SavedBox(kPath)});
    CHECK_FALSE(files.Has(kPath));
    CHECK(files.folders.contains(kPath));
    CHECK(fixture.state.deck.cardCount == 2);
    CHECK(fixture.state.deck.Cell(2, kBackText) == u"back 2");
    CHECK_FALSE(fixture.fileNumber.IsOpen());
    files.fault = nullptr;
    files.folders.erase(kPath);
    SaveTo(fixture, kPath);
    CHECK(fixture.File(kPath) == DeckBytes(2));
  }
}

TEST_CASE("a file that goes away while it is kept and deleted is written anew") {
  LifeFixture fixture;
  fixture.BuildDeck(2);
  fixture.state.deck.onFile = true;
  auto& files = fixture.fakes.files;
  files.Put(kPath, DeckBytes(9));
  files.fault = [&files](MemoryFiles::Operation operation, const Text& path) {
    if (operation == MemoryFiles::Operation::kDelete) files.files.erase(path);
    return std::optional<ErrorNumber>();
  };
  SaveTo(fixture, kPath);
  CHECK(fixture.TakeBoxes() == Boxes{SavedBox(kPath)});
  CHECK(fixture.File(kPath) == DeckBytes(2));
}

TEST_CASE("a file that an import left open is closed by the next save and not written to") {
  LifeFixture fixture;
  fixture.BuildDeck(1);
  fixture.fakes.files.Put(u"/decks/import.txt", "EXT");
  fixture.fileNumber.OpenInput(u"/decks/import.txt");
  SaveTo(fixture, kPath);
  CHECK(fixture.TakeBoxes() == Boxes{SavedBox(kPath)});
  CHECK(fixture.File(kPath) == DeckBytes(1));
  CHECK(fixture.File(u"/decks/import.txt") == "EXT");
  CHECK_FALSE(fixture.fileNumber.IsOpen());
}

}  // namespace tessara::test
