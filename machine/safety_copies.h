#pragma once

#include <string_view>
#include <vector>

#include "base/text.h"

namespace tessara {

/// What a save is about to do with the file that is there.
enum class Loss { kDeleted, kWrittenOver };

/// A deck that a program which has ended did not save.
struct LeftDeck {
  Text name;     ///< "verbs"
  Text oldPath;  ///< where it lay until now
  Text path;
};

/// Keeps what a save is about to lose, and what no file has yet, so that the user can take it back.
/// Nothing here raises anything or tells anybody where it fails: the program goes on.
class SafetyCopies {
 public:
  virtual ~SafetyCopies() = default;

  /// Keeps the bytes of the file that `path` names. Called before they are lost in that way: what
  /// is kept of a file to be deleted does not last where the file is written over instead.
  virtual void Keep(const Text& path, Loss loss) noexcept = 0;

  /// Keeps a deck that was to be saved in a file of that name, under a name that says that it was
  /// not. Where it lies; empty where it could not be kept. Takes the place of the unsaved deck.
  virtual Text KeepNotSaved(const Text& fileName, std::string_view deck) noexcept = 0;

  /// Keeps the open deck as it is now in place of what was kept of it before, in one step. It lasts
  /// beyond the end of the program, however that comes; a power cut apart.
  virtual void KeepUnsaved(const Text& fileName, std::string_view deck) noexcept = 0;
  /// The open deck is saved or given up: what is kept of it goes.
  virtual void DropUnsaved() noexcept = 0;
  /// The program goes on with another deck, or with this one without cards that are kept: what is
  /// kept stays until another start finds it.
  virtual void LeaveUnsaved() noexcept = 0;

  /// The unsaved decks of programs that have ended. From now on they are copies like any other.
  virtual std::vector<LeftDeck> TakeLeftDecks() noexcept = 0;
};

}  // namespace tessara
