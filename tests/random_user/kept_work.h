#pragma once

#include <functional>
#include <set>
#include <string>

namespace tessara::test {

/// Holds that no card is lost: what was in the table is there, in a file or among the copies, but
/// for what a question or a command for a single card has given up; and what is in the table is on
/// the disk too, so that it would be there if the program ended now. A card is its record.
class KeptWork {
 public:
  using Cards = std::set<std::string>;

  explicit KeptWork(std::function<Cards()> onDisk) : onDisk_(std::move(onDisk)) {}

  /// The table as it is now; empty once the program has ended. How many cards are lost since the
  /// last look, or would be.
  std::size_t Look(const Cards& inTable);
  /// A question has been answered that gives up what is in the table.
  void GiveUp() { givenUp_ = inTable_; }
  /// A command for the card on show has been confirmed, or a builder shows a card to be changed:
  /// one card may go until the next look.
  void MayLoseOne() { mayLoseOne_ = true; }

 private:
  std::function<Cards()> onDisk_;
  Cards inTable_;
  Cards givenUp_;
  bool mayLoseOne_ = false;
};

}  // namespace tessara::test
