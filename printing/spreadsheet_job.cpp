#include "printing/spreadsheet_job.h"

#include "base/run_time_error.h"
#include "machine/machine.h"

namespace tessara {

bool SpreadsheetJob::TestSpreadsheetServer() const {
  try {
    machine_.spreadsheet.Probe(ProgramFile(machine_, kTemplateName));
    return true;
  } catch (const RunTimeError&) {
    return false;
  }
}

void SpreadsheetJob::Prepare(std::chrono::milliseconds after) const {
  machine_.spreadsheet.Prepare(ProgramFile(machine_, kTemplateName), after);
}

void SpreadsheetJob::Dismiss() const {
  machine_.spreadsheet.Dismiss();
}

void SpreadsheetJob::Open() {
  jobWorkbook_ = machine_.spreadsheet.Bind(ProgramFile(machine_, kTemplateName));
  jobSheet_ = jobWorkbook_->ActiveSheet();
  jobWorkbook_->SetDisplayAlerts(false);
}

void SpreadsheetJob::Close() {
  jobWorkbook_->Close();
  jobWorkbook_.reset();
}

}  // namespace tessara
