#include "adapters/posix/process/prepare_process.h"

#include <clocale>
#include <csignal>

#include "adapters/posix/process/file_size_signal.h"
#include "adapters/posix/process/whole_paths.h"

namespace tessara {

void PrepareProcess() {
  std::setlocale(LC_ALL, "");
  std::signal(SIGPIPE, SIG_IGN);
  SurviveFileSizeLimit();
  KeepWholePathsOnly();
  ForgetRelativeFolders();
}

}  // namespace tessara
