#include <doctest/doctest.h>

#include "tests/support/life_desk.h"
#include "tests/support/sample_deck.h"

namespace tessara::test {

namespace {

const Text kPath = u"/decks/a.tsr";

using Kept = std::vector<std::pair<Text, std::string>>;

void SaveTo(LifeDesk& desk, const Text& path) {
  desk.state.deck.filePath = path;
  desk.Run([&] { desk.deck->SaveTessaraToFile(path); });
}

}  // namespace

TEST_CASE("a save writes the deck with the default information and says so") {
  for (const int cards : {1, 10, 200}) {
    LifeDesk desk;
    desk.BuildDeck(cards);
    SaveTo(desk, kPath);
    CHECK(desk.File(kPath) == DeckBytes(cards));
    CHECK(desk.File(kPath).size() == static_cast<std::size_t>(cards + 2) * 1192);
    CHECK(desk.TakeBoxes() == Boxes{SavedBox(kPath)});
    CHECK(desk.deck->Caption() == u"a  [STUDY]");
    CHECK_FALSE(desk.fileNumber.IsOpen());
  }
}

TEST_CASE("a save leaves the flags to its callers") {
  for (const bool flag : {false, true}) {
    LifeDesk desk;
    desk.BuildDeck(1);
    desk.state.deck.changed = desk.state.deck.onFile = desk.state.deck.saveOffered = flag;
    SaveTo(desk, kPath);
    CHECK(desk.state.deck.changed == flag);
    CHECK(desk.state.deck.onFile == flag);
    CHECK(desk.state.deck.saveOffered == flag);
  }
}

TEST_CASE("the box and the caption name the deck's path, not the one that was written") {
  LifeDesk desk;
  desk.BuildDeck(1);
  desk.state.deck.filePath = u"/decks/named.tsr";
  desk.Run([&] { desk.deck->SaveTessaraToFile(kPath); });
  CHECK(desk.File(kPath) == DeckBytes(1));
  CHECK(desk.TakeBoxes() == Boxes{SavedBox(u"/decks/named.tsr")});
  CHECK(desk.deck->Caption() == u"named  [STUDY]");
}

TEST_CASE(
    "an empty deck is refused: the table and its information are emptied, no file is touched") {
  LifeDesk desk;
  desk.NewDeck();
  desk.fakes.files.Put(kPath, "old");
  desk.state.deck.onFile = true;
  desk.state.deck.title = u"title";
  desk.AddTextCard(u"", u"back");
  SaveTo(desk, kPath);
  CHECK(desk.TakeBoxes() == Boxes{kEmptyDeckBox});
  CHECK(desk.File(kPath) == "old");
  CHECK(desk.state.deck.title.empty());
  CHECK(desk.state.deck.Cell(1, kBackText).empty());
  CHECK(desk.state.deck.cardPresent.At(1) == 0);
  CHECK(desk.state.deck.cardCount == 1);
  CHECK(desk.deck->Caption() == u"New Deck");
  CHECK_FALSE(desk.info.IsLoaded());
}

TEST_CASE("a save without a path asks for one, does not use it, and reports no name") {
  for (const TextView chosen : {u"/decks/chosen.tsr", u""}) {
    LifeDesk desk;
    desk.BuildDeck(1);
    desk.Choose(Text(chosen));
    SaveTo(desk, u"");
    REQUIRE(desk.fakes.dialogs.fileRequests.size() == 1);
    CHECK(desk.fakes.dialogs.fileRequests[0].mode == FileDialogMode::kSave);
    CHECK(desk.fakes.dialogs.fileRequests[0].filter == u"Study Cards|*.tsr");
    CHECK(desk.fakes.files.files.empty());
    CHECK(desk.TakeBoxes() == Boxes{SavedBox(u"")});
    CHECK(desk.deck->Caption() == u"  [STUDY]");
    CHECK(desk.info.IsLoaded());
  }
}

TEST_CASE("a deck that is on file is deleted before it is written") {
  LifeDesk desk;
  desk.BuildDeck(3);
  desk.state.deck.onFile = true;
  desk.fakes.files.Put(kPath, DeckBytes(10));
  SaveTo(desk, kPath);
  CHECK(desk.File(kPath) == DeckBytes(3));
}

TEST_CASE("a deck that is not on file is written over the old one, whose end stays") {
  LifeDesk desk;
  desk.BuildDeck(3);
  desk.fakes.files.Put(kPath, DeckBytes(10));
  SaveTo(desk, kPath);
  const std::string expected = DeckBytes(3);
  CHECK(desk.File(kPath) == expected + DeckBytes(10).substr(expected.size()));
}

TEST_CASE("a missing file does not stop a save that deletes it first") {
  LifeDesk desk;
  desk.BuildDeck(1);
  desk.state.deck.onFile = true;
  SaveTo(desk, kPath);
  CHECK(desk.File(kPath) == DeckBytes(1));
}

TEST_CASE("the information on screen goes into the file, whatever deck it was loaded for") {
  LifeDesk desk;
  desk.PutDeck(u"/decks/first.tsr", 1, {.title = u"first title"});
  desk.PutDeck(u"/decks/second.tsr", 2, {.title = u"second title"});
  desk.NewDeck();
  desk.OpenFile(u"/decks/first.tsr");
  desk.info.Loaded();
  desk.OpenFile(u"/decks/second.tsr");
  CHECK(desk.state.deck.title == u"second title");
  desk.Save();
  const InfoTexts blankBefore = {u" 1/5/2026", u" Standard", u" first title", u" Your Name Here",
                                 u" Deck Description Here"};
  CHECK(desk.File(u"/decks/second.tsr") == DeckBytes(2, blankBefore));
}

TEST_CASE("a save keeps the date that the file had") {
  LifeDesk desk;
  desk.PutDeck(kPath, 1, {.date = u"7/8/1999"});
  desk.NewDeck();
  desk.OpenFile(kPath);
  desk.Save();
  CHECK(desk.File(kPath).substr(447, 10) == " 7/8/1999 ");
}

// What a save is about to lose is kept.

TEST_CASE("a file is kept as it was before a save deletes it or writes over it") {
  for (const bool onFile : {false, true}) {
    LifeDesk desk;
    desk.BuildDeck(3);
    desk.state.deck.onFile = onFile;
    desk.fakes.files.Put(kPath, DeckBytes(10));
    SaveTo(desk, kPath);
    CHECK(desk.fakes.copies.kept == Kept{{kPath, DeckBytes(10)}});
  }
}

TEST_CASE("a save that writes no file keeps none") {
  LifeDesk desk;
  desk.NewDeck();
  desk.fakes.files.Put(kPath, DeckBytes(10));
  desk.state.deck.onFile = true;
  SaveTo(desk, kPath);
  CHECK(desk.fakes.copies.kept.empty());
}

TEST_CASE("a save to a new file keeps none") {
  LifeDesk desk;
  desk.BuildDeck(3);
  SaveTo(desk, kPath);
  CHECK(desk.fakes.copies.kept.empty());
}

TEST_CASE("the deck that a Yes to the save question writes over is kept") {
  LifeDesk desk;
  desk.PutDeck(kPath, 9);
  desk.BuildDeck(2);
  desk.Answer(MessageAnswer::kYes);
  desk.OpenFile(kPath);
  CHECK(desk.File(kPath).starts_with(DeckBytes(2)));
  CHECK(desk.fakes.copies.kept == Kept{{kPath, DeckBytes(9)}});
}

TEST_CASE("the file that a save under another name deletes is kept") {
  LifeDesk desk;
  desk.PutDeck(u"/decks/mine.tsr", 2);
  desk.fakes.files.Put(u"/decks/letter.txt", "a letter");
  desk.NewDeck();
  desk.OpenFile(u"/decks/mine.tsr");
  desk.SaveAs(u"/decks/letter.txt");
  CHECK(desk.fakes.copies.kept == Kept{{u"/decks/letter.txt", "a letter"}});
}

// Errors on the way skip the statement that failed, and nobody is told.

namespace {

/// Fails one operation on a file, counted from 1 from now on.
struct OneFault {
  int operation = 0;
  int count = 0;

