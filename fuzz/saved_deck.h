#pragma once

#include "base/characters.h"
#include "deck/file/deck_file.h"
#include "deck/file/stored_text.h"
#include "fuzz/require.h"
#include "tests/support/fakes/memory_files.h"

namespace tessara::fuzz {

/// A text comes back without the blanks at its ends, and in form C at the latest.
inline void RequireStored(const Text& text, const Text& read, std::size_t width) {
  if (CharactersCut(text, width, CodePage::Western()) > 0) return;
  Require(Composed(read) == Composed(Trimmed(text)));
}

inline std::size_t WidthOfColumn(int column) {
  if (column == kCardText || column == kBackText) return kTextWidth;
  return column == kCardType || column == kAnswer ? 1 : kShortWidth;
}

inline void RequireStoredRow(const Deck& saved, const Deck& loaded, int row) {
  for (int column = kCardType; column < kColumns; ++column) {
    RequireStored(saved.Cell(row, column), loaded.Cell(row, column), WidthOfColumn(column));
  }
}

/// Saves the deck and loads it again: every text that fits its field is there, row by row. A letter
/// that ends a deck, or a second row with the information's, ends the comparison.
inline void RequireSaved(const ProgramState& state) {
  const Text path = u"/saved.tsr";
  test::MemoryFiles files;
  FileNumber number(files);
  number.OpenRandom(path, OpenMode::kReadAndWrite, kRecordSize);
  WriteRecords(state, number, CodePage::Western());
  ProgramState again;
  LoadDeckFromFile(path, again, number, CodePage::Western());
  for (int row = 0; row <= kMostCards && state.deck.cardPresent.At(row) != 0; ++row) {
    if (state.deck.Cell(row, kCardType) == u"X") return;
    RequireStoredRow(state.deck, again.deck, row);
  }
}

}  // namespace tessara::fuzz
