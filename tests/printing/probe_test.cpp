#include <algorithm>
#include <chrono>
#include <doctest/doctest.h>
#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>
#include <unistd.h>

#include "adapters/libreoffice/loader/loaded_spreadsheet.h"
#include "adapters/libreoffice/loader/office_location.h"
#include "base/run_time_error.h"
#include "base/utf8.h"
#include "tests/printing/server_processes.h"
#include "tests/support/scratch_folder.h"

namespace tessara {
namespace {

const std::string kTemplate = PROGRAM_FOLDER "/Notelet.xlt";

/// Name of the stream that makes a compound file a spreadsheet.
const std::string kWorkbookStream("W\0o\0r\0k\0b\0o\0o\0k\0", 16);

std::optional<ErrorNumber> ErrorOf(const std::function<void()>& step) {
  try {
    step();
    return std::nullopt;
  } catch (const RunTimeError& error) {
    return error.Number();
  }
}

std::optional<ErrorNumber> ProbeError(const std::string& templatePath,
                                      const std::string& programFolder = PROGRAM_FOLDER) {
  LoadedSpreadsheet server(FromUtf8(programFolder));
  return ErrorOf([&] { server.Probe(FromUtf8(templatePath)); });
}

TEST_CASE("the probe finds server and template in under 20 milliseconds without starting it") {
  // The soonest of some: other work may keep the processor.
  auto soonest = std::chrono::steady_clock::duration::max();
  for (int probe = 0; probe < 5; ++probe) {
    const auto start = std::chrono::steady_clock::now();
    CHECK(ProbeError(kTemplate) == std::nullopt);
    soonest = std::min(soonest, std::chrono::steady_clock::now() - start);
  }
  CHECK(soonest < std::chrono::milliseconds(20));
  CHECK(test::ServerProcesses().empty());
}

TEST_CASE("a template that is not there, or none, is told apart") {
  const test::ScratchFolder folder;
  const std::string path = (folder / "Notelet.xlt").string();
  CHECK(ProbeError(path) == ErrorNumber::kAutomationClassNotFound);
  std::ofstream(path) << "Cards,on,paper\n";
  CHECK(ProbeError(path) == ErrorNumber::kAutomationError);
  std::ofstream(path) << "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1 and no spreadsheet";
  CHECK(ProbeError(path) == ErrorNumber::kAutomationError);
  std::filesystem::remove(path);
  std::filesystem::create_directory(path);
  CHECK(ProbeError(path) == ErrorNumber::kAutomationError);
}

/// For its life the process has no right to read what others keep to themselves.
class AsNobody {
 public:
  AsNobody() { SetUser(kNobody); }
  ~AsNobody() { SetUser(0); }
  AsNobody(const AsNobody&) = delete;
  AsNobody& operator=(const AsNobody&) = delete;

 private:
  static constexpr uid_t kNobody = 65534;
  void SetUser(uid_t user) const {
    if (root_) REQUIRE(seteuid(user) == 0);
  }

  bool root_ = getuid() == 0;
};

TEST_CASE("a template that may not be read is told from one that is not there") {
  namespace fs = std::filesystem;
  const test::ScratchFolder folder;
  const fs::path path = folder / "Notelet.xlt";
  fs::copy_file(kTemplate, path);
  fs::permissions(folder.Path(), fs::perms::group_exec | fs::perms::others_exec,
                  fs::perm_options::add);
  CheckTemplate(FromUtf8(path.string()));
  fs::permissions(path, fs::perms::none);
  const AsNobody nobody;
  CHECK(ErrorOf([&] { CheckTemplate(FromUtf8(path.string())); }) == ErrorNumber::kAutomationError);
}

TEST_CASE("without the module there is no server") {
  const test::ScratchFolder folder;
  CHECK(ProbeError(kTemplate, (folder / "").string()) == ErrorNumber::kAutomationClassNotFound);
}

TEST_CASE("binding raises what the probe raises") {
  const test::ScratchFolder folder;
  LoadedSpreadsheet server(FromUtf8(PROGRAM_FOLDER));
  CHECK(ErrorOf([&] { server.Bind(FromUtf8((folder / "none.xlt").string())); }) ==
        ErrorNumber::kAutomationClassNotFound);
}

TEST_CASE("a damaged spreadsheet is refused by the server") {
  const test::ScratchFolder folder;
  const std::string path = (folder / "Notelet.xlt").string();
  std::ofstream(path) << "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1" << kWorkbookStream
                      << std::string(600, '\0');
  LoadedSpreadsheet server(FromUtf8(PROGRAM_FOLDER));
  const auto error = ErrorOf([&] { server.Bind(FromUtf8(path)); });
  CHECK(error == ErrorNumber::kAutomationError);
  CHECK(test::ServerProcesses().empty());
}

}  // namespace
}  // namespace tessara
