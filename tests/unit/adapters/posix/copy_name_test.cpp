#include "adapters/posix/copy_name.h"

#include <ctime>
#include <doctest/doctest.h>

namespace tessara::test {

namespace {

/// A moment of local time.
Moment At(int hour, int minute, int second, int thousandth) {
  std::tm parts{};
  parts.tm_year = 126;
  parts.tm_mon = 10;
  parts.tm_mday = 21;
  parts.tm_hour = hour;
  parts.tm_min = minute;
  parts.tm_sec = second;
  parts.tm_isdst = -1;
  return std::chrono::system_clock::from_time_t(std::mktime(&parts)) +
         std::chrono::milliseconds(thousandth);
}

}  // namespace

TEST_CASE("a copy has the name of its deck, the moment, and the same ending") {
  const Moment moment = At(8, 3, 7, 9);
  const std::string stamp = " 2026-11-21 08-03-07-009";
  CHECK(CopyName("verbs.tsr", moment) == "verbs" + stamp + ".tsr");
  CHECK(CopyName("my verbs.old.tsr", moment) == "my verbs.old" + stamp + ".tsr");
  CHECK(CopyName("verbs", moment) == "verbs" + stamp);
  CHECK(CopyName(".tsr", moment) == ".tsr" + stamp);
  CHECK(CopyName("Dr. Miller's first deck", moment) == "Dr. Miller's first deck" + stamp);
}

TEST_CASE("a name that would be too long for a file is cut, never inside a character") {
  const Moment moment = At(23, 59, 59, 999);
  const std::string longest = CopyName(std::string(251, 'v') + ".tsr", moment);
  CHECK(longest == std::string(227, 'v') + " 2026-11-21 23-59-59-999.tsr");
  CHECK(longest.size() == 255);
  std::string umlauts = "v";
  for (int count = 0; count < 125; ++count) umlauts += "\xC3\xBC";
  CHECK(CopyName(umlauts + ".tsr", moment).size() == 255);
  CHECK(CopyName("v" + umlauts, moment).size() == 254);
}

TEST_CASE("all copies of files of one name have that name without their moments") {
  for (const std::string name : {"verbs.tsr", "my verbs.old.tsr", "verbs", ".tsr", "a.b c", " "}) {
    CAPTURE(name);
    CHECK(NameWithoutMoment(CopyName(name, At(1, 2, 3, 4))) == name);
    const std::string copy = CopyName(name, At(1, 2, 3, 4));
    CHECK(NameWithoutMoment(CopyName(copy, At(5, 6, 7, 8))) == copy);
  }
}

TEST_CASE("a name without a moment is no copy's") {
  for (const std::string name :
       {"", "verbs.tsr", "verbs 2026-11-21.tsr", "verbs 2026-11-21 08-03-07.tsr",
        "verbs2026-11-21 08-03-07-009.tsr", "verbs 2026-11-21 08-03-07-00x.tsr", "."}) {
    CAPTURE(name);
    CHECK_FALSE(NameWithoutMoment(name).has_value());
  }
}

}  // namespace tessara::test
