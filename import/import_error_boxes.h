#pragma once

#include "base/run_time_error.h"
#include "import/import_common.h"
#include "import/import_listener.h"

namespace tessara {

// What the user is told of a wrong import file, in a message box: all the words stand here.

/// Tells the user the first error of a text in a box, and nothing of what is passed over.
class ImportErrorBoxes : public ImportListener {
 public:
  explicit ImportErrorBoxes(const ImportContext& context) : context_(context) {}

  void MeetCard(std::int16_t card, std::size_t line) override;
  void Meet(const ImportFinding& finding) override;
  [[nodiscard]] bool GoesOn() const override { return false; }

 private:
  const ImportContext& context_;
};

/// The first line names no format.
void ShowFormatMissing(MessageBoxes& messages);
/// The file has been read, and there was no card in it.
void ShowNoCards(MessageBoxes& messages);
/// An error that the reader did not foresee.
void ShowImportError(const RunTimeError& error, MessageBoxes& messages);
/// The line that was read when it happened; a box of its own, behind the one of the error.
void ShowLineWithError(const Text& line, MessageBoxes& messages);

}  // namespace tessara
