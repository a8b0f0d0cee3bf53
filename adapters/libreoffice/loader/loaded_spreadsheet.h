#pragma once

#include <memory>
#include <string>

#include "machine/spreadsheet.h"

namespace tessara {

/// The spreadsheet server as a module of the program's folder, loaded when a job first needs it:
/// without it, or without the libraries that it needs, the program runs and this one refuses.
class LoadedSpreadsheet : public SpreadsheetServer {
 public:
  /// The folder of the executable.
  explicit LoadedSpreadsheet(const Text& programFolder);
  ~LoadedSpreadsheet() override;
  LoadedSpreadsheet(const LoadedSpreadsheet&) = delete;
  LoadedSpreadsheet& operator=(const LoadedSpreadsheet&) = delete;

  /// Looks for the module, the server's programs and the template; loads nothing.
  void Probe(const Text& templatePath) override;
  std::shared_ptr<Workbook> Bind(const Text& templatePath) override;
  void SetDestination(const PrintDestination& destination) override;
  void FinishDestination() override;

 private:
  /// Raises error 432 where the module can't be loaded.
  SpreadsheetServer& Server();

  std::string modulePath_;
  std::unique_ptr<SpreadsheetServer> server_;
};

}  // namespace tessara
