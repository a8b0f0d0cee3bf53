// Whether a file could be saved at a place, tried on a real disk.

#include <doctest/doctest.h>
#include <sys/stat.h>

#include "adapters/posix/posix_file_system.h"
#include "tests/support/disk_fixture.h"
#include "tests/support/error_of.h"
#include "tests/support/limited_process.h"
#include "tests/support/scratch_folder.h"

namespace tessara::test {

namespace {

int ErrorOfTrial(const Text& path) {
  return ErrorOf([&] { PosixFileSystem().TrySaving(path); });
}

void Permit(const std::filesystem::path& path, unsigned permissions) {
  std::filesystem::permissions(path, static_cast<std::filesystem::perms>(permissions));
}

}  // namespace

TEST_CASE("a trial leaves the folder as it was and the file that is there untouched") {
  const ScratchFolder folder;
  folder.Write("old.tsr", "old");
  const auto written = std::filesystem::last_write_time(folder / "old.tsr");
  CHECK(ErrorOfTrial(folder.TextPath(u"old.tsr")) == 0);
  CHECK(ErrorOfTrial(folder.TextPath(u"new.tsr")) == 0);
  CHECK(NamesIn(folder.Path()) == std::vector<std::string>{"old.tsr"});
  CHECK(folder.Read("old.tsr") == "old");
  CHECK(std::filesystem::last_write_time(folder / "old.tsr") == written);
}

TEST_CASE("folder and file are tried as any user has them") {
  const ScratchFolder folder;
  for (const char* name : {"open", "locked"}) {
    std::filesystem::create_directory(folder / name);
    folder.Write(std::string(name) + "/mine.tsr", "mine");
    folder.Write(std::string(name) + "/barred.tsr", "barred");
    Permit(folder / (std::string(name) + "/mine.tsr"), 0666);
    Permit(folder / (std::string(name) + "/barred.tsr"), 0444);
  }
  Permit(folder.Path(), 0755);
  Permit(folder / "open", 0777);
  Permit(folder / "locked", 0555);
  struct Case {
    TextView name;
    int error;
  };
  const Case cases[] = {
      {u"open/new.tsr", 0},    {u"open/mine.tsr", 0},   {u"open/barred.tsr", 70},
      {u"locked/new.tsr", 70}, {u"locked/mine.tsr", 0}, {u"locked/barred.tsr", 70},
  };
  for (const Case& c : cases) {
    const Text path = folder.TextPath(Text(c.name));
    CAPTURE(ToUtf8(path));
    CHECK(HoldsForAnyUser([&] { return ErrorOfTrial(path) == c.error; }));
  }
  CHECK(folder.Read("locked/mine.tsr") == "mine");
}

TEST_CASE("a name is tried as it is, up to the longest one") {
  const ScratchFolder folder;
  constexpr std::size_t kLongestName = 255;
  CHECK(ErrorOfTrial(folder.TextPath(Text(kLongestName, u'x'))) == 0);
  CHECK(ErrorOfTrial(folder.TextPath(Text(kLongestName + 1, u'x'))) == 75);
  CHECK(NamesIn(folder.Path()).empty());
}

TEST_CASE("what is no file and what makes none is no place to save to") {
  const ScratchFolder folder;
  REQUIRE(mkfifo((folder / "pipe").c_str(), 0600) == 0);
  CHECK(ErrorOfTrial(folder.TextPath(u"pipe")) == 75);
  CHECK(ErrorOfTrial(u"/dev/null") == 75);
  CHECK(ErrorOfTrial(folder.TextPath(u"a") + Text(1, u'\0') + u"b") == 75);
  CHECK(ErrorOfTrial(folder.TextPath(u"gone/a")) == 76);
  // Not even the administrator makes files there.
  CHECK(ErrorOfTrial(u"/sys/tessara") == 70);
}

TEST_CASE("a file that a link leads to is tried, and the link stays") {
  const ScratchFolder folder;
  folder.Write("target", "old");
  std::filesystem::create_symlink("target", folder / "link");
  std::filesystem::create_symlink("loop", folder / "loop");
  CHECK(ErrorOfTrial(folder.TextPath(u"link")) == 0);
  CHECK(ErrorOfTrial(folder.TextPath(u"loop")) == 75);
  CHECK(folder.Read("link") == "old");
  CHECK(std::filesystem::is_symlink(folder / "link"));
}

}  // namespace tessara::test
