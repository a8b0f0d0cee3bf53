#include "adapters/freedesktop/user_folders.h"

#include <doctest/doctest.h>
#include <optional>
#include <string>

#include "tests/support/environment_variable.h"

namespace tessara::test {

namespace {

struct Case {
  std::optional<std::string> chosen;
  std::optional<std::string> home;
  std::string data;
  std::string state;
};

}  // namespace

TEST_CASE("the user's folders are the chosen ones, or stand below the home") {
  for (const Case& c :
       {Case{"/chosen", "/home/ann", "/chosen", "/chosen"},
        Case{"/chosen", std::nullopt, "/chosen", "/chosen"},
        Case{std::nullopt, "/home/ann", "/home/ann/.local/share", "/home/ann/.local/state"},
        Case{"", "/home/ann", "/home/ann/.local/share", "/home/ann/.local/state"},
        Case{"relative", "/home/ann", "/home/ann/.local/share", "/home/ann/.local/state"},
        Case{std::nullopt, std::nullopt, "", ""}, Case{std::nullopt, "", "", ""}}) {
    const EnvironmentVariable home("HOME", c.home);
    const EnvironmentVariable data("XDG_DATA_HOME", c.chosen);
    const EnvironmentVariable state("XDG_STATE_HOME", c.chosen);
    CHECK(UserDataFolder() == c.data);
    CHECK(UserStateFolder() == c.state);
  }
}

}  // namespace tessara::test
