// Any bytes as a deck file: it loads, or ends in error 9 for a row outside the table; and what
// was loaded comes back from a save.

#include "base/run_time_error.h"
#include "deck/file/deck_file.h"
#include "fuzz/one_file.h"
#include "fuzz/require.h"
#include "fuzz/saved_deck.h"

namespace tessara::fuzz {

namespace {

const Text kPath = u"/deck.tsr";

/// False where the load raises its one error.
bool Loads(FileSystem& files, ProgramState& state) {
  FileNumber number(files);
  try {
    LoadDeckFromFile(kPath, state, number, CodePage::Western());
  } catch (const RunTimeError& error) {
    Require(error.Number() == ErrorNumber::kSubscriptOutOfRange);
    return false;
  }
  Require(!number.IsOpen());
  return true;
}

void CheckLoaded(const ProgramState& state) {
  Require(state.deck.currentCard == 1);
  Require(state.deck.cardCount >= 0 && state.deck.cardCount <= kMostCards);
  for (int row = 0; row < kRows; ++row) {
    const bool there = state.deck.cardPresent.At(row) == 1;
    Require(there == (state.deck.Cell(row, kRowNumber) == DecimalText(row)));
    for (int column = kCardType; column < kColumns; ++column) {
      const Text& cell = state.deck.Cell(row, column);
      Require(there || cell.empty());
      Require(Trimmed(cell) == cell);
    }
  }
  Require(state.deck.title == state.deck.Cell(kInfoRow, kInfoTitle));
}

}  // namespace

}  // namespace tessara::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessara;
  fuzz::OneFile files(data, size);
  ProgramState state;
  if (!fuzz::Loads(files, state)) return 0;
  fuzz::CheckLoaded(state);
  fuzz::RequireSaved(state);
  return 0;
}
