#include "adapters/posix/job_folder.h"

#include <doctest/doctest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/support/scratch_folder.h"

namespace tessara::test {

namespace {

namespace fs = std::filesystem;

/// The number of a process that has ended.
std::string GoneProcess() {
  const pid_t child = fork();
  if (child == 0) _exit(0);
  waitpid(child, nullptr, 0);
  return std::to_string(child);
}

}  // namespace

TEST_CASE("the folder of a job whose process is gone is left behind, and nothing else is") {
  const ScratchFolder scratch;
  const fs::path parent = scratch.Path();
  std::string own = (parent / JobFolderPattern()).string();
  REQUIRE(mkdtemp(own.data()) != nullptr);
  CHECK_FALSE(IsLeftBehind(own));
  const std::string gone = "tessara-print-" + GoneProcess();
  fs::create_directory(parent / (gone + "-aB3xYz"));
  CHECK(IsLeftBehind(parent / (gone + "-aB3xYz")));
  for (const std::string& name :
       {gone, gone + "-notes", gone + "-longer1", gone + "_aB3xYz", std::string("tessara-print-"),
        std::string("tessara-print--1-aB3xYz"), std::string("tessara-print-0-aB3xYz"),
        std::string("tessara-print-99999999999-aB3xYz"), "a" + gone + "-aB3xYz"}) {
    CAPTURE(name);
    fs::create_directory(parent / name);
    CHECK_FALSE(IsLeftBehind(parent / name));
  }
  scratch.Write(gone + "-aFile1", "the user's own");
  CHECK_FALSE(IsLeftBehind(parent / (gone + "-aFile1")));
}

}  // namespace tessara::test
