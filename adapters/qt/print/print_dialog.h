#pragma once

#include <QPrinter>
#include <memory>
#include <optional>

#include "machine/dialogs.h"

namespace tessara {

/// The printer dialog. It remembers the printer that was chosen last, but not the copies: their
/// number is the caller's, and left on the printer it would multiply them. Where the printing
/// system does not answer it offers the PDF file alone.
class PrintDialog {
 public:
  std::optional<PrinterChoice> Ask(QWidget* parent);

 private:
  void FindPrinters();
  [[nodiscard]] PrintDestination Destination() const;

  std::unique_ptr<QPrinter> printer_;
  bool answered_ = false;  ///< the printing system, when it was last asked
};

}  // namespace tessara
