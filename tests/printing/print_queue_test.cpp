#include "adapters/cups/print_queue.h"

#include <chrono>
#include <cups/cups.h>
#include <doctest/doctest.h>
#include <optional>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>

#include "base/run_time_error.h"
#include "tests/support/scratch_folder.h"

namespace tessara {
namespace {

/// A printing system that takes connections and never answers.
class SilentSystem {
 public:
  explicit SilentSystem(const std::string& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    REQUIRE(bind(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0);
    REQUIRE(listen(socket_, SOMAXCONN) == 0);
  }
  SilentSystem(const SilentSystem&) = delete;
  SilentSystem& operator=(const SilentSystem&) = delete;
  ~SilentSystem() { close(socket_); }

 private:
  int socket_ = socket(AF_UNIX, SOCK_STREAM, 0);
};

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
  const SilentSystem silent(path);
  const auto start = std::chrono::steady_clock::now();
  CHECK(ErrorOfPrinting(path) == ErrorNumber::kPrinterError);
  CHECK(std::chrono::steady_clock::now() - start < std::chrono::seconds(10));
}

}  // namespace
}  // namespace tessara
