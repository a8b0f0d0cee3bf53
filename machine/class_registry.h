#pragma once

#include "base/text.h"

namespace tessara {

/// Write-only registry of document classes. Keys are paths with "\"; failures are silent codes.
class ClassRegistry {
 public:
  virtual ~ClassRegistry() = default;
  /// Makes the key and its parents. 0 on success.
  virtual int CreateClassKey(const Text& key) = 0;
  /// Sets a string value of an existing key; an empty name is the default value. 0 on success.
  virtual int SetClassValue(const Text& key, const Text& valueName, const Text& value) = 0;
  /// All values have been set: time to make them known to the desktop.
  virtual void Publish() = 0;
};

}  // namespace tessara
