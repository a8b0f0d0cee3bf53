#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "platform/text.h"

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

enum DeckKind : std::int32_t { kStandardDeck = 0, kExtendedDeck = 1 };
enum Mode : std::int32_t { kStudyMode = 0, kQuizMode = 1, kTestMode = 2 };

/// All data of the open deck and all state that outlives a window. One for a run of the program.
struct ProgramState {
  // The deck.
  CardTable CardGrid;
  PresentFlags CardPresent;
  std::int16_t CurrentCard = 0;  ///< row on show, from 1; 0 where no deck is in the window
  std::int16_t CardCount = 0;    ///< number of cards; ClearAllCards leaves it
  Text DeckFilePath;             ///< empty for a deck without a file
  Text DeckTitle;
  Text DeckAuthor;
  Text DeckDate;
  Text DeckTypeName;
  Text DeckDescription;

  // What has happened to it.
  bool CardChanged = false;  ///< in the builders: text changes do not count as edits
  bool DeckChanged = false;  ///< the table differs from the file
  bool DeckOnFile = false;   ///< the save deletes the file first
  bool SaveOffered = false;  ///< built or imported, never had a file name chosen

  // How it is taken.
  std::int32_t DeckType = kStandardDeck;
  std::int32_t CardMode = kStudyMode;
  double TestPoints = 0;  ///< in steps of 0.5

  // Start-up.
  Text CommandLineFile;
  bool DeckFromCommandLine = false;
  bool CanPrintCards = false;

  // File dialogs.
  Text FolderUsedLast;  ///< of the file that was chosen last; empty before the first one

  // Settings, as read from the store or changed since in the set-up window.
  Text ShowSplash;
  Text LargeCardColor;
  Text LargeCard3D;
  Text SmallCardColor;
  Text SmallCard3D;
  Text BackDrop;
  bool FirstLoad = false;

  // The question builder: capitals typed so far, and the length that each answer line is down to.
  std::int16_t CapitalCount = 0;
  std::array<int, 4> AnswerLineLimit = {48, 48, 48, 48};

  // The imports.
  Text ImportLine;
  std::int16_t ImportCardNumber = 0;
  std::int16_t ImportPrevCard = 0;
  Text ImportChoiceLetter;
  Text ImportLastLetter;
  std::int16_t ImportStdCard = 0;
  std::int16_t ImportStdPrev = 0;

  // Printing.
  bool PrintCancelled = false;
  std::int16_t FlatLastY = 0;  ///< twips below the top of the page, after the last wrapped block

  /// The text of a cell.
  [[nodiscard]] const Text& Cell(int row, int column) const { return CardGrid.At(row, column); }
  /// True where the front text of card 1 is not empty: the program's test for a deck with cards.
  [[nodiscard]] bool HasCards() const { return !Cell(1, kCardText).empty(); }
};

/// Empties rows 0 to 200 that are present. Rows 201 and 202, the count and the deck strings stay.
void ClearAllCards(ProgramState& state);
/// Empties the information row and the five deck strings.
void ClearDeckInfo(ProgramState& state);
/// Empties a card's row, its stray column apart, and marks it absent. Raises error 9.
void EmptyCardRow(ProgramState& state, int row);
/// Closes the first gap in rows 1 to 200 and renumbers what moves up.
void CompactCards(ProgramState& state);

}  // namespace tessara
