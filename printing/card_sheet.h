#pragma once

#include <cstdint>

#include "base/text.h"
#include "machine/spreadsheet.h"

namespace tessara {

/// The two sides of a card.
inline constexpr TextView kFront = u"Front";
inline constexpr TextView kBack = u"Back";

/// How a sheet is turned between its front and its back: over its side edge, or over its top edge.
enum class SheetTurn { kOverSide, kOverTop };

/// The slots of a sheet in card order: eight cards.
inline constexpr std::int16_t kFirstSlot = 2;
inline constexpr std::int16_t kLastSlot = 9;

/// The cells of the sheet that the cards are printed on. A slot has one cell on the front and,
/// for each way of turning the sheet, the cell on the back that lies behind it. A position that
/// is no slot sets the fonts and writes nothing. All operations raise the server's errors.
class CardSheet {
 public:
  explicit CardSheet(Worksheet& sheet) : sheet_(sheet) {}

  /// Sets the fonts of the side and writes the text; a side of another name does nothing.
  void PlaceCardText(const Text& text, std::int16_t position, const Text& side, SheetTurn turn);
  void PlaceFrontText(const Text& text, std::int16_t position);
  void PlaceBackText(const Text& text, std::int16_t position, SheetTurn turn);
  /// For a sheet turned over its side edge: the columns change places.
  void PlaceBackMirrored(const Text& text, std::int16_t position);
  /// For a sheet turned over its top edge: the rows change places.
  void PlaceBackFlipped(const Text& text, std::int16_t position);

  /// Empties the card cells; the page line stays.
  void ClearCardCells();
  /// `mark` tells how the sheet is to be turned; empty on a back.
  void WritePageLine(std::int16_t page, const Text& side, const Text& mark);

 private:
  struct Cell {
    std::int16_t row;
    std::int16_t column;
  };
  struct Slot {
    Cell front;
    Cell mirrored;
    Cell flipped;
  };
  static const Slot* SlotAt(std::int16_t position);
  void SetFonts(TextView name, std::int16_t points);
  void Place(const Text& text, std::int16_t position, Cell Slot::*cell);

  Worksheet& sheet_;
};

}  // namespace tessara
