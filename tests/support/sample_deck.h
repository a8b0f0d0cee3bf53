#pragma once

#include "deck/file/deck_file.h"
#include "tests/support/cards.h"
#include "tests/support/fakes/memory_files.h"

namespace tessara::test {

/// Cards "front 1", "back 1" and so on, behind an information row.
inline void FillDeck(ProgramState& state, int cards) {
  state.deck.cardGrid.Set(kInfoRow, kCardType, u"I");
  state.deck.cardGrid.Set(kInfoRow, kRowNumber, u"0");
  state.deck.cardGrid.Set(kInfoRow, kInfoTitle, u"A title");
  state.deck.cardPresent.Set(kInfoRow, 1);
  for (int row = 1; row <= cards; ++row) {
    PutCard(state, row,
            {.text = u"front " + DecimalText(row), .back = u"back " + DecimalText(row)});
  }
  state.deck.cardCount = static_cast<std::int16_t>(cards);
}

inline const Text kSamplePath = u"/decks/sample.tsr";

/// A disk with one folder, /decks, and the one open file of the program.
struct DeckDisk {
  MemoryFiles files;
  FileNumber file{files};

  DeckDisk() { files.folders.insert(u"/decks"); }

  /// The file's bytes after the real writer has written the table to it.
  std::string Write(const ProgramState& state) {
    file.OpenRandom(kSamplePath, OpenMode::kReadAndWrite, kRecordSize);
    WriteRecords(state, file, CodePage::Western());
    file.Close();
    return files.Bytes(kSamplePath);
  }

  void Load(ProgramState& state) {
    LoadDeckFromFile(kSamplePath, state, file, CodePage::Western());
  }
};

/// One record's bytes: its letter, its text, its row.
inline std::string RecordBytesOf(const Text& type, const Text& text, int number) {
  DeckRecord record;
  record.cardType = type;
  record.text = text;
  record.number = static_cast<std::int16_t>(number);
  const RecordBytes bytes = EncodeRecord(record, CodePage::Western());
  return {bytes.data(), bytes.size()};
}

}  // namespace tessara::test
