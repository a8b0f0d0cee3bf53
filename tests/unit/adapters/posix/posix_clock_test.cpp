#include "adapters/posix/posix_clock.h"

#include <cstdio>
#include <ctime>
#include <doctest/doctest.h>
#include <string>

#include "tests/support/environment_variable.h"

namespace tessara::test {

namespace {

/// The date that the user's clock shows, as the shell would write it.
std::string DateText() {
  const std::time_t now = std::time(nullptr);
  char text[32];
  std::strftime(text, sizeof text, "%Y-%m-%d", std::localtime(&now));
  return text;
}

std::string TextOf(const Date& date) {
  char text[32];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d", date.year, date.month, date.day);
  return text;
}

}  // namespace

TEST_CASE("today is the day of the user's own time zone") {
  for (const char* zone : {"UTC", "UTC+12", "UTC-12"}) {
    const EnvironmentVariable timeZone("TZ", zone);
    tzset();
    std::string before;
    std::string today;
    do {
      before = DateText();
      today = TextOf(PosixClock().Today());
    } while (before != DateText());
    CHECK(today == before);
  }
  tzset();
}

}  // namespace tessara::test
