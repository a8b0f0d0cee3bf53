#include "adapters/posix/process/prepare_process.h"

#include <csignal>
#include <cstdlib>
#include <doctest/doctest.h>
#include <string_view>

#include "tests/support/environment_variable.h"
#include "tests/support/limited_process.h"

namespace tessara::test {

TEST_CASE("a prepared process outlives a reader that goes, a full file, and has whole paths only") {
  CHECK(HoldsInProcess([] {
    const EnvironmentVariable path("PATH", ".:/bin");
    const EnvironmentVariable folder("XDG_DATA_HOME", "data");
    PrepareProcess();
    return std::signal(SIGPIPE, SIG_DFL) == SIG_IGN && std::signal(SIGXFSZ, SIG_DFL) != SIG_DFL &&
           std::getenv("PATH") == std::string_view("/bin") &&
           std::getenv("XDG_DATA_HOME") == nullptr;
  }));
}

}  // namespace tessara::test
