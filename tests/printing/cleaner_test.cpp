#include "adapters/libreoffice/cleaner.h"

#include <chrono>
#include <csignal>
#include <doctest/doctest.h>
#include <filesystem>
#include <memory>
#include <unistd.h>

#include "tests/printing/server_processes.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/wait_for.h"

namespace tessara {
namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using std::chrono::seconds;

/// A folder with a file, and a file beside it, for a cleaner to remove.
struct Rubbish {
  test::ScratchFolder scratch;
  fs::path folder = scratch / "folder";
  fs::path file = scratch / "file";

  Rubbish() {
    fs::create_directory(folder);
    scratch.Write("folder/inside", "x");
    scratch.Write("file", "x");
  }
  [[nodiscard]] bool Gone() const { return !fs::exists(folder) && !fs::exists(file); }
};

TEST_CASE("a cleaner's end has removed folder and files, whoever else has its sign of life open") {
  const Rubbish rubbish;
  int other = -1;
  {
    const Cleaner cleaner(rubbish.folder, {rubbish.file, rubbish.scratch / "none"}, seconds(20));
    other = dup(cleaner.SignOfLife());
    CHECK_FALSE(rubbish.Gone());
  }
  CHECK(rubbish.Gone());
  close(other);
}

TEST_CASE("a cleaner that hangs is not waited for, and cleans when it goes on") {
  const Rubbish rubbish;
  auto cleaner = std::make_unique<Cleaner>(rubbish.folder, std::vector<fs::path>{rubbish.file},
                                           milliseconds(100));
  const pid_t process = test::CleanerOf(getpid());
  kill(process, SIGSTOP);
  const auto start = std::chrono::steady_clock::now();
  cleaner.reset();
  CHECK(std::chrono::steady_clock::now() - start < seconds(10));
  CHECK_FALSE(rubbish.Gone());
  kill(process, SIGCONT);
  test::WaitFor("the cleaner", [&] { return rubbish.Gone(); });
}

}  // namespace
}  // namespace tessara
