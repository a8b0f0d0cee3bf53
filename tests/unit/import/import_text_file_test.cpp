#include "import/import_text_file.h"

#include <doctest/doctest.h>
#include <string>

#include "base/utf8.h"
#include "deck/file/deck_file.h"
#include "tests/support/program_desk.h"
#include "tests/unit/import/command_desk.h"

namespace tessara::test {

namespace {

const std::string kStandardText = "STD\r\n1.\r\n*>F\r\nfront\r\n*>B\r\nback\r\n";
const std::string kExtendedText = "EXT\r\n1.question\r\n=F\r\n";

FakeMessages::Shown ErrorReport(const Text& number, const Text& description) {
  return {u"Run-time error '" + number + u"':\r\n\r\n" + description, kStopIcon, u"Tessara"};
}

}  // namespace

TEST_CASE("the command asks for a text file and does nothing where none is chosen") {
  CommandDesk desk;
  desk.ImportPath(u"");
  REQUIRE(desk.fakes.dialogs.fileRequests.size() == 1);
  CHECK(desk.fakes.dialogs.fileRequests[0].mode == FileDialogMode::kOpen);
  CHECK(desk.fakes.dialogs.fileRequests[0].filter == u"Text File|*.txt");
  CHECK(desk.Told().empty());
  CHECK_FALSE(desk.state.deck.saveOffered);
  CHECK_FALSE(desk.deck.IsLoaded());
}

TEST_CASE("a standard text comes up as a new deck in study mode") {
  CommandDesk desk;
  desk.Import(kStandardText);
  CHECK(desk.Told().empty());
  CHECK(desk.deck->Visible());
  CHECK(desk.deck->Caption() == u"New Deck");
  CHECK(desk.deck->flip.Caption() == u"&Show Back");
  CHECK(desk.state.deck.kind == kStandardDeck);
  CHECK(desk.state.deck.currentCard == 1);
  CHECK(desk.state.deck.cardCount == 1);
  CHECK(desk.state.deck.changed);
  CHECK(desk.state.deck.saveOffered);
  CHECK(desk.deck->saveDeck.Enabled());
  CHECK(desk.deck->saveDeckAs.Enabled());
  CHECK(desk.state.deck.filePath.empty());
  CHECK_FALSE(desk.fileNumber.IsOpen());
}

TEST_CASE("an extended text comes up with the answer of its first card") {
  CommandDesk desk;
  desk.Import(kExtendedText);
  CHECK(desk.deck->Visible());
  CHECK(desk.deck->Caption() == u"New Deck");
  CHECK(desk.state.deck.kind == kExtendedDeck);
  CHECK(desk.deck->card.CardText() == u"question");
  CHECK(desk.deck->answer.Caption() == u"FALSE");
  CHECK(desk.state.deck.saveOffered);
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
    CommandDesk desk;
    desk.Import(c.line + "\r\n*END*\r\n");
    CHECK((desk.Told().front() == kUnknownFormat) != c.known);
    CHECK(desk.state.deck.saveOffered == c.known);
    CHECK(desk.deck.IsLoaded() == (c.known && desk.state.deck.changed));
    CHECK_FALSE(desk.fileNumber.IsOpen());
  }
}

TEST_CASE("a first line of ext selects the extended reader") {
  CommandDesk desk;
  desk.Import(" ext \r\n1.question\r\n=T\r\n");
  CHECK(desk.state.deck.kind == kExtendedDeck);
  CHECK(desk.state.deck.Cell(1, kCardType) == u"T");
}

TEST_CASE("texts of this platform are read: LF, UTF-8, a byte order mark") {
  CommandDesk desk;
  desk.Import("\xEF\xBB\xBFSTD\n1.\n*>F\nna\xC3\xAFve\n*>B\nb\n");
  CHECK(desk.Told().empty());
  CHECK(desk.state.deck.Cell(1, kCardText) == u"na\u00EFve");
}

TEST_CASE("the type line alone tells that there are no cards and shows an empty window") {
  CommandDesk desk;
  desk.Import("STD");
  CHECK(desk.Told() == Boxes{kNoCards});
  CHECK(desk.deck->Visible());
  CHECK_FALSE(desk.state.deck.HasCards());
}

TEST_CASE("a failed import brings up no window but leaves the offer to save") {
  CommandDesk desk;
  desk.Import("EXT\r\n1.Q\r\n=x\r\n");
  CHECK(desk.Told().empty());
  CHECK_FALSE(desk.deck->Visible());
  CHECK(desk.state.deck.saveOffered);
  CHECK_FALSE(desk.state.deck.HasCards());
}

TEST_CASE("an error on the very first card shows two boxes") {
  CommandDesk desk;
  desk.Import("STD\r\n2.\r\n");
  CHECK(desk.Told() == Boxes{kBadFirstCard, kNoCards});
}

