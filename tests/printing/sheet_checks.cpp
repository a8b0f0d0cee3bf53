#include "tests/printing/sheet_checks.h"

#include <cmath>
#include <doctest/doctest.h>
#include <string>

namespace tessara::test {

namespace {

struct Spot {
  double x;
  double y;
};

Spot CenterOf(const PrintedWord& word) {
  return {(word.left + word.right) / 2, (word.top + word.bottom) / 2};
}

/// Where a spot of the sheet's face is when the sheet is turned and seen from behind.
Spot Turned(const PrintedPage& page, const Spot& spot, bool flip) {
  return flip ? Spot{spot.x, page.height - spot.y} : Spot{page.width - spot.x, spot.y};
}

void CheckBackBehindFront(const PrintedPage& front, const PrintedPage& back, int card, bool flip) {
  CAPTURE(card);
  const Spot face = CenterOf(front.Word("F" + std::to_string(card)));
  const Spot behind = Turned(back, CenterOf(back.Word("B" + std::to_string(card))), flip);
  CHECK(std::abs(face.x - behind.x) < kTolerance);
  CHECK(std::abs(face.y - behind.y) < kTolerance);
}

}  // namespace

void CheckSheets(const std::vector<PrintedPage>& pages, int cards, bool flip) {
  const int sheets = (cards + 7) / 8;
  REQUIRE(static_cast<int>(pages.size()) == 2 * sheets);
  for (int card = 1; card <= cards; ++card) {
    const auto sheet = static_cast<std::size_t>((card - 1) / 8);
    CheckBackBehindFront(pages[sheet], pages[sheet + static_cast<std::size_t>(sheets)], card, flip);
  }
}

}  // namespace tessara::test
