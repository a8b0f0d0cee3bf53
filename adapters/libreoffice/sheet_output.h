#pragma once

#include <string>
#include <vector>

#include "machine/dialogs.h"

namespace tessara {

/// Where printed sheets go: each at once to a print queue, or all of a job into one PDF file.
class SheetOutput {
 public:
  /// Forgets the sheets of a job that was not finished.
  void SetDestination(const PrintDestination& destination);
  /// Takes the page in the PDF file. Raises error 482 where the queue refuses it.
  void Print(const std::string& pagePath);
  /// Writes the PDF file, in the order of printing; nothing where no sheet was printed. Raises
  /// the errors of writing a file and 482, and forgets the sheets all the same.
  void Finish();

 private:
  PrintDestination destination_;
  std::vector<std::string> pages_;  ///< bytes of PDF files of one page each
};

}  // namespace tessara
