#pragma once

#include <cstdint>

#include "base/text.h"
#include "deck/card_mode.h"
#include "deck/card_table.h"

namespace tessara {

enum class DeckKind { kStandardDeck, kExtendedDeck };
using enum DeckKind;

/// The open deck: its cards, its file, and how it is taken. Filled by the deck file and the
/// imports, edited in place by the builders.
struct Deck {
  CardTable cardGrid;
  PresentFlags cardPresent;
  std::int16_t currentCard = 0;      ///< row on show, from 1; 0 where no deck is in the window
  std::int16_t cardCount = 0;        ///< number of cards; ClearAllCards leaves it
  std::uint64_t changesAtClear = 0;  ///< count of the grid's changes when it was cleared last
  Text filePath;                     ///< empty for a deck without a file

  // Copies of the information row's texts.
  Text title;
  Text author;
  Text date;
  Text typeName;
  Text description;

  // What has happened to it.
  bool changed = false;      ///< the table differs from the file
  bool onFile = false;       ///< the save deletes the file first
  bool saveOffered = false;  ///< built or imported, never had a file name chosen

  // How it is taken.
  DeckKind kind = kStandardDeck;
  CardMode mode = kStudyMode;
  double testPoints = 0;  ///< in steps of 0.5

  /// The text of a cell.
  [[nodiscard]] const Text& Cell(int row, int column) const { return cardGrid.At(row, column); }
  /// True where the front text of card 1 is not empty: the program's test for a deck with cards.
  [[nodiscard]] bool HasCards() const { return !Cell(1, kCardText).empty(); }
};

/// Empties rows 0 to 200 that are present. Rows 201 and 202, the count and the deck strings stay.
void ClearAllCards(Deck& deck);
/// Empties the information row and the five deck strings.
void ClearDeckInfo(Deck& deck);
/// Empties a card's row, its stray column apart, and marks it absent. Raises error 9.
void EmptyCardRow(Deck& deck, int row);
/// Closes the first gap in rows 1 to 200 and renumbers what moves up.
void CompactCards(Deck& deck);

}  // namespace tessara
