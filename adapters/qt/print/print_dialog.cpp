#include "adapters/qt/print/print_dialog.h"

#include <QPrintDialog>

#include "adapters/cups/printing_system.h"
#include "adapters/qt/devices/plain_pointer.h"
#include "adapters/qt/text/qt_text.h"

namespace tessara {

/// Qt would wait for the printing system without a limit.
void PrintDialog::FindPrinters() {
  HidePrintingSystem(false);
  const bool answers = ConnectToPrintingSystem() != nullptr;
  HidePrintingSystem(!answers);
  if (printer_ == nullptr || answers != answered_) {
    printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
  }
  answered_ = answers;
}

std::optional<PrinterChoice> PrintDialog::Ask(QWidget* parent) {
  FindPrinters();
  QPrintDialog dialog(printer_.get(), parent);
  dialog.setOptions(QAbstractPrintDialog::PrintToFile);
  const PlainPointer pointer;
  const bool accepted = dialog.exec() == QDialog::Accepted;
  const PrinterChoice choice{Destination(), printer_->copyCount()};
  printer_->setCopyCount(1);
  return accepted ? std::optional(choice) : std::nullopt;
}

PrintDestination PrintDialog::Destination() const {
  const QString file = printer_->outputFileName();
  if (printer_->outputFormat() == QPrinter::PdfFormat || !file.isEmpty()) {
    return {{}, FromQString(file)};
  }
  return {FromQString(printer_->printerName()), {}};
}

}  // namespace tessara
