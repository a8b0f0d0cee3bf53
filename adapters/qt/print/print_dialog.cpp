#include "adapters/qt/print/print_dialog.h"

#include <QPrintDialog>

#include "adapters/qt/text/qt_text.h"

namespace tessara {

std::optional<PrinterChoice> PrintDialog::Ask(QWidget* parent) {
  QPrintDialog dialog(&printer_, parent);
  dialog.setOptions(QAbstractPrintDialog::PrintToFile);
  const bool accepted = dialog.exec() == QDialog::Accepted;
  const PrinterChoice choice{Destination(), printer_.copyCount()};
  printer_.setCopyCount(1);
  return accepted ? std::optional(choice) : std::nullopt;
}

PrintDestination PrintDialog::Destination() const {
  const QString file = printer_.outputFileName();
  if (printer_.outputFormat() == QPrinter::PdfFormat || !file.isEmpty()) {
    return {{}, FromQString(file)};
  }
  return {FromQString(printer_.printerName()), {}};
}

}  // namespace tessara
