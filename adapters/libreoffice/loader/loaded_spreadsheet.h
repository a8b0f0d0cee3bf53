#pragma once

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <stop_token>
#include <thread>

#include "adapters/libreoffice/loader/office_module.h"
#include "adapters/posix/process/lazy_module.h"
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
  void Prepare(const Text& templatePath, std::chrono::milliseconds after) override;
  void Dismiss() override;
  /// Waits for a server that is on its way.
  std::shared_ptr<Workbook> Bind(const Text& templatePath) override;
  void SetDestination(const PrintDestination& destination) override;
  void FinishDestination() override;

 private:
  /// Raises error 432 where the module can't be loaded.
  OfficeModule& Module();
  void StandBy(const Text& templatePath, std::chrono::milliseconds after,
               const std::stop_token& stop);
  void StartAhead(const Text& templatePath, const std::stop_token& stop) noexcept;

  LazyModule file_;
  std::mutex mutex_;  ///< held while the module is asked
  std::unique_ptr<OfficeModule> module_;
  bool startsAhead_ = false;  ///< the server's start ahead of its use has begun
  bool aheadFailed_ = false;  ///< and there was none to be had
  std::condition_variable_any toldToGo_;
  /// Starts the server ahead of its use, and then stays: that server dies with its thread. The last
  /// member: it uses the others.
  std::jthread standby_;
};

}  // namespace tessara
