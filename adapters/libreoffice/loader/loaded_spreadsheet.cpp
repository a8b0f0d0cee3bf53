#include "adapters/libreoffice/loader/loaded_spreadsheet.h"

#include <exception>
#include <system_error>

#include "adapters/libreoffice/loader/office_location.h"
#include "base/run_time_error.h"

namespace tessara {

namespace {

using Clock = std::chrono::steady_clock;

/// Much longer than a server needs to fail by itself.
constexpr std::chrono::seconds kLongWait{10};

[[noreturn]] void ThrowNotFound() {
  throw RunTimeError(ErrorNumber::kAutomationClassNotFound);
}

std::string RequireOffice() {
  std::string folder = OfficeProgramFolder();
  if (folder.empty()) ThrowNotFound();
  return folder;
}

}  // namespace

LoadedSpreadsheet::LoadedSpreadsheet(const Text& programFolder)
    : file_(programFolder, "libtessara_libreoffice.so") {}

LoadedSpreadsheet::~LoadedSpreadsheet() = default;

void LoadedSpreadsheet::Probe(const Text& templatePath) {
  if (!file_.Exists()) ThrowNotFound();
  RequireOffice();
  CheckTemplate(templatePath);
}

void LoadedSpreadsheet::Prepare(const Text& templatePath, std::chrono::milliseconds after) {
  // The one before has gone before this one begins.
  standby_ = std::jthread();
  startsAhead_ = false;
  aheadFailed_ = false;
  try {
    standby_ = std::jthread([=, this](const std::stop_token& stop) {  //
      StandBy(templatePath, after, stop);
    });
  } catch (const std::system_error&) {
    // No thread to be had: the server starts when it is bound.
  }
}

void LoadedSpreadsheet::Dismiss() {
  standby_.request_stop();
}

void LoadedSpreadsheet::StandBy(const Text& templatePath, std::chrono::milliseconds after,
                                const std::stop_token& stop) {
  constexpr auto kUntilTold = [] { return false; };
  std::unique_lock lock(mutex_);
  toldToGo_.wait_for(lock, stop, after, kUntilTold);
  if (stop.stop_requested()) return;
  startsAhead_ = true;
  StartAhead(templatePath, stop);
  toldToGo_.wait(lock, stop, kUntilTold);
  if (module_ != nullptr) module_->Dismiss();
}

void LoadedSpreadsheet::StartAhead(const Text& templatePath, const std::stop_token& stop) noexcept {
  try {
    Probe(templatePath);
    Module().Prepare(templatePath, stop);
  } catch (const std::exception&) {
    // Told, where it still holds then, when the server is bound.
    aheadFailed_ = true;
  }
}

std::shared_ptr<Workbook> LoadedSpreadsheet::Bind(const Text& templatePath) {
  Probe(templatePath);
  const auto asked = Clock::now();
  const std::lock_guard lock(mutex_);
  // Who has waited for a start until it was given up does not wait for another one.
  if (aheadFailed_ && Clock::now() - asked > kLongWait)
    throw RunTimeError(ErrorNumber::kAutomationError);
  if (!startsAhead_) standby_.request_stop();
  return Module().Bind(templatePath);
}

void LoadedSpreadsheet::SetDestination(const PrintDestination& destination) {
  const std::lock_guard lock(mutex_);
  Module().SetDestination(destination);
}

void LoadedSpreadsheet::FinishDestination() {
  const std::lock_guard lock(mutex_);
  Module().FinishDestination();
}

OfficeModule& LoadedSpreadsheet::Module() {
  if (module_ == nullptr) {
    const std::string office = RequireOffice();
    const auto make = file_.Find<MakeOfficeModule>(kMakeOfficeModule);
    if (make == nullptr) ThrowNotFound();
    module_.reset(make(office.c_str()));
  }
  return *module_;
}

}  // namespace tessara
