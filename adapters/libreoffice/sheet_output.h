#pragma once

#include <memory>
#include <string>
#include <vector>

#include "adapters/libreoffice/sheet_content.h"
#include "adapters/libreoffice/sheet_layout.h"
#include "machine/dialogs.h"

namespace tessara {

/// Where printed sheets go: each at once to a print queue, or all of a job into one PDF file. For a
/// file the server keeps them, and exports many at once.
class SheetOutput {
 public:
  /// Forgets the sheets of a job that was not finished.
  void SetDestination(const PrintDestination& destination);
  /// Takes a sheet as it is laid out, with what it shows. Raises error 482 where the queue refuses
  /// it, and the layout's errors.
  void Print(const std::shared_ptr<SheetLayout>& layout, const SheetContent& content);

  /// Has the layout that keeps the sheets export them. Raises its errors, and keeps what is needed
  /// to have another one do it.
  void Export();
  void ExportBy(SheetLayout& other);
  /// Writes the PDF file, in the order of printing; nothing where no sheet was exported. Raises
  /// the errors of writing a file and 482, and forgets the sheets all the same.
  void Finish();

 private:
  PrintDestination destination_;
  std::shared_ptr<SheetLayout> layout_;
  std::vector<SheetContent> kept_;  ///< the sheets that the layout keeps
  std::vector<std::string> pages_;  ///< bytes of PDF files, with what came before these sheets
};

}  // namespace tessara
