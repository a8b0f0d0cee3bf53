#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "base/text.h"

namespace tessara {

/// Rows of the table: 0 is the deck information, 1 to 200 the cards.
inline constexpr int kRows = 203;
inline constexpr int kColumns = 10;
inline constexpr int kMostCards = 200;
inline constexpr int kInfoRow = 0;

/// Columns of a card's row. Type "E" is a text card, with a back; "T" a true/false and "M" a
/// multiple-choice question, with an answer key and the choices of the latter.
enum Column : int {
  kStray = 0,  ///< not stored in the file; an import's choice lines of unknown letter end here
  kCardType = 1,
  kCardText = 2,  ///< front of a card, or question
  kRowNumber = 3,
  kChoiceA = 4,
  kChoiceB = 5,
  kChoiceC = 6,
  kChoiceD = 7,
  kAnswer = 8,
  kBackText = 9,
};

/// Columns of the information row.
enum InfoColumn : int {
  kInfoDate = 4,
  kInfoType = 5,
  kInfoTitle = 6,
  kInfoAuthor = 7,
  kInfoDescription = 9,
};

/// Counts the changes of a table, and tells for each row at which count it changed last. Storing
/// what is there already counts too.
class RowChanges {
 public:
  void Note(std::size_t row) { ofRow_[row] = ++count_; }
  [[nodiscard]] std::uint64_t Count() const { return count_; }
  [[nodiscard]] std::uint64_t Of(int row) const { return ofRow_[static_cast<std::size_t>(row)]; }

 private:
  std::uint64_t count_ = 0;
  std::array<std::uint64_t, kRows> ofRow_{};
};

/// All cells of a deck, as text; unset and empty are the same. Column 3 holds the row's number
/// as decimal text. A row or column outside the table raises error 9.
class CardTable {
 public:
  [[nodiscard]] const Text& At(int row, int column) const;
  void Set(int row, int column, Text value);
  using RowCells = std::span<Text, kColumns>;
  /// The cells of a row, to be written.
  [[nodiscard]] RowCells Row(int row);
  [[nodiscard]] const RowChanges& Changes() const { return changes_; }

 private:
  static std::size_t Offset(int row, int column);
  RowChanges changes_;
  std::array<Text, static_cast<std::size_t>(kRows) * kColumns> cells_;
};

/// A flag per row: 1 where the row holds a card or the deck information, else 0. Raises error 9.
class PresentFlags {
 public:
  [[nodiscard]] std::int16_t At(int row) const;
  void Set(int row, std::int16_t flag);
  [[nodiscard]] const RowChanges& Changes() const { return changes_; }

 private:
  RowChanges changes_;
  std::array<std::int16_t, kRows> flags_{};
};

}  // namespace tessara
