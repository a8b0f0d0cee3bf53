#include "adapters/libreoffice/loader/loaded_spreadsheet.h"

#include <dlfcn.h>
#include <filesystem>
#include <system_error>

#include "adapters/libreoffice/loader/office_location.h"
#include "base/run_time_error.h"
#include "base/utf8.h"

namespace tessara {

namespace {

constexpr const char* kModuleName = "libtessara_libreoffice.so";
constexpr const char* kMakerName = "tessara_make_spreadsheet_server";

using Maker = SpreadsheetServer* (*)(const char* officeProgramFolder);

[[noreturn]] void ThrowNotFound() {
  throw RunTimeError(ErrorNumber::kAutomationClassNotFound);
}

std::string RequireOffice() {
  std::string folder = OfficeProgramFolder();
  if (folder.empty()) ThrowNotFound();
  return folder;
}

/// The module stays loaded: threads of its libraries may still be ending when the server is gone.
Maker LoadMaker(const std::string& modulePath) {
  void* module = dlopen(modulePath.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (module == nullptr) ThrowNotFound();
  void* maker = dlsym(module, kMakerName);
  if (maker == nullptr) ThrowNotFound();
  return reinterpret_cast<Maker>(maker);
}

}  // namespace

LoadedSpreadsheet::LoadedSpreadsheet(const Text& programFolder)
    : modulePath_(ToUtf8(programFolder) + "/" + kModuleName) {}

LoadedSpreadsheet::~LoadedSpreadsheet() = default;

void LoadedSpreadsheet::Probe(const Text& templatePath) {
  std::error_code none;
  if (!std::filesystem::exists(modulePath_, none)) ThrowNotFound();
  RequireOffice();
  CheckTemplate(templatePath);
}

std::shared_ptr<Workbook> LoadedSpreadsheet::Bind(const Text& templatePath) {
  Probe(templatePath);
  return Server().Bind(templatePath);
}

void LoadedSpreadsheet::SetDestination(const PrintDestination& destination) {
  Server().SetDestination(destination);
}

void LoadedSpreadsheet::FinishDestination() {
  Server().FinishDestination();
}

SpreadsheetServer& LoadedSpreadsheet::Server() {
  if (server_ == nullptr) {
    const std::string office = RequireOffice();
    server_.reset(LoadMaker(modulePath_)(office.c_str()));
  }
  return *server_;
}

}  // namespace tessara
