#include "adapters/posix/write_file.h"

#include <doctest/doctest.h>
#include <fcntl.h>
#include <filesystem>
#include <iterator>
#include <sys/stat.h>

#include "adapters/posix/system_call.h"
#include "tests/support/error_of.h"
#include "tests/support/limited_process.h"
#include "tests/support/scratch_folder.h"

namespace tessara::test {

TEST_CASE("a file is written anew, whatever stood in it") {
  const ScratchFolder folder;
  folder.Write("a", "a longer text than the new one");
  for (const char* const name : {"a", "b"}) {
    WriteFile(folder / name, "new");
    CHECK(folder.Read(name) == "new");
  }
}

TEST_CASE("what can't be written is told by its number") {
  const ScratchFolder folder;
  folder.Write("file", "");
  struct Case {
    std::string path;
    int number;
  };
  for (const Case& c : {Case{folder / "missing/a", 53},
                        {folder / "file/a", 76},
                        {folder.Path(), 75},
                        {"", 53},
                        {"/dev/full", 61}}) {
    CAPTURE(c.path);
    CHECK(ErrorOf([&] { WriteFile(c.path, "x"); }) == c.number);
  }
  CHECK(std::filesystem::exists("/dev/full"));
}

TEST_CASE("a new file that could not be written whole is gone, and an old one stays") {
  const ScratchFolder folder;
  folder.Write("old", "old");
  std::filesystem::create_symlink("old", folder / "link");
  const std::string bytes(100'000, 'x');
  for (const char* name : {"new", "old", "link"}) {
    CAPTURE(name);
    CHECK(EndsWithLimit(RLIMIT_FSIZE, 1000, [&] {
      if (ErrorOf([&] { WriteFile(folder / name, bytes); }) != 61) _exit(1);
    }));
  }
  CHECK_FALSE(std::filesystem::exists(folder / "new"));
  CHECK(folder.Read("old") == "old");
  CHECK(std::distance(std::filesystem::directory_iterator(folder.Path()), {}) == 2);
}

TEST_CASE("a file that is replaced keeps its permissions, and a link to it stays") {
  const ScratchFolder folder;
  folder.Write("old", "old");
  std::filesystem::permissions(folder / "old", std::filesystem::perms(0640));
  std::filesystem::create_symlink("old", folder / "link");
  WriteFile(folder / "link", "new");
  CHECK(std::filesystem::is_symlink(folder / "link"));
  CHECK(folder.Read("old") == "new");
  CHECK(std::filesystem::status(folder / "old").permissions() == std::filesystem::perms(0640));
}

TEST_CASE("a pipe that nobody reads, or that takes no more, is not waited for") {
  const ScratchFolder folder;
  const std::string pipe = folder / "pipe";
  REQUIRE(mkfifo(pipe.c_str(), 0600) == 0);
  CHECK(ErrorOf([&] { WriteFile(pipe, "x"); }) == 75);
  const Descriptor reader(open(pipe.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  WriteFile(pipe, "x");
  CHECK(ErrorOf([&] { WriteFile(pipe, std::string(1 << 20, 'x')); }) == 57);
  CHECK(std::filesystem::is_fifo(pipe));
}

}  // namespace tessara::test
