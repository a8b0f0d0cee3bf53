#include "adapters/posix/copies/copy_name.h"

#include <ctime>
#include <doctest/doctest.h>

namespace tessara::test {

namespace {

/// A moment of local time.
Moment At(int hour, int minute, int second) {
  std::tm parts{};
  parts.tm_year = 126;
  parts.tm_mon = 10;
  parts.tm_mday = 21;
  parts.tm_hour = hour;
  parts.tm_min = minute;
  parts.tm_sec = second;
  parts.tm_isdst = -1;
  return std::chrono::system_clock::from_time_t(std::mktime(&parts));
}

}  // namespace

TEST_CASE("a copy has the name of its deck, the moment, its number, and the same ending") {
  const Moment moment = At(8, 3, 7);
  const std::string stamp = " 2026-11-21 08-03-07-0009";
  CHECK(CopyName("verbs.tsr", moment, 9) == "verbs" + stamp + ".tsr");
  CHECK(CopyName("my verbs.old.tsr", moment, 9) == "my verbs.old" + stamp + ".tsr");
  CHECK(CopyName("verbs", moment, 9) == "verbs" + stamp);
  CHECK(CopyName(".tsr", moment, 9) == ".tsr" + stamp);
  CHECK(CopyName("Dr. Miller's first deck", moment, 9) == "Dr. Miller's first deck" + stamp);
  CHECK(CopyName("verbs.tsr", moment, 12345) == "verbs 2026-11-21 08-03-07-12345.tsr");
}

TEST_CASE("a name that would be too long for a file is cut, never inside a character") {
  const Moment moment = At(23, 59, 59);
  const std::string longest = CopyName(std::string(251, 'v') + ".tsr", moment, 1);
  CHECK(longest == std::string(226, 'v') + " 2026-11-21 23-59-59-0001.tsr");
  CHECK(longest.size() == 255);
  std::string umlauts = "v";
  for (int count = 0; count < 125; ++count) umlauts += "\xC3\xBC";
  CHECK(CopyName(umlauts + ".tsr", moment, 1).size() == 254);
  CHECK(CopyName("v" + umlauts, moment, 1).size() == 255);
  CHECK(UnsavedName(std::string(251, 'v') + ".tsr", 4711, 1).size() == 255);
}

TEST_CASE("all copies of files of one name have that name, each with its number") {
  for (const std::string name : {"verbs.tsr", "my verbs.old.tsr", "verbs", ".tsr", "a.b c", " "}) {
    CAPTURE(name);
    const std::string copy = CopyName(name, At(1, 2, 3), 4);
    CHECK(ReadCopyName(copy)->fileName == name);
    CHECK(ReadCopyName(copy)->number == 4);
    CHECK(ReadCopyName(CopyName(copy, At(5, 6, 7), 12345))->fileName == copy);
    CHECK(ReadCopyName(CopyName(copy, At(5, 6, 7), 12345))->number == 12345);
  }
}

TEST_CASE("the copies of earlier versions, without a number, are older than all others") {
  const auto copy = ReadCopyName("verbs 2026-11-21 08-03-07-009.tsr");
  CHECK(copy->fileName == "verbs.tsr");
  CHECK(copy->number == 0);
}

TEST_CASE("a name without a moment and a number is no copy's") {
  for (const std::string name :
       {"", "verbs.tsr", "verbs 2026-11-21.tsr", "verbs 2026-11-21 08-03-07.tsr",
        "verbs2026-11-21 08-03-07-009.tsr", "verbs 2026-11-21 08-03-07-00x.tsr",
        "verbs 2026-11-21 08-03-07-1234567890123.tsr", "verbs (unsaved 12-1).tsr",
        "verbs not saved 2026-11-21 08-13-27-0042 (unsaved 12-1).tsr", "."}) {
    CAPTURE(name);
    CHECK_FALSE(ReadCopyName(name).has_value());
  }
}

TEST_CASE("the file of an unsaved deck ends as a deck does, and tells its process") {
  CHECK(UnsavedName("verbs.tsr", 4711, 2) == "verbs (unsaved 4711-2).tsr");
  CHECK(UnsavedName("verbs", 4711, 1) == "verbs (unsaved 4711-1).tsr");
  CHECK(ReadUnsavedName("verbs (unsaved 4711-2).tsr") == "verbs.tsr");
  CHECK(ReadUnsavedName("a (unsaved 1-1) (unsaved 2-3).tsr") == "a (unsaved 1-1).tsr");
}

TEST_CASE("a name that is like an unsaved deck's, but not quite, is none's") {
  for (const std::string name :
       {"", "verbs.tsr", "verbs (unsaved 4711-2)", "verbs (unsaved 4711).tsr",
        "verbs (unsaved -2).tsr", "verbs (unsaved 4711-).tsr", "verbs (unsaved x-2).tsr",
        "verbs (unsaved 4711-2 ).tsr", "verbs (unsaved ).tsr", "(unsaved 4711-2).tsr"}) {
    CAPTURE(name);
    CHECK_FALSE(ReadUnsavedName(name).has_value());
  }
}

TEST_CASE("a deck that could not be saved has a name that says so") {
  CHECK(NotSavedName("verbs.tsr") == "verbs not saved.tsr");
  CHECK(NotSavedName("verbs") == "verbs not saved.tsr");
}

}  // namespace tessara::test
