#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/code_page.h"
#include "deck/program_state.h"

namespace tessara {

/// The table as the bytes of a deck file that holds all of its cards, wherever they stand: what a
/// save would write, but that rows behind a gap are there too. Only rows that have changed are
/// encoded anew.
class DeckImage {
 public:
  DeckImage(const ProgramState& state, const CodePage& codePage)
      : state_(state), codePage_(codePage) {}

  /// Grows with every change of the table.
  [[nodiscard]] std::uint64_t Changes() const;
  /// False for a table without any card.
  [[nodiscard]] bool HasCards() const { return LastCard() != kInfoRow; }
  /// Valid until the next call.
  [[nodiscard]] std::string_view Bytes();

 private:
  [[nodiscard]] int LastCard() const;
  [[nodiscard]] bool IsEncoded(int row) const;
  void EncodeRow(int row);

  const ProgramState& state_;
  const CodePage& codePage_;
  std::string bytes_;
  std::uint64_t cellsEncoded_ = 0;  ///< changes of the table that are in the bytes
  std::uint64_t flagsEncoded_ = 0;
};

}  // namespace tessara
