#include "adapters/posix/new_file.h"

#include <doctest/doctest.h>
#include <fcntl.h>
#include <sys/stat.h>

#include "tests/support/disk_fixture.h"
#include "tests/support/killed_process.h"
#include "tests/support/refused_call.h"

namespace tessara::test {

namespace {

constexpr NewFile::Kind kBothKinds[] = {NewFile::Kind::kNameless, NewFile::Kind::kHidden};

void WriteNew(const ScratchFolder& folder, NewFile::Kind kind) {
  NewFile file(folder.Path(), kind);
  REQUIRE(write(file.Get(), "whole", 5) == 5);
  file.NameIt("name");
}

mode_t ModeOf(const std::filesystem::path& path) {
  struct stat status {};
  REQUIRE(lstat(path.c_str(), &status) == 0);
  return status.st_mode & 0777U;
}

}  // namespace

TEST_CASE("a new file comes into its folder under its name, for its owner only") {
  for (const NewFile::Kind kind : kBothKinds) {
    for (const mode_t mask : {mode_t{0}, mode_t{0777}}) {
      const ScratchFolder folder;
      const mode_t before = umask(mask);
      WriteNew(folder, kind);
      umask(before);
      CHECK(NamesIn(folder.Path()) == std::vector<std::string>{"name"});
      CHECK(ModeOf(folder / "name") == 0600);
      CHECK(folder.Read("name") == "whole");
    }
  }
}

TEST_CASE("a new file that gets no name leaves nothing behind") {
  for (const NewFile::Kind kind : kBothKinds) {
    const ScratchFolder folder;
    {
      const NewFile file(folder.Path(), kind);
      REQUIRE(write(file.Get(), "part", 4) == 4);
    }
    CHECK(NamesIn(folder.Path()).empty());
  }
}

TEST_CASE("a nameless file is whole or not there, wherever its process is killed") {
  for (int stop = 1;; ++stop) {
    const ScratchFolder folder;
    const bool killed = KilledAt(stop, [&] { WriteNew(folder, NewFile::Kind::kNameless); });
    const std::vector<std::string> names = NamesIn(folder.Path());
    CHECK((names.empty() ||
           (names == std::vector<std::string>{"name"} && folder.Read("name") == "whole")));
    if (!killed) break;
  }
}

TEST_CASE("a hidden file that a killed process has left is removed an hour later") {
  const ScratchFolder folder;
  folder.Write(".unfinished-1", "part");
  folder.Write(".unfinished-2", "part");
  folder.Write(".other", "file");
  const auto now = std::filesystem::file_time_type::clock::now();
  std::filesystem::last_write_time(folder / ".unfinished-1", now - std::chrono::minutes(61));
  std::filesystem::last_write_time(folder / ".unfinished-2", now - std::chrono::minutes(59));
  std::filesystem::last_write_time(folder / ".other", now - std::chrono::minutes(61));
  NewFile::RemoveUnfinished(folder.Path());
  CHECK(NamesIn(folder.Path()) == std::vector<std::string>{".other", ".unfinished-2"});
}

TEST_CASE("a hidden file of a killed process of the same number is no obstacle") {
  const ScratchFolder folder;
  folder.Write(".unfinished-" + std::to_string(getpid()), "part of another one");
  WriteNew(folder, NewFile::Kind::kHidden);
  CHECK(NamesIn(folder.Path()) == std::vector<std::string>{"name"});
  CHECK(folder.Read("name") == "whole");
}

TEST_CASE("each folder that is made is on the disk before the next one is") {
  const ScratchFolder folder;
  std::vector<long> calls = FileCallsOf([&] {
    MakeFolders(folder / "a/b");
    return 0;
  });
  std::erase_if(calls, [](long call) { return call != SYS_mkdir && call != SYS_fsync; });
  CHECK(calls == std::vector<long>{SYS_mkdir, SYS_fsync, SYS_mkdir, SYS_fsync});
}

TEST_CASE("missing folders are made for their owner only; those that are there stay as they are") {
  const ScratchFolder folder;
  std::filesystem::create_directory(folder / "a");
  REQUIRE(chmod((folder / "a").c_str(), 0755) == 0);
  MakeFolders(folder / "a/b/c");
  CHECK(ModeOf(folder / "a") == 0755);
  CHECK(ModeOf(folder / "a/b") == 0700);
  CHECK(ModeOf(folder / "a/b/c") == 0700);
  folder.Write("file", "");
  CHECK_THROWS_AS(MakeFolders(folder / "file/b"), std::system_error);
}

}  // namespace tessara::test
