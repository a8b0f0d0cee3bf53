#pragma once

#include "adapters/qt/devices/print_module.h"

namespace tessara {

/// The print surface of the module, which its first use loads.
class LazyPrintSurface : public Printer {
 public:
  explicit LazyPrintSurface(PrintModuleSource& printing) : printing_(printing) {}
  [[nodiscard]] PrintSurface& Surface() override { return printing_.Module().Surface(); }

 private:
  PrintModuleSource& printing_;
};

}  // namespace tessara
