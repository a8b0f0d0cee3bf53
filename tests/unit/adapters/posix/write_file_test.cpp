#include "adapters/posix/write_file.h"

#include <doctest/doctest.h>
#include <filesystem>

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

TEST_CASE("a file that could not be written whole is gone") {
  const ScratchFolder folder;
  const std::string bytes(5000, 'x');
  CHECK(EndsWithLimit(RLIMIT_FSIZE, 1000, [&] {
    if (ErrorOf([&] { WriteFile(folder / "a", bytes); }) != 61) _exit(1);
  }));
  CHECK_FALSE(std::filesystem::exists(folder / "a"));
}

}  // namespace tessara::test