  OneFault(LifeDesk& desk, int failing) : operation(failing) {
    desk.fakes.files.fault = [this](MemoryFiles::Operation, const Text&) {
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
    LifeDesk desk;
    desk.BuildDeck(2);
    desk.state.deck.onFile = true;
    desk.fakes.files.Put(kPath, DeckBytes(9));
    const OneFault fault(desk, failing);
    SaveTo(desk, kPath);
    CHECK(desk.TakeBoxes() == Boxes{SavedBox(kPath)});
    CHECK(desk.deck->Caption() == u"a  [STUDY]");
    CHECK(desk.File(kPath) == ExpectedAfterFault(failing));
    CHECK_FALSE(desk.fileNumber.IsOpen());
  }
}

TEST_CASE("every number that an operation can fail with is skipped") {
  for (const ErrorNumber number :
       {ErrorNumber::kFileNotFound, ErrorNumber::kDeviceIo, ErrorNumber::kDiskFull,
        ErrorNumber::kTooManyFiles, ErrorNumber::kPermissionDenied, ErrorNumber::kDiskNotReady,
        ErrorNumber::kPathFileAccess, ErrorNumber::kPathNotFound}) {
    LifeDesk desk;
    desk.BuildDeck(2);
    desk.state.deck.onFile = true;
    desk.fakes.files.fault = [number](MemoryFiles::Operation, const Text&) {
      return std::optional(number);
    };
    SaveTo(desk, kPath);
    CHECK(desk.TakeBoxes() == Boxes{SavedBox(kPath)});
    CHECK_FALSE(desk.fakes.files.Has(kPath));
  }
}

TEST_CASE("a save into a folder that is missing reports success all the same") {
  LifeDesk desk;
  desk.BuildDeck(1);
  SaveTo(desk, u"/nowhere/a.tsr");
  CHECK(desk.TakeBoxes() == Boxes{SavedBox(u"/nowhere/a.tsr")});
  CHECK_FALSE(desk.fakes.files.Has(u"/nowhere/a.tsr"));
}

TEST_CASE("a save to a name that is or becomes a folder's reports success, and the next is whole") {
  for (const bool onlyAfterDelete : {false, true}) {
    CAPTURE(onlyAfterDelete);
    LifeDesk desk;
    desk.BuildDeck(2);
    desk.state.deck.onFile = true;
    auto& files = desk.fakes.files;
    if (onlyAfterDelete) {
      files.Put(kPath, DeckBytes(9));
      files.fault = [&files](MemoryFiles::Operation operation, const Text& path) {
        if (operation == MemoryFiles::Operation::kOpen) files.folders.insert(path);
        return std::optional<ErrorNumber>();
      };
    } else {
      files.folders.insert(kPath);
    }
    SaveTo(desk, kPath);
    CHECK(desk.TakeBoxes() == Boxes{SavedBox(kPath)});
    CHECK_FALSE(files.Has(kPath));
    CHECK(files.folders.contains(kPath));
    CHECK(desk.state.deck.cardCount == 2);
    CHECK(desk.state.deck.Cell(2, kBackText) == u"back 2");
    CHECK_FALSE(desk.fileNumber.IsOpen());
    files.fault = nullptr;
    files.folders.erase(kPath);
    SaveTo(desk, kPath);
    CHECK(desk.File(kPath) == DeckBytes(2));
  }
}

TEST_CASE("a file that goes away while it is kept and deleted is written anew") {
  LifeDesk desk;
  desk.BuildDeck(2);
  desk.state.deck.onFile = true;
  auto& files = desk.fakes.files;
  files.Put(kPath, DeckBytes(9));
  files.fault = [&files](MemoryFiles::Operation operation, const Text& path) {
    if (operation == MemoryFiles::Operation::kDelete) files.files.erase(path);
    return std::optional<ErrorNumber>();
  };
  SaveTo(desk, kPath);
  CHECK(desk.TakeBoxes() == Boxes{SavedBox(kPath)});
  CHECK(desk.File(kPath) == DeckBytes(2));
}

TEST_CASE("a file that an import left open is closed by the next save and not written to") {
  LifeDesk desk;
  desk.BuildDeck(1);
  desk.fakes.files.Put(u"/decks/import.txt", "EXT");
  desk.fileNumber.OpenInput(u"/decks/import.txt");
  SaveTo(desk, kPath);
  CHECK(desk.TakeBoxes() == Boxes{SavedBox(kPath)});
  CHECK(desk.File(kPath) == DeckBytes(1));
  CHECK(desk.File(u"/decks/import.txt") == "EXT");
  CHECK_FALSE(desk.fileNumber.IsOpen());
}

}  // namespace tessara::test
