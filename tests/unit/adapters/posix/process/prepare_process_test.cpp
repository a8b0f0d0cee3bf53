#include "adapters/posix/process/prepare_process.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <doctest/doctest.h>
#include <fcntl.h>
#include <optional>
#include <string>
#include <string_view>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "adapters/posix/posix_file_system.h"
#include "tests/support/environment_variable.h"
#include "tests/support/error_of.h"
#include "tests/support/limited_process.h"
#include "tests/support/scratch_folder.h"

namespace tessara::test {

namespace {

std::string PathAfter(const std::optional<std::string>& before) {
  const EnvironmentVariable path("PATH", before);
  KeepWholePathsOnly();
  return std::getenv("PATH");
}

}  // namespace

TEST_CASE("a prepared process outlives a reader that goes, a full file, and has whole paths only") {
  CHECK(HoldsInProcess([] {
    const EnvironmentVariable path("PATH", ".:/bin");
    const EnvironmentVariable folder("XDG_DATA_HOME", "data");
    PrepareProcess();
    return std::signal(SIGPIPE, SIG_DFL) == SIG_IGN && std::signal(SIGXFSZ, SIG_DFL) != SIG_DFL &&
           std::getenv("PATH") == std::string_view("/bin") &&
           std::getenv("XDG_DATA_HOME") == nullptr;
  }));
}

TEST_CASE(
    "a prepared process can wait for its children, and has its temporary files at one place") {
  CHECK(HoldsInProcess([] {
    std::signal(SIGCHLD, SIG_IGN);
    const EnvironmentVariable folder("TMPDIR", "tmp");
    PrepareProcess();
    return std::getenv("TMPDIR") == nullptr && std::system("exit 3") != -1;
  }));
}

TEST_CASE("no file takes the number of a closed standard file, which stays as good as closed") {
  for (const int closed : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    CAPTURE(closed);
    CHECK(HoldsInProcess([closed] {
      close(closed);
      OccupyStandardFiles();
      char byte = 'x';
      const bool failed =
          closed == STDIN_FILENO ? read(closed, &byte, 1) == -1 : write(closed, &byte, 1) == -1;
      return failed && open("/dev/null", O_RDWR) > STDERR_FILENO;
    }));
  }
}

TEST_CASE("a write past the size that a file may have is the error of a full disk") {
  const ScratchFolder folder;
  CHECK(HoldsInProcess([&] {
    std::signal(SIGXFSZ, SIG_DFL);
    SurviveFileSizeLimit();
    const rlimit limit{4, 4};
    setrlimit(RLIMIT_FSIZE, &limit);
    const auto file = PosixFileSystem().Open(folder.TextPath(u"a"), OpenMode::kReadAndWrite);
    return ErrorOf([&] { file->WriteAt(0, std::array{'1', '2', '3', '4', '5'}); }) == 61;
  }));
  CHECK(folder.Read("a") == "1234");
}

TEST_CASE("a program that is started has the file size signal's default") {
  CHECK(HoldsInProcess([] {
    std::signal(SIGXFSZ, SIG_DFL);
    SurviveFileSizeLimit();
    const int status = std::system("ulimit -c 0; kill -XFSZ $$");
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGXFSZ;
  }));
}

TEST_CASE("programs are looked for in folders with a whole path only") {
  CHECK(PathAfter("/usr/bin:/bin") == "/usr/bin:/bin");
  CHECK(PathAfter(":/usr/bin::bin:./x:../y:/bin:") == "/usr/bin:/bin");
  CHECK(PathAfter(".:/home/me/my programs") == "/home/me/my programs");
}

TEST_CASE("where no folder is left programs are looked for in the system's") {
  for (const std::optional<std::string>& path :
       {std::optional<std::string>(":"), std::optional<std::string>(""),
        std::optional<std::string>("."), std::optional<std::string>()}) {
    const std::string system = PathAfter(path);
    CHECK(system.starts_with('/'));
    CHECK(system.find("/bin") != std::string::npos);
    CHECK(PathAfter(system) == system);
  }
}

TEST_CASE("a folder of the user's by a relative path counts as missing, for all that read it") {
  const EnvironmentVariable relative("XDG_CONFIG_HOME", "folder");
  const EnvironmentVariable empty("XDG_CACHE_HOME", "");
  const EnvironmentVariable whole("XDG_DATA_HOME", "/home/me/data");
  const EnvironmentVariable missing("XDG_STATE_HOME", std::nullopt);
  ForgetRelativeFolders();
  CHECK(std::getenv("XDG_CONFIG_HOME") == nullptr);
  CHECK(std::getenv("XDG_CACHE_HOME") == nullptr);
  CHECK(std::getenv("XDG_DATA_HOME") == std::string("/home/me/data"));
  CHECK(std::getenv("XDG_STATE_HOME") == nullptr);
}

}  // namespace tessara::test
