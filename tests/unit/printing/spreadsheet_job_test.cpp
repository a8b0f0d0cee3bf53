#include "printing/spreadsheet_job.h"

#include <doctest/doctest.h>

#include "base/run_time_error.h"
#include "tests/support/fakes/fake_machine.h"
#include "tests/support/fakes/recording_spreadsheet.h"

namespace tessara {
namespace {

using Calls = std::vector<std::string>;

struct Job {
  test::FakeMachine fakes;
  test::RecordingSpreadsheet server;
  Machine machine = WithServer();
  SpreadsheetJob job{machine};

 private:
  Machine WithServer() {
    fakes.spreadsheet = &server;
    return fakes.Get();
  }
};

TEST_CASE("the test of the server looks for the template and binds nothing") {
  Job job;
  CHECK(job.job.TestSpreadsheetServer());
  CHECK(job.server.record.calls == Calls{"Probe /opt/tessara/Notelet.xlt"});
  CHECK(job.job.JobWorkbook() == nullptr);
  CHECK(job.job.JobSheet() == nullptr);
  CHECK(job.fakes.messages.shown.empty());
}

TEST_CASE("any error of the test is a silent no") {
  for (const ErrorNumber number : {ErrorNumber::kAutomationClassNotFound,
                                   ErrorNumber::kAutomationError, ErrorNumber::kPermissionDenied}) {
    Job job;
    job.server.record.FailAt("Probe", number);
    CHECK_FALSE(job.job.TestSpreadsheetServer());
    CHECK(job.fakes.messages.shown.empty());
  }
}

TEST_CASE("a program folder at the root gives a path with two separators") {
  Job job;
  job.machine.programFolder = u"/";
  job.job.Open();
  CHECK(job.server.record.calls.front() == "Bind //Notelet.xlt");
}

TEST_CASE("opening binds, takes the active sheet and switches the questions off") {
  Job job;
  job.job.Open();
  CHECK(job.server.record.calls ==
        Calls{"Bind /opt/tessara/Notelet.xlt", "ActiveSheet", "Alerts off"});
  CHECK(job.job.JobWorkbook() != nullptr);
  CHECK(job.job.JobSheet() != nullptr);
}

TEST_CASE("closing releases the workbook and keeps the sheet") {
  Job job;
  job.job.Open();
  const auto sheet = job.job.JobSheet();
  job.server.record.Take();
  job.job.Close();
  CHECK(job.server.record.calls == Calls{"Close"});
  CHECK(job.job.JobWorkbook() == nullptr);
  CHECK(job.job.JobSheet() == sheet);
}

TEST_CASE("a failed opening leaves what its steps have set, and the next one replaces it") {
  struct Case {
    const char* failing;
    bool workbook;
    bool sheet;
  };
  for (const Case& c :
       {Case{"Bind", false, false}, Case{"ActiveSheet", true, false}, Case{"Alerts", true, true}}) {
    CAPTURE(c.failing);
    Job job;
    job.server.record.FailAt(c.failing, ErrorNumber::kAutomationError);
    CHECK_THROWS_AS(job.job.Open(), RunTimeError);
    CHECK((job.job.JobWorkbook() != nullptr) == c.workbook);
    CHECK((job.job.JobSheet() != nullptr) == c.sheet);
    CHECK(job.server.record.Count("Close") == 0);
    const auto left = job.job.JobWorkbook();
    job.job.Open();
    CHECK(job.job.JobWorkbook() != nullptr);
    CHECK(job.job.JobWorkbook() != left);
  }
}

}  // namespace
}  // namespace tessara
