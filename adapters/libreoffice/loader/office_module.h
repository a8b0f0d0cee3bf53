#pragma once

#include <memory>
#include <stop_token>

#include "base/text.h"
#include "machine/dialogs.h"
#include "machine/spreadsheet.h"

namespace tessara {

/// What the module of the spreadsheet server gives to the program that loads it. The caller has
/// looked for server and template, and asks from one thread at a time. All operations raise
/// the errors of SpreadsheetServer.
class OfficeModule {
 public:
  virtual ~OfficeModule() = default;
  virtual std::shared_ptr<Workbook> Bind(const Text& templatePath) = 0;
  virtual void SetDestination(const PrintDestination& destination) = 0;
  virtual void FinishDestination() = 0;

  /// Starts the server that the next Bind takes, and lets it export the empty template once.
  /// Returns when that is done, or soon after `stop` was asked for: nothing runs then. The server
  /// does not outlive the thread that has called this.
  virtual void Prepare(const Text& templatePath, const std::stop_token& stop) = 0;
  /// Ends the prepared server, where no Bind has taken it.
  virtual void Dismiss() = 0;
};

/// The module's one function, by the name that it has in the file. It makes a module; the caller
/// owns it. Raises error 432 where the server's libraries are there but can't be used.
using MakeOfficeModule = OfficeModule* (*)(const char* officeProgramFolder);
inline constexpr const char* kMakeOfficeModule = "tessara_make_office_module";

}  // namespace tessara
