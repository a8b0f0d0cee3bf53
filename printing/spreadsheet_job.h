#pragma once

#include <chrono>
#include <memory>

#include "machine/machine.h"
#include "machine/spreadsheet.h"

namespace tessara {

/// The template of a card sheet, in the program's folder.
inline constexpr TextView kTemplateName = u"Notelet.xlt";

/// The spreadsheet job: the open template and the sheet that the cards are written to. One for a
/// run of the program.
class SpreadsheetJob {
 public:
  explicit SpreadsheetJob(const Machine& machine) : machine_(machine) {}

  /// True where the server and the template are there. Says nothing where they are not.
  [[nodiscard]] bool TestSpreadsheetServer() const;

  /// A job may come, or comes no more: the server starts ahead of it after a while, or ends.
  void Prepare(std::chrono::milliseconds after) const;
  void Dismiss() const;

  /// Opens the template, with the server's own questions switched off. Raises 432 and 440; what
  /// the steps before the error have set stays.
  void Open();
  /// Closes the template without saving. Raises 440 and leaves the workbook as it is.
  void Close();

  /// Null where no job is open, except after a job that failed. Only tests ask.
  [[nodiscard]] const std::shared_ptr<Workbook>& JobWorkbook() const { return jobWorkbook_; }
  /// The sheet of this job or, between jobs, of the last one.
  [[nodiscard]] const std::shared_ptr<Worksheet>& JobSheet() const { return jobSheet_; }

 private:
  const Machine& machine_;
  std::shared_ptr<Workbook> jobWorkbook_;
  std::shared_ptr<Worksheet> jobSheet_;
};

}  // namespace tessara
