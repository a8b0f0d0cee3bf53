#include "import/import_text_file.h"

#include <doctest/doctest.h>
#include <string>

#include "base/utf8.h"
#include "deck/file/deck_file.h"
#include "tests/support/program_fixture.h"
#include "tests/unit/import/command_fixture.h"

namespace tessara::test {

namespace {

const std::string kStandardText = "STD\r\n1.\r\n*>F\r\nfront\r\n*>B\r\nback\r\n";
const std::string kExtendedText = "EXT\r\n1.question\r\n=F\r\n";

FakeMessages::Shown ErrorReport(const Text& number, const Text& description) {
  return {u"Run-time error '" + number + u"':\r\n\r\n" + description, kStopIcon, u"Tessara"};
}

}  // namespace

TEST_CASE("the command asks for a text file and does nothing where none is chosen") {
  CommandFixture fixture;
  fixture.ImportPath(u"");
  REQUIRE(fixture.fakes.dialogs.fileRequests.size() == 1);
  CHECK(fixture.fakes.dialogs.fileRequests[0].mode == FileDialogMode::kOpen);
  CHECK(fixture.fakes.dialogs.fileRequests[0].filter == u"Text File|*.txt");
  CHECK(fixture.Told().empty());
  CHECK_FALSE(fixture.state.deck.saveOffered);
  CHECK_FALSE(fixture.deck.IsLoaded());
}

TEST_CASE("a standard text comes up as a new deck in study mode") {
  CommandFixture fixture;
  fixture.Import(kStandardText);
  CHECK(fixture.Told().empty());
  CHECK(fixture.deck->Visible());
  CHECK(fixture.deck->Caption() == u"New Deck");
  CHECK(fixture.deck->flip.Caption() == u"&Show Back");
  CHECK(fixture.state.deck.kind == kStandardDeck);
  CHECK(fixture.state.deck.currentCard == 1);
  CHECK(fixture.state.deck.cardCount == 1);
  CHECK(fixture.state.deck.changed);
  CHECK(fixture.state.deck.saveOffered);
  CHECK(fixture.deck->saveDeck.Enabled());
  CHECK(fixture.deck->saveDeckAs.Enabled());
  CHECK(fixture.state.deck.filePath.empty());
  CHECK_FALSE(fixture.fileNumber.IsOpen());
}

TEST_CASE("an extended text comes up with the answer of its first card") {
  CommandFixture fixture;
  fixture.Import(kExtendedText);
  CHECK(fixture.deck->Visible());
  CHECK(fixture.deck->Caption() == u"New Deck");
  CHECK(fixture.state.deck.kind == kExtendedDeck);
  CHECK(fixture.deck->card.CardText() == u"question");
  CHECK(fixture.deck->answer.Caption() == u"FALSE");
  CHECK(fixture.state.deck.saveOffered);
}

TEST_CASE("the first line names the format in any case, with blanks, and with nothing else") {
  struct Case {
    std::string line;
    bool known;
  };
  const Case cases[] = {{"EXT", true},    {"  ext ", true},     {"Std", true},   {"std  ", true},
                        {"", false},      {"EXTRA", false},     {"EXT.", false}, {"STD 1", false},
                        {"\tSTD", false}, {"1.Question", false}};
  for (const Case& c : cases) {
    CAPTURE(c.line);
    CommandFixture fixture;
    fixture.Import(c.line + "\r\n*END*\r\n");
    CHECK((fixture.Told().front() == kUnknownFormat) != c.known);
    CHECK(fixture.state.deck.saveOffered == c.known);
    CHECK(fixture.deck.IsLoaded() == (c.known && fixture.state.deck.changed));
    CHECK_FALSE(fixture.fileNumber.IsOpen());
  }
}

TEST_CASE("a first line of ext selects the extended reader") {
  CommandFixture fixture;
  fixture.Import(" ext \r\n1.question\r\n=T\r\n");
  CHECK(fixture.state.deck.kind == kExtendedDeck);
  CHECK(fixture.state.deck.Cell(1, kCardType) == u"T");
}

TEST_CASE("texts of this platform are read: LF, UTF-8, a byte order mark") {
  CommandFixture fixture;
  fixture.Import("\xEF\xBB\xBFSTD\n1.\n*>F\nna\xC3\xAFve\n*>B\nb\n");
  CHECK(fixture.Told().empty());
  CHECK(fixture.state.deck.Cell(1, kCardText) == u"na\u00EFve");
}

TEST_CASE("the type line alone tells that there are no cards and shows an empty window") {
  CommandFixture fixture;
  fixture.Import("STD");
  CHECK(fixture.Told() == Boxes{kNoCards});
  CHECK(fixture.deck->Visible());
  CHECK_FALSE(fixture.state.deck.HasCards());
}

TEST_CASE("a failed import brings up no window but leaves the offer to save") {
  CommandFixture fixture;
  fixture.Import("EXT\r\n1.Q\r\n=x\r\n");
  CHECK(fixture.Told().empty());
  CHECK_FALSE(fixture.deck->Visible());
  CHECK(fixture.state.deck.saveOffered);
  CHECK_FALSE(fixture.state.deck.HasCards());
}

TEST_CASE("an error on the very first card shows two boxes") {
  CommandFixture fixture;
  fixture.Import("STD\r\n2.\r\n");
  CHECK(fixture.Told() == Boxes{kBadFirstCard, kNoCards});
}

TEST_CASE("an empty, missing or barred file ends the program with the error's report") {
  CommandFixture empty;
  empty.Import("");
  CHECK(empty.Told() == Boxes{ErrorReport(u"62", u"Input past end of file")});
  CHECK(empty.windows.ExitStatus() == 1);
  CommandFixture missing;
  missing.fakes.files.folders.insert(u"/texts");
  missing.ImportPath(kTextPath);
  CHECK(missing.Told() == Boxes{ErrorReport(u"53", u"File not found")});
  CommandFixture folder;
  folder.fakes.files.folders.insert(u"/texts");
  folder.ImportPath(u"/texts");
  CHECK(folder.Told() == Boxes{ErrorReport(u"75", u"Path/File access error")});
  CommandFixture barred;
  barred.fakes.files.withoutPermission.insert(kTextPath);
  barred.Import(kStandardText);
  CHECK(barred.Told() == Boxes{ErrorReport(u"70", u"Permission denied")});
}

TEST_CASE("after an unforeseen error the next import ends the program") {
  CommandFixture fixture;
  fixture.Import("EXT\r\n1\r\n");
  CHECK(fixture.Told() == Boxes{UnforeseenError(u"Type mismatch")});
  CHECK(fixture.state.deck.saveOffered);
  CHECK_FALSE(fixture.windows.ExitStatus());
  fixture.Import(kStandardText);
  CHECK(fixture.Told() == Boxes{ErrorReport(u"55", u"File already open")});
  CHECK(fixture.windows.ExitStatus() == 1);
}

TEST_CASE("after an unforeseen error a deck is opened from either menu as ever") {
  for (const bool fromFrame : {false, true}) {
    CAPTURE(fromFrame);
    ProgramFixture fixture;
    fixture.fakes.files.Put(kTextPath, "EXT\r\n1\r\n");
    fixture.fakes.files.Put(u"/texts/birds.tsr", ProgramFixture::DeckBytes(3));
    fixture.Start();
    fixture.fakes.dialogs.files = {kTextPath, u"/texts/birds.tsr"};
    fixture.program.DeckWindowOf().Unload();
    fixture.Frame().importTextFile.Press();
    CHECK(fixture.fakes.messages.Take() == Boxes{UnforeseenError(u"Type mismatch")});
    if (!fromFrame) fixture.Frame().newStandardDeck.Press();
    (fromFrame ? fixture.Frame().openExistingDeck : fixture.Deck().openDeck).Press();
    CHECK(fixture.fakes.messages.Take().empty());
    CHECK_FALSE(fixture.program.Windows().ExitStatus());
    CHECK(fixture.Deck().Caption() == u"birds  [STUDY]");
    CHECK(fixture.state.deck.cardCount == 3);
  }
}

TEST_CASE("after an unforeseen error a save writes the whole deck and the next import is free") {
  for (const bool deletesFirst : {false, true}) {
    CAPTURE(deletesFirst);
    CommandFixture fixture;
    fixture.Import("EXT\r\n1\r\n");
    fixture.Told();
    fixture.fakes.files.Put(u"/texts/deck.tsr", "old");
    fixture.AddTextCard(u"front", u"back");
    fixture.state.deck.onFile = deletesFirst;
    fixture.state.deck.filePath = u"/texts/deck.tsr";
    fixture.deck->SaveTessaraToFile(u"/texts/deck.tsr");
    CHECK(fixture.Told() ==
          Boxes{{u"This file has been saved to /texts/deck.tsr", kOkOnly, u"Save"}});
    constexpr std::size_t kInfoCardAndEnd = 3;
    CHECK(fixture.fakes.files.Bytes(u"/texts/deck.tsr").size() == kInfoCardAndEnd * kRecordSize);
    CHECK(fixture.fakes.files.Bytes(kTextPath) == "EXT\r\n1\r\n");
    CHECK_FALSE(fixture.fileNumber.IsOpen());
    fixture.Import(kExtendedText);
    CHECK(fixture.Told().empty());
  }
}

TEST_CASE("the first save after an import asks for a name and stores the type of the window") {
  struct Case {
    std::string bytes;
    Text type;
  };
  for (const Case& c : {Case{kStandardText, u" Standard"}, Case{kExtendedText, u" Extended"}}) {
    CommandFixture fixture;
    fixture.Import(c.bytes);
    fixture.fakes.dialogs.files.emplace_back(u"/texts/deck.tsr");
    fixture.deck->SaveDeck();
    CHECK(fixture.fakes.dialogs.fileRequests.back().mode == FileDialogMode::kSave);
    CHECK(fixture.state.deck.Cell(kInfoRow, kInfoType) == c.type);
    CHECK(fixture.fakes.files.Bytes(u"/texts/deck.tsr").find(ToUtf8(c.type)) != std::string::npos);
    CHECK_FALSE(fixture.state.deck.saveOffered);
  }
}

TEST_CASE("a deck of 202 cards is saved whole and loaded back as 200") {
  std::string bytes = "EXT\r\n";
  for (int card = 1; card <= 202; ++card) bytes += std::to_string(card) + ".Q\r\n=T\r\n\r\n";
  CommandFixture fixture;
  fixture.Import(bytes);
  fixture.fakes.dialogs.files.emplace_back(u"/texts/deck.tsr");
  fixture.deck->SaveDeck();
  constexpr std::size_t kInfoAndCards = 1 + 202;
  CHECK(fixture.fakes.files.Bytes(u"/texts/deck.tsr").size() == kInfoAndCards * kRecordSize);
  ProgramState loaded;
  LoadDeckFromFile(u"/texts/deck.tsr", loaded, fixture.fileNumber, CodePage::Western());
  CHECK(loaded.deck.cardCount == 200);
}

}  // namespace tessara::test
