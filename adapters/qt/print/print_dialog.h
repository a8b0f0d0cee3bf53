#pragma once

#include <QPrinter>
#include <optional>

#include "machine/dialogs.h"

namespace tessara {

/// The printer dialog. It remembers the printer that was chosen last, but not the copies: their
/// number is the caller's, and left on the printer it would multiply them.
class PrintDialog {
 public:
  std::optional<PrinterChoice> Ask(QWidget* parent);

 private:
  [[nodiscard]] PrintDestination Destination() const;

  QPrinter printer_{QPrinter::HighResolution};
};

}  // namespace tessara
