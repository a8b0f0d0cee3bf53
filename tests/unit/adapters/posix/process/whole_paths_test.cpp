#include "adapters/posix/process/whole_paths.h"

#include <cstdlib>
#include <doctest/doctest.h>
#include <optional>
#include <string>
#include <unistd.h>

#include "tests/support/environment_variable.h"

namespace tessara {
namespace {

std::string PathAfter(const std::optional<std::string>& before) {
  const test::EnvironmentVariable path("PATH", before);
  KeepWholePathsOnly();
  return std::getenv("PATH");
}

TEST_CASE("programs are looked for in folders with a whole path only") {
  CHECK(PathAfter("/usr/bin:/bin") == "/usr/bin:/bin");
  CHECK(PathAfter(":/usr/bin::bin:./x:../y:/bin:") == "/usr/bin:/bin");
  CHECK(PathAfter(".:/home/me/my programs") == "/home/me/my programs");
}

TEST_CASE("where no folder is left programs are looked for in the system's") {
  for (const std::optional<std::string>& path :
       {std::optional<std::string>(":"), std::optional<std::string>(""),
        std::optional<std::string>("."), std::optional<std::string>()}) {
    const std::string system = PathAfter(path);
    CHECK(system.starts_with('/'));
    CHECK(system.find("/bin") != std::string::npos);
    CHECK(PathAfter(system) == system);
  }
}

TEST_CASE("a folder of the user's by a relative path counts as missing, for all that read it") {
  const test::EnvironmentVariable relative("XDG_CONFIG_HOME", "folder");
  const test::EnvironmentVariable empty("XDG_CACHE_HOME", "");
  const test::EnvironmentVariable whole("XDG_DATA_HOME", "/home/me/data");
  const test::EnvironmentVariable missing("XDG_STATE_HOME", std::nullopt);
  ForgetRelativeFolders();
  CHECK(std::getenv("XDG_CONFIG_HOME") == nullptr);
  CHECK(std::getenv("XDG_CACHE_HOME") == nullptr);
  CHECK(std::getenv("XDG_DATA_HOME") == std::string("/home/me/data"));
  CHECK(std::getenv("XDG_STATE_HOME") == nullptr);
}

}  // namespace
}  // namespace tessara
