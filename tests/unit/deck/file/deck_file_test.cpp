#include "deck/file/deck_file.h"

#include <algorithm>
#include <doctest/doctest.h>
#include <random>

#include "tests/support/error_of.h"
#include "tests/support/every_byte.h"
#include "tests/support/sample_deck.h"

namespace tessara::test {

namespace {

const CodePage& kWestern = CodePage::Western();

/// What a deck with these bytes loads as, into an emptied table.
ProgramState Loaded(const std::string& bytes) {
  DeckDisk disk;
  disk.files.Put(kSamplePath, bytes);
  ProgramState state;
  disk.Load(state);
  return state;
}

ProgramState SampleDeck(int cards) {
  ProgramState state;
  FillDeck(state, cards);
  return state;
}

}  // namespace

TEST_CASE("all 256 bytes of a text survive a load and a save") {
  const std::string every = EveryByte();
  ProgramState state = SampleDeck(1);
  state.deck.cardGrid.Set(1, kCardText, u"|" + kWestern.Decode(every) + u"|");
  DeckDisk disk;
  const std::string bytes = disk.Write(state);
  CHECK(bytes.find("|" + every + "|") == kRecordSize + 1);
  ProgramState loaded;
  disk.Load(loaded);
  CHECK(loaded.deck.Cell(1, kCardText) == state.deck.Cell(1, kCardText));
  CHECK(disk.Write(loaded) == bytes);
}

TEST_CASE("a deck is written as information, cards and terminator") {
  struct Case {
    int cards;
    std::size_t records;
  };
  for (const Case& c : {Case{1, 3}, Case{10, 12}, Case{200, 202}}) {
    DeckDisk disk;
    const std::string bytes = disk.Write(SampleDeck(c.cards));
    REQUIRE(bytes.size() == c.records * kRecordSize);
    CHECK(bytes[0] == 'I');
    CHECK(bytes[kRecordSize] == 'E');
    const std::string last = bytes.substr(bytes.size() - kRecordSize);
    CHECK(last == RecordBytesOf(u"X", u"", 0));
  }
}

TEST_CASE("a table without an absent row is written down to row 202 and has no terminator") {
  ProgramState state = SampleDeck(202);
  DeckDisk disk;
  const std::string bytes = disk.Write(state);
  CHECK(bytes.size() == 203 * kRecordSize);
  CHECK(bytes[202 * kRecordSize] == 'E');
}

TEST_CASE("a row counts as present for the writer when its flag is not 0") {
  ProgramState state = SampleDeck(1);
  state.deck.cardPresent.Set(1, -1);
  DeckDisk disk;
  CHECK(disk.Write(state)[kRecordSize] == 'E');
}

TEST_CASE("an absent row gives a terminator with what its cells hold") {
  ProgramState state = SampleDeck(0);
  state.deck.cardGrid.Set(1, kCardText, u"left over");
  state.deck.cardGrid.Set(1, kRowNumber, u"1");
  const DeckRecordView record = RecordOfRow(state, 1);
  CHECK(record.cardType == u"X");
  CHECK(record.number == 0);
  CHECK(record.text == u"left over");
}

TEST_CASE("a row without a number is written as row 0") {
  ProgramState state = SampleDeck(1);
  state.deck.cardGrid.Set(1, kRowNumber, u"");
  CHECK(RecordOfRow(state, 1).number == 0);
}

TEST_CASE("records behind the terminator of a shorter deck stay in the file and are not read") {
  DeckDisk disk;
  (void)disk.Write(SampleDeck(10));
  CHECK(disk.Write(SampleDeck(3)).size() == 12 * kRecordSize);
  ProgramState state;
  disk.Load(state);
  CHECK(state.deck.cardCount == 3);
  CHECK(state.deck.Cell(4, kCardText).empty());
}

TEST_CASE("a record that can't be written is skipped and the others are written") {
  DeckDisk disk;
  int writes = 0;
  disk.files.fault = [&writes](MemoryFiles::Operation operation, const Text&) {
    const bool fails = operation == MemoryFiles::Operation::kWrite && ++writes == 2;
    return fails ? std::optional(ErrorNumber::kDiskFull) : std::nullopt;
  };
  const std::string bytes = disk.Write(SampleDeck(2));
  CHECK(writes == 4);
  CHECK(bytes.size() == 4 * kRecordSize);
  CHECK(bytes[kRecordSize] == '\0');
  CHECK(bytes[2 * kRecordSize] == 'E');
}

TEST_CASE("a deck loads with its cards, its count and its strings, at card 1") {
  ProgramState saved = SampleDeck(3);
  saved.deck.cardGrid.Set(kInfoRow, kInfoDate, u" 1/5/2026");
  saved.deck.cardGrid.Set(kInfoRow, kInfoType, u" Standard");
  saved.deck.cardGrid.Set(kInfoRow, kInfoTitle, u" Capitals");
  saved.deck.cardGrid.Set(kInfoRow, kInfoAuthor, u" Me");
  saved.deck.cardGrid.Set(kInfoRow, kInfoDescription, u" All of them");
  DeckDisk disk;
  (void)disk.Write(saved);
  ProgramState state;
  disk.Load(state);
  CHECK(state.deck.cardCount == 3);
  CHECK(state.deck.currentCard == 1);
  CHECK(state.deck.Cell(2, kCardType) == u"E");
  CHECK(state.deck.Cell(2, kCardText) == u"front 2");
  CHECK(state.deck.Cell(2, kRowNumber) == u"2");
  CHECK(state.deck.Cell(2, kBackText) == u"back 2");
  CHECK(state.deck.cardPresent.At(2) == 1);
  CHECK(state.deck.cardPresent.At(4) == 0);
  CHECK(state.deck.date == u"1/5/2026");
  CHECK(state.deck.typeName == u"Standard");
  CHECK(state.deck.title == u"Capitals");
  CHECK(state.deck.author == u"Me");
  CHECK(state.deck.description == u"All of them");
  CHECK_FALSE(disk.file.IsOpen());
}

TEST_CASE("the fields of a question land in their columns") {
  DeckRecord record;
  record.cardType = u"M";
  record.text = u"question";
  record.number = 1;
  record.shortFields = {u"a", u"b", u"c", u"d"};
  record.answer = u"B";
  const RecordBytes bytes = EncodeRecord(record, kWestern);
  const ProgramState state = Loaded({bytes.data(), bytes.size()});
  CHECK(state.deck.Cell(1, kChoiceA) == u"a");
  CHECK(state.deck.Cell(1, kChoiceB) == u"b");
  CHECK(state.deck.Cell(1, kChoiceC) == u"c");
  CHECK(state.deck.Cell(1, kChoiceD) == u"d");
  CHECK(state.deck.Cell(1, kAnswer) == u"B");
}

TEST_CASE("a load removes the blanks at both ends and nothing else") {
  struct Case {
    Text saved;
    Text loaded;
  };
  const Case cases[] = {
      {u"  both  ", u"both"},
      {u"ends in a break\r\n", u"ends in a break\r\n"},
      {u"\r\nbegins with one", u"\r\nbegins with one"},
      {u"\ttabs\t", u"\ttabs\t"},
      {Text(443, u'x') + u" ", Text(443, u'x')},
      {Text(445, u'x'), Text(444, u'x')},
      {u"   ", u""},
  };
  for (const Case& c : cases) {
    ProgramState state = SampleDeck(1);
    state.deck.cardGrid.Set(1, kCardText, c.saved);
    DeckDisk disk;
    (void)disk.Write(state);
    CHECK(state.deck.Cell(1, kCardText) == c.saved);
    ProgramState loaded;
    disk.Load(loaded);
    CHECK(loaded.deck.Cell(1, kCardText) == c.loaded);
  }
}

TEST_CASE("a file with 201 cards loads the first 200") {
  std::string bytes = RecordBytesOf(u"I", u"", 0);
  for (int row = 1; row <= 201; ++row) bytes += RecordBytesOf(u"E", u"x", row);
  const ProgramState state = Loaded(bytes);
  CHECK(state.deck.cardCount == 200);
  CHECK(state.deck.Cell(200, kCardText) == u"x");
  CHECK(state.deck.Cell(201, kCardText).empty());
}

TEST_CASE("information behind the 200th card is not read any more") {
  std::string bytes;
  for (int row = 1; row <= 200; ++row) bytes += RecordBytesOf(u"E", u"x", row);
  const ProgramState state = Loaded(bytes + RecordBytesOf(u"I", u"late", 0));
  CHECK(state.deck.cardCount == 200);
  CHECK(state.deck.cardPresent.At(kInfoRow) == 0);
}

TEST_CASE("a card lands in the row of its number wherever it stands in the file") {
  const ProgramState state =
      Loaded(RecordBytesOf(u"E", u"seven", 7) + RecordBytesOf(u"E", u"one", 1));
  CHECK(state.deck.Cell(7, kCardText) == u"seven");
  CHECK(state.deck.Cell(7, kRowNumber) == u"7");
  CHECK(state.deck.Cell(1, kCardText) == u"one");
  CHECK(state.deck.cardCount == 2);
}

TEST_CASE("a row that the file names twice counts twice and holds the later one") {
  const ProgramState state =
      Loaded(RecordBytesOf(u"E", u"first", 1) + RecordBytesOf(u"E", u"second", 1));
  CHECK(state.deck.Cell(1, kCardText) == u"second");
  CHECK(state.deck.cardCount == 2);
}

TEST_CASE("a file that begins with the terminator loads as no cards at card 1") {
  const ProgramState state = Loaded(RecordBytesOf(u"X", u"", 0) + RecordBytesOf(u"E", u"x", 1));
  CHECK(state.deck.cardCount == 0);
  CHECK(state.deck.currentCard == 1);
  CHECK_FALSE(state.deck.HasCards());
}

TEST_CASE("only a capital X ends a deck; any other letter is a card") {
  for (const char16_t letter : {u'x', u'Q', u' ', u'\0', u'\u00D7'}) {
    const ProgramState state = Loaded(RecordBytesOf(Text(1, letter), u"odd", 1));
    CHECK(state.deck.cardCount == 1);
    CHECK(state.deck.Cell(1, kCardText) == u"odd");
  }
}

TEST_CASE("a deck without an information record has empty strings") {
  DeckDisk disk;
  disk.files.Put(kSamplePath, RecordBytesOf(u"E", u"x", 1));
  ProgramState state;
  state.deck.title = u"the deck before";
  disk.Load(state);
  CHECK(state.deck.title.empty());
  CHECK(state.deck.cardCount == 1);
}

TEST_CASE("a load leaves rows alone that the file does not name") {
  DeckDisk disk;
  disk.files.Put(kSamplePath, RecordBytesOf(u"E", u"x", 1));
  ProgramState state = SampleDeck(2);
  disk.Load(state);
  CHECK(state.deck.cardCount == 1);
  CHECK(state.deck.Cell(2, kCardText) == u"front 2");
}

TEST_CASE("a file without a terminator ends with its last record") {
  CHECK(Loaded("").deck.cardCount == 0);
  CHECK(Loaded(RecordBytesOf(u"E", u"x", 1)).deck.cardCount == 1);
}

TEST_CASE("a record that is cut off counts from its number on, with blanks for the rest") {
  const std::string card = RecordBytesOf(u"E", u"front", 1);
  CHECK(Loaded(card.substr(0, 446)).deck.cardCount == 0);
  for (const std::size_t length : {447U, 448U, 747U, 1191U}) {
    const ProgramState state = Loaded(card.substr(0, length));
    CHECK(state.deck.cardCount == 1);
    CHECK(state.deck.Cell(1, kCardText) == u"front");
    CHECK(state.deck.Cell(1, kBackText).empty());
  }
}

TEST_CASE("a number outside the table is a subscript error") {
  for (const int number : {-32768, -1, 203, 32767}) {
    CHECK(ErrorOf([&] { (void)Loaded(RecordBytesOf(u"E", u"x", number)); }) == 9);
  }
  CHECK(Loaded(RecordBytesOf(u"E", u"x", 202)).deck.Cell(202, kCardText) == u"x");
}

TEST_CASE("a load closes what the file number still holds") {
  DeckDisk disk;
  disk.files.Put(u"/decks/text", "EXT");
  disk.files.Put(kSamplePath, RecordBytesOf(u"E", u"x", 1));
  disk.file.OpenInput(u"/decks/text");
  ProgramState state;
  disk.Load(state);
  CHECK(state.deck.cardCount == 1);
  CHECK_FALSE(disk.file.IsOpen());
}

TEST_CASE("the errors of the file reach the caller of a load") {
  DeckDisk disk;
  ProgramState state;
  CHECK(ErrorOf([&] { disk.Load(state); }) == 53);
  CHECK(ErrorOf([&] { LoadDeckFromFile(u"", state, disk.file, kWestern); }) == 75);
  disk.files.Put(kSamplePath, RecordBytesOf(u"E", u"x", 1));
  disk.files.fault = [](MemoryFiles::Operation operation, const Text&) {
    const bool reads = operation == MemoryFiles::Operation::kRead;
    return reads ? std::optional(ErrorNumber::kDeviceIo) : std::nullopt;
  };
  CHECK(ErrorOf([&] { disk.Load(state); }) == 57);
}

// Damage: whatever becomes of a deck that the program wrote, it loads or raises a run-time error,
// and what has been loaded can be written and loaded again.

namespace {

void CheckDamaged(const std::string& bytes) {
  ProgramState state;
  try {
    state = Loaded(bytes);
  } catch (const RunTimeError& error) {
    CHECK(error.Number() == ErrorNumber::kSubscriptOutOfRange);
    return;
  }
  CHECK(state.deck.cardCount <= kMostCards);
  CHECK(state.deck.currentCard == 1);
  DeckDisk disk;
  const std::string rewritten = disk.Write(state);
  CHECK(rewritten.size() % kRecordSize == 0);
  ProgramState again;
  disk.Load(again);
  CHECK(again.deck.cardCount <= state.deck.cardCount);
}

std::string WrittenDeck(int cards) {
  DeckDisk disk;
  return disk.Write(SampleDeck(cards));
}

}  // namespace

TEST_CASE("a deck with one flipped byte loads or raises a subscript error") {
  const std::string deck = WrittenDeck(2);
  for (std::size_t at = 0; at < deck.size(); ++at) {
    const std::size_t inRecord = at % kRecordSize;
    const bool letterOrNumber = inRecord == 0 || inRecord == 445 || inRecord == 446;
    // One text byte in seven stands for the others.
    if (!letterOrNumber && inRecord % 7 != 0) continue;
    std::string damaged = deck;
    damaged[at] = static_cast<char>(~damaged[at]);
    CheckDamaged(damaged);
  }
}

TEST_CASE("a deck cut off anywhere loads what stands before the cut") {
  const std::string deck = WrittenDeck(2);
  for (std::size_t length = 0; length <= deck.size(); ++length) {
    const ProgramState state = Loaded(deck.substr(0, length));
    const std::size_t numberEnd = 447;
    const bool first = length >= kRecordSize + numberEnd;
    const bool second = length >= 2 * kRecordSize + numberEnd;
    CHECK(state.deck.cardCount == (first ? 1 : 0) + (second ? 1 : 0));
  }
}

TEST_CASE("a deck with bytes lost or added in the middle loads or raises a subscript error") {
  const std::string deck = WrittenDeck(3);
  for (std::size_t at = 0; at < deck.size(); at += 97) {
    std::string shorter = deck;
    CheckDamaged(shorter.erase(at, 1 + at % 5));
    std::string longer = deck;
    CheckDamaged(longer.insert(at, 1 + at % 5, '\xFF'));
  }
}

TEST_CASE("a deck with stretches of other bytes loads or raises a subscript error") {
  const std::string deck = WrittenDeck(5);
  std::mt19937 random(7);
  for (int round = 0; round < 500; ++round) {
    std::string damaged = deck;
    const std::size_t at = random() % damaged.size();
    const std::size_t length = std::min<std::size_t>(random() % 300, damaged.size() - at);
    for (std::size_t i = 0; i < length; ++i) damaged[at + i] = static_cast<char>(random());
    CheckDamaged(damaged);
  }
}

TEST_CASE("a file of other bytes altogether loads or raises a subscript error") {
  for (const char byte : {'\0', ' ', 'E', '\x7F', '\xFF'}) {
    CheckDamaged(std::string(5 * kRecordSize + 500, byte));
  }
}

}  // namespace tessara::test
