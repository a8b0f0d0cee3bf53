#pragma once

#include "base/text.h"

namespace tessara {

/// Keeps what a save is about to lose, so that the user can take it back.
class SafetyCopies {
 public:
  virtual ~SafetyCopies() = default;
  /// Keeps the bytes of the file that `path` names. Called before it is deleted or written over.
  /// Raises nothing and tells nobody where that fails: the save goes on.
  virtual void Keep(const Text& path) noexcept = 0;
};

}  // namespace tessara