TEST_CASE("an empty, missing or barred file ends the program with the error's report") {
  CommandDesk empty;
  empty.Import("");
  CHECK(empty.Told() == Boxes{ErrorReport(u"62", u"Input past end of file")});
  CHECK(empty.windows.ExitStatus() == 1);
  CommandDesk missing;
  missing.fakes.files.folders.insert(u"/texts");
  missing.ImportPath(kTextPath);
  CHECK(missing.Told() == Boxes{ErrorReport(u"53", u"File not found")});
  CommandDesk folder;
  folder.fakes.files.folders.insert(u"/texts");
  folder.ImportPath(u"/texts");
  CHECK(folder.Told() == Boxes{ErrorReport(u"75", u"Path/File access error")});
  CommandDesk barred;
  barred.fakes.files.withoutPermission.insert(kTextPath);
  barred.Import(kStandardText);
  CHECK(barred.Told() == Boxes{ErrorReport(u"70", u"Permission denied")});
}

TEST_CASE("after an unforeseen error the next import ends the program") {
  CommandDesk desk;
  desk.Import("EXT\r\n1\r\n");
  CHECK(desk.Told() == Boxes{UnforeseenError(u"Type mismatch")});
  CHECK(desk.state.deck.saveOffered);
  CHECK_FALSE(desk.windows.ExitStatus());
  desk.Import(kStandardText);
  CHECK(desk.Told() == Boxes{ErrorReport(u"55", u"File already open")});
  CHECK(desk.windows.ExitStatus() == 1);
}

TEST_CASE("after an unforeseen error a deck is opened from either menu as ever") {
  for (const bool fromFrame : {false, true}) {
    CAPTURE(fromFrame);
    ProgramDesk desk;
    desk.fakes.files.Put(kTextPath, "EXT\r\n1\r\n");
    desk.fakes.files.Put(u"/texts/birds.tsr", ProgramDesk::DeckBytes(3));
    desk.Start();
    desk.fakes.dialogs.files = {kTextPath, u"/texts/birds.tsr"};
    desk.program.DeckWindowOf().Unload();
    desk.Frame().importTextFile.Press();
    CHECK(desk.fakes.messages.Take() == Boxes{UnforeseenError(u"Type mismatch")});
    if (!fromFrame) desk.Frame().newStandardDeck.Press();
    (fromFrame ? desk.Frame().openExistingDeck : desk.Deck().openDeck).Press();
    CHECK(desk.fakes.messages.Take().empty());
    CHECK_FALSE(desk.program.Windows().ExitStatus());
    CHECK(desk.Deck().Caption() == u"birds  [STUDY]");
    CHECK(desk.state.deck.cardCount == 3);
  }
}

TEST_CASE("after an unforeseen error a save writes the whole deck and the next import is free") {
  for (const bool deletesFirst : {false, true}) {
    CAPTURE(deletesFirst);
    CommandDesk desk;
    desk.Import("EXT\r\n1\r\n");
    desk.Told();
    desk.fakes.files.Put(u"/texts/deck.tsr", "old");
    desk.AddTextCard(u"front", u"back");
    desk.state.deck.onFile = deletesFirst;
    desk.state.deck.filePath = u"/texts/deck.tsr";
    desk.deck->SaveTessaraToFile(u"/texts/deck.tsr");
    CHECK(desk.Told() == Boxes{{u"This file has been saved to /texts/deck.tsr", kOkOnly, u"Save"}});
    constexpr std::size_t kInfoCardAndEnd = 3;
    CHECK(desk.fakes.files.Bytes(u"/texts/deck.tsr").size() == kInfoCardAndEnd * kRecordSize);
    CHECK(desk.fakes.files.Bytes(kTextPath) == "EXT\r\n1\r\n");
    CHECK_FALSE(desk.fileNumber.IsOpen());
    desk.Import(kExtendedText);
    CHECK(desk.Told().empty());
  }
}

TEST_CASE("the first save after an import asks for a name and stores the type of the window") {
  struct Case {
    std::string bytes;
    Text type;
  };
  for (const Case& c : {Case{kStandardText, u" Standard"}, Case{kExtendedText, u" Extended"}}) {
    CommandDesk desk;
    desk.Import(c.bytes);
    desk.fakes.dialogs.files.emplace_back(u"/texts/deck.tsr");
    desk.deck->SaveDeck();
    CHECK(desk.fakes.dialogs.fileRequests.back().mode == FileDialogMode::kSave);
    CHECK(desk.state.deck.Cell(kInfoRow, kInfoType) == c.type);
    CHECK(desk.fakes.files.Bytes(u"/texts/deck.tsr").find(ToUtf8(c.type)) != std::string::npos);
    CHECK_FALSE(desk.state.deck.saveOffered);
  }
}

TEST_CASE("a deck of 202 cards is saved whole and loaded back as 200") {
  std::string bytes = "EXT\r\n";
  for (int card = 1; card <= 202; ++card) bytes += std::to_string(card) + ".Q\r\n=T\r\n\r\n";
  CommandDesk desk;
  desk.Import(bytes);
  desk.fakes.dialogs.files.emplace_back(u"/texts/deck.tsr");
  desk.deck->SaveDeck();
  constexpr std::size_t kInfoAndCards = 1 + 202;
  CHECK(desk.fakes.files.Bytes(u"/texts/deck.tsr").size() == kInfoAndCards * kRecordSize);
  ProgramState loaded;
  LoadDeckFromFile(u"/texts/deck.tsr", loaded, desk.fileNumber, CodePage::Western());
  CHECK(loaded.deck.cardCount == 200);
}

}  // namespace tessara::test
