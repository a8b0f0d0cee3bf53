#pragma once

#include <memory>
#include <optional>

#include "adapters/posix/process/lazy_module.h"
#include "machine/dialogs.h"
#include "machine/print_surface.h"

class QWidget;

namespace tessara {

/// The printer dialog and the print surface. They live in a loadable module of their own, since few
/// starts of the program print and all would pay for the print library.
class PrintModule {
 public:
  virtual ~PrintModule() = default;
  /// Nothing on a cancel.
  virtual std::optional<PrinterChoice> AskPrinter(QWidget* parent) = 0;
  virtual PrintSurface& Surface() = 0;
};

/// The module's one function, by the name that it has in the file. It makes a module; the caller
/// owns it.
using MakePrintModule = PrintModule* (*)();
inline constexpr const char* kMakePrintModule = "tessara_make_print_module";

/// Loads the module at its first use.
class PrintModuleSource {
 public:
  explicit PrintModuleSource(const Text& folder);
  /// Raises error 482 where there is no module in the folder.
  [[nodiscard]] PrintModule& Module();

 private:
  LazyModule file_;
  std::unique_ptr<PrintModule> module_;
};

}  // namespace tessara
