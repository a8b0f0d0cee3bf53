#pragma once

#include "base/text.h"

namespace tessara {

/// The user's settings: strings by key, in the one section that the program has.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;
  /// The stored text, or `defaultValue` for a missing key.
  [[nodiscard]] virtual Text Read(const Text& key, const Text& defaultValue) const = 0;
  /// Stores the text. A store that can't be written stays as it is, silently.
  virtual void Write(const Text& key, const Text& value) = 0;
};

}  // namespace tessara
