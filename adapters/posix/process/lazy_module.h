#pragma once

#include <string>

#include "base/text.h"

namespace tessara {

/// A loadable module of the program's folder. It is loaded when something of it is first asked for,
/// so that a start pays nothing for it, and stays loaded: threads of its libraries may outlive
/// their use.
class LazyModule {
 public:
  LazyModule(const Text& folder, const char* fileName);

  /// Loads nothing.
  [[nodiscard]] bool Exists() const;
  /// A function of the module, as a pointer of that type. Null where there is no module, where it
  /// can't be loaded, since a library that it needs is missing, or where it has no such function.
  template <class Function>
  [[nodiscard]] Function Find(const char* name) const {
    return reinterpret_cast<Function>(Address(name));
  }

 private:
  [[nodiscard]] void* Address(const char* name) const;

  std::string path_;
};

}  // namespace tessara
