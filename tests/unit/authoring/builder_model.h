#pragma once

#include <array>
#include <vector>

#include "tests/unit/authoring/builder_fixture.h"

namespace tessara::test {

/// A row outside the table: the program ends there.
struct OutOfTable {};

/// What a builder is to have come to, worked out without events: the table, the counts, the
/// buttons. A step that the user can't take does nothing.
class BuilderModel {
 public:
  using Row = std::array<Text, kColumns>;

  std::array<Row, kRows> rows;
  std::array<int, kRows> present{};
  int current = 0;
  int count = 0;
  bool deckChanged = false;
  bool saveOffered = false;
  bool goTo = false;
  ButtonsLook look;
  Text number;
  std::vector<Text> boxes;  ///< titles, of this step
  bool yes = false;         ///< what the user answers in this step
  std::array<int, 4> limit = {48, 48, 48, 48};
  int capitals = 0;

  explicit BuilderModel(const BuilderFixture& fixture)
      : current(fixture.state.deck.currentCard),
        count(fixture.state.deck.cardCount),
        goTo(fixture.deck->goToCard.Enabled()) {
    for (int row = 0; row < kRows; ++row) {
      At(row) = {};
      for (int column = 0; column < kColumns; ++column)
        Cell(row, column) = fixture.Cell(row, column);
      Present(row) = fixture.state.deck.cardPresent.At(row);
    }
  }

 protected:
  template <class Array>
  static auto& On(Array& array, int index) {
    return array[static_cast<std::size_t>(index)];
  }

  Row& At(int row) {
    if (row < 0 || row >= kRows) throw OutOfTable{};
    return rows[static_cast<std::size_t>(row)];
  }
  Text& Cell(int row, int column) { return At(row)[static_cast<std::size_t>(column)]; }
  int& Present(int row) {
    At(row);
    return present[static_cast<std::size_t>(row)];
  }

  bool Ask(const Text& title) {
    boxes.push_back(title);
    return yes;
  }
  void StandAtCardOne() {
    if (current == 0) current = 1;
  }
  void SetArrows() {
    look.previousOn = count != 0 && current != 1;
    look.nextOn = count != 0 && current < count;
  }
  void BecomeNew() { look = {false, false, look.cancelOn, false, false, kAdd, kCancel}; }
  void BecomeOld() {
    look = {count<200, false, count> 0, false, false, kChange, kDelete};
    SetArrows();
  }
  void SetGoTo() { goTo = count > 1; }

  /// Asks, takes the current card out, and moves up the cards behind the first gap.
  void AskAndDelete() {
    if (!Ask(u"Delete Card # " + DecimalText(current))) return;
    Blank(current);
    if (current == count) {
      --current;
    } else {
      CloseGap();
    }
    --count;
    SetArrows();
  }

 private:
  void Blank(int row) {
    const Text stray = Cell(row, 0);
    At(row) = {};
    Cell(row, 0) = stray;
    Present(row) = 0;
  }
  void CloseGap() {
    int gap = 1;
    while (gap <= 200 && Present(gap) != 0) ++gap;
    if (gap > 200) return;
    for (; Present(gap + 1) == 1; ++gap) {
      const Text stray = Cell(gap, 0);
      At(gap) = At(gap + 1);
      Cell(gap, 0) = stray;
      Cell(gap, kRowNumber) = DecimalText(gap);
      Present(gap) = 1;
    }
    Blank(gap);
  }
};

}  // namespace tessara::test
