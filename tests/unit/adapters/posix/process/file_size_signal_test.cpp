#include "adapters/posix/process/file_size_signal.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <doctest/doctest.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include "adapters/posix/posix_file_system.h"
#include "tests/support/error_of.h"
#include "tests/support/limited_process.h"
#include "tests/support/scratch_folder.h"

namespace tessara::test {

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

}  // namespace tessara::test
