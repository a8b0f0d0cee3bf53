#include "printing/card_sheet.h"

#include <array>
#include <cstddef>

namespace tessara {

namespace {

constexpr std::int16_t kA = 1;
constexpr std::int16_t kC = 3;

constexpr TextView kAllCells = u"A1:C7";
constexpr TextView kPageCell = u"C6";
constexpr std::int16_t kPageRow = 6;
constexpr std::int16_t kPagePoints = 10;

constexpr TextView kFrontFont = u"Arial";
constexpr std::int16_t kFrontPoints = 12;
constexpr TextView kBackFont = u"Courier New";
constexpr std::int16_t kBackPoints = 11;

}  // namespace

const CardSheet::Slot* CardSheet::SlotAt(std::int16_t position) {
  static constexpr std::array<Slot, kLastSlot - kFirstSlot + 1> kSlots = {{
      {.front = {1, kA}, .mirrored = {1, kC}, .flipped = {7, kA}},
      {.front = {3, kA}, .mirrored = {3, kC}, .flipped = {5, kA}},
      {.front = {5, kA}, .mirrored = {5, kC}, .flipped = {3, kA}},
      {.front = {7, kA}, .mirrored = {7, kC}, .flipped = {1, kA}},
      {.front = {1, kC}, .mirrored = {1, kA}, .flipped = {7, kC}},
      {.front = {3, kC}, .mirrored = {3, kA}, .flipped = {5, kC}},
      {.front = {5, kC}, .mirrored = {5, kA}, .flipped = {3, kC}},
      {.front = {7, kC}, .mirrored = {7, kA}, .flipped = {1, kC}},
  }};
  if (position < kFirstSlot || position > kLastSlot) return nullptr;
  return &kSlots[static_cast<std::size_t>(position - kFirstSlot)];
}

void CardSheet::PlaceCardText(const Text& text, std::int16_t position, const Text& side,
                              SheetTurn turn) {
  if (side == kFront) PlaceFrontText(text, position);
  if (side == kBack) PlaceBackText(text, position, turn);
}

void CardSheet::PlaceFrontText(const Text& text, std::int16_t position) {
  SetFonts(kFrontFont, kFrontPoints);
  Place(text, position, &Slot::front);
}

void CardSheet::PlaceBackText(const Text& text, std::int16_t position, SheetTurn turn) {
  if (turn == SheetTurn::kOverTop) {
    PlaceBackFlipped(text, position);
  } else {
    PlaceBackMirrored(text, position);
  }
}

void CardSheet::PlaceBackMirrored(const Text& text, std::int16_t position) {
  SetFonts(kBackFont, kBackPoints);
  Place(text, position, &Slot::mirrored);
}

void CardSheet::PlaceBackFlipped(const Text& text, std::int16_t position) {
  SetFonts(kBackFont, kBackPoints);
  Place(text, position, &Slot::flipped);
}

void CardSheet::ClearCardCells() {
  for (std::int16_t slot = kFirstSlot; slot <= kLastSlot; ++slot) {
    Place(Text(), slot, &Slot::front);
  }
}

void CardSheet::WritePageLine(std::int16_t page, const Text& side, const Text& mark) {
  // The apostrophe marks a text for the server and does not print.
  sheet_.SetCell(kPageRow, kC, u"' Page " + DecimalText(page) + u" - " + side + u" " + mark);
}

void CardSheet::SetFonts(TextView name, std::int16_t points) {
  sheet_.SetFontName(Text(kAllCells), Text(name));
  sheet_.SetFontSize(Text(kAllCells), points);
  sheet_.SetFontSize(Text(kPageCell), kPagePoints);
}

void CardSheet::Place(const Text& text, std::int16_t position, Cell Slot::*cell) {
  const Slot* slot = SlotAt(position);
  if (slot != nullptr) sheet_.SetCell((slot->*cell).row, (slot->*cell).column, text);
}

}  // namespace tessara
