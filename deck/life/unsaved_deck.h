#pragma once

#include <cstdint>
#include <vector>

#include "deck/file/deck_image.h"
#include "machine/machine.h"

namespace tessara {

/// Sees to it that no card in the table is lost, however the program ends: while the deck has
/// unsaved changes, the safety copies hold it as it is. docs/saving.md tells when a deck comes
/// there and when it goes.
class UnsavedDeck {
 public:
  UnsavedDeck(const ProgramState& state, const Machine& machine);

  /// Keeps the deck where the table has changed since the last time. A box can be the last that the
  /// program shows: before it comes up, and at the end of each event, the deck is kept. Costs
  /// nothing where nothing has changed.
  void BeforeBox() noexcept;
  void EventEnds() noexcept;

  /// The deck is in its file.
  void Saved();
  /// It may not be there as it is: a step of the save has failed, or cards stand where a
  /// save has ended. Tells the user where it is kept.
  void NotSaved(const Text& path);
  /// The user has answered that the changes are not to be saved.
  void GivenUp();

  /// The table is about to be emptied or filled: until Follow its changes are nobody's work. What
  /// is kept of a deck that was neither saved nor given up stays, and the next start tells of it.
  void Leave();
  enum class Table { kChanged, kAsInFile };
  void Follow(Table table);

 private:
  /// A card that is not among those that the deck counts, for nothing has made its row present or
  /// the count ends before it: the next one that is added can come there.
  struct LooseCard {
    int row;
    Text front;
    Text back;
    bool present;
  };

  void KeepIfChanged();
  void LeaveCardsWrittenOver();
  [[nodiscard]] std::vector<LooseCard> LooseCards() const;
  [[nodiscard]] bool IsWrittenOver(const LooseCard& card) const;

  const ProgramState& state_;
  SafetyCopies& copies_;
  Desktop& desktop_;
  DeckImage image_;
  std::vector<LooseCard> looseCards_;  ///< among what is kept
  std::uint64_t seen_ = 0;             ///< changes of the table that have been looked at
  bool following_ = true;
  bool unsaved_ = false;  ///< cards have changed since the deck was loaded, saved or given up
  bool givenUp_ = false;  ///< in this event
};

/// Tells of the decks that earlier programs could not save. Those were renamed by this: what the
/// path is called from now on.
[[nodiscard]] Text TellOfLeftDecks(const Machine& machine, const Text& path);

}  // namespace tessara
