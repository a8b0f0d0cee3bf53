#pragma once

#include "platform/run_time_error.h"
#include "platform/spreadsheet.h"

namespace tessara {

/// The spreadsheet server of a machine that has none: every operation raises error 432.
class AbsentSpreadsheet : public SpreadsheetServer {
 public:
  void Probe(const Text& /*templatePath*/) override { Fail(); }
  std::shared_ptr<Workbook> Bind(const Text& /*templatePath*/) override { Fail(); }
  void SetDestination(const PrintDestination& /*destination*/) override {}
  void FinishDestination() override {}

 private:
  [[noreturn]] static void Fail() { throw RunTimeError(ErrorNumber::kAutomationClassNotFound); }
};

}  // namespace tessara
