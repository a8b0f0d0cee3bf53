#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/code_page.h"
#include "deck/card_rows.h"
#include "deck/program_state.h"

namespace tessara {

/// The table as the bytes of a deck file that holds all of its cards: what a save would write, but
/// that those that it leaves out follow, numbered on, so that whoever opens the file meets each of
/// them, up to the 200 that a load takes. Only rows that have changed are encoded anew.
class DeckImage {
 public:
  DeckImage(const ProgramState& state, const CodePage& codePage)
      : state_(state), codePage_(codePage) {}

  /// Grows with every change of the table.
  [[nodiscard]] std::uint64_t Changes() const;
  /// False for a table without any card.
  [[nodiscard]] bool HasCards() const { return !CardRows(state_.deck).empty(); }
  /// Valid until the next call.
  [[nodiscard]] std::string_view Bytes();

 private:
  [[nodiscard]] bool IsEncoded(std::size_t place, int row) const;
  void Encode(std::size_t place, int row);

  const ProgramState& state_;
  const CodePage& codePage_;
  std::string bytes_;
  std::vector<int> rows_;           ///< by their places in the bytes
  std::uint64_t cellsEncoded_ = 0;  ///< changes of the table that are in the bytes
  std::uint64_t flagsEncoded_ = 0;
};

}  // namespace tessara
