#include "adapters/cups/print_queue.h"

#include <chrono>
#include <cups/cups.h>
#include <doctest/doctest.h>
#include <optional>
#include <thread>

#include "base/run_time_error.h"
#include "tests/printing/silent_system.h"
#include "tests/support/scratch_folder.h"

namespace tessara {
namespace {

/// What printing on a queue of the system raises. The library knows a system for each thread.
std::optional<ErrorNumber> ErrorOfPrinting(const std::string& system) {
  std::optional<ErrorNumber> raised;
  std::thread([&] {
    cupsSetServer(system.c_str());
    try {
      PrintOnQueue("cards", "/dev/null", {}, std::chrono::seconds(1));
    } catch (const RunTimeError& error) {
      raised = error.Number();
    }
  }).join();
  return raised;
}

TEST_CASE("a printing system that is not there or hangs raises an error in good time") {
  const test::ScratchFolder folder;
  const std::string path = folder / "socket";
  CHECK(ErrorOfPrinting(path) == ErrorNumber::kPrinterError);
  const test::SilentSystem silent(path);
  const auto start = std::chrono::steady_clock::now();
  CHECK(ErrorOfPrinting(path) == ErrorNumber::kPrinterError);
  CHECK(std::chrono::steady_clock::now() - start < std::chrono::seconds(10));
}

}  // namespace
}  // namespace tessara
