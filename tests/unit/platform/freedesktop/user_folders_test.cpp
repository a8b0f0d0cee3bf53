#include "platform/freedesktop/user_folders.h"

#include <cstdlib>
#include <doctest/doctest.h>
#include <optional>
#include <string>

namespace tessara::test {

namespace {

/// A variable of the environment, given back its value at the end.
class Variable {
 public:
  Variable(const char* name, const std::optional<std::string>& value) : name_(name) {
    const char* const before = std::getenv(name);
    if (before != nullptr) before_ = before;
    Set(value);
  }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;
  ~Variable() { Set(before_); }

 private:
  void Set(const std::optional<std::string>& value) const {
    if (value) {
      setenv(name_, value->c_str(), 1);
    } else {
      unsetenv(name_);
    }
  }

  const char* name_;
  std::optional<std::string> before_;
};

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
    const Variable home("HOME", c.home);
    const Variable data("XDG_DATA_HOME", c.chosen);
    const Variable state("XDG_STATE_HOME", c.chosen);
    CHECK(UserDataFolder() == c.data);
    CHECK(UserStateFolder() == c.state);
  }
}

}  // namespace tessara::test
